#pragma once
/// \addtogroup mdl
/// @{

/// \class mdl_JaggedArray
/// Rows of doubles whose lengths differ (ragged tabular data). Persisted as "rows", a list of
/// lists of doubles.
#include <CVX_Export.h>
#include <UTI_Modules.h>
#include <cls_Uid.h>
#include <cow_List.h>

class cls_ClassRegistrar;
class cls_ReadVisitor;
class cls_WriteVisitor;

class CVX_EXPORT mdl_JaggedArray {
public:
  mdl_JaggedArray() = default;
  /// Reads the object back from the record reader is at.
  explicit mdl_JaggedArray(const cls_ReadVisitor& reader);

  /// The number of rows.
  int Rows() const noexcept { return m_Rows.Length(); }
  /// One row; an index out of range raises nex_TextException.
  const cow_List<double>& Row(int row) const { return m_Rows[row]; }
  /// Adds a row at the end.
  void AppendRow(const cow_List<double>& row) { m_Rows.Append(row); }
  /// Same rows, element by element.
  bool operator==(const mdl_JaggedArray& other) const { return m_Rows == other.m_Rows; }

  /// TypeId().
  unsigned int DynTypeId() const noexcept { return TypeId(); }
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const;
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return mdl_TypeId(25); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  cow_List<cow_List<double>> m_Rows;
  cls_Uid m_Uid;
};

/// @}
