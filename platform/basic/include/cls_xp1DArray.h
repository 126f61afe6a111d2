#pragma once
/// \addtogroup basic
/// @{

/// \class cls_xp1DArray
/// A persisted one-dimensional array: a copy-on-write row of a fixed length (changed only by
/// Resize), whose field is a two-dimensional array value of one row.
#include <cls_xpList.h>

template <class T>
class cls_xp1DArray {
public:
  /// Read-only iteration, in order.
  using const_iterator = typename cow_List<T>::const_iterator;

  cls_xp1DArray() noexcept = default;
  /// length copies of fill.
  explicit cls_xp1DArray(int length, const T& fill = T()) : m_Items(length, fill) {}
  /// The items, in order.
  ///@{
  cls_xp1DArray(std::initializer_list<T> items) : m_Items(items) {}
  explicit cls_xp1DArray(std::vector<T> items) : m_Items(std::move(items)) {}
  ///@}

  /// As the cow_List members of the same name.
  ///@{
  int Length() const noexcept { return m_Items.Length(); }
  bool IsEmpty() const noexcept { return m_Items.IsEmpty(); }
  const T& operator[](int index) const { return m_Items[index]; }
  T& Get(int index) { return m_Items.Get(index); }
  void Set(int index, const T& value) { m_Items.Get(index) = value; }
  void Resize(int length, const T& fill = T()) { m_Items.Resize(length, fill); }
  const_iterator begin() const noexcept { return m_Items.begin(); }
  const_iterator end() const noexcept { return m_Items.end(); }
  ///@}

  friend bool operator==(const cls_xp1DArray& a, const cls_xp1DArray& b) {
    return a.m_Items == b.m_Items;
  }

private:
  cow_List<T> m_Items;
};

/// The instantiations the library persists.
///@{
using cls_xp1DArrayInt = cls_xp1DArray<int>;
using cls_xp1DArrayListFloat = cls_xp1DArray<cls_xpList<float>>;
///@}

/// An array is held as a one-row matrix of its items.
template <class T>
struct cls_xpItem<cls_xp1DArray<T>> {
  /// cls_KIND_ARRAY.
  static constexpr int Kind = cls_KIND_ARRAY;
  /// A 1 x Length() matrix value.
  static cls_Value Encode(const cls_xp1DArray<T>& array) {
    cls_Matrix row{1, array.Length(), {}};
    row.cells.reserve(static_cast<std::size_t>(array.Length()));
    for (const T& item : array) row.cells.push_back(cls_xpItem<T>::Encode(item));
    return {std::move(row)};
  }
  /// Sets out from a one-row matrix whose every cell decodes; false, out untouched, otherwise.
  static bool Decode(const cls_Value& value, cls_xp1DArray<T>& out) {
    const auto* row = value.As<cls_Matrix>();
    if (!row || row->rows != 1 || row->columns < 0 ||
        static_cast<std::size_t>(row->columns) != row->cells.size()) {
      return false;
    }
    std::vector<T> decoded(row->cells.size());
    for (std::size_t i = 0; i < decoded.size(); ++i) {
      if (!cls_xpItem<T>::Decode(row->cells[i], decoded[i])) return false;
    }
    out = cls_xp1DArray<T>(std::move(decoded));
    return true;
  }
};

/// @}
