#include "py_Components.h"

#include <charconv>

namespace py = pybind11;

namespace {
[[noreturn]] void Raise(PyObject* type, const char* shape, const std::string& found) {
  PyErr_Format(type, "%s, not %s", shape, found.c_str());
  throw py::error_already_set();
}
}  // namespace

py::sequence py_Components::Items(py::handle sequence, std::size_t min, std::size_t max,
                                  const char* shape) {
  PyObject* object = sequence.ptr();
  if (PyUnicode_Check(object) || PyBytes_Check(object) || !PySequence_Check(object)) {
    Raise(PyExc_TypeError, shape, Py_TYPE(object)->tp_name);
  }
  auto items = py::reinterpret_borrow<py::sequence>(sequence);
  const std::size_t count = items.size();
  if (count < min || count > max) Raise(PyExc_ValueError, shape, std::to_string(count));
  return items;
}

std::size_t py_Components::Read(py::handle sequence, double* out, std::size_t min, std::size_t max,
                                const char* shape) {
  const py::sequence items = Items(sequence, min, max, shape);
  const std::size_t count = items.size();
  for (std::size_t i = 0; i < count; ++i) {
    out[i] = PyFloat_AsDouble(items[i].ptr());
    if (out[i] == -1.0 && PyErr_Occurred()) throw py::error_already_set();
  }
  return count;
}

std::string py_Components::Repr(const char* name, const float* values, std::size_t count) {
  std::string text = name;
  text += '(';
  for (std::size_t i = 0; i < count; ++i) {
    if (i > 0) text += ", ";
    AppendNumber(text, values[i]);
  }
  text += ')';
  return text;
}

void py_Components::AppendShortest(std::string& out, float value) {
  char buffer[32];
  const char* end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
  out.append(buffer, static_cast<std::size_t>(end - buffer));
}

void py_Components::AppendNumber(std::string& out, float value) {
  const std::size_t start = out.size();
  AppendShortest(out, value);
  // Python's float text: a whole number keeps its ".0".
  if (out.find_first_of(".ein", start) == std::string::npos) out += ".0";
}
