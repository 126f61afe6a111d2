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
  /// Reads the object back from the record reader is at.
  explicit omu_GenericTypeErrorException(const cls_ReadVisitor& reader);

  atr_String JournalMessage() const override {
    return "illegal argument type for built-in operation";
  }
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(35); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  cls_Uid m_Uid;
};

/// @}
