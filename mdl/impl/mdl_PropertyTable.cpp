#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <mdl_PropertyTable.h>
#include <nex_TextException.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

namespace {
// The row comparison of the sort: row a belongs below row b when, at the first key column
// (from the last one leftwards) where the two are not equal, a's value is the greater.
// Equal keys, or a NaN at that column, answer false.
class KeyGreater {
public:
  KeyGreater(const double* cells, int columns, int keys) noexcept
      : m_Cells(cells), m_Columns(columns), m_First(columns - keys) {}

  bool operator()(int a, int b) const noexcept {
    const double* rowA = Row(a);
    const double* rowB = Row(b);
    for (int column = m_Columns - 1; column >= m_First; --column) {
      if (rowA[column] > rowB[column]) return true;
      if (!(rowA[column] == rowB[column])) return false;
    }
    return false;
  }
  bool AnyNaNKey(int rows) const noexcept {
    for (int row = 0; row < rows; ++row) {
      const double* values = Row(row);
      for (int column = m_First; column < m_Columns; ++column) {
        if (std::isnan(values[column])) return true;
      }
    }
    return false;
  }

private:
  const double* Row(int row) const noexcept {
    return m_Cells + static_cast<std::size_t>(row) * static_cast<std::size_t>(m_Columns);
  }

  const double* m_Cells;
  int m_Columns;
  int m_First;
};

// The insertion sort itself, on row numbers: row i moves up while the row above is greater.
void InsertionOrder(std::vector<int>& order, const KeyGreater& greater) {
  for (std::size_t i = 1; i < order.size(); ++i) {
    const int moving = order[i];
    std::size_t j = i;
    for (; j > 0 && greater(order[j - 1], moving); --j) order[j] = order[j - 1];
    order[j] = moving;
  }
}

// Without NaN keys the comparison is a strict weak order, and the insertion sort's result is
// the one stable sorted order: a stable merge sort reaches it in n log n.
void MergeOrder(std::vector<int>& order, const KeyGreater& greater) {
  std::stable_sort(order.begin(), order.end(), [&greater](int a, int b) { return greater(b, a); });
}

// The same merge sort on rows that carry their few keys (most significant first) with them,
// so that comparisons read adjacent memory instead of chasing row numbers.
template <int Keys>
struct KeyedRow {
  double key[Keys];
  int row;
};

template <int Keys>
void KeyedMergeOrder(std::vector<int>& order, const double* cells, int columns) {
  std::vector<KeyedRow<Keys>> rows(order.size());
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const double* last = cells + (row + 1) * static_cast<std::size_t>(columns) - 1;
    for (int key = 0; key < Keys; ++key) rows[row].key[key] = last[-key];
    rows[row].row = static_cast<int>(row);
  }
  std::stable_sort(rows.begin(), rows.end(), [](const KeyedRow<Keys>& a, const KeyedRow<Keys>& b) {
    for (int key = 0; key < Keys; ++key) {
      if (a.key[key] < b.key[key]) return true;
      if (!(a.key[key] == b.key[key])) return false;
    }
    return false;
  });
  for (std::size_t row = 0; row < rows.size(); ++row) order[row] = rows[row].row;
}

void StableOrder(std::vector<int>& order, const KeyGreater& greater, const double* cells,
                 int columns, int keys) {
  switch (keys) {
    case 1: return KeyedMergeOrder<1>(order, cells, columns);
    case 2: return KeyedMergeOrder<2>(order, cells, columns);
    case 3: return KeyedMergeOrder<3>(order, cells, columns);
    default: return MergeOrder(order, greater);
  }
}
}  // namespace

mdl_PropertyTable::mdl_PropertyTable(const cls_ReadVisitor& reader)
    : m_AllowEmptyFirstRow(reader.Get<bool>("allowEmptyFirstRow")) {
  const cls_Matrix* matrix = reader.Field("table").As<cls_Matrix>();
  if (!matrix) reader.Fail("field 'table' is not a two-dimensional array");
  const std::size_t cells = static_cast<std::size_t>(std::max(matrix->rows, 0)) *
                            static_cast<std::size_t>(std::max(matrix->columns, 0));
  if (matrix->rows < 0 || matrix->columns < 0 || cells != matrix->cells.size()) {
    reader.Fail("field 'table' has a shape that does not match its cells");
  }
  m_Table.Resize(matrix->rows, matrix->columns);
  std::vector<double>& values = m_Table.MutableCells();
  for (std::size_t i = 0; i < cells; ++i) {
    const double* value = matrix->cells[i].As<double>();
    if (!value) reader.Fail("field 'table' holds something other than doubles");
    values[i] = *value;
  }
  m_Uid = reader.Uid();
}

mdl_PropertyTable::~mdl_PropertyTable() = default;

void mdl_PropertyTable::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartWrite(TypeId(), m_Uid)) return;
  cls_Matrix matrix{Rows(), Columns(), {}};
  matrix.cells.assign(m_Table.Cells().begin(), m_Table.Cells().end());
  writer.Write("table", std::move(matrix));
  writer.Write("allowEmptyFirstRow", m_AllowEmptyFirstRow);
}

bool mdl_PropertyTable::operator==(const mdl_PropertyTable& other) const {
  return m_AllowEmptyFirstRow == other.m_AllowEmptyFirstRow && m_Table == other.m_Table;
}

void mdl_PropertyTable::Sort(int keyColumns) {
  const int keys = std::min(keyColumns, Columns());
  if (keys <= 0 || Rows() < 2) return;
  const KeyGreater greater(m_Table.Cells().data(), Columns(), keys);
  std::vector<int> order(static_cast<std::size_t>(Rows()));
  std::iota(order.begin(), order.end(), 0);
  if (greater.AnyNaNKey(Rows())) {
    InsertionOrder(order, greater);
  } else {
    StableOrder(order, greater, m_Table.Cells().data(), Columns(), keys);
  }
  cow_2DArray<double> sorted(Rows(), Columns());
  std::vector<double>& to = sorted.MutableCells();
  const std::vector<double>& from = m_Table.Cells();
  const std::size_t width = static_cast<std::size_t>(Columns());
  for (std::size_t row = 0; row < order.size(); ++row) {
    std::copy_n(from.begin() + static_cast<std::ptrdiff_t>(order[row] * width), width,
                to.begin() + static_cast<std::ptrdiff_t>(row * width));
  }
  m_Table = std::move(sorted);
}

void mdl_PropertyTable::AssertValid() const {
  const std::size_t width = static_cast<std::size_t>(Columns());
  const std::vector<double>& cells = m_Table.Cells();
  for (int row = m_AllowEmptyFirstRow ? 1 : 0; row < Rows(); ++row) {
    const auto first = cells.begin() + static_cast<std::ptrdiff_t>(row * width);
    // NaN != 0, so a NaN makes the row pass.
    if (std::none_of(first, first + static_cast<std::ptrdiff_t>(width),
                     [](double v) { return v != 0.0; })) {
      NEX_THROW(nex_TextException("Tabular data for at least one option or suboption\n"
                                  "has either blank or zero valued row(s)."),
                "mdl/impl/mdl_PropertyTable");
    }
  }
}

void mdl_PropertyTable::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_TypeAdapter<mdl_PropertyTable>("mdl_PropertyTable", 203, cls_RootTypeId))
      .AddAttribute({0, "table"}, cls_KIND_ARRAY)
      .AddAttribute({1, "allowEmptyFirstRow"}, cls_KIND_BOOL);
}
