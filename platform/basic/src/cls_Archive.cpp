#include <cls_Archive.h>
#include <nex_TextException.h>
#include "cls_ArchiveCodec.h"
#include "cls_FileSystem.h"

namespace {
constexpr const char* kSource = "cls/impl/cls_Archive";

// The path as messages show it: UTF-8 everywhere, though Windows keeps paths in UTF-16.
std::string PathText(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

[[noreturn]] void FileError(const char* what, const std::filesystem::path& path) {
  NEX_THROW(
      nex_TextException(atr_StringBase::Format("archive '%s': %s", PathText(path).c_str(), what)),
      kSource);
}
}  // namespace

cls_WriteVisitor cls_Archive::NewRoot() { return cls_WriteVisitor(*this); }

const cls_Value& cls_Archive::RootValue(int index) const {
  if (index < 0 || index >= RootCount()) {
    NEX_THROW(nex_TextException(atr_StringBase::Format(
                  "archive has %d records, there is no record %d", RootCount(), index)),
              kSource);
  }
  return *m_Roots[static_cast<std::size_t>(index)];
}

cls_ReadVisitor cls_Archive::Root(int index) const {
  const cls_Value& value = RootValue(index);
  if (const auto* record = value.As<std::shared_ptr<cls_Record>>()) {
    return {*this, **record};
  }
  if (const auto* ref = value.As<cls_Ref>()) {
    if (const cls_Record* target = FindUid(ref->uid)) return {*this, *target};
  }
  NEX_THROW(nex_TextException(atr_StringBase::Format("archive record %d holds no object", index)),
            kSource);
}

const cls_Record* cls_Archive::FindUid(cls_Uid uid) const noexcept {
  const auto at = m_ByUid.find(uid);
  return at == m_ByUid.end() ? nullptr : at->second;
}

bool cls_Archive::Claim(const cls_Uid& uid, cls_Record* record) {
  return !uid.IsNull() && m_ByUid.emplace(uid, record).second;
}

std::string cls_Archive::ToBytes() const { return cls_ArchiveCodec::Encode(*this); }

cls_Archive cls_Archive::FromBytes(std::string_view bytes, std::string_view origin) {
  return cls_ArchiveCodec::Decode(bytes, origin);
}

void cls_Archive::Save(const std::filesystem::path& path) const {
  const std::string bytes = ToBytes();
  try {
    cls_FileSystem::ReplaceFile(path, bytes);
  } catch (const cls_FileSystem::Failure& failure) {
    FileError(failure.what(), path);
  }
}

cls_Archive cls_Archive::Load(const std::filesystem::path& path) {
  std::string bytes;
  try {
    bytes = cls_FileSystem::ReadFile(path, MaxFileBytes);
  } catch (const cls_FileSystem::Failure& failure) {
    FileError(failure.what(), path);
  }
  return FromBytes(bytes, PathText(path));
}

void cls_Archive::Dump(std::ostream& out) const { cls_ArchiveCodec::Dump(*this, out); }
