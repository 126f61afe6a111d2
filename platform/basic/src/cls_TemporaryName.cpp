#include "cls_TemporaryName.h"

#include "cls_FileSystem.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <random>
#include <string>

namespace fs = std::filesystem;

namespace {
constexpr std::size_t kRandomDigits = 16;

using NativeView = std::basic_string_view<fs::path::value_type>;

// ".<name>.tmp" in the system's own characters (UTF-16 on Windows).
fs::path::string_type Prefix(const fs::path& target) {
  return fs::path(".").native() + target.filename().native() + fs::path(".tmp").native();
}

bool IsHexDigit(fs::path::value_type c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool IsTemporaryOf(NativeView name, NativeView prefix) {
  return name.size() == prefix.size() + kRandomDigits && name.starts_with(prefix) &&
         std::all_of(name.begin() + static_cast<std::ptrdiff_t>(prefix.size()), name.end(),
                     IsHexDigit);
}

std::string RandomDigits() {
  std::random_device device;
  const std::uint64_t value = (std::uint64_t{device()} << 32) | device();
  char digits[kRandomDigits + 1];
  std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(value));
  return digits;
}

fs::path FolderOf(const fs::path& target) {
  return target.has_parent_path() ? target.parent_path() : fs::path(".");
}
}  // namespace

fs::path cls_TemporaryName::For(const fs::path& target) {
  return FolderOf(target) / (Prefix(target) + fs::path(RandomDigits()).native());
}

void cls_TemporaryName::RemoveStale(const fs::path& target) {
  const fs::path::string_type prefix = Prefix(target);
  const auto now = fs::file_time_type::clock::now();
  std::error_code error;
  for (fs::directory_iterator entry(FolderOf(target), error), end; !error && entry != end;
       entry.increment(error)) {
    if (!IsTemporaryOf(entry->path().filename().native(), prefix)) continue;
    std::error_code unreadable;
    const auto written = entry->last_write_time(unreadable);
    if (!unreadable && now - written > cls_FileSystem::StaleAfter) {
      fs::remove(entry->path(), unreadable);
    }
  }
}
