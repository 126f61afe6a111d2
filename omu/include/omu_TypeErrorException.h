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
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;
  cow_String PythonType() const override { return "TypeError"; }

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(1); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

protected:
  omu_TypeErrorException() noexcept = default;
  /// Reads the object back from the record reader is at.
  explicit omu_TypeErrorException(const cls_ReadVisitor& reader);

private:
  cls_Uid m_TypeErrorUid;
};

/// @}
