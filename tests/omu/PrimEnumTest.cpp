#include "OmuTestSupport.h"

#include <mdl_Model.h>
#include <omu_BoolSelectEnum.h>
#include <omu_PrimEnum.h>

using Formulation = omu_PrimEnum<mdl_Model::FormulationEnm, 1>;
using RestartInc = omu_PrimEnum<mdl_Model::RestartIncEnm, 1>;
using BoolSelect = omu_PrimEnum<omu_BoolSelectEnum, 1>;

// The refusal of a name is in python/tests/test_commands.py.
TEST(PrimEnum, RefusalsCarryTheirExactMessages) {
  auto messageOf = [](const std::function<void()>& build) {
    return Raised<omu_ValueErrorException>(build, "include/omu_PrimEnum");
  };
  EXPECT_EQ(messageOf([] { RestartInc(static_cast<mdl_Model::RestartIncEnm>(3)); }),
            "omu_PrimEnum(Enum) - Enum value not allowed: 3  Permissible: {STEP_END: 4294967294}");
  EXPECT_EQ(messageOf([] { Formulation(omu_PrimEnumBase("ON_OFF")); }),
            "omu_PrimEnum(const omu_PrimEnumBase&) - str not allowed: ON_OFF");
}

TEST(PrimEnum, SetValueReportsFailureAndKeepsTheValue) {
  BoolSelect select(omu_BOOL_SELECT_TRUE_FALSE);
  EXPECT_FALSE(select.SetValue("on_off"));
  EXPECT_FALSE(select.SetValue(static_cast<omu_BoolSelectEnum>(7)));
  EXPECT_STREQ(select.GetString(), "TRUE_FALSE");
  EXPECT_TRUE(select.SetValue("ON_OFF"));
  EXPECT_TRUE(select == omu_BOOL_SELECT_ON_OFF);
}

TEST(PrimEnum, TypeStringJoinsNamesForMessages) {
  EXPECT_EQ(Formulation(mdl_Model::TOTAL).TypeString(), "NOT_SET, SCATTERED or TOTAL");
  EXPECT_EQ(RestartInc(mdl_Model::STEP_END).TypeString(), "STEP_END");
  EXPECT_EQ(omu_PrimEnumBase("X").PermissibleValuesAsString(), "{}");
}

// Equality by name, across classes, is PrimBaseTest's.
TEST(PrimEnum, CopiesKeepTheirInstantiation) {
  const Formulation total(mdl_Model::TOTAL);
  std::unique_ptr<omu_Primitive> copy(total.Copy());
  EXPECT_TRUE(*copy == total);
  EXPECT_NE(dynamic_cast<Formulation*>(copy.get()), nullptr);
}

TEST(PrimEnum, OnOffSpellingOfBooleans) {
  using OnOff = omu_PrimEnum<bool, 2>;
  EXPECT_EQ(OnOff(true).AsString(0), "ON");
  EXPECT_EQ(OnOff(false).AsString(0), "OFF");
  EXPECT_FALSE(static_cast<bool>(OnOff(cow_String("OFF"))));
  EXPECT_TRUE(static_cast<bool>(OnOff(cow_String("ON"))));
  EXPECT_EQ(OnOff(true).PermissibleValuesAsString(), "{OFF: 0, ON: 1}");
  EXPECT_THROW(OnOff(cow_String("on")), omu_ValueErrorException);
}

TEST(PrimBool, TheOtherSpellingsHaveTheirOwnClasses) {
  const omu_TrueFalseConst no(false);
  const omu_YesNoConst yes(true);
  EXPECT_EQ(no.AsString(0), "FALSE");
  EXPECT_EQ(yes.AsString(0), "YES");
  EXPECT_THROW(omu_YesNoConst(cow_String("ON")), omu_ValueErrorException);
  std::unique_ptr<omu_Primitive> copy(yes.Copy());
  EXPECT_EQ(copy->DynTypeId(), omu_YesNoConst::TypeId());
  EXPECT_TRUE(*copy == yes);
}

TEST(PrimBool, VisitorsSeeOnOffAsItsOwnKindAndTheOthersAsEnumerations) {
  struct Seen : omu_PrimVisitor {
    std::string kind;
    void Visit(const omu_PrimBool<2>&) override { kind = "onoff"; }
    void Visit(const omu_PrimEnumBase&) override { kind = "enum"; }
  } seen;
  omu_OnOffConst(true).Accept(&seen);
  EXPECT_EQ(seen.kind, "onoff");
  omu_TrueFalseConst(true).Accept(&seen);
  EXPECT_EQ(seen.kind, "enum");
}
