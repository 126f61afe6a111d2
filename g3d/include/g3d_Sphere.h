#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_Sphere
/// A bounding sphere; a negative radius marks the empty sphere, which unions absorb.
#include <g3d_Point.h>

class CVX_EXPORT g3d_Sphere {
public:
  /// The centre.
  g3d_Point center;
  /// The radius; negative for the empty sphere.
  float radius = 1.0f;

  constexpr g3d_Sphere() noexcept = default;
  /// Centre c, radius r.
  ///@{
  constexpr g3d_Sphere(const g3d_Point& c, float r) noexcept : center(c), radius(r) {}
  constexpr g3d_Sphere(const g3d_Vector& c, float r) noexcept : center(c.x, c.y, c.z), radius(r) {}
  ///@}

  /// Centre c, radius r.
  g3d_Sphere& Set(const g3d_Point& c, float r) noexcept {
    center = c;
    radius = r;
    return *this;
  }
  /// True for a negative radius.
  bool IsEmpty() const noexcept { return radius < 0.0f; }
  /// True when other lies wholly inside (touching from inside counts); every sphere contains
  /// the empty one, and the empty one contains nothing else.
  bool Contains(const g3d_Sphere& other) const noexcept;

  /// Same centre and radius, exactly.
  bool operator==(const g3d_Sphere& o) const noexcept {
    return center == o.center && radius == o.radius;
  }
};

/// The smallest sphere holding both.
CVX_EXPORT g3d_Sphere operator+(const g3d_Sphere& a, const g3d_Sphere& b) noexcept;

/// @}
