#include <g3d_Color.h>
#include <g3d_ColorMap.h>

#include <aio_ostream.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {
constexpr float kByteScale = 1.0f / 255.0f;

struct Rgb {
  float r, g, b;
};
constexpr Rgb kPresets[] = {
    {0, 0, 0},          {1, 0, 0},          {0, 1, 0},          {0, 0, 1},
    {0, 1, 1},          {1, 0, 1},          {1, 1, 0},          {1, 1, 1},
    {0.1f, 0.1f, 0.1f}, {0.2f, 0.2f, 0.2f}, {0.3f, 0.3f, 0.3f}, {0.4f, 0.4f, 0.4f},
    {0.5f, 0.5f, 0.5f}, {0.6f, 0.6f, 0.6f}, {0.7f, 0.7f, 0.7f}, {0.8f, 0.8f, 0.8f},
    {0.9f, 0.9f, 0.9f},
};
constexpr int kPresetCount = sizeof kPresets / sizeof kPresets[0];

// Truncation toward zero; a component too large for an int (or NaN) packs as 0.
unsigned int Truncated(float component) noexcept {
  const float scaled = component * 255.0f;
  return std::fabs(scaled) < 2147483648.0f ? static_cast<unsigned int>(static_cast<int>(scaled))
                                           : 0u;
}

// The six-sector HSV formula. The sector is 6h truncated toward zero, so a hue just below
// zero, in (-1/6, 0), falls in sector 0 with a negative fraction. False for a sector
// outside 0-5 (a hue at or below -1/6, at or above 1, or NaN).
template <class Real>
bool Sector(Real h, Real s, Real v, Real out[3]) noexcept {
  const Real h6 = h * 6;
  if (!(h6 > -1 && h6 < 6)) return false;
  const int i = static_cast<int>(h6);
  const Real f = h6 - i;
  const Real p = (1 - s) * v, q = (1 - s * f) * v, t = (1 - (1 - f) * s) * v;
  const Real table[6][3] = {{v, t, p}, {q, v, p}, {p, v, t}, {p, q, v}, {t, p, v}, {v, p, q}};
  std::copy(table[i], table[i] + 3, out);
  return true;
}

unsigned short Channel16(double level) noexcept {
  return static_cast<unsigned short>(std::lround(std::clamp(level, 0.0, 1.0) * 65535.0));
}
}  // namespace

g3d_Color::g3d_Color(g3d_PresetColorEnum preset, float alpha) noexcept { Set(preset, alpha); }

g3d_Color& g3d_Color::Set(g3d_PresetColorEnum preset, float alpha) noexcept {
  const int index = static_cast<int>(preset);
  if (index < 0 || index >= kPresetCount) return *this;
  const Rgb& rgb = kPresets[index];
  *this = g3d_Color(rgb.r, rgb.g, rgb.b, alpha);
  return *this;
}

g3d_Color& g3d_Color::Set(const g3d_Color& c, float alpha) noexcept {
  *this = g3d_Color(c.r, c.g, c.b, alpha);
  return *this;
}

g3d_Color& g3d_Color::Set(unsigned int rgba) noexcept {
  r = static_cast<float>((rgba >> 24) & 0xFF) * kByteScale;
  g = static_cast<float>((rgba >> 16) & 0xFF) * kByteScale;
  b = static_cast<float>((rgba >> 8) & 0xFF) * kByteScale;
  a = static_cast<float>(rgba & 0xFF) * kByteScale;
  return *this;
}

g3d_Color& g3d_Color::Set(const cow_String& text, float alpha) noexcept {
  if (text.IsEmpty() || text[0] != '#') return *this;
  unsigned int red = 0, green = 0, blue = 0;
  std::sscanf(text.CStr(), "#%02X%02X%02X", &red, &green, &blue);
  // %X reads a full unsigned value, so keep only the byte.
  *this = g3d_Color(static_cast<float>(red & 0xFF) * kByteScale,
                    static_cast<float>(green & 0xFF) * kByteScale,
                    static_cast<float>(blue & 0xFF) * kByteScale, alpha);
  return *this;
}

g3d_Color& g3d_Color::SetByName(const cow_String& text, float alpha) {
  if (!text.IsEmpty() && text[0] == '#') return Set(text, alpha);
  return Set(g3d_ColorMap::Instance().Lookup(text), alpha);
}

unsigned int g3d_Color::GetRGBA() const noexcept {
  return (Truncated(r) << 24) | (Truncated(g) << 16) | (Truncated(b) << 8) | (Truncated(a) & 0xFF);
}

g3d_Color& g3d_Color::Clamp() noexcept {
  for (float* c : {&r, &g, &b, &a}) *c = std::clamp(*c, 0.0f, 1.0f);
  return *this;
}

_HSV g3d_Color::GetHSV() const noexcept {
  const float v = std::max({r, g, b});
  if (v == 0.0f) return {0.0f, 0.0f, v};
  const float d = v - std::min({r, g, b});
  const float s = d / v;
  if (s == 0.0f) return {0.0f, s, v};
  float h = r == v ? (g - b) / d : g == v ? (b - r) / d + 2.0f : (r - g) / d + 4.0f;
  if (h < 0.0f) h += 6.0f;
  return {h / 6.0f, s, v};
}

g3d_Color& g3d_Color::SetHSV(const _HSV& hsv) noexcept {
  if (hsv.s == 0.0f) return *this = g3d_Color(hsv.v, hsv.v, hsv.v, a);
  float rgb[3];
  if (Sector(hsv.h >= 1.0f ? 0.0f : hsv.h, hsv.s, hsv.v, rgb))
    *this = g3d_Color(rgb[0], rgb[1], rgb[2], a);
  return *this;
}

float g3d_Color::Luma() const noexcept { return 0.299f * r + 0.587f * g + 0.114f * b; }

g3d_Color& g3d_Color::Invert(const g3d_Color& background, float minDifference) noexcept {
  const float behind = background.Luma();
  if (std::fabs(Luma() - behind) >= minDifference) return *this;
  const g3d_Color complement(1.0f - r, 1.0f - g, 1.0f - b, a);
  if (std::fabs(complement.Luma() - behind) >= minDifference) return *this = complement;
  return Set(GetContrastingColor(background), a);
}

g3d_Color g3d_Color::GetContrastingColor(const g3d_Color& background) noexcept {
  return background.Luma() >= 0.5f ? g3d_Color(0, 0, 0) : g3d_Color(1, 1, 1);
}

_HSV g3d_Color::PctToHSV(float h, float s, float v) noexcept {
  return {std::min(h, 1.0f), std::min(s, 1.0f), std::min(v, 1.0f)};
}

bool g3d_Color::HSVToRGB(const _HSV& hsv, unsigned short& red, unsigned short& green,
                         unsigned short& blue) noexcept {
  double rgb[3] = {hsv.v, hsv.v, hsv.v};
  if (hsv.s != 0.0f) {
    const double s = std::clamp<double>(hsv.s, 0.0, 1.0), v = std::clamp<double>(hsv.v, 0.0, 1.0);
    if (!Sector<double>(hsv.h >= 1.0f ? 0.0 : hsv.h, s, v, rgb)) return false;
  }
  red = Channel16(rgb[0]);
  green = Channel16(rgb[1]);
  blue = Channel16(rgb[2]);
  return true;
}

aio_ostream& operator<<(aio_ostream& out, const g3d_Color& c) {
  return out << "(" << double(c.r) << ", " << double(c.g) << ", " << double(c.b) << ", "
             << double(c.a) << ")";
}
