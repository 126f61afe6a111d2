#pragma once
// cvxutils.ColorMap: the library's table of colour names (g3d_ColorMap), all opaque.
//
//   ColorMap.names()        every name, in the table's order (byte-wise: "Aqua", "Black", ...)
//   ColorMap.lookup(name)   its Color; an unknown name (names are case-sensitive) raises
//                           ColorError "<name> is not a valid color name."
//   ColorMap.find(name)     its Color, or None
//   ColorMap.count()        the number of names
#include <pybind11/pybind11.h>

class py_ColorMap {
public:
  static void Register(pybind11::module_& module);
};
