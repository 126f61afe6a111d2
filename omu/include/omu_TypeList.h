#pragma once
/// \addtogroup omu
/// @{

/// \struct omu_TypeList
/// A list of types known at compile time, so that code can walk a family of types (the bound
/// native types, omu_BindingTypes) without keeping a list of its own.
#include <type_traits>

template <class... T>
struct omu_TypeList {
  /// Calls visit(std::type_identity<T>()) for each type, in list order.
  template <class Visit>
  static void ForEach(Visit&& visit) {
    (visit(std::type_identity<T>()), ...);
  }
  /// Calls visit(std::type_identity<T>()) for each type, in list order, until one answers
  /// true; answers whether one did. The calls are inline, so a search costs no indirect call.
  template <class Visit>
  static bool AnyOf(Visit&& visit) {
    return (visit(std::type_identity<T>()) || ...);
  }
};

/// @}
