#include "LibraryEnvironment.h"

#include <mdl_Model.h>
#include <omu_BoolSelectEnum.h>
#include <omu_PrimEnum.h>

#include <gtest/gtest.h>

#include <memory>

using Formulation = omu_PrimEnum<mdl_Model::FormulationEnm, 1>;
using RestartInc = omu_PrimEnum<mdl_Model::RestartIncEnm, 1>;
using BoolSelect = omu_PrimEnum<omu_BoolSelectEnum, 1>;

TEST(PrimEnum, BuildsFromValueNameAndOtherEnumeration) {
  const Formulation byValue(mdl_Model::TOTAL);
  EXPECT_STREQ(byValue.GetString(), "TOTAL");
  EXPECT_EQ(byValue.AsString(3), "TOTAL");
  const Formulation byName(cow_String("SCATTERED"));
  EXPECT_EQ(static_cast<mdl_Model::FormulationEnm>(byName), mdl_Model::SCATTERED);
  const Formulation byOther(static_cast<const omu_PrimEnumBase&>(byName));
  EXPECT_TRUE(byOther == mdl_Model::SCATTERED);
}

TEST(PrimEnum, RefusalsCarryTheirExactMessages) {
  auto messageOf = [](auto&& build) {
    try {
      build();
    } catch (const omu_ValueErrorException& e) {
      EXPECT_STREQ(e.SourcePath(), "include/omu_PrimEnum");
      return e.JournalMessage().StdString();
    }
    return std::string("no error");
  };
  EXPECT_EQ(messageOf([] { RestartInc(static_cast<mdl_Model::RestartIncEnm>(3)); }),
            "omu_PrimEnum(Enum) - Enum value not allowed: 3  Permissible: {STEP_END: 4294967294}");
  EXPECT_EQ(messageOf([] { Formulation(cow_String("total")); }),
            "omu_PrimEnum(const cow_String&) - str not allowed: total  Permissible: "
            "{NOT_SET: 0, SCATTERED: 1, TOTAL: 2}");
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
  EXPECT_EQ(BoolSelect(omu_BOOL_SELECT_ON_OFF).TypeString(), "ON_OFF or TRUE_FALSE");
  EXPECT_EQ(RestartInc(mdl_Model::STEP_END).TypeString(), "STEP_END");
  EXPECT_EQ(omu_PrimEnumBase("X").PermissibleValuesAsString(), "{}");
}

TEST(PrimEnum, EqualityGoesByNameAcrossInstantiations) {
  const Formulation total(mdl_Model::TOTAL);
  const omu_PrimEnumBase sameName("TOTAL");
  const omu_PrimEnumBase otherCase("Total");
  EXPECT_TRUE(total == static_cast<const omu_Primitive&>(sameName));
  EXPECT_FALSE(total == static_cast<const omu_Primitive&>(otherCase));
  std::unique_ptr<omu_Primitive> copy(total.Copy());
  EXPECT_TRUE(*copy == total);
  EXPECT_NE(dynamic_cast<Formulation*>(copy.get()), nullptr);
}
