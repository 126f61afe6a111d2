#pragma once
/// \addtogroup omu
/// @{

/// \class omu_OverflowErrorException
/// A number too large for its kind; the value is the message.
#include <omu_TextErrorException.h>

class CVX_EXPORT omu_OverflowErrorException
    : public omu_TextErrorException<omu_OverflowErrorException> {
public:
  using omu_TextErrorException::omu_TextErrorException;

  /// The name the class is registered under.
  static constexpr const char* ClassName = "omu_OverflowErrorException";
  /// The error as a script names it.
  static constexpr const char* ScriptName = "OverflowError";
  /// The message, printf-style: the value takes the place of its `%s`.
  static constexpr const char* MessageFormat = "%s";
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(11); }
};

/// @}
