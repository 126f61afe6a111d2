#include "GenerationArchive.h"
#include "RaisedText.h"
#include "TestArchive.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <fstream>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#if defined(_WIN32)
#include <process.h>
#include <windows.h>  // last: its min and max macros would break the headers above
#else
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#endif

namespace fs = std::filesystem;

namespace {
// A folder of the test's own, removed with what is in it.
class Scratch {
public:
  Scratch() : m_Folder(TestFile("files").replace_extension()) {
    fs::remove_all(m_Folder);
    fs::create_directories(m_Folder / "sub");
  }
  ~Scratch() {
    std::error_code ignored;
    fs::remove_all(m_Folder, ignored);
  }
  fs::path operator/(const std::string& name) const { return m_Folder / name; }

  // Temporary files anyone left behind, anywhere in the folder.
  std::vector<std::string> Temporaries() const {
    std::vector<std::string> found;
    for (const auto& entry : fs::recursive_directory_iterator(m_Folder)) {
      const std::string name = entry.path().filename().string();
      if (name.starts_with('.') && name.find(".tmp") != std::string::npos) found.push_back(name);
    }
    return found;
  }

private:
  fs::path m_Folder;
};

std::string Refusal(const fs::path& path, const std::string& reason) {
  return "archive '" + path.string() + "': " + reason;
}

// The generation a file holds, once its payload is found complete.
int GenerationIn(const fs::path& path, std::size_t payloadBytes) {
  const cls_Archive archive = cls_Archive::Load(path);
  const cls_ReadVisitor r = archive.Root(0);
  const int generation = r.Get<int>("generation");
  EXPECT_EQ(r.Get<cow_String>("payload"), GenerationPayload(generation, payloadBytes))
      << "generation " << generation;
  return generation;
}

// Runs archive_save_child on path with the arguments after it: the exit status (128 + the
// signal that ended it) and what it printed (on Windows, where it prints to the test's output,
// nothing).
// NOLINTNEXTLINE(performance-unnecessary-value-param): the Windows branch edits its copy
std::pair<int, std::string> SaveInAChild(const fs::path& path, std::vector<std::string> arguments) {
#if defined(_WIN32)
  // A kill comes from here once the child signals that its save begins: a process that ends
  // itself while another of its threads runs can hang under wine.
  const std::string ready = "cvx-save-ready-" + std::to_string(::GetCurrentProcessId());
  const HANDLE event = ::CreateEventA(nullptr, FALSE, FALSE, ready.c_str());
  const bool kill = arguments.size() == 4;
  const auto delay = std::chrono::microseconds(kill ? std::stol(arguments[3]) : 0);
  if (kill) arguments[3] = ready;
  arguments.insert(arguments.begin(),
                   {"\"" CVX_ARCHIVE_SAVE_CHILD "\"", '"' + path.string() + '"'});
  std::vector<const char*> argv;
  for (const std::string& word : arguments) argv.push_back(word.c_str());
  argv.push_back(nullptr);
  const auto child =
      reinterpret_cast<HANDLE>(::_spawnv(_P_NOWAIT, CVX_ARCHIVE_SAVE_CHILD, argv.data()));
  const HANDLE either[] = {event, child};
  if (kill && ::WaitForMultipleObjects(2, either, FALSE, INFINITE) == WAIT_OBJECT_0) {
    std::this_thread::sleep_for(delay);
    ::TerminateProcess(child, 128 + 9);  // as a shell reports SIGKILL
  }
  ::WaitForSingleObject(child, INFINITE);
  DWORD status = 0;
  ::GetExitCodeProcess(child, &status);
  ::CloseHandle(child);
  ::CloseHandle(event);
  return {static_cast<int>(status), ""};
#else
  std::string command = "exec '" CVX_ARCHIVE_SAVE_CHILD "' '" + path.string() + "'";
  for (const std::string& word : arguments) command += ' ' + word;
  FILE* output = ::popen(command.c_str(), "r");
  if (!output) throw std::system_error(errno, std::system_category());
  std::string printed;
  for (int c = 0; (c = std::fgetc(output)) != EOF;) printed += static_cast<char>(c);
  const int status = ::pclose(output);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status), printed};
#endif
}

#if defined(_WIN32)
// The system's text for an error code, as a refusal quotes it (wine words some differently).
std::string SystemReason(DWORD error) {
  char text[512] = {};
  ::FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0,
                   text, sizeof text, nullptr);
  std::string reason = text;
  const std::string_view trailing = ". \r\n";
  while (!reason.empty() && trailing.find(reason.back()) != trailing.npos) reason.pop_back();
  return reason;
}
#endif
}  // namespace

TEST(ArchiveFile, LoadRefusesWhatIsNotAnArchiveFileWithTheReason) {
  const Scratch scratch;
  std::ofstream(scratch / "text") << "just some text, not an archive";
  std::ofstream(scratch / "huge").close();
  fs::resize_file(scratch / "huge", cls_Archive::MaxFileBytes + 1);  // sparse: costs no disk
  std::vector<std::pair<fs::path, std::string>> cases = {
    {scratch / "sub", "cannot be read: it is not a regular file"},
    {scratch / "huge", "cannot be read: it is larger than 1073741824 bytes"},
    {scratch / "text", "not an archive of this library (bad magic) at byte 0"},
#if defined(_WIN32)
    {"NUL", "cannot be read: it is not a regular file"},  // would never end
    {scratch / "missing", "cannot be opened: " + SystemReason(ERROR_FILE_NOT_FOUND)},
    {scratch / "text" / "x", "cannot be opened: " + SystemReason(ERROR_PATH_NOT_FOUND)},
  };
#else
    {scratch / "fifo", "cannot be read: it is not a regular file"},  // would wait for a writer
    {"/dev/zero", "cannot be read: it is not a regular file"},       // would never end
    {"/proc/self/mem", "cannot be read: Input/output error"},        // offset 0 is unmapped
    {scratch / "missing", "cannot be opened: No such file or directory"},
    {scratch / "text" / "x", "cannot be opened: Not a directory"},
  };
  ASSERT_EQ(::mkfifo((scratch / "fifo").c_str(), 0600), 0);
#endif
  for (const auto& [path, reason] : cases) {
    EXPECT_EQ(RaisedText([&file = path] { cls_Archive::Load(file); }), Refusal(path, reason));
  }
}

TEST(ArchiveFile, SaveRefusesWhatIsNotAFileToReplaceAndLeavesItAlone) {
  const Scratch scratch;
  std::ofstream(scratch / "text") << "x";
  std::vector<std::pair<fs::path, std::string>> cases = {
      {scratch / "sub", "it is not a regular file"}};
#if defined(_WIN32)
  // No FIFOs, device nodes or (without a privilege) links: a device and bad paths.
  cases.insert(cases.end(), {{"NUL", "it is not a regular file"},
                             {scratch / "text" / "x", SystemReason(ERROR_PATH_NOT_FOUND)},
                             {scratch / "missing" / "x", SystemReason(ERROR_PATH_NOT_FOUND)}});
#else
  ASSERT_EQ(::mkfifo((scratch / "fifo").c_str(), 0600), 0);
  fs::create_directory_symlink("sub", scratch / "to-folder");
  fs::create_symlink("loop-b", scratch / "loop-a");
  fs::create_symlink("loop-a", scratch / "loop-b");
  cases.insert(cases.end(), {{scratch / "fifo", "it is not a regular file"},
                             {scratch / "to-folder", "it is not a regular file"},
                             {scratch / "loop-a", "Too many levels of symbolic links"},
                             {scratch / "text" / "x", "Not a directory"},
                             {scratch / "missing" / "x", "No such file or directory"}});
  // A node like /dev/null, where making one is allowed.
  if (::mknod((scratch / "null").c_str(), S_IFCHR | 0666, makedev(1, 3)) == 0) {
    cases.emplace_back(scratch / "null", "it is not a regular file");
  } else {
    std::cout << "mknod is not permitted: the device node case is left out\n";
  }
#endif
  const cls_Archive archive = GenerationArchive(1, 100);
  for (const auto& [path, reason] : cases) {
    std::error_code ignored;
    const fs::file_type before = fs::symlink_status(path, ignored).type();
    EXPECT_EQ(RaisedText([&archive, &file = path] { archive.Save(file); }),
              Refusal(path, "cannot be written: " + reason));
    EXPECT_EQ(fs::symlink_status(path, ignored).type(), before) << path;
  }
  EXPECT_EQ(scratch.Temporaries(), std::vector<std::string>());
}

TEST(ArchiveFile, SaveReplacesTheFileALinkNamesAndKeepsLinksAndPermissions) {
#if defined(_WIN32)
  GTEST_SKIP() << "symbolic links need a privilege on Windows, and it has no permission bits";
#endif
  const Scratch scratch;
  using Links = std::vector<std::pair<std::string, std::string>>;  // link, what it points to
  const struct {
    const char* what;
    Links links;  // the save goes through the first, if any
    std::string target;
    std::optional<fs::perms> mode;  // of the file being replaced; none: a new file
  } cases[] = {
      {"a private file", {}, "private", fs::perms(0600)},
      {"an executable file", {}, "tool", fs::perms(0754)},
      {"a relative link", {{"link", "sub/linked"}}, "sub/linked", fs::perms(0640)},
      {"an absolute link", {{"abs", (scratch / "sub/abs").string()}}, "sub/abs", fs::perms(0604)},
      {"a chain of links",
       {{"first", "sub/second"}, {"sub/second", "chained"}},
       "sub/chained",
       fs::perms(0644)},
      {"a dangling link", {{"dangling", "sub/new"}}, "sub/new", std::nullopt},
  };
  for (const auto& c : cases) {
    for (const auto& [link, pointsTo] : c.links) fs::create_symlink(pointsTo, scratch / link);
    if (c.mode) {
      GenerationArchive(1, 100).Save(scratch / c.target);
      fs::permissions(scratch / c.target, *c.mode);
    }
    const fs::path entry = scratch / (c.links.empty() ? c.target : c.links.front().first);
    ASSERT_EQ(RaisedText([&] { GenerationArchive(2, 100).Save(entry); }), "ok") << c.what;
    for (const auto& [link, pointsTo] : c.links) {
      EXPECT_TRUE(fs::is_symlink(scratch / link)) << c.what << ": " << link << " was replaced";
    }
    EXPECT_EQ(GenerationIn(scratch / c.target, 100), 2) << c.what;
    if (c.mode) {
      EXPECT_EQ(fs::status(scratch / c.target).permissions(), *c.mode) << c.what;
    }
  }
  EXPECT_EQ(scratch.Temporaries(), std::vector<std::string>());
}

TEST(ArchiveFile, SaveRemovesOnlyItsOwnStaleTemporaryFiles) {
  const Scratch scratch;
  const auto now = fs::file_time_type::clock::now();
  const struct {
    const char* name;
    fs::file_time_type written;
    bool removed;
  } cases[] = {
      {".a.cvxarch.tmp0123456789abcdef", now - std::chrono::hours(1), true},
      {".a.cvxarch.tmp00000000000000ff", now, false},  // maybe a save in progress
      {".a.cvxarch.tmp-not-one-of-ours", now - std::chrono::hours(1), false},
      {".b.cvxarch.tmp0123456789abcdef", now - std::chrono::hours(1), false},  // another file's
  };
  for (const auto& c : cases) {
    std::ofstream(scratch / c.name) << "partial";
    fs::last_write_time(scratch / c.name, c.written);
  }
  GenerationArchive(1, 100).Save(scratch / "a.cvxarch");
  for (const auto& c : cases) EXPECT_EQ(!fs::exists(scratch / c.name), c.removed) << c.name;
  EXPECT_EQ(GenerationIn(scratch / "a.cvxarch", 100), 1);
}

TEST(ArchiveFile, AFullFileSystemFailsClearlyAndKeepsTheOldFile) {
  const Scratch scratch;
  const fs::path path = scratch / "full.cvxarch";
  GenerationArchive(1, 100).Save(path);
  // The new file would be far past the limit; the old one is well within it.
  const auto [status, printed] = SaveInAChild(path, {"2", "100000", "20000"});
  if (status == 3) GTEST_SKIP() << "no file size limit can be set here";
  EXPECT_EQ(status, 1);
  EXPECT_EQ(printed, Refusal(path, "cannot be written: File too large") + "\n");
  EXPECT_EQ(GenerationIn(path, 100), 1);
  EXPECT_EQ(scratch.Temporaries(), std::vector<std::string>());
}

TEST(ArchiveFile, ASaveKilledAtAnyMomentLeavesTheOldOrTheNewFileComplete) {
  const Scratch scratch;
  const fs::path path = scratch / "killed.cvxarch";
  constexpr std::size_t kPayload = 200000;
  constexpr int kRounds = 200;
  // How long one save takes here (a first one, a little slower), so the kills spread over it.
  const auto start = std::chrono::steady_clock::now();
  GenerationArchive(0, kPayload).Save(path);
  const auto saveTime = std::chrono::duration_cast<std::chrono::microseconds>(
      std::chrono::steady_clock::now() - start);
  const unsigned seed = std::random_device()();
  std::mt19937 random(seed);
  std::uniform_int_distribution<long> delay(0, saveTime.count());
  int held = 0;
  int replaced = 0;
  for (int round = 0; round < kRounds; ++round) {
    SaveInAChild(path, {std::to_string(held + 1), std::to_string(kPayload), "0",
                        std::to_string(delay(random))});
    int found = -1;
    ASSERT_EQ(RaisedText([&] { found = GenerationIn(path, kPayload); }), "ok")
        << "round " << round << ", seed " << seed;
    ASSERT_TRUE(found == held || found == held + 1) << "round " << round << ": " << found;
    replaced += found - held;
    held = found;
  }
  std::cout << "of " << kRounds << " saves killed within " << saveTime.count() << " us, "
            << replaced << " had put the new file in place, " << scratch.Temporaries().size()
            << " were writing it\n";
}
