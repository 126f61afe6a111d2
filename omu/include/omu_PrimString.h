#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimString
/// A text value. Its script text is the quoted form of omu_NameString.
#include <omu_PrimLeaf.h>
#include <omu_Primitive.h>

class omu_PrimEnumBase;

class CVX_EXPORT omu_PrimString : public omu_PrimLeaf<omu_PrimString, omu_Primitive> {
public:
  omu_PrimString() noexcept : omu_PrimLeaf('s') {}
  /// The text as given.
  explicit omu_PrimString(const cow_String& text) : omu_PrimLeaf('s'), m_Text(text) {}
  /// The constant's symbolic name.
  explicit omu_PrimString(const omu_PrimEnumBase& constant);
  /// Plain decimal.
  explicit omu_PrimString(int value);
  /// Plain decimal.
  explicit omu_PrimString(unsigned int value);
  /// The text a DOUBLE number prints as.
  explicit omu_PrimString(double value);
  /// Member-wise copy.
  ///@{
  omu_PrimString(const omu_PrimString&) = default;
  omu_PrimString& operator=(const omu_PrimString&) = default;
  ///@}
  /// Reads the object back from the record reader is at.
  explicit omu_PrimString(const cls_ReadVisitor& reader);

  cow_String TypeString() const override { return "string"; }
  cow_String AsString(int level) const override;
  bool operator==(const omu_Primitive& other) const override;
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// The text.
  const cow_String& Text() const noexcept { return m_Text; }
  /// The text, null-terminated; valid while this value lives unchanged.
  const char* AsCharPtr() const noexcept { return m_Text.CStr(); }
  /// The byte at index; no bounds check.
  char operator[](int index) const noexcept { return m_Text[index]; }
  /// In bytes.
  int Length() const noexcept { return m_Text.Length(); }
  /// Appends other's text.
  void Concat(const omu_PrimString& other) { m_Text += other.m_Text; }

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(24); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  cow_String m_Text;
  cls_Uid m_StringUid;
};

/// @}
