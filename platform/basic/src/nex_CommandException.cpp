#include <cls_AbsTypeAdapter.h>
#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_WriteVisitor.h>
#include <nex_CommandException.h>

nex_CommandException::nex_CommandException(const cls_ReadVisitor& reader)
    : nex_Exception(cls_ReadVisitor(reader, nex_Exception::TypeId())), m_CommandUid(reader.Uid()) {}

atr_String nex_CommandException::AsString() const { return JournalMessage(); }

unsigned int nex_CommandException::DynTypeId() const { return TypeId(); }

cow_String nex_CommandException::PythonType() const { return "CommandError"; }

void nex_CommandException::DBWrite(const cls_WriteVisitor& writer) const {
  writer.StartLevel<nex_Exception>(TypeId(), m_CommandUid, *this);
}

unsigned int nex_CommandException::TypeId() noexcept {
  return cls_MakeTypeId(cls_ExceptionModule, 3);
}

void nex_CommandException::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar.AddClassMD(new cls_AbsTypeAdapter<nex_CommandException>("nex_CommandException", 800,
                                                                    nex_Exception::TypeId()));
}
