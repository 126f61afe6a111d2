// Every kind of value in one archive file, read back as its own class, equal, and writing the
// same bytes (so no field was dropped or defaulted), tuples of plain doubles as one block of
// eight bytes a number; with CVX_FUZZ_SEEDS set, each archive is also written there as a seed
// for the archive fuzzer. Dictionaries, wrappers, lists of dictionaries and double arrays also go
// through tests/mdl/ArchiveIdentityTest.cpp.
#include "OmuTestSupport.h"

#include <mdl_Model.h>
#include <mdl_PropertyTable.h>
#include <omu_PrimArray.h>
#include <omu_PrimComplex.h>
#include <omu_PrimEnum.h>
#include <omu_PrimExpr.h>
#include <omu_PrimNone.h>
#include <omu_PrimPath.h>
#include <omu_PrimTranslatedString.h>
#include <omu_PrimType.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <vector>

namespace {
// A value, and for a sequence whether its tuple level holds its elements as one block of doubles.
struct Case {
  std::unique_ptr<const omu_Primitive> value;
  int block = -1;  // -1: not a sequence
};

std::vector<Case> Values() {
  std::vector<Case> values;
  auto add = [&](const omu_Primitive& value, int block = -1) {
    values.push_back({std::unique_ptr<const omu_Primitive>(value.Copy()), block});
  };
  StrDict members('{', 'm');
  members.Put(cow_List<int>{1, 2}, "ids");
  members.Put(omi_complex(0, 1), "i");
  add(members);
  add(members);                  // the same entries: written once, then referred to
  omu_PrimList list(4, 6, '(');  // two empty slots too
  list.Put(omu_PrimPath({"mdb", "models"}, 'r'));
  list.Put(omu_OnOffConst(true));
  add(list, 0);
  omu_PrimTuple tuple(4);
  tuple.Put(1.5);
  tuple.Put("it's \"x\"\n");
  tuple.Put(ListOf({1, 2}));
  tuple.Put(new omu_PrimBoolean(false));
  add(tuple, 0);
  // Only numbers that hold nothing but a double go into a block: a float, an int or an empty
  // slot keeps the tuple a record per element.
  add(TupleOf({new omu_PrimNumber(0.1), new omu_PrimNumber(1e300)}), 1);
  omu_PrimList doubles(2, 3, '(');
  doubles.Put(1.5);
  doubles.Put(-0.0);
  add(doubles, 1);
  add(TupleOf({new omu_PrimNumber(0.1), new omu_PrimNumber(2.5f)}), 0);
  add(TupleOf({new omu_PrimNumber(0.1), new omu_PrimNumber(2)}), 0);
  omu_PrimTuple gap(2);
  gap.Put(1.0);
  add(gap, 0);
  add(omu_PrimTuple(0), 0);
  const int dims[] = {2, 2};
  const int ints[] = {1, -2, 3, 4};
  const float floats[] = {0.5f, 1, 2, 3};
  const omu_PrimArray intArray(2, dims, omu_PrimNumber::INT, ints);
  add(intArray);
  add(omu_PrimArray(2, dims, floats));
  values.push_back(
      {std::unique_ptr<const omu_Primitive>(intArray.Index(1))});  // shares its numbers
  IntDict numbers;
  numbers.Put(new omu_PrimNone(), 5);
  numbers.Put(2.5f, -1);
  add(numbers);
  add(omu_PrimNumber(-5, omu_PrimNumber::SHORT));
  add(omu_PrimNumber(7, omu_PrimNumber::SCHAR));
  add(omu_PrimNumber(4000000000u));
  add(omu_PrimTranslatedString(atr_String("Hello")));
  add(omu_PrimComplex(omi_complex(1.5, -2)));
  add(omu_PrimExpr("a*b"));
  add(omu_PrimType("Sketch"));
  add(omu_TrueFalseConst(true));
  add(omu_PrimEnum<mdl_Model::FormulationEnm, 1>(mdl_Model::SCATTERED));
  return values;
}

// Whether the tuple level of an archived sequence holds its elements as one block of doubles.
bool WrittenAsBlock(const omu_Primitive& value) {
  cls_Archive archive;
  value.DBWrite(archive.NewRoot());
  cls_ReadVisitor level = archive.Root(0);
  if (level.TypeId() != omu_PrimTuple::TypeId()) {
    level = cls_ReadVisitor(level, omu_PrimTuple::TypeId());
  }
  return level.Field("primVector").AsDoubles().has_value();
}
}  // namespace

TEST(ValueArchive, EveryKindReadsBackAsItWasWritten) {
  const auto values = Values();
  cls_Archive archive;
  for (const Case& c : values) c.value->DBWrite(archive.NewRoot());
  const cls_Archive loaded = SaveAndLoad(archive, "values");
  ASSERT_EQ(loaded.RootCount(), static_cast<int>(values.size()));
  for (int i = 0; i < loaded.RootCount(); ++i) {
    const Case& c = values[static_cast<std::size_t>(i)];
    const omu_Primitive& value = *c.value;
    const auto back = loaded.Read<omu_Primitive>(i);
    ASSERT_NE(back, nullptr) << i;
    EXPECT_EQ(back->DynTypeId(), value.DynTypeId()) << Text(value);
    EXPECT_TRUE(*back == value) << Text(value);
    EXPECT_EQ(SoloBytes(*back), SoloBytes(value)) << Text(value);
    if (c.block >= 0) {
      EXPECT_EQ(WrittenAsBlock(value), c.block == 1) << Text(value);
    }
  }
  if (const char* folder = std::getenv("CVX_FUZZ_SEEDS")) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      std::ofstream(std::string(folder) + "/values-" + std::to_string(i), std::ios::binary)
          << SoloBytes(*values[i].value);
    }
    std::ofstream(std::string(folder) + "/values-all", std::ios::binary) << archive.ToBytes();
  }
}

// Written by format version 1, which stored a record per number: a table and a tuple.
TEST(ValueArchive, ArchivesOfFormatVersionOneStillLoad) {
  const cls_Archive loaded = cls_Archive::Load(CVX_TEST_FIXTURES "/table-and-tuple-v1.cvxarch");
  ASSERT_EQ(loaded.RootCount(), 2);
  const double values[] = {0.1, -2.5, 1e300, -0.0, 5e-324, 42};
  cow_2DArray<double> cells(2, 3);
  omu_PrimTuple tuple(6);
  for (int i = 0; i < 6; ++i) {
    cells.Set(i / 3, i % 3, values[i]);
    tuple.Put(values[i]);
  }
  EXPECT_EQ(*loaded.Read<mdl_PropertyTable>(0), mdl_PropertyTable(cells));
  const auto back = loaded.Read<omu_PrimTuple>(1);
  EXPECT_TRUE(*back == tuple);
  EXPECT_TRUE(std::signbit(dynamic_cast<const omu_PrimNumber&>(*back->Index(3)).Value()));
  EXPECT_EQ(SoloBytes(*back), SoloBytes(tuple));
}

// A block of doubles is read from the tuple only when the archive is encoded: the archive must
// still hold the tuple as it was added, across more than one page of the encoder's copying.
TEST(ValueArchive, TupleChangedAfterItWasAddedIsSavedAsAdded) {
  constexpr int kSize = 1500;
  omu_PrimTuple tuple(kSize);
  for (int i = 0; i < kSize; ++i) tuple.Put(i * 0.25);
  const omu_PrimTuple added(tuple);
  EXPECT_TRUE(WrittenAsBlock(added));  // a long tuple too, at eight bytes a number
  cls_Archive archive;
  archive.Add(tuple);
  tuple.Reset(kSize);
  for (int i = 0; i < kSize; ++i) tuple.Put(-1.0);

  EXPECT_TRUE(*archive.Read<omu_PrimTuple>(0) == added) << "read from memory";
  EXPECT_TRUE(*cls_Archive::FromBytes(archive.ToBytes()).Read<omu_PrimTuple>(0) == added)
      << "read from bytes";
}
