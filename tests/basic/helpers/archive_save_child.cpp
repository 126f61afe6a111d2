// archive_save_child PATH GENERATION PAYLOAD_BYTES [FILE_SIZE_LIMIT [KILL_AFTER_MICROSECONDS]]
// Saves a GenerationArchive to PATH in a process the file tests can limit or kill. A
// limit of 0 sets none; a kill time ends the process that long after the save began, saved or
// not, as a crash would (SIGKILL). On Windows the last argument names an event instead, signalled
// as the save begins, and the test kills the process. Prints the error text if the save raises.
// Exit status: 0 saved, 1 the save raised, 2 bad arguments, 3 the limit cannot be set.
#include "../GenerationArchive.h"

#include <nex_TextException.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <string>
#include <thread>

#if defined(_WIN32)
#include <windows.h>  // last: its min and max macros would break the headers above
#else
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace {
#if defined(_WIN32)
// Windows has no limit on the size of the files a process writes.
bool LimitFileSize(unsigned long long) { return false; }
#else
// A save past the limit fails with "File too large" instead of being killed by SIGXFSZ.
bool LimitFileSize(unsigned long long bytes) {
  const rlimit value{bytes, bytes};
  return std::signal(SIGXFSZ, SIG_IGN) != SIG_ERR && ::setrlimit(RLIMIT_FSIZE, &value) == 0;
}
#endif

// The exit status: 0 saved, 1 the save raised (its text printed).
int Save(const cls_Archive& archive, const char* path) {
  try {
    archive.Save(path);
  } catch (const nex_TextException& error) {
    std::cout << error.Text().View() << std::endl;
    return 1;
  }
  return 0;
}
}  // namespace

int main(int argc, char** argv) {
  if (argc < 4 || argc > 6) return 2;  // the usage is above
  const unsigned long long limit = argc > 4 ? std::strtoull(argv[4], nullptr, 10) : 0;
  if (limit && !LimitFileSize(limit)) return 3;
  const cls_Archive archive =
      GenerationArchive(std::atoi(argv[2]), std::strtoull(argv[3], nullptr, 10));
  if (argc < 6) return Save(archive, argv[1]);
#if defined(_WIN32)
  ::SetEvent(::OpenEventA(EVENT_MODIFY_STATE, FALSE, argv[5]));
  return Save(archive, argv[1]);
#else
  // The crash comes from a thread of its own while the save runs or waits for it: no thread ends
  // before it.
  std::thread crash([after = std::chrono::microseconds(std::atoll(argv[5]))] {
    std::this_thread::sleep_for(after);
    ::kill(::getpid(), SIGKILL);
  });
  Save(archive, argv[1]);
  crash.join();  // never returns
#endif
}
