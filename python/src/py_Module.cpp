// The cvxutils module: the library's values, errors, commands and repository objects as a
// script meets them.
#include "py_Caster.h"
#include "py_DemoCommands.h"
#include "py_ErrorSamples.h"
#include "py_ErrorTranslator.h"
#include "py_Geometry.h"
#include "py_InterfaceObject.h"
#include "py_Library.h"
#include "py_Session.h"
#include "py_ValueConverter.h"
#include "py_ValueTypes.h"
#include "py_Viewing.h"

#include <UTI_CaeUtils.h>
#include <pybind11/pybind11.h>

namespace py = pybind11;

namespace {
py::object Echo(py::handle value) {
  const omu_PrimOwner primitive = py_ValueConverter::ToPrimitive(value.ptr());
  return py::reinterpret_steal<py::object>(py_ValueConverter::ToPython(primitive.get()));
}

py::object Text(py::handle value) {
  const omu_PrimOwner primitive = py_ValueConverter::ToPrimitive(value.ptr());
  PyObject* text = py_Caster<cow_String>::ToPython(primitive->AsRepr());
  if (!text) throw py::error_already_set();
  return py::reinterpret_steal<py::object>(text);
}
}  // namespace

PYBIND11_MODULE(cvxutils, module) {
  module.doc() =
      "The CaeUtils library as a script meets it: values, errors, commands and "
      "repository objects.";
  module.attr("__version__") = UTI_CaeUtils_version();
  py_Library::Start();
  py_ErrorTranslator::Register(module);
  py_ValueTypes::Register(module);
  py_InterfaceObject::Register(module);
  py_DemoCommands::Register(module);
  py_ErrorSamples::Register(module);
  py_Geometry::Register(module);
  py_Viewing::Register(module);
  py_Session::Register(module);
  module.def("echo", &Echo, py::arg("value"),
             "Carries value into the library's primitive and back.");
  module.def("text", &Text, py::arg("value"),
             "The library's text form of the primitive that carries value.");
}
