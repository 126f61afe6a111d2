#pragma once
/// \addtogroup bascore
/// @{

/// \class atr_String
/// Application text; it may be marked as translatable, which only the user interface acts on.
#include <atr_StringBase.h>

class BASCORE_EXPORT atr_String : public atr_StringBase {
public:
  /// Every constructor of atr_StringBase; the text is not translatable.
  using atr_StringBase::atr_StringBase;
  atr_String() noexcept = default;
  /// Shares text's buffer; not translatable unless said.
  ///@{
  atr_String(const atr_StringBase& text) : atr_StringBase(text) {}
  atr_String(const atr_StringBase& text, bool translatable)
      : atr_StringBase(text), m_Translatable(translatable) {}
  ///@}

  /// The translatable mark.
  ///@{
  bool IsTranslatable() const noexcept { return m_Translatable; }
  void SetTranslatable(bool translatable) noexcept { m_Translatable = translatable; }
  ///@}

private:
  bool m_Translatable = false;
};

template <>
struct std::hash<atr_String> : std::hash<atr_StringBase> {};

/// @}
