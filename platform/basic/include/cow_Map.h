#pragma once
/// \addtogroup basic
/// @{

/// \class cow_Map
/// A copy-on-write map ordered by key (text keys byte-wise, so "OFF" comes before "ON"). Lookups
/// take any type that orders against the keys, so a text key is found from a view.
///
/// Equality: the same keys with equal values, each compared with its own ==, so a map holding
/// a NaN is unequal even to itself. Maps on one shared body are equal without comparing only
/// where cow_ReflexiveEquality says that every key and every value equals itself.
///
/// Threads: as cow_List. Copies may be read and written on different threads at once, each by
/// its own thread; one map object may be read from several threads at once, and a write to it
/// needs its one owner and no reader at the same time.
#include <cow_List.h>

#include <map>

template <class K, class V>
class cow_Map {
public:
  /// Read-only iteration in key order.
  using const_iterator = typename std::map<K, V, std::less<>>::const_iterator;

  cow_Map() noexcept = default;
  /// The entries; a later duplicate key is dropped, as std::map does.
  cow_Map(std::initializer_list<std::pair<const K, V>> entries)
      : m_Entries(std::map<K, V, std::less<>>(entries)) {}

  /// The number of entries.
  int Length() const noexcept { return static_cast<int>(Entries().size()); }
  /// True when there are none.
  bool IsEmpty() const noexcept { return Entries().empty(); }
  /// True when key has an entry.
  bool Contains(const K& key) const { return Entries().count(key) != 0; }
  /// The value under key, or null.
  const V* Find(const K& key) const { return FindKey(key); }
  /// The same from anything that orders against the keys, such as a text view.
  template <class Key>
  const V* FindKey(const Key& key) const {
    const auto at = Entries().find(key);
    return at == Entries().end() ? nullptr : &at->second;
  }
  /// The value under key for change (un-sharing first), or null; a missing key un-shares nothing.
  V* FindForWrite(const K& key) {
    if (!Contains(key)) return nullptr;
    return &m_Entries.Write().find(key)->second;
  }
  /// Stores value under key, replacing any.
  ///@{
  void Insert(const K& key, const V& value) { m_Entries.Write().insert_or_assign(key, value); }
  void Insert(const K& key, V&& value) {
    m_Entries.Write().insert_or_assign(key, std::move(value));
  }
  ///@}
  /// Removes key's entry; false, un-sharing nothing, when there is none.
  bool Remove(const K& key) { return Contains(key) && m_Entries.Write().erase(key) != 0; }
  /// Removes every entry.
  void Clear() { m_Entries = cow_Shared<std::map<K, V, std::less<>>>(); }
  /// The keys in order.
  cow_List<K> Keys() const {
    std::vector<K> keys;
    keys.reserve(Entries().size());
    for (const auto& entry : Entries()) keys.push_back(entry.first);
    return cow_List<K>(std::move(keys));
  }
  /// Read-only iteration in key order.
  ///@{
  const_iterator begin() const noexcept { return Entries().begin(); }
  const_iterator end() const noexcept { return Entries().end(); }
  ///@}
  /// True while another copy shares the entries.
  bool IsShared() const noexcept { return m_Entries.IsShared(); }

  friend bool operator==(const cow_Map& a, const cow_Map& b) {
    constexpr bool reflexive = cow_ReflexiveEquality<K>::value && cow_ReflexiveEquality<V>::value;
    if (reflexive && a.m_Entries.SharesWith(b.m_Entries)) return true;
    return a.Entries() == b.Entries();
  }

private:
  const std::map<K, V, std::less<>>& Entries() const noexcept { return m_Entries.Read(); }

  cow_Shared<std::map<K, V, std::less<>>> m_Entries;
};

/// @}
