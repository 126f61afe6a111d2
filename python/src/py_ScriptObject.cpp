#include "py_ScriptObject.h"

#include "py_Library.h"

omu_ScriptHandle py_ScriptObject::Hold(PyObject* object) {
  Py_INCREF(object);
  return {object, &Release};
}

void py_ScriptObject::Release(void* object) {
  if (!py_Library::InterpreterAlive()) return;
  const PyGILState_STATE state = PyGILState_Ensure();
  Py_DECREF(static_cast<PyObject*>(object));
  PyGILState_Release(state);
}
