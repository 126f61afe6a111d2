// Vectors, points and the double-precision helpers.
#include <g3d_Storage.h>

#include <aio_ostream.h>

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstring>
#include <sstream>
#include <tuple>

namespace {
constexpr double kPi = 3.141592653589793;

TEST(VectorTest, NormalizeLeavesZeroTinyAndUnitVectorsAlone) {
  EXPECT_EQ(g3d_Vector(0, 0, 0).Normalize(), g3d_Vector(0, 0, 0));
  EXPECT_EQ(g3d_Vector(1e-39f, 0, 0).Normalize(), g3d_Vector(0, 0, 0));  // below FLT_MIN
  // A unit vector that 1/L * v would perturb must come back bit for bit.
  g3d_Vector unit(0.6f, 0.8f, 0.0f);
  ASSERT_EQ(unit.Length(), 1.0f);
  const g3d_Vector before = unit;
  EXPECT_EQ(std::memcmp(&unit.Normalize(), &before, sizeof before), 0);
  EXPECT_EQ(g3d_Vector(3, 0, 4).Normalize(), g3d_Vector(0.6f, 0, 0.8f));
  g3d_Storage tiny(1e-309, 0, 0), v(0, 3, 4);
  g3d_Normalize(tiny);
  g3d_Normalize(v);
  EXPECT_EQ(tiny.x, 1e-309);
  EXPECT_DOUBLE_EQ(v.z, 0.8);
}

TEST(VectorTest, DivisionByOneIsIdentityAndZeroIsUnguarded) {
  const g3d_Vector v(0.1f, 0.2f, 0.3f);
  EXPECT_EQ(v / 1.0f, v);
  EXPECT_TRUE(std::isinf((v / 0.0f).x));
}

TEST(VectorTest, CrossIsRightHanded) {
  EXPECT_EQ(g3d_Cross(g3d_Vector(1, 0, 0), g3d_Vector(0, 1, 0)), g3d_Vector(0, 0, 1));
  EXPECT_EQ(g3d_TripleProduct(g3d_Vector(1, 0, 0), g3d_Vector(0, 1, 0), g3d_Vector(0, 0, 2)), 2.0f);
  EXPECT_EQ(g3d_Cross(g3d_Storage(0, 1, 0), g3d_Storage(1, 0, 0)).z, -1.0);
}

TEST(VectorTest, AngleWithSnapsAndSigns) {
  struct Case {
    g3d_Vector a, b;
    float expected;
  };
  const Case cases[] = {
      {{1, 0, 0}, {1, 1e-3f, 0}, 0.0f},            // cosine >= 0.99999 snaps to 0
      {{1, 0, 0}, {-1, 1e-3f, 0}, 3.1415927f},     // and to pi
      {{1, 0, 0}, {0, 0, 0}, float(kPi / 2)},      // zero vector
      {{0, 0, 0}, {0, 0, 0}, float(kPi / 2)},
      {{1, 0, 0}, {0, 2, 0}, float(kPi / 2)},
  };
  for (const Case& c : cases) EXPECT_FLOAT_EQ(c.a.AngleWith(c.b, false), c.expected);
  // Signed turn seen from +z: a quarter turn clockwise is three quarters counter-clockwise.
  EXPECT_FLOAT_EQ(g3d_Vector(1, 0, 0).AngleWith({0, -1, 0}, false, {0, 0, 1}), float(3 * kPi / 2));
  EXPECT_FLOAT_EQ(g3d_Vector(1, 0, 0).AngleWith({0, 1, 0}, false, {0, 0, 1}), float(kPi / 2));
}

TEST(VectorTest, PointDifferenceDividesByW) {
  EXPECT_EQ(g3d_Point(2, 4, 6, 2) - g3d_Point(1, 1, 1, 1), g3d_Vector(0, 1, 2));
  EXPECT_EQ(g3d_Point(1, 1, 1, 1) - g3d_Point(4, 4, 4, 4), g3d_Vector(0, 0, 0));
  EXPECT_EQ(g3d_Point(5, 6, 7, 0) - g3d_Point(1, 2, 3, 0), g3d_Vector(4, 4, 4));  // w 0: as is
}

TEST(VectorTest, ProjectOnKeepsThePerpendicularPart) {
  g3d_Storage out;
  g3d_ProjectOn(g3d_Storage(0, 0, 5), g3d_Storage(1, 2, 3), out);
  EXPECT_EQ(std::tuple(out.x, out.y, out.z), std::tuple(1.0, 2.0, 0.0));
}

TEST(VectorTest, StorageAngleClampsAtOne) {
  EXPECT_EQ(g3d_AngleWith(g3d_Storage(1, 0, 0), g3d_Storage(-2, 0, 0), false, 0), kPi);
  EXPECT_EQ(g3d_AngleWith(g3d_Storage(1, 0, 0), g3d_Storage(0, 0, 0), false, 0), kPi / 2);
  EXPECT_EQ(g3d_AngleWith(g3d_Storage(1, 0, 0), g3d_Storage(1, 0, 0), true, 0), 0.0);
  // 1e-3 off axis is a real angle in double precision, unlike the float version.
  EXPECT_GT(g3d_AngleWith(g3d_Storage(1, 0, 0), g3d_Storage(1, 1e-3, 0), false, 0), 0.0);
}

TEST(VectorTest, PrintsComponentsAsDoubles) {
  std::ostringstream text;
  aio_ostream out(&text);
  out << g3d_Vector(1, -2.5f, 0) << " " << g3d_Point(0.5f, 0, 0);
  EXPECT_EQ(text.str(), "(1, -2.5, 0) (0.5, 0, 0, 1)");
}
}  // namespace
