#pragma once
/// \addtogroup basic
/// @{

/// \class cls_xcMap
/// The persistent map (type 35:2): the record behind map-valued attributes. Its fields
/// "keys" and "values" hold one value per entry, in the same order; keys are plain values
/// (numbers, texts), values are nested objects or plain values as in cls_xcList.
/// Write with writer.WriteObject("name", cls_xcMap(uid, count, writeKey, writeValue)); read
/// with cls_xcMap(reader.Nested("name")).
#include <cls_xcList.h>

class BASIC_EXPORT cls_xcMap {
public:
  /// Writes key or value i through the writer it is given.
  using ItemWriter = cls_xcList::ItemWriter;

  /// For writing: count entries whose keys and values the functions write; uid is the map's
  /// identity.
  cls_xcMap(const cls_Uid& uid, int count, ItemWriter writeKey, ItemWriter writeValue);
  /// The map held in a record; raises nex_TextException when the record is not a map or
  /// its key and value counts differ.
  explicit cls_xcMap(const cls_ReadVisitor& reader);

  /// The number of entries read.
  int Count() const noexcept { return static_cast<int>(m_Keys ? m_Keys->size() : 0); }
  /// Entry index's key and value, as read; no bounds check.
  ///@{
  const cls_Value& Key(int index) const { return (*m_Keys)[static_cast<std::size_t>(index)]; }
  const cls_Value& Value(int index) const { return (*m_Values)[static_cast<std::size_t>(index)]; }
  ///@}
  /// The reader of the map's record.
  const cls_ReadVisitor& Reader() const noexcept { return *m_Reader; }

  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const;

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return cls_MakeTypeId(cls_ContainerModule, 2); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  cls_Uid m_Uid;
  int m_Count = 0;
  ItemWriter m_WriteKey;
  ItemWriter m_WriteValue;
  const cls_Value::List* m_Keys = nullptr;
  const cls_Value::List* m_Values = nullptr;
  std::optional<cls_ReadVisitor> m_Reader;
};

/// @}
