#pragma once
// The texts of a call's keyword names, made once per name. The names a call passes are
// interned Python strings (from the caller's code), so the text of each is kept under the
// string's identity, with a reference that keeps the identity from being reused; a call then
// shares the text instead of converting and allocating it. Names that are not interned
// (built at run time) convert on every call, and at most Capacity names are kept, so a
// script that makes names endlessly cannot grow the table. Call with the GIL held.
#include <Python.h>
#include <cow_String.h>

class py_KeywordNames {
public:
  static constexpr std::size_t Capacity = 1024;

  static cow_String Text(PyObject* name);
};
