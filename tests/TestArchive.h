#pragma once
// Round trips through a real archive file in the build's test folder.
#include <cls_Archive.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

// A file in the build's test folder (or the system's). Test binaries run in parallel: each
// process gets names of its own.
inline std::filesystem::path TestFile(const std::string& name) {
  static const std::string token = std::to_string(std::random_device()());
  const char* folder = std::getenv("CVX_TEST_TMP");
  return (folder ? std::filesystem::path(folder) : std::filesystem::temp_directory_path()) /
         (name + "-" + token + ".cvxarch");
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
std::unique_ptr<T> RoundTrip(const V& value, const std::string& name = "roundtrip") {
  cls_Archive archive;
  archive.Add(value);
  return SaveAndLoad(archive, name).template Read<T>(0);
}

// The bytes of an archive holding the object alone: its fields, whatever its identities.
template <class T>
std::string SoloBytes(const T& object) {
  cls_Archive archive;
  archive.Add(object);
  return archive.ToBytes();
}

// A record of any class as an archive could hold it, foreign or damaged too: a class's
// identifier, its fields, its uid, the records nested in it and the level above its own.
struct ForgedRecord {
  unsigned int typeId;
  std::vector<std::pair<const char*, cls_Value>> fields;
  cls_Uid uid = cls_Uid();
  std::vector<std::pair<const char*, ForgedRecord>> nested = {};
  const ForgedRecord* parent = nullptr;
  void DBWrite(const cls_WriteVisitor& writer) const {
    writer.StartWrite(typeId, uid);
    if (parent) parent->DBWrite(cls_WriteVisitor(writer, parent->typeId));
    for (const auto& [name, value] : fields) writer.Write(name, value);
    for (const auto& [name, record] : nested) writer.WriteObject(name, record);
  }
};
