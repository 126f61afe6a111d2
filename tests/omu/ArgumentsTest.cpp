#include "OmuTestSupport.h"
#include "TestRepository.h"

#include <omu_Arguments.h>
#include <omu_BindingTypes.h>
#include <omu_Deprecation.h>
#include <omu_Get.h>

#include <algorithm>
#include <variant>

namespace {
using Value = std::variant<int, double, cow_String, cow_List<double>, cow_List<int>,
                           cow_2DArray<double>, omu_PrimTuple>;

void Put(omu_Arguments& args, const Value& value, const char* keyword = nullptr) {
  std::visit([&](const auto& v) { keyword ? args.Put(v, keyword) : args.Put(v); }, value);
}

// f(*positional, **keywords)
omu_Arguments Call(std::initializer_list<Value> positional,
                   std::initializer_list<std::pair<const char*, Value>> keywords = {}) {
  omu_Arguments args(static_cast<int>(positional.size()));
  for (const Value& value : positional) Put(args, value);
  for (const auto& [keyword, value] : keywords) Put(args, value, keyword);
  return args;
}

// A value read, in the library's text, "!" after it when the read failed.
template <class T, class Read>
std::string ReadOne(omu_Arguments& args, T value, const Read& read) {
  read(value);
  return Text(*omu_PrimMake(value)) + (args.ErrorOnPrevious() ? "! " : " ");
}

// Reads the call, one token each: "?" makes the rest optional, "|" retries the read before it;
// "i:k", "f:k", "s:k" read keyword k as an int, a float or a string, and "L:k", "I:k", "T:k",
// "R:k" as a list of floats or ints, a table or ragged rows. Gives each value read ("!" after a
// read that failed), then the outcome of End (or of a read that raised).
std::string Reads(omu_Arguments args, std::initializer_list<std::string_view> reads) {
  std::string text;
  args.Begin();
  try {
    for (std::string_view read : reads) {
      const std::string_view keyword = read.substr(std::min<std::size_t>(2, read.size()));
      const cow_String key(keyword);
      const auto single = [&](auto& value) { args.Get(value, keyword); };
      const auto many = [&](auto& values) { omu_Get(args, values, key); };
      const auto ragged = [&](cow_2DArray<double>& rows) { omu_GetIrregular(args, rows, key); };
      if (read == "?") args.Optional();
      if (read == "|") text += args.Alternative() ? "retry " : "no-retry ";
      if (read[0] == 'i') text += ReadOne(args, -1, single);
      if (read[0] == 'f') text += ReadOne(args, -1.0, single);
      if (read[0] == 's') text += ReadOne(args, cow_String("-"), single);
      if (read[0] == 'L') text += ReadOne(args, cow_List<double>{9}, many);
      if (read[0] == 'I') text += ReadOne(args, cow_List<int>{9}, many);
      if (read[0] == 'T') text += ReadOne(args, cow_2DArray<double>(), many);
      if (read[0] == 'R') text += ReadOne(args, cow_2DArray<double>(), ragged);
    }
  } catch (const nex_CommandException& e) {
    return text + "raises " + Message(e);
  }
  const bool error = args.Error();
  const std::string outcome = Outcome(args);
  EXPECT_EQ(error, outcome != "ok") << outcome;
  return text + outcome;
}
}  // namespace

// The messages and most of their order are in python/tests/test_commands.py (probe), with
// their script type, TypeError.
TEST(Arguments, ReadsMarkTheirFailuresAndEndReportsTheFirst) {
  omu_PrimTuple ragged(2);
  ragged.Put(cow_List<double>{1, 2, 3});
  ragged.Put(cow_List<double>{4});
  const std::pair<std::string, const char*> cases[] = {
      {Reads(Call({1}), {"i:a", "?", "i:c"}), "1 -1! ok"},  // did not read, though it is no error
      // An unclaimed keyword before a positional type error, before a keyword type error.
      {Reads(Call({"s"}, {{"zzz", 1}}), {"i:a"}), "-1! keyword error on zzz"},
      {Reads(Call({"s"}, {{"b", "t"}}), {"i:a", "i:b"}),
       "-1! -1! arg1; found string, expecting int"},  // b not read after the error
      // The first unclaimed in key order, not in the order given.
      {Reads(Call({}, {{"zeta", 1}, {"alpha", 2}}), {}), "keyword error on alpha"},
      // A keyword stored again gives its last value and counts once.
      {Reads(Call({}, {{"b", 1}, {"a", 2}, {"b", 3}}), {"i:b", "i:a"}), "3 2 ok"},
      {Reads(Call({}, {{"size", "big"}}), {"f:size"}), "-1.0! size; found string, expecting float"},
      {Reads(Call({}, {{"mesh", "fine"}}), {"|", "f:mesh", "|", "s:mesh"}),
       "no-retry -1.0! retry 'fine' ok"},
      {Reads(Call({4, 5}), {"i:a", "|", "s:b", "|", "i:b"}), "4 no-retry '-'! retry 5 ok"},
      // Lists and tables are read element by element from a nested tuple.
      {Reads(Call({cow_List<double>{1, 2, 3.5}}, {{"ids", cow_List<int>{1, 2}}}),
             {"L:values", "I:ids", "I:more"}),
       "(1.0, 2.0, 3.5) (1, 2) (9,)! not all required arguments specified; expected 3, got 2"},
      {Reads(Call({TupleOf({new omu_PrimNumber(1.0), StringOf("x")})}), {"L:points"}),
       "raises arg2; found string, expecting float"},
      {Reads(Call({cow_2DArray<double>(2, 3, 1.5)}), {"T:table"}),
       "((1.5, 1.5, 1.5), (1.5, 1.5, 1.5)) ok"},
      {Reads(Call({ragged}), {"T:rows"}),
       "raises not all required arguments specified; expected 3, got 1"},
      // Ragged rows padded, each led by its length.
      {Reads(Call({ragged}), {"R:rows"}), "((3.0, 1.0, 2.0, 3.0), (1.0, 4.0, 0.0, 0.0)) ok"},
  };
  for (const auto& [got, expected] : cases) EXPECT_EQ(got, expected);
}

// Keywords are looked up through an index of the stored ones, which a Put must not leave stale.
TEST(Arguments, KeywordsStoredDuringAReadingCountFromTheNextBegin) {
  omu_Arguments args = Call({}, {{"a", 1}});
  int a = 0, b = 0;
  args.Begin();
  args.Get(a, "a");
  args.Put(2, "a");  // replaces the value just read
  args.Put(3, "b");
  args.Get(b, "b");
  EXPECT_TRUE(args.ErrorOnPrevious());  // stored after Begin: not claimable yet
  EXPECT_EQ(Reads(args, {"i:a", "i:b"}), "2 3 ok");
}

// Calls of more keywords than are indexed in place go through the hash table.
TEST(Arguments, EveryKeywordOfALargeCallIsFoundOnceWhateverItsSlot) {
  for (const int count : {3, 8, 9, 40}) {
    omu_Arguments args;
    for (int i = 0; i < count; ++i) args.Put(i, cow_String("k" + std::to_string(i)));
    args.Put(-1, "k0");
    args.Begin();
    for (int i = count - 1; i >= 1; --i) {
      int value = 0;
      args.Get(value, "k" + std::to_string(i));
      EXPECT_EQ(value, i) << count;
    }
    EXPECT_EQ(Outcome(args), "keyword error on k0") << count;
    EXPECT_EQ(args.Keywords().Length(), count);
  }
}

// A list reused for call after call: nothing of the last call may show, in it or in a copy.
TEST(Arguments, ResetGivesAFreshListAndLeavesCopiesAlone) {
  omu_Arguments args = Call({"s"}, {{"k", 2.5}});
  args.Begin();
  int a = 0;
  args.Get(a, "a");  // records a type error
  const omu_Arguments copy = args;
  args.Reset(1);
  args.Put(7);
  EXPECT_EQ(args.AsString(0), "(7)");
  EXPECT_EQ(Reads(args, {"i:a", "?", "i:k"}), "7 -1! ok");
  EXPECT_EQ(copy.AsString(0), "('s', k=2.5)");
  EXPECT_EQ(Reads(copy, {"i:a", "f:k"}), "-1! -1.0! arg1; found string, expecting int");
}

TEST(Arguments, DeprecatedKeywordsOnlyWhileAllowed) {
  omu_Arguments args = Call({}, {{"oldSize", 2.5}});
  double size = 0;
  for (const bool allowed : {false, true}) {
    omu_Deprecation::SetAllowed(allowed);
    args.Begin();
    args.Get(size, "size");
    args.DeprecatedGet(size, "oldSize", "size");
    omu_Deprecation::SetAllowed(false);
    EXPECT_EQ(size, allowed ? 2.5 : 0) << allowed;
  }
  EXPECT_EQ(Outcome(args), "ok");
}

TEST(Arguments, TextShowsPositionsThenKeywordsAndObjectsAreReadByScriptType) {
  omu_Arguments args = Call({1}, {{"name", "Part-1"}});
  args.Put(true, "flag");
  EXPECT_EQ(args.AsString(0), "(1, flag=True, name='Part-1')");
  EXPECT_EQ(args.StoredKeywords(), (cow_List<cow_String>{"name", "flag"}));
  EXPECT_EQ(Call({}).AsString(0), "()");
  // Interface objects are read by their script type.
  const auto data = std::make_shared<TestPartData>();
  omu_Arguments objects(1);
  objects.Put(new TestPart(data));
  objects.Put(new TestFeature(data, omu_Shortcut("f")), "other");
  objects.Begin();
  const omu_InterfaceObj* part = objects.Get("Part", nullptr, "part");
  ASSERT_NE(part, nullptr);
  EXPECT_EQ(part->TypeString(), "Part");
  EXPECT_EQ(objects.Get("Part", nullptr, "other"), nullptr);  // a Feature is not a Part
  EXPECT_EQ(Outcome(objects), "other; found Feature, expecting Part");
}
