#pragma once
// A keyword argument of the wrong type. Inside another argument the keyword is shown as a
// quoted subscript of the enclosing one.
#include <nex_Raisable.h>
#include <omu_TypeErrorException.h>

class CVX_EXPORT omu_KeywordTypeErrorException
    : public nex_Raisable<omu_KeywordTypeErrorException, omu_TypeErrorException> {
public:
  omu_KeywordTypeErrorException(const atr_String& keyword, const atr_String& expecting,
                                const atr_String& found, const atr_String& nesting = atr_String())
      : m_Keyword(keyword), m_Expecting(expecting), m_Found(found), m_NestingStr(nesting) {}
  explicit omu_KeywordTypeErrorException(const cls_ReadVisitor& reader);

  atr_String JournalMessage() const override;
  void DBWrite(const cls_WriteVisitor& writer) const override;

  const atr_String& Keyword() const noexcept { return m_Keyword; }
  const atr_String& Expecting() const noexcept { return m_Expecting; }
  const atr_String& Found() const noexcept { return m_Found; }
  const atr_String& NestingStr() const noexcept { return m_NestingStr; }

  static unsigned int TypeId() noexcept { return omu_TypeId(2); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  atr_String m_Keyword;
  atr_String m_Expecting;
  atr_String m_Found;
  atr_String m_NestingStr;
  cls_Uid m_Uid;
};
