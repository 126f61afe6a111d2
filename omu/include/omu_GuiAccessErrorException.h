#pragma once
/// \addtogroup omu
/// @{

/// \class omu_GuiAccessErrorException
/// An operation that the user interface does not allow now; the value is the message.
#include <omu_TextErrorException.h>

class CVX_EXPORT omu_GuiAccessErrorException : public omu_TextErrorException<omu_GuiAccessErrorException> {
public:
  using omu_TextErrorException::omu_TextErrorException;

  static constexpr const char* ClassName = "omu_GuiAccessErrorException";
  static constexpr const char* ScriptName = "GuiAccessError";
  static constexpr const char* MessageFormat = "%s";
  static unsigned int TypeId() noexcept { return omu_TypeId(40); }
};

/// @}
