#pragma once
// What a session offers a script beside the commands: the journal of the commands it ran
// (py_Journal) and the reporter its native long tasks report to (py_ReporterSlot).
#include <pybind11/pybind11.h>

class py_Session {
public:
  static void Register(pybind11::module_& module);
};
