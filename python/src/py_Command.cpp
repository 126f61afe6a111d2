#include "py_Command.h"

#include "py_CallArguments.h"

#include <structmember.h>

#include <cstddef>

namespace py = pybind11;

namespace {
struct CommandObject {
  PyObject_HEAD
  vectorcallfunc vectorcall;
  py_Command::Handler handler;
  PyObject* name;
  PyObject* doc;
};
}  // namespace

PyTypeObject* py_Command::Type() {
  static PyTypeObject* type = [] {
    static PyMemberDef members[] = {
        {"__vectorcalloffset__", T_PYSSIZET, offsetof(CommandObject, vectorcall), READONLY, nullptr},
        {"__name__", T_OBJECT, offsetof(CommandObject, name), READONLY, nullptr},
        {"__doc__", T_OBJECT, offsetof(CommandObject, doc), READONLY, nullptr},
        {nullptr, 0, 0, 0, nullptr}};
    static PyType_Slot slots[] = {{Py_tp_call, reinterpret_cast<void*>(&PyVectorcall_Call)},
                                  {Py_tp_repr, reinterpret_cast<void*>(&Repr)},
                                  {Py_tp_dealloc, reinterpret_cast<void*>(&Dealloc)},
                                  {Py_tp_members, members},
                                  {0, nullptr}};
    static PyType_Spec spec = {"cvxutils.Command", sizeof(CommandObject), 0,
                               Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_VECTORCALL, slots};
    auto* made = reinterpret_cast<PyTypeObject*>(PyType_FromSpec(&spec));
    if (!made) throw py::error_already_set();
    return made;  // kept for the process
  }();
  return type;
}

void py_Command::Add(py::module_& module, const char* name, Handler handler, const char* doc) {
  auto* command = PyObject_New(CommandObject, Type());
  if (!command) throw py::error_already_set();
  command->vectorcall = &Call;
  command->handler = handler;
  command->name = PyUnicode_FromString(name);
  command->doc = PyUnicode_FromString(doc);
  const py::object object = py::reinterpret_steal<py::object>(reinterpret_cast<PyObject*>(command));
  if (!command->name || !command->doc) throw py::error_already_set();
  module.attr(name) = object;
}

PyObject* py_Command::Call(PyObject* self, PyObject* const* args, std::size_t nargsf, PyObject* kwnames) {
  const Handler handler = reinterpret_cast<CommandObject*>(self)->handler;
  return py_CallArguments::Run(handler, args, nargsf, kwnames);
}

PyObject* py_Command::Repr(PyObject* self) {
  return PyUnicode_FromFormat("<cvxutils command %U>", reinterpret_cast<CommandObject*>(self)->name);
}

void py_Command::Dealloc(PyObject* self) {
  auto* command = reinterpret_cast<CommandObject*>(self);
  Py_XDECREF(command->name);
  Py_XDECREF(command->doc);
  PyTypeObject* type = Py_TYPE(self);
  PyObject_Free(self);
  Py_DECREF(type);
}
