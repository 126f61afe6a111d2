#pragma once
// cvxutils.Light: one light of a viewport's studio (g3d_Light).
//
//   Light()                    disabled, pointing along +z, colours "Black", "#B3B3B3",
//                              "#5C5C5C", weight 0, attenuation 1, 0, 0
//   enabled, weight, constant_attenuation, linear_attenuation, quadratic_attenuation
//                              settable
//   ambient_color, diffuse_color, specular_color
//                              colour names or #RRGGBB text; setting an unknown name raises
//                              ColorError "<name> is not a valid color name." and keeps the
//                              old one
//   colors                     the three as Color
//   set_position(latitude, longitude)
//                              the direction from degrees (latitude 90 is +y; 0, 0 is +z);
//                              returns the light
//   position, latitude, longitude
//                              read-only
//   ==                         every field equal
#include <pybind11/pybind11.h>

class py_Light {
public:
  static void Register(pybind11::module_& module);
};
