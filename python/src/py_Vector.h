#pragma once
// cvxutils.Vector: the library's single-precision direction (g3d_Vector), a mutable value.
//
//   Vector(), Vector(x, y, z), Vector(sequence of 3 numbers)   numbers narrowed to float;
//                      another length raises ValueError "a Vector is 3 numbers, not 4"
//   x, y, z, len, v[i], iteration, repr Vector(1.0, 2.0, 3.0)
//   v + w, v - w, -v, v * k, k * v, v / k   in float as the library computes them; v / 1
//                      is v unchanged and v / 0 gives infinities (not ZeroDivisionError)
//   v == w             exact, component by component
//   dot, cross, length, normalize, angle_with   the library's operations, results widened
//                      to Python floats; degenerate input never raises (see the methods)
#include <pybind11/pybind11.h>

class py_Vector {
public:
  // Once, at import, before the classes that take vectors.
  static void Register(pybind11::module_& module);
};
