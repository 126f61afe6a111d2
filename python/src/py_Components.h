#pragma once
// The numbers of the geometry classes (Vector, Point, XForm) as a script writes and reads
// them: read from any sequence of real numbers, printed in their shortest float form.
// Call with the GIL held.
#include <pybind11/pybind11.h>

#include <cstddef>
#include <string>

class py_Components {
public:
  // The sequence itself when it holds min to max items. A str, bytes or non-sequence raises
  // TypeError "<shape>, not <type name>", a count out of range ValueError "<shape>, not
  // <count>", where shape says what is needed ("a Vector is 3 numbers").
  static pybind11::sequence Items(pybind11::handle sequence, std::size_t min, std::size_t max,
                                  const char* shape);
  // Reads a sequence of min to max real numbers into out, as Items checks it, and answers the
  // count. An item that is no real number raises Python's own TypeError.
  static std::size_t Read(pybind11::handle sequence, double* out, std::size_t min, std::size_t max,
                          const char* shape);
  // "Name(c0, c1, ...)", each number as the shortest text that reads back as the same float
  // ("0.1", "2.0", "1e+20", "-inf").
  static std::string Repr(const char* name, const float* values, std::size_t count);
  // One number in that text, appended to out.
  static void AppendNumber(std::string& out, float value);
  // The shortest text that reads back as the same float, appended to out: 1, 0.5019608, 1e+20.
  static void AppendShortest(std::string& out, float value);

  // Gives cls what Vector and Point share: the properties x, y, z (and w) over members, len,
  // indexing (negative from the end, IndexError beyond), iteration and the repr under name.
  // NumPy's operators defer to the class's, so 2.0 * v stays a T.
  template <typename T, std::size_t N>
  static void AddComponents(pybind11::class_<T>& cls, const char* name,
                            float T::*const (&members)[N]);
};

template <typename T, std::size_t N>
void py_Components::AddComponents(pybind11::class_<T>& cls, const char* name,
                                  float T::*const (&members)[N]) {
  namespace py = pybind11;
  static const char* const names[] = {"x", "y", "z", "w"};
  for (std::size_t i = 0; i < N; ++i) cls.def_readwrite(names[i], members[i]);
  cls.def("__len__", [](const T&) { return N; })
      .def("__getitem__",
           [members](const T& value, py::ssize_t index) {
             const py::ssize_t at = index < 0 ? index + py::ssize_t(N) : index;
             if (at < 0 || at >= py::ssize_t(N)) throw py::index_error("index out of range");
             return value.*members[at];
           })
      .def("__iter__",
           [members](const T& value) {
             py::tuple numbers(N);
             for (std::size_t i = 0; i < N; ++i) numbers[i] = py::float_(value.*members[i]);
             return py::iter(numbers);
           })
      .def("__repr__", [name, members](const T& value) {
        float numbers[N];
        for (std::size_t i = 0; i < N; ++i) numbers[i] = value.*members[i];
        return Repr(name, numbers, N);
      });
  cls.attr("__array_ufunc__") = py::none();
}
