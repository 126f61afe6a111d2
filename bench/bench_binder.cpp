// Binding a call f(1, 2.5, 'abc', flag=True, name='Part-1'): three parameters answered by
// position and two by keyword, each Get naming its keyword, beside CPython's own argument
// parser on the same values. Then calls of 4 to 256 keyword arguments, each read by its
// keyword, beside the same parser given the same keywords: the time per argument should not
// grow with the size of the call.
#define PY_SSIZE_T_CLEAN
#include <Python.h>

#include <omu_Arguments.h>

#include <benchmark/benchmark.h>

#include <array>
#include <string>
#include <utility>

namespace {
omu_Arguments MakeCall() {
  omu_Arguments args(3);
  args.Put(1);
  args.Put(2.5);
  args.Put(cow_String("abc"));
  args.Put(true, "flag");
  args.Put(cow_String("Part-1"), "name");
  return args;
}

void Bind_ours(benchmark::State& state) {
  omu_Arguments args = MakeCall();
  int a = 0;
  double b = 0;
  cow_String c;
  bool flag = false;
  cow_String name;
  for (auto _ : state) {
    args.Begin();
    args.Get(a, "a");
    args.Get(b, "b");
    args.Get(c, "c");
    args.Get(flag, "flag");
    args.Get(name, "name");
    args.End("f");
    benchmark::DoNotOptimize(name);
  }
  if (a != 1 || b != 2.5 || c != "abc" || !flag || name != "Part-1") state.SkipWithError("wrong");
}
BENCHMARK(Bind_ours)->Name("BindCall5/ours");

void Bind_cpython(benchmark::State& state) {
  if (!Py_IsInitialized()) Py_Initialize();
  PyObject* args = Py_BuildValue("(ids)", 1, 2.5, "abc");
  PyObject* kwargs = Py_BuildValue("{s:O,s:s}", "flag", Py_True, "name", "Part-1");
  static const char* keywords[] = {"a", "b", "c", "flag", "name", nullptr};
  int a = 0;
  double b = 0;
  const char* c = nullptr;
  int flag = 0;
  const char* name = nullptr;
  for (auto _ : state) {
    const int ok = PyArg_ParseTupleAndKeywords(args, kwargs, "idsps", const_cast<char**>(keywords),
                                               &a, &b, &c, &flag, &name);
    benchmark::DoNotOptimize(ok);
    benchmark::DoNotOptimize(name);
  }
  if (a != 1 || b != 2.5 || !flag) state.SkipWithError("wrong");
  Py_DECREF(kwargs);
  Py_DECREF(args);
}
BENCHMARK(Bind_cpython)->Name("BindCall5/CPython PyArg_ParseTupleAndKeywords");

// The keywords of the wide calls, "k0" to "k255": their key order is not the order of the Gets.
const std::array<std::string, 256>& KeywordNames() {
  static const std::array<std::string, 256> names = [] {
    std::array<std::string, 256> texts;
    for (std::size_t i = 0; i < texts.size(); ++i) texts[i] = "k" + std::to_string(i);
    return texts;
  }();
  return names;
}

void CountArguments(benchmark::State& state, int count) {
  state.counters["per argument"] = benchmark::Counter(
      count, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

template <int N>
void BindKeywords_ours(benchmark::State& state) {
  omu_Arguments args(0);
  for (int i = 0; i < N; ++i) args.Put(i, cow_String(KeywordNames()[i].c_str()));
  std::array<int, N> out{};
  for (auto _ : state) {
    args.Begin();
    for (int i = 0; i < N; ++i) args.Get(out[i], KeywordNames()[i]);
    args.End("f");
    benchmark::DoNotOptimize(out.data());
  }
  if (out[N - 1] != N - 1) state.SkipWithError("wrong");
  CountArguments(state, N);
}

// The parser is variadic: one pointer per keyword, expanded at compile time.
template <std::size_t... I>
int ParseKeywords(PyObject* args, PyObject* kwargs, const char* format, const char** keywords,
                  int* out,  // NOLINT(readability-non-const-parameter): written by the parser
                  std::index_sequence<I...>) {
  return PyArg_ParseTupleAndKeywords(args, kwargs, format, const_cast<char**>(keywords),
                                     &out[I]...);
}

template <int N>
void BindKeywords_cpython(benchmark::State& state) {
  if (!Py_IsInitialized()) Py_Initialize();
  PyObject* args = PyTuple_New(0);
  PyObject* kwargs = PyDict_New();
  std::array<const char*, N + 1> keywords{};
  for (int i = 0; i < N; ++i) {
    keywords[i] = KeywordNames()[i].c_str();
    PyObject* value = PyLong_FromLong(i);
    PyDict_SetItemString(kwargs, keywords[i], value);
    Py_DECREF(value);
  }
  const std::string format(N, 'i');
  std::array<int, N> out{};
  for (auto _ : state) {
    const int ok = ParseKeywords(args, kwargs, format.c_str(), keywords.data(), out.data(),
                                 std::make_index_sequence<N>());
    benchmark::DoNotOptimize(ok);
    benchmark::DoNotOptimize(out.data());
  }
  if (out[N - 1] != N - 1) state.SkipWithError("wrong");
  CountArguments(state, N);
  Py_DECREF(kwargs);
  Py_DECREF(args);
}

#define CVX_BIND_KEYWORDS(N)                                                 \
  BENCHMARK_TEMPLATE(BindKeywords_ours, N)->Name("BindKeywords" #N "/ours"); \
  BENCHMARK_TEMPLATE(BindKeywords_cpython, N)                                \
      ->Name("BindKeywords" #N "/CPython PyArg_ParseTupleAndKeywords")
CVX_BIND_KEYWORDS(4);
CVX_BIND_KEYWORDS(16);
CVX_BIND_KEYWORDS(64);
CVX_BIND_KEYWORDS(256);
#undef CVX_BIND_KEYWORDS
}  // namespace
