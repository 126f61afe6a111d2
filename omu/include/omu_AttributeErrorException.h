#pragma once
// A script read, set or deleted an attribute it may not. m_ErrorType chooses the message:
// 0 read-only attributes, 1 the named attribute is read-only, 2 m_Attribute is the message.
#include <CVX_Export.h>
#include <UTI_Modules.h>
#include <nex_CommandException.h>
#include <nex_Raisable.h>

class CVX_EXPORT omu_AttributeErrorException
    : public nex_Raisable<omu_AttributeErrorException, nex_CommandException> {
public:
  explicit omu_AttributeErrorException(int errorType = 0, const atr_String& attribute = atr_String())
      : m_ErrorType(errorType), m_Attribute(attribute) {}
  explicit omu_AttributeErrorException(const cls_ReadVisitor& reader);

  atr_String JournalMessage() const override;
  cow_String PythonType() const override { return "AttributeError"; }
  void DBWrite(const cls_WriteVisitor& writer) const override;

  int ErrorType() const noexcept { return m_ErrorType; }
  const atr_String& Attribute() const noexcept { return m_Attribute; }

  static unsigned int TypeId() noexcept { return omu_TypeId(6); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  int m_ErrorType;
  atr_String m_Attribute;
  cls_Uid m_Uid;
};
