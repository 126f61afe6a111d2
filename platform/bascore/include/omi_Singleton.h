#pragma once
/// \addtogroup bascore
/// @{

/// \class omi_Singleton
/// A process-wide instance created on first use and destroyed on request (module finalise).
/// Not locked: create and destroy on one thread, before and after other use. Each shared
/// library that instantiates omi_Singleton<T> has its own instance, so T should expose one
/// accessor defined in its own library.
#include <memory>

template <class T>
class omi_Singleton {
public:
  /// The instance, created on first use.
  static T& Instance() {
    if (!Slot()) Slot() = std::make_unique<T>();
    return *Slot();
  }
  /// True while the instance exists.
  static bool Exists() noexcept { return Slot() != nullptr; }
  /// Destroys the instance; the next Instance() makes a new one.
  static void Destroy() noexcept { Slot().reset(); }

private:
  static std::unique_ptr<T>& Slot() noexcept {
    static std::unique_ptr<T> instance;
    return instance;
  }
};

/// @}
