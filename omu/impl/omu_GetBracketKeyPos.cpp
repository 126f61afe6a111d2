#include <omu_GetBracketKeyPos.h>

#include <algorithm>

int omu_GetBracketKeyPos(const cow_String& text, char bracket, int start) {
  const int end = text.Length();
  if (start < 0) start = 0;
  // Each pattern with the offset of the bracket inside it.
  auto find = [&](std::string_view pattern, int offset) {
    const int at = text.Find(pattern, start);
    return at < end ? at + offset : end;
  };
  if (bracket == '[') return std::min(find("['", 0), find("[\"", 0));
  if (bracket == ']') return std::min(find("']", 1), find("\"]", 1));
  return find({}, 0);
}
