#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
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

omu_RangeErrorException::omu_RangeErrorException(const cls_ReadVisitor& reader)
    : nex_Raisable(cls_ReadVisitor(reader, nex_CommandException::TypeId())),
      m_Keyword(reader.Get<atr_String>("m_Keyword")),
      m_KeywordType(reader.Get<int>("m_KeywordType")),
      m_LowerLimitAsString(reader.Get<atr_String>("m_LowerLimitAsString")),
      m_LowerLimitQualifier(reader.Get<int>("m_LowerLimitQualifier")),
      m_HigherLimitAsString(reader.Get<atr_String>("m_HigherLimitAsString")),
      m_HigherLimitQualifier(reader.Get<int>("m_HigherLimitQualifier")),
      m_Uid(reader.Uid()) {}

atr_String omu_RangeErrorException::JournalMessage() const {
  const int lower = m_LowerLimitQualifier;
  const int upper = m_HigherLimitQualifier;
  utl_Catenator text;
  text << m_Keyword
       << (m_KeywordType == 1 ? " must be an Integer " : m_KeywordType == 2 ? " must be a Float "
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

void omu_RangeErrorException::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<nex_CommandException>(TypeId(), m_Uid, *this)) return;
  writer.Write("m_Keyword", m_Keyword);
  writer.Write("m_KeywordType", m_KeywordType);
  writer.Write("m_LowerLimitAsString", m_LowerLimitAsString);
  writer.Write("m_LowerLimitQualifier", m_LowerLimitQualifier);
  writer.Write("m_HigherLimitAsString", m_HigherLimitAsString);
  writer.Write("m_HigherLimitQualifier", m_HigherLimitQualifier);
}

void omu_RangeErrorException::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_TypeAdapter<omu_RangeErrorException>("omu_RangeErrorException", 800,
                                                               nex_CommandException::TypeId()))
      .AddAttribute({0, "m_Keyword"}, cls_KIND_STRING)
      .AddAttribute({1, "m_KeywordType"}, cls_KIND_INT)
      .AddAttribute({2, "m_LowerLimitAsString"}, cls_KIND_STRING)
      .AddAttribute({3, "m_LowerLimitQualifier"}, cls_KIND_INT)
      .AddAttribute({4, "m_HigherLimitAsString"}, cls_KIND_STRING)
      .AddAttribute({5, "m_HigherLimitQualifier"}, cls_KIND_INT);
}
