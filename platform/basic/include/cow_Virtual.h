#pragma once
/// \addtogroup basic
/// @{

/// \struct cow_Virtual
/// Clone policy of cow_COW for class hierarchies: the object's own virtual Copy().
template <class T>
struct cow_Virtual {
  /// object.Copy(): a new copy of the most-derived type, owned by the caller.
  static T* Clone(const T& object) { return object.Copy(); }
};

/// @}
