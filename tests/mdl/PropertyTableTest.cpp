#include "LibraryEnvironment.h"
#include "PropertyTableReference.h"
#include "RaisedText.h"
#include "TestArchive.h"

#include <nex_TextException.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <string>

namespace {
constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

mdl_PropertyTable Table(int columns, std::vector<double> cells) {
  const int rows = columns ? static_cast<int>(cells.size()) / columns : 0;
  cow_2DArray<double> array(rows, columns);
  array.MutableCells() = std::move(cells);
  return mdl_PropertyTable(array);
}
}  // namespace

// Tables round trip bit for bit, flag and shape included, in the model-wide identity test.
// Cells compare as cow_2DArray's do, NaN included: the flag and the shape are its own.
TEST(PropertyTable, EqualityNeedsFlagShapeAndEveryElement) {
  const mdl_PropertyTable base = Table(3, {1, 2, 3, 4, 5, 6});
  EXPECT_EQ(base, Table(3, {1, 2, 3, 4, 5, 6}));
  EXPECT_NE(base, Table(2, {1, 2, 3, 4, 5, 6}));  // same cells, other shape
  EXPECT_NE(base, Table(3, {1, 2, 3, 4, 5, 7}));
  mdl_PropertyTable flagged = base;
  flagged.SetAllowEmptyFirstRow(true);
  EXPECT_NE(base, flagged);
  EXPECT_NE(mdl_PropertyTable(), mdl_PropertyTable(0, 4));  // no cells, but other column counts
}

// NaN, both zeros and both infinities in every key column, on tables long enough for the
// groups and segments they make to nest several keys deep.
TEST(PropertyTable, SortGivesTheInsertionSortsExactResultOnRandomTables) {
  std::mt19937 random(20240611);
  constexpr double Inf = std::numeric_limits<double>::infinity();
  // The special values first: tables drawn from them alone have long runs of equal keys.
  const double values[] = {NaN, -0.0, 0.0, Inf, -Inf, -1.0, 1.0, 2.0};
  for (int trial = 0; trial < 3000; ++trial) {
    const bool withNaN = trial % 2 == 0;
    const int columns = 1 + static_cast<int>(random() % 4);
    const int rows = static_cast<int>(random() % 120);
    const int keys = static_cast<int>(random() % 6) - 1;
    const int first = withNaN ? 0 : 1;
    const int end = random() % 2 ? 5 : 8;
    cow_2DArray<double> array(rows, columns);
    for (double& cell : array.MutableCells()) cell = values[first + random() % (end - first)];
    mdl_PropertyTable table{array};
    table.Sort(keys);
    const mdl_PropertyTable expected{InsertionSorted(array, std::min(std::max(keys, 0), columns))};
    ASSERT_TRUE(SameBits(table, expected))
        << "trial " << trial << ": " << rows << "x" << columns << " keys " << keys;
  }
  // Sorting a copy leaves the original it shares cells with alone.
  const mdl_PropertyTableHld original(Table(1, {2, 1}));
  mdl_PropertyTableHld copy = original;
  copy.Get()->Sort(1);
  EXPECT_TRUE(SameBits(*original, Table(1, {2, 1})));
  EXPECT_TRUE(SameBits(*copy, Table(1, {1, 2})));
}

// The exact refusal and what the table fuzzer's palette and shapes cannot reach; its oracle and
// seeds cover later zero rows, NaN beside zeros and tables without rows.
TEST(PropertyTable, AssertValidRefusesTheFirstAllZeroRow) {
  struct Case {
    const char* name;
    mdl_PropertyTable table;
    bool allowEmptyFirstRow;
    bool valid;
  };
  const Case cases[] = {
      {"zero first row", Table(3, {0, 0, 0}), false, false},
      {"zero first row allowed", Table(3, {0, -0.0, 0}), true, true},
      {"one non-zero", Table(2, {0, 1e-300, 4, 0}), false, true},
      {"rows without columns", mdl_PropertyTable(1, 0), false, false},
  };
  const std::string refusal =
      "Tabular data for at least one option or suboption\n"
      "has either blank or zero valued row(s).";
  for (Case c : cases) {
    c.table.SetAllowEmptyFirstRow(c.allowEmptyFirstRow);
    EXPECT_EQ(RaisedText([&] { c.table.AssertValid(); }), c.valid ? "ok" : refusal) << c.name;
  }
}

TEST(PropertyTable, AForeignTableIsRefusedAsATextFailure) {
  const cls_Matrix forged[] = {
      {-1, 0, {}},                                // negative shape
      {1, 2, {1.0, cls_Value(std::int32_t{2})}},  // a cell of another kind
  };
  for (const cls_Matrix& table : forged) {
    const ForgedRecord record{mdl_PropertyTable::TypeId(),
                              {{"table", table}, {"allowEmptyFirstRow", false}}};
    EXPECT_THROW(RoundTrip<mdl_PropertyTable>(record, "forgedtable"), nex_TextException);
  }
}
