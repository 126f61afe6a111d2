// archive_save_child PATH GENERATION PAYLOAD_BYTES [FILE_SIZE_LIMIT]
// Saves a GenerationRecord archive to PATH in a process the file tests can kill or limit.
// Prints "ready" just before saving, then the error text if the save raises.
// Exit status: 0 saved, 1 the save raised, 2 bad arguments, 3 the limit cannot be set.
#include "../GenerationRecord.h"

#include <nex_TextException.h>

#if !defined(_WIN32)
#include <sys/resource.h>
#include <unistd.h>
#endif

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <string>

namespace {
#if defined(_WIN32)
// Windows has no limit on the size of the files a process writes.
bool LimitFileSize(const char*) { return false; }
#else
// A save past the limit fails with "File too large" instead of being killed by SIGXFSZ.
bool LimitFileSize(const char* bytes) {
  const rlim_t limit = std::strtoull(bytes, nullptr, 10);
  const rlimit value{limit, limit};
  return std::signal(SIGXFSZ, SIG_IGN) != SIG_ERR && ::setrlimit(RLIMIT_FSIZE, &value) == 0;
}
#endif
}  // namespace

int main(int argc, char** argv) {
  if (argc != 4 && argc != 5) {
    std::cerr << "usage: " << argv[0] << " PATH GENERATION PAYLOAD_BYTES [FILE_SIZE_LIMIT]\n";
    return 2;
  }
  if (argc == 5 && !LimitFileSize(argv[4])) return 3;
  const cls_Archive archive =
      GenerationArchive(std::atoi(argv[2]), std::strtoull(argv[3], nullptr, 10));
  std::cout << "ready" << std::endl;
  try {
    archive.Save(argv[1]);
  } catch (const nex_TextException& error) {
    std::cout << error.Text().View() << std::endl;
    return 1;
  }
  return 0;
}
