#include <atr_StringBase.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdarg>
#include <cstdio>
#include <utility>

namespace {
// The number as std::to_chars writes it.
template <class Number>
atr_StringBase NumberText(Number value) {
  std::array<char, 40> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return atr_StringBase(
      std::string_view(buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data())));
}

std::size_t Clip(int position, std::size_t size) {
  return position < 0 ? 0 : std::min(static_cast<std::size_t>(position), size);
}
}  // namespace

atr_StringBase::atr_StringBase(const char* text)
    : atr_StringBase(text ? std::string_view(text) : std::string_view()) {}

atr_StringBase::atr_StringBase(const char* text, int length)
    : atr_StringBase(std::string_view(text, length < 0 ? 0 : static_cast<std::size_t>(length))) {}

atr_StringBase::atr_StringBase(std::string_view text) {
  if (!text.empty()) m_Rep = new Rep{1, std::string(text)};
}

atr_StringBase::atr_StringBase(std::string&& text) {
  if (!text.empty()) m_Rep = new Rep{1, std::move(text)};
}

atr_StringBase atr_StringBase::Permanent(std::string_view text) {
  atr_StringBase permanent(text);
  if (permanent.m_Rep) permanent.m_Rep->refs.store(PermanentRefs, std::memory_order_relaxed);
  return permanent;
}

atr_StringBase::atr_StringBase(int value) : atr_StringBase(NumberText(value)) {}

atr_StringBase::atr_StringBase(unsigned int value) : atr_StringBase(NumberText(value)) {}

atr_StringBase::atr_StringBase(long long value) : atr_StringBase(NumberText(value)) {}

atr_StringBase::atr_StringBase(double value) : atr_StringBase(NumberText(value)) {}

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment): the shared-buffer test below covers it
atr_StringBase& atr_StringBase::operator=(const atr_StringBase& other) noexcept {
  // Already sharing the buffer (a value read again into the same variable, or itself): counting
  // a reference up and down would only cost two atomic operations.
  if (m_Rep == other.m_Rep) return *this;
  if (other.Counted()) other.m_Rep->refs.fetch_add(1, std::memory_order_relaxed);
  if (Counted()) Release();
  m_Rep = other.m_Rep;
  return *this;
}

void atr_StringBase::Release() noexcept {
  if (m_Rep->refs.fetch_sub(1, std::memory_order_acq_rel) == 1) delete m_Rep;
  m_Rep = nullptr;
}

std::string& atr_StringBase::Mutable() {
  if (!m_Rep) {
    m_Rep = new Rep;
  } else if (m_Rep->refs.load(std::memory_order_acquire) > 1) {
    Rep* own = new Rep{1, m_Rep->text};
    if (Counted()) Release();
    m_Rep = own;
  }
  return m_Rep->text;
}

atr_StringBase atr_StringBase::Format(const char* format, ...) {
  std::va_list args;
  va_start(args, format);
  std::va_list again;
  va_copy(again, args);
  const int needed = std::vsnprintf(nullptr, 0, format, args);
  va_end(args);
  atr_StringBase result;
  if (needed > 0) {
    std::string text(static_cast<std::size_t>(needed), '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, again);
    result = atr_StringBase(std::move(text));
  }
  va_end(again);
  return result;
}

int atr_StringBase::Find(std::string_view what, int start) const noexcept {
  const std::string_view text = View();
  const std::size_t at = text.find(what, Clip(start, text.size()));
  return at == std::string_view::npos ? Length() : static_cast<int>(at);
}

int atr_StringBase::Find(char what, int start) const noexcept {
  const std::string_view text = View();
  const std::size_t at = text.find(what, Clip(start, text.size()));
  return at == std::string_view::npos ? Length() : static_cast<int>(at);
}

atr_StringBase atr_StringBase::Substr(int start, int count) const {
  const std::string_view text = View();
  const std::size_t from = Clip(start, text.size());
  return {text.substr(from, count < 0 ? 0 : static_cast<std::size_t>(count))};
}

atr_StringBase& atr_StringBase::Append(std::string_view text) {
  if (!text.empty()) {
    if (m_Rep && text.data() >= m_Rep->text.data() &&
        text.data() < m_Rep->text.data() + m_Rep->text.size()) {
      const std::string copy(text);  // appending a part of itself
      Mutable().append(copy);
    } else {
      Mutable().append(text);
    }
  }
  return *this;
}

atr_StringBase& atr_StringBase::Append(char c) {
  Mutable().push_back(c);
  return *this;
}

atr_StringBase& atr_StringBase::Erase(int start, int count) {
  const auto size = static_cast<std::size_t>(Length());
  const std::size_t from = Clip(start, size);
  if (from < size && count > 0) Mutable().erase(from, static_cast<std::size_t>(count));
  return *this;
}

atr_StringBase& atr_StringBase::Insert(int position, std::string_view text) {
  const std::string copy(text);
  Mutable().insert(Clip(position, static_cast<std::size_t>(Length())), copy);
  return *this;
}

atr_StringBase& atr_StringBase::Replace(int start, int count, std::string_view text) {
  const std::string copy(text);
  const auto size = static_cast<std::size_t>(Length());
  Mutable().replace(Clip(start, size), count < 0 ? 0 : static_cast<std::size_t>(count), copy);
  return *this;
}

atr_StringBase& atr_StringBase::ReplaceAll(std::string_view from, std::string_view to) {
  if (from.empty() || !Contains(from)) return *this;
  std::string result;
  const std::string_view text = View();
  std::size_t start = 0;
  for (std::size_t at = 0; (at = text.find(from, start)) != std::string_view::npos;
       start = at + from.size()) {
    result.append(text.substr(start, at - start)).append(to);
  }
  result.append(text.substr(start));
  return *this = atr_StringBase(std::move(result));
}

atr_StringBase operator+(const atr_StringBase& a, std::string_view b) {
  atr_StringBase result(a);
  return result.Append(b);
}
