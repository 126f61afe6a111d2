#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimEnum
/// An enumeration value bound to the native enumeration E through the permissible-value table
/// omu_PrimEnumTable<E, N> (N picks one of several spellings of the same E). Values are built
/// from a number, a name, another enumeration value or an archive record; a name or number
/// that the table does not hold raises omu_ValueErrorException.
#include <omu_PrimEnumBase.h>
#include <omu_PrimEnumRow.h>
#include <omu_ValueErrorException.h>

#include <cstring>

template <class E, int N>
class omu_PrimEnum : public omu_PrimLeaf<omu_PrimEnum<E, N>, omu_PrimEnumBase> {
  using Leaf = omu_PrimLeaf<omu_PrimEnum<E, N>, omu_PrimEnumBase>;
  using Table = omu_PrimEnumTable<E, N>;

public:
  /// The value's name; a value the table lacks raises omu_ValueErrorException.
  omu_PrimEnum(E value) {
    if (!SetValue(value)) {
      Refuse(
          atr_StringBase::Format("omu_PrimEnum(Enum) - Enum value not allowed: %d  Permissible: %s",
                                 static_cast<int>(value), this->PermissibleValuesAsString().CStr()),
          __LINE__);
    }
  }
  /// other's name, which the table must hold (else omu_ValueErrorException).
  explicit omu_PrimEnum(const omu_PrimEnumBase& other) {
    if (!SetValue(other.GetString())) {
      Refuse(atr_StringBase::Format("omu_PrimEnum(const omu_PrimEnumBase&) - str not allowed: %s",
                                    other.GetString()),
             __LINE__);
    }
  }
  /// The value of name, which the table must hold (else omu_ValueErrorException).
  explicit omu_PrimEnum(const cow_String& name) {
    if (!SetValue(name.CStr())) {
      Refuse(atr_StringBase::Format(
                 "omu_PrimEnum(const cow_String&) - str not allowed: %s  Permissible: %s",
                 name.CStr(), this->PermissibleValuesAsString().CStr()),
             __LINE__);
    }
  }
  /// Reads the object back from the record reader is at.
  explicit omu_PrimEnum(const cls_ReadVisitor& reader) : Leaf(reader) {
    const cow_String name(this->GetString());
    if (!SetValue(name.CStr())) {
      Refuse(atr_StringBase::Format(
                 "omu_PrimEnum(const cls_ReadVisitor&) - str not allowed: %s  Permissible: %s",
                 name.CStr(), this->PermissibleValuesAsString().CStr()),
             __LINE__);
    }
  }
  /// Member-wise copy.
  omu_PrimEnum(const omu_PrimEnum&) = default;
  /// Member-wise assignment.
  omu_PrimEnum& operator=(const omu_PrimEnum&) = default;

  /// Looks the value up; the first row holding it gives the name.
  bool SetValue(E value) {
    return Store(
        [value](const omu_PrimEnumRow& row) { return row.value == static_cast<int>(value); });
  }
  /// Looks the name up, whole and case-sensitive.
  bool SetValue(const char* name) override {
    const char* wanted = name ? name : "";
    return Store(
        [wanted](const omu_PrimEnumRow& row) { return std::strcmp(row.name, wanted) == 0; });
  }

  /// The native value.
  operator E() const noexcept { return static_cast<E>(m_Value); }
  /// True when the native value is value.
  bool operator==(E value) const noexcept { return m_Value == static_cast<int>(value); }
  using omu_PrimEnumBase::operator==;

  /// The table's names and values.
  cow_Map<cow_String, unsigned int> PermissibleValues() const override {
    cow_Map<cow_String, unsigned int> values;
    for (const omu_PrimEnumRow* row = Table::Rows(); row->name; ++row) {
      if (!values.Contains(row->name))
        values.Insert(row->name, static_cast<unsigned int>(row->value));
    }
    return values;
  }

private:
  template <class Match>
  bool Store(Match&& match) {
    for (const omu_PrimEnumRow* row = Table::Rows(); row->name; ++row) {
      if (match(*row)) {
        m_Value = row->value;
        this->SetName(row->name);
        return true;
      }
    }
    return false;
  }
  [[noreturn]] static void Refuse(const atr_String& message, int line) {
    nex_Exception::Throw(omu_ValueErrorException(message), "include/omu_PrimEnum", line);
  }

  int m_Value = 0;
};

/// @}
