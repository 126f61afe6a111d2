#pragma once
// The temporary files a save writes beside the file it replaces, named
// ".<name>.tmp<16 hex digits>" in the same folder so that the final rename stays on one volume.
// Internal to the archive files; thread-safe: no state is kept between calls.
#include <filesystem>

class cls_TemporaryName {
public:
  // A fresh name for the new contents of target; random, so that saves of one file from
  // several processes do not meet.
  static std::filesystem::path For(const std::filesystem::path& target);

  // Removes target's temporary files that a killed process left behind and that have not been
  // written for cls_FileSystem::StaleAfter (a younger one may belong to a save in progress).
  // Best effort: one that cannot be listed or removed does no harm and is left.
  static void RemoveStale(const std::filesystem::path& target);
};
