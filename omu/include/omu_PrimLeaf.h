#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimLeaf
/// The operations every concrete primitive implements the same way, written once: Copy
/// through the copy constructor, DynTypeId from the class, Accept through the visitor's
/// overload for the class or its nearest base (a kind the visitor has none for visits nothing).
/// Values of up to mem_BlockPool::MaxBlock bytes live in its blocks: a tuple of a million
/// numbers costs a million pool blocks, not a million malloc calls.
#include <mem_BlockPool.h>
#include <omu_PrimVisitor.h>
#include <omu_Primitive.h>

template <class Derived, class Base>
class omu_PrimLeaf : public Base {
public:
  using Base::Base;
  /// A kind that adds to another takes a copy of the other's value.
  explicit omu_PrimLeaf(const Base& value) : Base(value) {}

  /// A new Derived copy, owned by the caller.
  omu_Primitive* Copy() const override { return new Derived(Self()); }
  /// Derived::TypeId().
  unsigned int DynTypeId() const override { return Derived::TypeId(); }
  /// Calls visitor's Visit for Derived.
  void Accept(omu_PrimVisitor* visitor) const override {
    if constexpr (requires { visitor->Visit(Self()); }) visitor->Visit(Self());
  }

  /// A block of mem_BlockPool; a subclass of another size comes here with its own size.
  static void* operator new(std::size_t size) { return mem_BlockPool::Allocate(size); }
  /// Gives the block back to mem_BlockPool; size is the most derived class's, as for new.
  static void operator delete(void* value, std::size_t size) noexcept {
    mem_BlockPool::Free(value, size);
  }

private:
  const Derived& Self() const noexcept { return static_cast<const Derived&>(*this); }
};

/// @}
