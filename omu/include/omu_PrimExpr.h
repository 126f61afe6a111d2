#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimExpr
/// An expression kept as the script wrote it; it prints unquoted.
#include <omu_PrimLeaf.h>
#include <omu_Primitive.h>

class CVX_EXPORT omu_PrimExpr : public omu_PrimLeaf<omu_PrimExpr, omu_Primitive> {
public:
  explicit omu_PrimExpr(const cow_String& expression = cow_String())
      : omu_PrimLeaf('e'), m_Expr(expression) {}
  omu_PrimExpr(const omu_PrimExpr&) = default;
  omu_PrimExpr& operator=(const omu_PrimExpr&) = default;
  explicit omu_PrimExpr(const cls_ReadVisitor& reader);

  cow_String TypeString() const override { return "expression"; }
  cow_String AsString(int) const override { return m_Expr; }
  bool operator==(const omu_Primitive& other) const override;
  void DBWrite(const cls_WriteVisitor& writer) const override;

  const cow_String& Expression() const noexcept { return m_Expr; }

  static unsigned int TypeId() noexcept { return omu_TypeId(26); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  cow_String m_Expr;
  cls_Uid m_ExprUid;
};

/// @}
