#pragma once
// For the camera tests and the camera fuzzer: whether a camera stayed within the float range.
#include <g3d_Camera.h>

#include <algorithm>
#include <cmath>
#include <iterator>

// The first part of the camera that holds a value out of the float range ("state", "view
// matrix" or "projection matrix"), or null when all is finite.
inline const char* NotFinitePart(const g3d_Camera& camera) {
  const auto finite = [](const auto& values) {
    return std::all_of(std::begin(values), std::end(values),
                       [](float v) { return std::isfinite(v); });
  };
  const g3d_Point &eye = camera.GetEye(), &target = camera.GetTarget();
  const g3d_Vector& up = camera.GetUp();
  const float state[] = {eye.x,
                         eye.y,
                         eye.z,
                         eye.w,
                         target.x,
                         target.y,
                         target.z,
                         target.w,
                         up.x,
                         up.y,
                         up.z,
                         camera.GetWindowWidth(),
                         camera.GetWindowHeight(),
                         camera.GetNear(),
                         camera.GetFar(),
                         camera.GetViewOffsetX(),
                         camera.GetViewOffsetY()};
  float view[4][4], projection[4][4];
  camera.GetVOM().GetM(view);
  camera.GetPM().GetM(projection);
  if (!finite(state)) return "state";
  if (!std::all_of(view, view + 4, finite)) return "view matrix";
  return std::all_of(projection, projection + 4, finite) ? nullptr : "projection matrix";
}
