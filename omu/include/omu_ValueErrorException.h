#pragma once
/// \addtogroup omu
/// @{

/// \class omu_ValueErrorException
/// A value of the right kind but not allowed; the value is the message.
#include <omu_TextErrorException.h>

class CVX_EXPORT omu_ValueErrorException : public omu_TextErrorException<omu_ValueErrorException> {
public:
  using omu_TextErrorException::omu_TextErrorException;

  static constexpr const char* ClassName = "omu_ValueErrorException";
  static constexpr const char* ScriptName = "ValueError";
  static constexpr const char* MessageFormat = "%s";
  static unsigned int TypeId() noexcept { return omu_TypeId(10); }
};

/// @}
