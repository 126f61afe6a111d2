#pragma once
// The viewing classes of the g3d module as a script meets them: Color, ColorMap, ColorRamp,
// Sphere, BoundingVolume, Light and Camera (see each one's header).
#include <pybind11/pybind11.h>

class py_Viewing {
public:
  // Once, at import, after the error translation is registered.
  static void Register(pybind11::module_& module);
};
