#include "../cls_FileSystem.h"
#include "../cls_TemporaryName.h"

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
// The Win32 macro would rename our member to ReplaceFileW.
#undef ReplaceFile

#include <algorithm>
#include <optional>
#include <utility>

namespace fs = std::filesystem;

namespace {
using Failure = cls_FileSystem::Failure;

// ReadFile and WriteFile take a 32-bit count.
constexpr DWORD kChunk = DWORD{1} << 30;
// What a save carries from the old file to the new one.
constexpr DWORD kKeptAttributes =
    FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

std::string Utf8(std::wstring_view text) {
  if (text.empty()) return {};
  const int size = static_cast<int>(text.size());
  const int bytes =
      ::WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(std::max(bytes, 0)), '\0');
  ::WideCharToMultiByte(CP_UTF8, 0, text.data(), size, result.data(), bytes, nullptr, nullptr);
  return result;
}

// The system's text for an error code, without its closing period and line break.
std::string Reason(DWORD error) {
  wchar_t* buffer = nullptr;
  const DWORD length = ::FormatMessageW(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
      nullptr, error, 0, reinterpret_cast<wchar_t*>(&buffer), 0, nullptr);
  std::wstring_view text(buffer, length);
  while (!text.empty() && (text.back() == L'\r' || text.back() == L'\n' || text.back() == L'.' ||
                           text.back() == L' ')) {
    text.remove_suffix(1);
  }
  std::string reason = text.empty() ? "Windows error " + std::to_string(error) : Utf8(text);
  ::LocalFree(buffer);
  return reason;
}

[[noreturn]] void Fail(const char* what, DWORD error = ::GetLastError()) {
  throw Failure(std::string(what) + ": " + Reason(error));
}

// Closes the handle on every way out.
class Handle {
public:
  explicit Handle(HANDLE handle) noexcept : m_Handle(handle) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() {
    if (IsOpen()) ::CloseHandle(m_Handle);
  }
  HANDLE Get() const noexcept { return m_Handle; }
  bool IsOpen() const noexcept { return m_Handle != INVALID_HANDLE_VALUE; }
  // Closes now, so that the file can be moved.
  bool Close() noexcept { return ::CloseHandle(std::exchange(m_Handle, INVALID_HANDLE_VALUE)); }

private:
  HANDLE m_Handle;
};

// Opens what path names, links followed, only to look at it. Folders open too (backup
// semantics), so that they are refused as what they are.
Handle OpenToInspect(const fs::path& path, DWORD access) {
  return Handle(::CreateFileW(path.c_str(), access,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                              OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

// The attributes of an open regular file; anything else (a folder, a pipe, a device) is
// refused with what.
DWORD RegularFileAttributes(const Handle& file, const char* what) {
  if (::GetFileType(file.Get()) != FILE_TYPE_DISK) throw Failure::NotRegular(what);
  BY_HANDLE_FILE_INFORMATION info{};
  if (!::GetFileInformationByHandle(file.Get(), &info)) Fail(what);
  if (info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) throw Failure::NotRegular(what);
  return info.dwFileAttributes;
}

// What a path names once links are followed.
struct Target {
  fs::path path;
  std::optional<DWORD> attributes;  // of the file there, if there is one
};

fs::path FinalPath(const Handle& file) {
  std::wstring text(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length =
        ::GetFinalPathNameByHandleW(file.Get(), text.data(), static_cast<DWORD>(text.size()), 0);
    if (length == 0) Fail("cannot be written");
    if (length < text.size()) {
      text.resize(length);
      return text;
    }
    text.resize(length);  // the size needed, with the terminator
  }
}

Target Resolve(const fs::path& path) {
  const Handle file = OpenToInspect(path, FILE_READ_ATTRIBUTES);
  if (!file.IsOpen()) {
    const DWORD error = ::GetLastError();
    // A new file; a name that is there but cannot be opened is a link to nothing.
    if (error == ERROR_FILE_NOT_FOUND &&
        ::GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES) {
      return {path, std::nullopt};
    }
    Fail("cannot be written", error);
  }
  const DWORD attributes = RegularFileAttributes(file, "cannot be written");
  const DWORD own = ::GetFileAttributesW(path.c_str());
  const bool isLink = own != INVALID_FILE_ATTRIBUTES && (own & FILE_ATTRIBUTE_REPARSE_POINT);
  return {isLink ? FinalPath(file) : path, attributes};
}

// The new contents on their way in, open to no one else; removed again unless put in place.
class Temporary {
public:
  Temporary(const fs::path& target, DWORD attributes)
      : m_Path(cls_TemporaryName::For(target)),
        m_File(::CreateFileW(m_Path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                             FILE_ATTRIBUTE_NORMAL | attributes, nullptr)) {
    if (!m_File.IsOpen()) Fail("cannot be written");
  }
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;
  ~Temporary() {
    if (m_Placed) return;
    if (m_File.IsOpen()) m_File.Close();
    ::DeleteFileW(m_Path.c_str());
  }

  void Write(std::string_view bytes) {
    while (!bytes.empty()) {
      DWORD written = 0;
      const DWORD count = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), kChunk));
      if (!::WriteFile(m_File.Get(), bytes.data(), count, &written, nullptr)) {
        Fail("cannot be written");
      }
      bytes.remove_prefix(written);
    }
  }

  // Makes the contents durable before the move can make them the file's.
  void Finish() {
    if (!::FlushFileBuffers(m_File.Get())) Fail("cannot be written");
    if (!m_File.Close()) Fail("cannot be written");
  }

  void PutInPlace(const fs::path& target) {
    if (!::MoveFileExW(m_Path.c_str(), target.c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
      Fail("cannot be put in place");
    }
    m_Placed = true;
  }

private:
  fs::path m_Path;
  Handle m_File;
  bool m_Placed = false;
};
}  // namespace

std::string cls_FileSystem::ReadFile(const fs::path& path, std::uintmax_t maxBytes) {
  const Handle file = OpenToInspect(path, GENERIC_READ);
  if (!file.IsOpen()) Fail("cannot be opened");
  RegularFileAttributes(file, "cannot be read");
  LARGE_INTEGER size{};
  if (!::GetFileSizeEx(file.Get(), &size)) Fail("cannot be read");
  return ReadBounded(static_cast<std::uintmax_t>(size.QuadPart), maxBytes,
                     [&file](char* to, std::size_t count) -> std::size_t {
                       DWORD got = 0;
                       const auto chunk = static_cast<DWORD>(std::min<std::size_t>(count, kChunk));
                       if (!::ReadFile(file.Get(), to, chunk, &got, nullptr)) {
                         Fail("cannot be read");
                       }
                       return got;
                     });
}

void cls_FileSystem::ReplaceFile(const fs::path& path, std::string_view bytes) {
  const Target target = Resolve(path);
  cls_TemporaryName::RemoveStale(target.path);
  Temporary temporary(target.path, target.attributes.value_or(0) & kKeptAttributes);
  temporary.Write(bytes);
  temporary.Finish();
  temporary.PutInPlace(target.path);
}
