#pragma once
// A colour name that g3d_ColorMap does not know, raised to scripts as "ColorError".
#include <CVX_Export.h>
#include <nex_CommandException.h>
#include <nex_Raisable.h>

class CVX_EXPORT g3d_ColorErrorException
    : public nex_Raisable<g3d_ColorErrorException, nex_CommandException> {
public:
  explicit g3d_ColorErrorException(const cow_String& name = cow_String()) : m_Value(name) {}
  explicit g3d_ColorErrorException(const cls_ReadVisitor& reader);

  atr_String JournalMessage() const override;
  cow_String PythonType() const override { return "ColorError"; }
  void DBWrite(const cls_WriteVisitor& writer) const override;

  static unsigned int TypeId() noexcept;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

  cow_String m_Value;  // the offending name

private:
  cls_Uid m_Uid = cls_Uid::AllocateUid();
};
