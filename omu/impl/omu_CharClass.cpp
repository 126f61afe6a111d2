#include <nex_TextException.h>
#include <omu_CharClass.h>

#if defined(__GNUC__) && (defined(__x86_64__) || defined(__i386__))
#include <immintrin.h>
#define OMU_CHARCLASS_SSSE3 1
#endif

namespace {
[[noreturn]] void Malformed(std::string_view pattern) {
  NEX_THROW(nex_TextException(atr_StringBase::Format(
                "not a character class: %.*s", static_cast<int>(pattern.size()), pattern.data())),
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
    auto first = static_cast<unsigned char>(rest[i]);
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
  m_Rows = negated ? (~set).m_Rows : set.m_Rows;
}

omu_CharClass omu_CharClass::Of(std::string_view bytes) {
  omu_CharClass set;
  for (const char c : bytes) set.Add(static_cast<unsigned char>(c));
  return set;
}

#ifdef OMU_CHARCLASS_SSSE3
namespace {
// Sixteen bytes a step: the high nibble picks a row of the bitmap by shuffle, the low nibble
// picks the half and the bit. The last step overlaps the one before it rather than leave a tail.
__attribute__((target("ssse3"))) bool AnyInRows(const std::uint8_t* rows,
                                                const unsigned char* bytes,
                                                std::size_t size) noexcept {
  const __m128i firstHalf = _mm_loadu_si128(reinterpret_cast<const __m128i*>(rows));
  const __m128i secondHalf = _mm_loadu_si128(reinterpret_cast<const __m128i*>(rows + 16));
  const __m128i bits = _mm_setr_epi8(1, 2, 4, 8, 16, 32, 64, -128, 1, 2, 4, 8, 16, 32, 64, -128);
  const __m128i nibble = _mm_set1_epi8(0x0F);
  const __m128i seven = _mm_set1_epi8(7);
  __m128i any = _mm_setzero_si128();
  for (std::size_t i = 0;; i += 16) {
    const std::size_t at = i + 16 <= size ? i : size - 16;
    const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + at));
    const __m128i high = _mm_and_si128(_mm_srli_epi16(v, 4), nibble);
    const __m128i low = _mm_and_si128(v, nibble);
    const __m128i second = _mm_cmpgt_epi8(low, seven);
    const __m128i row = _mm_or_si128(_mm_and_si128(second, _mm_shuffle_epi8(secondHalf, high)),
                                     _mm_andnot_si128(second, _mm_shuffle_epi8(firstHalf, high)));
    any = _mm_or_si128(any, _mm_and_si128(row, _mm_shuffle_epi8(bits, low)));
    if (at + 16 >= size) break;
  }
  return _mm_movemask_epi8(_mm_cmpeq_epi8(any, _mm_setzero_si128())) != 0xFFFF;
}
}  // namespace
#endif

bool omu_CharClass::Matches(std::string_view text) const noexcept {
  if (m_Anchored) return !text.empty() && Has(static_cast<unsigned char>(text.front()));
  const auto* bytes = reinterpret_cast<const unsigned char*>(text.data());
#ifdef OMU_CHARCLASS_SSSE3
  static const bool shuffles = __builtin_cpu_supports("ssse3");  // asked once per process
  if (shuffles && text.size() >= 16) return AnyInRows(m_Rows.data(), bytes, text.size());
#endif
  // No early exit: names are short, and the lookups do not wait on one another.
  unsigned any = 0;
  for (std::size_t i = 0; i < text.size(); ++i) any |= Has(bytes[i]);
  return any != 0;
}

omu_CharClass omu_CharClass::operator|(const omu_CharClass& other) const noexcept {
  omu_CharClass both;
  for (std::size_t r = 0; r < m_Rows.size(); ++r) both.m_Rows[r] = m_Rows[r] | other.m_Rows[r];
  return both;
}

omu_CharClass omu_CharClass::operator~() const noexcept {
  omu_CharClass other;
  for (std::size_t r = 0; r < m_Rows.size(); ++r) {
    other.m_Rows[r] = static_cast<std::uint8_t>(~m_Rows[r]);
  }
  return other;
}

omu_CharClass omu_CharClass::Controls() noexcept {
  omu_CharClass controls;
  for (unsigned char b = 0; b < 32; ++b) controls.Add(b);
  return controls;
}
