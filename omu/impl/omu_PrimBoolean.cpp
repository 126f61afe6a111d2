#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_PrimBoolean.h>

omu_PrimBoolean::omu_PrimBoolean(const cls_ReadVisitor& reader)
    : omu_PrimLeaf(cls_ReadVisitor(reader, omu_Primitive::TypeId())),
      m_Value(reader.Get<bool>("m_value")),
      m_BooleanUid(reader.Uid()) {}

bool omu_PrimBoolean::operator==(const omu_Primitive& other) const {
  const auto* boolean = dynamic_cast<const omu_PrimBoolean*>(&other);
  return boolean && boolean->m_Value == m_Value;
}

void omu_PrimBoolean::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<omu_Primitive>(TypeId(), m_BooleanUid, *this)) return;
  writer.Write("m_value", m_Value);
}

void omu_PrimBoolean::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(
          new cls_TypeAdapter<omu_PrimBoolean>("omu_PrimBoolean", 800, omu_Primitive::TypeId()))
      .AddAttribute({0, "m_value"}, cls_KIND_BOOL);
}
