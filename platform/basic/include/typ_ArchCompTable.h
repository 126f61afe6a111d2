#pragma once
/// \addtogroup basic
/// @{

/// \class typ_ArchCompTable
/// The architecture-compatibility table: each module's class table by module number.
#include <BASIC_Export.h>
#include <typ_ArchCompEntry.h>

#include <map>

class BASIC_EXPORT typ_ArchCompTable {
public:
  /// The process's table, created on first use.
  static typ_ArchCompTable& Instance();

  /// Enters a module's class table, replacing any earlier one.
  void InsertEntry(int module, typ_ArchCompEntry entry);
  /// Removes a module's table.
  void RemoveEntry(int module);
  /// A module's table, or null.
  const typ_ArchCompEntry* Entry(int module) const noexcept;
  /// The table's name for a type identifier, or null.
  const char* ClassName(unsigned int typeId) const noexcept;

private:
  typ_ArchCompTable() = default;
  std::map<int, typ_ArchCompEntry> m_Entries;
};

/// @}
