#include "OmuTestSupport.h"

#include <omu_PrimComplex.h>
#include <omu_PrimEnumBase.h>
#include <omu_PrimException.h>
#include <omu_PrimExpr.h>
#include <omu_PrimLeaf.h>
#include <omu_PrimNone.h>
#include <omu_PrimPath.h>
#include <omu_PrimTranslatedString.h>
#include <omu_PrimType.h>
#include <omu_PrimWrapper.h>
#include <omu_QueryPathMsg.h>

namespace {
// Writes a None whose set flag is true, as only an archive can hold one.
struct SetNone {
  void DBWrite(const cls_WriteVisitor& w) const {
    w.StartWrite(omu_PrimNone::TypeId(), cls_Uid());
    omu_PrimNone().omu_Primitive::DBWrite(cls_WriteVisitor(w, omu_Primitive::TypeId()));
    w.Write("isSet", true);
  }
};

// A kind that equals everything, so a comparison shows whose operator== answered.
class Agreeable : public omu_PrimLeaf<Agreeable, omu_Primitive> {
public:
  Agreeable() : omu_PrimLeaf('?') {}
  cow_String AsString(int) const override { return "agreeable"; }
  bool operator==(const omu_Primitive&) const override { return true; }
};

// What the two values answer compared as their own kinds, with no cast to the root: "==" or
// "!=", both or neither where the two operators disagree.
using Compared = std::pair<const char*, std::string>;
template <class L, class R>
Compared Compare(const char* what, const L& left, const R& right) {
  return {what, std::string(left == right ? "==" : "") + (left != right ? "!=" : "")};
}
}  // namespace

TEST(Primitive, KindsCompareDirectlyByTheLeftOperandsRule) {
  using N = omu_PrimNumber;
  const omu_PrimTuple pair = TupleOf({new N(1), new N(2)});
  const omu_PrimException captured(nex_TextException("boom"), "trace");
  const omu_PrimWrapper wrapper;
  const std::pair<Compared, const char*> cases[] = {
      {Compare("int 2, double 2.0", N(2), N(2.0)), "=="},
      {Compare("int 2, unsigned 2", N(2), N(2u)), "!="},  // UINT keeps the unsigned field
      {Compare("unsigned 7, UINT 7.0", N(7u), N(7.0, N::UINT)), "=="},
      {Compare("int 1, string 1", N(1), omu_PrimString("1")), "!="},
      {Compare("string 1, int 1", omu_PrimString("1"), N(1)), "!="},
      {Compare("string abc, translated abc", omu_PrimString("abc"),
               omu_PrimTranslatedString(atr_String("abc"))),
       "!="},
      {Compare("boolean true, int 1", omu_PrimBoolean(true), N(1)), "!="},
      {Compare("None, type", omu_PrimNone(), omu_PrimType()), "!="},
      {Compare("ON constant, enumeration ON", omu_OnOffConst(true), omu_PrimEnumBase("ON")), "=="},
      {Compare("enumeration On, ON constant", omu_PrimEnumBase("On"), omu_OnOffConst(true)), "!="},
      {Compare("tuple (1, 2), list [1, 2]", pair, omu_PrimList(cow_List<int>{1, 2}, '(')), "=="},
      {Compare("complex 2+0j, double 2", omu_PrimComplex(omi_complex(2, 0)), N(2.0)), "!="},
      {Compare("complex polar 1, complex 1+0j", omu_PrimComplex(omi_complex::FromPolar(1, 0)),
               omu_PrimComplex(omi_complex(1, 0))),
       "=="},
      {Compare("path a as r, path a as x", omu_PrimPath({"a"}, 'r'), omu_PrimPath({"a"}, 'x')),
       "=="},
      {Compare("path a, expression a", omu_PrimPath({"a"}), omu_PrimExpr("a")), "!="},
      {Compare("expression a, string a", omu_PrimExpr("a"), omu_PrimString("a")), "!="},
      {Compare("captured exception, itself", captured, captured), "!="},
      {Compare("wrapper, itself", wrapper, wrapper), "!="},
      {Compare("agreeable, int 1", Agreeable(), N(1)), "=="},
      {Compare("int 1, agreeable", N(1), Agreeable()), "!="}};
  for (const auto& [got, expected] : cases) EXPECT_EQ(got.second, expected) << got.first;
}

TEST(PrimNone, CopiesAreAlwaysUnset) {
  const auto set = RoundTrip<omu_Primitive>(SetNone());
  ASSERT_TRUE(set->IsType('n'));
  EXPECT_TRUE(static_cast<const omu_PrimNone&>(*set).IsSet());
  EXPECT_FALSE(*set == omu_PrimNone());
  const std::unique_ptr<omu_Primitive> copy(set->Copy());
  EXPECT_TRUE(*copy == omu_PrimNone());
}

// Its text is PrimScalarTest's. The display kinds run to UNKNOWN, which has no name.
TEST(PrimType, TypeNameAndDisplayKinds) {
  EXPECT_EQ(omu_PrimType("Part").TypeString(), "PartType");
  EXPECT_EQ(omu_PrimType().TypeString(), "type");
  for (int i = omu_DISPLAY_NONE; i <= omu_DISPLAY_UNKNOWN; ++i) {
    const auto kind = static_cast<omu_ObjectToDisplayTypeEnm>(i);
    EXPECT_EQ(omu_PrimType::ConverStringToType(omu_PrimType::ConverTypeToString(kind)), kind);
  }
  EXPECT_EQ(omu_PrimType::ConverTypeToString(omu_DISPLAY_XY_PLOT), "XYPlot");
  EXPECT_EQ(omu_PrimType::ConverStringToType("part"), omu_DISPLAY_UNKNOWN);
  EXPECT_EQ(omu_PrimType::ConverTypeToString(static_cast<omu_ObjectToDisplayTypeEnm>(-1)), "");
}

// Member dictionaries through archives are tests/mdl/ArchiveIdentityTest.cpp's.
TEST(PrimWrapper, CopiesTheWrappedObjectAndItsMembersThroughPersistenceButNotItself) {
  const omu_QueryPathMsg message("mdb.models['M']", "no such part");
  omu_PrimWrapper borrowed(&message, omu_QueryPathMsg::TypeId());
  borrowed.MemberDict().Put(7, "count");
  EXPECT_FALSE(borrowed.OwnsObject());
  const std::unique_ptr<omu_Primitive> copy(borrowed.Copy());
  const auto& wrapper = static_cast<const omu_PrimWrapper&>(*copy);
  EXPECT_TRUE(wrapper.OwnsObject());
  EXPECT_NE(wrapper.Object(), &message);
  EXPECT_EQ(*static_cast<const omu_QueryPathMsg*>(wrapper.Object()), message);
  EXPECT_TRUE(wrapper.MemberDict() == borrowed.MemberDict());

  const auto loaded = RoundTrip<omu_PrimWrapper>(borrowed);
  EXPECT_EQ(*static_cast<const omu_QueryPathMsg*>(loaded->Object()), message);
  const std::unique_ptr<omu_Primitive> none(omu_PrimWrapper().Copy());
  EXPECT_EQ(static_cast<const omu_PrimWrapper&>(*none).Object(), nullptr);
  // A wrapper that wraps itself in an archive is refused.
  struct SelfWrapper {
    void DBWrite(const cls_WriteVisitor& w) const {
      if (!w.StartWrite(omu_PrimWrapper::TypeId(), cls_Uid(77))) return;
      omu_PrimWrapper().omu_Primitive::DBWrite(cls_WriteVisitor(w, omu_Primitive::TypeId()));
      w.Write("objType", omu_PrimWrapper::TypeId());
      w.WriteObject("objectPtr", *this);
    }
  };
  EXPECT_THROW(RoundTrip<omu_Primitive>(SelfWrapper()), nex_TextException);
}
