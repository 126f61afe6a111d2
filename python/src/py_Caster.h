#pragma once
// How a native type that the library binds (omu_Binding) meets Python: py_Caster<T> says
// which Python values are a T, makes the T from one, and makes the Python value of a T. The
// value converter walks the library's list of bound types (omu_BindingTypes) and uses each
// type that has a caster, in list order; so a Python int becomes an INT number when it fits
// int, else a UINT number when it fits unsigned int, because int is listed first. A
// specialisation holds, all static:
//
//   Accepts     bool Accepts(PyObject* value): value is a T (no Python error on false)
//   FromPython  T FromPython(PyObject* value): for an accepted value; raises a Python error
//               as pybind11::error_already_set
//   ToPython    PyObject* ToPython(const T& value): a new reference, or null with a Python
//               error set
//
// Casters hold no state; call them with the GIL held.
#include "py_KeptTexts.h"

#include <Python.h>
#include <cow_String.h>
#include <omi_complex.h>
#include <omu_PrimEnumBase.h>
#include <omu_PrimNone.h>
#include <omu_PrimPath.h>
#include <pybind11/pybind11.h>

#include <concepts>
#include <limits>

template <class T>
struct py_Caster;

template <class T>
concept py_Castable = requires(PyObject* object, const T& value) {
  { py_Caster<T>::Accepts(object) } -> std::same_as<bool>;
  { py_Caster<T>::FromPython(object) } -> std::convertible_to<T>;
  { py_Caster<T>::ToPython(value) } -> std::same_as<PyObject*>;
};

// A Python int (not a bool) within T's range.
template <std::integral T>
struct py_IntegerCaster {
  static bool Accepts(PyObject* object) {
    if (!PyLong_Check(object) || PyBool_Check(object)) return false;
    int overflow = 0;
    const long long value = PyLong_AsLongLongAndOverflow(object, &overflow);
    return overflow == 0 && value >= std::numeric_limits<T>::min() &&
           value <= std::numeric_limits<T>::max();
  }
  static T FromPython(PyObject* object) { return static_cast<T>(PyLong_AsLongLong(object)); }
  static PyObject* ToPython(const T& value) { return PyLong_FromLongLong(value); }
};

template <>
struct py_Caster<int> : py_IntegerCaster<int> {};
template <>
struct py_Caster<unsigned int> : py_IntegerCaster<unsigned int> {};
template <>
struct py_Caster<short> : py_IntegerCaster<short> {};
template <>
struct py_Caster<signed char> : py_IntegerCaster<signed char> {};

// A Python float (a float32 number comes back through double, exactly).
template <>
struct py_Caster<double> {
  static bool Accepts(PyObject* object) { return PyFloat_Check(object); }
  static double FromPython(PyObject* object) { return PyFloat_AS_DOUBLE(object); }
  static PyObject* ToPython(const double& value) { return PyFloat_FromDouble(value); }
};

template <>
struct py_Caster<bool> {
  static bool Accepts(PyObject* object) { return PyBool_Check(object); }
  static bool FromPython(PyObject* object) { return object == Py_True; }
  static PyObject* ToPython(const bool& value) { return PyBool_FromLong(value); }
};

// UTF-8 both ways. A str with lone surrogates has no UTF-8 form and raises
// UnicodeEncodeError; library bytes that are not UTF-8 come back with U+FFFD in their place.
template <>
struct py_Caster<cow_String> {
  static bool Accepts(PyObject* object) { return PyUnicode_Check(object); }
  static cow_String FromPython(PyObject* object) { return py_KeptTexts::Text(object); }
  static PyObject* ToPython(const cow_String& value) {
    const std::string_view text = value.View();
    return PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "replace");
  }
};

template <>
struct py_Caster<omi_complex> {
  static bool Accepts(PyObject* object) { return PyComplex_Check(object); }
  static omi_complex FromPython(PyObject* object) {
    return {PyComplex_RealAsDouble(object), PyComplex_ImagAsDouble(object)};
  }
  static PyObject* ToPython(const omi_complex& value) {
    return PyComplex_FromDoubles(value.Real(), value.Imag());
  }
};

template <>
struct py_Caster<omu_PrimNone> {
  static bool Accepts(PyObject* object) { return object == Py_None; }
  static omu_PrimNone FromPython(PyObject*) { return {}; }
  static PyObject* ToPython(const omu_PrimNone&) { return Py_NewRef(Py_None); }
};

// Primitive classes bound as Python classes (cvxutils.Path, cvxutils.SymbolicConstant): the
// Python object holds the primitive itself.
template <class T>
struct py_BoundClassCaster {
  static bool Accepts(PyObject* object) { return pybind11::isinstance<T>(object); }
  static T FromPython(PyObject* object) { return pybind11::handle(object).cast<const T&>(); }
  static PyObject* ToPython(const T& value) { return pybind11::cast(value).release().ptr(); }
};

template <>
struct py_Caster<omu_PrimPath> : py_BoundClassCaster<omu_PrimPath> {};
template <>
struct py_Caster<omu_PrimEnumBase> : py_BoundClassCaster<omu_PrimEnumBase> {};
