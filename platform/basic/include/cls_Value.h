#pragma once
/// \addtogroup basic
/// @{

/// \class cls_Value
/// One field value of a persisted record: a scalar, a text, an enumerator name, a list, a
/// two-dimensional array, a nested record, a reference (by uid) to a record written earlier,
/// or a block of doubles, held or produced by its source when encoded.
#include <BASIC_Export.h>
#include <cls_DoublesSource.h>
#include <cls_Uid.h>
#include <cow_2DArray.h>
#include <cow_String.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

class cls_Value;
struct cls_Record;

/// An enumerator, persisted by its name.
struct cls_EnumName {
  /// The enumerator's name.
  cow_String name;
  friend bool operator==(const cls_EnumName&, const cls_EnumName&) = default;
};

/// A reference to a record written earlier in the archive.
struct cls_Ref {
  /// The uid of the record referred to.
  cls_Uid uid;
  friend bool operator==(const cls_Ref&, const cls_Ref&) = default;
};

/// A two-dimensional array of values.
struct cls_Matrix {
  /// The shape.
  ///@{
  int rows = 0;
  int columns = 0;
  ///@}
  std::vector<cls_Value> cells;  ///< row-major
};

class cls_Value {
public:
  /// The alternatives, in the order of Data's types (NONE is the empty value). A file stores
  /// DOUBLES_SOURCE as DOUBLES, so a value read from one is never DOUBLES_SOURCE.
  enum Kind : std::uint8_t {
    NONE,
    BOOL,
    CHAR,
    INT,
    UINT,
    DOUBLE,
    TEXT,
    ENUM,
    LIST,
    MATRIX,
    RECORD,
    REF,
    FLOAT,
    INT64,
    DOUBLES,
    DOUBLES_SOURCE
  };
  /// A list value.
  using List = std::vector<cls_Value>;
  /// A block of doubles, rows x columns: numeric data kept as one run rather than a value per
  /// number, so that a million of them cost one copy (none when shared, as it is copy-on-write)
  /// and 8 bytes each in a file.
  using Doubles = cow_2DArray<double>;
  /// The value, one alternative per Kind.
  using Data =
      std::variant<std::monostate, bool, char, std::int32_t, std::uint32_t, double, cow_String,
                   cls_EnumName, List, cls_Matrix, std::shared_ptr<cls_Record>, cls_Ref, float,
                   std::int64_t, Doubles, std::shared_ptr<const cls_DoublesSource>>;

  cls_Value() noexcept = default;
  /// A value of any of Data's alternatives.
  template <class T>
  requires std::is_constructible_v<Data, T&&>
  // NOLINTNEXTLINE(bugprone-forwarding-reference-overload): the constraint leaves out cls_Value
  cls_Value(T&& value) : m_Data(std::forward<T>(value)) {}

  /// Which alternative the value holds.
  Kind GetKind() const noexcept { return static_cast<Kind>(m_Data.index()); }
  /// The value as T, or null when it holds another alternative.
  template <class T>
  const T* As() const noexcept {
    return std::get_if<T>(&m_Data);
  }
  /// The block of doubles held (shared, not copied) or made from the source; none for the
  /// other kinds. Making one from a source costs a copy of its numbers.
  BASIC_EXPORT std::optional<Doubles> AsDoubles() const;
  /// The underlying variant.
  ///@{
  const Data& GetData() const noexcept { return m_Data; }
  Data& GetData() noexcept { return m_Data; }
  ///@}

  /// The kind's name for messages ("int", "text", ...).
  static const char* KindName(Kind kind) noexcept;

private:
  Data m_Data;
};

/// One class level of a persisted object: its class, uid, parent level and named fields.
struct cls_Record {
  /// The class of this level.
  unsigned int typeId = 0;
  /// The object's identity.
  cls_Uid uid;
  cls_Value parent;  ///< the parent class level: a record, a reference, or none
  /// The fields in the order written.
  std::vector<std::pair<cow_String, cls_Value>> fields;

  /// The field called name, or null.
  const cls_Value* Find(std::string_view name) const noexcept {
    for (const auto& field : fields) {
      if (field.first == name) return &field.second;
    }
    return nullptr;
  }
};

/// The same kind and the same contents, floating-point numbers bit for bit, nested records
/// field by field, uids included: what decides whether one record may stand for another.
///@{
// NOLINTBEGIN(bugprone-exception-escape): std::visit throws only for a valueless variant
BASIC_EXPORT bool Identical(const cls_Value& a, const cls_Value& b) noexcept;
BASIC_EXPORT bool Identical(const cls_Record& a, const cls_Record& b) noexcept;
// NOLINTEND(bugprone-exception-escape)
///@}

/// @}
