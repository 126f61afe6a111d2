#include "RaisedText.h"

#include <omu_CharClass.h>
#include <omu_CorNameErrorException.h>
#include <omu_CorvexName.h>
#include <rgx_Regex.h>

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {
// The message a name of a kind gets, or "ok" (when the name is kept as given).
std::string Verdict(const std::string& name, int kind) {
  return Raised<omu_CorNameErrorException>([&] {
    const omu_CorvexName checked(cow_String(name), static_cast<omu_CorvexNameEnum>(kind));
    EXPECT_EQ(checked.Name(), name);
  });
}

constexpr const char* kInvalid = "invalid name";
constexpr const char* kInvalidJob = "invalid job name";
constexpr const char* kInvalidModel = "invalid model name";
}  // namespace

TEST(CorvexName, EachKindKeepsItsOwnLengthLimitAndRules) {
  const struct {
    int kind;
    std::size_t longest;
    const char* error;
  } limits[] = {{0, 80, kInvalid}, {1, 80, kInvalidJob}, {2, 80, kInvalidModel},
                {3, 38, kInvalid}, {4, 38, kInvalidJob}, {5, 38, kInvalidModel},
                {6, 38, kInvalid}, {7, 256, kInvalid}};
  for (const auto& limit : limits) {
    EXPECT_EQ(Verdict(std::string(limit.longest, 'a'), limit.kind), "ok") << limit.kind;
    EXPECT_EQ(Verdict(std::string(limit.longest + 1, 'a'), limit.kind), limit.error) << limit.kind;
    EXPECT_EQ(Verdict("", limit.kind), "name is empty") << limit.kind;
  }
  EXPECT_EQ(Verdict("", 8), "ok");  // kinds above 7 are not checked
  EXPECT_EQ(Verdict("1.\"", 8), "ok");
  const struct {
    const char* name;
    const char* verdicts;  // one character per kind 0-7: '.' ok, 'x' refused
  } cases[] = {
      {"_part", "...xxxxx"},    {"part_", "...xxxxx"},  {"1abc", "x..x..xx"},
      {"-job", ".x..x..x"},     {"a,b", ".......x"},    {"my job", ".x..x..."},
      {"Model:1", ".x..x..."},  {"a$b", ".xx.xx.."},    {"a.b", "xxxxxxxx"},
      {"a\"b", "xxxxxxxx"},     {"a\\b", "xxxxxxxx"},   {"tab\tin", "...xxxxx"},
      {" lead", ".x.xxxxx"},    {"trail ", ".x.xxxxx"}, {"caf\xC3\xA9", "........"},
      {"\x80\xff", "........"}, {"a?b", ".xx.xx.."},    {"a~b", ".xx.xx.."},
      {"a<b>", ".xx.xx.."},     {"a:b", ".x..x..."},
  };
  for (const auto& c : cases) {
    for (int kind = 0; kind < 8; ++kind) {
      const bool refused = Verdict(c.name, kind) != "ok";
      EXPECT_EQ(refused, c.verdicts[kind] == 'x') << '"' << c.name << "\" kind " << kind;
    }
  }
}

TEST(CharClass, MatchesAsTheNamesStoredPatternsAndAByteByByteSearchAtEveryLength) {
  const omu_CorvexName name;
  for (const std::string_view view :
       {name.LeadingPattern(), name.WideForbiddenPattern(), name.NarrowForbiddenPattern()}) {
    const cow_String pattern(view);
    const omu_CharClass compiled(view);
    for (int byte = 1; byte < 256; ++byte) {
      const char text[] = {static_cast<char>(byte), 'a', 0};
      EXPECT_EQ(compiled.Matches(text), rgx_match(pattern.CStr(), text).Matched())
          << view << " byte " << byte;
    }
  }
  // Texts of every length around the sixteen-byte steps, each searched byte by byte beside.
  const std::string members = "\x01\"./\\~\x7f\x80\xa0\xff";
  const omu_CharClass compiled = omu_CharClass::Of(members);
  std::mt19937 random(7);
  for (int round = 0; round < 4000; ++round) {
    std::string text(random() % 70, 'a');
    for (char& c : text) c = static_cast<char>(random() % 4 ? 'a' + random() % 26 : random());
    const bool slow = text.find_first_of(members) != std::string::npos;
    ASSERT_EQ(compiled.Matches(text), slow) << "length " << text.size() << ": " << text;
    ASSERT_EQ((~compiled).Matches(text), text.find_first_not_of(members) != std::string::npos)
        << "complement, length " << text.size();
  }
}

TEST(CorvexName, GuiNamesRepairTowardsTheShortRulesAndQuotingOnlyWherePiecesNeedIt) {
  const struct {
    const char* name;
    const char* replacements;
    bool legal;
    const char* result;
  } repairs[] = {
      {"a.b\"c\\d", "-qd/__", true, "adbqc/d"},
      {"__x__", "......", true, "x"},
      {"_x_", "yyyyab", true, "axb"},
      {"9", ".xxxxx", false, "9"},
      {"...", "......", false, "..."},  // nothing is left to repair
      {"abc", "xxxxxx", true, "abc"},
      // Not cut again after a byte is put in front: 39 bytes.
      {"1234567890123456789012345678901234567890", "Nxxxxx", true,
       "N12345678901234567890123456789012345678"},
      // Control bytes are left alone.
      {"a\tb", "xxxxxx", true, "a\tb"},
      // Replacements that recreate their fault give up, the name untouched, instead of looping.
      {"9a", "5xxxxx", false, "9a"},
      {"a\"b", "x\"xxxx", false, "a\"b"},
      {"_a_", "xxxx_x", false, "_a_"},
      {"\"a", "x_xx\"x", false, "\"a"},
  };
  for (const auto& c : repairs) {
    cow_String name(c.name);
    EXPECT_EQ(omu_CorvexName::MakeLegalGuiName(name, c.replacements), c.legal) << c.name;
    EXPECT_EQ(name, c.result) << c.name;
  }
  // Quoting only the pieces of a dotted name that need it.
  const struct {
    const char* in;
    const char* out;
  } cases[] = {{"", ""},
               {"Part-1.my set", "Part-1.\"my set\""},
               {"\"a b\".c", "\"a b\".c"},
               {"a..b.", "a..b."},
               {"a=b.c,d.it's", R"("a=b"."c,d"."it's")"},
               {"\" \"", "\" \""},
               {"\"\"", "\"\""},
               {"\"a", "\"a"}};
  for (const auto& c : cases) EXPECT_EQ(omu_CorvexName::QuoteIfNeeded(c.in), c.out) << c.in;
}
