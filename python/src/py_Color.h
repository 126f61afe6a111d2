#pragma once
// cvxutils.Color: the library's colour (g3d_Color), four float32 components in [0, 1].
//
//   Color(r=0, g=0, b=0, a=1)          components as given (not clamped)
//   Color.from_name(text, alpha=1)     a name of the colour table ("Sky blue") or #RRGGBB
//                                      text; an unknown name raises ColorError
//                                      "<text> is not a valid color name."
//   Color.from_hsv(h, s, v, alpha=1)   hue, saturation, value in [0, 1]; a hue of 1 is 0
//   Color.from_rgba(packed)            0xRRGGBBAA
//   r, g, b, a                         the components, settable
//   components                         (r, g, b, a)
//   rgba, hsv                          packed (components truncated) and (h, s, v)
//   luma, contrasting()                brightness, and black or white to stand out on it
//   +, -, *, ==                        as the library defines them (* filters, opaque)
//   repr                               Color(1, 0.5019608, 0, 1)
#include <pybind11/pybind11.h>

class py_Color {
public:
  static void Register(pybind11::module_& module);
};
