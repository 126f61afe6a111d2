#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_KeywordTypeErrorException.h>
#include <omu_NameString.h>
#include <utl_Catenator.h>

omu_KeywordTypeErrorException::omu_KeywordTypeErrorException(const cls_ReadVisitor& reader)
    : nex_Raisable(cls_ReadVisitor(reader, omu_TypeErrorException::TypeId())),
      m_Keyword(reader.Get<atr_String>("m_Keyword")),
      m_Expecting(reader.Get<atr_String>("m_Expecting")),
      m_Found(reader.Get<atr_String>("m_Found")),
      m_NestingStr(reader.Get<atr_String>("m_NestingStr")),
      m_Uid(reader.Uid()) {}

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

void omu_KeywordTypeErrorException::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<omu_TypeErrorException>(TypeId(), m_Uid, *this)) return;
  writer.Write("m_Keyword", m_Keyword);
  writer.Write("m_Expecting", m_Expecting);
  writer.Write("m_Found", m_Found);
  writer.Write("m_NestingStr", m_NestingStr);
}

void omu_KeywordTypeErrorException::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_TypeAdapter<omu_KeywordTypeErrorException>(
          "omu_KeywordTypeErrorException", 800, omu_TypeErrorException::TypeId()))
      .AddAttribute({0, "m_Keyword"}, cls_KIND_STRING)
      .AddAttribute({1, "m_Expecting"}, cls_KIND_STRING)
      .AddAttribute({2, "m_Found"}, cls_KIND_STRING)
      .AddAttribute({3, "m_NestingStr"}, cls_KIND_STRING);
}
