#include "py_Method.h"

#include "py_CallArguments.h"
#include "py_InterfaceObject.h"

#include <structmember.h>

#include <cstddef>

namespace py = pybind11;

namespace {
struct MethodObject {
  PyObject_HEAD
  vectorcallfunc vectorcall;
  PyObject* owner;
  PyObject* name;
};
}  // namespace

PyTypeObject* py_Method::Type() {
  static PyTypeObject* type = [] {
    static PyMemberDef members[] = {
        {"__vectorcalloffset__", T_PYSSIZET, offsetof(MethodObject, vectorcall), READONLY, nullptr},
        {"__name__", T_OBJECT, offsetof(MethodObject, name), READONLY, nullptr},
        {"__self__", T_OBJECT, offsetof(MethodObject, owner), READONLY, nullptr},
        {nullptr, 0, 0, 0, nullptr}};
    static PyType_Slot slots[] = {{Py_tp_call, reinterpret_cast<void*>(&PyVectorcall_Call)},
                                  {Py_tp_repr, reinterpret_cast<void*>(&Repr)},
                                  {Py_tp_dealloc, reinterpret_cast<void*>(&Dealloc)},
                                  {Py_tp_members, members},
                                  {0, nullptr}};
    static PyType_Spec spec = {"cvxutils.Method", sizeof(MethodObject), 0,
                               Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_VECTORCALL, slots};
    auto* made = reinterpret_cast<PyTypeObject*>(PyType_FromSpec(&spec));
    if (!made) throw py::error_already_set();
    return made;  // kept for the process
  }();
  return type;
}

PyObject* py_Method::Bind(PyObject* owner, PyObject* name) {
  auto* method = PyObject_New(MethodObject, Type());
  if (!method) return nullptr;
  method->vectorcall = &Call;
  method->owner = Py_NewRef(owner);
  method->name = Py_NewRef(name);
  return reinterpret_cast<PyObject*>(method);
}

PyObject* py_Method::Call(PyObject* self, PyObject* const* args, std::size_t nargsf, PyObject* kwnames) {
  const auto* method = reinterpret_cast<MethodObject*>(self);
  return py_CallArguments::Run(
      [method](omu_Arguments& arguments) {
        return py_InterfaceObject::CallMethod(method->owner, method->name, arguments);
      },
      args, nargsf, kwnames);
}

PyObject* py_Method::Repr(PyObject* self) {
  const auto* method = reinterpret_cast<MethodObject*>(self);
  return PyUnicode_FromFormat("<method %U of %R>", method->name, method->owner);
}

void py_Method::Dealloc(PyObject* self) {
  auto* method = reinterpret_cast<MethodObject*>(self);
  Py_XDECREF(method->owner);
  Py_XDECREF(method->name);
  PyTypeObject* type = Py_TYPE(self);
  PyObject_Free(self);
  Py_DECREF(type);
}
