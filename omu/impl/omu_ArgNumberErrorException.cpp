#include <omu_ArgNumberErrorException.h>
#include <utl_Catenator.h>

atr_String omu_ArgNumberErrorException::JournalMessage() const {
  utl_Catenator text;
  if (!m_NestingStr.IsEmpty()) text << m_NestingStr << "; ";
  // Equal counts read as missing arguments: that is the message scripts have always seen.
  text << (m_Expecting >= m_Found ? "not all required arguments specified" : "too many arguments")
       << "; expected " << m_Expecting << ", got " << m_Found;
  return text.String();
}
