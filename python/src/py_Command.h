#pragma once
// A native command as a Python callable: a CPython type with a vectorcall entry that hands
// the call's arguments straight to the binder (py_CallArguments), with no Python-level
// argument parsing in between. The handler receives the omu_Arguments, binds them with
// Begin/Get/End and answers a new primitive (null for None) that the command owns.
// Every call is journaled (py_Journal), and a Ctrl-C seen while the command ran
// (py_Interrupt) raises the KeyboardInterrupt when it returns.
#include <omu_Arguments.h>
#include <pybind11/pybind11.h>

class py_Command {
public:
  using Handler = omu_Primitive* (*)(omu_Arguments& args);

  // Adds the command `name` to module; doc is its __doc__.
  static void Add(pybind11::module_& module, const char* name, Handler handler, const char* doc);

private:
  static PyTypeObject* Type();
  static PyObject* Call(PyObject* self, PyObject* const* args, std::size_t nargsf,
                        PyObject* kwnames);
  static PyObject* Repr(PyObject* self);
};
