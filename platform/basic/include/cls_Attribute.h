#pragma once
/// \addtogroup basic
/// @{

/// \struct cls_Attribute
/// One persisted attribute of a class: ordinal and name, kind code, type argument, flags.
#include <cow_String.h>

/// An attribute's ordinal and name, as AddAttribute takes them.
struct cls_AttributeName {
  /// The attribute's position among the class's attributes, and its name.
  ///@{
  int ordinal = 0;
  cow_String name;
  ///@}
};

struct cls_Attribute {
  /// The attribute's position among the class's attributes, and its name.
  ///@{
  int ordinal = 0;
  cow_String name;
  ///@}
  /// The kind code (cls_AttributeKind).
  int kind = 0;
  /// The kind's argument (1 for a plain value).
  unsigned int typeArgument = 0;
  /// Flags, kept for the class's owner.
  unsigned int flags = 0;

  friend bool operator==(const cls_Attribute&, const cls_Attribute&) = default;
};

/// Attribute kind codes.
enum cls_AttributeKind : int {
  cls_KIND_CHAR = 1,
  cls_KIND_INT = 5,
  cls_KIND_UINT = 7,
  cls_KIND_DOUBLE = 10,
  cls_KIND_STRING = 11,
  cls_KIND_TRANSLATABLE = 12,
  cls_KIND_BOOL = 13,
  cls_KIND_ENUM = 14,
  cls_KIND_REFERENCE = 15,
  cls_KIND_LIST = 16,
  cls_KIND_ARRAY = 17,
  cls_KIND_FLOAT = 18,
};

/// @}
