#include "py_Session.h"

#include "py_Journal.h"
#include "py_ReporterSlot.h"

void py_Session::Register(pybind11::module_& module) {
  py_Journal::Register(module);
  py_ReporterSlot::Register(module);
}
