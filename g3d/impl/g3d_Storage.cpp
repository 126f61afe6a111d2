#include <g3d_Storage.h>

#include <cfloat>
#include <cmath>

namespace {
constexpr double kPi = 3.141592653589793;
}

double g3d_Magnitude(const g3d_Storage& v) noexcept { return std::sqrt(g3d_Dot(v, v)); }

void g3d_Normalize(g3d_Storage& v) noexcept {
  const double m = g3d_Magnitude(v);
  if (m >= DBL_MIN) v = v * (1.0 / m);
}

void g3d_ProjectOn(const g3d_Storage& normal, const g3d_Storage& v, g3d_Storage& out) noexcept {
  g3d_Storage n = normal;
  g3d_Normalize(n);
  out = v - n * g3d_Dot(v, n);
}

double g3d_AngleWith(const g3d_Storage& a, const g3d_Storage& b, bool normalized,
                     double minMagnitude) noexcept {
  double c = g3d_Dot(a, b);
  if (!normalized) {
    const double ma = g3d_Magnitude(a), mb = g3d_Magnitude(b);
    if (!(ma > minMagnitude) || !(mb > minMagnitude)) return std::acos(0.0);
    c /= ma * mb;
  }
  if (c >= 1.0) return 0.0;
  if (c <= -1.0) return kPi;
  return std::acos(c);
}
