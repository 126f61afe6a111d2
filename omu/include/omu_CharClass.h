#pragma once
/// \addtogroup omu
/// @{

/// \class omu_CharClass
/// A set of bytes compiled once from a regular-expression character class ("[^0-9]",
/// "[\$\\&]"), optionally anchored with a leading "^". It answers, without a branch per byte,
/// what a regular-expression search of that pattern would answer: sixteen bytes a step where
/// the processor has SSSE3 (a bitmap row looked up per byte by shuffles), a byte a step
/// elsewhere.
#include <CVX_Export.h>

#include <array>
#include <cstdint>
#include <string_view>

class CVX_EXPORT omu_CharClass {
public:
  /// pattern: an optional "^", then one bracket expression: an optional "^" negation, bytes,
  /// ranges "a-z" and backslash escapes, then "]". Anything else raises nex_TextException.
  explicit omu_CharClass(std::string_view pattern);
  /// The set of the given bytes.
  static omu_CharClass Of(std::string_view bytes);

  /// True when byte is in the set.
  bool Has(unsigned char byte) const noexcept { return (m_Rows[Row(byte)] >> (byte & 7u)) & 1u; }
  /// What searching the pattern in text answers.
  bool Matches(std::string_view text) const noexcept;
  /// True when the pattern began with "^" before its bracket.
  bool IsAnchored() const noexcept { return m_Anchored; }
  /// The union of the two sets (unanchored).
  omu_CharClass operator|(const omu_CharClass& other) const noexcept;
  /// Every byte not in the set (unanchored).
  omu_CharClass operator~() const noexcept;
  /// The bytes below 32.
  static omu_CharClass Controls() noexcept;

private:
  omu_CharClass() = default;
  void Add(unsigned char byte) noexcept {
    m_Rows[Row(byte)] |= static_cast<std::uint8_t>(1u << (byte & 7u));
  }
  // The bitmap's row of a byte: its high nibble, in the second half for low nibbles 8-15.
  static unsigned Row(unsigned char byte) noexcept { return ((byte & 8u) << 1) | (byte >> 4); }

  std::array<std::uint8_t, 32> m_Rows{};
  bool m_Anchored = false;
};

/// @}
