#pragma once
// Points and directions as the viewing classes take and give them, until the module has
// classes of its own for them: any sequence of three numbers in (tuple, list, 1-D NumPy
// array, ...), a tuple of three floats out. Numbers are narrowed to float32 as the library
// holds them, and a float32 comes back through double exactly. Bulk data travels as float32
// NumPy arrays of shape (N, k). Call with the GIL held.
//
//   not a sequence, or a str     TypeError "<what> must be a sequence of 3 numbers, not <type>"
//   another length               ValueError "<what> must have 3 coordinates, not <n>"
//   an item that is no number    the TypeError of float(item)
//   an array of another shape    ValueError "<what> must have the shape (N, <k>), not (...)"
#include <g3d_Point.h>
#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

#include <string>

class py_Triple {
public:
  using FloatArray =
      pybind11::array_t<float, pybind11::array::c_style | pybind11::array::forcecast>;

  static g3d_Vector Vector(pybind11::handle value, const char* what);
  // w is 1.
  static g3d_Point Point(pybind11::handle value, const char* what);
  static pybind11::tuple Tuple(const g3d_Vector& v);
  // x, y and z, divided by w unless w is 0 or 1.
  static pybind11::tuple Tuple(const g3d_Point& p);
  // value as a C-ordered float32 array of shape (N, columns), converted if need be.
  static FloatArray Rows(pybind11::handle value, int columns, const char* what);
  // An (n, columns) float32 array to fill.
  static FloatArray NewRows(pybind11::ssize_t n, int columns);
  // The shortest text that reads back as the same float32: 1, 0.5019608, -2.5e-07.
  static std::string Text(float value);
  // "(x, y, z)" in that form.
  static std::string Text(const g3d_Vector& v);
};
