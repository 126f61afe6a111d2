#pragma once
/// \addtogroup wip
/// @{

/// \class wip_WIP
/// The calling thread's front. Each thread has its own and may install its own reporter;
/// a reporter installed on one thread is never seen by another.
#include <wip_WIPBase.h>

class CVX_EXPORT wip_WIP : public wip_WIPBase {
public:
  /// This thread's front, created on first use and destroyed when the thread ends. Always
  /// reach it through here: the per-thread slot lives in this library.
  static wip_WIP& Instance();
  /// This thread's front if it has one yet, else null.
  static wip_WIP* Peek() noexcept;
};

/// @}
