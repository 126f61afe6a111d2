#include "LibraryEnvironment.h"
#include "TestArchive.h"

#include <mdl_PropagatingAttribute.h>
#include <mdl_PropagationStatusEnm.h>
#include <omu_ValueErrorException.h>

#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <tuple>

using PropString = mdl_PropAttr<cow_String>;

namespace {
constexpr mdl_PropAttributeStateEnm kStates[] = {
    UNSET, SET, UNCHANGED, FREED, NOT_APPLICABLE, INVALID, ABS_DEFAULT, COMP_DEFAULT};

// A holder of "abc" in the given state, whatever the state would normally imply.
PropString Holder(mdl_PropAttributeStateEnm state, const char* value = "abc") {
  PropString holder{cow_String(value)};
  holder.ForceState(state);
  return holder;
}
}  // namespace

TEST(PropAttr, AValueGivenAtConstructionIsNoSetAndCopiesKeepTheUid) {
  const PropString given(cow_String("steel"));
  EXPECT_EQ(given.State(), UNSET);
  EXPECT_TRUE(given == cow_String("steel"));
  EXPECT_NE(given.Uid(), PropString().Uid());
  EXPECT_EQ(PropString(given).Uid(), given.Uid());
}

TEST(PropAttr, StateMachineCoversEveryStateAndTransition) {
  for (mdl_PropAttributeStateEnm before : kStates) {
    SCOPED_TRACE(before);
    // Propagation carries a set value on as unchanged and forgets a freed one.
    const auto afterPropagate = before == SET ? UNCHANGED : before == FREED ? UNSET : before;
    PropString assigned = Holder(before);
    assigned = cow_String("new");
    EXPECT_EQ(assigned.State(), SET);
    EXPECT_TRUE(assigned == cow_String("new"));

    PropString fetched = Holder(before);
    EXPECT_EQ(fetched.Get(), "abc");
    EXPECT_EQ(fetched.State(), SET);

    PropString propagated = Holder(before);
    propagated.Propagate();
    EXPECT_EQ(propagated.State(), afterPropagate);
    EXPECT_TRUE(propagated == cow_String("abc"));  // propagation never touches the value

    for (const PropString& other : {Holder(SET, "x"), Holder(FREED, "")}) {
      PropString modified = Holder(before);
      modified.Modify(other);
      EXPECT_EQ(modified, other);
    }
    for (mdl_PropAttributeStateEnm unmodified : {UNSET, UNCHANGED, NOT_APPLICABLE, COMP_DEFAULT}) {
      PropString kept = Holder(before);
      kept.Modify(Holder(unmodified, "x"));
      EXPECT_EQ(kept, Holder(before));
    }

    for (mdl_PropAttributeStateEnm state : kStates) {
      PropString holder = Holder(before);
      holder = state;
      EXPECT_EQ(holder.State(), state);
      const bool zeroed = state == UNSET || state == FREED;
      EXPECT_EQ(holder.ConstGet(), zeroed ? "" : "abc") << state;
    }
  }
}

// Holders made apart have different identities.
TEST(PropAttr, EqualityComparesValueAndStateButNotTheUid) {
  EXPECT_EQ(Holder(SET), Holder(SET));
  EXPECT_NE(Holder(SET), Holder(UNCHANGED));
  EXPECT_NE(Holder(SET, "a"), Holder(SET, "b"));
  EXPECT_TRUE(Holder(SET) == SET && Holder(SET) != FREED);
  mdl_PropAttr<cls_xpListInt> list;
  list = cls_xpListInt{1, 2};
  EXPECT_TRUE(list == (cls_xpListInt{1, 2}) && list != (cls_xpListInt{2, 1}));
}

TEST(PropAttr, SetStatusAcceptsItsBranchsStatusesAndRefusesTheRest) {
  // Expected state after SetStatus on a NOT_APPLICABLE holder of "abc", or nullopt for a
  // refusal; the value is "abc" or zeroed. UNCHANGED changes nothing at all.
  struct Outcome {
    std::optional<mdl_PropAttributeStateEnm> state;
    bool zeroed;
  };
  const auto refused = Outcome{std::nullopt, false};
  const Outcome kept{NOT_APPLICABLE, false};
  const Outcome withUnset[] = {{UNSET, true}, {SET, true}, kept,    refused,
                               refused,       refused,     refused, refused};
  const Outcome withFreed[] = {refused, {SET, true}, kept,    {FREED, true},
                               refused, refused,     refused, refused};
  std::set<int> lines;
  for (bool allowUnset : {true, false}) {
    for (mdl_PropAttributeStateEnm status : kStates) {
      SCOPED_TRACE(testing::Message() << allowUnset << " " << status);
      const Outcome expected = (allowUnset ? withUnset : withFreed)[status];
      const PropString before = Holder(NOT_APPLICABLE);
      PropString holder = before;
      try {
        holder.SetStatus("thickness", mdl_PropAttributeState(status), allowUnset);
        ASSERT_TRUE(expected.state.has_value());
        EXPECT_EQ(holder.State(), *expected.state);
        EXPECT_EQ(holder.ConstGet(), expected.zeroed ? "" : "abc");
      } catch (const nex_TextException& e) {
        ASSERT_FALSE(expected.state.has_value());
        EXPECT_EQ(e.Text(), "Invalid propagation status for 'thickness' attribute.");
        EXPECT_STREQ(e.SourcePath(), "include/mdl_PropagatingAttribute");
        lines.insert(e.SourceLine());
        EXPECT_EQ(holder, before);
      }
    }
  }
  EXPECT_EQ(lines.size(), 2u) << "each branch refuses from its own line";
}

TEST(PropagationStatus, EveryStatusReadsBackFromItsNameAndNoOtherValueIsTaken) {
  using Status = omu_PrimEnum<mdl_PropagationStatusEnm, 1>;
  for (int value = 0; value <= PROPAGATED_FROM_FREQUENCY; ++value) {
    const cow_String name = Status(static_cast<mdl_PropagationStatusEnm>(value)).Name();
    EXPECT_EQ(static_cast<int>(Status(name)), value) << name.View();
  }
  EXPECT_EQ(Status(PROPAGATED_FROM_FREQUENCY).Name(), "PROPAGATED_FROM_FREQUENCY");
  EXPECT_THROW(Status(static_cast<mdl_PropagationStatusEnm>(PROPAGATED_FROM_FREQUENCY + 1)),
               omu_ValueErrorException);
}

// A value of every instantiation, found by its type.
const auto kSamples =
    std::make_tuple(cow_String("shell"), -0.1, true, -7, cls_xpListInt{3, -1, 4},
                    cls_xp1DArrayInt{9, 8}, cls_xpListString{"a", "", "c"},
                    cls_xp1DArrayListFloat{cls_xpList<float>{1.5f, -2.0f}, cls_xpList<float>{},
                                           cls_xpList<float>{3.25f}});

template <class T>
class PropAttrPersistence : public testing::Test {};
using Instantiations = testing::Types<cow_String, double, bool, cls_xpListInt, int,
                                      cls_xp1DArrayInt, cls_xpListString, cls_xp1DArrayListFloat>;
TYPED_TEST_SUITE(PropAttrPersistence, Instantiations);

TYPED_TEST(PropAttrPersistence, RoundTripsThroughAnArchiveFileWithItsStateByName) {
  for (mdl_PropAttributeStateEnm state : kStates) {
    mdl_PropAttr<TypeParam> holder(std::get<TypeParam>(kSamples));
    holder.ForceState(state);
    cls_Archive archive;
    archive.Add(holder);
    const cls_Value* written =
        archive.RootValue(0).As<std::shared_ptr<cls_Record>>()->get()->Find("state");
    ASSERT_NE(written, nullptr);
    EXPECT_EQ(written->As<cls_EnumName>()->name, mdl_PropAttributeState(state).Name());
    const auto read = SaveAndLoad(archive, "propattr").template Read<mdl_PropAttr<TypeParam>>(0);
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(*read, holder) << state;
    EXPECT_FALSE(read->Uid().IsNull());
    EXPECT_NE(read->Uid(), holder.Uid());  // read back from a file: a fresh identity
  }
}

namespace {
// An mdl_PropInt record as a foreign or damaged archive could hold it.
ForgedRecord PropInt(cls_Value val, const char* state) {
  return {mdl_PropAttr<int>::TypeId(), {{"val", val}, {"state", cls_EnumName{state}}}, cls_Uid(99)};
}
}  // namespace

// The enumeration's message is checked with the enumerations.
TEST(PropAttrPersistence, AnUnknownStateNameIsRefusedByTheEnumeration) {
  EXPECT_THROW(RoundTrip<mdl_PropAttr<int>>(PropInt(std::int32_t{3}, "set"), "badstate"),
               omu_ValueErrorException);
  const auto read = RoundTrip<mdl_PropAttr<int>>(PropInt(std::int32_t{3}, "FREED"), "goodstate");
  EXPECT_EQ(read->State(), FREED);
  EXPECT_TRUE(*read == 3);  // the stored value is taken as it is
}

TEST(PropAttrPersistence, AValueOfTheWrongKindIsRefusedAsATextFailure) {
  EXPECT_THROW(RoundTrip<mdl_PropAttr<int>>(PropInt(2.5, "SET"), "badval"), nex_TextException);
  EXPECT_THROW(RoundTrip<mdl_PropAttr<int>>(PropInt(cls_Value(), "SET"), "noval"),
               nex_TextException);
}
