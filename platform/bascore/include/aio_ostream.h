#pragma once
/// \addtogroup bascore
/// @{

/// \class aio_ostream
/// The application's text output streams. aio_cerr is the error stream; tests and hosts
/// may point it elsewhere with Redirect.
#include <BASCORE_Export.h>

#include <iosfwd>
#include <string_view>

class atr_StringBase;

class BASCORE_EXPORT aio_ostream {
public:
  /// Writes to target (not owned; it must outlive its use here).
  explicit aio_ostream(std::ostream* target) noexcept : m_Target(target) {}

  /// Writes the text, or the decimal text of a number (a double as atr_StringBase prints it).
  ///@{
  aio_ostream& operator<<(std::string_view text);
  aio_ostream& operator<<(const char* text);
  aio_ostream& operator<<(const atr_StringBase& text);
  aio_ostream& operator<<(char c);
  aio_ostream& operator<<(int value);
  aio_ostream& operator<<(unsigned int value);
  aio_ostream& operator<<(double value);
  ///@}
  /// Flushes the target.
  aio_ostream& Flush();

  /// Points the stream at another target and answers the previous one.
  std::ostream* Redirect(std::ostream* target) noexcept;
  /// The current target.
  std::ostream* Target() const noexcept { return m_Target; }

private:
  std::ostream* m_Target;
};

/// The process's error stream (std::cerr unless redirected).
BASCORE_EXPORT aio_ostream& aio_cerr();

/// @}
