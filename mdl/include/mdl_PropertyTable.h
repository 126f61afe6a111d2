#pragma once
/// \addtogroup mdl
/// @{

/// \class mdl_PropertyTable
/// One block of tabular material or section data: a rows x columns table of doubles, one row
/// per data point, and a flag that lets the first row be all zero. Persisted as "table" (a
/// block of doubles, shared with the archive: writing copies no cell) and "allowEmptyFirstRow".
/// Owners share one table through mdl_PropertyTableHld until one of them changes it.
#include <CVX_Export.h>
#include <UTI_Modules.h>
#include <cls_Uid.h>
#include <cow_2DArray.h>
#include <cow_COW.h>

class cls_ClassRegistrar;
struct cls_Matrix;
class cls_ReadVisitor;
class cls_WriteVisitor;

// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): final, nothing derives
class CVX_EXPORT mdl_PropertyTable final {
public:
  mdl_PropertyTable() noexcept = default;
  /// A rows x columns table of zeros.
  mdl_PropertyTable(int rows, int columns) : m_Table(rows, columns) {}
  /// Shares table until one of them changes.
  explicit mdl_PropertyTable(const cow_2DArray<double>& table) noexcept : m_Table(table) {}
  /// Member-wise copy.
  ///@{
  mdl_PropertyTable(const mdl_PropertyTable&) = default;
  mdl_PropertyTable& operator=(const mdl_PropertyTable&) = default;
  ///@}
  /// Reads the object back from the record reader is at.
  explicit mdl_PropertyTable(const cls_ReadVisitor& reader);
  ~mdl_PropertyTable();  ///< not virtual: nothing derives from a final class

  /// A new copy, owned by the caller.
  virtual mdl_PropertyTable* Copy() const { return new mdl_PropertyTable(*this); }
  /// TypeId().
  virtual unsigned int DynTypeId() const { return TypeId(); }
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const;

  /// The table's shape.
  ///@{
  int Rows() const noexcept { return m_Table.Rows(); }
  int Columns() const noexcept { return m_Table.Columns(); }
  ///@}
  /// A cell outside the table raises nex_TextException and changes nothing (see cow_2DArray).
  double operator()(int row, int column) const { return m_Table(row, column); }
  /// Sets one cell; indexes out of range raise nex_TextException.
  void Set(int row, int column, double value) { m_Table.Set(row, column, value); }
  /// The table.
  const cow_2DArray<double>& Table() const noexcept { return m_Table; }
  /// The identity it is written under.
  const cls_Uid& Uid() const noexcept { return m_Uid; }
  /// Whether the first row may be all zero (default false).
  ///@{
  bool AllowEmptyFirstRow() const noexcept { return m_AllowEmptyFirstRow; }
  void SetAllowEmptyFirstRow(bool allow) noexcept { m_AllowEmptyFirstRow = allow; }
  ///@}

  /// Same flag, same shape and every element equal; a NaN is never equal, so a table holding
  /// one is unequal even to itself.
  bool operator==(const mdl_PropertyTable& other) const;
  /// Negation of operator==.
  bool operator!=(const mdl_PropertyTable& other) const { return !(*this == other); }

  /// Orders the rows ascending by the last keyColumns columns, the last column most
  /// significant; rows with equal keys keep their order. A row whose comparison reaches a NaN
  /// key stops moving there, exactly as an insertion sort that moves a row up while the row
  /// above compares greater would leave it. Costs O(keys * rows * log rows) whatever the
  /// values, NaN included, and a copy of the table plus 16 bytes per row of scratch.
  void Sort(int keyColumns);
  /// Raises nex_TextException at the first row whose values are all zero (NaN counts as
  /// non-zero); row 0 is exempt when the flag allows an empty first row.
  void AssertValid() const;

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return mdl_TypeId(18); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  void ReadCells(const cls_ReadVisitor& reader, const cls_Matrix* matrix);

  cow_2DArray<double> m_Table;
  bool m_AllowEmptyFirstRow = false;
  cls_Uid m_Uid = cls_Uid::AllocateUid();
};

/// A shared, copy-on-write holder of a table.
using mdl_PropertyTableHld = cow_COW<mdl_PropertyTable, cow_Virtual<mdl_PropertyTable>>;

/// @}
