#include <g3d_ColorArray.h>

g3d_ColorArray::~g3d_ColorArray() = default;

unsigned int g3d_ColorArray::Append(const g3d_Color& color) {
  m_Colors.Append(CheckColor(color));
  return static_cast<unsigned int>(m_Colors.Length() - 1);
}

g3d_Color g3d_ColorArray::GetColor(unsigned int index) const {
  return IntToFloatColor(m_Colors[static_cast<int>(index)]);
}

void g3d_ColorArray::GetColor(unsigned int index, float& r, float& g, float& b) const {
  const g3d_Color color = GetColor(index);
  r = color.r;
  g = color.g;
  b = color.b;
}

g3d_Color g3d_ColorArray::IntToFloatColor(unsigned int packed) noexcept {
  return g3d_Color().Set(packed);
}

void g3d_ColorArray::SetAlpha(float alpha) {
  const unsigned int alphaByte = CheckColor(g3d_Color(0, 0, 0, alpha));
  for (unsigned int& packed : m_Colors.MutableVector()) packed = (packed & ~0xFFu) | alphaByte;
}

unsigned int g3d_ColorArray::CheckColor(const g3d_Color& color) noexcept {
  return g3d_Color(color).Clamp().GetRGBA();
}

void g3d_ColorArray::ContrastColors(const g3d_Color& background) {
  for (unsigned int& packed : m_Colors.MutableVector()) {
    packed = CheckColor(IntToFloatColor(packed).Invert(background, 0.25f));
  }
}

void g3d_ColorArray::Cleanup() noexcept { m_Colors.Clear(); }
