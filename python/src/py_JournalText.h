#pragma once
// A Python value as Python source that evaluates to an equal value, for the journal: in the
// library's own text form where that form reads back exactly, else in a form that does.
//
//   int                 in full (the library's form keeps 32 bits)
//   float               the library's form (omu_PrimNumber::FormatDouble, 15 digits) when it
//                       reads back to the same bits, else repr; float('nan'), float('inf'),
//                       -float('inf'); -0.0 keeps its sign
//   str                 the library's form (omu_NameString) when the text holds no control
//                       character but newline and tab, else repr
//   complex             complex(real, imag), each part as a float
//   tuple, list, dict   element by element
//   SymbolicConstant    SymbolicConstant('NAME')
//   numpy.ndarray       numpy.array(<nested lists>, dtype='<dtype>'), reshaped when empty
//   anything else       its repr (a repository object's repr is its path, which a replay
//                       does not resolve)
//
// The text names SymbolicConstant, numpy and cvxutils; py_Journal replays it with those
// bound. Call with the GIL held; raises Python errors as pybind11::error_already_set.
#include <Python.h>

#include <string>

class py_JournalText {
public:
  static void Append(std::string& out, PyObject* value);
};
