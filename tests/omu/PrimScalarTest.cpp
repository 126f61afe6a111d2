#include "OmuTestSupport.h"

#include <omu_PrimArray.h>
#include <omu_PrimComplex.h>
#include <omu_PrimEnum.h>
#include <omu_PrimException.h>
#include <omu_PrimPath.h>
#include <omu_PrimTranslatedString.h>
#include <omu_PrimType.h>
#include <omu_ReturnPrim.h>

#include <cmath>
#include <limits>

namespace {
omu_Primitive* Translated(const char* text) {
  return new omu_PrimTranslatedString(atr_String(text));
}
omu_Primitive* Complex(omi_complex value) { return new omu_PrimComplex(value); }
}  // namespace

// The text of each kind a script prints; the digits are NumberTextTest's, so here what either
// floating kind adds to them. Containers' text is theirs and python/tests/test_values.py's.
TEST(Primitive, TextOfEachKind) {
  using N = omu_PrimNumber;
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double inf = std::numeric_limits<double>::infinity();
  const float floats[] = {0.5f, 1e-5f};
  const double doubles[] = {1};
  const int two[] = {2}, none[] = {0};
  // clang-format off
  const std::pair<omu_Primitive*, const char*> cases[] = {
      {new N(2.0), "2.0"}, {new N(2.0, N::FLOAT), "2.0"}, {new N(-0.0), "-0.0"}, {new N(-0.0, N::FLOAT), "-0.0"},
      {new N(0.1), "0.1"}, {new N(0.1, N::FLOAT), "0.1"}, {new N(1e20), "1e+20"}, {new N(1e20, N::FLOAT), "1e+20"},
      {new N(inf), "inf.0"}, {new N(inf, N::FLOAT), "inf.0"},
      // Integer kinds truncate to 32 bits.
      {new N(3.7, N::INT), "3"}, {new N(-3.7, N::INT), "-3"}, {new N(2147483647.0, N::INT), "2147483647"},
      {new N(2147483648.0, N::INT), "-2147483648"}, {new N(-2147483648.9, N::INT), "-2147483648"},
      {new N(-1e300, N::SHORT), "-2147483648"}, {new N(nan, N::SCHAR), "-2147483648"},
      {new N(4294967295.0, N::UINT), "4294967295"},
      // Quoting of every mix, plain and translated.
      {StringOf(""), "''"}, {Translated(""), "''"},
      {StringOf("say \"hi\""), "'say \"hi\"'"}, {Translated("say \"hi\""), "'say \"hi\"'"},
      {StringOf("back\\slash"), "'back\\\\slash'"}, {Translated("back\\slash"), "'back\\\\slash'"},
      {StringOf("it's\\\n"), R"("it's\\\n")"}, {Translated("it's\\\n"), R"("it's\\\n")"},
      {StringOf("tab\there"), "'tab\there'"}, {Translated("tab\there"), "'tab\there'"},
      {StringOf("'\"'"), R"('\'"\'')"}, {Translated("'\"'"), R"('\'"\'')"},
      {new omu_PrimString(-12), "'-12'"}, {new omu_PrimString(4000000000u), "'4000000000'"},
      {new omu_PrimString(2.0), "'2.0'"}, {new omu_PrimString(omu_OnOffConst(true)), "'ON'"},
      // A plus only before a zero or positive imaginary part.
      {Complex({1, -2}), "1-2j"}, {Complex({0.5, 0}), "0.5+0j"}, {Complex({1, -0.0}), "1+-0j"},
      {Complex(omi_complex::FromPolar(2, 0)), "2+0j"}, {Complex({1, nan}), "1nanj"}, {Complex({1, -nan}), "1-nanj"},
      {Complex({nan, 1}), "nan+1j"}, {Complex({1, inf}), "1+infj"}, {Complex({1, -inf}), "1-infj"},
      // Paths drop empty pieces and trailing dots.
      {new omu_PrimPath({"a", "b.."}), "'a.b'"}, {new omu_PrimPath(), "''"}, {new omu_PrimPath({"", ""}), "''"},
      {new omu_PrimEnum<bool, 2>(true), "ON"}, {new omu_PrimEnum<bool, 2>(false), "OFF"},
      {new omu_TrueFalseConst(false), "FALSE"}, {new omu_YesNoConst(true), "YES"},
      {new omu_PrimType(), "Type"}, {new StrDict(), "{}"}, {new omu_PrimTuple(0), "()"},
      {new omu_PrimException(nex_TextException("boom"), "trace"), "omu_PrimException object"},
      {new omu_PrimArray(1, two, floats), "array([0.5, 9.99999974737875e-06], 'f')"},
      {new omu_PrimArray(1, none, doubles), "array([], 'd')"},
      // Results as commands return them.
      {omu_ReturnPrim(cow_List<double>{1.0, 2.5}), "(1.0, 2.5)"}, {omu_ReturnPrim(cow_List<int>{7}), "(7,)"},
      {omu_ReturnPrim(cow_2DArray<cow_String>(1, 2, "a")), "(('a', 'a'),)"}};
  // clang-format on
  for (const auto& [value, text] : cases) {
    const std::unique_ptr<omu_Primitive> owned(value);
    EXPECT_EQ(Text(*owned), text) << owned->TypeString().StdString();
  }
}

TEST(PrimException, CopiesTheCapturedErrorAndArchivesOnlyTheTraceback) {
  const omu_PrimException captured(nex_TextException("boom"), "trace");
  const std::unique_ptr<omu_Primitive> copy(captured.Copy());
  const auto& copied = static_cast<const omu_PrimException&>(*copy);
  ASSERT_NE(copied.Exception(), nullptr);
  EXPECT_NE(copied.Exception(), captured.Exception());
  EXPECT_EQ(copied.Exception()->AsString(), "boom");
  const auto back = RoundTrip<omu_PrimException>(captured);
  EXPECT_EQ(back->Exception(), nullptr);
  EXPECT_EQ(back->Traceback(), "trace");
}
