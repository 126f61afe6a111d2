#pragma once
/// \addtogroup omu
/// @{

/// \class omu_Deprecation
/// The process-wide deprecation setting: whether scripts may still use deprecated arguments,
/// methods and members. Off by default; set it on the main thread before scripts run. Each use
/// of a deprecated name gives a notice on the error stream.
#include <CVX_Export.h>
#include <cow_String.h>

class CVX_EXPORT omu_Deprecation {
public:
  /// Whether deprecated names may be used (default false).
  ///@{
  static bool IsAllowed() noexcept;
  static void SetAllowed(bool allowed) noexcept;
  ///@}
  /// "Warning: 'old' is deprecated; use 'replacement' instead." (or without the advice).
  static void Notice(const cow_String& old, const cow_String& replacement = cow_String());
};

/// @}
