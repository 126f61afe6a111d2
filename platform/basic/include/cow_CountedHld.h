#pragma once
/// \addtogroup basic
/// @{

/// \class cow_CountedHld
/// A counted handle that shares one object among its copies without ever copying it
/// (views on the same numbers share one buffer).
///
/// Threads: copying and dropping handles on different threads is safe (the count is atomic),
/// but every copy reaches the same object: writing it through one handle while another thread
/// reads it through any handle is a race, as for any object shared between threads.
#include <memory>

template <class T>
class cow_CountedHld {
public:
  cow_CountedHld() noexcept = default;
  /// Takes ownership of owned (null gives an empty holder).
  ///@{
  explicit cow_CountedHld(T* owned) : m_Object(owned) {}
  explicit cow_CountedHld(std::unique_ptr<T> owned) : m_Object(std::move(owned)) {}
  ///@}

  /// The object, or null; shared, never copied.
  ///@{
  T* Get() const noexcept { return m_Object.get(); }
  T* operator->() const noexcept { return m_Object.get(); }
  T& operator*() const noexcept { return *m_Object; }
  ///@}
  /// True unless empty.
  explicit operator bool() const noexcept { return m_Object != nullptr; }
  /// The number of holders sharing the object (0 when empty).
  long Count() const noexcept { return m_Object.use_count(); }

private:
  std::shared_ptr<T> m_Object;
};

/// @}
