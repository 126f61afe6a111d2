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
  cls_ReadVisitor(const cls_Archive& archive, const cls_Record& record) noexcept
      : m_Archive(&archive), m_Record(&record) {}
  /// The parent class level of outer's record, which must be of parentTypeId.
  cls_ReadVisitor(const cls_ReadVisitor& outer, unsigned int parentTypeId);

  unsigned int TypeId() const noexcept { return m_Record->typeId; }
  cls_Uid Uid() const noexcept { return m_Record->uid; }
  const cls_Record& Record() const noexcept { return *m_Record; }
  const cls_Archive& Archive() const noexcept { return *m_Archive; }

  bool Has(const char* name) const noexcept { return m_Record->Find(name) != nullptr; }
  const cls_Value& Field(const char* name) const;

  void Read(const char* name, bool& value) const;
  void Read(const char* name, char& value) const;
  void Read(const char* name, int& value) const;
  void Read(const char* name, unsigned int& value) const;
  void Read(const char* name, long long& value) const;
  void Read(const char* name, float& value) const;
  void Read(const char* name, double& value) const;
  void Read(const char* name, cow_String& value) const;
  void Read(const char* name, atr_String& value) const;
  template <class T>
  T Get(const char* name) const {
    T value{};
    Read(name, value);
    return value;
  }
  cow_String ReadEnum(const char* name) const;
  /// The list field, which must be a list.
  const cls_Value::List& ReadList(const char* name) const;

  /// A reader on a nested object value (a record, or a reference followed to its record).
  cls_ReadVisitor Nested(const cls_Value& value) const;
  cls_ReadVisitor Nested(const char* name) const { return Nested(Field(name)); }
  /// Builds the object held in a value through the registry; null for an empty value.
  /// The object is of the class typeId answers, which must be baseTypeId or derive from it.
  void* Construct(const cls_Value& value, unsigned int baseTypeId, unsigned int& typeId) const;
  template <class T>
  std::unique_ptr<T> ReadObject(const cls_Value& value) const {
    unsigned int typeId = 0;
    return std::unique_ptr<T>(static_cast<T*>(Construct(value, T::TypeId(), typeId)));
  }
  template <class T>
  std::unique_ptr<T> ReadObject(const char* name) const {
    return ReadObject<T>(Field(name));
  }

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
