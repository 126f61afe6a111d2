#include "py_Vector.h"

#include "py_Components.h"

#include <g3d_Vector.h>
#include <pybind11/operators.h>

namespace py = pybind11;
using namespace pybind11::literals;

namespace {
constexpr float g3d_Vector::*const kMembers[] = {&g3d_Vector::x, &g3d_Vector::y, &g3d_Vector::z};

g3d_Vector FromSequence(const py::object& sequence) {
  double numbers[3];
  py_Components::Read(sequence, numbers, 3, 3, "a Vector is 3 numbers");
  return {float(numbers[0]), float(numbers[1]), float(numbers[2])};
}

float AngleWith(const g3d_Vector& v, const g3d_Vector& other, bool normalized,
                const g3d_Vector* reference) {
  return reference ? v.AngleWith(other, normalized, *reference) : v.AngleWith(other, normalized);
}
}  // namespace

void py_Vector::Register(py::module_& module) {
  py::class_<g3d_Vector> vector(module, "Vector", "A direction of three single-precision floats.");
  vector.def(py::init<>(), "The zero vector.")
      .def(py::init<float, float, float>(), "x"_a, "y"_a, "z"_a)
      .def(py::init(&FromSequence), "components"_a, "From a sequence of three numbers.");
  py_Components::AddComponents(vector, "Vector", kMembers);
  vector.def(py::self + py::self)
      .def(py::self - py::self)
      .def(-py::self)
      .def(py::self * float())
      .def(float() * py::self)
      .def(py::self / float())
      .def(py::self == py::self)
      .def("dot", &g3d_Dot, "other"_a, "The dot product, in float.")
      .def("cross", &g3d_Cross, "other"_a, "self x other, right-handed.")
      .def("length", &g3d_Vector::Length, "Computed in double, narrowed to float.")
      .def("normalize", &g3d_Vector::Normalize, py::return_value_policy::reference_internal,
           "Makes the vector unit length in place and returns it. A vector shorter than the "
           "smallest normal float becomes zero; one of length 1 is left bit for bit.")
      .def("angle_with", &AngleWith, "other"_a, "normalized"_a = false,
           "reference"_a = static_cast<const g3d_Vector*>(nullptr),
           "The angle to other in radians, [0, pi]; cosines within 1e-5 of +-1 snap to 0 or "
           "pi and a zero vector gives pi/2. normalized takes both lengths as 1. With a "
           "reference direction, the signed turn in [0, 2 pi) seen from it.");
}
