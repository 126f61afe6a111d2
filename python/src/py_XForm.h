#pragma once
// cvxutils.XForm: the library's 4x4 single-precision transform (g3d_XForm), a mutable value
// acting on column vectors, p' = M p, with the translation in column 3.
//
//   XForm()            the identity
//   XForm(matrix)      from 4 rows of 4 numbers (nested sequences or a NumPy array of any
//                      real dtype), narrowed to float; another shape raises ValueError
//   XForm(other)       a copy
//   XForm.translation, scaling, rotation, quaternion, rotation_z, columns, perspective,
//   orthographic       new transforms as the library's setters make them
//   translate, scale, rotate, transpose, invert
//                      modify in place and return the transform, so calls chain; modifiers
//                      multiply on the right (M <- M F), so the last applies to points first
//   a @ b, a @= b      the product a b; a == b as the library compares (a NaN is unequal)
//   x[row, col]        an element (IndexError outside 0..3); matrix, a 4x4 float32 copy
//   apply(p)           a transformed Point (all four components, no division by w) or Vector
//                      (upper 3x3 only)
//   transform_points(a, copy=False), transform_vectors(a, copy=False)
//                      an (N, 3) array in one call, see py_PointArray
//   repr               XForm([[1.0, 0.0, 0.0, 0.0], ...])
#include <pybind11/pybind11.h>

class py_XForm {
public:
  // Once, at import, after py_Vector and py_Point.
  static void Register(pybind11::module_& module);
};
