#pragma once
/// \addtogroup omu
/// @{

/// \class omu_KeywordIndex
/// The keywords of one call, found by their text in constant time, so that binding a call costs
/// time linear in its number of keyword arguments. A slot is a keyword's place in key order.
///
/// The index is built from the keywords in the order they were stored, each keyword's slot
/// being the place where it was first stored; a keyword stored again replaces the value in its
/// slot, as a dictionary's Put does. It points into the keywords it was built from: it is valid
/// until they change, so its owner clears it before every change and builds it again when next
/// asked. A copied or assigned index is cleared: it would point into another call's keywords.
/// A call of up to Inline keywords, the common case, is indexed in place and searched linearly:
/// building allocates nothing. Larger calls get a hash table, allocated once for the entries and
/// once for the table, reused by later builds of no more keywords. Not thread-safe; a call is
/// bound on one thread.
#include <omu_PrimDictionary.h>

#include <array>
#include <span>
#include <string_view>
#include <vector>

class CVX_EXPORT omu_KeywordIndex {
public:
  /// The most keywords indexed in place, without allocating.
  static constexpr std::size_t Inline = 8;
  /// A stored keyword and its value.
  using Stored = std::pair<cow_String, omu_PrimDictionary<cow_String>::Handle>;

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
  bool Built() const noexcept { return m_Size >= 0; }
  /// Indexes the keywords, in the order stored; they must not change while the index is used.
  void Build(std::span<const Stored> keywords);
  /// Forgets the index, keeping its storage for the next build.
  void Clear() noexcept { m_Size = -1; }
  /// The keyword's slot, or -1 when the call does not give it (or nothing is built). A keyword
  /// given as the very text indexed is matched by its address, without comparing characters.
  int Find(std::string_view keyword) const noexcept {
    if (m_Size < 0) return -1;
    if (m_Hashed) return FindHashed(keyword);
    for (int slot = 0; slot < m_Size; ++slot) {
      if (Same(m_Inline[static_cast<std::size_t>(slot)].keyword, keyword)) return slot;
    }
    return -1;
  }
  /// The value in a slot that Find answered.
  const omu_Primitive* Value(int slot) const noexcept {
    return Entries()[static_cast<std::size_t>(slot)].value;
  }
  /// The keyword in a slot that Find answered.
  std::string_view Keyword(int slot) const noexcept {
    return Entries()[static_cast<std::size_t>(slot)].keyword;
  }
  /// The number of different keywords indexed: 0 until built.
  int Size() const noexcept { return m_Size < 0 ? 0 : m_Size; }

private:
  struct Entry {
    std::string_view keyword;
    const omu_Primitive* value = nullptr;
  };

  // Lengths, then addresses, before the characters. Keywords are short names, which a loop
  // compares faster than a call to memcmp.
  static bool Same(std::string_view indexed, std::string_view keyword) noexcept {
    if (indexed.size() != keyword.size()) return false;
    if (indexed.data() == keyword.data()) return true;
    if (indexed.size() > ShortName) return indexed == keyword;
    for (std::size_t at = 0; at < indexed.size(); ++at) {
      if (indexed[at] != keyword[at]) return false;
    }
    return true;
  }
  static constexpr std::size_t ShortName = 16;
  const Entry* Entries() const noexcept { return m_Hashed ? m_Entries.data() : m_Inline.data(); }
  Entry* Entries() noexcept { return m_Hashed ? m_Entries.data() : m_Inline.data(); }
  int FindHashed(std::string_view keyword) const noexcept;
  /// Indexes one keyword, or replaces the value of one indexed before.
  void Add(std::string_view keyword, const omu_Primitive* value);
  /// The table slot that holds keyword's slot, or the empty one where it would go.
  std::size_t Probe(std::string_view keyword) const noexcept;

  // The number of keywords indexed, -1 until built.
  int m_Size = -1;
  bool m_Hashed = false;
  std::array<Entry, Inline> m_Inline;
  std::vector<Entry> m_Entries;
  /// Open addressing with linear probing over slots, -1 where empty; at most half full.
  std::vector<int> m_Table;
  std::size_t m_Mask = 0;
};

/// @}
