#pragma once
/// \addtogroup basic
/// @{

/// \class nex_Raisable
/// The three operations every concrete exception class implements the same way, written once:
/// Propagate throws a copy typed as Derived (its report fixed, as for any raise), Copy clones
/// it, DynTypeId answers Derived's id.
#include <nex_Exception.h>

template <class Derived, class Base>
class nex_Raisable : public Base {
public:
  using Base::Base;

  /// Raises a copy as Derived.
  [[noreturn]] void Propagate() const override {
    Derived raised(static_cast<const Derived&>(*this));
    raised.FixReport();
    throw raised;
  }
  /// A new Derived copy, owned by the caller.
  nex_Exception* Copy() const override { return new Derived(static_cast<const Derived&>(*this)); }
  /// Derived::TypeId().
  unsigned int DynTypeId() const override { return Derived::TypeId(); }
};

/// @}
