#pragma once
// The record the file tests save, here and from archive_save_child: a generation number and a
// payload that follows from it, so a loaded file shows which save it holds, complete.
#include <cls_Archive.h>

#include <cstddef>
#include <string>

struct GenerationRecord {
  int generation = 0;
  std::size_t payloadBytes = 0;

  static unsigned int TypeId() { return 0x7fff0101u; }
  static std::string Payload(int generation, std::size_t bytes) {
    std::string text(bytes, ' ');
    for (std::size_t i = 0; i < bytes; ++i) {
      text[i] = static_cast<char>('a' + (i * 7 + static_cast<std::size_t>(generation)) % 26);
    }
    return text;
  }
  void DBWrite(const cls_WriteVisitor& w) const {
    w.StartWrite(TypeId(), cls_Uid());
    w.Write("generation", generation);
    w.Write("payload", Payload(generation, payloadBytes).c_str());
  }
};

inline cls_Archive GenerationArchive(int generation, std::size_t payloadBytes) {
  cls_Archive archive;
  archive.Add(GenerationRecord{generation, payloadBytes});
  return archive;
}
