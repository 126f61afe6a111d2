// The scripting errors with fields of their own, and those carrying one text, held against
// files an earlier build wrote: the same errors still write the same bytes, those files read
// back to the same errors, and the registry still describes their fields as it did.
#include "LibraryEnvironment.h"
#include "TestArchive.h"

#include <g3d_ColorErrorException.h>
#include <omu_AccessErrorException.h>
#include <omu_ArgNumberErrorException.h>
#include <omu_ArgTypeErrorException.h>
#include <omu_AttributeErrorException.h>
#include <omu_CorNameErrorException.h>
#include <omu_FontErrorException.h>
#include <omu_GuiAccessErrorException.h>
#include <omu_IndexErrorException.h>
#include <omu_KeyErrorException.h>
#include <omu_KeywordErrorException.h>
#include <omu_KeywordTypeErrorException.h>
#include <omu_NameErrorException.h>
#include <omu_OverflowErrorException.h>
#include <omu_RangeErrorException.h>
#include <omu_ValueErrorException.h>
#include <omu_ZeroDivisionErrorException.h>

#include <cls_MetadataRegistrar.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <sstream>

namespace {
const char* const kArchive = "error-fields.cvxarch";
const char* const kMetadata = "error-fields-metadata.txt";

// One error of each class, every field away from its default and distinct from its neighbours,
// so that a field dropped, defaulted or swapped shows.
struct Row {
  std::function<nex_CommandException*()> make;
  const char* message;
};

template <class E, class... Args>
std::function<nex_CommandException*()> Make(Args... args) {
  return [=] { return new E(args...); };
}

const Row kRows[] = {
    {Make<omu_ArgNumberErrorException>(3, 7, "points"),
     "points; too many arguments; expected 3, got 7"},
    {Make<omu_ArgTypeErrorException>(2, "float", "str", "pts"),
     "pts[1]; found str, expecting float"},
    {Make<omu_AttributeErrorException>(1, "name"), "name is read-only"},
    {Make<omu_CorNameErrorException>(3), "invalid model name"},
    {Make<omu_IndexErrorException>(-42), "-42"},
    {Make<omu_KeywordErrorException>("colour", "opts"), "optskeyword error on colour"},
    {Make<omu_KeywordTypeErrorException>("size", "float", "string", "opts"),
     "opts['size']; found string, expecting float"},
    {Make<omu_RangeErrorException>("x", 2, "0", 1, "10", 2),
     "x must be a Float in the range: 0 <= x < 10"},
    {Make<g3d_ColorErrorException>("mauve"), "mauve is not a valid color name."},
    {Make<omu_AccessErrorException>(atr_String("Part-1")), "Part-1 no longer exists"},
    {Make<omu_FontErrorException>(atr_String("Hershey")), "Hershey is not a valid font."},
    {Make<omu_GuiAccessErrorException>(atr_String("no display")), "no display"},
    {Make<omu_KeyErrorException>(atr_String("Steel-2")), "Steel-2"},
    {Make<omu_NameErrorException>(atr_String("frobnicate")), "frobnicate"},
    {Make<omu_OverflowErrorException>(atr_String("2**40")), "2**40"},
    {Make<omu_ValueErrorException>(atr_String("negative")), "negative"},
    {Make<omu_ZeroDivisionErrorException>(atr_String("x / 0")), "x / 0"},
};

std::unique_ptr<nex_CommandException> Made(const Row& row) {
  return std::unique_ptr<nex_CommandException>(row.make());
}

cls_Archive RowsArchive() {
  cls_Archive archive;
  for (const Row& row : kRows) archive.Add(*Made(row));
  return archive;
}

std::string SoloBytes(const nex_CommandException& error) {
  cls_Archive archive;
  archive.Add(error);
  return archive.ToBytes();
}

// The registry's view of each class: identity, parent, word and every attribute descriptor.
std::string MetadataText() {
  const cls_ClassRegistrar& registry = cls_MetadataRegistrar::Instance().Registrar();
  std::ostringstream text;
  for (const Row& row : kRows) {
    const cls_ClassMetadata& md = registry.Get(Made(row)->DynTypeId());
    text << md.Name().View() << std::hex << " type 0x" << md.TypeId() << " parent 0x"
         << md.ParentTypeId() << std::dec << " word " << md.MetadataWord() << " extra "
         << md.Extra() << " abstract " << md.IsAbstract() << '\n';
    for (const cls_Attribute& a : md.Attributes()) {
      text << "  " << a.ordinal << ' ' << a.name.View() << " kind " << a.kind << " type "
           << a.typeArgument << " flags " << a.flags << '\n';
    }
  }
  return text.str();
}

std::string Fixture(const char* name) {
  std::ifstream in(std::filesystem::path(CVX_TEST_FIXTURES) / name, std::ios::binary);
  EXPECT_TRUE(in) << name;
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

const cls_Record& RootRecord(const cls_Archive& archive) {
  return **archive.RootValue(0).As<std::shared_ptr<cls_Record>>();
}
}  // namespace

TEST(ErrorFieldsArchive, TheSameErrorsWriteTheBytesOfTheFixture) {
  EXPECT_EQ(RowsArchive().ToBytes(), Fixture(kArchive));
}

TEST(ErrorFieldsArchive, TheFixtureReadsBackToTheSameErrors) {
  const cls_Archive loaded = cls_Archive::Load(std::filesystem::path(CVX_TEST_FIXTURES) / kArchive);
  ASSERT_EQ(loaded.RootCount(), static_cast<int>(std::size(kRows)));
  for (int i = 0; i < loaded.RootCount(); ++i) {
    const Row& row = kRows[i];
    const auto madePtr = Made(row);
    const auto backPtr = loaded.Read<nex_CommandException>(i);
    ASSERT_NE(backPtr, nullptr);
    const nex_CommandException& made = *madePtr;
    const nex_CommandException& back = *backPtr;
    const char* name = typeid(made).name();
    ASSERT_EQ(typeid(back), typeid(made)) << name;
    EXPECT_EQ(back.JournalMessage(), row.message) << name;
    EXPECT_EQ(back.PythonType(), made.PythonType()) << name;
    EXPECT_EQ(back.what(), back.DeveloperReport().StdString()) << name << ": what() not fixed";
    // Field by field, as each writes itself again.
    cls_Archive original, again;
    original.Add(made);
    again.Add(back);
    const cls_Record& want = RootRecord(original);
    const cls_Record& got = RootRecord(again);
    ASSERT_EQ(got.fields.size(), want.fields.size()) << name;
    for (std::size_t f = 0; f < want.fields.size(); ++f) {
      EXPECT_EQ(got.fields[f].first, want.fields[f].first) << name;
      EXPECT_TRUE(Identical(got.fields[f].second, want.fields[f].second))
          << name << ": " << want.fields[f].first.View();
    }
    EXPECT_EQ(SoloBytes(back), SoloBytes(made)) << name << ": a parent level differs";
  }
}

TEST(ErrorFieldsArchive, TheRegistryDescribesTheFieldsAsBefore) {
  EXPECT_EQ(MetadataText(), Fixture(kMetadata));
}

// Writes the two fixtures into the folder CVX_SAVE_FIXTURES names; run by hand only.
TEST(ErrorFieldsArchive, SaveFixturesInThisProcess) {
  const char* folder = std::getenv("CVX_SAVE_FIXTURES");
  if (!folder) GTEST_SKIP() << "writes the fixtures when CVX_SAVE_FIXTURES names a folder";
  RowsArchive().Save(std::filesystem::path(folder) / kArchive);
  std::ofstream(std::filesystem::path(folder) / kMetadata, std::ios::binary) << MetadataText();
}
