#include "py_Point.h"

#include "py_Components.h"

#include <g3d_Point.h>
#include <pybind11/operators.h>

namespace py = pybind11;
using namespace pybind11::literals;

namespace {
constexpr float g3d_Point::*const kMembers[] = {&g3d_Point::x, &g3d_Point::y, &g3d_Point::z,
                                                &g3d_Point::w};

g3d_Point FromSequence(const py::object& sequence) {
  double numbers[4] = {0.0, 0.0, 0.0, 1.0};
  py_Components::Read(sequence, numbers, 3, 4, "a Point is 3 or 4 numbers");
  return {float(numbers[0]), float(numbers[1]), float(numbers[2]), float(numbers[3])};
}
}  // namespace

void py_Point::Register(py::module_& module) {
  py::class_<g3d_Point> point(module, "Point",
                              "A homogeneous position of four single-precision floats.");
  point.def(py::init<>(), "The origin, (0, 0, 0, 1).")
      .def(py::init<float, float, float, float>(), "x"_a, "y"_a, "z"_a, "w"_a = 1.0f)
      .def(py::init(&FromSequence), "components"_a, "From a sequence of 3 or 4 numbers.");
  py_Components::AddComponents(point, "Point", kMembers);
  point.def(py::self - py::self)
      .def(py::self + g3d_Vector())
      .def(py::self - g3d_Vector())
      .def(py::self == py::self);
}
