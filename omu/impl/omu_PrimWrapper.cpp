#include <cls_ClassRegistrar.h>
#include <cls_MetadataRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <idb_DeepCopy.h>
#include <omu_PrimWrapper.h>

omu_PrimWrapper::omu_PrimWrapper(const void* object, unsigned int objType)
    : omu_PrimLeaf('w'), m_ObjType(objType), m_Object(object, [](const void*) {}) {}

omu_PrimWrapper::omu_PrimWrapper(const omu_PrimWrapper& other)
    : omu_PrimLeaf(other),
      m_ObjType(other.m_ObjType),
      m_MemberDict(other.m_MemberDict),
      m_WrapperUid(other.m_WrapperUid) {
  Own(idb_DeepCopy(other.Object(), m_ObjType));
}

omu_PrimWrapper& omu_PrimWrapper::operator=(const omu_PrimWrapper& other) {
  if (this != &other) {
    omu_PrimWrapper copy(other);
    omu_Primitive::operator=(other);
    m_ObjType = copy.m_ObjType;
    m_Object = std::move(copy.m_Object);
    m_Owned = copy.m_Owned;
    m_MemberDict = copy.m_MemberDict;
    m_WrapperUid = copy.m_WrapperUid;
  }
  return *this;
}

omu_PrimWrapper::omu_PrimWrapper(const cls_ReadVisitor& reader)
    : omu_PrimLeaf(cls_ReadVisitor(reader, omu_Primitive::TypeId())),
      m_ObjType(reader.Get<unsigned int>("objType")) {
  unsigned int typeId = 0;
  void* object = reader.Construct(reader.Field("objectPtr"), m_ObjType, typeId);
  if (object) m_ObjType = typeId;
  Own(object);
  const auto members = reader.ReadObject<omu_PrimDictionary<cow_String>>("memberDict");
  if (!members) reader.Fail("the wrapper has no member dictionary");
  m_MemberDict = *members;
  m_WrapperUid = reader.Uid();
}

void omu_PrimWrapper::Own(void* object) {
  if (!object) {
    m_Object.reset();
    m_Owned = false;
    return;
  }
  const cls_ClassMetadata* metadata = &cls_MetadataRegistrar::Instance().Registrar().Get(m_ObjType);
  m_Object = std::shared_ptr<const void>(
      object, [metadata](const void* owned) { metadata->Destroy(const_cast<void*>(owned)); });
  m_Owned = true;
}

void omu_PrimWrapper::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<omu_Primitive>(TypeId(), m_WrapperUid, *this)) return;
  writer.Write("objType", m_ObjType);
  writer.WriteObject("objectPtr", m_ObjType, Object());
  writer.WriteObject("memberDict", m_MemberDict);
}

void omu_PrimWrapper::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(
          new cls_TypeAdapter<omu_PrimWrapper>("omu_PrimWrapper", 800, omu_Primitive::TypeId()))
      .AddAttribute({0, "objType"}, cls_KIND_UINT)
      .AddAttribute({1, "objectPtr"}, cls_KIND_REFERENCE, 2, 0)
      .AddAttribute({2, "memberDict"}, cls_KIND_REFERENCE,
                    omu_PrimDictionary<cow_String>::TypeId());
}
