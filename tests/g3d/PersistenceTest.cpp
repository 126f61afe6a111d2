// Archive round trips of the persistent g3d classes.
#include "LibraryEnvironment.h"
#include "TestArchive.h"

#include <g3d_Point.h>

#include <UTI_Modules.h>
#include <cls_xo1DArrayList.h>

#include <gtest/gtest.h>

namespace {
// The colour error round trips with the scripting errors in omu.
TEST(G3dPersistenceTest, ValuesRoundTripThroughAFile) {
  EXPECT_EQ(*RoundTrip<g3d_Vector>(g3d_Vector(1.5f, -2, 0.1f)), g3d_Vector(1.5f, -2, 0.1f));
  EXPECT_EQ(*RoundTrip<g3d_Point>(g3d_Point(1, 2, 3, 0.5f)), g3d_Point(1, 2, 3, 0.5f));
}

template <class T>
class ListMementoTest : public ::testing::Test {};
using ListTypes = ::testing::Types<g3d_Point, g3d_Vector>;
TYPED_TEST_SUITE(ListMementoTest, ListTypes);

TYPED_TEST(ListMementoTest, ListsRoundTrip) {
  cow_List<TypeParam> list;
  for (int i = 0; i < 5; ++i) list.Append(TypeParam(float(i), float(-i), 0.5f));
  cls_Archive archive;
  const cls_WriteVisitor writer = archive.NewRoot();
  ASSERT_TRUE(writer.StartWrite(g3d_TypeId(99), cls_Uid()));
  cls_xo1DArrayList<TypeParam>::Write(writer, "items", list);
  cls_xo1DArrayList<TypeParam>::Write(writer, "none", cow_List<TypeParam>());
  const cls_Archive loaded = cls_Archive::FromBytes(archive.ToBytes());
  const cls_ReadVisitor reader = loaded.Root(0);
  EXPECT_EQ(cls_xo1DArrayList<TypeParam>::Read(reader, "items"), list);
  EXPECT_TRUE(cls_xo1DArrayList<TypeParam>::Read(reader, "none").IsEmpty());
}
}  // namespace
