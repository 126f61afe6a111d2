#include <omu_ArgTypeErrorException.h>
#include <utl_Catenator.h>

atr_String omu_ArgTypeErrorException::JournalMessage() const {
  utl_Catenator text;
  if (m_NestingStr.IsEmpty()) {
    text << "arg" << m_ArgNum;
  } else {
    text << m_NestingStr << '[' << m_ArgNum - 1 << ']';  // a script subscript counts from 0
  }
  text << "; found " << m_Found << ", expecting " << m_Expecting;
  return text.String();
}
