// Spheres, bounding volumes, lights, the studio and marker bitmaps.
#include "PosixEnv.h"

#include <g3d_Bitmap.h>
#include <g3d_BoundingVolume.h>
#include <g3d_Studio.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <tuple>

namespace {
TEST(SphereTest, Unions) {
  const g3d_Sphere s({1, 2, 3, 1}, 2);
  const struct {
    g3d_Sphere a, b, expected;
  } cases[] = {
      {{{0, 0, 0, 1}, -1}, s, s},  // an empty sphere adds nothing
      {s, {{9, 9, 9, 1}, -1}, s},
      {{{0, 0, 0, 1}, 1}, {{4, 0, 0, 1}, 1}, {{2, 0, 0, 1}, 3}},
      {{{0, 0, 0, 1}, 1}, {{0, 0, 0, 1}, 2}, {{0, 0, 0, 1}, 2}},
      {{{0, 0, 0, 1}, 5}, {{1, 0, 0, 1}, 1}, {{0, 0, 0, 1}, 5}},  // contained
      {{{0, 0, 0, 2}, 1}, {{4, 0, 0, 1}, 1}, {{2, 0, 0, 1}, 3}},  // centres dehomogenised
  };
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    EXPECT_EQ(cases[i].a + cases[i].b, cases[i].expected) << "row " << i;
  }
}

TEST(BoundingVolumeTest, DefaultCubeGrowthAndExtent) {
  g3d_BoundingVolume volume;
  EXPECT_EQ(volume.Count(), 0u);
  volume.Reset();
  EXPECT_EQ(std::tuple(volume.IsDefault(), volume.Vertexes()[1], volume.Vertexes()[4]),
            std::tuple(true, g3d_Point(-1, -1, 1), g3d_Point(1, -1, -1)));
  g3d_BoundingVolume copy = volume;
  EXPECT_TRUE(copy.IsDefault());
  copy.AllocateVertexes(8)[7] = g3d_Point(1, 1, 1);
  EXPECT_FALSE(copy.IsDefault());
  // Appending its own vertices moves them to the heap, doubling.
  volume.AppendVertexes(volume.Vertexes(), 8);
  EXPECT_EQ(std::tuple(volume.Count(), volume.IsDefault()), std::tuple(16u, false));
  EXPECT_EQ(volume.Vertexes()[15], g3d_Point(1, 1, 1));
  volume.AppendVertexes(volume.Vertexes(), 1);  // and again, once on the heap
  const g3d_BoundingVolume big = volume;
  EXPECT_EQ(std::tuple(big.Count(), big.Vertexes()[16]), std::tuple(17u, g3d_Point(-1, -1, -1)));
  volume.Reset();
  EXPECT_TRUE(volume.IsDefault());
  g3d_Sphere extent;
  g3d_BoundingVolume().GetExtent(extent);
  EXPECT_TRUE(extent.IsEmpty());
  volume.SetToRectangleBox({0, 0, 0}, {2, 4, 4});
  volume.GetExtent(extent);
  EXPECT_EQ(extent, g3d_Sphere(g3d_Point(1, 2, 2), 3));
}

TEST(LightTest, LatitudeAndLongitude) {
  g3d_Light light;
  EXPECT_EQ(light.position, g3d_Vector(0, 0, 1));
  light.SetPositionVector(90, 0);
  EXPECT_NEAR(light.position.y, 1, 1e-7);  // a unit vector: the other parts are 0
  light.SetPositionVector(0, 90);
  EXPECT_NEAR(light.position.x, 1, 1e-7);
  EXPECT_NE(light, g3d_Light());
}

TEST(StudioTest, TestPrintIsReadOnce) {
  ::testing::FLAGS_gtest_death_test_style = "threadsafe";  // a fresh process
  EXPECT_EXIT(
      {
        setenv("CVX_QA_PRINT", "1", 1);
        const g3d_Studio first;
        unsetenv("CVX_QA_PRINT");
        const g3d_Studio second;
        // The second studio keeps the first one's reading; both take the plain print set-up.
        std::fprintf(stderr, "print %d %d, equal %d, shininess %g", first.testPrint,
                     second.testPrint, first == second, first.shininess);
        std::exit(0);
      },
      ::testing::ExitedWithCode(0), "print 1 1, equal 1, shininess 25");
}

TEST(BitmapTest, BitsAndMarkers) {
  g3d_Bitmap bitmap;
  bitmap.SetSize(10, 3, false, false);
  EXPECT_EQ(bitmap.RowBytes(), 2);
  bitmap.SetBit(9, 2, true);
  EXPECT_EQ(bitmap.GetBit(9, 2), 1);
  EXPECT_EQ(bitmap.Data()[2 * 2 + 1], 0x40);  // most significant bit first
  EXPECT_EQ(bitmap.GetBit(10, 0), 0);
  g3d_Bitmap flipped;
  flipped.SetSize(10, 3, false, true);
  flipped.SetBit(9, 2, true);
  EXPECT_EQ(flipped.Data()[1], 0x40);  // bottom row first
  EXPECT_NE(flipped, bitmap);

  const auto count = [](const g3d_Bitmap& b) {
    int on = 0;
    for (int i = 0; i < b.Width() * b.Height(); ++i) on += b.GetBit(i % b.Width(), i / b.Width());
    return on;
  };
  const struct {
    g3d_MarkerEnum marker;
    int pixels;  // of a marker of size 5
  } cases[] = {{MARKER_FILLED_SQUARE, 25},  {MARKER_HOLLOW_SQUARE, 16},
               {MARKER_CROSS, 9},           {MARKER_XS, 9},
               {MARKER_FILLED_DIAMOND, 13}, {MARKER_HOLLOW_DIAMOND, 8},
               {MARKER_POINT, 1},           {MARKER_FILLED_CIRCLE, 21}};
  for (const auto& c : cases) {
    bitmap.SetMarker(c.marker, 5);
    EXPECT_EQ(count(bitmap), c.pixels) << c.marker;
    const bool hollow = c.marker == MARKER_HOLLOW_SQUARE || c.marker == MARKER_HOLLOW_DIAMOND;
    EXPECT_EQ(bitmap.GetBit(2, 2), hollow ? 0 : 1) << c.marker;
  }
}
}  // namespace
