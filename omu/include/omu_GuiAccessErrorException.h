#pragma once
/// \addtogroup omu
/// @{

/// \class omu_GuiAccessErrorException
/// An operation that the user interface does not allow now; the value is the message.
#include <omu_TextErrorException.h>

class CVX_EXPORT omu_GuiAccessErrorException
    : public omu_TextErrorException<omu_GuiAccessErrorException> {
public:
  using omu_TextErrorException::omu_TextErrorException;

  /// The name the class is registered under.
  static constexpr const char* ClassName = "omu_GuiAccessErrorException";
  /// The error as a script names it.
  static constexpr const char* ScriptName = "GuiAccessError";
  /// The message, printf-style: the value takes the place of its `%s`.
  static constexpr const char* MessageFormat = "%s";
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(40); }
};

/// @}
