// Sorting a property table beside the standard stable sort of its row numbers under the same
// comparison (last key column most significant). With NaN keys the peer is the same sort of
// the table without them: the standard sort is undefined on a comparison that is not a strict
// weak order.
#include <mdl_PropertyTable.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <limits>
#include <numeric>
#include <random>
#include <vector>

namespace {
constexpr int kRows = 100'000;
constexpr int kColumns = 3;
constexpr int kKeys = 2;

// Material data: few distinct values in the key columns, so that ties are common.
const cow_2DArray<double>& Data() {
  static const cow_2DArray<double> data = [] {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> value(0.0, 1000.0);
    cow_2DArray<double> cells(kRows, kColumns);
    for (int row = 0; row < kRows; ++row) {
      cells.Set(row, 0, value(random));
      cells.Set(row, 1, static_cast<double>(random() % 50));
      cells.Set(row, 2, static_cast<double>(random() % 20) * 10.0);
    }
    return cells;
  }();
  return data;
}

// The same data with a NaN key in one row of ten thousand, alternating between the key columns.
const cow_2DArray<double>& DataWithNaN() {
  static const cow_2DArray<double> data = [] {
    cow_2DArray<double> cells = Data();
    for (int row = 5000; row < kRows; row += 10'000) {
      cells.Set(row, kColumns - 1 - row / 10'000 % kKeys, std::numeric_limits<double>::quiet_NaN());
    }
    return cells;
  }();
  return data;
}

void SortTable(benchmark::State& state, const cow_2DArray<double>& data) {
  const mdl_PropertyTable unsorted(data);
  for (auto _ : state) {
    mdl_PropertyTable table(unsorted);  // shares the cells; Sort builds its own
    table.Sort(kKeys);
    benchmark::DoNotOptimize(table(0, 0));
  }
}
BENCHMARK_CAPTURE(SortTable, plain, Data())
    ->Name("PropertyTableSort/ours")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SortTable, nan, DataWithNaN())
    ->Name("PropertyTableSortNaN/ours")
    ->Unit(benchmark::kMillisecond);

void PropertyTableSort_std(benchmark::State& state) {
  const std::vector<double>& cells = Data().Cells();
  const auto greater = [&cells](int a, int b) {
    const double* rowA = &cells[static_cast<std::size_t>(a) * kColumns];
    const double* rowB = &cells[static_cast<std::size_t>(b) * kColumns];
    for (int column = kColumns - 1; column >= kColumns - kKeys; --column) {
      if (rowA[column] > rowB[column]) return true;
      if (!(rowA[column] == rowB[column])) return false;
    }
    return false;
  };
  std::vector<int> order(kRows);
  for (auto _ : state) {
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&greater](int a, int b) { return greater(b, a); });
    benchmark::DoNotOptimize(order.data());
  }
}
BENCHMARK(PropertyTableSort_std)
    ->Name("PropertyTableSort/std::stable_sort")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(PropertyTableSort_std)
    ->Name("PropertyTableSortNaN/std::stable_sort without NaN")
    ->Unit(benchmark::kMillisecond);
}  // namespace
