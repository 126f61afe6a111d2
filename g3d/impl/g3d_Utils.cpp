#include <g3d_ColorMap.h>
#include <g3d_Utils.h>

#include <nex_AssertException.h>

#include <algorithm>
#include <vector>

namespace {
constexpr float kChannelScale = 1.0f / 65535.0f;

g3d_Color FullHue(float hue, float alpha) noexcept {
  unsigned short r = 0, g = 0, b = 0;
  g3d_Color::HSVToRGB({hue, 1.0f, 1.0f}, r, g, b);
  return {static_cast<float>(r) * kChannelScale, static_cast<float>(g) * kChannelScale,
          static_cast<float>(b) * kChannelScale, alpha};
}

template <class ColorAt>
void Fill(g3d_Color* out, int n, bool reverse, ColorAt&& colorAt) {
  for (int i = 0; i < n; ++i) out[reverse ? n - 1 - i : i] = colorAt(i);
}

g3d_Color Mix(const g3d_Color& from, const g3d_Color& to, float f) noexcept {
  return from + g3d_Color(f * (to.r - from.r), f * (to.g - from.g), f * (to.b - from.b),
                          f * (to.a - from.a));
}
}  // namespace

void g3d_Utils::Rainbow(g3d_Color* out, int n, bool reverse, float alpha) {
  Fill(out, n, reverse, [n, alpha](int i) {
    return FullHue(n > 1 ? static_cast<float>(i) * (2.0f / 3.0f) / static_cast<float>(n - 1) : 0.0f,
                   alpha);
  });
}

void g3d_Utils::BlueToRed(g3d_Color* out, int n, bool reverse, float alpha) {
  Rainbow(out, n, !reverse, alpha);
}

void g3d_Utils::BlackToWhite(g3d_Color* out, int n, bool reverse, float alpha) {
  Fill(out, n, reverse, [n, alpha](int i) {
    const float level = n > 1 ? static_cast<float>(i) / static_cast<float>(n - 1) : 0.0f;
    return g3d_Color(level, level, level, alpha);
  });
}

void g3d_Utils::WrapAround(g3d_Color* out, int n, float alpha) {
  Fill(out, n, false,
       [n, alpha](int i) { return FullHue(static_cast<float>(i) / static_cast<float>(n), alpha); });
}

void g3d_Utils::FillInColorsAndInterpolate(const cow_List<cow_String>& names, int n,
                                           g3d_Color* out) {
  std::vector<g3d_Color> stops;
  for (const cow_String& name : names) stops.push_back(g3d_Color().SetByName(name, 1.0f));
  if (stops.empty()) return;
  const int last = static_cast<int>(stops.size()) - 1;
  Fill(out, n, false, [&](int i) {
    if (last == 0 || n == 1) return stops.front();
    const double at = static_cast<double>(i) * last / (n - 1);
    const int k = std::min(static_cast<int>(at), last - 1);
    return Mix(stops[k], stops[k + 1], static_cast<float>(at - k));
  });
}

float g3d_Utils::ConvertMarkerSize(g3d_MarkerSizeEnum size) noexcept {
  constexpr float kSizes[] = {5.0f, 7.0f, 9.0f};
  return kSizes[std::clamp(static_cast<int>(size), 0, 2)];
}

float g3d_Utils::ConvertLineThickness(g3d_LineThicknessEnum thickness) noexcept {
  constexpr float kWidths[] = {0.5f, 1.0f, 2.0f, 3.0f};
  return kWidths[std::clamp(static_cast<int>(thickness), 0, 3)];
}

void g3d_Utils::Assert(bool condition, const char* text) {
#ifdef NDEBUG
  (void)condition;
  (void)text;
#else
  if (!condition) NEX_THROW(nex_AssertException(text), "g3d/impl/g3d_Utils");
#endif
}
