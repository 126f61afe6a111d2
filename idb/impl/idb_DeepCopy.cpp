#include <cls_Archive.h>
#include <cls_MetadataRegistrar.h>
#include <idb_DeepCopy.h>

void* idb_DeepCopy(const void* object, unsigned int typeId) {
  if (!object) return nullptr;
  cls_Archive archive;
  cls_MetadataRegistrar::Instance().Registrar().Get(typeId).Write(object, archive.NewRoot());
  unsigned int copiedTypeId = 0;
  // The object's own type is the least the copy may be.
  // NOLINTNEXTLINE(readability-suspicious-call-argument)
  return archive.Root(0).Construct(archive.RootValue(0), typeId, copiedTypeId);
}
