// Archives in memory, each way, at 10k, 100k and 1M elements: a property table of doubles beside
// memcpy of the same bytes (the floor), and a tuple of floats beside CPython's pickle of a tuple
// of the same floats. "bytes/elem" is the size of the form written, per element.
#define PY_SSIZE_T_CLEAN
#include <Python.h>

#include <UTI_CaeUtils.h>
#include <cls_Archive.h>
#include <mdl_PropertyTable.h>
#include <omu_PrimNumber.h>
#include <omu_PrimTuple.h>

#include <benchmark/benchmark.h>

#include <cstring>
#include <string>

namespace {
void Start() {
  static const bool started = [] {
    int count = 0;
    UTI_CaeUtils_initialize(count);
    // The interpreter is only a yardstick here; the library never uses it.
    if (!Py_IsInitialized()) Py_Initialize();
    return true;
  }();
  (void)started;
}

double Cell(std::size_t i) { return static_cast<double>(i % 977) * 0.37 - 11.0; }

// rows x columns of 10k, 100k and 1M cells: tables are tall and a few columns wide, the
// largest as wide as it is tall.
mdl_PropertyTable Table(int cells) {
  const int columns = cells >= 1'000'000 ? 1000 : 100;
  cow_2DArray<double> cellsOf(cells / columns, columns);
  std::vector<double>& values = cellsOf.MutableCells();
  for (std::size_t i = 0; i < values.size(); ++i) values[i] = Cell(i);
  return mdl_PropertyTable(cellsOf);
}

omu_PrimTuple Tuple(int size) {
  omu_PrimTuple tuple(size);
  for (int i = 0; i < size; ++i) tuple.Put(Cell(static_cast<std::size_t>(i)));
  return tuple;
}

std::string Bytes(const auto& object) {
  cls_Archive archive;
  archive.Add(object);
  return archive.ToBytes();
}

void Report(benchmark::State& state, std::size_t bytes, int elements) {
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes));
  state.counters["bytes/elem"] = static_cast<double>(bytes) / elements;
}

// An object to bytes and back, once per iteration; what is read back must equal it.
template <class T>
void Write(benchmark::State& state, const T& object, int elements) {
  std::size_t size = 0;
  for (auto _ : state) {
    const std::string bytes = Bytes(object);
    size = bytes.size();
    benchmark::DoNotOptimize(bytes.data());
  }
  Report(state, size, elements);
}

template <class T>
void Read(benchmark::State& state, const T& object, int elements) {
  const std::string bytes = Bytes(object);
  for (auto _ : state) {
    const auto back = cls_Archive::FromBytes(bytes).Read<T>(0);
    benchmark::DoNotOptimize(back.get());
  }
  if (!(*cls_Archive::FromBytes(bytes).Read<T>(0) == object)) {
    state.SkipWithError("what was read back differs");
  }
  Report(state, bytes.size(), elements);
}

// Our side of a row: an object of the given size made, then written or read back.
template <auto Make, bool kRead>
void Ours(benchmark::State& state, int elements) {
  Start();
  const auto object = Make(elements);
  if constexpr (kRead) {
    Read(state, object, elements);
  } else {
    Write(state, object, elements);
  }
}

// The floor of both table rows: copying the archive's bytes once.
void TableMemcpy(benchmark::State& state, int cells) {
  Start();
  const std::string bytes = Bytes(Table(cells));
  for (auto _ : state) {
    std::string copy(bytes.size(), '\0');
    std::memcpy(copy.data(), bytes.data(), bytes.size());
    benchmark::DoNotOptimize(copy.data());
  }
  Report(state, bytes.size(), cells);
}

// pickle.dumps and pickle.loads of a tuple of the same floats, default protocol.
struct Pickle {
  explicit Pickle(int size) {
    Start();
    PyObject* module = PyImport_ImportModule("pickle");
    dumps = PyObject_GetAttrString(module, "dumps");
    loads = PyObject_GetAttrString(module, "loads");
    Py_DECREF(module);
    tuple = PyTuple_New(size);  // NOLINT(cppcoreguidelines-prefer-member-initializer): after Start
    for (int i = 0; i < size; ++i) {
      PyTuple_SET_ITEM(tuple, i, PyFloat_FromDouble(Cell(static_cast<std::size_t>(i))));
    }
    bytes = PyObject_CallOneArg(dumps, tuple);
  }
  ~Pickle() {
    Py_DECREF(bytes);
    Py_DECREF(tuple);
    Py_DECREF(loads);
    Py_DECREF(dumps);
  }
  std::size_t Size() const { return static_cast<std::size_t>(PyBytes_GET_SIZE(bytes)); }
  PyObject* dumps;
  PyObject* loads;
  PyObject* tuple;
  PyObject* bytes;
};

void PickleDumps(benchmark::State& state, int size) {
  const Pickle pickle(size);
  for (auto _ : state) {
    PyObject* bytes = PyObject_CallOneArg(pickle.dumps, pickle.tuple);
    benchmark::DoNotOptimize(bytes);
    Py_DECREF(bytes);
  }
  Report(state, pickle.Size(), size);
}

void PickleLoads(benchmark::State& state, int size) {
  const Pickle pickle(size);
  for (auto _ : state) {
    PyObject* tuple = PyObject_CallOneArg(pickle.loads, pickle.bytes);
    benchmark::DoNotOptimize(tuple);
    Py_DECREF(tuple);
  }
  Report(state, pickle.Size(), size);
}

// One row of each case per size, named "<case><size>/<side>" as the ratio table pairs them.
struct Size {
  const char* name;
  int elements;
};
constexpr Size kSizes[] = {{"10k", 10'000}, {"100k", 100'000}, {"1M", 1'000'000}};

using Case = void (*)(benchmark::State&, int);
struct Row {
  const char* name;
  const char* side;
  Case run;
};
constexpr Row kRows[] = {
    {"ArchiveTableWrite", "ours", Ours<Table, false>},
    {"ArchiveTableWrite", "memcpy", TableMemcpy},
    {"ArchiveTableRead", "ours", Ours<Table, true>},
    {"ArchiveTableRead", "memcpy", TableMemcpy},
    {"ArchiveTupleWrite", "ours", Ours<Tuple, false>},
    {"ArchiveTupleWrite", "pickle.dumps", PickleDumps},
    {"ArchiveTupleRead", "ours", Ours<Tuple, true>},
    {"ArchiveTupleRead", "pickle.loads", PickleLoads},
};

const bool registered = [] {
  for (const Row& row : kRows) {
    for (const Size& size : kSizes) {
      const std::string name = std::string(row.name) + size.name + "/" + row.side;
      benchmark::RegisterBenchmark(name.c_str(), row.run, size.elements)
          ->Unit(benchmark::kMillisecond);
    }
  }
  return true;
}();
}  // namespace
