#include "py_PointArray.h"

#include <g3d_XForm.h>
#include <pybind11/numpy.h>

#include <algorithm>
#include <cstring>
#include <system_error>
#include <thread>
#include <vector>

namespace py = pybind11;

namespace {
// Where the rows of an (N, 3) buffer are, in bytes.
struct Rows {
  char* data;
  py::ssize_t row;
  py::ssize_t column;
};

template <typename Number>
float Load(const char* at) noexcept {
  Number value;
  std::memcpy(&value, at, sizeof value);  // NumPy does not promise alignment
  return static_cast<float>(value);
}

template <typename Number>
void Store(char* at, float value) noexcept {
  const auto number = static_cast<Number>(value);
  std::memcpy(at, &number, sizeof number);
}

// Rows go through in small blocks that stay in the first-level cache between the three passes:
// 32 rows took two thirds of the time 256 did on a million, as the passes over a short block
// overlap better with the memory traffic. Packed rows (C-contiguous) get constant strides,
// which the compiler turns into straight loads.
template <typename Element, typename In, typename Out, bool kPacked>
void TransformRows(const g3d_XForm& form, Rows in, Rows out, py::ssize_t count) noexcept {
  if constexpr (kPacked) {
    in = {in.data, py::ssize_t(3 * sizeof(In)), py::ssize_t(sizeof(In))};
    out = {out.data, py::ssize_t(3 * sizeof(Out)), py::ssize_t(sizeof(Out))};
  }
  constexpr py::ssize_t kBlock = 32;
  Element block[kBlock];
  for (py::ssize_t start = 0; start < count; start += kBlock) {
    const int n = static_cast<int>(std::min(kBlock, count - start));
    const char* from = in.data + start * in.row;
    for (int i = 0; i < n; ++i, from += in.row) {
      block[i] =
          Element(Load<In>(from), Load<In>(from + in.column), Load<In>(from + 2 * in.column));
    }
    form.XForm(block, n);
    char* to = out.data + start * out.row;
    for (int i = 0; i < n; ++i, to += out.row) {
      Store<Out>(to, block[i].x);
      Store<Out>(to + out.column, block[i].y);
      Store<Out>(to + 2 * out.column, block[i].z);
    }
  }
}

template <typename Number>
bool Packed(const py::buffer_info& numbers) noexcept {
  return numbers.strides[0] == 3 * py::ssize_t(sizeof(Number)) &&
         numbers.strides[1] == py::ssize_t(sizeof(Number));
}

// Rows from which splitting the work across cores pays for starting a thread.
constexpr py::ssize_t kRowsPerThread = 65536;

// Runs rows(first, count) over [0, total), split across the machine's cores when large; a
// thread that cannot be started leaves its share to this one.
template <typename Work>
void InParallel(py::ssize_t total, Work&& rows) {
  const auto cores = static_cast<py::ssize_t>(std::max(1u, std::thread::hardware_concurrency()));
  const py::ssize_t parts = std::clamp<py::ssize_t>(total / kRowsPerThread, 1, cores);
  const py::ssize_t share = (total + parts - 1) / parts;
  std::vector<std::jthread> helpers;
  py::ssize_t first = 0;
  for (; first + share < total; first += share) {
    try {
      helpers.emplace_back([&rows, first, share] { rows(first, share); });
    } catch (const std::system_error&) {
      break;
    }
  }
  rows(first, total - first);
}

template <typename Element, typename In, typename Out>
void Transform(const g3d_XForm& form, const py::buffer_info& in, const py::buffer_info& out) {
  const bool packed = Packed<In>(in) && Packed<Out>(out);
  const auto slice = [&](py::ssize_t first, py::ssize_t count) {
    const Rows from{static_cast<char*>(in.ptr) + first * in.strides[0], in.strides[0],
                    in.strides[1]};
    const Rows to{static_cast<char*>(out.ptr) + first * out.strides[0], out.strides[0],
                  out.strides[1]};
    if (packed) {
      TransformRows<Element, In, Out, true>(form, from, to, count);
    } else {
      TransformRows<Element, In, Out, false>(form, from, to, count);
    }
  };
  py::gil_scoped_release unlocked;
  InParallel(in.shape[0], slice);
}

[[noreturn]] void Raise(PyObject* type, const char* format, auto found) {
  PyErr_Format(type, format, found);
  throw py::error_already_set();
}

py::array Checked(py::handle value) {
  if (!py::isinstance<py::array>(value)) {
    Raise(PyExc_TypeError, "an (N, 3) NumPy array of float32 or float64 is needed, not %s",
          Py_TYPE(value.ptr())->tp_name);
  }
  auto array = py::reinterpret_borrow<py::array>(value);
  if (array.ndim() != 2 || array.shape(1) != 3) {
    Raise(PyExc_ValueError, "an (N, 3) array is needed, not one of shape %S",
          array.attr("shape").ptr());
  }
  return array;
}

template <typename Element>
py::object TransformArray(const g3d_XForm& form, py::handle value, bool copy) {
  py::array array = Checked(value);
  const py::ssize_t count = array.shape(0);
  // The buffer views hold the arrays' memory in place while the GIL is released.
  if (array.dtype().equal(py::dtype::of<double>())) {
    py::array_t<double> result({count, py::ssize_t(3)});
    Transform<Element, double, double>(form, array.request(), result.request(true));
    return result;
  }
  if (!array.dtype().equal(py::dtype::of<float>())) {
    Raise(PyExc_TypeError, "an (N, 3) array of float32 or float64 is needed, not %S",
          array.dtype().ptr());
  }
  if (copy) {
    py::array_t<float> result({count, py::ssize_t(3)});
    Transform<Element, float, float>(form, array.request(), result.request(true));
    return result;
  }
  if (!array.writeable()) {
    Raise(PyExc_ValueError, "a read-only %S array cannot be transformed in place; pass copy=True",
          array.dtype().ptr());
  }
  const py::buffer_info numbers = array.request(true);
  Transform<Element, float, float>(form, numbers, numbers);
  return array;
}
}  // namespace

py::object py_PointArray::TransformPoints(const g3d_XForm& form, const py::object& array,
                                          bool copy) {
  return TransformArray<g3d_Point>(form, array, copy);
}

py::object py_PointArray::TransformVectors(const g3d_XForm& form, const py::object& array,
                                           bool copy) {
  return TransformArray<g3d_Vector>(form, array, copy);
}
