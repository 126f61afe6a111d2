#pragma once
// An index outside its sequence; the message is the index in decimal.
#include <CVX_Export.h>
#include <UTI_Modules.h>
#include <nex_CommandException.h>
#include <nex_Raisable.h>

class CVX_EXPORT omu_IndexErrorException
    : public nex_Raisable<omu_IndexErrorException, nex_CommandException> {
public:
  explicit omu_IndexErrorException(int value = 0) : m_Value(value) {}
  explicit omu_IndexErrorException(const cls_ReadVisitor& reader);

  atr_String JournalMessage() const override { return atr_String(atr_StringBase(m_Value)); }
  cow_String PythonType() const override { return "IndexError"; }
  void DBWrite(const cls_WriteVisitor& writer) const override;

  int Value() const noexcept { return m_Value; }

  static unsigned int TypeId() noexcept { return omu_TypeId(8); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  int m_Value;
  cls_Uid m_Uid;
};
