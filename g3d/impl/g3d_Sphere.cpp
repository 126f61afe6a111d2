#include <g3d_Sphere.h>

namespace {
g3d_Point Cartesian(const g3d_Point& p) noexcept { return g3d_Point() + (p - g3d_Point()); }
}  // namespace

bool g3d_Sphere::Contains(const g3d_Sphere& other) const noexcept {
  if (other.IsEmpty()) return true;
  if (IsEmpty()) return false;
  return (other.center - center).Length() + other.radius <= radius;
}

g3d_Sphere operator+(const g3d_Sphere& a, const g3d_Sphere& b) noexcept {
  if (a.IsEmpty()) return b;
  if (b.IsEmpty()) return a;
  if (a.Contains(b)) return a;
  if (b.Contains(a)) return b;
  // Neither contains the other, so the centres differ: the new sphere spans from the far
  // side of a to the far side of b along the line of centres.
  const g3d_Vector between = b.center - a.center;
  const float d = between.Length();
  const g3d_Vector u = between / d;
  const g3d_Point near = Cartesian(a.center) - u * a.radius;
  const g3d_Point far = Cartesian(b.center) + u * b.radius;
  const g3d_Point mid((near.x + far.x) / 2, (near.y + far.y) / 2, (near.z + far.z) / 2, 1.0f);
  return {mid, (d + a.radius + b.radius) / 2};
}
