#pragma once
/// \addtogroup wip
/// @{

/// \enum wip_errorLevelEnm
/// How grave a reported error is. The front and the reporter pass it through unchanged; a
/// host may use values of its own beyond these.
enum wip_errorLevelEnm : int {
  wip_ERROR_NORMAL = 0,  ///< the operation fails, the session goes on
  wip_ERROR_SEVERE = 1,  ///< results so far may be unusable
  wip_ERROR_FATAL = 2,   ///< the session cannot go on
};

/// @}
