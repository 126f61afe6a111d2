// Primitive values beside their peers: number text beside snprintf, to_chars and a copy of
// the finished text (its bytes per second are the floor), the script text of a large tuple
// beside CPython's repr of an equal tuple, tuple copies, typed dictionary reads beside std::map.
#include <Python.h>

#include <omu_PrimDictionary.h>
#include <omu_PrimNumber.h>
#include <omu_PrimTuple.h>

#include <benchmark/benchmark.h>

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace {
// Doubles as an application meets them: whole numbers, short decimals, results of
// arithmetic, and arbitrary bit patterns.
std::vector<double> MixedDoubles(int count) {
  std::mt19937_64 random(7);
  std::vector<double> values;
  for (int i = 0; static_cast<int>(values.size()) < count; ++i) {
    const std::uint64_t bits = random();
    double value = 0;
    switch (i % 4) {
      case 0:
        value = static_cast<double>(bits % 100000);
        break;
      case 1:
        value = static_cast<double>(bits % 1000000) / 1000.0;
        break;
      case 2:
        value = std::sqrt(static_cast<double>(bits % 1000000)) / 7.0;
        break;
      default:
        std::memcpy(&value, &bits, sizeof value);
        break;
    }
    if (std::isfinite(value)) values.push_back(value);
  }
  return values;
}

const std::vector<double>& Doubles() {
  static const std::vector<double> values = MixedDoubles(4096);
  return values;
}

// The texts of Doubles(), one after another, and where each ends: what a writer must produce.
struct Texts {
  std::string bytes;
  std::vector<std::size_t> ends;
};

const Texts& DoubleTexts() {
  static const Texts texts = [] {
    Texts t;
    char text[omu_PrimNumber::MaxDoubleText];
    for (const double value : Doubles()) {
      t.bytes.append(text, static_cast<std::size_t>(omu_PrimNumber::FormatDouble(value, text)));
      t.ends.push_back(t.bytes.size());
    }
    return t;
  }();
  return texts;
}

// Every side reports the bytes of the library's text per number, so bytes per second compare.
void CountTextBytes(benchmark::State& state) {
  const double perNumber = double(DoubleTexts().bytes.size()) / double(Doubles().size());
  state.SetBytesProcessed(static_cast<std::int64_t>(double(state.iterations()) * perNumber));
}

void NumberText_ours(benchmark::State& state) {
  char text[omu_PrimNumber::MaxDoubleText];
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(omu_PrimNumber::FormatDouble(Doubles()[i++ & 4095], text));
    benchmark::ClobberMemory();
  }
  CountTextBytes(state);
}
BENCHMARK(NumberText_ours)->Name("NumberText/ours");

void NumberText_snprintf(benchmark::State& state) {
  char text[64];
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(std::snprintf(text, sizeof text, "%.15lg", Doubles()[i++ & 4095]));
    benchmark::ClobberMemory();
  }
  CountTextBytes(state);
}
BENCHMARK(NumberText_snprintf)->Name("NumberText/snprintf");

void NumberText_to_chars(benchmark::State& state) {
  char text[64];
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(std::to_chars(text, text + sizeof text, Doubles()[i++ & 4095],
                                           std::chars_format::general, 15));
    benchmark::ClobberMemory();
  }
  CountTextBytes(state);
}
BENCHMARK(NumberText_to_chars)->Name("NumberText/to_chars");

// The floor: copying the finished text of each number, as long as it is.
void NumberText_memcpy(benchmark::State& state) {
  const Texts& texts = DoubleTexts();
  char text[omu_PrimNumber::MaxDoubleText];
  std::size_t i = 0;
  for (auto _ : state) {
    const std::size_t at = i++ & 4095, from = at ? texts.ends[at - 1] : 0;
    std::memcpy(text, texts.bytes.data() + from, texts.ends[at] - from);
    benchmark::DoNotOptimize(text);
    benchmark::ClobberMemory();
  }
  CountTextBytes(state);
}
BENCHMARK(NumberText_memcpy)->Name("NumberText/memcpy");

constexpr int kReprElements = 100'000;

double ReprValue(int i) { return i * 0.25 + 1.0 / (i + 3); }

void TupleRepr_ours(benchmark::State& state) {
  omu_PrimTuple tuple(kReprElements);
  for (int i = 0; i < kReprElements; ++i) tuple.Put(ReprValue(i));
  for (auto _ : state) benchmark::DoNotOptimize(tuple.AsRepr());
  state.SetItemsProcessed(state.iterations() * kReprElements);
}
BENCHMARK(TupleRepr_ours)->Name("TupleRepr100k/ours")->Unit(benchmark::kMillisecond);

void TupleRepr_cpython(benchmark::State& state) {
  // The interpreter is only a yardstick here; the library never uses it.
  static const bool started = [] {
    Py_Initialize();
    return true;
  }();
  (void)started;
  PyObject* tuple = PyTuple_New(kReprElements);
  for (int i = 0; i < kReprElements; ++i)
    PyTuple_SET_ITEM(tuple, i, PyFloat_FromDouble(ReprValue(i)));
  for (auto _ : state) {
    PyObject* text = PyObject_Repr(tuple);
    benchmark::DoNotOptimize(text);
    Py_DECREF(text);
  }
  Py_DECREF(tuple);
  state.SetItemsProcessed(state.iterations() * kReprElements);
}
BENCHMARK(TupleRepr_cpython)->Name("TupleRepr100k/cpython")->Unit(benchmark::kMillisecond);

constexpr int kCopyElements = 1'000'000;

void TupleCopy_ours(benchmark::State& state) {
  omu_PrimTuple tuple(kCopyElements);
  for (int i = 0; i < kCopyElements; ++i) tuple.Put(i);
  for (auto _ : state) {
    omu_PrimTuple copy(tuple);
    benchmark::DoNotOptimize(copy);
  }
}
BENCHMARK(TupleCopy_ours)->Name("TupleCopy1M/ours");

void TupleCopy_vector(benchmark::State& state) {
  const std::vector<double> values(kCopyElements, 1.0);
  for (auto _ : state) {
    std::vector<double> copy(values);
    benchmark::DoNotOptimize(copy.data());
  }
}
BENCHMARK(TupleCopy_vector)->Name("TupleCopy1M/vector");

constexpr int kKeys = 1000;

std::string Key(int i) { return "argument" + std::to_string(i * 7919 % kKeys); }

void DictRead_ours(benchmark::State& state) {
  omu_PrimDictionary<cow_String> dictionary;
  std::vector<cow_String> keys;
  for (int i = 0; i < kKeys; ++i) {
    dictionary.Put(i, cow_String(Key(i)));
    keys.emplace_back(Key(i * 3));
  }
  std::size_t i = 0;
  for (auto _ : state) {
    int value = 0;
    benchmark::DoNotOptimize(dictionary.Get(value, keys[i++ % kKeys]));
    benchmark::DoNotOptimize(value);
  }
}
BENCHMARK(DictRead_ours)->Name("DictReadInt/ours");

void DictRead_map(benchmark::State& state) {
  std::map<std::string, int> map;
  std::vector<std::string> keys;
  for (int i = 0; i < kKeys; ++i) {
    map.emplace(Key(i), i);
    keys.push_back(Key(i * 3));
  }
  std::size_t i = 0;
  for (auto _ : state) {
    const auto at = map.find(keys[i++ % kKeys]);
    benchmark::DoNotOptimize(at->second);
  }
}
BENCHMARK(DictRead_map)->Name("DictReadInt/std::map");
}  // namespace
