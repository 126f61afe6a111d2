#pragma once
/// \addtogroup omu
/// @{

/// \class omu_GenericTypeErrorException
/// An operation of the script language applied to an argument of the wrong kind.
#include <nex_Raisable.h>
#include <omu_TypeErrorException.h>

class CVX_EXPORT omu_GenericTypeErrorException
    : public nex_Raisable<omu_GenericTypeErrorException, omu_TypeErrorException> {
public:
  omu_GenericTypeErrorException() noexcept = default;
  explicit omu_GenericTypeErrorException(const cls_ReadVisitor& reader);

  atr_String JournalMessage() const override {
    return "illegal argument type for built-in operation";
  }
  void DBWrite(const cls_WriteVisitor& writer) const override;

  static unsigned int TypeId() noexcept { return omu_TypeId(35); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  cls_Uid m_Uid;
};

/// @}
