#include "LibraryEnvironment.h"

#include <cls_MetadataRegistrar.h>
#include <idb_DeepCopy.h>
#include <mdl_Repository.h>
#include <nex_TextException.h>

#include <gtest/gtest.h>

TEST(DeepCopy, MakesANewEqualObjectAndRefusesAnUnknownClass) {
  mdl_Repository original("parts");
  original.AddKey("Part-1");
  void* copy = idb_DeepCopy(&original, mdl_Repository::TypeId());
  ASSERT_NE(copy, nullptr);
  EXPECT_NE(copy, &original);
  EXPECT_EQ(*static_cast<mdl_Repository*>(copy), original);
  cls_MetadataRegistrar::Instance().Registrar().Get(mdl_Repository::TypeId()).Destroy(copy);
  EXPECT_EQ(idb_DeepCopy(nullptr, mdl_Repository::TypeId()), nullptr);
  int value = 0;
  EXPECT_THROW(idb_DeepCopy(&value, 0x7fff0009u), nex_TextException);
}
