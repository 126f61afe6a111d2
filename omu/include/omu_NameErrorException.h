#pragma once
/// \addtogroup omu
/// @{

/// \class omu_NameErrorException
/// A name that is not defined; the value is the message.
#include <omu_TextErrorException.h>

class CVX_EXPORT omu_NameErrorException : public omu_TextErrorException<omu_NameErrorException> {
public:
  using omu_TextErrorException::omu_TextErrorException;

  /// The name the class is registered under.
  static constexpr const char* ClassName = "omu_NameErrorException";
  /// The error as a script names it.
  static constexpr const char* ScriptName = "NameError";
  /// The message, printf-style: the value takes the place of its `%s`.
  static constexpr const char* MessageFormat = "%s";
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(12); }
};

/// @}
