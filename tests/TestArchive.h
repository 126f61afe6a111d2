#pragma once
// Round trips through a real archive file in the build's test folder.
#include <cls_Archive.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <random>
#include <string>

inline std::filesystem::path TestFolder() {
  const char* folder = std::getenv("CVX_TEST_TMP");
  return folder ? std::filesystem::path(folder) : std::filesystem::temp_directory_path();
}

// A file name of this process alone: CTest runs test processes side by side in one folder.
inline std::filesystem::path TestFile(const std::string& name) {
  static const std::string tag = std::to_string(std::random_device()());
  return TestFolder() / (name + "-" + tag + ".cvxarch");
}

// Saves the archive to a file and loads it back.
inline cls_Archive SaveAndLoad(const cls_Archive& archive, const std::string& name = "roundtrip") {
  const auto path = TestFile(name);
  archive.Save(path);
  cls_Archive loaded = cls_Archive::Load(path);
  std::filesystem::remove(path);
  return loaded;
}

// Writes value into an archive file and reads it back as T (or a base of it).
template <class T, class V>
std::unique_ptr<T> RoundTrip(const V& value) {
  cls_Archive archive;
  archive.Add(value);
  return SaveAndLoad(archive).template Read<T>(0);
}
