#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_Point
/// A single-precision homogeneous position. A w of 0 or 1 is taken as already Cartesian; any
/// other w divides x, y and z when the point takes part in a difference.
#include <g3d_Vector.h>

class CVX_EXPORT g3d_Point {
public:
  /// Homogeneous coordinates; w is 1 for an ordinary point.
  ///@{
  float x = 0.0f;
  float y = 0.0f;
  float z = 0.0f;
  float w = 1.0f;
  ///@}

  constexpr g3d_Point() noexcept = default;
  /// (x, y, z, w).
  constexpr g3d_Point(float x_, float y_, float z_, float w_ = 1.0f) noexcept
      : x(x_), y(y_), z(z_), w(w_) {}
  /// Reads the object back from the record reader is at.
  explicit g3d_Point(const cls_ReadVisitor& reader);

  /// All four components equal, exactly.
  constexpr bool operator==(const g3d_Point& o) const noexcept {
    return x == o.x && y == o.y && z == o.z && w == o.w;
  }

  /// Persistence. Not virtual: the value keeps its sixteen-byte layout.
  unsigned int DynTypeId() const noexcept { return TypeId(); }
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const;
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept;
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
};

/// True when w is 0 or 1: x, y, z need no division by w.
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
/// The point moved by -v; w is kept.
constexpr g3d_Point operator-(const g3d_Point& p, const g3d_Vector& v) noexcept { return p + -v; }

/// "(x, y, z, w)", each component printed as a double.
CVX_EXPORT aio_ostream& operator<<(aio_ostream& out, const g3d_Point& p);

/// @}
