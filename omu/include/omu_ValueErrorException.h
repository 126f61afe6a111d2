#pragma once
/// \addtogroup omu
/// @{

/// \class omu_ValueErrorException
/// A value of the right kind but not allowed; the value is the message.
#include <omu_TextErrorException.h>

class CVX_EXPORT omu_ValueErrorException : public omu_TextErrorException<omu_ValueErrorException> {
public:
  using omu_TextErrorException::omu_TextErrorException;

  /// The name the class is registered under.
  static constexpr const char* ClassName = "omu_ValueErrorException";
  /// The error as a script names it.
  static constexpr const char* ScriptName = "ValueError";
  /// The message, printf-style: the value takes the place of its `%s`.
  static constexpr const char* MessageFormat = "%s";
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(10); }
};

/// @}
