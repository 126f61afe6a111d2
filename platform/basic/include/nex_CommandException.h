#pragma once
/// \addtogroup basic
/// @{

/// \class nex_CommandException
/// Base of the failures of a command: the report is built from JournalMessage(), and
/// PythonType() names the script-level error a scripting layer raises for it.
#include <cow_String.h>
#include <nex_Exception.h>

class BASIC_EXPORT nex_CommandException : public nex_Exception {
public:
  atr_String AsString() const override;
  unsigned int DynTypeId() const override;
  void DBWrite(const cls_WriteVisitor& writer) const override;
  virtual atr_String JournalMessage() const = 0;
  virtual cow_String PythonType() const;

  static unsigned int TypeId() noexcept;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

protected:
  nex_CommandException() noexcept = default;
  explicit nex_CommandException(const cls_ReadVisitor& reader);

private:
  cls_Uid m_CommandUid;
};

/// @}
