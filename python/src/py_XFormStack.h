#pragma once
// cvxutils.XFormStack: the library's fixed-capacity stack of accumulated transforms
// (g3d_XFormStack).
//
//   XFormStack(capacity)   capacity >= 1, else the library's RangeError; the top is entry 0,
//                          the identity
//   push(x)                the new top is top @ x; a full stack raises IndexError (the
//                          library leaves the overflow to its debug checks)
//   pop()                  drops the top entry; at the base it does nothing, as the library
//   top                    a copy of the current transform
//   reset(x=XForm())       back to one entry, x
//   depth, capacity        the index of the top (0 at the base) and the entry count
#include <pybind11/pybind11.h>

class py_XFormStack {
public:
  // Once, at import, after py_XForm.
  static void Register(pybind11::module_& module);
};
