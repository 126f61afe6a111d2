#pragma once
// The command raiseError(errorName, *fields): raises the library's scripting error whose
// script name is errorName ("RangeError", "KeywordTypeError", ...), built from the fields in
// the order the error class declares them (ints and texts, bound by position). For scripts
// and tests that need to meet each error as a command would raise it; an unknown name
// raises KeyError, wrong fields the binder's TypeError.
#include <pybind11/pybind11.h>

class py_ErrorSamples {
public:
  static void Register(pybind11::module_& module);
};
