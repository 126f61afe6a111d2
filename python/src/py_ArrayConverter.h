#pragma once
// NumPy arrays of int32, float32 and float64 to and from the library's numeric array
// (omu_PrimArray, INT, FLOAT and DOUBLE), without a loop over the elements:
//
//   into the library   one bulk copy, C-contiguous or strided (the copy gathers it), into
//                      storage the array's copies then share
//   back to Python     no copy: a read-only NumPy array on the primitive's own numbers,
//                      whose base holds a handle on the storage, so the numbers live as long
//                      as the NumPy array (np.array(result) gives a writable copy)
//
// Another dtype, a byte order other than the machine's, more than omu_PrimArray::MaxDims
// dimensions or more than 2 GiB of numbers raise TypeError or ValueError. Call with the GIL.
#include <Python.h>
#include <omu_Binding.h>

class omu_PrimArray;

class py_ArrayConverter {
public:
  // True when value is a numpy.ndarray (NumPy is not imported for the question).
  static bool IsArray(PyObject* value);
  static omu_PrimOwner ToPrimitive(PyObject* array);
  // A new reference.
  static PyObject* ToPython(const omu_PrimArray& array);
};
