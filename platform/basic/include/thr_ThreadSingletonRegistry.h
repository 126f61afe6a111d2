#pragma once
// The per-thread clean-ups of the thread singletons: run in reverse order of registration
// when the thread ends, or at once through CleanupThisThread.
#include <BASIC_Export.h>

class BASIC_EXPORT thr_ThreadSingletonRegistry {
public:
  using Cleanup = void (*)() noexcept;
  static void Register(Cleanup cleanup);
  static void CleanupThisThread() noexcept;
};
