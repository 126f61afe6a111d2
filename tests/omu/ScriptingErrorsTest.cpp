// Every scripting error class's message, script type, copy and archive round trip (the other
// message formats are in python/tests/test_errors.py); and the errors with fields of their own
// or one text held against files an earlier build wrote: the same errors still write the same
// bytes, those files read back to the same errors, and the registry describes their fields as
// it did. Last, the messages the range checker builds.
#include "OmuTestSupport.h"

#include <cls_MetadataRegistrar.h>
#include <g3d_ColorErrorException.h>
#include <omu_AccessErrorException.h>
#include <omu_ArgNumberErrorException.h>
#include <omu_ArgTypeErrorException.h>
#include <omu_AttributeErrorException.h>
#include <omu_CorNameErrorException.h>
#include <omu_FontErrorException.h>
#include <omu_GenericTypeErrorException.h>
#include <omu_GuiAccessErrorException.h>
#include <omu_IndexErrorException.h>
#include <omu_KeyErrorException.h>
#include <omu_KeywordErrorException.h>
#include <omu_KeywordTypeErrorException.h>
#include <omu_NameErrorException.h>
#include <omu_OverflowErrorException.h>
#include <omu_RangeChecker.h>
#include <omu_RangeErrorException.h>
#include <omu_ValueErrorException.h>
#include <omu_ZeroDivisionErrorException.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <limits>
#include <memory>
#include <ostream>
#include <sstream>
#include <string>
#include <typeinfo>
#include <utility>

namespace {
struct Case {
  std::function<nex_CommandException*()> make;
  const char* pythonType;
  const char* message;
};
// GoogleTest would print the case byte by byte, padding included.
void PrintTo(const Case& c, std::ostream* out) { *out << c.pythonType << ": " << c.message; }

// The dynamic class, through a reference, so that typeid has no operand to evaluate.
const std::type_info& ClassOf(const nex_Exception& e) { return typeid(e); }

template <class E, class... Args>
std::function<nex_CommandException*()> Make(Args... args) {
  return [=] { return new E(args...); };
}

using Range = omu_RangeErrorException;

// The message formats python/tests/test_errors.py does not reach, and GenericTypeError, which
// kFieldCases lacks, for its copy and round trip.
const Case kCases[] = {
    {Make<omu_AttributeErrorException>(-1, "x"), "AttributeError",
     "Error message not implemented yet"},
    {Make<omu_KeyErrorException>("100%s sure"), "KeyError", "100%s sure"},  // not a format
    {Make<omu_GenericTypeErrorException>(), "TypeError",
     "illegal argument type for built-in operation"},
    {Make<omu_ArgNumberErrorException>(-1, 0, ""), "TypeError",
     "too many arguments; expected -1, got 0"},
    {Make<omu_KeywordTypeErrorException>("it's", "int", "None", "opts"), "TypeError",
     "opts[\"it's\"]; found None, expecting int"},
    {Make<Range>("t", 7, "", 0, "", 0), "RangeError", "t must be "},
    {Make<Range>("t", 1, "0", 1, "1", -1), "RangeError", "t must be an Integer "},
};

class ScriptingErrors : public ::testing::TestWithParam<Case> {};

const char* const kArchive = "error-fields.cvxarch";
const char* const kMetadata = "error-fields-metadata.txt";

// One error of each class with fields or one text, every field away from its default and distinct
// from its neighbours, so that a field dropped, defaulted or swapped shows; in the fixture's order.
const Case kFieldCases[] = {
    {Make<omu_ArgNumberErrorException>(3, 7, "points"), "TypeError",
     "points; too many arguments; expected 3, got 7"},
    {Make<omu_ArgTypeErrorException>(2, "float", "str", "pts"), "TypeError",
     "pts[1]; found str, expecting float"},
    {Make<omu_AttributeErrorException>(1, "name"), "AttributeError", "name is read-only"},
    {Make<omu_CorNameErrorException>(3), "CorvexNameError", "invalid model name"},
    {Make<omu_IndexErrorException>(-42), "IndexError", "-42"},
    {Make<omu_KeywordErrorException>("colour", "opts"), "TypeError", "optskeyword error on colour"},
    {Make<omu_KeywordTypeErrorException>("size", "float", "string", "opts"), "TypeError",
     "opts['size']; found string, expecting float"},
    {Make<Range>("x", 2, "0", 1, "10", 2), "RangeError",
     "x must be a Float in the range: 0 <= x < 10"},
    {Make<g3d_ColorErrorException>("mauve"), "ColorError", "mauve is not a valid color name."},
    {Make<omu_AccessErrorException>("Part-1"), "AccessError", "Part-1 no longer exists"},
    {Make<omu_FontErrorException>("Hershey"), "FontError", "Hershey is not a valid font."},
    {Make<omu_GuiAccessErrorException>("no display"), "GuiAccessError", "no display"},
    {Make<omu_KeyErrorException>("Steel-2"), "KeyError", "Steel-2"},
    {Make<omu_NameErrorException>("frobnicate"), "NameError", "frobnicate"},
    {Make<omu_OverflowErrorException>("2**40"), "OverflowError", "2**40"},
    {Make<omu_ValueErrorException>("negative"), "ValueError", "negative"},
    {Make<omu_ZeroDivisionErrorException>("x / 0"), "ZeroDivisionError", "x / 0"},
};

std::unique_ptr<nex_CommandException> Made(const Case& row) {
  return std::unique_ptr<nex_CommandException>(row.make());
}

cls_Archive RowsArchive() {
  cls_Archive archive;
  for (const Case& row : kFieldCases) archive.Add(*Made(row));
  return archive;
}

// The registry's view of each class: identity, parent, word and every attribute descriptor.
std::string MetadataText() {
  const cls_ClassRegistrar& registry = cls_MetadataRegistrar::Instance().Registrar();
  std::ostringstream text;
  for (const Case& row : kFieldCases) {
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

constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr double kNoLower = 2.2250738585072014e-308;
constexpr double kNoUpper = 1.7976931348623157e308;

const char* const kChecker = "omu/impl/omu_RangeChecker";

// What CheckInRange and CheckGreaterThan raise for the value, or "ok"; int or double by T.
template <class T>
std::string InRange(const char* name, T lower, bool lowerIn, T value, T upper, bool upperIn) {
  return Raised<Range>(
      [&] { omu_RangeChecker::CheckInRange(name, lower, lowerIn, value, upper, upperIn); },
      kChecker);
}

template <class T>
std::string Above(const char* name, T lower, bool lowerIn, T value) {
  return Raised<Range>([&] { omu_RangeChecker::CheckGreaterThan(name, lower, lowerIn, value); },
                       kChecker);
}
}  // namespace

TEST_P(ScriptingErrors, MessageScriptNameCopyAndArchiveRoundTrip) {
  const std::unique_ptr<nex_CommandException> error(GetParam().make());
  EXPECT_EQ(error->JournalMessage(), GetParam().message);
  EXPECT_EQ(error->PythonType(), GetParam().pythonType);
  // Copy and Propagate keep the most derived class and its message, as AsString gives it.
  const std::unique_ptr<nex_Exception> copy(error->Copy());
  EXPECT_EQ(ClassOf(*copy), ClassOf(*error));
  try {
    static_cast<const nex_Exception&>(*copy).Propagate();
    ADD_FAILURE() << "Propagate did not raise";
  } catch (const nex_Exception& caught) {
    EXPECT_EQ(typeid(caught), ClassOf(*error));
    EXPECT_EQ(caught.AsString(), GetParam().message);
  }
  cls_Archive archive;
  error->DBWrite(archive.NewRoot());
  const auto loaded = SaveAndLoad(archive, "error").Read<nex_CommandException>(0);
  ASSERT_NE(loaded, nullptr);
  EXPECT_EQ(ClassOf(*loaded), ClassOf(*error));
  EXPECT_EQ(SoloBytes(*loaded), SoloBytes(*error));  // every field, every level
}

std::string CaseName(const ::testing::TestParamInfo<Case>& info) {
  return std::string(info.param.pythonType) + std::to_string(info.index);
}
INSTANTIATE_TEST_SUITE_P(AllKinds, ScriptingErrors, ::testing::ValuesIn(kCases), CaseName);
INSTANTIATE_TEST_SUITE_P(WithFields, ScriptingErrors, ::testing::ValuesIn(kFieldCases), CaseName);

TEST(ErrorFieldsArchive, TheSameErrorsWriteTheFixtureWhichReadsBackAndTheRegistryIsAsBefore) {
  EXPECT_EQ(RowsArchive().ToBytes(), Fixture(kArchive));
  const cls_Archive loaded = cls_Archive::Load(std::filesystem::path(CVX_TEST_FIXTURES) / kArchive);
  ASSERT_EQ(loaded.RootCount(), static_cast<int>(std::size(kFieldCases)));
  for (int i = 0; i < loaded.RootCount(); ++i) {
    const auto made = Made(kFieldCases[i]);
    const auto back = loaded.Read<nex_CommandException>(i);
    ASSERT_NE(back, nullptr);
    const char* name = ClassOf(*made).name();
    ASSERT_EQ(ClassOf(*back), ClassOf(*made)) << name;
    EXPECT_EQ(back->JournalMessage(), kFieldCases[i].message) << name;
    EXPECT_EQ(back->what(), back->DeveloperReport().StdString()) << name << ": what() not fixed";
    EXPECT_EQ(SoloBytes(*back), SoloBytes(*made)) << name << ": a field differs";
  }
  EXPECT_EQ(MetadataText(), Fixture(kMetadata));
}

// Writes the two fixtures into the folder CVX_SAVE_FIXTURES names; run by hand only.
TEST(ErrorFieldsArchive, SaveFixturesInThisProcess) {
  const char* folder = std::getenv("CVX_SAVE_FIXTURES");
  if (!folder) GTEST_SKIP() << "writes the fixtures when CVX_SAVE_FIXTURES names a folder";
  RowsArchive().Save(std::filesystem::path(folder) / kArchive);
  std::ofstream(std::filesystem::path(folder) / kMetadata, std::ios::binary) << MetadataText();
}

// python/tests/test_commands.py holds the cases its commands reach.
TEST(RangeChecker, LimitsQualifiersSentinelsAndNaN) {
  const double nan = std::nan(""), inf = std::numeric_limits<double>::infinity();
  const std::pair<std::string, const char*> cases[] = {
      {InRange("n", 1, true, 1, 10, true), "ok"},
      {InRange("n", 1, true, 10, 10, false), "n must be an Integer in the range: 1 <= n < 10"},
      {InRange("n", 1, true, 11, 10, true), "n must be an Integer in the range: 1 <= n <= 10"},
      {InRange("n", kIntMin, false, 11, 10, true), "n must be an Integer <= 10"},
      {InRange("n", kIntMin, false, 11, 10, false), "n must be an Integer < 10"},
      // An inclusive sentinel is an ordinary limit.
      {InRange("n", kIntMin, true, 11, 10, true),
       "n must be an Integer in the range: -2147483648 <= n <= 10"},
      {InRange("n", 0, false, -1, kIntMax, false), "n must be an Integer > 0"},
      {InRange("n", 0, true, -1, kIntMax, true),
       "n must be an Integer in the range: 0 <= n <= 2147483647"},
      {InRange("n", kIntMin, false, kIntMin, kIntMax, false), "n must be an Integer "},
      {Above("n", 0, true, 0), "ok"},
      {InRange("t", kNoLower, false, 2.0, 1.0, false), "t must be a Float < 1"},
      {InRange("t", kNoLower, true, 2.0, 1.0, true), "t must be a Float <= 1"},
      {InRange("t", 0.5, false, 0.5, kNoUpper, true), "t must be a Float > 0.5"},
      {InRange("x", 0.0, true, 10.0, 10.0, false), "x must be a Float in the range: 0 <= x < 10"},
      // The most negative double is an ordinary limit, shown as such.
      {InRange("x", -kNoUpper, true, 3.0, 2.5, true),
       "x must be a Float in the range: -1.7976931348623157e+308 <= x <= 2.5"},
      {InRange("x", nan, false, 0.5, nan, true), "ok"},
      {InRange("x", 0.0, true, nan, 1.0, false), "ok"},
      {Above("x", 0.0, false, inf), "x must be a Float > 0"},
      {Above("x", 0.0, false, kNoUpper), "x must be a Float > 0"},
  };
  for (std::size_t i = 0; i < std::size(cases); ++i)
    EXPECT_EQ(cases[i].first, cases[i].second) << "row " << i;
}
