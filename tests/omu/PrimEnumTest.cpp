#include "OmuTestSupport.h"

#include <mdl_Model.h>
#include <omu_BoolSelectEnum.h>
#include <omu_PrimEnum.h>

#include <typeinfo>

using Formulation = omu_PrimEnum<mdl_Model::FormulationEnm, 1>;
using RestartInc = omu_PrimEnum<mdl_Model::RestartIncEnm, 1>;
using BoolSelect = omu_PrimEnum<omu_BoolSelectEnum, 1>;
using OnOff = omu_PrimEnum<bool, 2>;

// The refusal of a name by a command is in python/tests/test_commands.py. Each text is the
// enumeration's own, the constants' included.
TEST(PrimEnum, RefusalsCarryTheirExactMessages) {
  const std::pair<std::function<void()>, const char*> cases[] = {
      {[] { RestartInc(static_cast<mdl_Model::RestartIncEnm>(3)); },
       "omu_PrimEnum(Enum) - Enum value not allowed: 3  Permissible: {STEP_END: 4294967294}"},
      {[] { Formulation(omu_PrimEnumBase("ON_OFF")); },
       "omu_PrimEnum(const omu_PrimEnumBase&) - str not allowed: ON_OFF"},
      {[] { omu_YesNoConst(cow_String("ON")); },
       "omu_PrimEnum(const cow_String&) - str not allowed: ON  Permissible: {NO: 0, YES: 1}"},
  };
  for (const auto& [build, message] : cases) {
    EXPECT_EQ(Raised<omu_ValueErrorException>(build, "include/omu_PrimEnum"), message);
  }
}

TEST(PrimEnum, AFailedSetKeepsTheValueAndNamesGiveValuesAndJoinForMessages) {
  BoolSelect select(omu_BOOL_SELECT_TRUE_FALSE);
  EXPECT_FALSE(select.SetValue("on_off"));
  EXPECT_FALSE(select.SetValue(static_cast<omu_BoolSelectEnum>(7)));
  EXPECT_STREQ(select.GetString(), "TRUE_FALSE");
  EXPECT_TRUE(select.SetValue("ON_OFF"));
  EXPECT_TRUE(select == omu_BOOL_SELECT_ON_OFF);
  // The constants' text is PrimScalarTest's.
  EXPECT_FALSE(static_cast<bool>(OnOff(cow_String("OFF"))));
  EXPECT_TRUE(static_cast<bool>(OnOff(cow_String("ON"))));
  EXPECT_EQ(Formulation(mdl_Model::TOTAL).TypeString(), "NOT_SET, SCATTERED or TOTAL");
  EXPECT_EQ(RestartInc(mdl_Model::STEP_END).TypeString(), "STEP_END");
  EXPECT_EQ(omu_PrimEnumBase("X").PermissibleValuesAsString(), "{}");
}

// Equality by name, across classes, is PrimBaseTest's.
TEST(PrimEnum, CopiesKeepTheirClass) {
  const Formulation total(mdl_Model::TOTAL);
  const omu_YesNoConst yes(true);
  for (const omu_Primitive* value : std::initializer_list<const omu_Primitive*>{&total, &yes}) {
    const std::unique_ptr<omu_Primitive> copy(value->Copy());
    const omu_Primitive &original = *value, &copied = *copy;
    EXPECT_TRUE(copied == original);
    EXPECT_EQ(typeid(copied), typeid(original)) << Text(original);
  }
}

TEST(PrimBool, VisitorsSeeOnOffAsItsOwnKindAndTheOthersAsEnumerations) {
  struct Seen : omu_PrimVisitor {
    std::string kind;
    void Visit(const omu_PrimBool<2>&) override { kind += "onoff "; }
    void Visit(const omu_PrimEnumBase&) override { kind += "enum "; }
  } seen;
  omu_OnOffConst(true).Accept(&seen);
  omu_TrueFalseConst(true).Accept(&seen);
  EXPECT_EQ(seen.kind, "onoff enum ");
}
