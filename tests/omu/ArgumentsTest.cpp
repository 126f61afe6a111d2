#include "LibraryEnvironment.h"
#include "TestRepository.h"

#include <omu_ArgNumberErrorException.h>
#include <omu_ArgTypeErrorException.h>
#include <omu_Arguments.h>
#include <omu_CorNameErrorException.h>
#include <omu_Deprecation.h>
#include <omu_Get.h>
#include <omu_KeywordErrorException.h>
#include <omu_KeywordTypeErrorException.h>
#include <omu_PrimList.h>
#include <omu_ReturnPrim.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace {
// The script-level error End raises, as "TypeName: message", or "ok".
std::string Outcome(omu_Arguments& args, const char* context = "") {
  try {
    args.End(context);
  } catch (const nex_CommandException& e) {
    return e.PythonType().StdString() + ": " + e.JournalMessage().StdString();
  }
  return "ok";
}

// f(1, 2.5, ...positional, **keywords)
omu_Arguments Call(std::initializer_list<int> positional) {
  omu_Arguments args(static_cast<int>(positional.size()));
  for (int value : positional) args.Put(value);
  return args;
}
}  // namespace

TEST(Arguments, AKeywordAlsoGivenByPositionStaysUnclaimed) {
  omu_Arguments args = Call({1, 2});
  args.Put(3, "b");
  int a = 0, b = 0;
  args.Begin();
  args.Get(a, "a");
  args.Get(b, "b");
  EXPECT_EQ(b, 2);  // by position: the keyword is not looked at
  EXPECT_TRUE(args.Error());
  EXPECT_EQ(Outcome(args, "f"), "TypeError: fkeyword error on b");
}

TEST(Arguments, MissingKeywordsRequiredAndOptional) {
  omu_Arguments required = Call({1});
  int a = 0, b = 7, c = 9;
  required.Begin();
  required.Get(a, "a");
  required.Get(b, "b");
  EXPECT_TRUE(required.ErrorOnPrevious());
  EXPECT_EQ(b, 7);
  EXPECT_EQ(Outcome(required),
            "TypeError: not all required arguments specified; expected 2, got 1");

  omu_Arguments optional = Call({1});
  optional.Begin();
  optional.Get(a, "a");
  optional.Optional();
  optional.Get(c, "c");
  EXPECT_TRUE(optional.ErrorOnPrevious());  // it did not read, though it is no error
  EXPECT_FALSE(optional.Error());
  EXPECT_EQ(Outcome(optional), "ok");
  EXPECT_EQ(c, 9);
}

TEST(Arguments, KeywordOfTheWrongTypeNamesFoundAndExpected) {
  omu_Arguments args = Call({});
  args.Put(cow_String("big"), "size");
  double size = 0;
  args.Begin();
  args.Get(size, "size");
  EXPECT_EQ(Outcome(args), "TypeError: size; found string, expecting float");
  args.SetNestedErrorStr("opts");
  args.Begin();
  args.Get(size, "size");
  EXPECT_EQ(Outcome(args), "TypeError: opts['size']; found string, expecting float");
}

TEST(Arguments, AlternativeRetriesAFailedReadAsAnotherType) {
  omu_Arguments args = Call({});
  args.Put(cow_String("fine"), "mesh");
  double size = 0;
  cow_String name;
  args.Begin();
  EXPECT_FALSE(args.Alternative());  // nothing failed yet
  args.Get(size, "mesh");
  EXPECT_TRUE(args.ErrorOnPrevious());
  EXPECT_TRUE(args.Alternative());
  args.Get(name, "mesh");
  EXPECT_EQ(name, "fine");
  EXPECT_EQ(Outcome(args), "ok");

  omu_Arguments positional = Call({4});
  positional.Begin();
  positional.Get(name, "mesh");
  EXPECT_TRUE(positional.Alternative());
  int count = 0;
  positional.Get(count, "mesh");
  EXPECT_EQ(count, 4);
  EXPECT_EQ(Outcome(positional), "ok");
}

// Keywords are looked up through an index of the stored ones, which a Put must not leave stale.
TEST(Arguments, KeywordsStoredDuringAReadingCountFromTheNextBegin) {
  omu_Arguments args = Call({});
  args.Put(1, "a");
  int a = 0, b = 0;
  args.Begin();
  args.Get(a, "a");
  args.Put(2, "a");  // replaces the value just read
  args.Put(3, "b");
  args.Get(b, "b");
  EXPECT_TRUE(args.ErrorOnPrevious());  // stored after Begin: not claimable yet
  args.Begin();
  args.Get(a, "a");
  args.Get(b, "b");
  EXPECT_EQ(a, 2);
  EXPECT_EQ(b, 3);
  EXPECT_EQ(Outcome(args), "ok");
}

TEST(Arguments, EndReportsTheFirstFaultInItsOrder) {
  {  // an unclaimed keyword wins over a positional type error
    omu_Arguments typed(1);
    typed.Put(cow_String("s"));
    typed.Put(1, "zzz");
    int a = 0;
    typed.Begin();
    typed.Get(a, "a");
    EXPECT_EQ(Outcome(typed), "TypeError: keyword error on zzz");
  }
  {  // a positional type error before a keyword type error
    omu_Arguments args(1);
    args.Put(cow_String("s"));
    args.Put(cow_String("t"), "b");
    int a = 0, b = 0;
    args.Begin();
    args.Get(a, "a");
    args.Get(b, "b");
    EXPECT_EQ(Outcome(args), "TypeError: arg1; found string, expecting int");
  }
  {  // too many
    omu_Arguments args = Call({1, 2, 3});
    int a = 0, b = 0;
    args.Begin();
    args.Get(a, "a");
    args.Get(b, "b");
    EXPECT_EQ(Outcome(args, "f"), "TypeError: f; too many arguments; expected 2, got 3");
  }
}

TEST(Arguments, NamesAreValidatedAsTheyAreRead) {
  omu_Arguments args = Call({});
  args.Put(cow_String("Job-1"), "job");
  args.Put(cow_String("my job"), "other");
  omu_CorvexName job("placeholder", omu_JOB_NAME);
  args.Begin();
  args.Get(job, "job");
  EXPECT_EQ(job.Name(), "Job-1");
  EXPECT_EQ(job.Kind(), omu_JOB_NAME);
  EXPECT_THROW(args.Get(job, "other"), omu_CorNameErrorException);
  omu_CorvexName absent("kept", omu_JOB_NAME);
  args.Optional();
  args.Get(absent, "missing");
  EXPECT_EQ(absent.Name(), "kept");
}

TEST(Arguments, DeprecatedKeywordsOnlyWhileAllowed) {
  omu_Arguments args = Call({});
  args.Put(2.5, "oldSize");
  double size = 0;
  args.Begin();
  args.Get(size, "size");
  args.DeprecatedGet(size, "oldSize", "size");
  EXPECT_EQ(size, 0);  // not allowed: the failure stays
  omu_Deprecation::SetAllowed(true);
  args.Begin();
  args.Get(size, "size");
  args.DeprecatedGet(size, "oldSize", "size");
  omu_Deprecation::SetAllowed(false);
  EXPECT_EQ(size, 2.5);
  EXPECT_EQ(Outcome(args), "ok");
}

TEST(Arguments, TextShowsPositionsThenKeywords) {
  omu_Arguments args = Call({1});
  args.Put(cow_String("Part-1"), "name");
  args.Put(true, "flag");
  EXPECT_EQ(args.AsString(0), "(1, flag=True, name='Part-1')");
  EXPECT_EQ(args.StoredKeywords(), (cow_List<cow_String>{"name", "flag"}));
  EXPECT_EQ(Call({}).AsString(0), "()");
  EXPECT_EQ(Call({7}).AsString(0), "(7)");
}

TEST(Collections, ListsReadElementByElementAndRaiseFromTheInnerTuple) {
  omu_Arguments args(1);
  args.Put(cow_List<double>{1.0, 2.0, 3.5});
  args.Put(cow_List<int>{1, 2}, "ids");
  cow_List<double> values;
  cow_List<int> ids;
  args.Begin();
  omu_Get(args, values, "values");
  omu_Get(args, ids, "ids");
  EXPECT_EQ(Outcome(args), "ok");
  EXPECT_EQ(values, (cow_List<double>{1.0, 2.0, 3.5}));
  EXPECT_EQ(ids, (cow_List<int>{1, 2}));

  omu_Arguments wrong(1);
  omu_PrimTuple points(2);
  points.Put(1.0);
  points.Put(cow_String("x"));
  wrong.Put(points);
  wrong.Begin();
  try {
    omu_Get(wrong, values, "points");
    FAIL() << "the wrong element did not raise";
  } catch (const omu_ArgTypeErrorException& e) {
    EXPECT_EQ(e.JournalMessage(), "arg2; found string, expecting float");
  }
}

TEST(Collections, AMissingListStaysRecordedForTheOuterEnd) {
  omu_Arguments args = Call({});
  cow_List<int> ids{9};
  args.Begin();
  omu_Get(args, ids, "ids");
  EXPECT_EQ(ids, cow_List<int>{9});
  EXPECT_EQ(Outcome(args), "TypeError: not all required arguments specified; expected 1, got 0");
}

TEST(Collections, TwoDimensionalArraysAndRaggedRows) {
  omu_Arguments args(1);
  args.Put(cow_2DArray<double>(2, 3, 1.5));
  cow_2DArray<double> table;
  args.Begin();
  omu_Get(args, table, "table");
  EXPECT_EQ(Outcome(args), "ok");
  EXPECT_EQ(table, cow_2DArray<double>(2, 3, 1.5));

  omu_PrimTuple rows(2);
  rows.Put(cow_List<double>{1, 2, 3});
  rows.Put(cow_List<double>{4});
  omu_Arguments ragged(1);
  ragged.Put(rows);
  ragged.Begin();
  EXPECT_THROW(omu_Get(ragged, table, "rows"), omu_ArgNumberErrorException);

  cow_2DArray<double> irregular;
  ragged.Begin();
  omu_GetIrregular(ragged, irregular, "rows");
  ASSERT_EQ(irregular.Rows(), 2);
  ASSERT_EQ(irregular.Columns(), 4);
  EXPECT_EQ(irregular.Cells(), (std::vector<double>{3, 1, 2, 3, 1, 4, 0, 0}));
}

TEST(Collections, ResultsComeBackAsNumbersAndStrings) {
  const std::unique_ptr<omu_PrimList> list(omu_ReturnPrim(cow_List<double>{1.0, 2.5}));
  EXPECT_EQ(list->AsString(0), "(1.0, 2.5)");
  EXPECT_TRUE(list->Index(0)->IsType('f'));
  const std::unique_ptr<omu_PrimList> ints(omu_ReturnPrim(cow_List<int>{7}));
  EXPECT_EQ(ints->AsString(0), "(7,)");
  EXPECT_TRUE(ints->Index(0)->IsType('i'));
  const std::unique_ptr<omu_PrimTuple> rows(omu_ReturnPrim(cow_2DArray<cow_String>(1, 2, "a")));
  EXPECT_EQ(rows->AsString(0), "(('a', 'a'),)");
}

TEST(Arguments, InterfaceObjectsByScriptType) {
  const auto data = std::make_shared<TestPartData>();
  omu_Arguments args(1);
  args.Put(new TestPart(data));
  args.Put(new TestFeature(data, omu_Shortcut("f")), "other");
  args.Begin();
  const omu_InterfaceObj* part = args.Get("Part", nullptr, "part");
  ASSERT_NE(part, nullptr);
  EXPECT_EQ(part->TypeString(), "Part");
  const omu_InterfaceObj* other = args.Get("Part", nullptr, "other");
  EXPECT_EQ(other, nullptr);  // a Feature is not a Part
  EXPECT_EQ(Outcome(args), "TypeError: other; found Feature, expecting Part");
}
