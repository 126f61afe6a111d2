// Arbitrary tables through Sort and AssertValid, each beside a literal reading of what it
// promises: a plain insertion sort on whole rows (NaN keys included, where the fast paths
// must still give its exact answer) and a row-by-row search for an all-zero row.
#include "../tests/mdl/PropertyTableReference.h"

#include <nex_TextException.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <vector>

namespace {
// Few distinct values, so that ties, zeros, signed zeros and NaN keys are common.
double Value(std::uint8_t byte) {
  constexpr double kPalette[] = {0.0,
                                 -0.0,
                                 1.0,
                                 -1.0,
                                 2.5,
                                 1e300,
                                 std::numeric_limits<double>::quiet_NaN(),
                                 std::numeric_limits<double>::infinity()};
  return kPalette[byte % std::size(kPalette)];
}

bool HasZeroRow(const cow_2DArray<double>& cells, bool allowEmptyFirstRow) {
  for (int row = allowEmptyFirstRow ? 1 : 0; row < cells.Rows(); ++row) {
    const auto first = cells.Cells().begin() + std::ptrdiff_t{row} * cells.Columns();
    if (std::all_of(first, first + cells.Columns(), [](double v) { return v == 0.0; })) return true;
  }
  return false;
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 3) return 0;
  const int columns = 1 + data[0] % 5;
  const int keys = data[1] % 8 - 1;  // -1 to 6: none, some, all and more than all columns
  const bool allowEmptyFirstRow = (data[2] & 1) != 0;
  cow_2DArray<double> cells(static_cast<int>((size - 3) / static_cast<std::size_t>(columns)),
                            columns);
  std::vector<double>& values = cells.MutableCells();
  for (std::size_t i = 0; i < values.size(); ++i) values[i] = Value(data[3 + i]);
  mdl_PropertyTable table(cells);
  table.SetAllowEmptyFirstRow(allowEmptyFirstRow);

  bool refused = false;
  try {
    table.AssertValid();
  } catch (const nex_TextException&) {
    refused = true;
  }
  if (refused != HasZeroRow(cells, allowEmptyFirstRow)) std::abort();

  // Worked out before the sort, so that a sort writing into the storage it shares shows.
  const mdl_PropertyTable expected(InsertionSorted(cells, std::clamp(keys, 0, columns)));
  table.Sort(keys);
  if (!SameBits(table, expected)) std::abort();
  return 0;
}
