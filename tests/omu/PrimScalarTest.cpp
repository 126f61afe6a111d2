#include "OmuTestSupport.h"

#include <omu_PrimComplex.h>
#include <omu_PrimException.h>
#include <omu_PrimPath.h>
#include <omu_PrimTranslatedString.h>

#include <cmath>
#include <limits>

// The digits are NumberTextTest's; here what either floating kind's text adds to them.
TEST(PrimNumber, FloatingText) {
  const std::pair<double, const char*> cases[] = {
      {2.0, "2.0"}, {-0.0, "-0.0"}, {0.1, "0.1"}, {1e20, "1e+20"},
      {std::numeric_limits<double>::infinity(), "inf.0"}};
  for (const auto& [value, text] : cases) {
    EXPECT_EQ(omu_PrimNumber(value).AsString(0), text) << text;
    EXPECT_EQ(omu_PrimNumber(value, omu_PrimNumber::FLOAT).AsString(0), text) << text;
  }
}

TEST(PrimNumber, IntegerKindsTruncateToThirtyTwoBits) {
  const std::tuple<double, omu_PrimNumber::DataTypeEnm, const char*> cases[] = {
      {3.7, omu_PrimNumber::INT, "3"},           {-3.7, omu_PrimNumber::INT, "-3"},
      {2147483647.0, omu_PrimNumber::INT, "2147483647"},
      {2147483648.0, omu_PrimNumber::INT, "-2147483648"},
      {-2147483648.9, omu_PrimNumber::INT, "-2147483648"},
      {-1e300, omu_PrimNumber::SHORT, "-2147483648"},
      {std::nan(""), omu_PrimNumber::SCHAR, "-2147483648"},
      {4294967295.0, omu_PrimNumber::UINT, "4294967295"}};
  for (const auto& [value, type, text] : cases) {
    const omu_PrimNumber number(value, type);
    EXPECT_TRUE(number.IsType('i'));
    EXPECT_EQ(number.TypeString(), "int");
    EXPECT_EQ(number.AsString(0), text) << text;
  }
}

TEST(PrimString, QuotingOfEveryMix) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "''"},
      {"say \"hi\"", "'say \"hi\"'"},
      {"back\\slash", "'back\\\\slash'"},
      {"it's\\\n", "\"it's\\\\\\n\""},
      {"tab\there", "'tab\there'"},
      {"'\"'", "'\\'\"\\''"}};
  for (const auto& [text, quoted] : cases) {
    EXPECT_EQ(omu_PrimString(cow_String(text)).AsString(0), quoted) << text;
    EXPECT_EQ(omu_PrimTranslatedString(atr_String(text)).AsString(0), quoted) << text;
  }
}

TEST(PrimString, ConstructorsFromNumbersAndConstants) {
  EXPECT_EQ(omu_PrimString(-12).Text(), "-12");
  EXPECT_EQ(omu_PrimString(4000000000u).Text(), "4000000000");
  EXPECT_EQ(omu_PrimString(2.0).Text(), "2.0");
  EXPECT_EQ(omu_PrimString(omu_OnOffConst(true)).Text(), "ON");
}

TEST(PrimComplex, PlusOnlyBeforeAZeroOrPositiveImaginaryPart) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double inf = std::numeric_limits<double>::infinity();
  const std::pair<omi_complex, const char*> cases[] = {
      {omi_complex(1, -2), "1-2j"},          {omi_complex(0.5, 0), "0.5+0j"},
      {omi_complex(1, -0.0), "1+-0j"},       {omi_complex::FromPolar(2, 0), "2+0j"},
      {omi_complex(1, nan), "1nanj"},        {omi_complex(1, -nan), "1-nanj"},
      {omi_complex(nan, 1), "nan+1j"},       {omi_complex(1, inf), "1+infj"},
      {omi_complex(1, -inf), "1-infj"}};
  for (const auto& [value, text] : cases) EXPECT_EQ(omu_PrimComplex(value).AsString(0), text) << text;
}

TEST(PrimPath, TextDropsEmptyPiecesAndTrailingDots) {
  EXPECT_EQ(omu_PrimPath({"a", "b.."}).AsString(0), "'a.b'");
  EXPECT_EQ(omu_PrimPath().AsString(0), "''");
  EXPECT_EQ(omu_PrimPath({"", ""}).AsString(0), "''");
}

TEST(PrimException, CopiesTheCapturedErrorAndArchivesOnlyTheTraceback) {
  const omu_PrimException captured(nex_TextException("boom"), "trace");
  EXPECT_EQ(captured.TypeString(), "primitive");
  EXPECT_EQ(captured.AsString(0), "omu_PrimException object");
  const std::unique_ptr<omu_Primitive> copy(captured.Copy());
  const auto& copied = static_cast<const omu_PrimException&>(*copy);
  ASSERT_NE(copied.Exception(), nullptr);
  EXPECT_NE(copied.Exception(), captured.Exception());
  EXPECT_EQ(copied.Exception()->AsString(), "boom");
  const auto back = RoundTrip<omu_PrimException>(captured);
  EXPECT_EQ(back->Exception(), nullptr);
  EXPECT_EQ(back->Traceback(), "trace");
}
