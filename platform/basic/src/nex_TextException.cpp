#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <nex_TextException.h>

nex_TextException::nex_TextException(const cls_ReadVisitor& reader)
    : nex_Raisable(cls_ReadVisitor(reader, nex_Exception::TypeId())),
      m_Text(reader.Get<atr_String>("text")),
      m_TextUid(reader.Uid()) {}

void nex_TextException::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<nex_Exception>(TypeId(), m_TextUid, *this)) return;
  writer.Write("text", m_Text);
}

unsigned int nex_TextException::TypeId() noexcept { return cls_MakeTypeId(cls_ExceptionModule, 2); }

void nex_TextException::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(
          new cls_TypeAdapter<nex_TextException>("nex_TextException", 800, nex_Exception::TypeId()))
      .AddAttribute({0, "text"}, cls_KIND_STRING);
}
