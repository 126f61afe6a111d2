#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_Plane
/// A plane through a point with a normal; the same layout as g3d_Ray.
#include <g3d_Ray.h>

class CVX_EXPORT g3d_Plane {
public:
  /// A point on the plane.
  g3d_Point point;
  /// The normal.
  g3d_Vector normal;

  /// Where the ray's line meets the plane (the parameter may be negative); a ray parallel
  /// to the plane gives the default point (0, 0, 0, 1).
  g3d_Point Project(const g3d_Ray& ray) const noexcept;
};

/// @}
