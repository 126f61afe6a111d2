#pragma once
/// \addtogroup basic
/// @{

/// \class cls_Archive
/// A set of persisted records, written through cls_WriteVisitor and read through
/// cls_ReadVisitor, kept in memory or in an archive file. The file is versioned and
/// checksummed; Save writes a temporary file and renames it into place, so a failed save
/// leaves the old file intact. A truncated, corrupt or foreign file raises nex_TextException
/// saying what is wrong and where.
#include <BASIC_Export.h>
#include <cls_ReadVisitor.h>
#include <cls_WriteVisitor.h>

#include <filesystem>
#include <iosfwd>
#include <map>
#include <string>
#include <string_view>

///
/// Threads: an archive being written belongs to one thread; once written (or loaded), any
/// number of threads may read it at once, since reading changes nothing.
class BASIC_EXPORT cls_Archive {
public:
  /// The newest file format version; the library reads it and every earlier one. Version 2
  /// stores a block of doubles (cls_Value::Doubles) as one run of 8-byte numbers; an archive
  /// holding no such block is written as version 1, byte for byte as before.
  static constexpr std::uint32_t Version = 2;
  static constexpr int MaxDepth = 200;  ///< nesting of records and lists

  cls_Archive() = default;
  /// Movable: the moved-from archive is left empty.
  ///@{
  cls_Archive(cls_Archive&&) noexcept = default;
  cls_Archive& operator=(cls_Archive&&) noexcept = default;
  ///@}
  /// Not copyable.
  ///@{
  cls_Archive(const cls_Archive&) = delete;
  cls_Archive& operator=(const cls_Archive&) = delete;
  ///@}

  /// Writing: one top-level record per writer. An Add that raises adds nothing.
  cls_WriteVisitor NewRoot();
  /// Writes object as a new top-level record through its DBWrite.
  template <class T>
  void Add(const T& object) {
    try {
      object.DBWrite(NewRoot());
    } catch (...) {
      m_Roots.pop_back();
      throw;
    }
  }

  /// Reading.
  int RootCount() const noexcept { return static_cast<int>(m_Roots.size()); }
  /// Top-level record index as a value, and a reader on it; an index out of range raises
  /// nex_TextException.
  ///@{
  const cls_Value& RootValue(int index) const;
  cls_ReadVisitor Root(int index) const;
  ///@}
  /// The object of top-level record index, built through the registry; owned by the caller.
  template <class T>
  std::unique_ptr<T> Read(int index) const {
    return Root(index).ReadObject<T>(RootValue(index));
  }
  /// The first record read from a file with a uid, or null (written records refer to none).
  const cls_Record* FindUid(cls_Uid uid) const noexcept;

  /// The file form. Costs time linear in the size: a block of doubles is copied once, at
  /// memory speed, and checksummed at several GB/s.
  std::string ToBytes() const;
  /// Reads the file form, of this Version or an earlier one; origin names the source in error
  /// messages. Costs the same as ToBytes.
  static cls_Archive FromBytes(std::string_view bytes, std::string_view origin = "memory");
  /// Save replaces the file at path, or the file a symbolic link there points to (the link
  /// stays), keeping its permission bits; a crash at any moment leaves the old or the new file
  /// complete, and a failed save leaves the old file and no temporary file. Load reads only a
  /// regular file of at most MaxFileBytes (1 GiB). Either raises nex_TextException naming the
  /// path and the system's reason ("archive 'a.cvxarch': cannot be written: No space left on
  /// device"); a directory, device or FIFO is refused untouched.
  ///@{
  static constexpr std::uintmax_t MaxFileBytes = std::uintmax_t{1} << 30;
  void Save(const std::filesystem::path& path) const;
  static cls_Archive Load(const std::filesystem::path& path);
  ///@}
  /// A readable listing of every record, for people.
  void Dump(std::ostream& out) const;

private:
  friend class cls_WriteVisitor;
  friend class cls_ArchiveCodec;
  bool Claim(const cls_Uid& uid, cls_Record* record);

  std::vector<std::unique_ptr<cls_Value>> m_Roots;  ///< stable addresses for writers' slots
  std::map<cls_Uid, cls_Record*> m_ByUid;
};

/// @}
