#include <cls_AbsTypeAdapter.h>
#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_WriteVisitor.h>
#include <omu_PrimSequence.h>

omu_PrimSequence::omu_PrimSequence(const cls_ReadVisitor& reader)
    : omu_Primitive(cls_ReadVisitor(reader, omu_Primitive::TypeId())),
      m_SequenceUid(reader.Uid()) {}

void omu_PrimSequence::DBWrite(const cls_WriteVisitor& writer) const {
  writer.StartLevel<omu_Primitive>(TypeId(), m_SequenceUid, *this);
}

void omu_PrimSequence::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar.AddClassMD(
      new cls_AbsTypeAdapter<omu_PrimSequence>("omu_PrimSequence", 800, omu_Primitive::TypeId()));
}
