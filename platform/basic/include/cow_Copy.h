#pragma once
/// \addtogroup basic
/// @{

/// \struct cow_Copy
/// Clone policy of cow_COW for plain values: the copy constructor.
template <class T>
struct cow_Copy {
  /// A new copy made by T's copy constructor, owned by the caller.
  static T* Clone(const T& object) { return new T(object); }
};

/// @}
