#pragma once
/// \addtogroup omu
/// @{

/// \class omu_TypeErrorException
/// The abstract base of the argument errors that a script sees as TypeError.
#include <CVX_Export.h>
#include <UTI_Modules.h>
#include <nex_CommandException.h>

class CVX_EXPORT omu_TypeErrorException : public nex_CommandException {
public:
  unsigned int DynTypeId() const override { return TypeId(); }
  void DBWrite(const cls_WriteVisitor& writer) const override;
  cow_String PythonType() const override { return "TypeError"; }

  static unsigned int TypeId() noexcept { return omu_TypeId(1); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

protected:
  omu_TypeErrorException() noexcept = default;
  explicit omu_TypeErrorException(const cls_ReadVisitor& reader);

private:
  cls_Uid m_TypeErrorUid;
};

/// @}
