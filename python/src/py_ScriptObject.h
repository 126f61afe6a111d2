#pragma once
// A script object the library carries without looking inside (omu_PyObjectWrapper): the
// handle owns one reference to it, dropped when the last copy of the handle goes. That may
// happen on any thread and at any time: the release takes the interpreter lock, and after
// the interpreter has shut down it lets the object go without touching the interpreter.
#include <Python.h>
#include <omu_ScriptHandle.h>

class py_ScriptObject {
public:
  // A handle holding a new reference to object.
  static omu_ScriptHandle Hold(PyObject* object);
  // The object a handle holds, borrowed.
  static PyObject* Object(const omu_ScriptHandle& handle) noexcept {
    return static_cast<PyObject*>(handle.Get());
  }

private:
  static void Release(void* object);
};
