#pragma once
/// \addtogroup omu
/// @{

/// \class omu_CorNameErrorException
/// A name broke a rule of its kind; m_Error says which message: 0 invalid name, 1 empty,
/// 2 invalid job name, 3 invalid model name.
#include <CVX_Export.h>
#include <UTI_FieldError.h>
#include <UTI_Modules.h>
#include <nex_CommandException.h>

class CVX_EXPORT omu_CorNameErrorException
    : public UTI_FieldError<omu_CorNameErrorException, nex_CommandException> {
public:
  /// The message error chooses (see the class).
  explicit omu_CorNameErrorException(int error = 0) : m_Error(error) {}
  /// Reads the object back from the record reader is at.
  explicit omu_CorNameErrorException(const cls_ReadVisitor& reader) : UTI_FieldError(reader) {
    ReadFields(reader);
  }

  atr_String JournalMessage() const override;
  cow_String PythonType() const override { return "CorvexNameError"; }

  /// Which message: 0 to 3.
  int Error() const noexcept { return m_Error; }

  /// The name the class is registered under.
  static constexpr const char* ClassName = "omu_CorNameErrorException";
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(34); }

private:
  friend UTI_FieldError;
  static constexpr auto Fields() {
    return UTI_FieldTable{UTI_Field{"m_Error", &omu_CorNameErrorException::m_Error, cls_KIND_INT}};
  }

  int m_Error = 0;
};

/// @}
