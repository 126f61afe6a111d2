#pragma once
/// \addtogroup basic
/// @{

/// \class utl_Catenator
/// Builds a text piece by piece in one buffer.
#include <cow_String.h>

#include <string>

class utl_Catenator {
public:
  /// Appends the text, or the decimal text of a number (a double as atr_StringBase prints it).
  ///@{
  utl_Catenator& operator<<(std::string_view text) {
    m_Buffer.append(text);
    return *this;
  }
  utl_Catenator& operator<<(const char* text) {
    return *this << std::string_view(text ? text : "");
  }
  utl_Catenator& operator<<(const atr_StringBase& text) { return *this << text.View(); }
  utl_Catenator& operator<<(char c) {
    m_Buffer.push_back(c);
    return *this;
  }
  utl_Catenator& operator<<(int value) { return *this << atr_StringBase(value); }
  utl_Catenator& operator<<(unsigned int value) { return *this << atr_StringBase(value); }
  utl_Catenator& operator<<(double value) { return *this << atr_StringBase(value); }
  ///@}

  /// The text so far, as a new string.
  cow_String String() const { return {std::string_view(m_Buffer)}; }
  /// The text so far, valid until the next change.
  std::string_view View() const noexcept { return m_Buffer; }
  /// In bytes.
  int Length() const noexcept { return static_cast<int>(m_Buffer.size()); }
  /// Empties the text, keeping the buffer.
  void Clear() noexcept { m_Buffer.clear(); }
  /// Drops up to count characters from the end.
  void Chop(int count) noexcept {
    m_Buffer.resize(count >= Length() ? 0 : m_Buffer.size() - static_cast<std::size_t>(count));
  }

private:
  std::string m_Buffer;
};

/// @}
