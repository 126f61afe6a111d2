#pragma once
/// \addtogroup omu
/// @{

/// \class omu_ZeroDivisionErrorException
/// A division by zero; the value is the message.
#include <omu_TextErrorException.h>

class CVX_EXPORT omu_ZeroDivisionErrorException
    : public omu_TextErrorException<omu_ZeroDivisionErrorException> {
public:
  using omu_TextErrorException::omu_TextErrorException;

  /// The name the class is registered under.
  static constexpr const char* ClassName = "omu_ZeroDivisionErrorException";
  /// The error as a script names it.
  static constexpr const char* ScriptName = "ZeroDivisionError";
  /// The message, printf-style: the value takes the place of its `%s`.
  static constexpr const char* MessageFormat = "%s";
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(13); }
};

/// @}
