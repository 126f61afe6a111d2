// Sorting a property table beside the standard stable sort of its row numbers under the same
// comparison (last key column most significant).
#include <mdl_PropertyTable.h>

#include <benchmark/benchmark.h>

#include <algorithm>
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

void PropertyTableSort_ours(benchmark::State& state) {
  const mdl_PropertyTable unsorted(Data());
  for (auto _ : state) {
    mdl_PropertyTable table(unsorted);  // shares the cells; Sort builds its own
    table.Sort(kKeys);
    benchmark::DoNotOptimize(table(0, 0));
  }
}
BENCHMARK(PropertyTableSort_ours)->Name("PropertyTableSort/ours")->Unit(benchmark::kMillisecond);

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
}  // namespace
