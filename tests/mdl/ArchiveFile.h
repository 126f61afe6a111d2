#pragma once
// Round trips through a real archive file: what a test writes is saved, loaded back and read
// as a new object by the class registry.
#include <cls_Archive.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <memory>

inline std::filesystem::path ArchivePath(const char* name) {
  const char* folder = std::getenv("CVX_TEST_TMP");
  return std::filesystem::path(folder ? folder : std::filesystem::temp_directory_path().c_str()) /
         (std::string(name) + ".cvxa");
}

// Saves the archive and loads it back from its file.
inline cls_Archive Reloaded(const cls_Archive& archive, const char* name) {
  const std::filesystem::path path = ArchivePath(name);
  archive.Save(path);
  cls_Archive loaded = cls_Archive::Load(path);
  std::filesystem::remove(path);
  return loaded;
}

template <class T, class Object>
std::unique_ptr<T> RoundTrip(const Object& object, const char* name) {
  cls_Archive archive;
  archive.Add(object);
  return Reloaded(archive, name).template Read<T>(0);
}
