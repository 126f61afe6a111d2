// The archive reader fed arbitrary bytes: it may refuse them with nex_TextException, never
// crash or leak. Inputs whose first byte is odd are taken as the payload of a well-formed file
// (the fuzzer could not otherwise get past the checksum), so decoding and building objects
// from records are exercised deeply; what is accepted is dumped and built into objects.
// What could be read is saved again: the records' bytes decode to the same bytes, and the
// objects built, written and read back write the same bytes again.
#include "../tests/ArchiveBytes.h"

#include <UTI_CaeUtils.h>
#include <cls_Archive.h>
#include <cls_MetadataRegistrar.h>
#include <nex_Exception.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <sstream>
#include <string>

namespace {
const cls_ClassRegistrar& Registry() { return cls_MetadataRegistrar::Instance().Registrar(); }

// Builds every object the archive's records allow and writes it into a new archive.
cls_Archive Rewrite(const cls_Archive& archive) {
  cls_Archive rewritten;
  for (int i = 0; i < archive.RootCount(); ++i) {
    unsigned int typeId = 0;
    void* object = nullptr;
    try {
      object = archive.Root(i).Construct(archive.RootValue(i), cls_RootTypeId, typeId);
    } catch (const nex_Exception&) {
      continue;
    }
    if (!object) continue;
    const cls_ClassMetadata& metadata = Registry().Get(typeId);
    const auto destroy = [&metadata](void* built) { metadata.Destroy(built); };
    const std::unique_ptr<void, decltype(destroy)> owned(object, destroy);
    metadata.Write(owned.get(), rewritten.NewRoot());
  }
  return rewritten;
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static int count = 0;
  [[maybe_unused]] static const bool started = (UTI_CaeUtils_initialize(count), true);
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const bool payloadOnly = size > 0 && (data[0] & 1) != 0;
  const std::string bytes =
      payloadOnly ? FileOf(cls_Archive::Version, input.substr(1)) : std::string(input);
  try {
    const cls_Archive archive = cls_Archive::FromBytes(bytes);
    std::ostringstream dump;
    archive.Dump(dump);
    const std::string saved = archive.ToBytes();
    if (cls_Archive::FromBytes(saved).ToBytes() != saved) __builtin_trap();
    const std::string objects = Rewrite(archive).ToBytes();
    if (Rewrite(cls_Archive::FromBytes(objects)).ToBytes() != objects) __builtin_trap();
  } catch (const nex_Exception&) {
  }
  return 0;
}
