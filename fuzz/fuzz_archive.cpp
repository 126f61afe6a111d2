// The archive reader fed arbitrary bytes: it may refuse them with nex_TextException, never
// crash; what it accepts is built into objects and dumped.
#include <UTI_CaeUtils.h>
#include <cls_Archive.h>
#include <nex_Exception.h>

#include <cstddef>
#include <cstdint>
#include <sstream>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const bool started = [] {
    int count = 0;
    UTI_CaeUtils_initialize(count);
    return true;
  }();
  (void)started;
  try {
    const cls_Archive archive =
        cls_Archive::FromBytes(std::string_view(reinterpret_cast<const char*>(data), size));
    std::ostringstream dump;
    archive.Dump(dump);
    for (int i = 0; i < archive.RootCount(); ++i) {
      try {
        unsigned int typeId = 0;
        void* object = archive.Root(i).Construct(archive.RootValue(i), cls_RootTypeId, typeId);
        if (object) cls_MetadataRegistrar::Instance().Registrar().Get(typeId).Destroy(object);
      } catch (const nex_Exception&) {
      }
    }
  } catch (const nex_Exception&) {
  }
  return 0;
}
