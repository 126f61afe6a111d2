#pragma once
/// \addtogroup basic
/// @{

/// \class cow_2DArray
/// A copy-on-write rows x columns array, stored row-major.
///
/// Indexes: a row outside [0, Rows()) or a column outside [0, Columns()) raises
/// nex_TextException "Array index (R, C) out of range (ROWS x COLUMNS)" before anything is
/// read, written or un-shared.
///
/// Equality: the same shape and equal cells, each compared with its own ==, so an array holding
/// a NaN is unequal even to itself. Arrays on one shared body are equal without comparing only
/// where cow_ReflexiveEquality<T> says every T equals itself.
///
/// Threads: as cow_List. Copies may be read and written on different threads at once, each by
/// its own thread; one array object may be read from several threads at once, and a write to it
/// needs its one owner and no reader at the same time.
#include <BASIC_Export.h>
#include <cow_ReflexiveEquality.h>
#include <cow_Shared.h>

#include <vector>

/// Raises nex_TextException for a cell outside an array of the given shape.
[[noreturn]] BASIC_EXPORT void cow_RaiseOutOfRange(int row, int column, int rows, int columns);

template <class T>
class cow_2DArray {
public:
  /// The vector's: for bool a value and a proxy, so no reference to a temporary escapes.
  using const_reference = typename std::vector<T>::const_reference;
  /// A writable cell.
  using reference = typename std::vector<T>::reference;

  cow_2DArray() noexcept = default;
  /// rows x columns copies of fill.
  cow_2DArray(int rows, int columns, const T& fill = T()) { Resize(rows, columns, fill); }

  /// The shape.
  ///@{
  int Rows() const noexcept { return Body().rows; }
  int Columns() const noexcept { return Body().columns; }
  ///@}
  /// True when there are no cells.
  bool IsEmpty() const noexcept { return Body().cells.empty(); }
  /// The cell, read-only; never un-shares.
  ///@{
  const_reference operator()(int row, int column) const { return Body().cells[Index(row, column)]; }
  const_reference ConstGet(int row, int column) const { return (*this)(row, column); }
  ///@}
  /// The cell for change: un-shares first.
  reference Get(int row, int column) {
    const std::size_t at = Index(row, column);
    return m_Body.Write().cells[at];
  }
  /// Stores value in the cell.
  void Set(int row, int column, const T& value) { Get(row, column) = value; }
  /// Every cell is reset to fill.
  void Resize(int rows, int columns, const T& fill = T()) {
    Data& body = m_Body.Write();
    body.rows = rows < 0 ? 0 : rows;
    body.columns = columns < 0 ? 0 : columns;
    body.cells.assign(static_cast<std::size_t>(body.rows) * static_cast<std::size_t>(body.columns),
                      fill);
  }
  /// The cells row by row, read-only.
  const std::vector<T>& Cells() const noexcept { return Body().cells; }
  /// The cells row by row, for change (un-shares first); keep their number.
  std::vector<T>& MutableCells() { return m_Body.Write().cells; }
  /// True while another copy shares the cells.
  bool IsShared() const noexcept { return m_Body.IsShared(); }

  friend bool operator==(const cow_2DArray& a, const cow_2DArray& b) {
    if (cow_ReflexiveEquality<T>::value && a.m_Body.SharesWith(b.m_Body)) return true;
    return a.Rows() == b.Rows() && a.Columns() == b.Columns() && a.Cells() == b.Cells();
  }

private:
  struct Data {
    int rows = 0;
    int columns = 0;
    std::vector<T> cells;
  };
  const Data& Body() const noexcept { return m_Body.Read(); }
  std::size_t Index(int row, int column) const {
    const Data& body = Body();
    if (row < 0 || row >= body.rows || column < 0 || column >= body.columns) {
      cow_RaiseOutOfRange(row, column, body.rows, body.columns);
    }
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(body.columns) +
           static_cast<std::size_t>(column);
  }

  cow_Shared<Data> m_Body;
};

/// @}
