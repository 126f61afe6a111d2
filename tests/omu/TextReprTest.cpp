#include "CapturedErrors.h"
#include "OmuTestSupport.h"

#include <omu_GetBracketKeyPos.h>
#include <omu_PrimLeaf.h>
#include <omu_StringFromQString.h>
#include <omu_TextRepr.h>

#include <thread>
#include <vector>

namespace {
// An object that prints the way interface objects and object sequences do.
class ObjectLike : public omu_PrimLeaf<ObjectLike, omu_Primitive> {
public:
  ObjectLike() : omu_PrimLeaf('o') {}
  cow_String AsString(int level) const override {
    return omu_TextRepr::Instance().BoundedText(level, "interface object", "Part",
                                                [] { return cow_String("Part(name='p')"); });
  }
  bool operator==(const omu_Primitive&) const override { return false; }
};

class TextRepr : public ::testing::Test {
protected:
  void TearDown() override { omu_TextRepr::Instance() = omu_TextRepr(); }
};
}  // namespace

TEST_F(TextRepr, RecursionLimitAndSimpleStyleBoundObjects) {
  omu_PrimTuple tuple(2);
  tuple.Put(new ObjectLike);
  tuple.Put(1);
  EXPECT_EQ(tuple.AsString(0), "('Part object', 1)");  // nested level 1 reaches the limit 1
  EXPECT_EQ(ObjectLike().AsString(0), "Part(name='p')");
  omu_TextRepr& repr = omu_TextRepr::Instance();
  repr.SetMaxRecursion(2);
  EXPECT_EQ(tuple.AsString(0), "(Part(name='p'), 1)");
  repr.SetMaxRecursion(0);
  EXPECT_EQ(ObjectLike().AsString(0), "'Part object'");
  repr.SetMaxRecursionString("<%s at %%>");
  EXPECT_EQ(ObjectLike().AsString(0), "'<Part at %>'");
  repr.SetMaxRecursionString("%d %s %s");  // stray conversions print as they stand
  EXPECT_EQ(ObjectLike().AsString(0), "'%d Part %s'");
  repr.SetSimpleStyle(1);
  EXPECT_EQ(tuple.AsString(0), "(interface object, 1)");
}

TEST_F(TextRepr, OmuFinalizeReleasesTheSettings) {
  omu_TextRepr::Instance().SetMaxRecursion(7);
  int count = 0;
  omu_finalize(count);  // the test environment's start is the only other one
  EXPECT_FALSE(omu_TextRepr::Exists());
  omu_initialize(count);
  EXPECT_EQ(omu_TextRepr::Instance().GetMaxRecursion(), 1);
}

// Run alone, as ctest runs each test, the printers are the settings' first readers; under
// ThreadSanitizer this fails if they race to make them.
TEST(TextReprThreads, ValuesPrintOnSeveralThreadsAtOnce) {
  omu_PrimTuple tuple(2);
  tuple.Put(new ObjectLike);
  tuple.Put(1);
  std::vector<std::thread> printers;
  for (int t = 0; t < 2; ++t) {
    printers.emplace_back([&tuple] { EXPECT_EQ(tuple.AsString(0), "('Part object', 1)"); });
  }
  for (std::thread& printer : printers) printer.join();
}

TEST(StringFromQString, UnquotesOnlyTheMatchingQuote) {
  const std::pair<const char*, const char*> cases[] = {
      {"'x'", "x"},
      {"\"x\"", "x"},
      {"'it\\'s'", "it's"},
      {"\"say \\\"hi\\\"\"", "say \"hi\""},
      {"'a\\\\b\\n'", "a\\\\b\\n"},  // no other unescaping
      {"'\\\"'", "\\\""},
      {"''", ""},
      {"", ""}};
  CapturedErrors errors;
  for (const auto& [quoted, text] : cases) EXPECT_EQ(omu_StringFromQString(quoted), text) << quoted;
  EXPECT_EQ(errors.Text(), "");
}

TEST(StringFromQString, ComplainsAboutBadQuoting) {
  CapturedErrors errors;
  EXPECT_EQ(omu_StringFromQString("'x\""), "'x\"");
  EXPECT_EQ(errors.Text(), "omu_StringFromQString('x\")  QuotedString does not use ' or \". 'x\"\n");
  CapturedErrors shortOne;
  EXPECT_EQ(omu_StringFromQString("'"), "'");
  EXPECT_EQ(shortOne.Text(),
            "QuotedString length < 2. '\nomu_StringFromQString(')  QuotedString does not use ' or \". '\n");
}

TEST(GetBracketKeyPos, FindsTheNearerQuotedBracket) {
  const char* const path = "mdb.models['M-1'].parts[\"P\"]";
  const struct {
    const char* text;
    char bracket;
    int start;
    int at;
  } cases[] = {
      {path, '[', 0, 10},      {path, ']', 0, 16},      {path, '[', 11, 23},
      {path, ']', 17, 27},     {"['a']", ']', 0, 4},    {"no keys", '[', 0, 7},
      {"['a']", '[', 99, 5},   {"['a']", ']', -4, 4},
      // Any other bracket finds its empty patterns where the search starts.
      {"['a']", '(', 0, 0},    {"['a']", '(', 3, 3},    {"['a']", '(', 99, 5},
      {"['a']", '(', -2, 0},   {"", '(', 0, 0}};
  for (const auto& c : cases) {
    EXPECT_EQ(omu_GetBracketKeyPos(c.text, c.bracket, c.start), c.at)
        << c.text << " " << c.bracket << " from " << c.start;
  }
}
