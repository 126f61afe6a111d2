#include <cls_AbsTypeAdapter.h>
#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_WriteVisitor.h>
#include <omu_PrimDictionaryBase.h>

omu_PrimDictionaryBase::omu_PrimDictionaryBase(const cls_ReadVisitor& reader)
    : omu_Primitive(cls_ReadVisitor(reader, omu_Primitive::TypeId())),
      m_Represents(reader.Get<char>("represents")),
      m_DictionaryBaseUid(reader.Uid()) {}

void omu_PrimDictionaryBase::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<omu_Primitive>(TypeId(), m_DictionaryBaseUid, *this)) return;
  writer.Write("represents", m_Represents);
}

void omu_PrimDictionaryBase::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_AbsTypeAdapter<omu_PrimDictionaryBase>("omu_PrimDictionaryBase", 800,
                                                                 omu_Primitive::TypeId()))
      .AddAttribute({0, "represents"}, cls_KIND_CHAR);
}
