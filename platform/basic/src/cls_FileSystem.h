#pragma once
// The operating system's side of archive files: whole-file reads and crash-safe replacement.
// Internal; each system has its own cls_FileSystem.cpp behind these declarations, in posix/
// and windows/. Failures raise cls_FileSystem::Failure, whose text says what could not be done
// and the system's reason ("cannot be written: No space left on device"; on Windows the text
// of FormatMessage, "cannot be opened: The system cannot find the file specified").
// Thread-safe: no state is kept between calls.
#include <chrono>
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
};
