#pragma once
// Python values into the library's primitives and back, so that a value a script passes is
// exactly what a native command sees.
//
//   None, bool, int, float, complex, str, cvxutils.Path, cvxutils.SymbolicConstant
//       the scalar bindings (py_Caster over omu_BindingTypes); an int takes the first of
//       int and unsigned int it fits, and beyond 32 bits raises OverflowError; an object with
//       __index__ (a NumPy integer) converts as the int it gives
//   tuple, list          omu_PrimTuple, omu_PrimList, element by element
//   dict                 omu_PrimDictionary<cow_String> with str keys (also when empty),
//                        omu_PrimDictionary<int> with int keys; other keys raise TypeError
//   numpy.ndarray        omu_PrimArray (py_ArrayConverter)
//   cvxutils repository objects   the interface object itself
//   anything else        omu_PyObjectWrapper, which gives back the same object
//
// Back, each primitive becomes the Python value of its kind; a type, an expression and the
// other kinds without a Python value of their own come back as their text.
//
// A container that holds itself raises ValueError; failures raise Python errors as
// pybind11::error_already_set, never a crash. Call with the GIL held. Cost: one primitive
// per value, no per-element work for arrays; ToHandle shares the primitive of an immutable
// value it met lately (KeptPrimitives of them) instead of making another.
#include <Python.h>
#include <omu_Binding.h>
#include <omu_PrimTuple.h>

class py_ValueConverter {
public:
  // The primitive carrying value, owned by the caller.
  static omu_PrimOwner ToPrimitive(PyObject* value);
  // The same primitive, shared with the conversions of the same object before it when the
  // object is immutable.
  static omu_PrimHandle ToHandle(PyObject* value);
  // True for the objects that cannot change, whose primitive therefore never changes: None,
  // and bool, int, float, complex and str of exactly those types, and enumeration constants.
  static bool Immutable(PyObject* value);
  // Lets go of the objects ToHandle holds; called as the interpreter exits.
  static void Forget() noexcept;
  // The Python value of a primitive (None for null), a new reference.
  static PyObject* ToPython(const omu_Primitive* value);
};
