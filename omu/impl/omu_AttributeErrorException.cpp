#include <omu_AttributeErrorException.h>

atr_String omu_AttributeErrorException::JournalMessage() const {
  switch (m_ErrorType) {
    case 0:
      return "read-only attributes";
    case 1:
      return atr_StringBase::Format("%s is read-only", m_Attribute.CStr());
    case 2:
      return m_Attribute;
    default:
      return "Error message not implemented yet";
  }
}
