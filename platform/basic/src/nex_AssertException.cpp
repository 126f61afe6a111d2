#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <nex_AssertException.h>

nex_AssertException::nex_AssertException(const cls_ReadVisitor& reader)
    : nex_Raisable(cls_ReadVisitor(reader, nex_Exception::TypeId())),
      m_Condition(reader.Get<atr_String>("condition")),
      m_AssertUid(reader.Uid()) {}

void nex_AssertException::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<nex_Exception>(TypeId(), m_AssertUid, *this)) return;
  writer.Write("condition", m_Condition);
}

unsigned int nex_AssertException::TypeId() noexcept {
  return cls_MakeTypeId(cls_ExceptionModule, 4);
}

void nex_AssertException::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_TypeAdapter<nex_AssertException>("nex_AssertException", 800,
                                                           nex_Exception::TypeId()))
      .AddAttribute({0, "condition"}, cls_KIND_STRING);
}
