#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_KeywordErrorException.h>

omu_KeywordErrorException::omu_KeywordErrorException(const cls_ReadVisitor& reader)
    : nex_Raisable(cls_ReadVisitor(reader, omu_TypeErrorException::TypeId())),
      m_Keyword(reader.Get<atr_String>("m_Keyword")),
      m_NestingStr(reader.Get<atr_String>("m_NestingStr")),
      m_Uid(reader.Uid()) {}

void omu_KeywordErrorException::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<omu_TypeErrorException>(TypeId(), m_Uid, *this)) return;
  writer.Write("m_Keyword", m_Keyword);
  writer.Write("m_NestingStr", m_NestingStr);
}

void omu_KeywordErrorException::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_TypeAdapter<omu_KeywordErrorException>(
          "omu_KeywordErrorException", 800, omu_TypeErrorException::TypeId()))
      .AddAttribute({0, "m_Keyword"}, cls_KIND_STRING)
      .AddAttribute({1, "m_NestingStr"}, cls_KIND_STRING);
}
