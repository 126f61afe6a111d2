#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_AttributeErrorException.h>

omu_AttributeErrorException::omu_AttributeErrorException(const cls_ReadVisitor& reader)
    : nex_Raisable(cls_ReadVisitor(reader, nex_CommandException::TypeId())),
      m_ErrorType(reader.Get<int>("m_ErrorType")),
      m_Attribute(reader.Get<atr_String>("m_Attribute")),
      m_Uid(reader.Uid()) {}

atr_String omu_AttributeErrorException::JournalMessage() const {
  switch (m_ErrorType) {
    case 0: return "read-only attributes";
    case 1: return atr_StringBase::Format("%s is read-only", m_Attribute.CStr());
    case 2: return m_Attribute;
    default: return "Error message not implemented yet";
  }
}

void omu_AttributeErrorException::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<nex_CommandException>(TypeId(), m_Uid, *this)) return;
  writer.Write("m_ErrorType", m_ErrorType);
  writer.Write("m_Attribute", m_Attribute);
}

void omu_AttributeErrorException::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_TypeAdapter<omu_AttributeErrorException>(
          "omu_AttributeErrorException", 800, nex_CommandException::TypeId()))
      .AddAttribute({0, "m_ErrorType"}, cls_KIND_INT)
      .AddAttribute({1, "m_Attribute"}, cls_KIND_STRING);
}
