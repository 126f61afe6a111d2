#pragma once
// A Python call handed to native code: the positional and keyword arguments of a vectorcall
// become one omu_Arguments (each value through py_ValueConverter, keywords in the order
// given), which the native side binds with Begin/Get/End, so a wrong call gets the library's
// own messages in the library's order. Call with the GIL held.
#include "py_ErrorTranslator.h"
#include "py_ValueConverter.h"

#include <Python.h>
#include <omu_Arguments.h>

#include <memory>

class py_CallArguments {
public:
  static omu_Arguments Build(PyObject* const* args, std::size_t nargsf, PyObject* kwnames);

  // Runs call(arguments), a native call answering a new primitive (null for None), and
  // answers its Python value, or null with the Python error set when anything failed.
  template <class Call>
  static PyObject* Run(Call&& call, PyObject* const* args, std::size_t nargsf,
                       PyObject* kwnames) noexcept {
    try {
      omu_Arguments arguments = Build(args, nargsf, kwnames);
      const std::unique_ptr<omu_Primitive> result(call(arguments));
      return py_ValueConverter::ToPython(result.get());
    } catch (...) {
      py_ErrorTranslator::RaiseCurrent();
      return nullptr;
    }
  }
};
