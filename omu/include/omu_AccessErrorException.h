#pragma once
/// \addtogroup omu
/// @{

/// \class omu_AccessErrorException
/// A script used an object that has gone; the value describes it.
#include <omu_TextErrorException.h>

class CVX_EXPORT omu_AccessErrorException
    : public omu_TextErrorException<omu_AccessErrorException> {
public:
  using omu_TextErrorException::omu_TextErrorException;

  /// The name the class is registered under.
  static constexpr const char* ClassName = "omu_AccessErrorException";
  /// The error as a script names it.
  static constexpr const char* ScriptName = "AccessError";
  /// The message, printf-style: the value takes the place of its `%s`.
  static constexpr const char* MessageFormat = "%s no longer exists";
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(16); }
};

/// @}
