#pragma once
/// \addtogroup uti
/// @{

/// \struct UTI_Field
/// One persisted field of a class level, as a UTI_FieldTable lists it: the name it has in
/// archive records and in the registry, the member that holds it, and the registry's
/// attribute descriptor (kind code, type argument, flags). Plain kinds take type argument 1
/// and flags 0, the defaults.
template <class Class, class Member>
struct UTI_Field {
  /// The field as the members below hold it.
  constexpr UTI_Field(const char* fieldName, Member Class::*fieldMember, int fieldKind,
                      unsigned int fieldTypeArgument = 1, unsigned int fieldFlags = 0) noexcept
      : name(fieldName),
        member(fieldMember),
        kind(fieldKind),
        typeArgument(fieldTypeArgument),
        flags(fieldFlags) {}

  /// The name in records and in the registry.
  const char* name;
  /// The member that holds the field.
  Member Class::*member;
  /// The attribute descriptor: kind code (cls_AttributeKind), type argument, flags.
  ///@{
  int kind;
  unsigned int typeArgument;
  unsigned int flags;
  ///@}
};

/// @}
