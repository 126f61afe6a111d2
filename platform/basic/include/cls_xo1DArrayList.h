#pragma once
/// \addtogroup basic
/// @{

/// \class cls_xo1DArrayList
/// The one-dimensional list memento: a cow_List<T> of persistent values written as one list
/// field of nested records and read back item by item. T needs DBWrite(const
/// cls_WriteVisitor&) and a constructor from const cls_ReadVisitor&.
#include <cls_ReadVisitor.h>
#include <cls_WriteVisitor.h>
#include <cow_List.h>

#include <vector>

template <class T>
class cls_xo1DArrayList {
public:
  /// Writes list as the field name, one nested record per item.
  static void Write(const cls_WriteVisitor& writer, const char* name, const cow_List<T>& list) {
    writer.WriteObjects(name, list.Length(),
                        [&list](int i, const cls_WriteVisitor& item) { list[i].DBWrite(item); });
  }

  /// Reads the field name back, one T per item.
  static cow_List<T> Read(const cls_ReadVisitor& reader, const char* name) {
    const cls_Value::List& items = reader.ReadList(name);
    std::vector<T> values;
    values.reserve(items.size());
    for (const cls_Value& item : items) values.emplace_back(reader.Nested(item));
    return cow_List<T>(std::move(values));
  }
};

/// @}
