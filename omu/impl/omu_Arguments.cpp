#include <nex_Exception.h>
#include <omu_ArgNumberErrorException.h>
#include <omu_ArgTypeErrorException.h>
#include <omu_Arguments.h>
#include <omu_Deprecation.h>
#include <omu_InterfaceObj.h>
#include <omu_KeywordErrorException.h>
#include <omu_KeywordTypeErrorException.h>
#include <omu_NameString.h>
#include <utl_Catenator.h>

#include <optional>
#include <utility>

namespace {
constexpr const char* kSource = "omu/impl/omu_Arguments";
constexpr const char* kUndetermined = "Undetermined";
}  // namespace

omu_Arguments::omu_Arguments(int size) : omu_PrimLeaf(size, '(') {}

void omu_Arguments::Store(const cow_String& keyword, omu_PrimHandle value) {
  m_Index.Clear();
  m_Keywords.reset();
  m_Stored.emplace_back(keyword, std::move(value));
}

const omu_PrimDictionary<cow_String>& omu_Arguments::Keywords() const {
  if (!m_Keywords) {
    auto keywords = std::make_shared<omu_PrimDictionary<cow_String>>();
    for (const auto& [keyword, value] : m_Stored) keywords->Put(*value.ConstGet(), keyword);
    m_Keywords = std::move(keywords);
  }
  return *m_Keywords;
}

cow_List<cow_String> omu_Arguments::StoredKeywords() const {
  cow_List<cow_String> keywords;
  for (const auto& stored : m_Stored) keywords.Append(stored.first);
  return keywords;
}

void omu_Arguments::Reset(int size) {
  omu_PrimTuple::Reset(size);
  m_Stored.clear();
  m_Keywords.reset();
  m_Index.Clear();
  m_Claimed.clear();
  m_Unclaimed = m_KeywordsTaken = m_KeywordErrorAt = m_OptionalKeywordMissingAt = 0;
  m_KeywordInError.clear();
}

void omu_Arguments::Begin() {
  IndexKeywords();
  m_Claimed.assign(static_cast<std::size_t>(m_Index.Size()), '\0');
  m_Unclaimed = m_Index.Size();
  m_KeywordsTaken = m_KeywordErrorAt = m_OptionalKeywordMissingAt = 0;
  m_KeywordInError.clear();
  omu_PrimTuple::Begin();
}

void omu_Arguments::IndexKeywords() {
  if (!m_Index.Built()) m_Index.Build(m_Stored);
}

int omu_Arguments::KeywordSlot(std::string_view keyword) {
  IndexKeywords();
  return m_Index.Find(keyword);
}

// Keywords stored after Begin are not claimable until the next Begin.
bool omu_Arguments::IsUnclaimed(int slot) const noexcept {
  return slot >= 0 && static_cast<std::size_t>(slot) < m_Claimed.size() &&
         !m_Claimed[static_cast<std::size_t>(slot)];
}

const omu_Primitive* omu_Arguments::TakeKeyword(std::string_view keyword) {
  const int slot = KeywordSlot(keyword);
  const omu_Primitive* value = m_ErrorArg == 0 ? Claim(keyword, slot) : nullptr;
  CountKeywordRead(slot);
  return value;
}

const omu_Primitive* omu_Arguments::Claim(std::string_view keyword, int slot) {
  if (IsUnclaimed(slot)) return m_Index.Value(slot);
  const int at = m_NumGets + 1;
  m_KeywordInError = keyword;
  if (m_IsOptional) {
    m_OptionalKeywordMissingAt = at;  // a missing optional keyword is no error
  } else {
    m_TypeExpected = m_TypeFound = kUndetermined;
    m_ErrorArg = m_KeywordErrorAt = at;
  }
  return nullptr;
}

void omu_Arguments::KeywordTypeError(std::string_view keyword, const cow_String& expected,
                                     const omu_Primitive& found) {
  m_ErrorArg = m_KeywordErrorAt = m_NumGets;  // TakeKeyword counted the read
  m_TypeExpected = expected;
  m_TypeFound = found.IsType('c') ? found.AsString(0) : found.TypeString();
  m_KeywordInError = keyword;
}

void omu_Arguments::CountKeywordRead(int slot) {
  ++m_NumGets;
  ++m_ArgCount;
  if (!m_IsOptional) ++m_ReqCount;
  if (!IsUnclaimed(slot)) return;
  m_Claimed[static_cast<std::size_t>(slot)] = 1;
  --m_Unclaimed;
  if (!m_IsOptional) ++m_KeywordsTaken;
}

void omu_Arguments::Get(omu_CorvexName& out, std::string_view keyword) {
  const int slot = KeywordSlot(keyword);
  const bool given = m_ErrorArg == 0 && (m_Cursor < m_Size || IsUnclaimed(slot));
  cow_String text;
  Get(text, keyword);
  if (given && !ErrorOnPrevious()) out = omu_CorvexName(text, out.Kind());
}

const omu_InterfaceObj* omu_Arguments::Get(const char* typeName, const omu_InterfaceObj* none,
                                           std::string_view keyword) {
  if (m_ErrorArg == 0 && m_Cursor < m_Size) return omu_PrimTuple::Get(typeName, none);
  const omu_InterfaceObj* object = nullptr;
  const omu_Primitive* value = TakeKeyword(keyword);
  if (value && (!omu_PrimConvert(value, object) || (typeName && !object->IsA(typeName)))) {
    object = nullptr;
    KeywordTypeError(keyword, typeName ? typeName : omu_PythonType::Generic, *value);
  }
  return object;
}

// By value, as the binding API states it; the setting does not depend on the name.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
bool omu_Arguments::DeprecatedCheck(cow_String) const { return omu_Deprecation::IsAllowed(); }

bool omu_Arguments::DeprecatedAlternative(cow_String other) {
  return DeprecatedCheck(std::move(other)) && Alternative();
}

void omu_Arguments::Deprecated(std::string_view keyword, const cow_String& other) const {
  omu_Deprecation::Notice(keyword, other);
}

bool omu_Arguments::Alternative() {
  const bool lastFailed =
      (m_KeywordErrorAt != 0 && m_KeywordErrorAt == m_NumGets) ||
      (m_OptionalKeywordMissingAt != 0 && m_OptionalKeywordMissingAt == m_NumGets);
  if (!lastFailed) {
    if (m_KeywordErrorAt != 0 || m_NumGets > m_Size) return false;
    return omu_PrimTuple::Alternative();
  }
  if (!m_IsOptional) --m_ReqCount;
  m_OptionalKeywordMissingAt = m_KeywordErrorAt = m_ErrorArg = 0;
  m_TypeFound = m_TypeExpected = cow_String();
  const int slot = KeywordSlot(m_KeywordInError);
  if (slot >= 0 && static_cast<std::size_t>(slot) < m_Claimed.size() &&
      m_Claimed[static_cast<std::size_t>(slot)]) {
    m_Claimed[static_cast<std::size_t>(slot)] = 0;
    ++m_Unclaimed;
    if (!m_IsOptional) --m_KeywordsTaken;
  }
  m_KeywordInError.clear();
  --m_NumGets;
  --m_ArgCount;
  return true;
}

// The first in the keyword dictionary's key order.
cow_String omu_Arguments::FirstUnclaimed() const {
  std::optional<std::string_view> first;
  for (int slot = 0; slot < m_Index.Size(); ++slot) {
    if (IsUnclaimed(slot) && (!first || m_Index.Keyword(slot) < *first)) {
      first = m_Index.Keyword(slot);
    }
  }
  return first ? cow_String(*first) : cow_String();
}

int omu_Arguments::KeywordCount() const {
  return m_Index.Built() ? m_Index.Size() : Keywords().Length();
}

bool omu_Arguments::ErrorOnPrevious() const {
  return (m_KeywordErrorAt != 0 && m_KeywordErrorAt == m_NumGets) ||
         (m_OptionalKeywordMissingAt != 0 && m_OptionalKeywordMissingAt == m_NumGets) ||
         (m_ErrorArg != 0 && m_ErrorArg == m_Cursor);
}

bool omu_Arguments::Error() const {
  const int given = KeywordCount();
  return m_Unclaimed > 0 || m_ErrorArg != 0 || m_Size + m_KeywordsTaken < m_ReqCount ||
         m_Size + given > m_ArgCount;
}

void omu_Arguments::End(cow_String context) {
  EndWith([&] { return context.IsEmpty() ? m_NestedErrorStr : context; });
}

void omu_Arguments::End(const char* context) {
  EndWith([&] { return *context ? cow_String(context) : m_NestedErrorStr; });
}

template <class Context>
void omu_Arguments::EndWith(Context&& context) {
  m_OptionalKeywordMissingAt = 0;
  if (m_Unclaimed > 0) {
    NEX_THROW(omu_KeywordErrorException(FirstUnclaimed(), context()), kSource);
  }
  if (m_ErrorArg != 0 && m_KeywordInError.empty()) {
    NEX_THROW(omu_ArgTypeErrorException(m_ErrorArg, m_TypeExpected, m_TypeFound, context()),
              kSource);
  }
  if (m_ErrorArg != 0 && m_TypeExpected != kUndetermined && m_TypeFound != kUndetermined) {
    NEX_THROW(omu_KeywordTypeErrorException(cow_String(m_KeywordInError), m_TypeExpected,
                                            m_TypeFound, context()),
              kSource);
  }
  if (m_Size + m_KeywordsTaken < m_ReqCount) {
    NEX_THROW(omu_ArgNumberErrorException(m_ReqCount, m_Size + m_KeywordsTaken, context()),
              kSource);
  }
  const int given = KeywordCount();
  if (m_Size + given > m_ArgCount) {
    NEX_THROW(omu_ArgNumberErrorException(m_ArgCount, m_Size + given, context()), kSource);
  }
}

cow_String omu_Arguments::AsString(int) const {
  utl_Catenator text;
  text << '(';
  const char* separator = "";
  for (int i = 0; i < Size(); ++i) {
    if (const omu_Primitive* value = Index(i)) {
      text << separator << value->AsString(0);
      separator = ", ";
    }
  }
  for (const auto& [keyword, value] : Keywords().GetEntries()) {
    text << separator << keyword << '=' << value.ConstGet()->AsString(0);
    separator = ", ";
  }
  text << ')';
  return text.String();
}
