#pragma once
/// \addtogroup basic
/// @{

/// \class cow_TextMap
/// A copy-on-write map from text to V with cow_Map's interface, order (byte-wise), equality
/// and threads, plus a hash index beside the ordered entries. Finding a key hashes it once and
/// compares it with one stored key (more only on a hash collision), where a tree compares one
/// key a level and reaches each key's characters through its shared text body.
///
/// Cost: copies stay O(1); an un-sharing write copies the entries and rebuilds the index,
/// O(n). Insert and Remove are O(log n) for the order plus amortised O(1) for the index, which
/// takes about 16 to 32 bytes an entry more than cow_Map.
#include <cow_List.h>
#include <cow_String.h>

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <map>
#include <string_view>
#include <utility>
#include <vector>

template <class V>
class cow_TextMap {
  using Ordered = std::map<cow_String, V, std::less<>>;

public:
  /// Read-only iteration in key order.
  using const_iterator = typename Ordered::const_iterator;

  /// The empty map; allocates nothing.
  cow_TextMap() noexcept = default;
  /// The entries; a later duplicate key is dropped, as std::map does.
  cow_TextMap(std::initializer_list<std::pair<const cow_String, V>> entries)
      : m_Table(Table(Ordered(entries))) {}

  /// The number of entries.
  int Length() const noexcept { return static_cast<int>(Entries().size()); }
  /// True when there are none.
  bool IsEmpty() const noexcept { return Entries().empty(); }
  /// True when key has an entry.
  bool Contains(std::string_view key) const { return FindKey(key) != nullptr; }
  /// The value under key, or null.
  const V* Find(const cow_String& key) const { return FindKey(key); }
  /// The same from any text, such as a view; no allocation.
  template <class Key>
  const V* FindKey(const Key& key) const {
    const auto* entry = m_Table.Read().Lookup(key);
    return entry ? &entry->second : nullptr;
  }
  /// The value under key for change (un-sharing first), or null; a missing key un-shares nothing.
  V* FindForWrite(const cow_String& key) {
    if (!Contains(key)) return nullptr;
    return &m_Table.Write().Mutable().find(key)->second;
  }
  /// Stores value under key, replacing any.
  ///@{
  void Insert(const cow_String& key, const V& value) { m_Table.Write().Insert(key, value); }
  void Insert(const cow_String& key, V&& value) { m_Table.Write().Insert(key, std::move(value)); }
  ///@}
  /// Removes key's entry; false, un-sharing nothing, when there is none.
  bool Remove(const cow_String& key) { return Contains(key) && m_Table.Write().Erase(key); }
  /// Removes every entry.
  void Clear() { m_Table = cow_Shared<Table>(); }
  /// The keys in order.
  cow_List<cow_String> Keys() const {
    std::vector<cow_String> keys;
    keys.reserve(Entries().size());
    for (const auto& entry : Entries()) keys.push_back(entry.first);
    return cow_List<cow_String>(std::move(keys));
  }
  /// Read-only iteration in key order.
  ///@{
  const_iterator begin() const noexcept { return Entries().begin(); }
  const_iterator end() const noexcept { return Entries().end(); }
  ///@}
  /// True while another copy shares the entries.
  bool IsShared() const noexcept { return m_Table.IsShared(); }

  /// Equal as cow_Map's are: the same keys with equal values.
  friend bool operator==(const cow_TextMap& a, const cow_TextMap& b) {
    if (cow_ReflexiveEquality<V>::value && a.m_Table.SharesWith(b.m_Table)) return true;
    return a.Entries() == b.Entries();
  }

private:
  using Entry = typename Ordered::value_type;

  // The ordered entries and an open-addressing index (linear probing, at most 3/4 full) of
  // pointers to them; map nodes stay put, so the pointers hold until their entry is erased.
  class Table {
  public:
    Table() = default;
    explicit Table(Ordered entries) : m_Entries(std::move(entries)) { Reindex(); }
    Table(const Table& other) : m_Entries(other.m_Entries) { Reindex(); }
    Table(Table&&) noexcept = default;
    Table& operator=(const Table&) = delete;

    const Ordered& Entries() const noexcept { return m_Entries; }
    Ordered& Mutable() noexcept { return m_Entries; }

    const Entry* Lookup(std::string_view key) const noexcept {
      if (m_Slots.empty()) return nullptr;
      const std::size_t hash = Hash(key);
      for (std::size_t i = hash & Mask();; i = (i + 1) & Mask()) {
        const Slot& slot = m_Slots[i];
        if (!slot.entry) return nullptr;
        if (slot.hash == hash && slot.entry->first == key) return slot.entry;
      }
    }

    template <class Value>
    void Insert(const cow_String& key, Value&& value) {
      const auto [at, added] = m_Entries.insert_or_assign(key, std::forward<Value>(value));
      if (!added) return;
      if (4 * m_Entries.size() > 3 * m_Slots.size()) {
        Reindex();
      } else {
        Place(&*at);
      }
    }

    bool Erase(const cow_String& key) {
      const auto at = m_Entries.find(key);
      if (at == m_Entries.end()) return false;
      Unplace(&*at);
      m_Entries.erase(at);
      return true;
    }

  private:
    struct Slot {
      std::size_t hash = 0;
      const Entry* entry = nullptr;  ///< null for a free slot
    };

    static std::size_t Hash(std::string_view key) noexcept {
      return std::hash<std::string_view>()(key);
    }
    std::size_t Mask() const noexcept { return m_Slots.size() - 1; }

    // Sized for the entries at most half full, then filled from them.
    void Reindex() {
      std::size_t size = 8;
      while (size < 2 * m_Entries.size()) size *= 2;
      m_Slots.assign(m_Entries.empty() ? 0 : size, Slot());
      for (const auto& entry : m_Entries) Place(&entry);
    }
    void Place(const Entry* entry) noexcept {
      const std::size_t hash = Hash(entry->first);
      std::size_t i = hash & Mask();
      while (m_Slots[i].entry) i = (i + 1) & Mask();
      m_Slots[i] = {hash, entry};
    }
    // Frees entry's slot and shifts later slots of its run back, so no probe meets a gap.
    void Unplace(const Entry* entry) noexcept {
      std::size_t gap = Hash(entry->first) & Mask();
      while (m_Slots[gap].entry != entry) gap = (gap + 1) & Mask();
      for (std::size_t i = (gap + 1) & Mask(); m_Slots[i].entry; i = (i + 1) & Mask()) {
        const std::size_t home = m_Slots[i].hash & Mask();
        // The slot may move back to the gap unless its home lies cyclically in (gap, i].
        if (((i - home) & Mask()) >= ((i - gap) & Mask())) {
          m_Slots[gap] = m_Slots[i];
          gap = i;
        }
      }
      m_Slots[gap] = Slot();
    }

    Ordered m_Entries;
    std::vector<Slot> m_Slots;  ///< empty, or a power of two long
  };

  const Ordered& Entries() const noexcept { return m_Table.Read().Entries(); }

  cow_Shared<Table> m_Table;
};

/// @}
