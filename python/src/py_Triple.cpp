#include "py_Triple.h"

#include "py_Components.h"

namespace py = pybind11;

namespace {
std::string TypeName(py::handle value) { return Py_TYPE(value.ptr())->tp_name; }

float Item(py::handle sequence, Py_ssize_t index) {
  const auto item = py::reinterpret_steal<py::object>(PySequence_GetItem(sequence.ptr(), index));
  if (!item) throw py::error_already_set();
  const double number = PyFloat_AsDouble(item.ptr());
  if (number == -1.0 && PyErr_Occurred()) throw py::error_already_set();
  return static_cast<float>(number);
}
}  // namespace

g3d_Vector py_Triple::Vector(py::handle value, const char* what) {
  if (!PySequence_Check(value.ptr()) || PyUnicode_Check(value.ptr()) ||
      PyBytes_Check(value.ptr())) {
    throw py::type_error(std::string(what) + " must be a sequence of 3 numbers, not " +
                         TypeName(value));
  }
  const Py_ssize_t size = PySequence_Size(value.ptr());
  if (size < 0) throw py::error_already_set();
  if (size != 3) {
    throw py::value_error(std::string(what) + " must have 3 coordinates, not " +
                          std::to_string(size));
  }
  const float x = Item(value, 0), y = Item(value, 1), z = Item(value, 2);
  return {x, y, z};
}

g3d_Point py_Triple::Point(py::handle value, const char* what) {
  const g3d_Vector v = Vector(value, what);
  return {v.x, v.y, v.z};
}

py::tuple py_Triple::Tuple(const g3d_Vector& v) { return py::make_tuple(v.x, v.y, v.z); }

py::tuple py_Triple::Tuple(const g3d_Point& p) { return Tuple(p - g3d_Point()); }

py_Triple::FloatArray py_Triple::Rows(py::handle value, int columns, const char* what) {
  FloatArray rows(py::reinterpret_borrow<py::object>(value));  // raises what NumPy raises
  if (rows.ndim() != 2 || rows.shape(1) != columns) {
    std::string shape;
    for (py::ssize_t i = 0; i < rows.ndim(); ++i) {
      if (i) shape += ", ";
      shape += std::to_string(rows.shape(i));
    }
    if (rows.ndim() == 1) shape += ",";
    throw py::value_error(std::string(what) + " must have the shape (N, " +
                          std::to_string(columns) + "), not (" + shape + ")");
  }
  return rows;
}

py_Triple::FloatArray py_Triple::NewRows(py::ssize_t n, int columns) {
  return FloatArray({n, static_cast<py::ssize_t>(columns)});
}

std::string py_Triple::Text(float value) {
  std::string text;
  py_Components::AppendShortest(text, value);
  return text;
}

std::string py_Triple::Text(const g3d_Vector& v) {
  return "(" + Text(v.x) + ", " + Text(v.y) + ", " + Text(v.z) + ")";
}
