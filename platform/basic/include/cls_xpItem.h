#pragma once
/// \addtogroup basic
/// @{

/// \struct cls_xpItem
/// How one value of a persisted list or array field is held in a cls_Value: Encode makes the
/// value, Decode reads it back and answers false when the value is of another kind (so that a
/// reader can refuse a foreign archive instead of guessing). Kind is the attribute kind code
/// of a field holding such a value.
#include <cls_Attribute.h>
#include <cls_Value.h>

#include <cstdint>

template <class T>
struct cls_xpItem;

/// A scalar stored as Stored in the value.
template <class T, class Stored, int AttributeKind>
struct cls_xpScalarItem {
  /// The attribute kind of a field of such values.
  static constexpr int Kind = AttributeKind;
  /// value as a Stored value.
  static cls_Value Encode(const T& value) { return cls_Value(static_cast<Stored>(value)); }
  /// Sets out from a Stored value; false, out untouched, for a value of another kind.
  static bool Decode(const cls_Value& value, T& out) {
    const auto* stored = value.As<Stored>();
    if (stored) out = static_cast<T>(*stored);
    return stored != nullptr;
  }
};

template <>
struct cls_xpItem<bool> : cls_xpScalarItem<bool, bool, cls_KIND_BOOL> {};
template <>
struct cls_xpItem<int> : cls_xpScalarItem<int, std::int32_t, cls_KIND_INT> {};
template <>
struct cls_xpItem<float> : cls_xpScalarItem<float, float, cls_KIND_FLOAT> {};
template <>
struct cls_xpItem<double> : cls_xpScalarItem<double, double, cls_KIND_DOUBLE> {};
template <>
struct cls_xpItem<cow_String> : cls_xpScalarItem<cow_String, cow_String, cls_KIND_STRING> {};

/// @}
