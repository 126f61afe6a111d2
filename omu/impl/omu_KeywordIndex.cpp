#include <omu_KeywordIndex.h>

#include <bit>
#include <functional>

namespace {
std::size_t Hash(std::string_view keyword) noexcept {
  return std::hash<std::string_view>()(keyword);
}
}  // namespace

void omu_KeywordIndex::Build(const omu_PrimDictionary<cow_String>& keywords) {
  m_Size = keywords.Length();
  Entry* into = m_Inline.data();
  if (!IsInline()) {
    m_Entries.resize(static_cast<std::size_t>(m_Size));
    into = m_Entries.data();
  }
  for (const auto& [keyword, value] : keywords.GetEntries()) {
    *into++ = {keyword.View(), value.ConstGet()};
  }
  if (IsInline()) return;
  const std::size_t size = std::bit_ceil(2 * m_Entries.size() + 1);
  m_Table.assign(size, -1);
  m_Mask = size - 1;
  for (std::size_t slot = 0; slot < m_Entries.size(); ++slot) {
    std::size_t at = Hash(m_Entries[slot].keyword) & m_Mask;
    while (m_Table[at] >= 0) at = (at + 1) & m_Mask;
    m_Table[at] = static_cast<int>(slot);
  }
}

int omu_KeywordIndex::FindHashed(std::string_view keyword) const noexcept {
  for (std::size_t at = Hash(keyword) & m_Mask;; at = (at + 1) & m_Mask) {
    const int slot = m_Table[at];
    if (slot < 0 || Same(m_Entries[static_cast<std::size_t>(slot)].keyword, keyword)) return slot;
  }
}
