#include "py_Method.h"

#include "py_CallArguments.h"
#include "py_CallableType.h"
#include "py_InterfaceObject.h"

#include <cstddef>

namespace py = pybind11;

namespace {
struct MethodObject {
  PyObject_HEAD vectorcallfunc vectorcall;
  PyObject* owner;
  PyObject* name;
};
}  // namespace

PyTypeObject* py_Method::Type() {
  static PyTypeObject* const type = py_CallableType::Make<MethodObject>(
      "cvxutils.Method",
      {{"__name__", offsetof(MethodObject, name)}, {"__self__", offsetof(MethodObject, owner)}},
      &Repr);
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

PyObject* py_Method::Call(PyObject* self, PyObject* const* args, std::size_t nargsf,
                          PyObject* kwnames) {
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
