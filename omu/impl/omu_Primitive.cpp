#include <cls_AbsTypeAdapter.h>
#include <cls_MetadataRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_WriteVisitor.h>
#include <omu_Primitive.h>

omu_Primitive::omu_Primitive(const cls_ReadVisitor& reader)
    : m_Type(reader.Get<char>("type")), m_Uid(reader.Uid()) {}

omu_Primitive::~omu_Primitive() = default;

cow_String omu_Primitive::TypeString() const { return "primitive"; }

cow_String omu_Primitive::AsRepr() const { return AsString(0); }

unsigned int omu_Primitive::DynTypeId() const { return TypeId(); }

void omu_Primitive::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartWrite(TypeId(), m_Uid)) return;
  writer.Write("type", m_Type);
}

bool omu_Primitive::IsA(unsigned int typeId) const {
  return cls_MetadataRegistrar::Instance().Registrar().IsA(DynTypeId(), typeId);
}

void omu_Primitive::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_AbsTypeAdapter<omu_Primitive>("omu_Primitive", 514, cls_RootTypeId, 1))
      .AddDtor([](void* object) { delete static_cast<omu_Primitive*>(object); })
      .AddAttribute({0, "type"}, cls_KIND_CHAR);
}
