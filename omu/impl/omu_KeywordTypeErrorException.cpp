#include <omu_KeywordTypeErrorException.h>
#include <omu_NameString.h>
#include <utl_Catenator.h>

atr_String omu_KeywordTypeErrorException::JournalMessage() const {
  utl_Catenator text;
  if (m_NestingStr.IsEmpty()) {
    text << m_Keyword;
  } else {
    text << m_NestingStr << '[' << omu_NameString(m_Keyword) << ']';
  }
  text << "; found " << m_Found << ", expecting " << m_Expecting;
  return text.String();
}
