#pragma once
/// \addtogroup omu
/// @{

/// \class omu_KeyErrorException
/// A key that a repository does not hold; the value is the message.
#include <omu_TextErrorException.h>

class CVX_EXPORT omu_KeyErrorException : public omu_TextErrorException<omu_KeyErrorException> {
public:
  using omu_TextErrorException::omu_TextErrorException;

  static constexpr const char* ClassName = "omu_KeyErrorException";
  static constexpr const char* ScriptName = "KeyError";
  static constexpr const char* MessageFormat = "%s";
  static unsigned int TypeId() noexcept { return omu_TypeId(7); }
};

/// @}
