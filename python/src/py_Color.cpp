#include "py_Color.h"

#include "py_Caster.h"
#include "py_Triple.h"

#include <g3d_Color.h>
#include <pybind11/operators.h>

namespace py = pybind11;
using namespace pybind11::literals;

namespace {
g3d_Color FromName(const py::str& text, float alpha) {
  const cow_String name = py_Caster<cow_String>::FromPython(text.ptr());
  return g3d_Color().SetByName(name, alpha);
}

g3d_Color FromHsv(float h, float s, float v, float alpha) {
  g3d_Color color(0, 0, 0, alpha);
  return color.SetHSV(_HSV{h, s, v});
}

std::string Repr(const g3d_Color& c) {
  return "Color(" + py_Triple::Text(c.r) + ", " + py_Triple::Text(c.g) + ", " +
         py_Triple::Text(c.b) + ", " + py_Triple::Text(c.a) + ")";
}
}  // namespace

void py_Color::Register(py::module_& module) {
  py::class_<g3d_Color>(module, "Color", "A colour: red, green, blue and alpha in [0, 1].")
      .def(py::init<float, float, float, float>(), "r"_a = 0.0f, "g"_a = 0.0f, "b"_a = 0.0f,
           "a"_a = 1.0f)
      .def_static("from_name", &FromName, "text"_a, "alpha"_a = 1.0f,
                  "A colour name of the table or #RRGGBB text; ColorError for an unknown name.")
      .def_static("from_hsv", &FromHsv, "h"_a, "s"_a, "v"_a, "alpha"_a = 1.0f)
      .def_static(
          "from_rgba", [](unsigned int packed) { return g3d_Color().Set(packed); }, "packed"_a,
          "From 0xRRGGBBAA.")
      .def_readwrite("r", &g3d_Color::r)
      .def_readwrite("g", &g3d_Color::g)
      .def_readwrite("b", &g3d_Color::b)
      .def_readwrite("a", &g3d_Color::a)
      .def_property_readonly("components",
                             [](const g3d_Color& c) { return py::make_tuple(c.r, c.g, c.b, c.a); })
      .def_property_readonly("rgba", &g3d_Color::GetRGBA)
      .def_property_readonly("hsv",
                             [](const g3d_Color& c) {
                               const _HSV hsv = c.GetHSV();
                               return py::make_tuple(hsv.h, hsv.s, hsv.v);
                             })
      .def_property_readonly("luma", &g3d_Color::Luma)
      .def("contrasting", &g3d_Color::GetContrastingColor,
           "Black on a light colour, white on a dark one.")
      .def(py::self + py::self)
      .def(py::self - py::self)
      .def(py::self * py::self)
      .def(
          "__eq__", [](const g3d_Color& a, const g3d_Color& b) { return a == b; },
          py::is_operator())
      .def("__repr__", &Repr);
}
