#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_PrimEnumBase.h>
#include <omu_PrimList.h>

namespace {
constexpr const char* kSource = "omu/impl/omu_PrimList";
constexpr const char* kMissing = "List Index returned NULL";
}  // namespace

omu_PrimList::omu_PrimList(int size, char typeCode) : omu_PrimList(size, size, typeCode) {}

omu_PrimList::omu_PrimList(int size, int maxSize, char typeCode)
    : omu_PrimLeaf(size, typeCode), m_MaxSize(maxSize) {}

template <class T>
void omu_PrimList::Fill(const cow_List<T>& values) {
  for (const T& value : values) PutValue(value);
  Begin();
}

omu_PrimList::omu_PrimList(const cow_List<int>& values, char typeCode)
    : omu_PrimList(values.Length(), typeCode) {
  Fill(values);
}

omu_PrimList::omu_PrimList(const cow_List<cow_String>& values, char typeCode)
    : omu_PrimList(values.Length(), typeCode) {
  Fill(values);
}

omu_PrimList::omu_PrimList(const cow_List<omu_PrimEnumBase>& values, char typeCode)
    : omu_PrimList(values.Length(), typeCode) {
  Fill(values);
}

omu_PrimList::omu_PrimList(const cls_ReadVisitor& reader)
    : omu_PrimLeaf(cls_ReadVisitor(reader, omu_PrimTuple::TypeId())),
      m_MaxSize(reader.Get<int>("maxSize")),
      m_ListUid(reader.Uid()) {}

omu_PrimSequence* omu_PrimList::Slice(int from, int to) const {
  return SliceAs<omu_PrimList>(from, to, kMissing, kSource);
}

omu_PrimSequence* omu_PrimList::Repeat(int times) const {
  return RepeatAs<omu_PrimList>(times, kMissing, kSource);
}

omu_PrimSequence* omu_PrimList::Concat(omu_PrimSequence* other) const {
  return ConcatAs<omu_PrimList>(other, kMissing, kSource);
}

void omu_PrimList::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<omu_PrimTuple>(TypeId(), m_ListUid, *this)) return;
  writer.Write("maxSize", m_MaxSize);
}

void omu_PrimList::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_TypeAdapter<omu_PrimList>("omu_PrimList", 800, omu_PrimTuple::TypeId()))
      .AddAttribute({0, "maxSize"}, cls_KIND_INT);
}
