#include <cls_Archive.h>
#include "cls_ArchiveCodec.h"
#include <nex_TextException.h>

#include <fstream>
#include <iterator>
#include <random>
#include <system_error>

namespace {
constexpr const char* kSource = "cls/impl/cls_Archive";

[[noreturn]] void FileError(const char* what, const std::filesystem::path& path) {
  NEX_THROW(nex_TextException(atr_StringBase::Format("archive '%s': %s", path.string().c_str(),
                                                     what)),
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
    return cls_ReadVisitor(*this, **record);
  }
  if (const cls_Ref* ref = value.As<cls_Ref>()) {
    if (const cls_Record* target = FindUid(ref->uid)) return cls_ReadVisitor(*this, *target);
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
  std::filesystem::path temporary = path;
  temporary += ".tmp" + std::to_string(std::random_device()());
  {
    std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.flush();
    if (!out) {
      std::error_code ignored;
      std::filesystem::remove(temporary, ignored);
      FileError("cannot be written", path);
    }
  }
  std::error_code error;
  std::filesystem::rename(temporary, path, error);
  if (error) {
    std::filesystem::remove(temporary, error);
    FileError("cannot be put in place", path);
  }
}

cls_Archive cls_Archive::Load(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) FileError("cannot be opened", path);
  const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (in.bad()) FileError("cannot be read", path);
  return FromBytes(bytes, path.string());
}

void cls_Archive::Dump(std::ostream& out) const { cls_ArchiveCodec::Dump(*this, out); }
