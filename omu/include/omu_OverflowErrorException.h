#pragma once
/// \addtogroup omu
/// @{

/// \class omu_OverflowErrorException
/// A number too large for its kind; the value is the message.
#include <omu_TextErrorException.h>

class CVX_EXPORT omu_OverflowErrorException : public omu_TextErrorException<omu_OverflowErrorException> {
public:
  using omu_TextErrorException::omu_TextErrorException;

  static constexpr const char* ClassName = "omu_OverflowErrorException";
  static constexpr const char* ScriptName = "OverflowError";
  static constexpr const char* MessageFormat = "%s";
  static unsigned int TypeId() noexcept { return omu_TypeId(11); }
};

/// @}
