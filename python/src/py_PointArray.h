#pragma once
// An (N, 3) NumPy array of points or vectors through a transform in one call, the GIL
// released for the loop, which large arrays (from 131,072 rows) share across the machine's
// cores, as NumPy's matrix product does. Rows are taken in blocks into the library's own Point (w =
// 1) or Vector and transformed by g3d_XForm::XForm, so every number goes through exactly the float
// arithmetic of the native transform:
//
//   float32            transformed in place and returned (any strides), or into a new
//                      C-contiguous float32 array when copy is true; a read-only array needs
//                      copy
//   float64            always into a new C-contiguous float64 array: each number narrowed to
//                      float, transformed in float, widened back
//
// Points keep x, y, z of M p; the w that a projective row 3 would give is dropped without
// dividing. Vectors use the upper 3x3 only. Other input raises with a message that names
// what was given: TypeError for a non-array or another dtype, ValueError for another shape
// or a read-only float32 array without copy. Call with the GIL held.
#include <pybind11/pybind11.h>

class g3d_XForm;

class py_PointArray {
public:
  static pybind11::object TransformPoints(const g3d_XForm& form, const pybind11::object& array,
                                          bool copy);
  static pybind11::object TransformVectors(const g3d_XForm& form, const pybind11::object& array,
                                           bool copy);
};
