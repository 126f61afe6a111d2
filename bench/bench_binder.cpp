// Binding a call f(1, 2.5, 'abc', flag=True, name='Part-1'): three parameters answered by
// position and two by keyword, each Get naming its keyword, beside CPython's own argument
// parser on the same values.
#define PY_SSIZE_T_CLEAN
#include <Python.h>

#include <omu_Arguments.h>

#include <benchmark/benchmark.h>

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
}  // namespace
