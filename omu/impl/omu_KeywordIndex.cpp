#include <omu_KeywordIndex.h>

#include <bit>
#include <functional>

namespace {
std::size_t Hash(std::string_view keyword) noexcept {
  return std::hash<std::string_view>()(keyword);
}
}  // namespace

void omu_KeywordIndex::Build(std::span<const Stored> keywords) {
  m_Size = 0;
  m_Hashed = keywords.size() > Inline;
  if (m_Hashed) {
    m_Entries.resize(keywords.size());
    const std::size_t size = std::bit_ceil(2 * keywords.size() + 1);
    m_Table.assign(size, -1);
    m_Mask = size - 1;
  }
  for (const auto& [keyword, value] : keywords) Add(keyword.View(), value.ConstGet());
}

void omu_KeywordIndex::Add(std::string_view keyword, const omu_Primitive* value) {
  const std::size_t at = m_Hashed ? Probe(keyword) : 0;
  const int slot = m_Hashed ? m_Table[at] : Find(keyword);
  if (slot >= 0) {
    Entries()[static_cast<std::size_t>(slot)].value = value;
    return;
  }
  if (m_Hashed) m_Table[at] = m_Size;
  Entries()[static_cast<std::size_t>(m_Size++)] = {keyword, value};
}

std::size_t omu_KeywordIndex::Probe(std::string_view keyword) const noexcept {
  std::size_t at = Hash(keyword) & m_Mask;
  for (; m_Table[at] >= 0; at = (at + 1) & m_Mask) {
    if (Same(m_Entries[static_cast<std::size_t>(m_Table[at])].keyword, keyword)) break;
  }
  return at;
}

int omu_KeywordIndex::FindHashed(std::string_view keyword) const noexcept {
  return m_Table[Probe(keyword)];
}
