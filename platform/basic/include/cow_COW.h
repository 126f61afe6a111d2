#pragma once
// A copy-on-write handle on one heap object: copies share it, ConstGet never copies,
// Get clones it through the policy P when it is shared. A handle may be empty (null).
#include <cow_Copy.h>
#include <cow_Shared.h>
#include <cow_Virtual.h>

#include <memory>

template <class T, class P = cow_Copy<T>>
class cow_COW {
public:
  cow_COW() noexcept = default;
  explicit cow_COW(T* owned) : m_Object(std::unique_ptr<T>(owned)) {}
  explicit cow_COW(std::unique_ptr<T> owned) : m_Object(std::move(owned)) {}
  explicit cow_COW(const T& value) : m_Object(std::unique_ptr<T>(P::Clone(value))) {}

  bool IsNull() const noexcept { return m_Object.Read() == nullptr; }
  explicit operator bool() const noexcept { return !IsNull(); }
  const T* ConstGet() const noexcept { return m_Object.Read().get(); }
  const T* operator->() const noexcept { return ConstGet(); }
  const T& operator*() const noexcept { return *ConstGet(); }
  T* Get() {
    if (m_Object.IsShared()) {
      const T* shared = m_Object.Read().get();
      m_Object = Holder(std::unique_ptr<T>(shared ? P::Clone(*shared) : nullptr));
    }
    return m_Object.Read().get();
  }
  void Reset(T* owned = nullptr) { m_Object = Holder(std::unique_ptr<T>(owned)); }
  bool IsShared() const noexcept { return m_Object.IsShared(); }

private:
  // The counted body holds the owning pointer; it is never copied through cow_Shared::Write.
  using Holder = cow_Shared<std::unique_ptr<T>>;
  Holder m_Object;
};

// The element handle of lists: the same handle.
template <class T, class P = cow_Copy<T>>
using cow_ArrayCOW = cow_COW<T, P>;
