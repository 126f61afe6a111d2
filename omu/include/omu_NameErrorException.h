#pragma once
/// \addtogroup omu
/// @{

/// \class omu_NameErrorException
/// A name that is not defined; the value is the message.
#include <omu_TextErrorException.h>

class CVX_EXPORT omu_NameErrorException : public omu_TextErrorException<omu_NameErrorException> {
public:
  using omu_TextErrorException::omu_TextErrorException;

  static constexpr const char* ClassName = "omu_NameErrorException";
  static constexpr const char* ScriptName = "NameError";
  static constexpr const char* MessageFormat = "%s";
  static unsigned int TypeId() noexcept { return omu_TypeId(12); }
};

/// @}
