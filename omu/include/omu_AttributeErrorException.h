#pragma once
/// \addtogroup omu
/// @{

/// \class omu_AttributeErrorException
/// A script read, set or deleted an attribute it may not. m_ErrorType chooses the message:
/// 0 read-only attributes, 1 the named attribute is read-only, 2 m_Attribute is the message.
#include <CVX_Export.h>
#include <UTI_FieldError.h>
#include <UTI_Modules.h>
#include <nex_CommandException.h>

class CVX_EXPORT omu_AttributeErrorException
    : public UTI_FieldError<omu_AttributeErrorException, nex_CommandException> {
public:
  /// The message errorType chooses (see the class), with attribute as its name or text.
  explicit omu_AttributeErrorException(int errorType = 0,
                                       const atr_String& attribute = atr_String())
      : m_ErrorType(errorType), m_Attribute(attribute) {}
  /// Reads the object back from the record reader is at.
  explicit omu_AttributeErrorException(const cls_ReadVisitor& reader) : UTI_FieldError(reader) {
    ReadFields(reader);
  }

  atr_String JournalMessage() const override;
  cow_String PythonType() const override { return "AttributeError"; }

  /// Which message: 0, 1 or 2.
  int ErrorType() const noexcept { return m_ErrorType; }
  /// The attribute's name, or the message for error type 2.
  const atr_String& Attribute() const noexcept { return m_Attribute; }

  /// The name the class is registered under.
  static constexpr const char* ClassName = "omu_AttributeErrorException";
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(6); }

private:
  friend UTI_FieldError;
  static constexpr auto Fields() {
    using E = omu_AttributeErrorException;
    return UTI_FieldTable{UTI_Field{"m_ErrorType", &E::m_ErrorType, cls_KIND_INT},
                          UTI_Field{"m_Attribute", &E::m_Attribute, cls_KIND_STRING}};
  }

  int m_ErrorType = 0;
  atr_String m_Attribute;
};

/// @}
