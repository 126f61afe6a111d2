#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimExpr
/// An expression kept as the script wrote it; it prints unquoted.
#include <omu_PrimLeaf.h>
#include <omu_Primitive.h>

class CVX_EXPORT omu_PrimExpr : public omu_PrimLeaf<omu_PrimExpr, omu_Primitive> {
public:
  /// The expression's text as written.
  explicit omu_PrimExpr(const cow_String& expression = cow_String())
      : omu_PrimLeaf('e'), m_Expr(expression) {}
  /// Member-wise copy.
  ///@{
  omu_PrimExpr(const omu_PrimExpr&) = default;
  omu_PrimExpr& operator=(const omu_PrimExpr&) = default;
  ///@}
  /// Reads the object back from the record reader is at.
  explicit omu_PrimExpr(const cls_ReadVisitor& reader);

  cow_String TypeString() const override { return "expression"; }
  cow_String AsString(int) const override { return m_Expr; }
  bool operator==(const omu_Primitive& other) const override;
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// The expression's text.
  const cow_String& Expression() const noexcept { return m_Expr; }

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(26); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  cow_String m_Expr;
  cls_Uid m_ExprUid;
};

/// @}
