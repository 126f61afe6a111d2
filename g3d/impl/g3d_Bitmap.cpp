#include <g3d_Bitmap.h>

#include <algorithm>
#include <cmath>

namespace {
// Whether the pixel at (dx, dy) from the centre belongs to a symbol of half-size r.
using Shape = bool (*)(double dx, double dy, double r);

double Ring(double dx, double dy) { return dx * dx + dy * dy; }

constexpr Shape kShapes[] = {
    [](double dx, double dy, double r) { return Ring(dx, dy) <= (r + 0.5) * (r + 0.5); },
    [](double, double, double) { return true; },
    [](double dx, double dy, double r) { return std::fabs(dx) + std::fabs(dy) <= r; },
    [](double dx, double dy, double r) {
      const double d = Ring(dx, dy);
      return d <= (r + 0.5) * (r + 0.5) && d > (r - 0.5) * (r - 0.5);
    },
    [](double dx, double dy, double r) { return std::max(std::fabs(dx), std::fabs(dy)) > r - 1; },
    [](double dx, double dy, double r) {
      const double d = std::fabs(dx) + std::fabs(dy);
      return d <= r && d > r - 1;
    },
    [](double dx, double dy, double) { return std::fabs(dx) <= 0.5 || std::fabs(dy) <= 0.5; },
    [](double dx, double dy, double) { return std::fabs(std::fabs(dx) - std::fabs(dy)) <= 0.5; },
    [](double dx, double dy, double) { return std::fabs(dx) <= 0.5 && std::fabs(dy) <= 0.5; },
};
constexpr int kShapeCount = sizeof kShapes / sizeof kShapes[0];
}  // namespace

void g3d_Bitmap::SetSize(int width, int height, bool set, bool bottomUp) {
  m_Width = std::max(width, 0);
  m_Height = std::max(height, 0);
  m_BottomUp = bottomUp;
  m_Bits.assign(static_cast<std::size_t>(RowBytes()) * static_cast<std::size_t>(m_Height),
                set ? 0xFF : 0x00);
}

int g3d_Bitmap::GetBit(int x, int y) const noexcept {
  if (x < 0 || y < 0 || x >= m_Width || y >= m_Height) return 0;
  const unsigned char byte = m_Bits[Offset(x, y)];
  return (byte >> (7 - x % 8)) & 1;
}

void g3d_Bitmap::SetBit(int x, int y, bool on) noexcept {
  if (x < 0 || y < 0 || x >= m_Width || y >= m_Height) return;
  unsigned char& byte = m_Bits[Offset(x, y)];
  const auto mask = static_cast<unsigned char>(0x80u >> (x % 8));
  byte = on ? (byte | mask) : (byte & ~mask);
}

void g3d_Bitmap::SetMarker(g3d_MarkerEnum marker, int size) {
  size = std::max(size, 1);
  SetSize(size, size, false, m_BottomUp);
  const int index = static_cast<int>(marker);
  if (index < 0 || index >= kShapeCount) return;
  const double r = (size - 1) / 2.0;
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) SetBit(x, y, kShapes[index](x - r, y - r, r));
  }
}
