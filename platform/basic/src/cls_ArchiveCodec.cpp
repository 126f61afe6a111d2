#include "cls_ArchiveCodec.h"
#include "cls_Crc32.h"

#include <cls_MetadataRegistrar.h>
#include <nex_TextException.h>

#include <algorithm>
#include <bit>
#include <cstring>
#include <ostream>
#include <unordered_map>

namespace {
constexpr const char* kSource = "cls/impl/cls_ArchiveCodec";

// The unsigned integer of T's size, in which numbers are stored little-endian.
template <class T>
using Bits = std::make_unsigned_t<
    std::conditional_t<std::is_floating_point_v<T>,
                       std::conditional_t<sizeof(T) == 8, std::int64_t, std::int32_t>, T>>;

template <class U>
U LittleEndian(U bits) noexcept {
  if constexpr (std::endian::native == std::endian::little || sizeof(U) == 1) {
    return bits;
  } else {
    U swapped = 0;
    for (std::size_t i = 0; i < sizeof(U); ++i) {
      swapped = U(swapped << 8 | (bits >> (8 * i) & 0xFFu));
    }
    return swapped;
  }
}

// Numbers the identities of one archive file 1, 2, ... in write order, so its bytes depend
// only on what is saved, and finds the earlier record that a record is identical to.
class LocalIds {
public:
  // The number of the record a reference points to.
  std::uint64_t OfReference(cls_Uid uid) {
    if (uid.IsNull()) return 0;
    Written& written = m_Written[uid.Value()];
    if (written.first == 0) written.first = ++m_Last;
    return written.first;
  }
  // The record's number, and whether an identical record was written under it already.
  std::pair<std::uint64_t, bool> OfRecord(const cls_Record& record) {
    if (record.uid.IsNull()) return {0, false};
    Written& written = m_Written[record.uid.Value()];
    for (const auto& [earlier, id] : written.records) {
      if (Identical(*earlier, record)) return {id, true};
    }
    // A copy changed since the first record of its uid gets a number of its own.
    const std::uint64_t id =
        written.records.empty() && written.first != 0 ? written.first : ++m_Last;
    if (written.first == 0) written.first = id;
    written.records.emplace_back(&record, id);
    return {id, false};
  }

private:
  struct Written {
    std::uint64_t first = 0;  // what references to the uid point to
    std::vector<std::pair<const cls_Record*, std::uint64_t>> records;
  };
  std::unordered_map<std::uint64_t, Written> m_Written;
  std::uint64_t m_Last = 0;
};

// The cells a shape of non-negative sides holds, without overflow.
std::uint64_t CellCount(int rows, int columns) noexcept {
  return static_cast<std::uint64_t>(rows) * static_cast<std::uint64_t>(columns);
}

class Encoder {
public:
  std::string bytes;
  bool blocks = false;  // a block of doubles was written: the file needs version 2

  template <class T>
  void Put(T value) {
    const auto bits = LittleEndian(std::bit_cast<Bits<T>>(value));
    bytes.append(reinterpret_cast<const char*>(&bits), sizeof bits);
  }
  // Room for a block and the few fields after it, so that a large block is not copied again
  // into a buffer of twice its size; the capacity still at least doubles, as appends grow it.
  void Reserve(std::size_t blockBytes) {
    const std::size_t needed = bytes.size() + blockBytes + 4096;
    if (needed > bytes.capacity()) bytes.reserve(std::max(needed, 2 * bytes.capacity()));
  }
  void Text(std::string_view text) {
    Put(static_cast<std::uint32_t>(text.size()));
    bytes.append(text);
  }
  void Value(const cls_Value& value) {
    if (const auto* record = value.As<std::shared_ptr<cls_Record>>()) return Record(**record);
    const cls_Value::Kind kind = value.GetKind();
    bytes.push_back(
        static_cast<char>(kind == cls_Value::DOUBLES_SOURCE ? cls_Value::DOUBLES : kind));
    std::visit([this](const auto& data) { Data(data); }, value.GetData());
  }

private:
  void Record(const cls_Record& record) {
    const auto [id, written] = m_Ids.OfRecord(record);
    if (written) {
      bytes.push_back(static_cast<char>(cls_Value::REF));
      Put<std::uint64_t>(id);
      return;
    }
    bytes.push_back(static_cast<char>(cls_Value::RECORD));
    Put<std::uint32_t>(record.typeId);
    Put<std::uint64_t>(id);
    Value(record.parent);
    Put(static_cast<std::uint32_t>(record.fields.size()));
    for (const auto& [name, value] : record.fields) {
      Text(name.View());
      Value(value);
    }
  }

  void Data(std::monostate) {}
  void Data(bool b) { Put<std::uint8_t>(b ? 1 : 0); }
  void Data(char c) { Put(static_cast<std::uint8_t>(c)); }
  template <class N>
  requires std::is_arithmetic_v<N>
  void Data(N number) { Put(number); }
  void Data(const cow_String& text) { Text(text.View()); }
  void Data(const cls_EnumName& name) { Text(name.name.View()); }
  void Data(const cls_Value::List& items) {
    Put(static_cast<std::uint32_t>(items.size()));
    for (const cls_Value& item : items) Value(item);
  }
  void Data(const cls_Matrix& matrix) {
    // A shape its cells do not fill would be written and then refused on reading: the save
    // fails instead, so no file is replaced by one that cannot be read back.
    if (matrix.rows < 0 || matrix.columns < 0 ||
        matrix.cells.size() != CellCount(matrix.rows, matrix.columns)) {
      NEX_THROW(nex_TextException(
                    atr_StringBase::Format("archive: an array of %d x %d cannot hold %zu cells",
                                           matrix.rows, matrix.columns, matrix.cells.size())),
                kSource);
    }
    Put<std::int32_t>(matrix.rows);
    Put<std::int32_t>(matrix.columns);
    for (const cls_Value& cell : matrix.cells) Value(cell);
  }
  void Data(const cls_Value::Doubles& block) {
    StartBlock(block.Rows(), block.Columns());
    Append(block.Cells().data(), block.Cells().size());
  }
  // The source's numbers go straight into the file form, a page at a time, so that no copy of
  // them is held beside it.
  void Data(const std::shared_ptr<const cls_DoublesSource>& source) {
    const std::size_t cells = StartBlock(source->Rows(), source->Columns());
    double page[512];
    for (std::size_t first = 0; first < cells; first += std::size(page)) {
      const std::size_t count = std::min(cells - first, std::size(page));
      source->CopyTo(first, count, page);
      Append(page, count);
    }
  }
  // A block's shape, and room for its cells; answers their count.
  std::size_t StartBlock(int rows, int columns) {
    blocks = true;
    Put<std::int32_t>(rows);
    Put<std::int32_t>(columns);
    const std::size_t cells = CellCount(rows, columns);
    Reserve(cells * sizeof(double));
    return cells;
  }
  void Append(const double* cells, std::size_t count) {
    if constexpr (std::endian::native == std::endian::little) {
      bytes.append(reinterpret_cast<const char*>(cells), count * sizeof(double));
    } else {
      for (std::size_t i = 0; i < count; ++i) Put(cells[i]);
    }
  }
  void Data(const std::shared_ptr<cls_Record>&) {}  // written by Record
  void Data(const cls_Ref& ref) { Put<std::uint64_t>(m_Ids.OfReference(ref.uid)); }

  LocalIds m_Ids;
};

class Decoder {
public:
  Decoder(std::string_view bytes, std::string_view origin, std::size_t offset, cls_Archive& archive,
          bool (*claim)(cls_Archive&, const cls_Uid&, cls_Record*))
      : m_Bytes(bytes), m_Origin(origin), m_Base(offset), m_Archive(archive), m_Claim(claim) {}

  // The file's version: what it may hold.
  std::uint32_t version = cls_Archive::Version;

  [[noreturn]] void Fail(const char* what) const {
    NEX_THROW(nex_TextException(atr_StringBase::Format("archive '%.*s': %s at byte %zu",
                                                       static_cast<int>(m_Origin.size()),
                                                       m_Origin.data(), what, m_Base + m_At)),
              kSource);
  }

  template <class T>
  T Get() {
    Need(sizeof(T));
    Bits<T> bits;
    std::memcpy(&bits, m_Bytes.data() + m_At, sizeof bits);
    m_At += sizeof bits;
    return std::bit_cast<T>(LittleEndian(bits));
  }
  // A count of items that each take at least one byte: more than the bytes left is corrupt.
  std::size_t Count() {
    const auto count = Get<std::uint32_t>();
    if (count > m_Bytes.size() - m_At) Fail("a count larger than the data left");
    return count;
  }
  cow_String Text() {
    const auto length = Get<std::uint32_t>();
    Need(length);
    cow_String text(std::string_view(m_Bytes.data() + m_At, length));
    m_At += length;
    return text;
  }
  cls_Value Value(int depth) {
    if (depth > cls_Archive::MaxDepth) Fail("values nest too deeply");
    const auto kind = static_cast<cls_Value::Kind>(Get<std::uint8_t>());
    switch (kind) {
      case cls_Value::NONE:
        return {};
      case cls_Value::BOOL:
        return Bool();
      case cls_Value::CHAR:
        return static_cast<char>(Get<std::uint8_t>());
      case cls_Value::INT:
        return Get<std::int32_t>();
      case cls_Value::UINT:
        return Get<std::uint32_t>();
      case cls_Value::DOUBLE:
        return Get<double>();
      case cls_Value::FLOAT:
        return Get<float>();
      case cls_Value::INT64:
        return Get<std::int64_t>();
      case cls_Value::TEXT:
        return Text();
      case cls_Value::ENUM:
        return cls_EnumName{Text()};
      case cls_Value::LIST:
        return List(depth);
      case cls_Value::MATRIX:
        return Matrix(depth);
      case cls_Value::RECORD:
        return Record(depth);
      case cls_Value::REF:
        return cls_Ref{Fresh(Get<std::uint64_t>())};
      case cls_Value::DOUBLES:
        if (version >= 2) return Doubles();
        break;
      case cls_Value::DOUBLES_SOURCE:
        break;  // never in a file
    }
    --m_At;
    Fail("an unknown value kind");
  }
  bool AtEnd() const noexcept { return m_At == m_Bytes.size(); }

private:
  void Need(std::size_t n) const {
    if (n > m_Bytes.size() - m_At) Fail("the data ends early (truncated)");
  }
  // The process's own identity for an identity of the file: objects that shared one in the
  // file share one again, and none collides with an object the process made itself.
  cls_Uid Fresh(std::uint64_t fileUid) {
    if (fileUid == 0) return {};
    const auto [at, added] = m_Fresh.try_emplace(fileUid);
    if (added) at->second = cls_Uid::AllocateUid();
    return at->second;
  }
  cls_Value Bool() {
    const auto b = Get<std::uint8_t>();
    if (b > 1) Fail("a bool that is neither 0 nor 1");
    return b == 1;
  }
  cls_Value List(int depth) {
    cls_Value::List items(Count());
    for (cls_Value& item : items) item = Value(depth + 1);
    return items;
  }
  cls_Value Matrix(int depth) {
    cls_Matrix matrix;
    matrix.rows = Get<std::int32_t>();
    matrix.columns = Get<std::int32_t>();
    if (matrix.rows < 0 || matrix.columns < 0) Fail("an array of negative size");
    const std::uint64_t cells = CellCount(matrix.rows, matrix.columns);
    if (cells > m_Bytes.size() - m_At) Fail("an array larger than the data left");
    matrix.cells.resize(static_cast<std::size_t>(cells));
    for (cls_Value& cell : matrix.cells) cell = Value(depth + 1);
    return matrix;
  }
  cls_Value Doubles() {
    const auto rows = Get<std::int32_t>();
    const auto columns = Get<std::int32_t>();
    if (rows < 0 || columns < 0) Fail("an array of negative size");
    const std::uint64_t cells = CellCount(rows, columns);
    if (cells > (m_Bytes.size() - m_At) / sizeof(double)) {
      Fail("an array larger than the data left");
    }
    cls_Value::Doubles block(rows, columns);
    std::vector<double>& values = block.MutableCells();
    if constexpr (std::endian::native == std::endian::little) {
      if (cells != 0) std::memcpy(values.data(), m_Bytes.data() + m_At, cells * sizeof(double));
      m_At += cells * sizeof(double);
    } else {
      for (double& value : values) value = Get<double>();
    }
    return block;
  }
  cls_Value Record(int depth) {
    auto record = std::make_shared<cls_Record>();
    record->typeId = Get<std::uint32_t>();
    record->uid = Fresh(Get<std::uint64_t>());
    m_Claim(m_Archive, record->uid, record.get());
    record->parent = Value(depth + 1);
    const auto parentKind = record->parent.GetKind();
    if (parentKind != cls_Value::NONE && parentKind != cls_Value::RECORD &&
        parentKind != cls_Value::REF) {
      Fail("a parent level that is not an object");
    }
    record->fields.resize(Count());
    for (auto& [name, value] : record->fields) {
      name = Text();
      value = Value(depth + 1);
    }
    return record;
  }

  std::string_view m_Bytes;
  std::string_view m_Origin;
  std::size_t m_Base;
  std::size_t m_At = 0;
  cls_Archive& m_Archive;
  bool (*m_Claim)(cls_Archive&, const cls_Uid&, cls_Record*);
  std::unordered_map<std::uint64_t, cls_Uid> m_Fresh;
};

cow_String ClassLabel(unsigned int typeId) {
  if (const cls_ClassMetadata* metadata =
          cls_MetadataRegistrar::Instance().Registrar().Find(typeId)) {
    return atr_StringBase::Format("%s (0x%x)", metadata->Name().CStr(), typeId);
  }
  return atr_StringBase::Format("class 0x%x", typeId);
}

void DumpValue(const cls_Value& value, std::ostream& out, int indent);

void DumpRecord(const cls_Record& record, std::ostream& out, int indent) {
  out << ClassLabel(record.typeId).View() << " uid " << record.uid.Value() << '\n';
  const std::string pad(static_cast<std::size_t>(indent + 2), ' ');
  if (record.parent.GetKind() != cls_Value::NONE) {
    out << pad << "(parent) ";
    DumpValue(record.parent, out, indent + 2);
  }
  for (const auto& [name, value] : record.fields) {
    out << pad << name.View() << " = ";
    DumpValue(value, out, indent + 2);
  }
}

struct DumpVisitor {
  std::ostream& out;
  int indent;
  void operator()(std::monostate) const { out << "none\n"; }
  void operator()(bool b) const { out << (b ? "true" : "false") << '\n'; }
  void operator()(char c) const { out << '\'' << c << "'\n"; }
  void operator()(double d) const { out << atr_StringBase(d).View() << '\n'; }
  void operator()(float f) const { out << atr_StringBase(static_cast<double>(f)).View() << "f\n"; }
  template <class N>
  requires std::is_integral_v<N>
  void operator()(N n) const { out << n << '\n'; }
  void operator()(const cow_String& text) const { out << '"' << text.View() << "\"\n"; }
  void operator()(const cls_EnumName& name) const { out << name.name.View() << '\n'; }
  void operator()(const cls_Value::List& items) const {
    out << "list of " << items.size() << '\n';
    Items(items);
  }
  void operator()(const cls_Matrix& matrix) const {
    out << "array " << matrix.rows << " x " << matrix.columns << '\n';
    Items(matrix.cells);
  }
  void operator()(const cls_Value::Doubles& block) const {
    out << "array " << block.Rows() << " x " << block.Columns() << " of doubles\n";
    const std::string pad(static_cast<std::size_t>(indent + 2), ' ');
    for (std::size_t i = 0; i < block.Cells().size(); ++i) {
      out << pad << '[' << i << "] " << atr_StringBase(block.Cells()[i]).View() << '\n';
    }
  }
  void operator()(const std::shared_ptr<const cls_DoublesSource>& source) const {
    (*this)(*cls_Value(source).AsDoubles());
  }
  void operator()(const std::shared_ptr<cls_Record>& record) const {
    DumpRecord(*record, out, indent);
  }
  void operator()(const cls_Ref& ref) const { out << "-> uid " << ref.uid.Value() << '\n'; }
  void Items(const std::vector<cls_Value>& items) const {
    const std::string pad(static_cast<std::size_t>(indent + 2), ' ');
    for (std::size_t i = 0; i < items.size(); ++i) {
      out << pad << '[' << i << "] ";
      DumpValue(items[i], out, indent + 2);
    }
  }
};

void DumpValue(const cls_Value& value, std::ostream& out, int indent) {
  std::visit(DumpVisitor{out, indent}, value.GetData());
}
}  // namespace

std::string cls_ArchiveCodec::Encode(const cls_Archive& archive) {
  // The header goes in front of the payload in the same buffer, filled in once the payload's
  // size and checksum are known, so the payload is never copied.
  Encoder file;
  file.bytes.resize(HeaderSize);
  file.Put(static_cast<std::uint32_t>(archive.m_Roots.size()));
  for (const auto& root : archive.m_Roots) file.Value(*root);
  const std::string_view payload = std::string_view(file.bytes).substr(HeaderSize);

  Encoder header;
  header.bytes.append(Magic, sizeof Magic);
  header.Put<std::uint32_t>(file.blocks ? cls_Archive::Version : 1);
  header.Put<std::uint32_t>(cls_Crc32(payload));
  header.Put<std::uint64_t>(payload.size());
  file.bytes.replace(0, HeaderSize, header.bytes);
  return std::move(file.bytes);
}

cls_Archive cls_ArchiveCodec::Decode(std::string_view bytes, std::string_view origin) {
  cls_Archive archive;
  auto claim = [](cls_Archive& a, const cls_Uid& uid, cls_Record* record) {
    return a.Claim(uid, record);
  };
  Decoder header(bytes, origin, 0, archive, claim);
  if (bytes.size() < sizeof Magic || std::memcmp(bytes.data(), Magic, sizeof Magic) != 0) {
    header.Fail("not an archive of this library (bad magic)");
  }
  (void)header.Get<std::uint64_t>();  // the magic
  const auto version = header.Get<std::uint32_t>();
  if (version < 1 || version > cls_Archive::Version) header.Fail("an unsupported format version");
  const auto checksum = header.Get<std::uint32_t>();
  const auto size = header.Get<std::uint64_t>();
  if (size != bytes.size() - HeaderSize) {
    header.Fail(size > bytes.size() - HeaderSize ? "the file ends early (truncated)"
                                                 : "extra bytes after the data");
  }
  const std::string_view payload = bytes.substr(HeaderSize);
  if (cls_Crc32(payload) != checksum) header.Fail("the checksum does not match (corrupt file)");

  Decoder decoder(payload, origin, HeaderSize, archive, claim);
  decoder.version = version;
  const std::size_t roots = decoder.Count();
  for (std::size_t i = 0; i < roots; ++i) {
    archive.m_Roots.push_back(std::make_unique<cls_Value>(decoder.Value(0)));
  }
  if (!decoder.AtEnd()) decoder.Fail("extra bytes after the last record");
  return archive;
}

void cls_ArchiveCodec::Dump(const cls_Archive& archive, std::ostream& out) {
  out << "archive of " << archive.RootCount() << " record(s)\n";
  for (int i = 0; i < archive.RootCount(); ++i) {
    out << '[' << i << "] ";
    DumpValue(archive.RootValue(i), out, 0);
  }
}
