#include <nex_TextException.h>
#include <rgx_Regex.h>

#include <regex>
#include <string>
#include <unordered_map>

namespace {
const std::regex& Compiled(const char* pattern) {
  thread_local std::unordered_map<std::string, std::regex> cache;
  const std::string key(pattern ? pattern : "");
  auto at = cache.find(key);
  if (at == cache.end()) {
    try {
      at = cache.emplace(key, std::regex(key, std::regex::ECMAScript)).first;
    } catch (const std::regex_error& error) {
      NEX_THROW(nex_TextException(atr_StringBase::Format("bad regular expression '%s': %s",
                                                         key.c_str(), error.what())),
                "rgx/impl/rgx_Regex");
    }
  }
  return at->second;
}
}  // namespace

rgx_MatchIterator rgx_match(const char* pattern, const char* subject) {
  std::cmatch match;
  const char* text = subject ? subject : "";
  if (!std::regex_search(text, match, Compiled(pattern))) return {};
  return {static_cast<int>(match.position(0)), static_cast<int>(match.length(0))};
}

cow_List<cow_String> rgx_split(const char* pattern, const char* subject) {
  const std::string_view text(subject ? subject : "");
  std::vector<cow_String> pieces;
  std::size_t start = 0;
  for (std::cregex_iterator it(text.data(), text.data() + text.size(), Compiled(pattern)), end;
       it != end; ++it) {
    if (it->length(0) == 0) continue;  // an empty match separates nothing
    const auto at = static_cast<std::size_t>(it->position(0));
    pieces.emplace_back(text.substr(start, at - start));
    start = at + static_cast<std::size_t>(it->length(0));
  }
  pieces.emplace_back(text.substr(start));
  return cow_List<cow_String>(std::move(pieces));
}
