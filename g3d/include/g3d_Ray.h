#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_Ray
/// A half-line: an origin and a direction (not necessarily of unit length).
#include <g3d_Point.h>

class CVX_EXPORT g3d_Ray {
public:
  /// The origin.
  g3d_Point origin;
  /// The direction.
  g3d_Vector direction;

  /// Sets both.
  g3d_Ray& Set(const g3d_Point& origin_, const g3d_Vector& direction_) noexcept;
};

/// @}
