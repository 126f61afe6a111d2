#include "../cls_FileSystem.h"
#include "../cls_TemporaryName.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <system_error>
#include <utility>

namespace fs = std::filesystem;

namespace {
using Failure = cls_FileSystem::Failure;

constexpr int kMaxLinks = 40;  // as many as the kernel follows in one path

[[noreturn]] void Fail(const char* what, int error = errno) {
  throw Failure(std::string(what) + ": " + std::system_category().message(error));
}

// Closes the descriptor on every way out.
class Descriptor {
public:
  explicit Descriptor(int fd) noexcept : m_Fd(fd) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (m_Fd >= 0) ::close(m_Fd);
  }
  int Get() const noexcept { return m_Fd; }
  // Closes now: some file systems report a failed write only here.
  bool Close() noexcept { return ::close(std::exchange(m_Fd, -1)) == 0; }

private:
  int m_Fd;
};

// What a path names once symbolic links are followed.
struct Target {
  fs::path path;
  std::optional<mode_t> mode;  // the permission bits of the file there, if there is one
};

Target Resolve(fs::path path) {
  for (int links = 0; links <= kMaxLinks; ++links) {
    struct stat info {};
    if (::lstat(path.c_str(), &info) != 0) {
      if (errno == ENOENT) return {path, std::nullopt};  // a new file, maybe through a link
      Fail("cannot be written");
    }
    if (S_ISREG(info.st_mode)) return {path, info.st_mode & 07777};
    if (!S_ISLNK(info.st_mode)) throw Failure::NotRegular("cannot be written");
    std::error_code error;
    const fs::path link = fs::read_symlink(path, error);
    if (error) Fail("cannot be written", error.value());
    path = path.parent_path() / link;  // an absolute link replaces the whole path
  }
  Fail("cannot be written", ELOOP);
}

// The new contents on their way in; removed again unless put in place.
class Temporary {
public:
  explicit Temporary(const fs::path& target)
      : m_Path(cls_TemporaryName::For(target)),
        m_File(::open(m_Path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666)) {
    if (m_File.Get() < 0) Fail("cannot be written");
  }
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;
  ~Temporary() {
    if (!m_Placed) ::unlink(m_Path.c_str());
  }

  void Write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t written = ::write(m_File.Get(), bytes.data(), bytes.size());
      if (written >= 0) {
        bytes.remove_prefix(static_cast<std::size_t>(written));
      } else if (errno != EINTR) {
        Fail("cannot be written");
      }
    }
  }

  // Gives the file its permission bits and makes its contents durable.
  void Finish(std::optional<mode_t> mode) {
    if (mode && ::fchmod(m_File.Get(), *mode) != 0) Fail("cannot be written");
    if (::fsync(m_File.Get()) != 0 || !m_File.Close()) Fail("cannot be written");
  }

  void PutInPlace(const fs::path& target) {
    if (::rename(m_Path.c_str(), target.c_str()) != 0) Fail("cannot be put in place");
    m_Placed = true;
  }

private:
  fs::path m_Path;
  Descriptor m_File;
  bool m_Placed = false;
};

// Makes the rename durable.
void SyncFolder(const fs::path& folder) {
  const Descriptor directory(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (directory.Get() < 0) Fail("was replaced but cannot be synced");
  // EINVAL: a file system that cannot sync a folder, where the rename is as durable as it gets.
  if (::fsync(directory.Get()) != 0 && errno != EINVAL) Fail("was replaced but cannot be synced");
}
}  // namespace

std::string cls_FileSystem::ReadFile(const fs::path& path, std::uintmax_t maxBytes) {
  // Non-blocking, so that opening a FIFO does not wait for a writer (it is refused below);
  // reads of a regular file ignore the flag.
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (file.Get() < 0) Fail("cannot be opened");
  struct stat info {};
  if (::fstat(file.Get(), &info) != 0) Fail("cannot be read");
  if (!S_ISREG(info.st_mode)) throw Failure::NotRegular("cannot be read");
  return ReadBounded(static_cast<std::uintmax_t>(info.st_size), maxBytes,
                     [&file](char* to, std::size_t count) -> std::size_t {
                       for (;;) {
                         const ssize_t got = ::read(file.Get(), to, count);
                         if (got >= 0) return static_cast<std::size_t>(got);
                         if (errno != EINTR) Fail("cannot be read");
                       }
                     });
}

void cls_FileSystem::ReplaceFile(const fs::path& path, std::string_view bytes) {
  const Target target = Resolve(path);
  cls_TemporaryName::RemoveStale(target.path);
  Temporary temporary(target.path);
  temporary.Write(bytes);
  temporary.Finish(target.mode);
  temporary.PutInPlace(target.path);
  SyncFolder(target.path.has_parent_path() ? target.path.parent_path() : ".");
}
