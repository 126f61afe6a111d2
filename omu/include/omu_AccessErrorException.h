#pragma once
/// \addtogroup omu
/// @{

/// \class omu_AccessErrorException
/// A script used an object that has gone; the value describes it.
#include <omu_TextErrorException.h>

class CVX_EXPORT omu_AccessErrorException : public omu_TextErrorException<omu_AccessErrorException> {
public:
  using omu_TextErrorException::omu_TextErrorException;

  static constexpr const char* ClassName = "omu_AccessErrorException";
  static constexpr const char* ScriptName = "AccessError";
  static constexpr const char* MessageFormat = "%s no longer exists";
  static unsigned int TypeId() noexcept { return omu_TypeId(16); }
};

/// @}
