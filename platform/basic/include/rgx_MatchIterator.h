#pragma once
/// \addtogroup basic
/// @{

/// \class rgx_MatchIterator
/// The result of rgx_match: whether the pattern occurs in the subject, and where first.
class rgx_MatchIterator {
public:
  rgx_MatchIterator() noexcept = default;
  /// A match of length bytes at position.
  rgx_MatchIterator(int position, int length) noexcept
      : m_Matched(true), m_Position(position), m_Length(length) {}

  /// True when there is a match.
  ///@{
  bool Matched() const noexcept { return m_Matched; }
  explicit operator bool() const noexcept { return m_Matched; }
  ///@}
  /// The match's start, in bytes.
  int Position() const noexcept { return m_Position; }
  /// The match's length, in bytes.
  int Length() const noexcept { return m_Length; }

private:
  bool m_Matched = false;
  int m_Position = -1;
  int m_Length = 0;
};

/// @}
