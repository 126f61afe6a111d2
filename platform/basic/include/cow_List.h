#pragma once
// A copy-on-write list: copying is O(1) whatever the length; the first write un-shares.
// Iteration is read-only so that reading never copies.
#include <BASIC_Export.h>
#include <cow_Shared.h>

#include <algorithm>
#include <initializer_list>
#include <vector>

// Raises nex_TextException for an index outside a list of the given length.
[[noreturn]] BASIC_EXPORT void cow_RaiseOutOfRange(int index, int length);

template <class T>
class cow_List {
public:
  using value_type = T;
  using const_iterator = typename std::vector<T>::const_iterator;

  cow_List() noexcept = default;
  cow_List(std::initializer_list<T> items) : m_Items(std::vector<T>(items)) {}
  explicit cow_List(std::vector<T> items) : m_Items(std::move(items)) {}
  explicit cow_List(int length, const T& fill = T()) : m_Items(std::vector<T>(Count(length), fill)) {}

  int Length() const noexcept { return static_cast<int>(Items().size()); }
  bool IsEmpty() const noexcept { return Items().empty(); }
  const T& operator[](int index) const { return Items()[Count(index)]; }
  const T& ConstGet(int index) const { return Items()[Count(index)]; }
  T& Get(int index) { return m_Items.Write()[Count(index)]; }
  // Checked read: an index outside [0, Length()) raises instead of reading past the end.
  const T& At(int index) const {
    if (index < 0 || index >= Length()) cow_RaiseOutOfRange(index, Length());
    return Items()[Count(index)];
  }
  const_iterator begin() const noexcept { return Items().begin(); }
  const_iterator end() const noexcept { return Items().end(); }
  const std::vector<T>& Vector() const noexcept { return Items(); }
  std::vector<T>& MutableVector() { return m_Items.Write(); }

  // Index of the first equal item, or -1.
  int Find(const T& item) const {
    const auto at = std::find(begin(), end(), item);
    return at == end() ? -1 : static_cast<int>(at - begin());
  }
  bool Contains(const T& item) const { return Find(item) >= 0; }

  void Append(const T& item) { m_Items.Write().push_back(item); }
  void Append(T&& item) { m_Items.Write().push_back(std::move(item)); }
  void Insert(int index, const T& item) {
    auto& items = m_Items.Write();
    items.insert(items.begin() + Count(index), item);
  }
  void Remove(int index) {
    auto& items = m_Items.Write();
    items.erase(items.begin() + Count(index));
  }
  void Resize(int length, const T& fill = T()) { m_Items.Write().resize(Count(length), fill); }
  void Clear() {
    if (!IsEmpty()) m_Items = cow_Shared<std::vector<T>>();
  }
  bool IsShared() const noexcept { return m_Items.IsShared(); }
  bool SharesWith(const cow_List& other) const noexcept { return m_Items.SharesWith(other.m_Items); }

  friend bool operator==(const cow_List& a, const cow_List& b) {
    return a.m_Items.SharesWith(b.m_Items) || a.Items() == b.Items();
  }

private:
  static std::size_t Count(int n) noexcept { return n < 0 ? 0 : static_cast<std::size_t>(n); }
  const std::vector<T>& Items() const noexcept { return m_Items.Read(); }

  cow_Shared<std::vector<T>> m_Items;
};
