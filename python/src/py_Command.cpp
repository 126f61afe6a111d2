#include "py_Command.h"

#include "py_CallArguments.h"
#include "py_CallableType.h"

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
  static PyTypeObject* const type = py_CallableType::Make<CommandObject>(
      "cvxutils.Command",
      {{"__name__", offsetof(CommandObject, name)}, {"__doc__", offsetof(CommandObject, doc)}},
      &Repr);
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

PyObject* py_Command::Call(PyObject* self, PyObject* const* args, std::size_t nargsf,
                           PyObject* kwnames) {
  const Handler handler = reinterpret_cast<CommandObject*>(self)->handler;
  return py_CallArguments::Run(handler, args, nargsf, kwnames);
}

PyObject* py_Command::Repr(PyObject* self) {
  return PyUnicode_FromFormat("<cvxutils command %U>",
                              reinterpret_cast<CommandObject*>(self)->name);
}
