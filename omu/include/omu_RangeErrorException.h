#pragma once
// A number outside its permitted range. The limits arrive as ready-made text; each
// qualifier is 0 (no limit on that side), 1 (inclusive) or 2 (exclusive); the keyword type
// is 1 for an integer, 2 for a float.
#include <CVX_Export.h>
#include <UTI_Modules.h>
#include <nex_CommandException.h>
#include <nex_Raisable.h>

class CVX_EXPORT omu_RangeErrorException
    : public nex_Raisable<omu_RangeErrorException, nex_CommandException> {
public:
  omu_RangeErrorException(const atr_String& keyword, int keywordType,
                          const atr_String& lowerLimit, int lowerQualifier,
                          const atr_String& higherLimit, int higherQualifier)
      : m_Keyword(keyword),
        m_KeywordType(keywordType),
        m_LowerLimitAsString(lowerLimit),
        m_LowerLimitQualifier(lowerQualifier),
        m_HigherLimitAsString(higherLimit),
        m_HigherLimitQualifier(higherQualifier) {}
  explicit omu_RangeErrorException(const cls_ReadVisitor& reader);

  atr_String JournalMessage() const override;
  cow_String PythonType() const override { return "RangeError"; }
  void DBWrite(const cls_WriteVisitor& writer) const override;

  const atr_String& Keyword() const noexcept { return m_Keyword; }
  int KeywordType() const noexcept { return m_KeywordType; }
  const atr_String& LowerLimit() const noexcept { return m_LowerLimitAsString; }
  int LowerQualifier() const noexcept { return m_LowerLimitQualifier; }
  const atr_String& HigherLimit() const noexcept { return m_HigherLimitAsString; }
  int HigherQualifier() const noexcept { return m_HigherLimitQualifier; }

  static unsigned int TypeId() noexcept { return omu_TypeId(9); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  atr_String m_Keyword;
  int m_KeywordType;
  atr_String m_LowerLimitAsString;
  int m_LowerLimitQualifier;
  atr_String m_HigherLimitAsString;
  int m_HigherLimitQualifier;
  cls_Uid m_Uid;
};
