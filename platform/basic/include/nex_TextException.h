#pragma once
/// \addtogroup basic
/// @{

/// \class nex_TextException
/// An internal failure described by a fixed text ("List Index returned NULL").
#include <nex_Raisable.h>

class BASIC_EXPORT nex_TextException : public nex_Raisable<nex_TextException, nex_Exception> {
public:
  /// A failure described by text alone.
  explicit nex_TextException(const atr_String& text) : m_Text(text) {}
  /// Reads the object back from the record reader is at.
  explicit nex_TextException(const cls_ReadVisitor& reader);

  /// The description.
  const atr_String& Text() const noexcept { return m_Text; }
  /// Text().
  atr_String AsString() const override { return m_Text; }
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept;
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  atr_String m_Text;
  cls_Uid m_TextUid;
};

/// @}
