#pragma once
/// \addtogroup omu
/// @{

/// \class omu_ScriptHandle
/// An opaque reference to an object of the script interpreter. The library never looks
/// inside: the host hands in the object and the function that drops the host's reference to
/// it, which runs when the last copy of the handle goes. Copies share the object.
#include <memory>

class omu_ScriptHandle {
public:
  /// Drops the host's reference to object.
  using Release = void (*)(void* object);

  omu_ScriptHandle() noexcept = default;
  /// Holds object; release (null for none) runs when the last copy goes.
  omu_ScriptHandle(void* object, Release release)
      : m_Object(
            object, release ? release : [](void*) {}) {}

  /// The object, or null.
  void* Get() const noexcept { return m_Object.get(); }
  /// True when no object is held.
  bool IsNull() const noexcept { return m_Object == nullptr; }
  /// Same object.
  friend bool operator==(const omu_ScriptHandle& a, const omu_ScriptHandle& b) noexcept {
    return a.m_Object == b.m_Object;
  }

private:
  std::shared_ptr<void> m_Object;
};

/// @}
