#include "py_JournalText.h"

#include "py_ArrayConverter.h"
#include "py_Caster.h"

#include <omu_NameString.h>
#include <omu_PrimNumber.h>
#include <pybind11/pybind11.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace py = pybind11;

namespace {
void AppendRepr(std::string& out, PyObject* value) {
  const py::str text = py::repr(value);
  out += text.cast<std::string_view>();
}

void AppendFloat(std::string& out, double value) {
  if (std::isnan(value)) {
    out += "float('nan')";
    return;
  }
  if (std::isinf(value)) {
    out += value < 0 ? "-float('inf')" : "float('inf')";
    return;
  }
  char text[omu_PrimNumber::MaxDoubleText + 1];
  const int length = omu_PrimNumber::FormatDouble(value, text);
  text[length] = '\0';
  const double back = std::strtod(text, nullptr);
  if (std::bit_cast<std::uint64_t>(back) == std::bit_cast<std::uint64_t>(value)) {
    out.append(text, static_cast<std::size_t>(length));
    return;
  }
  char* shortest = PyOS_double_to_string(value, 'r', 0, Py_DTSF_ADD_DOT_0, nullptr);
  if (!shortest) throw py::error_already_set();
  out += shortest;
  PyMem_Free(shortest);
}

// A control character other than newline and tab is written raw by the library's form.
bool LibraryQuotesExactly(std::string_view text) {
  return std::ranges::none_of(
      text, [](char c) { return static_cast<unsigned char>(c) < 0x20 && c != '\n' && c != '\t'; });
}

void AppendText(std::string& out, PyObject* value) {
  const cow_String text = py_Caster<cow_String>::FromPython(value);
  if (LibraryQuotesExactly(text.View())) {
    out += omu_NameString(text).View();
  } else {
    AppendRepr(out, value);
  }
}

template <class Items>
void AppendItems(std::string& out, const Items& items) {
  bool first = true;
  for (const py::handle item : items) {
    if (!first) out += ", ";
    first = false;
    py_JournalText::Append(out, item.ptr());
  }
}

void AppendDict(std::string& out, PyObject* value) {
  out += '{';
  bool first = true;
  for (const auto& [key, item] : py::reinterpret_borrow<py::dict>(value)) {
    if (!first) out += ", ";
    first = false;
    py_JournalText::Append(out, key.ptr());
    out += ": ";
    py_JournalText::Append(out, item.ptr());
  }
  out += '}';
}

void AppendArray(std::string& out, PyObject* value) {
  const auto array = py::reinterpret_borrow<py::object>(value);
  out += "numpy.array(";
  py_JournalText::Append(out, array.attr("tolist")().ptr());
  out += ", dtype=";
  AppendRepr(out, py::str(array.attr("dtype")).ptr());
  out += ')';
  if (array.attr("size").cast<Py_ssize_t>() == 0) {
    out += ".reshape(";
    py_JournalText::Append(out, array.attr("shape").ptr());
    out += ')';
  }
}
}  // namespace

void py_JournalText::Append(std::string& out, PyObject* value) {
  if (PyFloat_Check(value)) return AppendFloat(out, PyFloat_AS_DOUBLE(value));
  if (PyUnicode_Check(value)) return AppendText(out, value);
  if (PyComplex_Check(value)) {
    out += "complex(";
    AppendFloat(out, PyComplex_RealAsDouble(value));
    out += ", ";
    AppendFloat(out, PyComplex_ImagAsDouble(value));
    out += ')';
    return;
  }
  if (PyTuple_Check(value)) {
    out += '(';
    AppendItems(out, py::reinterpret_borrow<py::tuple>(value));
    out += PyTuple_GET_SIZE(value) == 1 ? ",)" : ")";
    return;
  }
  if (PyList_Check(value)) {
    out += '[';
    AppendItems(out, py::reinterpret_borrow<py::list>(value));
    out += ']';
    return;
  }
  if (PyDict_Check(value)) return AppendDict(out, value);
  if (py::isinstance<omu_PrimEnumBase>(value)) {
    out += "SymbolicConstant(";
    out += omu_NameString(py::handle(value).cast<const omu_PrimEnumBase&>().Name()).View();
    out += ')';
    return;
  }
  if (py_ArrayConverter::IsArray(value)) return AppendArray(out, value);
  if (PyLong_Check(value) && !PyBool_Check(value) && !PyLong_CheckExact(value)) {
    // An int subclass (an IntEnum) as the plain int it carries.
    const auto plain = py::reinterpret_steal<py::object>(PyNumber_Long(value));
    if (!plain) throw py::error_already_set();
    return AppendRepr(out, plain.ptr());
  }
  // int (in full), bool, None and the rest.
  AppendRepr(out, value);
}
