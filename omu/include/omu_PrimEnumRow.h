#pragma once
/// \addtogroup omu
/// @{

/// \struct omu_PrimEnumRow
/// One row of a permissible-value table: a name and its value. A table ends with a row whose
/// name is null; lookups take the first matching row.
struct omu_PrimEnumRow {
  /// The name; null ends the table.
  const char* name;
  /// The value.
  int value;
};

/// The permissible-value table of omu_PrimEnum<E, N>. Each instantiation specializes it, next
/// to its enumeration, as
/// \code
///   template <> struct omu_PrimEnumTable<E, N> { static CVX_EXPORT const omu_PrimEnumRow* Rows()
///   noexcept; };
/// \endcode
/// and defines Rows() in a source file of the library.
template <class E, int N>
struct omu_PrimEnumTable;

/// @}
