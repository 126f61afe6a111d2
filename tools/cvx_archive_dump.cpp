// cvx_archive_dump FILE...: prints each archive as readable text.
#include <UTI_CaeUtils.h>
#include <cls_Archive.h>
#include <nex_Exception.h>

#include <exception>
#include <iostream>
#include <string>

namespace {
// Prints one archive; answers why it cannot, or nothing.
std::string DumpOne(const char* path) {
  try {
    cls_Archive::Load(path).Dump(std::cout);
  } catch (const nex_Exception& error) {
    return error.UserReport().StdString();
  } catch (const std::exception& error) {  // e.g. out of memory: the other files may still go
    return error.what();
  }
  return {};
}
}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "usage: " << argv[0] << " ARCHIVE...\n";
    return 2;
  }
  int count = 0;
  UTI_CaeUtils_initialize(count);  // so that records show their class names
  int status = 0;
  for (int i = 1; i < argc; ++i) {
    std::cout << argv[i] << ": ";
    const std::string failure = DumpOne(argv[i]);
    if (!failure.empty()) {
      std::cout << '\n';
      std::cerr << failure << '\n';
      status = 1;
    }
  }
  UTI_CaeUtils_finalize(count);
  return status;
}
