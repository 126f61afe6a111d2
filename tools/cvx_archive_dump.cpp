// cvx_archive_dump FILE...: prints each archive as readable text.
#include <UTI_CaeUtils.h>
#include <cls_Archive.h>
#include <nex_Exception.h>

#include <iostream>

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "usage: " << argv[0] << " ARCHIVE...\n";
    return 2;
  }
  int count = 0;
  UTI_CaeUtils_initialize(count);  // so that records show their class names
  int status = 0;
  for (int i = 1; i < argc; ++i) {
    try {
      std::cout << argv[i] << ": ";
      cls_Archive::Load(argv[i]).Dump(std::cout);
    } catch (const nex_Exception& error) {
      std::cout << '\n';
      std::cerr << error.UserReport().View() << '\n';
      status = 1;
    }
  }
  UTI_CaeUtils_finalize(count);
  return status;
}
