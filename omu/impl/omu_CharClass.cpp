#include <nex_TextException.h>
#include <omu_CharClass.h>

namespace {
[[noreturn]] void Malformed(std::string_view pattern) {
  NEX_THROW(nex_TextException(atr_StringBase::Format("not a character class: %.*s",
                                                     static_cast<int>(pattern.size()),
                                                     pattern.data())),
            "omu/impl/omu_CharClass");
}
}  // namespace

omu_CharClass::omu_CharClass(std::string_view pattern) {
  std::string_view rest = pattern;
  m_Anchored = rest.starts_with('^');
  if (m_Anchored) rest.remove_prefix(1);
  if (!rest.starts_with('[') || !rest.ends_with(']') || rest.size() < 3) Malformed(pattern);
  rest = rest.substr(1, rest.size() - 2);
  const bool negated = rest.starts_with('^');
  if (negated) rest.remove_prefix(1);

  omu_CharClass set;
  for (std::size_t i = 0; i < rest.size(); ++i) {
    unsigned char first = static_cast<unsigned char>(rest[i]);
    if (first == '\\') {
      if (++i == rest.size()) Malformed(pattern);
      first = static_cast<unsigned char>(rest[i]);
    } else if (first == ']') {
      Malformed(pattern);
    }
    if (i + 2 < rest.size() && rest[i + 1] == '-') {
      const auto last = static_cast<unsigned char>(rest[i + 2]);
      if (last < first) Malformed(pattern);
      for (unsigned int b = first; b <= last; ++b) set.Add(static_cast<unsigned char>(b));
      i += 2;
    } else {
      set.Add(first);
    }
  }
  m_Member = negated ? (~set).m_Member : set.m_Member;
}

omu_CharClass omu_CharClass::Of(std::string_view bytes) {
  omu_CharClass set;
  for (const char c : bytes) set.Add(static_cast<unsigned char>(c));
  return set;
}

bool omu_CharClass::Matches(std::string_view text) const noexcept {
  if (m_Anchored) return !text.empty() && Has(static_cast<unsigned char>(text.front()));
  // No early exit: names are short, and four independent accumulators keep the loads in
  // flight instead of waiting on one chain of ORs.
  const auto* bytes = reinterpret_cast<const unsigned char*>(text.data());
  const std::size_t size = text.size();
  std::uint8_t a = 0, b = 0, c = 0, d = 0;
  std::size_t i = 0;
  for (; i + 4 <= size; i += 4) {
    a |= m_Member[bytes[i]];
    b |= m_Member[bytes[i + 1]];
    c |= m_Member[bytes[i + 2]];
    d |= m_Member[bytes[i + 3]];
  }
  for (; i < size; ++i) a |= m_Member[bytes[i]];
  return (a | b | c | d) != 0;
}

omu_CharClass omu_CharClass::operator|(const omu_CharClass& other) const noexcept {
  omu_CharClass both;
  for (std::size_t b = 0; b < m_Member.size(); ++b) both.m_Member[b] = m_Member[b] | other.m_Member[b];
  return both;
}

omu_CharClass omu_CharClass::operator~() const noexcept {
  omu_CharClass other;
  for (std::size_t b = 0; b < m_Member.size(); ++b) other.m_Member[b] = m_Member[b] ^ 1u;
  return other;
}

omu_CharClass omu_CharClass::Controls() noexcept {
  omu_CharClass controls;
  for (unsigned char b = 0; b < 32; ++b) controls.Add(b);
  return controls;
}
