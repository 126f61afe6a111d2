#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_Vector
/// A single-precision direction. A plain value of three floats and nothing else (no virtual
/// table), so arrays of vectors stay packed and can be transformed in place.
#include <CVX_Export.h>

#include <cfloat>
#include <cmath>

class aio_ostream;
class cls_ClassRegistrar;
class cls_ReadVisitor;
class cls_WriteVisitor;

class CVX_EXPORT g3d_Vector {
public:
  /// The components.
  ///@{
  float x = 0.0f;
  float y = 0.0f;
  float z = 0.0f;
  ///@}

  constexpr g3d_Vector() noexcept = default;
  /// (x, y, z).
  constexpr g3d_Vector(float x_, float y_, float z_) noexcept : x(x_), y(y_), z(z_) {}
  /// Reads the object back from the record reader is at.
  explicit g3d_Vector(const cls_ReadVisitor& reader);

  /// Computed in double, narrowed once. Inline: the camera's matrices take three per rebuild.
  float Length() const noexcept {
    const double dx = x, dy = y, dz = z;
    return static_cast<float>(std::sqrt(dx * dx + dy * dy + dz * dz));
  }
  /// Below the smallest normal float the vector becomes zero; a unit vector is left bit for bit.
  g3d_Vector& Normalize() noexcept {
    const float length = Length();
    if (length < FLT_MIN) {
      *this = g3d_Vector();
    } else if (length != 1.0f) {
      const float inverse = 1.0f / length;
      *this = g3d_Vector(x * inverse, y * inverse, z * inverse);
    }
    return *this;
  }
  /// Angle in [0, pi]. Cosines within 1e-5 of +-1 snap to exactly 0 or pi; a zero vector gives
  /// pi/2. With normalized set the lengths are taken as 1.
  float AngleWith(const g3d_Vector& other, bool normalized) const noexcept;
  /// Signed turn in [0, 2 pi) from this to other, seen from the reference direction.
  float AngleWith(const g3d_Vector& other, bool normalized,
                  const g3d_Vector& reference) const noexcept;

  /// Exact: no tolerance.
  constexpr bool operator==(const g3d_Vector& o) const noexcept {
    return x == o.x && y == o.y && z == o.z;
  }

  /// Persistence. Not virtual: the value keeps its twelve-byte layout.
  unsigned int DynTypeId() const noexcept { return TypeId(); }
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const;
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept;
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
};

/// Component-wise sum, difference, negation and scaling by k.
///@{
constexpr g3d_Vector operator+(const g3d_Vector& a, const g3d_Vector& b) noexcept {
  return {a.x + b.x, a.y + b.y, a.z + b.z};
}
constexpr g3d_Vector operator-(const g3d_Vector& a, const g3d_Vector& b) noexcept {
  return {a.x - b.x, a.y - b.y, a.z - b.z};
}
constexpr g3d_Vector operator-(const g3d_Vector& a) noexcept { return {-a.x, -a.y, -a.z}; }
constexpr g3d_Vector operator*(const g3d_Vector& v, float k) noexcept {
  return {v.x * k, v.y * k, v.z * k};
}
constexpr g3d_Vector operator*(float k, const g3d_Vector& v) noexcept { return v * k; }
///@}
/// One reciprocal, three multiplies; a divisor of 0 is not guarded.
constexpr g3d_Vector operator/(const g3d_Vector& v, float d) noexcept {
  return d == 1.0f ? v : v * (1.0f / d);
}

/// The dot product, in float.
constexpr float g3d_Dot(const g3d_Vector& a, const g3d_Vector& b) noexcept {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}
/// a x b, right-handed.
constexpr g3d_Vector g3d_Cross(const g3d_Vector& a, const g3d_Vector& b) noexcept {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
/// (a x b) . c
constexpr float g3d_TripleProduct(const g3d_Vector& a, const g3d_Vector& b,
                                  const g3d_Vector& c) noexcept {
  return g3d_Dot(g3d_Cross(a, b), c);
}

/// "(x, y, z)", each component printed as a double.
CVX_EXPORT aio_ostream& operator<<(aio_ostream& out, const g3d_Vector& v);

/// @}
