#include <cls_AbsTypeAdapter.h>
#include <cls_ClassRegistrar.h>
#include <cls_xcList.h>

cls_xcList::cls_xcList(const cls_Uid& uid, int count, ItemWriter writeItem)
    : m_Uid(uid), m_Count(count), m_WriteItem(std::move(writeItem)) {}

cls_xcList::cls_xcList(const cls_ReadVisitor& reader) : m_Reader(reader) {
  if (reader.TypeId() != TypeId()) reader.Fail("a list was expected here");
  m_Items = &reader.ReadList("items");
}

void cls_xcList::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartWrite(TypeId(), m_Uid)) return;
  writer.WriteObjects("items", m_Count, m_WriteItem);
}

void cls_xcList::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar.AddClassMD(new cls_AbsTypeAdapter<cls_xcList>("cls_xcList", 514, cls_RootTypeId))
      .AddAttribute({0, "items"}, cls_KIND_LIST);
}
