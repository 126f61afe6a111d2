#include <nex_TextException.h>
#include <rgx_Regex.h>

#include <gtest/gtest.h>

TEST(Regex, MatchesAnywhereSplitsKeepingEmptyPiecesAndRefusesAMalformedPattern) {
  EXPECT_TRUE(rgx_match("^[^0-9]", "a1").Matched());
  EXPECT_FALSE(rgx_match("^[^0-9]", "1a").Matched());
  EXPECT_FALSE(rgx_match("^[^0-9]", "").Matched());
  const auto at = rgx_match("[.]", "ab.c");
  EXPECT_EQ(at.Position(), 2);
  EXPECT_EQ(at.Length(), 1);
  EXPECT_EQ(rgx_split("[\\.]", "a..b."), (cow_List<cow_String>{"a", "", "b", ""}));
  EXPECT_EQ(rgx_split("[\\.]", "plain"), (cow_List<cow_String>{"plain"}));
  EXPECT_EQ(rgx_split("[\\.]", ""), (cow_List<cow_String>{""}));
  EXPECT_THROW(rgx_match("[a-", "x"), nex_TextException);
}
