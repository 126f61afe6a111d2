#pragma once
/// \addtogroup basic
/// @{

/// \class cow_String
/// The BasicUtils text: the same counted, copy-on-write text as atr_StringBase.
#include <BASIC_Export.h>
#include <atr_String.h>

class BASIC_EXPORT cow_String : public atr_StringBase {
public:
  /// Every constructor of atr_StringBase.
  using atr_StringBase::atr_StringBase;
  cow_String() noexcept = default;
  /// Shares the text's buffer.
  ///@{
  cow_String(const atr_StringBase& text) noexcept : atr_StringBase(text) {}
  cow_String(atr_StringBase&& text) noexcept : atr_StringBase(std::move(text)) {}
  ///@}
};

template <>
struct std::hash<cow_String> : std::hash<atr_StringBase> {};

/// @}
