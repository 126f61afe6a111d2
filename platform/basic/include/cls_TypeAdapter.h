#pragma once
/// \addtogroup basic
/// @{

/// \class cls_TypeAdapter
/// Metadata of a concrete class T: adds the factory (from a read visitor) and the copy.
#include <cls_AbsTypeAdapter.h>

template <class T>
class cls_TypeAdapter : public cls_AbsTypeAdapter<T> {
public:
  using cls_AbsTypeAdapter<T>::cls_AbsTypeAdapter;

  bool IsAbstract() const noexcept override { return false; }
  void* Construct(const cls_ReadVisitor& reader) const override {
    T* object = new T(reader);
    // An exception's report comes from its most-derived class, so it is fixed once built.
    if constexpr (requires { object->FixReport(); }) object->FixReport();
    return object;
  }
  void* Clone(const void* object) const override { return new T(*static_cast<const T*>(object)); }
};

/// @}
