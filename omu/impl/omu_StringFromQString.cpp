#include <aio_ostream.h>
#include <omu_StringFromQString.h>

namespace {
cow_String Unquote(const cow_String& quoted, std::string_view escapedQuote, char quote) {
  cow_String text(quoted.View().substr(1, quoted.View().size() - 2));
  text.ReplaceAll(escapedQuote, std::string_view(&quote, 1));
  return text;
}
}  // namespace

cow_String omu_StringFromQString(const cow_String& quoted) {
  const std::string_view text = quoted.View();
  if (text.empty()) return quoted;
  if (text.size() < 2) aio_cerr() << "QuotedString length < 2. " << quoted << '\n';
  const char first = text.front();
  const char last = text.back();
  if (text.size() >= 2 && first == '\'' && last == '\'') return Unquote(quoted, "\\'", '\'');
  if (text.size() >= 2 && first == '"' && last == '"') return Unquote(quoted, "\\\"", '"');
  aio_cerr() << "omu_StringFromQString(" << quoted << ")  QuotedString does not use ' or \". "
             << quoted << '\n';
  return quoted;
}
