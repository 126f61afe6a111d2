#pragma once
/// \addtogroup basic
/// @{

/// \class cow_Counted
/// Base of a class whose objects carry their own share count, so that a cow_COW on one needs no
/// separate counted body: one allocation per object instead of two, and 24 bytes less. A copy
/// or an assignment never carries the count: a new copy starts unshared, and an object written
/// through its one handle keeps the handles it has.
///
/// Threads: the count is atomic, with the guarantees of cow_Shared.
#include <atomic>

template <class T>
class cow_CountedPtr;

class cow_Counted {
protected:
  /// Unshared: no handle holds the object yet.
  cow_Counted() noexcept = default;
  /// A copy starts unshared; an assignment keeps the handles the object has.
  ///@{
  cow_Counted(const cow_Counted&) noexcept {}
  cow_Counted& operator=(const cow_Counted&) noexcept { return *this; }
  ///@}
  /// Not virtual: the handle deletes through its own class, virtual there where it has subclasses.
  ~cow_Counted() = default;

private:
  template <class T>
  friend class cow_CountedPtr;
  mutable std::atomic<int> m_Shares{0};
};

/// @}
