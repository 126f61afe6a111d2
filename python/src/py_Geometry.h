#pragma once
// The library's geometry as Python classes of the cvxutils module: Vector, Point, XForm and
// XFormStack (see py_Vector, py_Point, py_XForm, py_XFormStack). Plain values that hold the
// native ones, so every result is the library's own float arithmetic.
#include <pybind11/pybind11.h>

class py_Geometry {
public:
  // Once, at import.
  static void Register(pybind11::module_& module);
};
