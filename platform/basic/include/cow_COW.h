#pragma once
/// \addtogroup basic
/// @{

/// \class cow_COW
/// A copy-on-write handle on one heap object: copies share it, ConstGet never copies,
/// Get clones it through the policy P when it is shared. A handle may be empty (null).
/// A class derived from cow_Counted carries its own share count (cow_CountedPtr: one allocation
/// per object); any other is held in a counted body of its own (cow_HeldPtr). Either way the
/// handle reads the object with one memory access.
///
/// Threads: handles on one object may be used on different threads at once, each handle by its
/// own thread: Get clones a shared object before it is written. One handle may be read
/// (ConstGet) from several threads at once; Get, Reset and assignment need its one owner, and
/// the object they hand out must be written by one thread at a time.
#include <cow_Copy.h>
#include <cow_CountedPtr.h>
#include <cow_HeldPtr.h>
#include <cow_Virtual.h>

#include <memory>
#include <type_traits>

template <class T, class P = cow_Copy<T>>
class cow_COW {
public:
  cow_COW() noexcept = default;
  /// Takes ownership of owned (null gives an empty handle).
  ///@{
  explicit cow_COW(T* owned) : cow_COW(std::unique_ptr<T>(owned)) {}
  explicit cow_COW(std::unique_ptr<T> owned) : m_Object(std::move(owned)) {}
  ///@}
  /// Holds a copy of value, cloned through P.
  explicit cow_COW(const T& value) : cow_COW(std::unique_ptr<T>(P::Clone(value))) {}

  /// True for an empty handle.
  bool IsNull() const noexcept { return m_Object.get() == nullptr; }
  /// True unless empty.
  explicit operator bool() const noexcept { return !IsNull(); }
  /// The object, read-only, or null; never copies.
  ///@{
  const T* ConstGet() const noexcept { return m_Object.get(); }
  const T* operator->() const noexcept { return ConstGet(); }
  const T& operator*() const noexcept { return *ConstGet(); }
  ///@}
  /// The object for change, or null: a shared one is cloned first.
  T* Get() {
    if (m_Object.IsShared()) m_Object = Owner(std::unique_ptr<T>(P::Clone(*m_Object.get())));
    return m_Object.get();
  }
  /// Holds owned instead (taking ownership), leaving copies the old object.
  void Reset(T* owned = nullptr) { m_Object = Owner(std::unique_ptr<T>(owned)); }
  /// True while another handle shares the object.
  bool IsShared() const noexcept { return m_Object.IsShared(); }

private:
  using Owner =
      std::conditional_t<std::is_base_of_v<cow_Counted, T>, cow_CountedPtr<T>, cow_HeldPtr<T>>;
  Owner m_Object;
};

/// The element handle of lists: the same handle.
template <class T, class P = cow_Copy<T>>
using cow_ArrayCOW = cow_COW<T, P>;

/// @}
