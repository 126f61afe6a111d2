#include <cls_TypeIds.h>
#include <typ_ArchCompTable.h>

typ_ArchCompTable& typ_ArchCompTable::Instance() {
  static typ_ArchCompTable instance;
  return instance;
}

void typ_ArchCompTable::InsertEntry(int module, typ_ArchCompEntry entry) {
  m_Entries.insert_or_assign(module, entry);
}

void typ_ArchCompTable::RemoveEntry(int module) { m_Entries.erase(module); }

const typ_ArchCompEntry* typ_ArchCompTable::Entry(int module) const noexcept {
  const auto at = m_Entries.find(module);
  return at == m_Entries.end() ? nullptr : &at->second;
}

const char* typ_ArchCompTable::ClassName(unsigned int typeId) const noexcept {
  const typ_ArchCompEntry* entry = Entry(static_cast<int>(cls_ModuleOf(typeId)));
  const typ_ArchCompRecord* row = entry ? entry->Row(cls_ClassOf(typeId)) : nullptr;
  return row ? row->name : nullptr;
}
