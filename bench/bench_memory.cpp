// Heap bytes per element of a million-element value, read from the allocator (not timed):
// a tuple of floats, a list of ints, a dictionary with int keys and a numeric array, beside
// a std::vector<double> of the same count and CPython's equal container (tracemalloc). Ours
// and the vector count what glibc holds (chunk headers and rounding included); CPython's
// figure is what its allocator was asked for, its small-object pools adding next to nothing.
#include <Python.h>

#include <omu_PrimArray.h>
#include <omu_PrimDictionary.h>
#include <omu_PrimList.h>
#include <omu_PrimTuple.h>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <string>
#include <vector>

namespace {
constexpr int kElements = 1'000'000;

// In use now: small chunks of the main arena and the blocks mapped for large requests.
double HeapInUse() {
  const struct mallinfo2 info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd);
}

// The counter the ratio table reads in place of a time.
void Report(benchmark::State& state, double bytes) {
  state.counters["bytes_per_element"] = bytes / kElements;
}

template <class Build>
void Ours(benchmark::State& state, Build build) {
  for (auto _ : state) {
    const double before = HeapInUse();
    const auto value = build();
    Report(state, HeapInUse() - before);
    benchmark::DoNotOptimize(value.get());
  }
}

void Vector(benchmark::State& state) {
  for (auto _ : state) {
    const double before = HeapInUse();
    const std::vector<double> values(kElements, 0.5);
    Report(state, HeapInUse() - before);
    benchmark::DoNotOptimize(values.data());
  }
}

// expression builds the container from range(N) as i; its temporaries are freed by the time
// the traced total is read.
void CPython(benchmark::State& state, const std::string& expression) {
  if (!Py_IsInitialized()) Py_Initialize();  // a yardstick only; the library never uses it
  const std::string code = "import tracemalloc\ntracemalloc.start()\nvalue = " + expression +
                           "\nbytes = tracemalloc.get_traced_memory()[0]\ntracemalloc.stop()\n"
                           "del value\n";
  for (auto _ : state) {
    PyObject* globals = PyDict_New();
    PyDict_SetItemString(globals, "__builtins__", PyEval_GetBuiltins());
    PyDict_SetItemString(globals, "N", PyLong_FromLong(kElements));
    PyObject* done = PyRun_String(code.c_str(), Py_file_input, globals, globals);
    if (!done) {
      PyErr_Print();
      state.SkipWithError("the interpreter failed");
    } else {
      Report(state, PyFloat_AsDouble(PyDict_GetItemString(globals, "bytes")));
    }
    Py_XDECREF(done);
    Py_DECREF(globals);
  }
}

std::unique_ptr<omu_PrimTuple> TupleOfFloats() {
  auto tuple = std::make_unique<omu_PrimTuple>(kElements);
  for (int i = 0; i < kElements; ++i) tuple->Put(i + 0.5);
  return tuple;
}

std::unique_ptr<omu_PrimList> ListOfInts() {
  auto list = std::make_unique<omu_PrimList>(kElements);
  for (int i = 0; i < kElements; ++i) list->Put(i + 1000);
  return list;
}

std::unique_ptr<omu_PrimDictionary<int>> DictionaryOfFloats() {
  auto dictionary = std::make_unique<omu_PrimDictionary<int>>();
  for (int i = 0; i < kElements; ++i) dictionary->Put(i + 0.5, i);
  return dictionary;
}

std::unique_ptr<omu_PrimArray> ArrayOfDoubles() {
  const std::vector<double> values(kElements, 0.5);
  const int dims[] = {kElements};
  return std::make_unique<omu_PrimArray>(1, dims, values.data());
}

template <class Build>
void RegisterCase(const char* name, Build build, const char* python) {
  const std::string prefix = std::string("Memory1M") + name + "/";
  benchmark::RegisterBenchmark((prefix + "ours").c_str(), [build](benchmark::State& s) {
    Ours(s, build);
  })->Iterations(1);
  benchmark::RegisterBenchmark((prefix + "vector").c_str(), Vector)->Iterations(1);
  benchmark::RegisterBenchmark((prefix + "cpython").c_str(), [python = std::string(python)](
                                                                 benchmark::State& s) {
    CPython(s, python);
  })->Iterations(1);
}

const bool s_Registered = [] {
  RegisterCase("TupleOfFloats", TupleOfFloats, "tuple([i + 0.5 for i in range(N)])");
  RegisterCase("ListOfInts", ListOfInts, "[i + 1000 for i in range(N)]");
  RegisterCase("DictIntKeys", DictionaryOfFloats, "{i: i + 0.5 for i in range(N)}");
  RegisterCase("NumericArray", ArrayOfDoubles, "__import__('array').array('d', [0.5]) * N");
  return true;
}();
}  // namespace
