#include <cls_ClassRegistrar.h>
#include <nex_TextException.h>

#include <algorithm>

cls_ClassRegistrar::cls_ClassRegistrar() = default;
cls_ClassRegistrar::~cls_ClassRegistrar() = default;

cls_ClassMetadata& cls_ClassRegistrar::AddClassMD(cls_ClassMetadata* metadata) {
  std::unique_ptr<cls_ClassMetadata> owned(metadata);
  const unsigned int module = cls_ModuleOf(owned->TypeId());
  const unsigned int number = cls_ClassOf(owned->TypeId());
  if (module >= m_ByModule.size()) m_ByModule.resize(module + 1);
  auto& classes = m_ByModule[module];
  if (number >= classes.size()) classes.resize(number + 1, nullptr);
  if (const cls_ClassMetadata* earlier = classes[number]) {
    std::erase_if(m_Owned, [earlier](const auto& md) { return md.get() == earlier; });
  }
  classes[number] = owned.get();
  m_Owned.push_back(std::move(owned));
  return *m_Owned.back();
}

const cls_ClassMetadata& cls_ClassRegistrar::Get(unsigned int typeId) const {
  if (const cls_ClassMetadata* metadata = Find(typeId)) return *metadata;
  NEX_THROW(
      nex_TextException(atr_StringBase::Format("no class is registered with type id 0x%x", typeId)),
      "cls/impl/cls_ClassRegistrar");
}

bool cls_ClassRegistrar::IsA(unsigned int typeId, unsigned int baseTypeId) const noexcept {
  // Parents are registered before children, so a chain cannot loop; the bound guards misuse.
  for (int steps = 0; steps < 64; ++steps) {
    if (typeId == baseTypeId) return true;
    const cls_ClassMetadata* metadata = Find(typeId);
    if (!metadata || metadata->ParentTypeId() == typeId) return false;
    typeId = metadata->ParentTypeId();
  }
  return false;
}

std::vector<const cls_ClassMetadata*> cls_ClassRegistrar::Classes() const {
  std::vector<const cls_ClassMetadata*> classes;
  classes.reserve(m_Owned.size());
  for (const auto& metadata : m_Owned) classes.push_back(metadata.get());
  return classes;
}

void cls_ClassRegistrar::RemoveModule(unsigned int module) {
  std::erase_if(m_Owned, [module](const auto& md) { return cls_ModuleOf(md->TypeId()) == module; });
  if (module < m_ByModule.size()) m_ByModule[module].clear();
}
