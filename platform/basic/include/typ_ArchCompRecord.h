#pragma once
/// \addtogroup basic
/// @{

/// \struct typ_ArchCompRecord
/// One 16-byte row of a module's class table (and the table's 16-byte header).
#include <cstdint>

struct typ_ArchCompRecord {
  std::uint32_t kind;          ///< 4 exception class, 7 persistent value class, 0 unused
  std::uint16_t parentClass;   ///< parent class number
  std::uint16_t parentModule;  ///< parent module number
  const char* name;            ///< registration name; null for an unused number
};

/// The 16-byte header of a class table: 0, 1, then eight reserved bytes.
struct typ_ArchCompHeader {
  /// Always 0 and 1; reserved bytes zero.
  ///@{
  std::uint32_t zero;
  std::uint32_t one;
  std::uint8_t reserved[8];
  ///@}
};

/// A module's table: the header, then rows for class numbers 1, 2, ... and a terminator.
template <int Count>
struct typ_ArchCompTableData {
  /// The header.
  typ_ArchCompHeader header;
  /// The rows, the terminator last.
  typ_ArchCompRecord records[Count];
};

static_assert(sizeof(typ_ArchCompRecord) == 16, "class-table rows are 16 bytes");
static_assert(sizeof(typ_ArchCompHeader) == 16, "the class-table header is 16 bytes");

/// Rows as the module tables spell them: kind, then the parent as module:class, then the name.
constexpr typ_ArchCompRecord typ_Row(std::uint32_t kind, unsigned int parentModule,
                                     unsigned int parentClass, const char* name) noexcept {
  return {kind, static_cast<std::uint16_t>(parentClass), static_cast<std::uint16_t>(parentModule),
          name};
}
/// The row kinds.
///@{
constexpr std::uint32_t typ_EXCEPTION_CLASS = 4;
constexpr std::uint32_t typ_VALUE_CLASS = 7;
///@}
/// The row of a class number no class uses.
constexpr typ_ArchCompRecord typ_UnusedRow = {0, 1, 0, nullptr};
/// The row that ends a table.
constexpr typ_ArchCompRecord typ_Terminator = {0, 0, 0, nullptr};
/// The header every table starts with.
constexpr typ_ArchCompHeader typ_TableHeader = {0, 1, {}};

/// @}
