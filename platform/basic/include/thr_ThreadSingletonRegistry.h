#pragma once
/// \addtogroup basic
/// @{

/// \class thr_ThreadSingletonRegistry
/// The per-thread clean-ups of the thread singletons: run in reverse order of registration
/// when the thread ends, or at once through CleanupThisThread. Each is given the object it was
/// registered with, as the thread's own storage may already be gone when it ends.
#include <BASIC_Export.h>

class BASIC_EXPORT thr_ThreadSingletonRegistry {
public:
  /// A clean-up, given its object.
  using Cleanup = void (*)(void* object) noexcept;
  /// Registers a clean-up for the calling thread.
  static void Register(Cleanup cleanup, void* object);
  /// Runs the calling thread's clean-ups now, newest first, and forgets them.
  static void CleanupThisThread() noexcept;
};

/// @}
