#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_Color
/// A colour: red, green, blue and alpha as floats in [0, 1]. Packs to 0xRRGGBBAA by
/// truncation, reads `#RRGGBB` text and converts to and from HSV.
#include <CVX_Export.h>
#include <cow_String.h>

class aio_ostream;

/// Hue, saturation and value, each in [0, 1]; a hue of 1 is a full turn.
struct _HSV {  // NOLINT(bugprone-reserved-identifier): the name scripts know
  /// Hue, saturation and value.
  ///@{
  float h = 0.0f;
  float s = 0.0f;
  float v = 0.0f;
  ///@}
};

/// Preset colours for Set and the constructor: black, the primaries and secondaries, white, and
/// greys of 10 to 90 percent.
enum g3d_PresetColorEnum : int {
  PRESET_BLACK = 0,
  PRESET_RED,
  PRESET_GREEN,
  PRESET_BLUE,
  PRESET_CYAN,
  PRESET_MAGENTA,
  PRESET_YELLOW,
  PRESET_WHITE,
  PRESET_GREY10,
  PRESET_GREY20,
  PRESET_GREY30,
  PRESET_GREY40,
  PRESET_GREY50,
  PRESET_GREY60,
  PRESET_GREY70,
  PRESET_GREY80,
  PRESET_GREY90,
};

class CVX_EXPORT g3d_Color {
public:
  /// Red, green, blue and alpha, nominally in [0, 1]; only Clamp() keeps them there.
  ///@{
  float r = 0.0f;
  float g = 0.0f;
  float b = 0.0f;
  float a = 1.0f;
  ///@}

  /// Opaque black.
  constexpr g3d_Color() noexcept = default;
  /// The components as given, not clamped.
  constexpr g3d_Color(float r_, float g_, float b_, float a_ = 1.0f) noexcept
      : r(r_), g(g_), b(b_), a(a_) {}
  /// The preset with alpha.
  explicit g3d_Color(g3d_PresetColorEnum preset, float alpha = 1.0f) noexcept;

  /// A preset beyond the last leaves the colour unchanged.
  g3d_Color& Set(g3d_PresetColorEnum preset, float alpha) noexcept;
  /// c's r, g, b with alpha.
  g3d_Color& Set(const g3d_Color& c, float alpha) noexcept;
  /// From 0xRRGGBBAA.
  g3d_Color& Set(unsigned int rgba) noexcept;
  /// From `#RRGGBB`; text without the leading '#' leaves the colour unchanged, and components
  /// that the text does not reach become 0.
  g3d_Color& Set(const cow_String& text, float alpha) noexcept;
  /// `#RRGGBB` text or a colour name of g3d_ColorMap; an unknown name raises
  /// g3d_ColorErrorException.
  g3d_Color& SetByName(const cow_String& text, float alpha);

  /// The preset colour with alpha (1, opaque, by default).
  ///@{
  g3d_Color& SetBlack(float alpha = 1.0f) noexcept { return Set(PRESET_BLACK, alpha); }
  g3d_Color& SetRed(float alpha = 1.0f) noexcept { return Set(PRESET_RED, alpha); }
  g3d_Color& SetGreen(float alpha = 1.0f) noexcept { return Set(PRESET_GREEN, alpha); }
  g3d_Color& SetBlue(float alpha = 1.0f) noexcept { return Set(PRESET_BLUE, alpha); }
  g3d_Color& SetCyan(float alpha = 1.0f) noexcept { return Set(PRESET_CYAN, alpha); }
  g3d_Color& SetMagenta(float alpha = 1.0f) noexcept { return Set(PRESET_MAGENTA, alpha); }
  g3d_Color& SetYellow(float alpha = 1.0f) noexcept { return Set(PRESET_YELLOW, alpha); }
  g3d_Color& SetWhite(float alpha = 1.0f) noexcept { return Set(PRESET_WHITE, alpha); }
  g3d_Color& SetGrey10(float alpha = 1.0f) noexcept { return Set(PRESET_GREY10, alpha); }
  g3d_Color& SetGrey20(float alpha = 1.0f) noexcept { return Set(PRESET_GREY20, alpha); }
  g3d_Color& SetGrey30(float alpha = 1.0f) noexcept { return Set(PRESET_GREY30, alpha); }
  g3d_Color& SetGrey40(float alpha = 1.0f) noexcept { return Set(PRESET_GREY40, alpha); }
  g3d_Color& SetGrey50(float alpha = 1.0f) noexcept { return Set(PRESET_GREY50, alpha); }
  g3d_Color& SetGrey60(float alpha = 1.0f) noexcept { return Set(PRESET_GREY60, alpha); }
  g3d_Color& SetGrey70(float alpha = 1.0f) noexcept { return Set(PRESET_GREY70, alpha); }
  g3d_Color& SetGrey80(float alpha = 1.0f) noexcept { return Set(PRESET_GREY80, alpha); }
  g3d_Color& SetGrey90(float alpha = 1.0f) noexcept { return Set(PRESET_GREY90, alpha); }
  ///@}

  /// 0xRRGGBBAA, each component times 255 truncated toward zero.
  unsigned int GetRGBA() const noexcept;
  /// Limits every component to [0, 1].
  g3d_Color& Clamp() noexcept;

  /// Hue, saturation and value of r, g, b.
  _HSV GetHSV() const noexcept;
  /// Alpha is kept; a hue of 1 or more is taken as 0. The sector is 6h truncated toward zero,
  /// so a hue in (-1/6, 0) uses sector 0; a hue at or below -1/6, or NaN, leaves the colour
  /// unchanged.
  g3d_Color& SetHSV(const _HSV& hsv) noexcept;

  /// Perceived brightness (Rec. 601 luma of r, g, b).
  float Luma() const noexcept;
  /// When this colour's luma is within minDifference of the background's, it becomes its
  /// complement (1 - r, 1 - g, 1 - b), or, if that is still too close (mid greys), the
  /// contrasting colour of the background. Alpha is kept.
  g3d_Color& Invert(const g3d_Color& background, float minDifference) noexcept;
  /// Black on a light background, white on a dark one (luma 0.5 decides), opaque.
  static g3d_Color GetContrastingColor(const g3d_Color& background) noexcept;

  /// Each value limited to at most 1; the lower bound is not applied.
  static _HSV PctToHSV(float h, float s, float v) noexcept;
  /// Channels of 16 bits (0-65535), rounded; sectors as SetHSV. False, with the channels
  /// untouched, for a hue whose sector falls outside 0-5 (at or below -1/6, or NaN).
  static bool HSVToRGB(const _HSV& hsv, unsigned short& red, unsigned short& green,
                       unsigned short& blue) noexcept;

  /// Component-wise; a NaN is never equal.
  ///@{
  int operator==(const g3d_Color& o) const noexcept {
    return r == o.r && g == o.g && b == o.b && a == o.a;
  }
  int operator!=(const g3d_Color& o) const noexcept { return !(*this == o); }
  ///@}
};

/// Component-wise, alpha too; not clamped.
///@{
constexpr g3d_Color operator+(const g3d_Color& x, const g3d_Color& y) noexcept {
  return {x.r + y.r, x.g + y.g, x.b + y.b, x.a + y.a};
}
constexpr g3d_Color operator-(const g3d_Color& x, const g3d_Color& y) noexcept {
  return {x.r - y.r, x.g - y.g, x.b - y.b, x.a - y.a};
}
///@}
/// Filters one colour by another; the result is opaque.
constexpr g3d_Color operator*(const g3d_Color& x, const g3d_Color& y) noexcept {
  return {x.r * y.r, x.g * y.g, x.b * y.b, 1.0f};
}

/// "(r, g, b, a)", each component printed as a double.
CVX_EXPORT aio_ostream& operator<<(aio_ostream& out, const g3d_Color& c);

/// @}
