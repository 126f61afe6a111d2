#include <omu_RangeErrorException.h>
#include <utl_Catenator.h>

#include <array>

namespace {
// Operator texts by qualifier (0 none, 1 inclusive, 2 exclusive).
constexpr std::array<const char*, 3> kBothSides = {" ", " <= ", " < "};
constexpr std::array<const char*, 3> kLowerOnly = {" ", ">= ", "> "};
constexpr std::array<const char*, 3> kUpperOnly = {" ", "<= ", "< "};

bool IsQualifier(int q) noexcept { return q >= 0 && q <= 2; }
const char* Pick(const std::array<const char*, 3>& table, int q) {
  return table[static_cast<std::size_t>(q)];
}
}  // namespace

atr_String omu_RangeErrorException::JournalMessage() const {
  const int lower = m_LowerLimitQualifier;
  const int upper = m_HigherLimitQualifier;
  utl_Catenator text;
  text << m_Keyword
       << (m_KeywordType == 1   ? " must be an Integer "
           : m_KeywordType == 2 ? " must be a Float "
                                : " must be ");
  if (!IsQualifier(lower) || !IsQualifier(upper)) return text.String();
  if (lower != 0 && upper != 0) {
    text << "in the range: " << m_LowerLimitAsString << Pick(kBothSides, lower) << m_Keyword
         << Pick(kBothSides, upper) << m_HigherLimitAsString;
  } else if (lower != 0) {
    text << Pick(kLowerOnly, lower) << m_LowerLimitAsString;
  } else if (upper != 0) {
    text << Pick(kUpperOnly, upper) << m_HigherLimitAsString;
  }
  return text.String();
}
