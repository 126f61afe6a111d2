#pragma once
// cvxutils.ColorRamp: the library's colour ramps for contour legends (g3d_Utils), each a
// list of n Color (none for n <= 0); reverse lists the ramp from its other end.
//
//   ColorRamp.rainbow(n, reverse=False, alpha=1)        red, yellow, green, cyan, blue
//   ColorRamp.blue_to_red(n, reverse=False, alpha=1)    the rainbow from its blue end
//   ColorRamp.black_to_white(n, reverse=False, alpha=1)
//   ColorRamp.wrap_around(n, alpha=1)                   hues i / n around the whole circle
//   ColorRamp.interpolate(names, n)                     n colours spread evenly from the
//                                                       first named colour to the last;
//                                                       ColorError for an unknown name;
//                                                       no names give none
#include <pybind11/pybind11.h>

class py_ColorRamp {
public:
  static void Register(pybind11::module_& module);
};
