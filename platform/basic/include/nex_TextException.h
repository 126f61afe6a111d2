#pragma once
/// \addtogroup basic
/// @{

/// \class nex_TextException
/// An internal failure described by a fixed text ("List Index returned NULL").
#include <nex_Raisable.h>

class BASIC_EXPORT nex_TextException : public nex_Raisable<nex_TextException, nex_Exception> {
public:
  explicit nex_TextException(const atr_String& text) : m_Text(text) {}
  explicit nex_TextException(const cls_ReadVisitor& reader);

  const atr_String& Text() const noexcept { return m_Text; }
  atr_String AsString() const override { return m_Text; }
  void DBWrite(const cls_WriteVisitor& writer) const override;

  static unsigned int TypeId() noexcept;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  atr_String m_Text;
  cls_Uid m_TextUid;
};

/// @}
