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
  explicit mdl_JaggedArray(const cls_ReadVisitor& reader);

  int Rows() const noexcept { return m_Rows.Length(); }
  const cow_List<double>& Row(int row) const { return m_Rows[row]; }
  void AppendRow(const cow_List<double>& row) { m_Rows.Append(row); }
  bool operator==(const mdl_JaggedArray& other) const { return m_Rows == other.m_Rows; }

  unsigned int DynTypeId() const noexcept { return TypeId(); }
  void DBWrite(const cls_WriteVisitor& writer) const;
  static unsigned int TypeId() noexcept { return mdl_TypeId(25); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  cow_List<cow_List<double>> m_Rows;
  cls_Uid m_Uid;
};

/// @}
