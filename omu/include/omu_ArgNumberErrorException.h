#pragma once
// A call with too few or too many arguments. m_NestingStr names the enclosing argument when
// the count concerns the members of another argument.
#include <nex_Raisable.h>
#include <omu_TypeErrorException.h>

class CVX_EXPORT omu_ArgNumberErrorException
    : public nex_Raisable<omu_ArgNumberErrorException, omu_TypeErrorException> {
public:
  omu_ArgNumberErrorException(int expecting, int found, const atr_String& nesting = atr_String())
      : m_Expecting(expecting), m_Found(found), m_NestingStr(nesting) {}
  explicit omu_ArgNumberErrorException(const cls_ReadVisitor& reader);

  atr_String JournalMessage() const override;
  void DBWrite(const cls_WriteVisitor& writer) const override;

  int Expecting() const noexcept { return m_Expecting; }
  int Found() const noexcept { return m_Found; }
  const atr_String& NestingStr() const noexcept { return m_NestingStr; }

  static unsigned int TypeId() noexcept { return omu_TypeId(4); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  int m_Expecting;
  int m_Found;
  atr_String m_NestingStr;
  cls_Uid m_Uid;
};
