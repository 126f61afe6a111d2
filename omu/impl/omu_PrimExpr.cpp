#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_PrimExpr.h>

omu_PrimExpr::omu_PrimExpr(const cls_ReadVisitor& reader)
    : omu_PrimLeaf(cls_ReadVisitor(reader, omu_Primitive::TypeId())),
      m_Expr(reader.Get<cow_String>("expr")),
      m_ExprUid(reader.Uid()) {}

bool omu_PrimExpr::operator==(const omu_Primitive& other) const {
  return other.IsType('e') && static_cast<const omu_PrimExpr&>(other).m_Expr == m_Expr;
}

void omu_PrimExpr::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<omu_Primitive>(TypeId(), m_ExprUid, *this)) return;
  writer.Write("expr", m_Expr);
}

void omu_PrimExpr::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_TypeAdapter<omu_PrimExpr>("omu_PrimExpr", 800, omu_Primitive::TypeId()))
      .AddAttribute({0, "expr"}, cls_KIND_STRING);
}
