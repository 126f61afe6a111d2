#pragma once
/// \addtogroup omu
/// @{

/// \class omu_ZeroDivisionErrorException
/// A division by zero; the value is the message.
#include <omu_TextErrorException.h>

class CVX_EXPORT omu_ZeroDivisionErrorException : public omu_TextErrorException<omu_ZeroDivisionErrorException> {
public:
  using omu_TextErrorException::omu_TextErrorException;

  static constexpr const char* ClassName = "omu_ZeroDivisionErrorException";
  static constexpr const char* ScriptName = "ZeroDivisionError";
  static constexpr const char* MessageFormat = "%s";
  static unsigned int TypeId() noexcept { return omu_TypeId(13); }
};

/// @}
