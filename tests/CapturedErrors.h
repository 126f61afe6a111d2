#pragma once
// Captures the library's error stream for the lifetime of the object.
#include <aio_ostream.h>

#include <sstream>
#include <string>

class CapturedErrors {
public:
  CapturedErrors() : m_Previous(aio_cerr().Redirect(&m_Text)) {}
  ~CapturedErrors() { aio_cerr().Redirect(m_Previous); }
  CapturedErrors(const CapturedErrors&) = delete;
  CapturedErrors& operator=(const CapturedErrors&) = delete;
  std::string Text() const { return m_Text.str(); }

private:
  std::ostringstream m_Text;
  std::ostream* m_Previous;
};
