#include <QRLCvuBasicUtils.h>
#include <cls_Archive.h>
#include <gtest/gtest.h>
#include <nex_AssertException.h>
#include <nex_TextException.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <sstream>
#include <vector>

#include "ArchiveBytes.h"
#include "OnThreads.h"
#include "RaisedText.h"
#include "TestArchive.h"

namespace {
class BasicLibrary : public ::testing::Environment {
public:
  void SetUp() override { QRLCvuBasicUtils_initialize(m_Count); }
  void TearDown() override { QRLCvuBasicUtils_finalize(m_Count); }

private:
  int m_Count = 0;
};
const auto* const g_Basic = ::testing::AddGlobalTestEnvironment(new BasicLibrary);

// A record of every value kind, written the way a class level writes itself.
struct AllKinds {
  static unsigned int TypeId() { return 0x7fff0001u; }
  void DBWrite(const cls_WriteVisitor& w) const {
    if (!w.StartWrite(TypeId(), cls_Uid(42))) return;
    w.Write("bool", true);
    w.Write("char", 'q');
    w.Write("int", -7);
    w.Write("uint", 4000000000u);
    w.Write("int64", static_cast<std::int64_t>(-1) << 40);
    w.Write("float", 1.5f);
    w.Write("nan", std::bit_cast<double>(0x7ff8000000000abcull));
    w.Write("minusZero", -0.0);
    w.Write("tiny", std::numeric_limits<double>::denorm_min());
    w.Write("text", "with \"quotes\"\nand a newline");
    w.WriteEnum("state", "UNCHANGED");
    w.Write("list", cls_Value::List{1, 2.5, cow_String("x")});
    w.Write("matrix", cls_Matrix{2, 1, {cls_Value(1.0), cls_Value(2.0)}});
    w.WriteObject("error", nex_TextException("nested"));
  }
};

std::string MessageOf(std::string_view bytes) {
  return RaisedText([bytes] { cls_Archive::FromBytes(bytes, "test"); });
}
}  // namespace

TEST(Archive, EveryValueKindRoundTripsBitForBit) {
  cls_Archive archive;
  archive.Add(AllKinds());
  const cls_Archive loaded = SaveAndLoad(archive, "allkinds");
  const cls_ReadVisitor r = loaded.Root(0);
  EXPECT_EQ(r.TypeId(), AllKinds::TypeId());
  EXPECT_FALSE(r.Uid().IsNull());
  EXPECT_TRUE(r.Get<bool>("bool"));
  EXPECT_EQ(r.Get<char>("char"), 'q');
  EXPECT_EQ(r.Get<int>("int"), -7);
  EXPECT_EQ(r.Get<unsigned int>("uint"), 4000000000u);
  EXPECT_EQ(r.Get<long long>("int64"), -(1ll << 40));
  EXPECT_EQ(r.Get<float>("float"), 1.5f);
  EXPECT_EQ(std::bit_cast<std::uint64_t>(r.Get<double>("nan")), 0x7ff8000000000abcull);
  EXPECT_TRUE(std::signbit(r.Get<double>("minusZero")));
  EXPECT_EQ(r.Get<double>("tiny"), std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(r.Get<cow_String>("text"), "with \"quotes\"\nand a newline");
  EXPECT_EQ(r.ReadEnum("state"), "UNCHANGED");
  ASSERT_EQ(r.ReadList("list").size(), 3u);
  EXPECT_EQ(*r.ReadList("list")[1].As<double>(), 2.5);
  EXPECT_EQ(r.Field("matrix").As<cls_Matrix>()->rows, 2);
  EXPECT_EQ(r.ReadObject<nex_TextException>("error")->Text(), "nested");
  EXPECT_EQ(loaded.ToBytes(), archive.ToBytes());
  OnThreads(4, [&loaded](int) {  // one archive is read from several threads at once
    for (int i = 0; i < 200; ++i) {
      EXPECT_EQ(loaded.Root(0).ReadObject<nex_TextException>("error")->Text(), "nested");
    }
  });
}

TEST(Archive, ReadingTheWrongFieldSaysWhatAndWhere) {
  cls_Archive archive;
  archive.Add(nex_TextException("t"));
  const cls_ReadVisitor r = archive.Root(0);
  EXPECT_EQ(RaisedText([&] { r.Get<int>("text"); }),
            "archive record nex_TextException (uid 0): field 'text' holds a text, expected an int");
  EXPECT_NE(RaisedText([&] { r.Get<int>("missing"); }), "ok");
  EXPECT_NE(RaisedText([&] { cls_ReadVisitor(r, 0x12345u); }), "ok");  // not its parent
}

TEST(Archive, AUidWrittenTwiceIsStoredOnceUnlessItsContentsDiffer) {
  const auto item = [](const char* text) {
    return ForgedRecord{0x7fff0003u, {{"text", cow_String(text)}}, cls_Uid(9)};
  };
  cls_Archive archive;
  archive.Add(ForgedRecord{0x7fff0002u,
                           {},
                           cls_Uid(),
                           {{"first", item("one object")},
                            {"second", item("one object")},
                            {"changed", item("changed since")}}});
  const cls_Archive loaded = SaveAndLoad(archive, "twice");
  const cls_ReadVisitor r = loaded.Root(0);
  const cls_Uid first = r.Nested("first").Uid();
  EXPECT_EQ(*r.Field("second").As<cls_Ref>(), cls_Ref{first});
  EXPECT_EQ(r.Nested("second").Get<cow_String>("text"), "one object");
  EXPECT_EQ(r.Nested("changed").Get<cow_String>("text"), "changed since");
  EXPECT_NE(r.Nested("changed").Uid(), first);
}

TEST(Archive, EveryClassLevelKeepsItsOwnContents) {
  // Two objects of a two-level class: different outer identities, one inner identity.
  const ForgedRecord inner[] = {{0x7fff0004u, {{"value", 1}}, cls_Uid(5)},
                                {0x7fff0004u, {{"value", 2}}, cls_Uid(5)}};
  cls_Archive archive;
  archive.Add(ForgedRecord{0x7fff0005u, {{"value", 10}}, cls_Uid(7), {}, &inner[0]});
  archive.Add(ForgedRecord{0x7fff0005u, {{"value", 20}}, cls_Uid(8), {}, &inner[1]});
  const cls_Archive loaded = SaveAndLoad(archive, "levels");
  for (int i = 0; i < 2; ++i) {
    const cls_ReadVisitor outer = loaded.Root(i);
    EXPECT_EQ(outer.Get<int>("value"), 10 * (i + 1));
    EXPECT_EQ(cls_ReadVisitor(outer, 0x7fff0004u).Get<int>("value"), i + 1) << "object " << i;
  }
}

TEST(Archive, AnObjectThatWritesItselfIsRefusedBeforeItCannotBeReadBack) {
  struct Loop {
    static unsigned int TypeId() { return nex_TextException::TypeId(); }
    void DBWrite(const cls_WriteVisitor& w) const {
      if (!w.StartWrite(TypeId(), cls_Uid(7))) return;
      w.WriteObject("self", *this);
    }
  };
  cls_Archive archive;
  EXPECT_THROW(archive.Add(Loop()), nex_TextException);
  EXPECT_EQ(archive.RootCount(), 0);
}

TEST(Archive, AnArrayItsCellsDoNotFillIsRefusedBeforeItIsWritten) {
  struct Row {
    cls_Matrix matrix;
    const char* message;
  };
  const Row rows[] = {
      {{2, 2, {1.0, 2.0, 3.0}}, "archive: an array of 2 x 2 cannot hold 3 cells"},
      {{1, 1, {1.0, 2.0}}, "archive: an array of 1 x 1 cannot hold 2 cells"},
      {{-1, 0, {}}, "archive: an array of -1 x 0 cannot hold 0 cells"},
  };
  for (const Row& row : rows) {
    cls_Archive archive;
    archive.Add(ForgedRecord{0x7fff0001u, {{"matrix", row.matrix}}, cls_Uid(43)});
    // Save encodes before it touches the file, so the refusal leaves any old file as it was.
    EXPECT_EQ(RaisedText([&] { archive.ToBytes(); }), row.message);
  }
}

TEST(ArchiveFile, EveryTruncationAndSingleBitFlipIsRefused) {
  cls_Archive archive;
  archive.Add(AllKinds());
  const std::string bytes = archive.ToBytes();
  EXPECT_EQ(MessageOf(bytes), "ok");
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    const std::string message = MessageOf(std::string_view(bytes).substr(0, length));
    ASSERT_TRUE(message.find("truncated") != std::string::npos ||
                message.find("bad magic") != std::string::npos)
        << length << ": " << message;
  }
  for (std::size_t bit = 0; bit < 8 * bytes.size(); ++bit) {
    std::string flipped = bytes;
    flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << bit % 8));
    ASSERT_NE(MessageOf(flipped), "ok") << "byte " << bit / 8 << " bit " << bit % 8;
  }
  std::string corrupt = bytes;
  corrupt.back() ^= 0x10;
  EXPECT_EQ(MessageOf(corrupt),
            "archive 'test': the checksum does not match (corrupt file) at byte 24");
}

TEST(ArchiveFile, DumpNamesClassesAndFields) {
  cls_Archive archive;
  archive.Add(nex_AssertException("x != 0"));
  std::ostringstream dump;
  archive.Dump(dump);
  EXPECT_NE(dump.str().find("nex_AssertException (0x1f0004)"), std::string::npos) << dump.str();
  EXPECT_NE(dump.str().find("condition = \"x != 0\""), std::string::npos) << dump.str();
}

namespace {
// A block's cells handed out as an object's own storage does, to write them the other way.
class BlockSource final : public cls_DoublesSource {
public:
  explicit BlockSource(cls_Value::Doubles block) : m_Block(std::move(block)) {}
  int Rows() const noexcept override { return m_Block.Rows(); }
  int Columns() const noexcept override { return m_Block.Columns(); }
  void CopyTo(std::size_t first, std::size_t count, double* out) const noexcept override {
    std::copy_n(m_Block.Cells().data() + first, count, out);
  }

private:
  cls_Value::Doubles m_Block;
};

cls_Value SourceOf(const cls_Value::Doubles& block) {
  return std::shared_ptr<const cls_DoublesSource>(std::make_shared<BlockSource>(block));
}
}  // namespace

// Shapes on both sides of the checksum's 16- and 64-byte steps and of the encoder's pages of
// numbers, special doubles among the cells; a source of the same cells writes the same bytes.
TEST(Archive, BlocksOfDoublesRoundTripBitForBitAtEightBytesEach) {
  const std::uint64_t specials[] = {0x7ff8000000000abcull, 0x8000000000000000ull, 1,
                                    0x3fb999999999999aull};
  const std::pair<int, int> shapes[] = {{0, 0}, {1, 0}, {1, 1}, {3, 2}, {1, 7}, {9, 13}, {1000, 3}};
  for (const auto& [rows, columns] : shapes) {
    cls_Value::Doubles block(rows, columns);
    std::vector<double>& cells = block.MutableCells();
    for (std::size_t i = 0; i < cells.size(); ++i) {
      cells[i] = std::bit_cast<double>(specials[i % 4] + i / 4);
    }
    cls_Archive archive;
    archive.NewRoot().WriteValue(block);
    const std::string bytes = archive.ToBytes();
    const std::string shape = std::to_string(rows) + " x " + std::to_string(columns);
    EXPECT_EQ(bytes.size(), 24 + 4 + 1 + 8 + 8 * cells.size()) << shape;
    EXPECT_EQ(bytes.substr(12, 4), LittleEndian(BitwiseCrc(bytes.substr(24)), 4)) << shape;
    const cls_Archive loaded = SaveAndLoad(archive, "doubles");
    EXPECT_TRUE(Identical(loaded.RootValue(0), block)) << shape;
    EXPECT_EQ(loaded.ToBytes(), bytes) << shape;
    cls_Archive fromSource;
    fromSource.NewRoot().WriteValue(SourceOf(block));
    EXPECT_EQ(fromSource.ToBytes(), bytes) << shape << " from a source";
    EXPECT_TRUE(Identical(fromSource.RootValue(0), SourceOf(block))) << shape << " two sources";
    EXPECT_TRUE(Identical(*fromSource.RootValue(0).AsDoubles(), block)) << shape << " made";
  }
}

TEST(ArchiveFile, AMalformedBlockOfDoublesIsRefusedWithWhatAndWhere) {
  using namespace std::string_literals;
  const std::string one = "\1\0\0\0"s;
  const std::string kind = "\x0e"s;
  const struct {
    std::uint32_t version;
    std::string payload;
    const char* message;
  } cases[] = {
      {2, one + kind + "\1\0\0\0\2\0\0\0"s + std::string(8, '\0'),
       "archive 'test': an array larger than the data left at byte 37"},
      {2, one + kind + "\xff\xff\xff\xff\1\0\0\0"s,
       "archive 'test': an array of negative size at byte 37"},
      {2, one + kind + "\1\0\0\0"s, "archive 'test': the data ends early (truncated) at byte 33"},
      {1, one + kind + "\0\0\0\0\0\0\0\0"s, "archive 'test': an unknown value kind at byte 28"},
      {3, one + "\0"s, "archive 'test': an unsupported format version at byte 12"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(MessageOf(FileOf(c.version, c.payload)), c.message) << c.message;
  }
}
