#include "LibraryEnvironment.h"
#include "TestArchive.h"

#include <nex_TextException.h>
#include <omu_PrimBool.h>
#include <omu_PrimBoolean.h>
#include <omu_PrimComplex.h>
#include <omu_PrimEnumBase.h>
#include <omu_PrimLeaf.h>
#include <omu_PrimList.h>
#include <omu_PrimNone.h>
#include <omu_PrimNumber.h>
#include <omu_PrimString.h>
#include <omu_PrimTuple.h>
#include <omu_PrimType.h>
#include <omu_PrimWrapper.h>
#include <omu_QueryPathMsg.h>

#include <gtest/gtest.h>

#include <memory>

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

struct Comparison {
  const char* what;
  bool equal;    // left == right
  bool unequal;  // left != right
};

// Compares the two values as their own kinds, with no cast to the root.
template <class L, class R>
Comparison Compare(const char* what, const L& left, const R& right) {
  return {what, left == right, left != right};
}
}  // namespace

TEST(Primitive, KindsCompareDirectlyByTheLeftOperandsRule) {
  omu_PrimTuple pair(2);
  pair.Put(1);
  pair.Put(2);
  const struct {
    Comparison got;
    bool equal;
  } cases[] = {
      {Compare("int 2, double 2.0", omu_PrimNumber(2), omu_PrimNumber(2.0)), true},
      {Compare("int 2, unsigned 2", omu_PrimNumber(2), omu_PrimNumber(2u)), false},
      {Compare("int 1, string 1", omu_PrimNumber(1), omu_PrimString("1")), false},
      {Compare("string 1, int 1", omu_PrimString("1"), omu_PrimNumber(1)), false},
      {Compare("boolean true, int 1", omu_PrimBoolean(true), omu_PrimNumber(1)), false},
      {Compare("None, type", omu_PrimNone(), omu_PrimType()), false},
      {Compare("ON constant, enumeration ON", omu_OnOffConst(true), omu_PrimEnumBase("ON")), true},
      {Compare("enumeration On, ON constant", omu_PrimEnumBase("On"), omu_OnOffConst(true)), false},
      {Compare("tuple (1, 2), list [1, 2]", pair, omu_PrimList(cow_List<int>{1, 2}, '(')), true},
      {Compare("complex 2+0j, double 2", omu_PrimComplex(omi_complex(2, 0)), omu_PrimNumber(2.0)),
       false},
      {Compare("agreeable, int 1", Agreeable(), omu_PrimNumber(1)), true},
      {Compare("int 1, agreeable", omu_PrimNumber(1), Agreeable()), false}};
  for (const auto& [got, equal] : cases) {
    EXPECT_EQ(got.equal, equal) << got.what;
    EXPECT_EQ(got.unequal, !equal) << got.what;
  }
}

TEST(PrimNone, CopiesAreAlwaysUnset) {
  const auto set = RoundTrip<omu_Primitive>(SetNone());
  ASSERT_TRUE(set->IsType('n'));
  EXPECT_TRUE(static_cast<const omu_PrimNone&>(*set).IsSet());
  EXPECT_FALSE(*set == omu_PrimNone());
  const std::unique_ptr<omu_Primitive> copy(set->Copy());
  EXPECT_TRUE(*copy == omu_PrimNone());
  EXPECT_EQ(set->AsString(0), "None");
  EXPECT_EQ(set->TypeString(), "None");
  EXPECT_FALSE(omu_PrimNone() == omu_PrimType());  // other kinds differ
}

TEST(PrimType, TextAndDisplayKinds) {
  EXPECT_EQ(omu_PrimType("Part").TypeString(), "PartType");
  EXPECT_EQ(omu_PrimType().AsString(0), "Type");
  EXPECT_EQ(omu_PrimType().TypeString(), "type");
  EXPECT_TRUE(*RoundTrip<omu_Primitive>(omu_PrimType("Sketch")) == omu_PrimType("Sketch"));
  const char* names[] = {"None", "Part", "Assembly", "Sketch", "Odb", "XYPlot", "Stub", "DetailPlot"};
  for (int i = 0; i < 8; ++i) {
    const auto kind = static_cast<omu_ObjectToDisplayTypeEnm>(i);
    EXPECT_EQ(omu_PrimType::ConverTypeToString(kind), names[i]);
    EXPECT_EQ(omu_PrimType::ConverStringToType(names[i]), kind);
  }
  EXPECT_EQ(omu_PrimType::ConverStringToType("part"), omu_DISPLAY_UNKNOWN);
  EXPECT_EQ(omu_PrimType::ConverStringToType(""), omu_DISPLAY_UNKNOWN);
  EXPECT_EQ(omu_PrimType::ConverTypeToString(omu_DISPLAY_UNKNOWN), "");
  EXPECT_EQ(omu_PrimType::ConverTypeToString(static_cast<omu_ObjectToDisplayTypeEnm>(-1)), "");
}

TEST(PrimWrapper, CopiesTheWrappedObjectThroughPersistence) {
  const omu_QueryPathMsg message("mdb.models['M']", "no such part");
  const omu_PrimWrapper borrowed(&message, omu_QueryPathMsg::TypeId());
  EXPECT_FALSE(borrowed.OwnsObject());
  const std::unique_ptr<omu_Primitive> copy(borrowed.Copy());
  const auto& wrapper = static_cast<const omu_PrimWrapper&>(*copy);
  EXPECT_TRUE(wrapper.OwnsObject());
  EXPECT_NE(wrapper.Object(), &message);
  EXPECT_EQ(*static_cast<const omu_QueryPathMsg*>(wrapper.Object()), message);
  EXPECT_FALSE(wrapper == wrapper);  // never equal, not even to itself
  EXPECT_EQ(wrapper.AsString(0), "Wrapper");

  const auto loaded = RoundTrip<omu_PrimWrapper>(borrowed);
  EXPECT_EQ(*static_cast<const omu_QueryPathMsg*>(loaded->Object()), message);
  const std::unique_ptr<omu_Primitive> none(omu_PrimWrapper().Copy());
  EXPECT_EQ(static_cast<const omu_PrimWrapper&>(*none).Object(), nullptr);
}

TEST(PrimWrapper, AWrapperThatWrapsItselfInAnArchiveIsRefused) {
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
