#pragma once
/// \addtogroup basic
/// @{

/// \class typ_ArchCompEntry
/// A module's class table as handed to typ_ArchCompTable: where it is and how many rows
/// (terminator included) it has. The table itself stays the module's.
#include <typ_ArchCompRecord.h>

class typ_ArchCompEntry {
public:
  typ_ArchCompEntry() noexcept = default;
  /// Refers to table, which must outlive the entry.
  template <int Count>
  explicit typ_ArchCompEntry(const typ_ArchCompTableData<Count>& table) noexcept
      : m_Header(&table.header), m_Records(table.records), m_Count(Count) {}

  /// The table's header.
  const typ_ArchCompHeader* Header() const noexcept { return m_Header; }
  /// The rows.
  const typ_ArchCompRecord* Records() const noexcept { return m_Records; }
  /// The number of rows, the terminator included.
  int RecordCount() const noexcept { return m_Count; }
  /// The row of a class number (1-based), or null past the table.
  const typ_ArchCompRecord* Row(unsigned int classNumber) const noexcept {
    return classNumber >= 1 && static_cast<int>(classNumber) <= m_Count
               ? &m_Records[classNumber - 1]
               : nullptr;
  }

private:
  const typ_ArchCompHeader* m_Header = nullptr;
  const typ_ArchCompRecord* m_Records = nullptr;
  int m_Count = 0;
};

/// @}
