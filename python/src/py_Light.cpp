#include "py_Light.h"

#include "py_Caster.h"
#include "py_Triple.h"

#include <g3d_Light.h>

namespace py = pybind11;
using namespace pybind11::literals;

namespace {
using ColorName = cow_String g3d_Light::*;

py::object Text(const cow_String& text) {
  return py::reinterpret_steal<py::object>(py_Caster<cow_String>::ToPython(text));
}

g3d_Color Resolve(const cow_String& name) { return g3d_Color().SetByName(name, 1.0f); }

// A colour property that takes only what resolves, so a bad name fails where it is set.
template <ColorName member>
void AddColor(py::class_<g3d_Light>& light, const char* name) {
  light.def_property(
      name, [](const g3d_Light& l) { return Text(l.*member); },
      [](g3d_Light& l, const py::str& text) {
        const cow_String value = py_Caster<cow_String>::FromPython(text.ptr());
        Resolve(value);
        l.*member = value;
      });
}
}  // namespace

void py_Light::Register(py::module_& module) {
  py::class_<g3d_Light> light(module, "Light", "One light of a viewport's studio.");
  light.def(py::init<>())
      .def_readwrite("enabled", &g3d_Light::enabled)
      .def_readwrite("weight", &g3d_Light::weight)
      .def_readwrite("constant_attenuation", &g3d_Light::constantAttenuation)
      .def_readwrite("linear_attenuation", &g3d_Light::linearAttenuation)
      .def_readwrite("quadratic_attenuation", &g3d_Light::quadraticAttenuation)
      .def_property_readonly("position",
                             [](const g3d_Light& l) { return py_Triple::Tuple(l.position); })
      .def_readonly("latitude", &g3d_Light::latitude)
      .def_readonly("longitude", &g3d_Light::longitude)
      .def("set_position", &g3d_Light::SetPositionVector, "latitude"_a, "longitude"_a,
           py::return_value_policy::reference_internal)
      .def_property_readonly("colors",
                             [](const g3d_Light& l) {
                               return py::make_tuple(Resolve(l.ambientColor),
                                                     Resolve(l.diffuseColor),
                                                     Resolve(l.specularColor));
                             })
      .def(
          "__eq__", [](const g3d_Light& a, const g3d_Light& b) { return a == b; },
          py::is_operator());
  AddColor<&g3d_Light::ambientColor>(light, "ambient_color");
  AddColor<&g3d_Light::diffuseColor>(light, "diffuse_color");
  AddColor<&g3d_Light::specularColor>(light, "specular_color");
}
