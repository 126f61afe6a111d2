#pragma once
/// \addtogroup uti
/// @{

/// \class UTI_FieldTable
/// The persisted fields of one class level, described once. Reading, writing and registering
/// all walk the table in its order, which is the order of the fields in the archive record and
/// of the attribute ordinals (0, 1, ...), so the three cannot drift apart. A constant built at
/// compile time; it holds no state and is safe to use from any thread.
/// \code
///   static constexpr auto Fields() {
///     return UTI_FieldTable{UTI_Field{"m_Found", &X::m_Found, cls_KIND_INT}, ...};
///   }
/// \endcode
#include <UTI_Field.h>
#include <cls_ClassMetadata.h>
#include <cls_ReadVisitor.h>
#include <cls_WriteVisitor.h>

#include <tuple>

template <class Class, class... Members>
class UTI_FieldTable {
public:
  /// The fields, in record order.
  constexpr explicit UTI_FieldTable(UTI_Field<Class, Members>... fields) noexcept
      : m_Fields(fields...) {}

  /// Reads each field by name. A field missing from the record, or of another kind, raises
  /// the reader's nex_TextException; the fields before it are then already set.
  void Read(const cls_ReadVisitor& reader, Class& object) const {
    std::apply([&](const auto&... field) { (reader.Read(field.name, object.*field.member), ...); },
               m_Fields);
  }

  /// Writes each field under its name, in order.
  void Write(const cls_WriteVisitor& writer, const Class& object) const {
    std::apply([&](const auto&... field) { (writer.Write(field.name, object.*field.member), ...); },
               m_Fields);
  }

  /// Adds one attribute per field to the class's metadata.
  void Register(cls_ClassMetadata& metadata) const {
    int ordinal = 0;
    std::apply(
        [&](const auto&... field) {
          (metadata.AddAttribute({ordinal++, field.name}, field.kind, field.typeArgument,
                                 field.flags),
           ...);
        },
        m_Fields);
  }

private:
  std::tuple<UTI_Field<Class, Members>...> m_Fields;
};

/// @}
