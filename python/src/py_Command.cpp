#include "py_Command.h"

#include "py_CallArguments.h"
#include "py_CallableType.h"
#include "py_Interrupt.h"
#include "py_Journal.h"

#include <cstddef>

namespace py = pybind11;

namespace {
struct CommandObject {
  PyObject_HEAD vectorcallfunc vectorcall;
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
  const auto object = py::reinterpret_steal<py::object>(reinterpret_cast<PyObject*>(command));
  if (!command->name || !command->doc) throw py::error_already_set();
  module.attr(name) = object;
  if (!py::hasattr(module, "Command")) module.attr("Command") = reinterpret_cast<PyObject*>(Type());
}

PyObject* py_Command::Call(PyObject* self, PyObject* const* args, std::size_t nargsf,
                           PyObject* kwnames) {
  // A Ctrl-C seen outside any command is delivered before this one runs.
  if (py_Interrupt::Raise()) return nullptr;
  const Handler handler = reinterpret_cast<CommandObject*>(self)->handler;
  py_Journal& journal = py_Journal::Instance();
  PyObject* result = py_CallArguments::Run(
      [&](omu_Arguments& arguments) {
        std::unique_ptr<omu_Primitive> answer(handler(arguments));
        // Journaled once the command has done its work, even if its answer cannot be handed
        // back: the model has changed either way.
        journal.Succeeded(self, args, nargsf, kwnames, arguments);
        return answer.release();
      },
      args, nargsf, kwnames);
  if (result && !py_Interrupt::Pending()) return result;
  Py_XDECREF(result);
  // Ctrl-C during the command: the KeyboardInterrupt its handler raised, whatever the command
  // raised or answered.
  py_Interrupt::Raise();
  if (!result) journal.Failed(self, args, nargsf, kwnames);
  return nullptr;
}

PyObject* py_Command::Repr(PyObject* self) {
  return PyUnicode_FromFormat("<cvxutils command %U>",
                              reinterpret_cast<CommandObject*>(self)->name);
}
