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
// A row number with one of its keys beside it, so that sorting reads adjacent memory instead of
// chasing row numbers into the table.
struct KeyedRow {
  double key;
  int row;
};

// A run of places in the order that hold rows equal on every key sorted so far.
struct Group {
  std::size_t begin, end;
};

// The insertion sort's result, key by key from the most significant. Within a group, a row
// whose key is NaN compares neither greater nor equal, so the insertion sort moves no row past
// it: the NaN rows stay where they are and the rows between them are sorted apart. Without NaN
// the key is a strict weak order (-0 equal to +0), so the insertion sort leaves each segment
// stably sorted by it and sorts each run of equal keys, in its original order, by the keys
// that follow: exactly the next pass. Cost O(keys * n log n).
class KeyOrder {
public:
  KeyOrder(const double* cells, int columns, int keys) noexcept
      : m_Cells(cells), m_Columns(static_cast<std::size_t>(columns)), m_Keys(keys) {}

  void Sort(std::vector<int>& order) {
    std::vector<Group> groups{{0, order.size()}};
    std::vector<Group> next;
    for (int key = 0; key < m_Keys && !groups.empty(); ++key) {
      const std::size_t column = m_Columns - 1 - static_cast<std::size_t>(key);
      const bool last = key + 1 == m_Keys;
      next.clear();
      for (const Group& group : groups) SortGroup(order, group, column, last ? nullptr : &next);
      groups.swap(next);
    }
  }

private:
  double Key(int row, std::size_t column) const noexcept {
    return m_Cells[static_cast<std::size_t>(row) * m_Columns + column];
  }

  void SortGroup(std::vector<int>& order, Group group, std::size_t column,
                 std::vector<Group>* ties) {
    for (std::size_t begin = group.begin; begin < group.end;) {
      if (std::isnan(Key(order[begin], column))) {
        ++begin;
        continue;
      }
      std::size_t end = begin + 1;
      while (end < group.end && !std::isnan(Key(order[end], column))) ++end;
      if (end - begin > 1) SortSegment(order, {begin, end}, column, ties);
      begin = end;
    }
  }

  // Stably sorts a segment free of NaN keys and records its runs of equal keys in ties.
  void SortSegment(std::vector<int>& order, Group segment, std::size_t column,
                   std::vector<Group>* ties) {
    m_Scratch.clear();
    for (std::size_t at = segment.begin; at < segment.end; ++at) {
      m_Scratch.push_back({Key(order[at], column), order[at]});
    }
    std::stable_sort(m_Scratch.begin(), m_Scratch.end(),
                     [](const KeyedRow& a, const KeyedRow& b) { return a.key < b.key; });
    for (std::size_t at = 0; at < m_Scratch.size(); ++at) {
      order[segment.begin + at] = m_Scratch[at].row;
    }
    if (!ties) return;
    for (std::size_t run = 0; run < m_Scratch.size();) {
      std::size_t end = run + 1;
      while (end < m_Scratch.size() && m_Scratch[end].key == m_Scratch[run].key) ++end;
      if (end - run > 1) ties->push_back({segment.begin + run, segment.begin + end});
      run = end;
    }
  }

  const double* m_Cells;
  std::size_t m_Columns;
  int m_Keys;
  std::vector<KeyedRow> m_Scratch;
};
}  // namespace

mdl_PropertyTable::mdl_PropertyTable(const cls_ReadVisitor& reader)
    : m_AllowEmptyFirstRow(reader.Get<bool>("allowEmptyFirstRow")) {
  const cls_Value& table = reader.Field("table");
  if (const auto block = table.AsDoubles()) {
    m_Table = *block;  // shared, not copied
  } else {
    ReadCells(reader, table.As<cls_Matrix>());
  }
  m_Uid = reader.Uid();
}

// Tables as archives before format version 2 hold them: a value per cell.
void mdl_PropertyTable::ReadCells(const cls_ReadVisitor& reader, const cls_Matrix* matrix) {
  if (!matrix) reader.Fail("field 'table' is not a two-dimensional array");
  const std::size_t cells = static_cast<std::size_t>(std::max(matrix->rows, 0)) *
                            static_cast<std::size_t>(std::max(matrix->columns, 0));
  if (matrix->rows < 0 || matrix->columns < 0 || cells != matrix->cells.size()) {
    reader.Fail("field 'table' has a shape that does not match its cells");
  }
  m_Table.Resize(matrix->rows, matrix->columns);
  std::vector<double>& values = m_Table.MutableCells();
  for (std::size_t i = 0; i < cells; ++i) {
    const auto* value = matrix->cells[i].As<double>();
    if (!value) reader.Fail("field 'table' holds something other than doubles");
    values[i] = *value;
  }
}

mdl_PropertyTable::~mdl_PropertyTable() = default;

void mdl_PropertyTable::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartWrite(TypeId(), m_Uid)) return;
  writer.Write("table", m_Table);  // one block, shared with the archive until either changes
  writer.Write("allowEmptyFirstRow", m_AllowEmptyFirstRow);
}

bool mdl_PropertyTable::operator==(const mdl_PropertyTable& other) const {
  return m_AllowEmptyFirstRow == other.m_AllowEmptyFirstRow && m_Table == other.m_Table;
}

void mdl_PropertyTable::Sort(int keyColumns) {
  const int keys = std::min(keyColumns, Columns());
  if (keys <= 0 || Rows() < 2) return;
  std::vector<int> order(static_cast<std::size_t>(Rows()));
  std::iota(order.begin(), order.end(), 0);
  KeyOrder(m_Table.Cells().data(), Columns(), keys).Sort(order);
  cow_2DArray<double> sorted(Rows(), Columns());
  std::vector<double>& to = sorted.MutableCells();
  const std::vector<double>& from = m_Table.Cells();
  const auto width = static_cast<std::size_t>(Columns());
  for (std::size_t row = 0; row < order.size(); ++row) {
    std::copy_n(from.begin() + static_cast<std::ptrdiff_t>(order[row] * width), width,
                to.begin() + static_cast<std::ptrdiff_t>(row * width));
  }
  m_Table = std::move(sorted);
}

void mdl_PropertyTable::AssertValid() const {
  const auto width = static_cast<std::size_t>(Columns());
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
