#include <aio_ostream.h>
#include <atr_StringBase.h>

#include <iostream>

aio_ostream& aio_ostream::operator<<(std::string_view text) {
  m_Target->write(text.data(), static_cast<std::streamsize>(text.size()));
  return *this;
}
aio_ostream& aio_ostream::operator<<(const char* text) {
  return *this << std::string_view(text ? text : "");
}
aio_ostream& aio_ostream::operator<<(const atr_StringBase& text) { return *this << text.View(); }
aio_ostream& aio_ostream::operator<<(char c) { return *this << std::string_view(&c, 1); }
aio_ostream& aio_ostream::operator<<(int value) { return *this << atr_StringBase(value); }
aio_ostream& aio_ostream::operator<<(unsigned int value) { return *this << atr_StringBase(value); }
aio_ostream& aio_ostream::operator<<(double value) { return *this << atr_StringBase(value); }

aio_ostream& aio_ostream::Flush() {
  m_Target->flush();
  return *this;
}

std::ostream* aio_ostream::Redirect(std::ostream* target) noexcept {
  std::ostream* previous = m_Target;
  m_Target = target;
  return previous;
}

aio_ostream& aio_cerr() {
  static aio_ostream stream(&std::cerr);
  return stream;
}
