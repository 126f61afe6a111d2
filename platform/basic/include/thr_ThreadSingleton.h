#pragma once
// One instance of T per thread, created on the thread's first Instance() and destroyed when
// the thread ends. Each shared library that instantiates it has its own slot, so T should
// expose one accessor defined in its own library.
#include <thr_ThreadSingletonRegistry.h>

template <class T>
class thr_ThreadSingleton {
public:
  static T& Instance() {
    T*& slot = Slot();
    if (!slot) {
      thr_ThreadSingletonRegistry::Register(&Cleanup);
      slot = new T();
    }
    return *slot;
  }
  // This thread's instance, or null when it has none.
  static T* Peek() noexcept { return Slot(); }

private:
  static void Cleanup() noexcept {
    delete Slot();
    Slot() = nullptr;
  }
  static T*& Slot() noexcept {
    thread_local T* instance = nullptr;
    return instance;
  }
};
