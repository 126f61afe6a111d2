#include <omu_NameString.h>

#include <string>
#include <utility>

cow_String omu_NameString(const cow_String& text) {
  const std::string_view in = text.View();
  const bool hasSingle = in.find('\'') != std::string_view::npos;
  const char quote = hasSingle && in.find('"') == std::string_view::npos ? '"' : '\'';
  std::string out;
  out.reserve(in.size() + 2);
  out.push_back(quote);
  for (const char c : in) {
    switch (c) {
      case '\\':
        out.append("\\\\");
        break;
      case '\n':
        out.append("\\n");
        break;
      case '\'':
        if (quote == '\'') out.push_back('\\');
        out.push_back(c);
        break;
      default:
        out.push_back(c);
    }
  }
  out.push_back(quote);
  return {std::move(out)};
}
