#pragma once
/// \addtogroup omu
/// @{

/// \class omu_TextErrorException
/// The scripting errors that carry one text, "m_Value", and differ only in their class,
/// script-level name and message format. Derived supplies ClassName, ScriptName,
/// MessageFormat (one `%s`) and TypeId(); the record and the registered attribute come from
/// the one field table below.
#include <CVX_Export.h>
#include <UTI_FieldError.h>
#include <UTI_Modules.h>
#include <nex_CommandException.h>

template <class Derived>
class omu_TextErrorException : public UTI_FieldError<Derived, nex_CommandException> {
  using FieldError = UTI_FieldError<Derived, nex_CommandException>;

public:
  /// The error with value as its text.
  explicit omu_TextErrorException(const atr_String& value = atr_String()) : m_Value(value) {}
  /// Reads into this level directly: Derived is not built yet, so no cast to it.
  explicit omu_TextErrorException(const cls_ReadVisitor& reader) : FieldError(reader) {
    Fields().Read(reader, *this);
  }

  /// The text the message is formatted with.
  const atr_String& Value() const noexcept { return m_Value; }
  /// Derived::MessageFormat with the value.
  atr_String JournalMessage() const override {
    return atr_StringBase::Format(Derived::MessageFormat, m_Value.CStr());
  }
  /// Derived::ScriptName.
  cow_String PythonType() const override { return Derived::ScriptName; }

protected:
  /// Reads and writes the fields.
  friend FieldError;
  /// The one field, m_Value.
  static constexpr auto Fields() {
    return UTI_FieldTable{UTI_Field{"m_Value", &omu_TextErrorException::m_Value, cls_KIND_STRING}};
  }

private:
  atr_String m_Value;
};

/// @}
