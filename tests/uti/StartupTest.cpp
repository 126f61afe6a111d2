// Start-up and finalise, in a binary of its own: these tests need the library stopped.
#include <UTI_CaeUtils.h>
#include <UTI_Modules.h>
#include <cls_MetadataRegistrar.h>
#include <typ_ArchCompTable.h>

#include <gtest/gtest.h>

#include <map>

namespace {
const cls_ClassRegistrar& Registry() { return cls_MetadataRegistrar::Instance().Registrar(); }
bool Started() { return Registry().Find(omu_TypeId(17)) != nullptr; }
}  // namespace

// BasicUtils (31, 35) starts first, then g3d (36), omu (19), mdl (10); wip and idb register
// nothing. Two starts then two stops work only at the ends.
TEST(Startup, ModulesStartInOrderAndOnlyTheOutermostStartAndStopCount) {
  int count = 0;
  UTI_CaeUtils_initialize(count);
  const std::map<unsigned int, int> rank = {{31, 0}, {35, 0}, {36, 1}, {19, 2}, {10, 3}};
  int last = 0;
  for (const auto& registration : cls_MetadataRegistrar::Instance().Registrations()) {
    const int now = rank.at(cls_ModuleOf(registration.typeIds.front()));
    EXPECT_GE(now, last);
    last = now;
  }
  EXPECT_EQ(last, 3);
  const int started = count;
  const auto classes = Registry().Classes().size();
  UTI_CaeUtils_initialize(count);
  EXPECT_EQ(count, started);
  EXPECT_EQ(Registry().Classes().size(), classes);  // every class registered once

  UTI_CaeUtils_finalize(count);
  EXPECT_EQ(count, started);
  EXPECT_TRUE(Started());
  UTI_CaeUtils_finalize(count);
  EXPECT_EQ(count, 0);
  EXPECT_FALSE(Started());
  EXPECT_TRUE(cls_MetadataRegistrar::Instance().Registrations().empty());
  EXPECT_EQ(typ_ArchCompTable::Instance().Entry(19), nullptr);

  UTI_CaeUtils_initialize(count);  // and up again, cleanly
  EXPECT_EQ(count, started);
  EXPECT_EQ(Registry().Classes().size(), classes);
  UTI_CaeUtils_finalize(count);
  EXPECT_EQ(count, 0);
}

TEST(Startup, AStopBeforeAnyStartSwallowsTheNextStart) {
  int count = 0;
  g3d_finalize(count);
  EXPECT_EQ(count, 0);
  g3d_initialize(count);  // the counter only comes back to zero
  EXPECT_EQ(count, 0);
  EXPECT_EQ(typ_ArchCompTable::Instance().Entry(36), nullptr);
  g3d_initialize(count);
  EXPECT_EQ(count, 1);
  EXPECT_NE(typ_ArchCompTable::Instance().Entry(36), nullptr);
  g3d_finalize(count);
  g3d_finalize(count);  // balances the first call
  EXPECT_EQ(count, 0);
  EXPECT_EQ(typ_ArchCompTable::Instance().Entry(36), nullptr);
}
