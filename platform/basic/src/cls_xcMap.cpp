#include <cls_AbsTypeAdapter.h>
#include <cls_ClassRegistrar.h>
#include <cls_xcMap.h>

cls_xcMap::cls_xcMap(const cls_Uid& uid, int count, ItemWriter writeKey, ItemWriter writeValue)
    : m_Uid(uid),
      m_Count(count),
      m_WriteKey(std::move(writeKey)),
      m_WriteValue(std::move(writeValue)) {}

cls_xcMap::cls_xcMap(const cls_ReadVisitor& reader) : m_Reader(reader) {
  if (reader.TypeId() != TypeId()) reader.Fail("a map was expected here");
  m_Keys = &reader.ReadList("keys");
  m_Values = &reader.ReadList("values");
  if (m_Keys->size() != m_Values->size()) reader.Fail("the map's key and value counts differ");
}

void cls_xcMap::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartWrite(TypeId(), m_Uid)) return;
  writer.WriteObjects("keys", m_Count, m_WriteKey);
  writer.WriteObjects("values", m_Count, m_WriteValue);
}

void cls_xcMap::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar.AddClassMD(new cls_AbsTypeAdapter<cls_xcMap>("cls_xcMap", 514, cls_RootTypeId))
      .AddAttribute({0, "keys"}, cls_KIND_LIST)
      .AddAttribute({1, "values"}, cls_KIND_LIST);
}
