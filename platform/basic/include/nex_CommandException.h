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
  /// JournalMessage(), as the report of a scripting error.
  atr_String AsString() const override;
  unsigned int DynTypeId() const override;
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;
  /// The message a script sees, exactly as the journal records it.
  virtual atr_String JournalMessage() const = 0;
  /// The name of the script-level exception class the error is raised as.
  virtual cow_String PythonType() const;

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept;
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

protected:
  nex_CommandException() noexcept = default;
  /// Reads the object back from the record reader is at.
  explicit nex_CommandException(const cls_ReadVisitor& reader);

private:
  cls_Uid m_CommandUid;
};

/// @}
