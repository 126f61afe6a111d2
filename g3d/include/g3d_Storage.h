#pragma once
/// \addtogroup g3d
/// @{

/// \struct g3d_Storage
/// A double-precision scratch vector or point. Geometric decisions are taken on these;
/// the float types widen x, y and z into one.
#include <g3d_Point.h>

struct g3d_Storage {
  /// The components.
  ///@{
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
  ///@}

  constexpr g3d_Storage() noexcept = default;
  /// (x, y, z).
  constexpr g3d_Storage(double x_, double y_, double z_) noexcept : x(x_), y(y_), z(z_) {}
  /// v widened.
  constexpr explicit g3d_Storage(const g3d_Vector& v) noexcept : x(v.x), y(v.y), z(v.z) {}
  /// w is ignored: the point is taken as Cartesian.
  constexpr explicit g3d_Storage(const g3d_Point& p) noexcept : x(p.x), y(p.y), z(p.z) {}

  /// x, y or z for axis 0, 1 or 2 (any other axis gives z).
  constexpr double operator[](int axis) const noexcept { return axis == 0 ? x : axis == 1 ? y : z; }
};

/// Component-wise sum, difference, and scaling by k.
///@{
constexpr g3d_Storage operator+(const g3d_Storage& a, const g3d_Storage& b) noexcept {
  return {a.x + b.x, a.y + b.y, a.z + b.z};
}
constexpr g3d_Storage operator-(const g3d_Storage& a, const g3d_Storage& b) noexcept {
  return {a.x - b.x, a.y - b.y, a.z - b.z};
}
constexpr g3d_Storage operator*(const g3d_Storage& v, double k) noexcept {
  return {v.x * k, v.y * k, v.z * k};
}

///@}
/// The dot product.
constexpr double g3d_Dot(const g3d_Storage& a, const g3d_Storage& b) noexcept {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}
/// The cross product.
constexpr g3d_Storage g3d_Cross(const g3d_Storage& a, const g3d_Storage& b) noexcept {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
/// (a x b) . c, the signed volume of the three.
constexpr double g3d_TripleProduct(const g3d_Storage& a, const g3d_Storage& b,
                                   const g3d_Storage& c) noexcept {
  return g3d_Dot(g3d_Cross(a, b), c);
}

/// The length of v.
CVX_EXPORT double g3d_Magnitude(const g3d_Storage& v) noexcept;
/// In place; below DBL_MIN the vector is left as it is (not zeroed).
CVX_EXPORT void g3d_Normalize(g3d_Storage& v) noexcept;
/// out = the part of v perpendicular to normal.
CVX_EXPORT void g3d_ProjectOn(const g3d_Storage& normal, const g3d_Storage& v,
                              g3d_Storage& out) noexcept;
/// Angle in [0, pi], clamped at exactly +-1; a magnitude not above minMagnitude gives pi/2.
CVX_EXPORT double g3d_AngleWith(const g3d_Storage& a, const g3d_Storage& b, bool normalized,
                                double minMagnitude) noexcept;

/// @}
