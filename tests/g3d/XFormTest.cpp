// Transforms: composition order, rotation sense, inversion, projections, equality, stack (their
// printing is VectorTest.cpp's).
#include "G3dTestSupport.h"

#include <g3d_XFormStack.h>

#include <nex_AssertException.h>

#include <cmath>
#include <limits>
#include <random>

namespace {
TEST(XFormTest, RotationIsCounterClockwiseAboutTheAxis) {
  const struct {
    g3d_Vector axis;
    g3d_Point from, to;
  } cases[] = {
      {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}},
      {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
      {{0, 3, 0}, {0, 0, 1}, {1, 0, 0}},  // axis length does not matter
  };
  for (const auto& c : cases) ExpectNear(Through(g3d_XForm().SetRotate(90, c.axis), c.from), c.to);
  // The quaternion of a quarter turn about z agrees.
  const float half[2] = {std::sqrt(0.5f), std::sqrt(0.5f)};
  ExpectNear(Through(g3d_XForm().SetRotate2d(half), {1, 0, 0}), {0, 1, 0});
}

TEST(XFormTest, DegenerateInputsLeaveTheMatrixAsItWas) {
  const g3d_XForm identity;
  EXPECT_EQ(g3d_XForm().SetRotate(0, {0, 0, 1}), identity);
  EXPECT_EQ(g3d_XForm().SetRotate(30, {0, 0, 0}), identity);
  const g3d_XForm scaled = g3d_XForm().SetScale(2, 3, 4);
  EXPECT_EQ(g3d_XForm(scaled).Rotate(0, {1, 0, 0}).Rotate(30, {0, 0, 0}), scaled);
  EXPECT_EQ(g3d_XForm().SetPerspectiveProjection(-1, 1, 1, -1, 0, 10), identity);  // near 0
  EXPECT_EQ(g3d_XForm().SetPerspectiveProjection(1, 1, 1, -1, 1, 10), identity);   // no width
  EXPECT_EQ(g3d_XForm().SetPerspectiveProjection(-1, 1, 1, -1, 5, 2), identity);   // far first
  EXPECT_EQ(g3d_XForm().SetOrthographicProjection(-1, 1, 1, 1, 0, 10), identity);  // no height
  const float singular[4][4] = {{1, 2, 3, 4}, {2, 4, 6, 8}, {0, 1, 0, 0}, {0, 0, 0, 1}};
  EXPECT_EQ(g3d_XForm(singular).Invert(), g3d_XForm(singular));
}

// A translation by a point divides by its w.
TEST(XFormTest, TranslationsAndFactorsApplyRightToLeft) {
  // Translated in the scaled frame; rotated first, then translated.
  EXPECT_EQ(Through(g3d_XForm().SetScale(2, 2, 2).Translate(1, 0, 0), {0, 0, 0}),
            g3d_Point(2, 0, 0));
  ExpectNear(Through(g3d_XForm().Translate(5, 0, 0).Rotate(90, {0, 0, 1}), {1, 0, 0}),
             {5, 1, 0, 1});
  const g3d_XForm product =
      g3d_XForm().SetTranslate(g3d_Vector(5, 0, 0)) * g3d_XForm().SetRotate(90, {0, 0, 1});
  ExpectNear(Through(product, {1, 0, 0}), {5, 1, 0, 1});
  const g3d_XForm m = g3d_XForm().SetTranslate(g3d_Point(2, 4, 6, 2));
  EXPECT_EQ(std::tuple(m.GetM(0, 3), m.GetM(1, 3), m.GetM(2, 3)), std::tuple(1.0f, 2.0f, 3.0f));
  EXPECT_EQ(g3d_XForm().SetTranslate(g3d_Point(2, 4, 6, 0)).GetM(2, 3), 6.0f);  // w 0: as is
}

TEST(XFormTest, InverseTimesMatrixIsIdentity) {
  std::mt19937 random(7);
  std::uniform_real_distribution<float> value(-3, 3);
  for (int trial = 0; trial < 50; ++trial) {
    float rows[4][4];
    for (auto& row : rows) {
      for (float& x : row) x = value(random);
    }
    const g3d_XForm m(rows);
    if (std::fabs(m.Determinant()) < 0.1) continue;
    const g3d_XForm product = m * g3d_XForm(m).Invert();
    for (int i = 0; i < 16; ++i) {
      EXPECT_NEAR(product.GetM(i / 4, i % 4), i % 5 == 0 ? 1.0f : 0.0f, 2e-4f) << "trial " << trial;
    }
  }
  EXPECT_EQ(g3d_XForm().SetScale(2, 3, 4).Determinant(), 24.0);
}

TEST(XFormTest, ProjectionsMapKnownPoints) {
  const g3d_XForm p = g3d_XForm().SetPerspectiveProjection(-1, 1, 1, -1, 1, 10);
  const auto ndc = [&p](g3d_Point q) {
    q = Through(p, q);
    return g3d_Point(q.x / q.w, q.y / q.w, q.z / q.w);
  };
  ExpectNear(ndc({1, 1, -1}), {1, 1, -1});               // near corner
  ExpectNear(ndc({-10, -10, -10}), {-1, -1, 1}, 1e-5f);  // far corner
  // Argument order: top before bottom. Swapping them flips y.
  EXPECT_EQ(g3d_XForm().SetPerspectiveProjection(-1, 1, -1, 1, 1, 10).GetM(1, 1), -p.GetM(1, 1));
  // Orthographic takes a near plane at 0.
  const g3d_XForm ortho = g3d_XForm().SetOrthographicProjection(-1, 1, 1, -1, 0, 10);
  ExpectNear(Through(ortho, {1, -1, -10}), {1, -1, 1, 1});
}

TEST(XFormTest, ArraysMatchElementByElement) {
  g3d_XForm m = g3d_XForm().SetRotate(33, {1, 2, 3}).Translate(1, -2, 3).Scale(1.5f, 0.5f, 2);
  m.M(3, 0) = 0.25f;  // a projective row too
  std::vector<g3d_Point> points, bulkPoints;
  std::vector<g3d_Vector> bulkVectors;
  for (int i = 0; i < 11; ++i) {  // two passes of four and a rest of three
    points.emplace_back(float(i), float(i * i) * 0.1f, -float(i), 1.0f + float(i % 2));
    bulkVectors.emplace_back(float(i), 1.0f, -float(i));
  }
  bulkPoints = points;
  m.XForm(bulkPoints.data(), int(bulkPoints.size()));
  m.XForm(bulkVectors.data(), int(bulkVectors.size()));
  const auto row = [&m](int r, const g3d_Point& p) {
    return m.GetM(r, 0) * p.x + m.GetM(r, 1) * p.y + m.GetM(r, 2) * p.z + m.GetM(r, 3) * p.w;
  };
  for (std::size_t i = 0; i < points.size(); ++i) {
    const g3d_Point& p = points[i];
    EXPECT_EQ(bulkPoints[i], g3d_Point(row(0, p), row(1, p), row(2, p), row(3, p))) << i;
    const g3d_Point v(float(i), 1.0f, -float(i), 0.0f);  // a vector takes the 3x3 part only
    EXPECT_EQ(bulkVectors[i], g3d_Vector(row(0, v), row(1, v), row(2, v))) << i;
  }
  const std::vector<g3d_Point> before = points;
  m.XForm(points.data(), 0);
  m.XForm(points.data(), -3);
  EXPECT_EQ(points, before);  // nothing to do, nothing touched
}

TEST(XFormTest, NaNMakesEvenCopiesUnequal) {
  g3d_XForm a;
  a.M(2, 1) = std::numeric_limits<float>::quiet_NaN();
  const g3d_XForm copy = a;
  EXPECT_EQ(std::tuple(a == copy, a != copy, a == g3d_XForm(), a == a),
            std::tuple(false, true, false, true));
}

TEST(XFormTest, TransposeColumnMajorExportAndFrames) {
  const float rows[4][4] = {{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}, {13, 14, 15, 16}};
  const g3d_XForm m(rows);
  double columns[16];
  m.GetTranspose(columns);
  EXPECT_EQ(std::tuple(columns[1], columns[12]), std::tuple(5.0, 4.0));
  g3d_XForm t = m;
  EXPECT_EQ(t.Transpose().GetM(0, 1), 5.0f);
  EXPECT_EQ(t.Transpose(), m);
  const g3d_XForm framed = g3d_XForm().Set({1, 2, 3}, {4, 5, 6}, {7, 8, 9});  // vectors as columns
  EXPECT_EQ(std::tuple(framed.GetM(1, 0), framed.GetM(0, 2), framed.GetM(3, 3)),
            std::tuple(2.0f, 7.0f, 1.0f));
}

TEST(XFormStackTest, PushPostMultipliesAndResetRebases) {
  g3d_XFormStack stack(3);
  EXPECT_EQ(stack.Top(), g3d_XForm());
  stack.Push(g3d_XForm().SetTranslate(g3d_Vector(1, 0, 0)));
  stack.Push(g3d_XForm().SetScale(2, 2, 2));
  EXPECT_EQ(Through(stack.Top(), {1, 0, 0}), g3d_Point(3, 0, 0));
  const g3d_XFormStack copy = stack;
  stack.Pop();
  EXPECT_EQ(Through(stack.Top(), {1, 0, 0}), g3d_Point(2, 0, 0));
  EXPECT_EQ(Through(copy.Top(), {1, 0, 0}), g3d_Point(3, 0, 0));
  stack.Reset(g3d_XForm().SetScale(5, 5, 5));
  EXPECT_EQ(stack.Depth(), 0);
  EXPECT_EQ(Through(stack.Top(), {1, 0, 0}), g3d_Point(5, 0, 0));
}

#ifndef NDEBUG
TEST(XFormStackTest, CapacityOneHoldsOnlyTheBase) {
  g3d_XFormStack stack(1);
  EXPECT_THROW(stack.Push(g3d_XForm()), nex_AssertException);
  EXPECT_EQ(stack.Depth(), 0);
}
#endif
}  // namespace
