#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_ColorErrorException
/// A colour name that g3d_ColorMap does not know, raised to scripts as "ColorError".
#include <CVX_Export.h>
#include <UTI_FieldError.h>
#include <nex_CommandException.h>

class CVX_EXPORT g3d_ColorErrorException
    : public UTI_FieldError<g3d_ColorErrorException, nex_CommandException> {
public:
  /// Each error made here takes an identity of its own.
  explicit g3d_ColorErrorException(const cow_String& name = cow_String())
      : UTI_FieldError(cls_Uid::AllocateUid()), m_Value(name) {}
  /// Reads the object back from the record reader is at.
  explicit g3d_ColorErrorException(const cls_ReadVisitor& reader) : UTI_FieldError(reader) {
    ReadFields(reader);
  }

  atr_String JournalMessage() const override;
  cow_String PythonType() const override { return "ColorError"; }

  /// The name the class is registered under.
  static constexpr const char* ClassName = "g3d_ColorErrorException";
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept;

  cow_String m_Value;  ///< the offending name

private:
  friend UTI_FieldError;
  static constexpr auto Fields() {
    return UTI_FieldTable{UTI_Field{"m_Value", &g3d_ColorErrorException::m_Value, cls_KIND_STRING}};
  }
};

/// @}
