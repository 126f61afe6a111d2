#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_PrimNone.h>

omu_PrimNone::omu_PrimNone(const cls_ReadVisitor& reader)
    : omu_PrimLeaf(cls_ReadVisitor(reader, omu_Primitive::TypeId())),
      m_IsSet(reader.Get<bool>("isSet")),
      m_NoneUid(reader.Uid()) {}

bool omu_PrimNone::operator==(const omu_Primitive& other) const {
  const auto* none = dynamic_cast<const omu_PrimNone*>(&other);
  return none && none->m_IsSet == m_IsSet;
}

void omu_PrimNone::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<omu_Primitive>(TypeId(), m_NoneUid, *this)) return;
  writer.Write("isSet", m_IsSet);
}

void omu_PrimNone::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_TypeAdapter<omu_PrimNone>("omu_PrimNone", 800, omu_Primitive::TypeId()))
      .AddAttribute({0, "isSet"}, cls_KIND_BOOL);
}
