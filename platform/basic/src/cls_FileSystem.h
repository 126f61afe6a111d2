#pragma once
// The operating system's side of archive files: whole-file reads and crash-safe replacement.
// Internal; each system has its own cls_FileSystem.cpp behind these declarations, in posix/
// and windows/. Failures raise cls_FileSystem::Failure, whose text says what could not be done
// and the system's reason ("cannot be written: No space left on device"; on Windows the text
// of FormatMessage, "cannot be opened: The system cannot find the file specified").
// Thread-safe: no state is kept between calls.
#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

class cls_FileSystem {
public:
  class Failure : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;

    // The refusals every system words alike.
    static Failure NotRegular(const char* what) {
      return Failure(std::string(what) + ": it is not a regular file");
    }
    static Failure TooLarge(std::uintmax_t maxBytes) {
      return Failure("cannot be read: it is larger than " + std::to_string(maxBytes) + " bytes");
    }
  };

  // The contents of the regular file at path. Anything else (a directory, a FIFO, a device)
  // and a file larger than maxBytes are refused without reading them.
  static std::string ReadFile(const std::filesystem::path& path, std::uintmax_t maxBytes);

  // Replaces the file at path by bytes so that a crash at any moment leaves either the old or
  // the new file: the bytes go to a temporary file in the same folder, which is synced, given
  // the old file's permission bits and renamed over it, then the folder is synced. A symbolic
  // link is followed and kept: the file it points to is replaced (or created). A path naming
  // something other than a regular file is refused untouched. A failure removes the
  // temporary file and leaves the old file as it was.
  // On Windows the temporary file is flushed (FlushFileBuffers), takes the old file's hidden,
  // system and not-indexed attributes and is moved over it by MoveFileExW with
  // MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH, which returns once the move is on
  // disk; a read-only file, or one open elsewhere without delete sharing, is refused by the
  // system. A link whose target is missing is refused there rather than replaced.
  static void ReplaceFile(const std::filesystem::path& path, std::string_view bytes);

  // Temporary files are named ".<name>.tmp<16 hex digits>". One a killed process left behind
  // is removed by a later save of the same file once it has not been written for StaleAfter
  // (a younger one may belong to a save in progress); until then it is ignored.
  static constexpr std::chrono::minutes StaleAfter{10};

private:
  // Reads a file said to hold size bytes through readSome(buffer, count), which answers the
  // bytes it read, 0 at the end. Room for one byte more shows a file that grew meanwhile, and
  // some files say they are empty and are not; more than maxBytes is refused either way.
  template <class ReadSome>
  static std::string ReadBounded(std::uintmax_t size, std::uintmax_t maxBytes, ReadSome readSome) {
    if (size > maxBytes) throw Failure::TooLarge(maxBytes);
    std::string bytes(static_cast<std::size_t>(size) + 1, '\0');
    std::size_t done = 0;
    for (;;) {
      if (done == bytes.size()) {
        if (done > maxBytes) throw Failure::TooLarge(maxBytes);
        bytes.resize(static_cast<std::size_t>(std::min<std::uintmax_t>(2 * done, maxBytes + 1)));
      }
      const std::size_t got = readSome(bytes.data() + done, bytes.size() - done);
      if (got == 0) break;
      done += got;
    }
    bytes.resize(done);
    return bytes;
  }
};
