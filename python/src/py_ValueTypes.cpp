#include "py_ValueTypes.h"

#include "py_Caster.h"

#include <omu_PrimEnumBase.h>
#include <omu_PrimPath.h>
#include <pybind11/stl.h>

#include <string>
#include <vector>

namespace py = pybind11;
using namespace pybind11::literals;

namespace {
py::str Text(const cow_String& text) {
  return py::reinterpret_steal<py::str>(py_Caster<cow_String>::ToPython(text));
}

omu_PrimPath MakePath(const std::vector<std::string>& components, const std::string& contextType) {
  if (contextType.size() > 1) throw py::value_error("a path's context type is one character");
  std::vector<cow_String> texts(components.begin(), components.end());
  return omu_PrimPath(cow_List<cow_String>(std::move(texts)),
                      contextType.empty() ? '\0' : contextType[0]);
}

std::string Dotted(const omu_PrimPath& path) {
  std::string dotted;
  for (const cow_String& component : path.Context()) {
    if (!dotted.empty()) dotted += '.';
    dotted += component.View();
  }
  return dotted;
}

void RegisterPath(py::module_& module) {
  py::class_<omu_PrimPath>(module, "Path", "A path to an object of the application, 'a.b.c'.")
      .def(py::init(&MakePath), "components"_a, "context_type"_a = "")
      .def(py::init([](const std::string& dotted, const std::string& contextType) {
             std::vector<std::string> components;
             for (std::size_t start = 0;;) {
               const std::size_t dot = dotted.find('.', start);
               components.push_back(dotted.substr(start, dot - start));
               if (dot == std::string::npos) break;
               start = dot + 1;
             }
             return MakePath(components, contextType);
           }),
           "dotted"_a, "context_type"_a = "")
      .def_property_readonly("components",
                             [](const omu_PrimPath& path) {
                               py::list components;
                               for (const cow_String& component : path.Context()) {
                                 components.append(Text(component));
                               }
                               return components;
                             })
      .def_property_readonly("context_type",
                             [](const omu_PrimPath& path) {
                               return path.ContextType() ? std::string(1, path.ContextType())
                                                         : std::string();
                             })
      .def("__repr__",
           [](const omu_PrimPath& path) {
             return "cvxutils.Path(" + path.AsString(0).StdString() + ")";
           })
      .def("__str__", &Dotted)
      .def(
          "__eq__", [](const omu_PrimPath& a, const omu_PrimPath& b) { return a == b; },
          py::is_operator())
      .def("__hash__", [](const omu_PrimPath& path) { return py::hash(py::str(Dotted(path))); });
}

void RegisterConstant(py::module_& module) {
  py::class_<omu_PrimEnumBase>(module, "SymbolicConstant",
                               "An enumerated value, carried by its symbolic name.")
      .def(py::init([](const std::string& name) { return omu_PrimEnumBase(cow_String(name)); }),
           "name"_a)
      .def_property_readonly("name",
                             [](const omu_PrimEnumBase& constant) { return Text(constant.Name()); })
      .def("__repr__", [](const omu_PrimEnumBase& constant) { return Text(constant.Name()); })
      .def(
          "__eq__", [](const omu_PrimEnumBase& a, const omu_PrimEnumBase& b) { return a == b; },
          py::is_operator())
      .def(
          "__eq__",
          [](const omu_PrimEnumBase& a, const py::str& b) { return Text(a.Name()).equal(b); },
          py::is_operator())
      .def("__hash__",
           [](const omu_PrimEnumBase& constant) { return py::hash(Text(constant.Name())); });
}
}  // namespace

void py_ValueTypes::Register(py::module_& module) {
  RegisterPath(module);
  RegisterConstant(module);
}
