#pragma once
/// \addtogroup basic
/// @{

/// \class cls_AbsTypeAdapter
/// Metadata of a class T that may be abstract: it can write and destroy a T, not build one.
#include <cls_ClassMetadata.h>

template <class T>
class cls_AbsTypeAdapter : public cls_ClassMetadata {
public:
  /// The metadata of T (T::TypeId()) under name, as cls_ClassMetadata takes it.
  cls_AbsTypeAdapter(const cow_String& name, unsigned int metadataWord, unsigned int parentTypeId,
                     unsigned int extra = 0)
      : cls_ClassMetadata(name, T::TypeId(), metadataWord, parentTypeId, extra) {}

  void Write(const void* object, const cls_WriteVisitor& writer) const override {
    static_cast<const T*>(object)->DBWrite(writer);
  }
  void Destroy(void* object) const noexcept override {
    if (Dtor()) {
      Dtor()(object);
    } else {
      delete static_cast<T*>(object);
    }
  }
};

/// @}
