#pragma once
// cvxutils.Point: the library's single-precision homogeneous position (g3d_Point), a
// mutable value. A w of 0 or 1 is Cartesian; another w divides x, y, z in a difference.
//
//   Point(), Point(x, y, z, w=1.0), Point(sequence of 3 or 4 numbers)   numbers narrowed to
//                      float; another length raises ValueError "a Point is 3 or 4 numbers,
//                      not 5"
//   x, y, z, w, len 4, p[i], iteration, repr Point(1.0, 2.0, 3.0, 1.0)
//   p - q              the Vector between them, each divided by its w first (unless 0 or 1)
//   p + v, p - v       p moved by a Vector; w kept
//   p == q             exact on all four components
#include <pybind11/pybind11.h>

class py_Point {
public:
  // Once, at import, after py_Vector.
  static void Register(pybind11::module_& module);
};
