#pragma once
/// \addtogroup basic
/// @{

/// \class rgx_MatchIterator
/// The result of rgx_match: whether the pattern occurs in the subject, and where first.
class rgx_MatchIterator {
public:
  rgx_MatchIterator() noexcept = default;
  rgx_MatchIterator(int position, int length) noexcept
      : m_Matched(true), m_Position(position), m_Length(length) {}

  bool Matched() const noexcept { return m_Matched; }
  explicit operator bool() const noexcept { return m_Matched; }
  int Position() const noexcept { return m_Position; }
  int Length() const noexcept { return m_Length; }

private:
  bool m_Matched = false;
  int m_Position = -1;
  int m_Length = 0;
};

/// @}
