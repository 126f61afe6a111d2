#include "py_XForm.h"

#include "py_Components.h"
#include "py_PointArray.h"

#include <g3d_XForm.h>
#include <pybind11/numpy.h>
#include <pybind11/operators.h>
#include <pybind11/stl.h>

#include <string>
#include <utility>

namespace py = pybind11;
using namespace pybind11::literals;

namespace {
using Index = std::pair<int, int>;

constexpr const char* kBulkDoc =
    "Transforms an (N, 3) array of points (w = 1) in one call, by the same float32 arithmetic "
    "as apply. A float32 array is transformed in place and returned, or into a new array when "
    "copy is true. A float64 array always gives a NEW float64 array: each number is narrowed "
    "to float32, transformed in float32 and widened back, so results carry float32 rounding. "
    "x, y, z of M p are kept; the w of a projective transform is dropped without dividing.";

g3d_XForm FromRows(const py::object& matrix) {
  const py::sequence rows = py_Components::Items(matrix, 4, 4, "an XForm is 4 rows of 4 numbers");
  double numbers[4][4];
  for (std::size_t i = 0; i < 4; ++i) {
    py_Components::Read(rows[i], numbers[i], 4, 4, "an XForm row is 4 numbers");
  }
  return g3d_XForm(numbers);
}

float& Element(g3d_XForm& form, Index at) {
  const auto [row, column] = at;
  if (row < 0 || row > 3 || column < 0 || column > 3) {
    throw py::index_error("an XForm index is (row, column), each 0 to 3");
  }
  return form.M(row, column);
}

py::array_t<float> Matrix(const g3d_XForm& form) {
  py::array_t<float> matrix({4, 4});
  float(&numbers)[4][4] = *reinterpret_cast<float(*)[4][4]>(matrix.mutable_data());
  form.GetM(numbers);
  return matrix;
}

std::string Repr(const g3d_XForm& form) {
  std::string text = "XForm([";
  for (int row = 0; row < 4; ++row) {
    text += row > 0 ? "], [" : "[";
    for (int column = 0; column < 4; ++column) {
      if (column > 0) text += ", ";
      py_Components::AppendNumber(text, form.GetM(row, column));
    }
  }
  return text + "]])";
}

template <typename Value>
Value Applied(const g3d_XForm& form, Value value) {
  form.XForm(&value, 1);
  return value;
}

// A new transform from one of the library's setters.
template <auto Setter, typename... Args>
g3d_XForm Made(Args... args) {
  g3d_XForm form;
  (form.*Setter)(args...);
  return form;
}

g3d_XForm Quaternion(float x, float y, float z, float w) {
  const float q[4] = {x, y, z, w};
  return Made<&g3d_XForm::SetRotate3d>(q);
}

g3d_XForm RotationZ(float qz, float qw) {
  const float c[2] = {qz, qw};
  return Made<&g3d_XForm::SetRotate2d>(c);
}

void AddFactories(py::class_<g3d_XForm>& form) {
  constexpr auto kTranslateBy =
      static_cast<g3d_XForm& (g3d_XForm::*)(const g3d_Vector&)>(&g3d_XForm::SetTranslate);
  constexpr auto kTranslateTo =
      static_cast<g3d_XForm& (g3d_XForm::*)(const g3d_Point&)>(&g3d_XForm::SetTranslate);
  form.def_static("translation", &Made<kTranslateBy, const g3d_Vector&>, "offset"_a,
                  "Moves points by offset.")
      .def_static("translation", &Made<kTranslateTo, const g3d_Point&>, "point"_a,
                  "Moves the origin to point, divided by its w first unless that is 0 or 1.")
      .def_static("scaling", &Made<&g3d_XForm::SetScale, float, float, float>, "sx"_a, "sy"_a,
                  "sz"_a)
      .def_static("rotation", &Made<&g3d_XForm::SetRotate, float, const g3d_Vector&>, "degrees"_a,
                  "axis"_a,
                  "Right-handed about axis; a zero angle or zero axis gives the identity.")
      .def_static("quaternion", &Quaternion, "x"_a, "y"_a, "z"_a, "w"_a,
                  "The rotation of a unit quaternion (not normalised here).")
      .def_static("rotation_z", &RotationZ, "qz"_a, "qw"_a,
                  "The rotation about z of the quaternion (0, 0, qz, qw).")
      .def_static("columns",
                  &Made<&g3d_XForm::Set, const g3d_Vector&, const g3d_Vector&, const g3d_Vector&>,
                  "a"_a, "b"_a, "c"_a, "a, b, c as columns 0, 1, 2 of the upper 3x3.")
      .def_static(
          "perspective",
          &Made<&g3d_XForm::SetPerspectiveProjection, float, float, float, float, float, float>,
          "left"_a, "right"_a, "top"_a, "bottom"_a, "near"_a, "far"_a,
          "Top before bottom. Left = right, top = bottom or not far > near > 0 gives "
          "the identity.")
      .def_static(
          "orthographic",
          &Made<&g3d_XForm::SetOrthographicProjection, float, float, float, float, float, float>,
          "left"_a, "right"_a, "top"_a, "bottom"_a, "near"_a, "far"_a,
          "Top before bottom. Left = right, top = bottom or not far > near gives the "
          "identity.");
}

void AddModifiers(py::class_<g3d_XForm>& form) {
  constexpr auto self = py::return_value_policy::reference_internal;
  form.def("translate", &g3d_XForm::Translate, "x"_a, "y"_a, "z"_a, self)
      .def("scale", &g3d_XForm::Scale, "sx"_a, "sy"_a, "sz"_a, self)
      .def("rotate", &g3d_XForm::Rotate, "degrees"_a, "axis"_a, self)
      .def("transpose", &g3d_XForm::Transpose, self)
      .def("invert", &g3d_XForm::Invert, self,
           "Inverts in place; a singular transform (determinant exactly 0) is left as it is.")
      .def("determinant", &g3d_XForm::Determinant)
      .def("__getitem__", [](g3d_XForm& form, Index at) { return Element(form, at); })
      .def("__setitem__", [](g3d_XForm& form, Index at, float value) { Element(form, at) = value; })
      .def_property_readonly("matrix", &Matrix, "The 4x4 float32 matrix, a copy.");
}
}  // namespace

void py_XForm::Register(py::module_& module) {
  py::class_<g3d_XForm> form(module, "XForm",
                             "A 4x4 single-precision transform of column vectors, p' = M p.");
  form.def(py::init<>(), "The identity.")
      .def(py::init<const g3d_XForm&>(), "other"_a)
      .def(py::init(&FromRows), "matrix"_a, "From 4 rows of 4 numbers.");
  AddFactories(form);
  AddModifiers(form);
  form.def(
          "__matmul__", [](const g3d_XForm& a, const g3d_XForm& b) { return a * b; },
          py::is_operator())
      .def("__imatmul__", &g3d_XForm::operator*=, py::is_operator(),
           py::return_value_policy::reference_internal)
      .def(
          "__eq__", [](const g3d_XForm& a, const g3d_XForm& b) { return (a == b) != 0; },
          py::is_operator())
      .def("apply", &Applied<g3d_Point>, "point"_a,
           "M p on all four components; no division by w follows.")
      .def("apply", &Applied<g3d_Vector>, "vector"_a, "The upper 3x3 times the vector.")
      .def("transform_points", &py_PointArray::TransformPoints, "points"_a, "copy"_a = false,
           kBulkDoc)
      .def("transform_vectors", &py_PointArray::TransformVectors, "vectors"_a, "copy"_a = false,
           "As transform_points, by the upper 3x3 only (the translation is ignored).")
      .def("__repr__", &Repr);
}
