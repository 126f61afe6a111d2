#include "LibraryEnvironment.h"
#include "TestArchive.h"

#include <nex_TextException.h>
#include <omu_PrimEnumBase.h>
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

struct KindRecorder : omu_PrimVisitor {
  std::string seen;
  void Visit(const omu_PrimNone&) override { seen += "none "; }
  void Visit(const omu_PrimType&) override { seen += "type "; }
  void Visit(const omu_PrimEnumBase&) override { seen += "enum "; }
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

TEST(PrimType, PrintsItsTypeStringWithTypeAppended) {
  EXPECT_EQ(omu_PrimType("Part").AsString(0), "PartType");
  EXPECT_EQ(omu_PrimType("Part").TypeString(), "PartType");
  EXPECT_EQ(omu_PrimType().AsString(0), "Type");
  EXPECT_EQ(omu_PrimType().TypeString(), "type");
  EXPECT_TRUE(omu_PrimType("Odb") == omu_PrimType("Odb"));
  EXPECT_TRUE(omu_PrimType("Odb") != omu_PrimType("odb"));
  EXPECT_TRUE(*RoundTrip<omu_Primitive>(omu_PrimType("Sketch")) == omu_PrimType("Sketch"));
}

TEST(PrimType, ConvertsDisplayKindsExactly) {
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

TEST(Primitive, DynamicTypeAndIsAThroughTheRoot) {
  const std::unique_ptr<omu_Primitive> values[] = {
      std::make_unique<omu_PrimNone>(), std::make_unique<omu_PrimType>("Part"),
      std::make_unique<omu_PrimWrapper>(), std::make_unique<omu_PrimEnumBase>("ON")};
  const unsigned int ids[] = {omu_PrimNone::TypeId(), omu_PrimType::TypeId(),
                              omu_PrimWrapper::TypeId(), omu_PrimEnumBase::TypeId()};
  for (std::size_t i = 0; i < std::size(values); ++i) {
    const omu_Primitive& value = *values[i];
    EXPECT_EQ(value.DynTypeId(), ids[i]);
    EXPECT_TRUE(value.IsA(omu_Primitive::TypeId()));
    EXPECT_TRUE(value.IsA(ids[i]));
    EXPECT_EQ(value.AsRepr(), value.AsString(0));
    EXPECT_TRUE(value != static_cast<const omu_Primitive&>(omu_PrimType("Other")));
  }
  EXPECT_FALSE(omu_PrimNone().IsA(omu_PrimType::TypeId()));
}

TEST(Primitive, AcceptCallsTheVisitOfItsKindOnly) {
  KindRecorder recorder;
  omu_PrimNone().Accept(&recorder);
  omu_PrimType().Accept(&recorder);
  omu_PrimEnumBase("X").Accept(&recorder);
  omu_PrimWrapper().Accept(&recorder);  // visits nothing
  EXPECT_EQ(recorder.seen, "none type enum ");
}

TEST(Primitive, EnumerationValuesPersistByName) {
  const auto loaded = RoundTrip<omu_Primitive>(omu_PrimEnumBase("UNCHANGED"));
  EXPECT_EQ(loaded->DynTypeId(), omu_PrimEnumBase::TypeId());
  EXPECT_EQ(loaded->AsString(0), "UNCHANGED");
}
