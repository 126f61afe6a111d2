#pragma once
// A method of a repository object as a Python callable, bound to the Python object that holds
// the handle: a CPython type with a vectorcall entry, which hands the call's arguments to the
// method's handler through the object's method table (omu_InterfaceObj::CallMethod).
#include <Python.h>

class py_Method {
public:
  // A new reference: the method `name` of owner, a cvxutils.RepositoryObject.
  static PyObject* Bind(PyObject* owner, PyObject* name);

private:
  static PyTypeObject* Type();
  static PyObject* Call(PyObject* self, PyObject* const* args, std::size_t nargsf,
                        PyObject* kwnames);
  static PyObject* Repr(PyObject* self);
};
