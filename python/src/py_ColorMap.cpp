#include "py_ColorMap.h"

#include "py_Caster.h"

#include <g3d_ColorMap.h>

namespace py = pybind11;
using namespace pybind11::literals;

namespace {
// The table as a script sees it: no instances, only the class's static calls.
struct ColorTable {};

cow_String Name(const py::str& name) { return py_Caster<cow_String>::FromPython(name.ptr()); }

py::list Names() {
  py::list names;
  for (const auto& [name, color] : g3d_ColorMap::Instance().Colors()) {
    names.append(py::reinterpret_steal<py::object>(py_Caster<cow_String>::ToPython(name)));
  }
  return names;
}

py::object Find(const py::str& name) {
  const g3d_Color* color = g3d_ColorMap::Instance().Find(Name(name));
  return color ? py::cast(*color) : py::none();
}
}  // namespace

void py_ColorMap::Register(py::module_& module) {
  py::class_<ColorTable>(module, "ColorMap", "The table of colour names.")
      .def_static("names", &Names)
      .def_static(
          "lookup", [](const py::str& name) { return g3d_ColorMap::Instance().Lookup(Name(name)); },
          "name"_a, "The colour of a name; ColorError for an unknown one.")
      .def_static("find", &Find, "name"_a, "The colour of a name, or None.")
      .def_static("count", [] { return g3d_ColorMap::Instance().Length(); });
}
