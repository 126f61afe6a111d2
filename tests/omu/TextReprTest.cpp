#include "CapturedErrors.h"
#include "OmuTestSupport.h"
#include "OnThreads.h"
#include "TestRepository.h"

#include <omu_GetBracketKeyPos.h>
#include <omu_StringFromQString.h>
#include <omu_TextRepr.h>

TEST(TextRepr, OmuFinalizeReleasesTheSettings) {
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
  const omu_PrimTuple tuple = TupleOf({new TestPart(std::make_shared<TestPartData>())});
  // The part's nested text: the exposed type name, none here.
  OnThreads(2, [&](int) { EXPECT_EQ(Text(tuple), "(' object',)"); });
}

TEST(StringFromQString, UnquotesOnlyTheMatchingQuoteAndComplainsAboutBadQuoting) {
  const std::pair<const char*, const char*> cases[] = {
      {"'x'", "x"},
      {"\"x\"", "x"},
      {"'it\\'s'", "it's"},
      {R"("say \"hi\"")", "say \"hi\""},
      {R"('a\\b\n')", R"(a\\b\n)"},  // no other unescaping
      {"'\\\"'", "\\\""},
      {"''", ""},
      {"", ""}};
  CapturedErrors errors;
  for (const auto& [quoted, text] : cases) EXPECT_EQ(omu_StringFromQString(quoted), text) << quoted;
  EXPECT_EQ(errors.Text(), "");
  CapturedErrors bad;
  EXPECT_EQ(omu_StringFromQString("'x\""), "'x\"");
  EXPECT_EQ(bad.Text(), "omu_StringFromQString('x\")  QuotedString does not use ' or \". 'x\"\n");
  CapturedErrors shortOne;
  EXPECT_EQ(omu_StringFromQString("'"), "'");
  EXPECT_EQ(shortOne.Text(),
            "QuotedString length < 2. '\nomu_StringFromQString(')  QuotedString does not use ' or "
            "\". '\n");
}

// fuzz_quoted_text holds the other brackets, which find empty patterns where they start.
TEST(GetBracketKeyPos, FindsTheNearerQuotedBracket) {
  const char* const path = "mdb.models['M-1'].parts[\"P\"]";
  const struct {
    const char* text;
    char bracket;
    int start;
    int at;
  } cases[] = {{path, '[', 0, 10},    {path, ']', 0, 16},   {path, '[', 11, 23},
               {path, ']', 17, 27},   {"['a']", ']', 0, 4}, {"no keys", '[', 0, 7},
               {"['a']", '[', 99, 5}, {"['a']", ']', -4, 4}};
  for (const auto& c : cases) {
    EXPECT_EQ(omu_GetBracketKeyPos(c.text, c.bracket, c.start), c.at)
        << c.text << " " << c.bracket << " from " << c.start;
  }
}
