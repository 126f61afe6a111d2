#pragma once
/// \addtogroup omu
/// @{

/// \class omu_IndexErrorException
/// An index outside its sequence; the message is the index in decimal.
#include <CVX_Export.h>
#include <UTI_FieldError.h>
#include <UTI_Modules.h>
#include <nex_CommandException.h>

class CVX_EXPORT omu_IndexErrorException
    : public UTI_FieldError<omu_IndexErrorException, nex_CommandException> {
public:
  /// The index value was out of range.
  explicit omu_IndexErrorException(int value = 0) : m_Value(value) {}
  /// Reads the object back from the record reader is at.
  explicit omu_IndexErrorException(const cls_ReadVisitor& reader) : UTI_FieldError(reader) {
    ReadFields(reader);
  }

  atr_String JournalMessage() const override { return {atr_StringBase(m_Value)}; }
  cow_String PythonType() const override { return "IndexError"; }

  /// The offending index.
  int Value() const noexcept { return m_Value; }

  /// The name the class is registered under.
  static constexpr const char* ClassName = "omu_IndexErrorException";
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(8); }

private:
  friend UTI_FieldError;
  static constexpr auto Fields() {
    return UTI_FieldTable{UTI_Field{"m_Value", &omu_IndexErrorException::m_Value, cls_KIND_INT}};
  }

  int m_Value = 0;
};

/// @}
