#include "CapturedErrors.h"
#include "OmuTestSupport.h"
#include "PosixEnv.h"
#include "TestRepository.h"

#include <omu_Deprecation.h>
#include <omu_TextRepr.h>
#include <omu_TypeRegistryCache.h>

#include <cstdlib>

namespace {
// The member's text, or "null" when there is no such member.
std::string Member(const omu_InterfaceObj& object, const char* name) {
  bool deprecated = false;
  const std::unique_ptr<omu_Primitive> owned(object.GetMember(name, deprecated));
  return owned ? Text(*owned) + (deprecated ? " (deprecated)" : "") : "null";
}

// A part on a record of its own, as most tests need one.
class InterfaceObj : public ::testing::Test {
protected:
  const std::shared_ptr<TestPartData> data = std::make_shared<TestPartData>();
  TestPart part{data};
};
}  // namespace

TEST_F(InterfaceObj, TheChainRunsFromBaseToMostDerivedAndAnswersFromTheMostDerived) {
  EXPECT_EQ(part.BaseType(), "Feature");
  EXPECT_EQ(omu_PrimType(part).AsString(0), "PartType");  // the type string, as a script sees it
  part.DescribeType("Part", nullptr, nullptr);            // described twice: counts once
  EXPECT_EQ(part.TypeLevels(), 2);
  EXPECT_EQ(Member(part, "name"), "Part-1Type");   // the part level's row
  EXPECT_EQ(Member(part, "kind"), "FeatureType");  // inherited
  EXPECT_EQ(Member(part, "Name"), "null");         // case matters
  bool deprecated = false;
  EXPECT_TRUE(part.IsMethod("regenerate", deprecated));
  EXPECT_FALSE(part.IsMethod("name", deprecated));
  EXPECT_FALSE(deprecated);
  EXPECT_EQ(part.MemberList(), (cow_List<cow_String>{"_secret", "kind", "name"}));
  EXPECT_EQ(part.MethodList(), cow_List<cow_String>{"regenerate"});
  // A deprecated name answers only while allowed.
  EXPECT_EQ(Member(part, "partName"), "null");
  omu_Deprecation::SetAllowed(true);
  const CapturedErrors errors;
  EXPECT_EQ(Member(part, "partName"), "Part-1Type (deprecated)");
  omu_Deprecation::SetAllowed(false);
  EXPECT_EQ(errors.Text(), "Warning: 'partName' is deprecated; use 'name' instead.\n");
}

TEST_F(InterfaceObj, IllegalArithmeticKeepsItsTwoTexts) {
  TestPart other(data);
  EXPECT_EQ(Raised([&] { part.AddOperation(&other); }), "Error: Illegal operation for type");
  EXPECT_EQ(Raised([&] { part.DivOperation(&other); }), "Error: Illegal operation for type");
  EXPECT_EQ(Raised([&] { part.UnaryNegative(); }), "Error: Illegal operation for type.");
  EXPECT_EQ(Raised([&] { part.Absolute(); }), "Error: Illegal operation for type.");
  EXPECT_EQ(part.NonZero(), 1);
}

TEST_F(InterfaceObj, StaleHandlesReportWhenAsked) {
  {
    CapturedErrors errors;
    part.SetStale(true);
    EXPECT_TRUE(part.IsStale());
    EXPECT_EQ(errors.Text(), "");  // silent without the variable
  }
  setenv("CVX_STALEHANDLE_INFO", "2", 1);
  CapturedErrors errors;
  part.SetStale(false);  // reports the handle as it was, then as it is
  part.IsStale();
  unsetenv("CVX_STALEHANDLE_INFO");
  const std::string text = errors.Text();
  EXPECT_NE(text.find("omu_InterfaceObj::SetStale(value=0)  this:0x"), std::string::npos) << text;
  EXPECT_NE(text.find("  <stale handle>\n"), std::string::npos) << text;
  EXPECT_NE(text.find("  mdb.models['M'].parts['Part-1']\n"), std::string::npos) << text;
}

TEST_F(InterfaceObj, PathsCompareAndDecideEqualityWhenTheRulesSaySo) {
  TestPart second(data);
  EXPECT_EQ(part.Compare(&second), 0);
  EXPECT_EQ(part.ComparePath("mdb.models['M'].parts['Part-2']"), -1);
  EXPECT_FALSE(part == second);  // other handle
  EXPECT_TRUE(part == part);
  TestPart byPath(data, omu_OperationRules(true));
  EXPECT_TRUE(byPath == second);
}

TEST_F(InterfaceObj, DefaultReprNamesTheObjectAndWarnsWhenUsed) {
  EXPECT_EQ(part.DefaultRepr(), "<Part object named Part-1Type>");
  TestFeature feature(data, omu_Shortcut("f"));
  CapturedErrors errors;
  EXPECT_EQ(feature.AsRepr(), "<Feature object named featureType>");
  EXPECT_EQ(errors.Text(),
            "WARNING omu_InterfaceObj::AsRepr - repr not implemented: <Feature object named "
            "featureType>\n");
}

TEST_F(InterfaceObj, TypeTestsAndTextGoThroughTheExposedTypeRegistryTextWithinItsLimits) {
  omu_TypeRegistryCache& registry = omu_TypeRegistryCache::Instance();
  EXPECT_TRUE(part.IsA("CorvexObject"));
  EXPECT_TRUE(part.IsA("Feature"));
  EXPECT_FALSE(part.IsA("Assembly"));
  registry.AddAlias("PartLike", "Part");
  EXPECT_TRUE(part.IsA("PartLike"));
  EXPECT_EQ(part.ExposedTypeName(), "");
  registry.Expose("Feature");
  EXPECT_EQ(part.ExposedTypeName(), "Feature");
  registry.Expose("Part");
  EXPECT_EQ(part.ExposedTypeName(), "Part");
  omu_TypeRegistryCache::Release();
  EXPECT_FALSE(omu_TypeRegistryCache::Instance().IsExposed("Part"));
  // The text limits, on the objects they are for.
  omu_TextRepr& repr = omu_TextRepr::Instance();
  EXPECT_EQ(part.AsString(0), "{'kind': FeatureType, 'name': Part-1Type}");
  // Nested, the exposed type name, none yet: TextReprThreads's.
  omu_TypeRegistryCache::Instance().Expose("Part");
  const omu_PrimTuple tuple = TupleOf({part.Copy()});
  EXPECT_EQ(tuple.AsString(0), "('Part object',)");  // nested level 1 reaches the limit 1
  repr.SetMaxRecursion(2);
  EXPECT_EQ(tuple.AsString(0), "({'kind': FeatureType, 'name': Part-1Type},)");
  repr.SetMaxRecursion(0);
  EXPECT_EQ(part.AsString(0), "'Part object'");
  EXPECT_EQ(repr.GetMaxRecursionString(&part), "'Part object'");
  EXPECT_EQ(repr.GetMaxRecursionString(nullptr), "%s object");
  repr.SetMaxRecursionString("%d <%s at %%> %s");  // stray conversions print as they stand
  EXPECT_EQ(part.AsString(0), "'%d <Part at %> %s'");
  repr.SetSimpleStyle(1);
  EXPECT_EQ(tuple.AsString(0), "(interface object,)");
  repr = omu_TextRepr();
  omu_TypeRegistryCache::Release();
}
