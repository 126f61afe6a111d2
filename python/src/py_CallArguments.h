#pragma once
// A Python call handed to native code: the positional and keyword arguments of a vectorcall
// become one omu_Arguments (each value through py_ValueConverter::ToHandle, which shares the
// primitives of the constants a script passes again and again; keywords in the order given),
// which the native side binds with Begin/Get/End, so a wrong call gets the library's
// own messages in the library's order. Call with the GIL held.
//
// The argument lists are reused: the lists finished calls gave back are kept (one per depth of
// calls made from inside a command, up to Spare), reset and with their storage, so that a call
// allocates only the values it has not met lately.
#include "py_ErrorTranslator.h"
#include "py_ValueConverter.h"

#include <Python.h>
#include <omu_Arguments.h>

#include <memory>
#include <vector>

class py_CallArguments {
public:
  static constexpr std::size_t Spare = 8;

  // Runs call(arguments), a native call answering a new primitive (null for None), and
  // answers its Python value, or null with the Python error set when anything failed.
  template <class Call>
  static PyObject* Run(Call&& call, PyObject* const* args, std::size_t nargsf,
                       PyObject* kwnames) noexcept {
    try {
      const Lease arguments(args, nargsf, kwnames);
      const std::unique_ptr<omu_Primitive> result(call(*arguments));
      return py_ValueConverter::ToPython(result.get());
    } catch (...) {
      py_ErrorTranslator::RaiseCurrent();
      return nullptr;
    }
  }

private:
  // An argument list filled from a call, given back (reset, its values released) at the end
  // of the scope.
  class Lease {
  public:
    Lease(PyObject* const* args, std::size_t nargsf, PyObject* kwnames);
    ~Lease();
    Lease(const Lease&) = delete;
    Lease& operator=(const Lease&) = delete;
    omu_Arguments& operator*() const noexcept { return *m_Arguments; }

  private:
    void Fill(PyObject* const* args, std::size_t nargsf, PyObject* kwnames);

    std::unique_ptr<omu_Arguments> m_Arguments;
  };

  static std::vector<std::unique_ptr<omu_Arguments>>& Spares();
};
