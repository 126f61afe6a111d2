#pragma once
// The texts of interned Python strings, made once per string: the keyword names a call passes
// and the string constants of a script's code are interned, so the text of each is kept under
// the string's identity, with a reference that keeps the identity from being reused; a call
// then shares the text instead of converting and allocating it. Strings that are not interned
// (built at run time) convert on every call, and at most Capacity strings are kept, so a script
// that interns strings endlessly cannot grow the table. Call with the GIL held.
#include <Python.h>
#include <cow_String.h>

class py_InternedTexts {
public:
  static constexpr std::size_t Capacity = 1024;

  // The UTF-8 text of a str; raises (pybind11::error_already_set) on lone surrogates.
  static cow_String Text(PyObject* string);

private:
  static cow_String Converted(PyObject* string);
};
