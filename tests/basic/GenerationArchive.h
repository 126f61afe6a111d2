#pragma once
// The archive the file tests save, here and from archive_save_child: a generation number and a
// payload that follows from it, so a loaded file shows which save it holds, complete.
#include "../TestArchive.h"

#include <cstddef>
#include <string>

inline std::string GenerationPayload(int generation, std::size_t bytes) {
  std::string text(bytes, ' ');
  for (std::size_t i = 0; i < bytes; ++i) {
    text[i] = static_cast<char>('a' + (i * 7 + static_cast<std::size_t>(generation)) % 26);
  }
  return text;
}

inline cls_Archive GenerationArchive(int generation, std::size_t payloadBytes) {
  cls_Archive archive;
  archive.Add(ForgedRecord{0x7fff0101u,
                           {{"generation", generation},
                            {"payload", cow_String(GenerationPayload(generation, payloadBytes))}}});
  return archive;
}
