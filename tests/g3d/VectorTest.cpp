// Vectors, points, the double-precision helpers, printing, and archive round trips of vectors and
// points.
#include "G3dTestSupport.h"
#include "LibraryEnvironment.h"
#include "TestArchive.h"

#include <g3d_Storage.h>

#include <UTI_Modules.h>
#include <cls_xo1DArrayList.h>

#include <cmath>
#include <cstring>
#include <tuple>

namespace {
constexpr double kPi = 3.141592653589793;

TEST(VectorTest, FloatResults) {
  const struct {
    const char* what;
    g3d_Vector got, expected;
  } cases[] = {
      {"zero normalized", g3d_Vector(0, 0, 0).Normalize(), {0, 0, 0}},
      {"below FLT_MIN normalized", g3d_Vector(1e-39f, 0, 0).Normalize(), {0, 0, 0}},
      {"normalized", g3d_Vector(3, 0, 4).Normalize(), {0.6f, 0, 0.8f}},
      {"divided by 1", g3d_Vector(0.1f, 0.2f, 0.3f) / 1.0f, {0.1f, 0.2f, 0.3f}},
      {"x cross y is z", g3d_Cross(g3d_Vector(1, 0, 0), g3d_Vector(0, 1, 0)), {0, 0, 1}},
      {"point difference divides by w", g3d_Point(2, 4, 6, 2) - g3d_Point(1, 1, 1, 1), {0, 1, 2}},
      {"one point, two w", g3d_Point(1, 1, 1, 1) - g3d_Point(4, 4, 4, 4), {0, 0, 0}},
      {"w 0 taken as it is", g3d_Point(5, 6, 7, 0) - g3d_Point(1, 2, 3, 0), {4, 4, 4}},
  };
  for (const auto& c : cases) EXPECT_EQ(c.got, c.expected) << c.what;
  EXPECT_TRUE(std::isinf((g3d_Vector(0.1f, 0.2f, 0.3f) / 0.0f).x));  // unguarded
  EXPECT_EQ(g3d_TripleProduct(g3d_Vector(1, 0, 0), g3d_Vector(0, 1, 0), g3d_Vector(0, 0, 2)), 2.0f);
  g3d_Vector unit(0.6f, 0.8f, 0.0f);  // normalized bit for bit: 1/L * v would perturb it
  ASSERT_EQ(unit.Length(), 1.0f);
  const g3d_Vector before = unit;
  // Bit for bit: three floats, no padding.
  // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison)
  EXPECT_EQ(std::memcmp(&unit.Normalize(), &before, sizeof before), 0);
}

TEST(VectorTest, AngleWithSnapsAndSigns) {
  const struct {
    g3d_Vector a, b;
    float expected;
  } cases[] = {
      {{1, 0, 0}, {1, 1e-3f, 0}, 0.0f},         // cosine >= 0.99999 snaps to 0
      {{1, 0, 0}, {-1, 1e-3f, 0}, 3.1415927f},  // and to pi
      {{1, 0, 0}, {0, 0, 0}, float(kPi / 2)},   // zero vector
      {{0, 0, 0}, {0, 0, 0}, float(kPi / 2)},  {{1, 0, 0}, {0, 2, 0}, float(kPi / 2)},
  };
  for (const auto& c : cases) EXPECT_FLOAT_EQ(c.a.AngleWith(c.b, false), c.expected);
  // Signed turn seen from +z: a quarter turn clockwise is three quarters counter-clockwise.
  EXPECT_FLOAT_EQ(g3d_Vector(1, 0, 0).AngleWith({0, -1, 0}, false, {0, 0, 1}), float(3 * kPi / 2));
  EXPECT_FLOAT_EQ(g3d_Vector(1, 0, 0).AngleWith({0, 1, 0}, false, {0, 0, 1}), float(kPi / 2));
}

TEST(StorageTest, DoubleHelpers) {
  g3d_Storage tiny(1e-309, 0, 0), v(0, 3, 4), out;
  g3d_Normalize(tiny);
  g3d_Normalize(v);
  EXPECT_EQ(tiny.x, 1e-309);  // too short to scale: left as it is
  EXPECT_DOUBLE_EQ(v.z, 0.8);
  EXPECT_EQ(g3d_Cross(g3d_Storage(0, 1, 0), g3d_Storage(1, 0, 0)).z, -1.0);
  g3d_ProjectOn(g3d_Storage(0, 0, 5), g3d_Storage(1, 2, 3), out);  // keeps the perpendicular part
  EXPECT_EQ(std::tuple(out.x, out.y, out.z), std::tuple(1.0, 2.0, 0.0));
  const g3d_Storage x(1, 0, 0);
  EXPECT_EQ(g3d_AngleWith(x, g3d_Storage(-2, 0, 0), false, 0), kPi);  // the cosine clamped at -1
  EXPECT_EQ(g3d_AngleWith(x, g3d_Storage(0, 0, 0), false, 0), kPi / 2);
  EXPECT_EQ(g3d_AngleWith(x, x, true, 0), 0.0);
  // 1e-3 off axis is a real angle in double precision, unlike the float version.
  EXPECT_GT(g3d_AngleWith(x, g3d_Storage(1, 1e-3, 0), false, 0), 0.0);
}

// Components as doubles; a transform's rows in braces.
TEST(G3dPrintTest, VectorsPointsAndTransforms) {
  EXPECT_EQ(Printed(g3d_Vector(1, -2.5f, 0)) + " " + Printed(g3d_Point(0.5f, 0, 0)),
            "(1, -2.5, 0) (0.5, 0, 0, 1)");
  EXPECT_EQ(Printed(g3d_XForm().SetTranslate(g3d_Vector(0.5f, 0, -2))),
            "\n{\n  1 0 0 0.5\n  0 1 0 0\n  0 0 1 -2\n  0 0 0 1\n}\n");
}

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
