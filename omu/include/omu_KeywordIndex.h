#pragma once
/// \addtogroup omu
/// @{

/// \class omu_KeywordIndex
/// The keywords of one call, found by their text in constant time, so that binding a call costs
/// time linear in its number of keyword arguments. A slot is a keyword's place in key order.
///
/// The index points into the dictionary it was built from: it is valid until that dictionary
/// changes, so its owner clears it before every change and builds it again when next asked. A
/// copied or assigned index is cleared: it would point into another call's keywords.
/// Building allocates once for the entries and once for the hash table, reused by later builds
/// of no more keywords. Not thread-safe; a call is bound on one thread.
#include <omu_PrimDictionary.h>

#include <string_view>
#include <vector>

class CVX_EXPORT omu_KeywordIndex {
public:
  omu_KeywordIndex() noexcept = default;
  /// Copies and assignments are cleared (see the class).
  ///@{
  omu_KeywordIndex(const omu_KeywordIndex&) noexcept {}
  omu_KeywordIndex& operator=(const omu_KeywordIndex&) noexcept {
    Clear();
    return *this;
  }
  ///@}

  /// True once built, until cleared.
  bool Built() const noexcept { return !m_Table.empty(); }
  /// Indexes keywords, which must not change while the index is used.
  void Build(const omu_PrimDictionary<cow_String>& keywords);
  /// Forgets the index, keeping its storage for the next build.
  void Clear() noexcept;
  /// The keyword's slot, or -1 when the call does not give it (or nothing is built).
  int Find(std::string_view keyword) const noexcept;
  /// The value in a slot that Find answered.
  const omu_Primitive* Value(int slot) const noexcept {
    return m_Entries[static_cast<std::size_t>(slot)].value;
  }

private:
  struct Entry {
    std::string_view keyword;
    const omu_Primitive* value;
  };

  std::vector<Entry> m_Entries;
  /// Open addressing with linear probing over slots, -1 where empty; at most half full. Empty
  /// until built, and never after.
  std::vector<int> m_Table;
  std::size_t m_Mask = 0;
};

/// @}
