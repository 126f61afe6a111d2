#pragma once
/// \addtogroup omu
/// @{

/// \class omu_FontErrorException
/// A font name that the application does not know.
#include <omu_TextErrorException.h>

class CVX_EXPORT omu_FontErrorException : public omu_TextErrorException<omu_FontErrorException> {
public:
  using omu_TextErrorException::omu_TextErrorException;

  /// The name the class is registered under.
  static constexpr const char* ClassName = "omu_FontErrorException";
  /// The error as a script names it.
  static constexpr const char* ScriptName = "FontError";
  /// The message, printf-style: the value takes the place of its `%s`.
  static constexpr const char* MessageFormat = "%s is not a valid font.";
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(15); }
};

/// @}
