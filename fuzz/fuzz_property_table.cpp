// Arbitrary tables through Sort and AssertValid, each beside a literal reading of what it
// promises: a plain insertion sort on whole rows (NaN keys included, where the fast paths
// must still give its exact answer) and a row-by-row search for an all-zero row.
#include <mdl_PropertyTable.h>

#include <nex_TextException.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <vector>

namespace {
using Rows = std::vector<std::vector<double>>;

// Few distinct values, so that ties, zeros, signed zeros and NaN keys are common.
double Value(std::uint8_t byte) {
  constexpr double kPalette[] = {0.0, -0.0, 1.0, -1.0, 2.5, 1e300,
                                 std::numeric_limits<double>::quiet_NaN(),
                                 std::numeric_limits<double>::infinity()};
  return kPalette[byte % std::size(kPalette)];
}

// Row a belongs below row b: at the first key column, from the last leftwards, where they
// differ, a's value is greater; equal keys or a NaN there answer false.
bool Greater(const std::vector<double>& a, const std::vector<double>& b, int keys) {
  const int columns = static_cast<int>(a.size());
  for (int column = columns - 1; column >= columns - keys; --column) {
    if (a[column] > b[column]) return true;
    if (!(a[column] == b[column])) return false;
  }
  return false;
}

Rows InsertionSorted(Rows rows, int keys) {
  for (std::size_t i = 1; i < rows.size(); ++i) {
    for (std::size_t j = i; j > 0 && Greater(rows[j - 1], rows[j], keys); --j) {
      std::swap(rows[j - 1], rows[j]);
    }
  }
  return rows;
}

bool HasZeroRow(const Rows& rows, bool allowEmptyFirstRow) {
  for (std::size_t row = allowEmptyFirstRow ? 1 : 0; row < rows.size(); ++row) {
    bool allZero = true;
    for (double value : rows[row]) allZero = allZero && value == 0.0;
    if (allZero) return true;
  }
  return false;
}

// Bit for bit, so that a NaN or a signed zero in the wrong row shows.
bool SameBits(const mdl_PropertyTable& table, const Rows& rows) {
  for (int row = 0; row < table.Rows(); ++row) {
    for (int column = 0; column < table.Columns(); ++column) {
      const double value = table(row, column);
      if (std::memcmp(&value, &rows[row][column], sizeof value) != 0) return false;
    }
  }
  return true;
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 3) return 0;
  const int columns = 1 + data[0] % 5;
  const int keys = data[1] % 8 - 1;  // -1 to 6: none, some, all and more than all columns
  const bool allowEmptyFirstRow = (data[2] & 1) != 0;
  const int rows = static_cast<int>((size - 3) / static_cast<std::size_t>(columns));
  Rows expected(static_cast<std::size_t>(rows), std::vector<double>(columns));
  mdl_PropertyTable table(rows, columns);
  table.SetAllowEmptyFirstRow(allowEmptyFirstRow);
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      const double value = Value(data[3 + row * columns + column]);
      table.Set(row, column, value);
      expected[row][column] = value;
    }
  }

  bool refused = false;
  try {
    table.AssertValid();
  } catch (const nex_TextException&) {
    refused = true;
  }
  if (refused != HasZeroRow(expected, allowEmptyFirstRow)) std::abort();

  table.Sort(keys);
  const int usedKeys = keys < columns ? keys : columns;
  if (usedKeys > 0) expected = InsertionSorted(std::move(expected), usedKeys);
  if (!SameBits(table, expected)) std::abort();
  return 0;
}
