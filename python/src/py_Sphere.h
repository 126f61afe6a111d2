#pragma once
// cvxutils.Sphere: a bounding sphere (g3d_Sphere); a negative radius marks the empty sphere.
//
//   Sphere(center=(0, 0, 0), radius=1)
//   center, radius        settable; the centre any sequence of 3 numbers
//   empty                 radius below 0
//   contains(other)       other wholly inside (touching counts); every sphere holds the
//                         empty one
//   a + b                 the smallest sphere holding both; the empty sphere is absorbed
//   ==, repr              exact; Sphere((0, 0, 0), 1)
#include <pybind11/pybind11.h>

class py_Sphere {
public:
  static void Register(pybind11::module_& module);
};
