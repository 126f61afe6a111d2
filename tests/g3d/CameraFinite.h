#pragma once
// For the camera tests and the camera fuzzer: whether a camera stayed within the float range.
#include <g3d_Camera.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>

// The first part of the camera that holds a value out of the float range ("state", "view
// matrix" or "projection matrix"), or null when all is finite.
inline const char* NotFinitePart(const g3d_Camera& camera) {
  const auto finite = [](std::initializer_list<float> values) {
    return std::all_of(values.begin(), values.end(), [](float v) { return std::isfinite(v); });
  };
  const auto finiteMatrix = [](const g3d_XForm& m) {
    for (int i = 0; i < 16; ++i) {
      if (!std::isfinite(m.GetM(i / 4, i % 4))) return false;
    }
    return true;
  };
  const g3d_Point &eye = camera.GetEye(), &target = camera.GetTarget();
  const g3d_Vector& up = camera.GetUp();
  if (!finite({eye.x, eye.y, eye.z, eye.w, target.x, target.y, target.z, target.w, up.x, up.y, up.z,
               camera.GetWindowWidth(), camera.GetWindowHeight(), camera.GetNear(), camera.GetFar(),
               camera.GetViewOffsetX(), camera.GetViewOffsetY()})) {
    return "state";
  }
  if (!finiteMatrix(camera.GetVOM())) return "view matrix";
  return finiteMatrix(camera.GetPM()) ? nullptr : "projection matrix";
}
