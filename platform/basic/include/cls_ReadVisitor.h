#pragma once
/// \addtogroup basic
/// @{

/// \class cls_ReadVisitor
/// Reads one record of an archive: the parent level through Parent(), fields by name, then
/// the uid. A missing field or one of another kind raises nex_TextException naming both.
/// Readers of one archive may be used from several threads at once: reading changes nothing.
#include <BASIC_Export.h>
#include <cls_Value.h>

#include <memory>

class cls_Archive;

class BASIC_EXPORT cls_ReadVisitor {
public:
  /// A reader of record, a top-level record of archive; both must outlive the reader.
  cls_ReadVisitor(const cls_Archive& archive, const cls_Record& record) noexcept
      : m_Archive(&archive), m_Record(&record) {}
  /// The parent class level of outer's record, which must be of parentTypeId.
  cls_ReadVisitor(const cls_ReadVisitor& outer, unsigned int parentTypeId);

  /// The record's class.
  unsigned int TypeId() const noexcept { return m_Record->typeId; }
  /// The record's uid.
  cls_Uid Uid() const noexcept { return m_Record->uid; }
  /// The record read.
  const cls_Record& Record() const noexcept { return *m_Record; }
  /// The archive it belongs to.
  const cls_Archive& Archive() const noexcept { return *m_Archive; }

  /// True when the record has a field called name.
  bool Has(const char* name) const noexcept { return m_Record->Find(name) != nullptr; }
  /// The field called name; a missing one raises nex_TextException.
  const cls_Value& Field(const char* name) const;

  /// Reads field name into value; a missing field, or one of another kind, raises
  /// nex_TextException.
  ///@{
  void Read(const char* name, bool& value) const;
  void Read(const char* name, char& value) const;
  void Read(const char* name, int& value) const;
  void Read(const char* name, unsigned int& value) const;
  void Read(const char* name, long long& value) const;
  void Read(const char* name, float& value) const;
  void Read(const char* name, double& value) const;
  void Read(const char* name, cow_String& value) const;
  void Read(const char* name, atr_String& value) const;
  ///@}
  /// Read into a new T.
  template <class T>
  T Get(const char* name) const {
    T value{};
    Read(name, value);
    return value;
  }
  /// The enumerator name held in field name.
  cow_String ReadEnum(const char* name) const;
  /// The list field, which must be a list.
  const cls_Value::List& ReadList(const char* name) const;

  /// A reader on a nested object value (a record, or a reference followed to its record).
  cls_ReadVisitor Nested(const cls_Value& value) const;
  /// The same, on the field called name.
  cls_ReadVisitor Nested(const char* name) const { return Nested(Field(name)); }
  /// Builds the object held in a value through the registry; null for an empty value.
  /// The object is of the class typeId answers, which must be baseTypeId or derive from it.
  void* Construct(const cls_Value& value, unsigned int baseTypeId, unsigned int& typeId) const;
  /// The object held in value, or in the field called name, built as Construct does; owned by the
  /// caller.
  ///@{
  template <class T>
  std::unique_ptr<T> ReadObject(const cls_Value& value) const {
    unsigned int typeId = 0;
    return std::unique_ptr<T>(static_cast<T*>(Construct(value, T::TypeId(), typeId)));
  }
  template <class T>
  std::unique_ptr<T> ReadObject(const char* name) const {
    return ReadObject<T>(Field(name));
  }
  ///@}

  /// Raises nex_TextException with what, naming the record's class.
  [[noreturn]] void Fail(const char* what) const;

private:
  template <class T>
  const T& Expect(const char* name, cls_Value::Kind kind) const;

  cls_ReadVisitor(const cls_ReadVisitor& outer, const cls_Record& record);

  const cls_Archive* m_Archive;
  const cls_Record* m_Record;
  int m_Depth = 0;  ///< readers this one is nested in: cyclic references end in an error
};

/// @}
