// Uses the installed library end to end: start-up, a value, a scripting error, an archive.
#include <UTI_CaeUtils.h>
#include <cls_Archive.h>
#include <omu_KeyErrorException.h>
#include <omu_PrimTuple.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>

namespace {
int failures = 0;

void Expect(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "consumer: %s\n", what);
  ++failures;
}
}  // namespace

int main() {
  Expect(std::strcmp(UTI_CaeUtils_version(), CVX_PACKAGE_VERSION) == 0,
         "the library's version is not the package's");
  int count = 0;
  UTI_CaeUtils_initialize(count);
  {
    omu_PrimTuple tuple(2);
    tuple.Put(1);
    tuple.Put(2.5);
    Expect(tuple.AsString(0) == "(1, 2.5)", "the tuple's text is not (1, 2.5)");

    try {
      NEX_THROW(omu_KeyErrorException("missing"), "consumer");
    } catch (const nex_CommandException& error) {
      Expect(error.PythonType() == "KeyError", "a key error is not named KeyError");
      Expect(error.JournalMessage() == "missing", "a key error lost its message");
    }

    cls_Archive archive;
    archive.Add(tuple);
    const auto path = std::filesystem::temp_directory_path() / "cvx_consumer.cvxarch";
    archive.Save(path);
    const auto back = cls_Archive::Load(path).Read<omu_PrimTuple>(0);
    std::filesystem::remove(path);
    Expect(*back == tuple, "the tuple did not read back equal");
  }
  UTI_CaeUtils_finalize(count);
  if (failures == 0) std::puts("consumer: version, start-up, values, errors and archives work");
  return failures == 0 ? 0 : 1;
}
