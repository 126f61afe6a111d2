#pragma once
/// \addtogroup basic
/// @{

/// \class cls_xcList
/// The persistent list (type 35:1): the record behind list-valued attributes of other
/// classes. Its field "items" holds one value per item: a nested object (a record, or a
/// reference to one written earlier), a plain value (a text, a number), or an empty value
/// for an empty item.
///
/// Writing borrows the items: the owner passes a function that writes item i through the
/// writer it is given (an object's DBWrite, or WriteValue), and writes the list with
/// \code
///   writer.WriteObject("name", cls_xcList(uid, count, writeItem));
/// \endcode
/// Reading: cls_xcList(reader.Nested("name")) gives the items and a reader to build the
/// nested objects with.
#include <BASIC_Export.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeIds.h>
#include <cls_WriteVisitor.h>

#include <functional>
#include <optional>

class cls_ClassRegistrar;

class BASIC_EXPORT cls_xcList {
public:
  /// Writes item index through the writer it is given.
  using ItemWriter = std::function<void(int index, const cls_WriteVisitor& item)>;

  /// For writing: count items that writeItem writes; uid is the list's identity.
  cls_xcList(const cls_Uid& uid, int count, ItemWriter writeItem);
  /// The list held in a record; raises nex_TextException when the record is not a list.
  explicit cls_xcList(const cls_ReadVisitor& reader);

  /// The number of items read.
  int Count() const noexcept { return static_cast<int>(m_Items ? m_Items->size() : 0); }
  /// Item index as read; no bounds check.
  const cls_Value& Item(int index) const { return (*m_Items)[static_cast<std::size_t>(index)]; }
  /// The reader of the list's record (to build nested items and to report faults).
  const cls_ReadVisitor& Reader() const noexcept { return *m_Reader; }

  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const;

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return cls_MakeTypeId(cls_ContainerModule, 1); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  cls_Uid m_Uid;
  int m_Count = 0;
  ItemWriter m_WriteItem;
  const cls_Value::List* m_Items = nullptr;
  std::optional<cls_ReadVisitor> m_Reader;
};

/// @}
