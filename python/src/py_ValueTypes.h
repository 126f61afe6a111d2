#pragma once
// The value classes a script sees for the primitives without a Python type of their own,
// each holding the primitive itself:
//
//   cvxutils.Path(components, context_type='')   omu_PrimPath: components is a list of str
//       or one dotted str; equal when the library says so; repr cvxutils.Path('a.b')
//   cvxutils.SymbolicConstant(name)               omu_PrimEnumBase: prints as its name,
//       equal to that name as a str and to any constant of that name (case-sensitive),
//       hashes as the name does, so it can stand for the str in a set or as a key
#include <pybind11/pybind11.h>

class py_ValueTypes {
public:
  // Once, at import, before any conversion.
  static void Register(pybind11::module_& module);
};
