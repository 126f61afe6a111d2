#include <g3d_Ray.h>

g3d_Ray& g3d_Ray::Set(const g3d_Point& origin_, const g3d_Vector& direction_) noexcept {
  origin = origin_;
  if (&direction_ != &direction) direction = direction_;
  return *this;
}
