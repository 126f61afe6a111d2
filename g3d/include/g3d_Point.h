#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_Point
/// A single-precision homogeneous position. A w of 0 or 1 is taken as already Cartesian; any
/// other w divides x, y and z when the point takes part in a difference.
#include <g3d_Vector.h>

class CVX_EXPORT g3d_Point {
public:
  float x = 0.0f;
  float y = 0.0f;
  float z = 0.0f;
  float w = 1.0f;

  constexpr g3d_Point() noexcept = default;
  constexpr g3d_Point(float x_, float y_, float z_, float w_ = 1.0f) noexcept
      : x(x_), y(y_), z(z_), w(w_) {}
  explicit g3d_Point(const cls_ReadVisitor& reader);

  constexpr bool operator==(const g3d_Point& o) const noexcept {
    return x == o.x && y == o.y && z == o.z && w == o.w;
  }

  /// Persistence. Not virtual: the value keeps its sixteen-byte layout.
  unsigned int DynTypeId() const noexcept { return TypeId(); }
  void DBWrite(const cls_WriteVisitor& writer) const;
  static unsigned int TypeId() noexcept;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
};

constexpr bool g3d_IsCartesian(const g3d_Point& p) noexcept { return p.w == 0.0f || p.w == 1.0f; }

/// a - b on x, y, z after dividing each point by its w (unless w is 0 or 1); both w dropped.
constexpr g3d_Vector operator-(const g3d_Point& a, const g3d_Point& b) noexcept {
  g3d_Vector from(a.x, a.y, a.z);
  if (!g3d_IsCartesian(a)) from = from * (1.0f / a.w);
  const g3d_Vector to(b.x, b.y, b.z);
  return g3d_IsCartesian(b) ? from - to : from - to * (1.0f / b.w);
}
/// The point moved by v on x, y and z; w is kept.
constexpr g3d_Point operator+(const g3d_Point& p, const g3d_Vector& v) noexcept {
  return {p.x + v.x, p.y + v.y, p.z + v.z, p.w};
}
constexpr g3d_Point operator-(const g3d_Point& p, const g3d_Vector& v) noexcept {
  return p + -v;
}

/// "(x, y, z, w)", each component printed as a double.
CVX_EXPORT aio_ostream& operator<<(aio_ostream& out, const g3d_Point& p);

/// @}
