#pragma once
// cvxutils.BoundingVolume: the hull vertices of a model (g3d_BoundingVolume).
//
//   BoundingVolume()               no vertices (its extent is the empty sphere)
//   BoundingVolume.box(min, max)   the eight corners of the axis-aligned box
//   reset()                        the default cube [-1, 1]^3; is_default tells it apart
//   extend(points)                 appends vertices: anything NumPy takes as an (N, 3)
//                                  array of numbers
//   vertices                       an (N, 3) float32 array, a copy; len() is N
//   extent                         the enclosing Sphere; center and radius are its own
#include <pybind11/pybind11.h>

class py_BoundingVolume {
public:
  static void Register(pybind11::module_& module);
};
