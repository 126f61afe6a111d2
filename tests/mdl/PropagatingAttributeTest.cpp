#include "LibraryEnvironment.h"
#include "TestArchive.h"

#include <mdl_PropagatingAttribute.h>
#include <mdl_PropagationStatusEnm.h>
#include <omu_ValueErrorException.h>

#include <gtest/gtest.h>

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

// Holders compare by value and state (checked below), so each outcome is one holder.
TEST(PropAttr, StateMachineCoversEveryStateAndTransition) {
  for (mdl_PropAttributeStateEnm before : kStates) {
    SCOPED_TRACE(before);
    PropString assigned = Holder(before);
    assigned = cow_String("new");
    EXPECT_EQ(assigned, Holder(SET, "new"));

    PropString fetched = Holder(before);
    EXPECT_EQ(fetched.Get(), "abc");
    EXPECT_EQ(fetched, Holder(SET));

    // Propagation carries a set value on as unchanged and forgets a freed one; it never touches
    // the value.
    PropString propagated = Holder(before);
    propagated.Propagate();
    EXPECT_EQ(propagated, Holder(before == SET ? UNCHANGED : before == FREED ? UNSET : before));

    for (mdl_PropAttributeStateEnm state : kStates) {
      PropString given = Holder(before);
      given = state;
      EXPECT_EQ(given, Holder(state, state == UNSET || state == FREED ? "" : "abc")) << state;
      // Modify takes a set or freed other's state and value, and nothing else.
      PropString modified = Holder(before);
      modified.Modify(Holder(state, "x"));
      const bool taken = state == SET || state == FREED;
      EXPECT_EQ(modified, taken ? Holder(state, "x") : Holder(before)) << state;
    }
  }
}

// Holders made apart have different identities; a value given at construction is no SET, and
// copies keep the uid.
TEST(PropAttr, EqualityComparesValueAndStateButNotTheUid) {
  const PropString given(cow_String("steel"));
  EXPECT_EQ(given, Holder(UNSET, "steel"));
  EXPECT_NE(given.Uid(), PropString().Uid());
  EXPECT_EQ(PropString(given).Uid(), given.Uid());
  EXPECT_NE(Holder(SET), Holder(UNCHANGED));
  EXPECT_NE(Holder(SET, "a"), Holder(SET, "b"));
  EXPECT_TRUE(Holder(SET) == SET && Holder(SET) != FREED);
  mdl_PropAttr<cls_xpListInt> list;
  list = cls_xpListInt{1, 2};
  EXPECT_TRUE(list == (cls_xpListInt{1, 2}) && list != (cls_xpListInt{2, 1}));
}

// On a NOT_APPLICABLE holder of "abc": an accepted status is taken and the value zeroed, except
// UNCHANGED, which changes nothing at all; a refused one leaves the holder as it was.
TEST(PropAttr, SetStatusAcceptsItsBranchsStatusesAndRefusesTheRest) {
  const struct {
    bool allowUnset;
    const char* verdicts;  // one character per status of kStates: '.' accepted, 'x' refused
  } branches[] = {{true, "...xxxxx"}, {false, "x...xxxx"}};
  std::set<int> lines;
  for (const auto& branch : branches) {
    for (mdl_PropAttributeStateEnm status : kStates) {
      SCOPED_TRACE(testing::Message() << branch.allowUnset << " " << status);
      const PropString before = Holder(NOT_APPLICABLE);
      PropString holder = before;
      try {
        holder.SetStatus("thickness", mdl_PropAttributeState(status), branch.allowUnset);
        ASSERT_EQ(branch.verdicts[status], '.');
        EXPECT_EQ(holder, status == UNCHANGED ? before : Holder(status, ""));
      } catch (const nex_TextException& e) {
        ASSERT_EQ(branch.verdicts[status], 'x');
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
    EXPECT_EQ(archive.Root(0).ReadEnum("state"), mdl_PropAttributeState(state).Name());
    const auto read = SaveAndLoad(archive, "propattr").template Read<mdl_PropAttr<TypeParam>>(0);
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(*read, holder) << state;
    EXPECT_FALSE(read->Uid().IsNull());
    EXPECT_NE(read->Uid(), holder.Uid());  // read back from a file: a fresh identity
  }
}

// The enumeration's message is checked with the enumerations.
TEST(PropAttrPersistence, AnUnknownStateOrAValueOfTheWrongKindIsRefused) {
  // An mdl_PropInt record as a foreign or damaged archive could hold it.
  const auto propInt = [](cls_Value val, const char* state) {
    return ForgedRecord{
        mdl_PropAttr<int>::TypeId(), {{"val", val}, {"state", cls_EnumName{state}}}, cls_Uid(99)};
  };
  EXPECT_THROW(RoundTrip<mdl_PropAttr<int>>(propInt(std::int32_t{3}, "set")),
               omu_ValueErrorException);
  for (const cls_Value& val : {cls_Value(2.5), cls_Value()}) {
    EXPECT_THROW(RoundTrip<mdl_PropAttr<int>>(propInt(val, "SET")), nex_TextException);
  }
}
