#pragma once
// The three operations every concrete exception class implements the same way, written once:
// Propagate throws a copy typed as Derived, Copy clones it, DynTypeId answers Derived's id.
#include <nex_Exception.h>

template <class Derived, class Base>
class nex_Raisable : public Base {
public:
  using Base::Base;

  [[noreturn]] void Propagate() const override { throw static_cast<const Derived&>(*this); }
  nex_Exception* Copy() const override { return new Derived(static_cast<const Derived&>(*this)); }
  unsigned int DynTypeId() const override { return Derived::TypeId(); }
};
