#include <g3d_Plane.h>

g3d_Point g3d_Plane::Project(const g3d_Ray& ray) const noexcept {
  const float den = g3d_Dot(ray.direction, normal);
  if (den == 0.0f) return {};
  const float k = g3d_Dot(point - ray.origin, normal) / den;
  return ray.origin + ray.direction * k;
}
