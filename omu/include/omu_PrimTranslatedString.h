#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimTranslatedString
/// A text that the user interface may translate; it prints and compares as its text.
#include <atr_String.h>
#include <omu_PrimLeaf.h>
#include <omu_Primitive.h>

class CVX_EXPORT omu_PrimTranslatedString
    : public omu_PrimLeaf<omu_PrimTranslatedString, omu_Primitive> {
public:
  /// A text that is shown translated.
  explicit omu_PrimTranslatedString(const atr_String& text = atr_String())
      : omu_PrimLeaf('l'), m_Text(text, true) {}
  /// Member-wise copy.
  ///@{
  omu_PrimTranslatedString(const omu_PrimTranslatedString&) = default;
  omu_PrimTranslatedString& operator=(const omu_PrimTranslatedString&) = default;
  ///@}
  /// Reads the object back from the record reader is at.
  explicit omu_PrimTranslatedString(const cls_ReadVisitor& reader);

  cow_String TypeString() const override { return "tran_string"; }
  cow_String AsString(int level) const override;
  bool operator==(const omu_Primitive& other) const override;
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// The text.
  const atr_String& Text() const noexcept { return m_Text; }

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(48); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  atr_String m_Text;
  cls_Uid m_TranslatedUid;
};

/// @}
