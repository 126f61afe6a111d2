#pragma once
// A copy-on-write rows x columns array, stored row-major.
#include <cow_Shared.h>

#include <vector>

template <class T>
class cow_2DArray {
public:
  cow_2DArray() noexcept = default;
  cow_2DArray(int rows, int columns, const T& fill = T()) { Resize(rows, columns, fill); }

  int Rows() const noexcept { return Body().rows; }
  int Columns() const noexcept { return Body().columns; }
  bool IsEmpty() const noexcept { return Body().cells.empty(); }
  const T& operator()(int row, int column) const { return Body().cells[Index(row, column)]; }
  const T& ConstGet(int row, int column) const { return (*this)(row, column); }
  T& Get(int row, int column) { return m_Body.Write().cells[Index(row, column)]; }
  void Set(int row, int column, const T& value) { Get(row, column) = value; }
  // Every cell is reset to fill.
  void Resize(int rows, int columns, const T& fill = T()) {
    Data& body = m_Body.Write();
    body.rows = rows < 0 ? 0 : rows;
    body.columns = columns < 0 ? 0 : columns;
    body.cells.assign(static_cast<std::size_t>(body.rows) * static_cast<std::size_t>(body.columns),
                      fill);
  }
  const std::vector<T>& Cells() const noexcept { return Body().cells; }
  std::vector<T>& MutableCells() { return m_Body.Write().cells; }
  bool IsShared() const noexcept { return m_Body.IsShared(); }

  friend bool operator==(const cow_2DArray& a, const cow_2DArray& b) {
    return a.Rows() == b.Rows() && a.Columns() == b.Columns() && a.Cells() == b.Cells();
  }

private:
  struct Data {
    int rows = 0;
    int columns = 0;
    std::vector<T> cells;
  };
  const Data& Body() const noexcept { return m_Body.Read(); }
  std::size_t Index(int row, int column) const noexcept {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(Body().columns) +
           static_cast<std::size_t>(column);
  }

  cow_Shared<Data> m_Body;
};
