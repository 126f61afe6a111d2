#include "py_Viewing.h"

#include "py_BoundingVolume.h"
#include "py_Camera.h"
#include "py_Color.h"
#include "py_ColorMap.h"
#include "py_ColorRamp.h"
#include "py_Light.h"
#include "py_Sphere.h"

void py_Viewing::Register(pybind11::module_& module) {
  // Classes that others take as arguments come first, so signatures name them.
  py_Color::Register(module);
  py_ColorMap::Register(module);
  py_ColorRamp::Register(module);
  py_Sphere::Register(module);
  py_BoundingVolume::Register(module);
  py_Light::Register(module);
  py_Camera::Register(module);
}
