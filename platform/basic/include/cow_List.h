#pragma once
/// \addtogroup basic
/// @{

/// \class cow_List
/// A copy-on-write list: copying is O(1) whatever the length; the first write un-shares.
/// Iteration is read-only so that reading never copies.
///
/// Indexes: an index outside [0, Length()) (for Insert, [0, Length()]) raises nex_TextException
/// "List index I out of range (length N)" before anything is read, written or un-shared.
///
/// Equality: the same length and equal elements in order, each compared with its own ==, so a
/// list holding a NaN is unequal even to itself. Lists on one shared body are equal without
/// comparing only where cow_ReflexiveEquality<T> says every T equals itself.
///
/// Threads: copies of one list may be read and written on different threads at once, each copy
/// by its own thread (the sharing count is atomic and the first write un-shares). One list
/// object may be read (const operations, iteration) from several threads at once; a write to it
/// needs its one owner and no reader at the same time.
#include <BASIC_Export.h>
#include <cow_ReflexiveEquality.h>
#include <cow_Shared.h>

#include <algorithm>
#include <initializer_list>
#include <vector>

/// Raises nex_TextException for an index outside a list of the given length.
[[noreturn]] BASIC_EXPORT void cow_RaiseOutOfRange(int index, int length);

template <class T>
class cow_List {
public:
  /// The element type, iterator and reference types, as std::vector's.
  ///@{
  using value_type = T;
  using const_iterator = typename std::vector<T>::const_iterator;
  /// The vector's: for bool a value and a proxy, so no reference to a temporary escapes.
  using const_reference = typename std::vector<T>::const_reference;
  using reference = typename std::vector<T>::reference;
  ///@}

  cow_List() noexcept = default;
  /// A list of the items, in order.
  ///@{
  cow_List(std::initializer_list<T> items) : m_Items(std::vector<T>(items)) {}
  explicit cow_List(std::vector<T> items) : m_Items(std::move(items)) {}
  ///@}
  /// length copies of fill; a negative length gives the empty list.
  explicit cow_List(int length, const T& fill = T())
      : m_Items(std::vector<T>(Count(length), fill)) {}

  /// The number of elements.
  int Length() const noexcept { return static_cast<int>(Items().size()); }
  /// True when Length() is 0.
  bool IsEmpty() const noexcept { return Items().empty(); }
  /// The element at index, read-only; never un-shares.
  ///@{
  const_reference operator[](int index) const { return Items()[Checked(index, Length())]; }
  const_reference ConstGet(int index) const { return (*this)[index]; }
  ///@}
  /// The element at index for change: un-shares first.
  reference Get(int index) {
    const std::size_t at = Checked(index, Length());
    return m_Items.Write()[at];
  }
  /// Read-only iteration, in order.
  ///@{
  const_iterator begin() const noexcept { return Items().begin(); }
  const_iterator end() const noexcept { return Items().end(); }
  ///@}
  /// The elements as a vector, read-only.
  const std::vector<T>& Vector() const noexcept { return Items(); }
  /// The elements as a vector for change: un-shares first.
  std::vector<T>& MutableVector() { return m_Items.Write(); }

  /// Index of the first equal item, or -1.
  int Find(const T& item) const {
    const auto at = std::find(begin(), end(), item);
    return at == end() ? -1 : static_cast<int>(at - begin());
  }
  /// True when Find(item) finds it.
  bool Contains(const T& item) const { return Find(item) >= 0; }

  /// Adds item at the end.
  ///@{
  void Append(const T& item) { m_Items.Write().push_back(item); }
  void Append(T&& item) { m_Items.Write().push_back(std::move(item)); }
  ///@}
  /// Inserts item before index (Length() appends).
  void Insert(int index, const T& item) {
    const auto at = static_cast<std::ptrdiff_t>(Checked(index, Length() + 1));
    auto& items = m_Items.Write();
    items.insert(items.begin() + at, item);
  }
  /// Removes the element at index.
  void Remove(int index) {
    const auto at = static_cast<std::ptrdiff_t>(Checked(index, Length()));
    auto& items = m_Items.Write();
    items.erase(items.begin() + at);
  }
  /// Cuts to length, or grows with copies of fill; negative means 0.
  void Resize(int length, const T& fill = T()) { m_Items.Write().resize(Count(length), fill); }
  /// Removes every element.
  void Clear() {
    if (!IsEmpty()) m_Items = cow_Shared<std::vector<T>>();
  }
  /// True while another copy shares the elements.
  bool IsShared() const noexcept { return m_Items.IsShared(); }
  /// True when other is a copy still sharing this list's elements.
  bool SharesWith(const cow_List& other) const noexcept {
    return m_Items.SharesWith(other.m_Items);
  }

  friend bool operator==(const cow_List& a, const cow_List& b) {
    if (cow_ReflexiveEquality<T>::value && a.SharesWith(b)) return true;
    return a.Items() == b.Items();
  }

private:
  static std::size_t Count(int n) noexcept { return n < 0 ? 0 : static_cast<std::size_t>(n); }
  /// index itself, once it is in [0, end); Length() is reported as the length.
  std::size_t Checked(int index, int end) const {
    if (index < 0 || index >= end) cow_RaiseOutOfRange(index, Length());
    return static_cast<std::size_t>(index);
  }
  const std::vector<T>& Items() const noexcept { return m_Items.Read(); }

  cow_Shared<std::vector<T>> m_Items;
};

/// @}
