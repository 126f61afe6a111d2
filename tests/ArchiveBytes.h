#pragma once
// Archive files put together byte by byte, the header filled in as the writer would: for the
// tests that forge a file and for the archive fuzzer.
#include <cls_Archive.h>

#include <cstdint>
#include <string>
#include <string_view>

// The header's checksum, one bit at a time.
inline std::uint32_t BitwiseCrc(std::string_view bytes) {
  std::uint32_t crc = 0xFFFFFFFFu;
  for (unsigned char b : bytes) {
    crc ^= b;
    for (int k = 0; k < 8; ++k) crc = (crc & 1) ? 0xEDB88320u ^ (crc >> 1) : crc >> 1;
  }
  return ~crc;
}

// value's low bytes, least significant first, as the header holds its numbers.
inline std::string LittleEndian(std::uint64_t value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) text += static_cast<char>(value >> 8 * i);
  return text;
}

// A file of the given version around payload.
inline std::string FileOf(std::uint32_t version, std::string_view payload) {
  return cls_Archive().ToBytes().substr(0, 8) + LittleEndian(version, 4) +
         LittleEndian(BitwiseCrc(payload), 4) + LittleEndian(payload.size(), 8) +
         std::string(payload);
}
