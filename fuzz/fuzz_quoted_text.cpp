// Quoted script strings and access paths from arbitrary text: unquoting and the bracket
// search answer for every input and never read outside it.
#include "../tests/CapturedErrors.h"

#include <omu_GetBracketKeyPos.h>
#include <omu_NameString.h>
#include <omu_StringFromQString.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const CapturedErrors complaints;  // the library prints what it refuses
  const cow_String text(std::string_view(reinterpret_cast<const char*>(data), size));
  const cow_String unquoted = omu_StringFromQString(text);
  if (unquoted.Length() > text.Length()) std::abort();
  // Quoting and unquoting agree on texts without backslashes or newlines.
  if (!text.Contains('\\') && !text.Contains('\n') &&
      omu_StringFromQString(omu_NameString(text)) != text) {
    std::abort();
  }
  for (const char bracket : {'[', ']', '('}) {
    for (const int start : {-1, 0, 1, static_cast<int>(size / 2), static_cast<int>(size) + 3}) {
      const int at = omu_GetBracketKeyPos(text, bracket, start);
      if (at < 0 || at > text.Length()) std::abort();
      // Other brackets search for empty patterns, found where the search starts.
      if (bracket == '(' && at != std::clamp(start, 0, text.Length())) std::abort();
      if (bracket != '(' && at < text.Length() && text[at] != bracket) std::abort();
    }
  }
  return 0;
}
