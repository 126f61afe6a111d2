#pragma once
/// \addtogroup omu
/// @{

/// \class omu_FontErrorException
/// A font name that the application does not know.
#include <omu_TextErrorException.h>

class CVX_EXPORT omu_FontErrorException : public omu_TextErrorException<omu_FontErrorException> {
public:
  using omu_TextErrorException::omu_TextErrorException;

  static constexpr const char* ClassName = "omu_FontErrorException";
  static constexpr const char* ScriptName = "FontError";
  static constexpr const char* MessageFormat = "%s is not a valid font.";
  static unsigned int TypeId() noexcept { return omu_TypeId(15); }
};

/// @}
