#pragma once
/// \addtogroup basic
/// @{

/// \class cls_xpList
/// A persisted list: a copy-on-write list whose field is a list value of its items.
#include <cls_xpItem.h>
#include <cow_List.h>

template <class T>
class cls_xpList : public cow_List<T> {
public:
  using cow_List<T>::cow_List;
  cls_xpList() noexcept = default;
};

/// The instantiations the library persists.
///@{
using cls_xpListInt = cls_xpList<int>;
using cls_xpListString = cls_xpList<cow_String>;
///@}

/// A list is held as a list value of its items.
template <class T>
struct cls_xpItem<cls_xpList<T>> {
  /// cls_KIND_LIST.
  static constexpr int Kind = cls_KIND_LIST;
  /// A list value, one item per element.
  static cls_Value Encode(const cls_xpList<T>& list) {
    cls_Value::List items;
    items.reserve(static_cast<std::size_t>(list.Length()));
    for (const T& item : list) items.push_back(cls_xpItem<T>::Encode(item));
    return {std::move(items)};
  }
  /// Sets out from a list value whose every item decodes; false, out untouched, otherwise.
  static bool Decode(const cls_Value& value, cls_xpList<T>& out) {
    const auto* items = value.As<cls_Value::List>();
    if (!items) return false;
    std::vector<T> decoded(items->size());
    for (std::size_t i = 0; i < items->size(); ++i) {
      if (!cls_xpItem<T>::Decode((*items)[i], decoded[i])) return false;
    }
    out = cls_xpList<T>(std::move(decoded));
    return true;
  }
};

/// @}
