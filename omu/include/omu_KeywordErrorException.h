#pragma once
// A keyword argument that the command does not take. The nesting text runs straight into
// the words "keyword error on".
#include <nex_Raisable.h>
#include <omu_TypeErrorException.h>

class CVX_EXPORT omu_KeywordErrorException
    : public nex_Raisable<omu_KeywordErrorException, omu_TypeErrorException> {
public:
  explicit omu_KeywordErrorException(const atr_String& keyword,
                                     const atr_String& nesting = atr_String())
      : m_Keyword(keyword), m_NestingStr(nesting) {}
  explicit omu_KeywordErrorException(const cls_ReadVisitor& reader);

  atr_String JournalMessage() const override {
    return atr_StringBase::Format("%skeyword error on %s", m_NestingStr.CStr(), m_Keyword.CStr());
  }
  void DBWrite(const cls_WriteVisitor& writer) const override;

  const atr_String& Keyword() const noexcept { return m_Keyword; }
  const atr_String& NestingStr() const noexcept { return m_NestingStr; }

  static unsigned int TypeId() noexcept { return omu_TypeId(5); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  atr_String m_Keyword;
  atr_String m_NestingStr;
  cls_Uid m_Uid;
};
