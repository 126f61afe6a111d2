#pragma once
// A name broke a rule of its kind; m_Error says which message: 0 invalid name, 1 empty,
// 2 invalid job name, 3 invalid model name.
#include <CVX_Export.h>
#include <UTI_Modules.h>
#include <nex_CommandException.h>
#include <nex_Raisable.h>

class CVX_EXPORT omu_CorNameErrorException
    : public nex_Raisable<omu_CorNameErrorException, nex_CommandException> {
public:
  explicit omu_CorNameErrorException(int error = 0) : m_Error(error) {}
  explicit omu_CorNameErrorException(const cls_ReadVisitor& reader);

  atr_String JournalMessage() const override;
  cow_String PythonType() const override { return "CorvexNameError"; }
  void DBWrite(const cls_WriteVisitor& writer) const override;

  int Error() const noexcept { return m_Error; }

  static unsigned int TypeId() noexcept { return omu_TypeId(34); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  int m_Error;
  cls_Uid m_Uid;
};
