#pragma once
// Every failure of the library reaches Python as an exception; no C++ exception crosses into
// the interpreter.
//
//   a scripting error   the exception class its PythonType() names: the built-in class of
//                       that name ("TypeError", "KeyError", ...), else the module's class of
//                       that name, which derives from the closest built-in (CorvexNameError,
//                       RangeError, FontError and ColorError from ValueError, AccessError
//                       from ReferenceError, GuiAccessError from RuntimeError). args[0] is its
//                       JournalMessage byte for byte (as UTF-8); its fields are attributes
//                       (py_ErrorFields).
//   any other library failure (nex_TextException, nex_AssertException), a std::exception
//                       RuntimeError with its text; std::bad_alloc MemoryError
//   a Python error carried through native code (pybind11::error_already_set)
//                       restored as it was
//
// Call with the GIL held.
#include <pybind11/pybind11.h>

class nex_CommandException;

class py_ErrorTranslator {
public:
  // Adds the error classes to module and has pybind11-bound functions translate through
  // RaiseCurrent. Once, at import.
  static void Register(pybind11::module_& module);
  // Sets the Python error for the exception being handled: call only inside a catch block.
  static void RaiseCurrent() noexcept;
  // The Python class a scripting error is raised as.
  static pybind11::handle ClassOf(const nex_CommandException& error);

private:
  static void RaiseScriptingError(const nex_CommandException& error);
};
