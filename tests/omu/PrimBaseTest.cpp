#include "LibraryEnvironment.h"
#include "TestArchive.h"

#include <nex_TextException.h>
#include <omu_PrimNone.h>
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
}  // namespace

TEST(PrimNone, CopiesAreAlwaysUnset) {
  const auto set = RoundTrip<omu_Primitive>(SetNone());
  ASSERT_TRUE(set->IsType('n'));
  EXPECT_TRUE(static_cast<const omu_PrimNone&>(*set).IsSet());
  EXPECT_FALSE(*set == omu_PrimNone());
  const std::unique_ptr<omu_Primitive> copy(set->Copy());
  EXPECT_TRUE(*copy == omu_PrimNone());
  EXPECT_EQ(set->AsString(0), "None");
  EXPECT_EQ(set->TypeString(), "None");
  EXPECT_FALSE(omu_PrimNone() == static_cast<const omu_Primitive&>(omu_PrimType()));  // other kinds differ
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
