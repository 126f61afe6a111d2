#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_ArgNumberErrorException.h>
#include <utl_Catenator.h>

omu_ArgNumberErrorException::omu_ArgNumberErrorException(const cls_ReadVisitor& reader)
    : nex_Raisable(cls_ReadVisitor(reader, omu_TypeErrorException::TypeId())),
      m_Expecting(reader.Get<int>("m_Expecting")),
      m_Found(reader.Get<int>("m_Found")),
      m_NestingStr(reader.Get<atr_String>("m_NestingStr")),
      m_Uid(reader.Uid()) {}

atr_String omu_ArgNumberErrorException::JournalMessage() const {
  utl_Catenator text;
  if (!m_NestingStr.IsEmpty()) text << m_NestingStr << "; ";
  // Equal counts read as missing arguments: that is the message scripts have always seen.
  text << (m_Expecting >= m_Found ? "not all required arguments specified" : "too many arguments")
       << "; expected " << m_Expecting << ", got " << m_Found;
  return text.String();
}

void omu_ArgNumberErrorException::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<omu_TypeErrorException>(TypeId(), m_Uid, *this)) return;
  writer.Write("m_Expecting", m_Expecting);
  writer.Write("m_Found", m_Found);
  writer.Write("m_NestingStr", m_NestingStr);
}

void omu_ArgNumberErrorException::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_TypeAdapter<omu_ArgNumberErrorException>(
          "omu_ArgNumberErrorException", 800, omu_TypeErrorException::TypeId()))
      .AddAttribute({0, "m_Expecting"}, cls_KIND_INT)
      .AddAttribute({1, "m_Found"}, cls_KIND_INT)
      .AddAttribute({2, "m_NestingStr"}, cls_KIND_STRING);
}
