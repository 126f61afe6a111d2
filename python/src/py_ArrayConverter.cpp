#include "py_ArrayConverter.h"

#include "py_ArrayStorage.h"

#include <omu_PrimArray.h>
#include <pybind11/numpy.h>

#include <climits>
#include <string_view>

namespace py = pybind11;

namespace {
using DataType = omu_PrimNumber::DataTypeEnm;

// Releases a buffer view however the conversion ends.
struct BufferView {
  Py_buffer view{};
  explicit BufferView(PyObject* array) {
    if (PyObject_GetBuffer(array, &view, PyBUF_RECORDS_RO) != 0) throw py::error_already_set();
  }
  ~BufferView() { PyBuffer_Release(&view); }
  BufferView(const BufferView&) = delete;
  BufferView& operator=(const BufferView&) = delete;
};

// The element type of a buffer format in the machine's byte order, or -1.
int DataTypeOf(std::string_view format, Py_ssize_t itemSize) {
  if (!format.empty() && (format[0] == '@' || format[0] == '=' || format[0] == '<')) {
    format.remove_prefix(1);
  }
  if (format == "i" && itemSize == 4) return omu_PrimNumber::INT;
  if (format == "f" && itemSize == 4) return omu_PrimNumber::FLOAT;
  if (format == "d" && itemSize == 8) return omu_PrimNumber::DOUBLE;
  return -1;
}

[[noreturn]] void Raise(PyObject* type, const char* format, auto... values) {
  PyErr_Format(type, format, values...);
  throw py::error_already_set();
}

std::vector<int> DimsOf(const Py_buffer& view) {
  if (view.ndim > omu_PrimArray::MaxDims) {
    Raise(PyExc_ValueError, "an array of %d dimensions has more than %d", view.ndim,
          omu_PrimArray::MaxDims);
  }
  if (view.len > INT_MAX) {
    Raise(PyExc_ValueError, "an array of %zd bytes is larger than the library's 2 GiB", view.len);
  }
  return std::vector<int>(view.shape, view.shape + view.ndim);
}

py::dtype DtypeOf(DataType dataType) {
  if (dataType == omu_PrimNumber::INT) return py::dtype::of<std::int32_t>();
  if (dataType == omu_PrimNumber::FLOAT) return py::dtype::of<float>();
  return py::dtype::of<double>();
}
}  // namespace

bool py_ArrayConverter::IsArray(PyObject* value) {
  // Only a module that imported NumPy can hand over an array.
  static PyTypeObject* ndarray = nullptr;
  if (!ndarray) {
    PyObject* numpy = PyImport_GetModule(py::str("numpy").ptr());
    if (!numpy) {
      PyErr_Clear();
      return false;
    }
    PyObject* type = PyObject_GetAttrString(numpy, "ndarray");
    Py_DECREF(numpy);
    if (!type) throw py::error_already_set();
    ndarray = reinterpret_cast<PyTypeObject*>(type);  // kept for the process
  }
  return PyObject_TypeCheck(value, ndarray);
}

omu_PrimOwner py_ArrayConverter::ToPrimitive(PyObject* array) {
  BufferView buffer(array);
  const Py_buffer& view = buffer.view;
  const int dataType = DataTypeOf(view.format ? view.format : "B", view.itemsize);
  if (dataType < 0) {
    Raise(PyExc_TypeError, "an array of dtype %S cannot be carried: int32, float32 or float64 only",
          py::handle(array).attr("dtype").ptr());
  }
  auto storage = std::make_unique<py_ArrayStorage>(DimsOf(view), static_cast<int>(view.itemsize),
                                                   static_cast<std::size_t>(view.len));
  if (PyBuffer_ToContiguous(storage->Data(), &view, view.len, 'C') != 0) {
    throw py::error_already_set();
  }
  py_ArrayStorage& numbers = *storage;
  const cow_CountedHld<omu_PrimArrayData> shared(std::move(storage));
  return std::make_unique<omu_PrimArray>(view.ndim, numbers.Dims(), numbers.Strides(),
                                         numbers.Data(), static_cast<DataType>(dataType), shared);
}

PyObject* py_ArrayConverter::ToPython(const omu_PrimArray& array) {
  std::vector<py::ssize_t> shape(static_cast<std::size_t>(array.NumDims()));
  std::vector<py::ssize_t> strides(shape.size());
  for (int i = 0; i < array.NumDims(); ++i) {
    shape[static_cast<std::size_t>(i)] = array.Dim(i);
    strides[static_cast<std::size_t>(i)] = array.Stride(i);
  }
  if (!array.ConstData()) {
    return py::array(DtypeOf(array.DataType()), shape).release().ptr();
  }
  // The NumPy array's base owns a handle on the numbers.
  py::capsule keeper(new cow_CountedHld<omu_PrimArrayData>(array.SharedData()), [](void* handle) {
    delete static_cast<cow_CountedHld<omu_PrimArrayData>*>(handle);
  });
  py::array result(DtypeOf(array.DataType()), shape, strides, array.ConstData(), keeper);
  // Other primitives may share these numbers: NumPy must not write them.
  py::detail::array_proxy(result.ptr())->flags &= ~py::detail::npy_api::NPY_ARRAY_WRITEABLE_;
  return result.release().ptr();
}
