#include "py_ErrorTranslator.h"

#include "py_Caster.h"
#include "py_ErrorFields.h"

#include <nex_CommandException.h>
#include <nex_TextException.h>

#include <map>
#include <new>
#include <string>
#include <utility>

namespace py = pybind11;

namespace {
// The error names that are not Python built-ins, with the built-in each derives from.
struct ModuleError {
  const char* name;
  PyObject* base;
};

// Error name -> class; filled at import, read under the GIL.
std::map<std::string, py::object, std::less<>>& Classes() {
  // Never freed: it lives as long as the interpreter may call in.
  static auto* classes = new std::map<std::string, py::object, std::less<>>();
  return *classes;
}

void SetText(PyObject* type, const atr_StringBase& text) {
  const auto message = py::reinterpret_steal<py::object>(py_Caster<cow_String>::ToPython(text));
  PyErr_SetObject(type, message.ptr());
}
}  // namespace

void py_ErrorTranslator::Register(py::module_& module) {
  const ModuleError errors[] = {
      {"CorvexNameError", PyExc_ValueError}, {"RangeError", PyExc_ValueError},
      {"FontError", PyExc_ValueError},       {"ColorError", PyExc_ValueError},
      {"AccessError", PyExc_ReferenceError}, {"GuiAccessError", PyExc_RuntimeError}};
  for (const ModuleError& error : errors) {
    const std::string qualified = "cvxutils." + std::string(error.name);
    auto type = py::reinterpret_steal<py::object>(
        PyErr_NewException(qualified.c_str(), error.base, nullptr));
    if (!type) throw py::error_already_set();
    module.attr(error.name) = type;
    Classes()[error.name] = type;
  }
  py::register_exception_translator([](std::exception_ptr failure) {
    try {
      std::rethrow_exception(std::move(failure));
    } catch (const nex_Exception&) {
      RaiseCurrent();
    }
  });
}

py::handle py_ErrorTranslator::ClassOf(const nex_CommandException& error) {
  const cow_String name = error.PythonType();
  auto known = Classes().find(name.View());
  if (known != Classes().end()) return known->second;
  // A built-in exception class of that name, found once.
  py::object builtin =
      py::module_::import("builtins").attr("__dict__").attr("get")(py::str(name.StdString()));
  if (!PyExceptionClass_Check(builtin.ptr())) {
    builtin = py::reinterpret_borrow<py::object>(PyExc_RuntimeError);
  }
  return Classes().emplace(name.StdString(), builtin).first->second;
}

void py_ErrorTranslator::RaiseScriptingError(const nex_CommandException& error) {
  const py::handle type = ClassOf(error);
  const auto message =
      py::reinterpret_steal<py::object>(py_Caster<cow_String>::ToPython(error.JournalMessage()));
  const py::object exception = type(message);
  py_ErrorFields::Attach(error, exception);
  PyErr_SetObject(type.ptr(), exception.ptr());
}

void py_ErrorTranslator::RaiseCurrent() noexcept {
  try {
    try {
      throw;
    } catch (py::error_already_set& error) {
      error.restore();
    } catch (const py::builtin_exception& error) {
      error.set_error();
    } catch (const nex_CommandException& error) {
      RaiseScriptingError(error);
    } catch (const nex_TextException& error) {
      SetText(PyExc_RuntimeError, error.Text());
    } catch (const nex_Exception& error) {
      SetText(PyExc_RuntimeError, error.AsString());
    } catch (const std::bad_alloc&) {
      PyErr_NoMemory();
    } catch (const std::exception& error) {
      PyErr_SetString(PyExc_RuntimeError, error.what());
    }
  } catch (py::error_already_set& error) {
    // Building the exception failed: that failure is what Python sees.
    error.restore();
  } catch (...) {
    PyErr_SetString(PyExc_RuntimeError, "unknown native failure");
  }
}
