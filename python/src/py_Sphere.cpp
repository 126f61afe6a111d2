#include "py_Sphere.h"

#include "py_Triple.h"

#include <g3d_Sphere.h>
#include <pybind11/operators.h>

namespace py = pybind11;
using namespace pybind11::literals;

namespace {
std::string Repr(const g3d_Sphere& s) {
  return "Sphere(" + py_Triple::Text(s.center - g3d_Point()) + ", " + py_Triple::Text(s.radius) +
         ")";
}
}  // namespace

void py_Sphere::Register(py::module_& module) {
  py::class_<g3d_Sphere>(module, "Sphere", "A bounding sphere; a negative radius is empty.")
      .def(py::init([](py::handle center, float radius) {
             return g3d_Sphere(py_Triple::Point(center, "center"), radius);
           }),
           "center"_a = py::make_tuple(0, 0, 0), "radius"_a = 1.0f)
      .def_property(
          "center", [](const g3d_Sphere& s) { return py_Triple::Tuple(s.center); },
          [](g3d_Sphere& s, py::handle center) { s.center = py_Triple::Point(center, "center"); })
      .def_readwrite("radius", &g3d_Sphere::radius)
      .def_property_readonly("empty", &g3d_Sphere::IsEmpty)
      .def("contains", &g3d_Sphere::Contains, "other"_a)
      .def(py::self + py::self)
      .def(py::self == py::self)
      .def("__repr__", &Repr);
}
