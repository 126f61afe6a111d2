#pragma once
// What a property table promises, read literally, for the table tests and the table fuzzer.
#include <mdl_PropertyTable.h>

#include <algorithm>
#include <cstring>
#include <vector>

// The sort as the model describes it: an insertion sort on whole rows, where a row goes below one
// whose first differing key, from the last column leftwards, is smaller (a NaN key differs from
// every key and is smaller than none).
inline cow_2DArray<double> InsertionSorted(cow_2DArray<double> table, int keys) {
  const int columns = table.Columns();
  std::vector<double>& cells = table.MutableCells();
  const auto row = [&](int r) { return cells.begin() + std::ptrdiff_t{r} * columns; };
  const auto greater = [&](int a, int b) {
    for (int c = columns - 1; c >= columns - keys; --c) {
      if (row(a)[c] > row(b)[c]) return true;
      if (!(row(a)[c] == row(b)[c])) return false;
    }
    return false;
  };
  for (int i = 1; i < table.Rows(); ++i) {
    for (int j = i; j > 0 && greater(j - 1, j); --j) std::swap_ranges(row(j - 1), row(j), row(j));
  }
  return table;
}

// Bit for bit, so that -0.0 and NaN are told apart.
inline bool SameBits(const mdl_PropertyTable& a, const mdl_PropertyTable& b) {
  const auto& x = a.Table().Cells();
  const auto& y = b.Table().Cells();
  return a.Rows() == b.Rows() && a.Columns() == b.Columns() && x.size() == y.size() &&
         (x.empty() || std::memcmp(x.data(), y.data(), x.size() * sizeof(double)) == 0);
}
