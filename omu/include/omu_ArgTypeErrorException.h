#pragma once
// An argument of the wrong type: m_ArgNum is its 1-based position, labelled argN at the top
// level and <nesting>[N-1] inside another argument.
#include <nex_Raisable.h>
#include <omu_TypeErrorException.h>

class CVX_EXPORT omu_ArgTypeErrorException
    : public nex_Raisable<omu_ArgTypeErrorException, omu_TypeErrorException> {
public:
  omu_ArgTypeErrorException(int argNum, const atr_String& expecting, const atr_String& found,
                            const atr_String& nesting = atr_String())
      : m_ArgNum(argNum), m_Expecting(expecting), m_Found(found), m_NestingStr(nesting) {}
  explicit omu_ArgTypeErrorException(const cls_ReadVisitor& reader);

  atr_String JournalMessage() const override;
  void DBWrite(const cls_WriteVisitor& writer) const override;

  int ArgNum() const noexcept { return m_ArgNum; }
  const atr_String& Expecting() const noexcept { return m_Expecting; }
  const atr_String& Found() const noexcept { return m_Found; }
  const atr_String& NestingStr() const noexcept { return m_NestingStr; }

  static unsigned int TypeId() noexcept { return omu_TypeId(3); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  int m_ArgNum;
  atr_String m_Expecting;
  atr_String m_Found;
  atr_String m_NestingStr;
  cls_Uid m_Uid;
};
