#include <omi_Singleton.h>
#include <omu_TypeRegistryCache.h>

omu_TypeRegistryCache& omu_TypeRegistryCache::Instance() {
  return omi_Singleton<omu_TypeRegistryCache>::Instance();
}

void omu_TypeRegistryCache::Release() noexcept { omi_Singleton<omu_TypeRegistryCache>::Destroy(); }

void omu_TypeRegistryCache::Expose(const cow_String& typeName) { m_Exposed.Insert(typeName, true); }

void omu_TypeRegistryCache::AddAlias(const cow_String& alias, const cow_String& typeName) {
  cow_List<cow_String> aliases;
  if (const auto* known = m_Aliases.Find(typeName)) aliases = *known;
  if (!aliases.Contains(alias)) aliases.Append(alias);
  m_Aliases.Insert(typeName, aliases);
}

bool omu_TypeRegistryCache::IsExposed(const cow_String& typeName) const {
  return m_Exposed.Contains(typeName);
}

bool omu_TypeRegistryCache::Matches(const cow_String& asked, const cow_String& described) const {
  if (asked == described) return true;
  const auto* aliases = m_Aliases.Find(described);
  return aliases && aliases->Contains(asked);
}
