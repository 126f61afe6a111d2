#pragma once
/// \addtogroup basic
/// @{

/// \class thr_ThreadSingleton
/// One instance of T per thread, created on the thread's first Instance() and destroyed when
/// the thread ends. Each shared library that instantiates it has its own slot, so T should
/// expose one accessor defined in its own library.
#include <thr_ThreadSingletonRegistry.h>

#include <memory>

template <class T>
class thr_ThreadSingleton {
public:
  /// The calling thread's object, created on its first use there.
  static T& Instance() {
    T*& slot = Slot();
    if (!slot) {
      auto made = std::make_unique<T>();
      thr_ThreadSingletonRegistry::Register(&Cleanup, made.get());
      slot = made.release();
    }
    return *slot;
  }
  /// This thread's instance, or null when it has none.
  static T* Peek() noexcept { return Slot(); }

private:
  static void Cleanup(void* instance) noexcept {
    delete static_cast<T*>(instance);
    T*& slot = Slot();  // storage of its own again, where the thread's was freed first (MinGW)
    if (slot == instance) slot = nullptr;
  }
  static T*& Slot() noexcept {
    thread_local T* instance = nullptr;
    return instance;
  }
};

/// @}
