#include "py_InterfaceObject.h"

#include "py_Caster.h"
#include "py_Method.h"
#include "py_ValueConverter.h"

#include <omu_AccessErrorException.h>
#include <omu_AttributeErrorException.h>

#include <memory>

namespace py = pybind11;

namespace {
constexpr const char* kSource = "python/src/py_InterfaceObject";

py::object Steal(PyObject* value) {
  if (!value) throw py::error_already_set();
  return py::reinterpret_steal<py::object>(value);
}

[[noreturn]] void NoSuchAttribute(const omu_InterfaceObj& object, const std::string& name) {
  NEX_THROW(omu_AttributeErrorException(
                2, atr_StringBase::Format("'%s' object has no attribute '%s'",
                                          object.TypeString().CStr(), name.c_str())),
            kSource);
}
}  // namespace

void py_InterfaceObject::Register(py::module_& module) {
  py::class_<omu_InterfaceObj>(
      module, "RepositoryObject",
      "A repository object of the application, reached through its handle.")
      .def("__getattr__", &GetAttribute)
      .def("__setattr__", &SetAttribute)
      .def("__delattr__", &DeleteAttribute)
      .def("__dir__", &Dir)
      .def("__repr__", &Repr)
      .def(
          "__eq__", [](const omu_InterfaceObj& a, const omu_InterfaceObj& b) { return a == b; },
          py::is_operator())
      .def("__hash__", [](const omu_InterfaceObj& object) {
        return py::hash(py::str(object.PathString().StdString()));
      });
}

omu_InterfaceObj& py_InterfaceObject::Live(omu_InterfaceObj& object) {
  if (object.IsStale()) {
    NEX_THROW(omu_AccessErrorException(object.PathString()), kSource);
  }
  return object;
}

py::object py_InterfaceObject::GetAttribute(py::object self, const std::string& name) {
  omu_InterfaceObj& object = Live(self.cast<omu_InterfaceObj&>());
  bool deprecated = false;
  if (object.IsMethod(name.c_str(), deprecated)) {
    return Steal(py_Method::Bind(self.ptr(), py::str(name).ptr()));
  }
  const std::unique_ptr<omu_Primitive> value(object.GetMember(name.c_str(), deprecated));
  if (!value) NoSuchAttribute(object, name);
  return Steal(py_ValueConverter::ToPython(value.get()));
}

void py_InterfaceObject::SetAttribute(omu_InterfaceObj& object, const std::string& name,
                                      py::handle value) {
  Live(object);
  omu_Arguments arguments(1);
  arguments.Put(py_ValueConverter::ToPrimitive(value.ptr()).release());
  bool deprecated = false;
  const std::unique_ptr<omu_Primitive> result(
      object.SetMember(name.c_str(), arguments, deprecated));
  if (result) return;
  if (!object.MemberList().Contains(cow_String(name))) NoSuchAttribute(object, name);
  NEX_THROW(omu_AttributeErrorException(1, name), kSource);
}

void py_InterfaceObject::DeleteAttribute(omu_InterfaceObj& object, const std::string& name) {
  Live(object).DeleteMember(cow_String(name));
}

py::list py_InterfaceObject::Dir(omu_InterfaceObj& object) {
  py::list names;
  for (const cow_List<cow_String>& list : {object.MemberList(), object.MethodList()}) {
    for (const cow_String& name : list) names.append(Steal(py_Caster<cow_String>::ToPython(name)));
  }
  names.attr("sort")();
  return names;
}

py::object py_InterfaceObject::Repr(const omu_InterfaceObj& object) {
  if (object.IsStale()) return py::str("<stale handle>");
  return Steal(py_Caster<cow_String>::ToPython(object.AsRepr()));
}

omu_Primitive* py_InterfaceObject::CallMethod(PyObject* owner, PyObject* name,
                                              omu_Arguments& arguments) {
  omu_InterfaceObj& object = Live(py::handle(owner).cast<omu_InterfaceObj&>());
  const cow_String method = py_Caster<cow_String>::FromPython(name);
  bool deprecated = false;
  return object.CallMethod(object.PathString().CStr(), method.CStr(), arguments, deprecated);
}
