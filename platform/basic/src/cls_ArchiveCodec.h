#pragma once
// The archive file format, little-endian:
//   "CVXARCH\x1a"  u32 version  u32 CRC-32 of the payload  u64 payload size  payload
// payload: u32 record count, then each top-level value. A value is a one-byte kind
// (cls_Value::Kind) and its data; a record is u32 type id, u64 uid, its parent level as a
// value, u32 field count and the fields as (u32 length, name bytes, value).
// Version 2 adds the kind DOUBLES: i32 rows, i32 columns, then the doubles row by row, 8 bytes
// each, one block with no kind byte per number. A file is written as version 1 unless it holds
// such a block, so archives without one keep their bytes; version 1 files still read.
// Uids in a file are its own: 1, 2, ... in the order records are written (0 is none). A
// record identical to one written earlier under the same uid is stored as a reference to it;
// reading gives each file uid a freshly allocated one.
#include <cls_Archive.h>

#include <iosfwd>
#include <string>
#include <string_view>

class cls_ArchiveCodec {
public:
  static std::string Encode(const cls_Archive& archive);
  static cls_Archive Decode(std::string_view bytes, std::string_view origin);
  static void Dump(const cls_Archive& archive, std::ostream& out);

  static constexpr char Magic[8] = {'C', 'V', 'X', 'A', 'R', 'C', 'H', '\x1a'};
  static constexpr std::size_t HeaderSize = 24;
};
