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
  explicit omu_PrimTranslatedString(const atr_String& text = atr_String())
      : omu_PrimLeaf('l'), m_Text(text, true) {}
  omu_PrimTranslatedString(const omu_PrimTranslatedString&) = default;
  omu_PrimTranslatedString& operator=(const omu_PrimTranslatedString&) = default;
  explicit omu_PrimTranslatedString(const cls_ReadVisitor& reader);

  cow_String TypeString() const override { return "tran_string"; }
  cow_String AsString(int level) const override;
  bool operator==(const omu_Primitive& other) const override;
  void DBWrite(const cls_WriteVisitor& writer) const override;

  const atr_String& Text() const noexcept { return m_Text; }

  static unsigned int TypeId() noexcept { return omu_TypeId(48); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  atr_String m_Text;
  cls_Uid m_TranslatedUid;
};

/// @}
