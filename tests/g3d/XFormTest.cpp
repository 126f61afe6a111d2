// Transforms: composition order, rotation sense, inversion, projections, equality, stack.
#include <g3d_XFormStack.h>

#include <aio_ostream.h>
#include <nex_AssertException.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <sstream>

namespace {
g3d_Point Apply(const g3d_XForm& m, g3d_Point p) {
  m.XForm(&p, 1);
  return p;
}

void ExpectNear(const g3d_Point& a, const g3d_Point& b, float tol = 1e-6f) {
  EXPECT_NEAR(a.x, b.x, tol);
  EXPECT_NEAR(a.y, b.y, tol);
  EXPECT_NEAR(a.z, b.z, tol);
  EXPECT_NEAR(a.w, b.w, tol);
}

TEST(XFormTest, RotationIsCounterClockwiseAboutTheAxis) {
  struct Case {
    g3d_Vector axis;
    g3d_Point from, to;
  };
  const Case cases[] = {
      {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}},
      {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
      {{0, 3, 0}, {0, 0, 1}, {1, 0, 0}},  // axis length does not matter
  };
  for (const Case& c : cases) ExpectNear(Apply(g3d_XForm().SetRotate(90, c.axis), c.from), c.to);
  // The quaternion of a quarter turn about z agrees.
  const float half[2] = {std::sqrt(0.5f), std::sqrt(0.5f)};
  ExpectNear(Apply(g3d_XForm().SetRotate2d(half), {1, 0, 0}), {0, 1, 0});
}

TEST(XFormTest, DegenerateRotationsAreIdentity) {
  EXPECT_EQ(g3d_XForm().SetRotate(0, {0, 0, 1}), g3d_XForm());
  EXPECT_EQ(g3d_XForm().SetRotate(30, {0, 0, 0}), g3d_XForm());
  g3d_XForm scaled;
  scaled.SetScale(2, 3, 4);
  const g3d_XForm before = scaled;
  EXPECT_EQ(scaled.Rotate(0, {1, 0, 0}).Rotate(30, {0, 0, 0}), before);
}

TEST(XFormTest, FactorsApplyRightToLeft) {
  g3d_XForm m;
  m.SetScale(2, 2, 2).Translate(1, 0, 0);
  EXPECT_EQ(Apply(m, {0, 0, 0}), g3d_Point(2, 0, 0));  // translated in the scaled frame
  g3d_XForm n;
  n.Translate(5, 0, 0).Rotate(90, {0, 0, 1});  // rotate first, then translate
  ExpectNear(Apply(n, {1, 0, 0}), {5, 1, 0, 1});
  ExpectNear(Apply(g3d_XForm().SetTranslate(g3d_Vector(5, 0, 0)) * g3d_XForm().SetRotate(90, {0, 0, 1}),
                   {1, 0, 0}),
             {5, 1, 0, 1});
}

TEST(XFormTest, TranslateByPointDividesByW) {
  const g3d_XForm m = g3d_XForm().SetTranslate(g3d_Point(2, 4, 6, 2));
  EXPECT_EQ(m.GetM(0, 3), 1.0f);
  EXPECT_EQ(m.GetM(1, 3), 2.0f);
  EXPECT_EQ(m.GetM(2, 3), 3.0f);
  EXPECT_EQ(g3d_XForm().SetTranslate(g3d_Point(2, 4, 6, 0)).GetM(2, 3), 6.0f);
}

TEST(XFormTest, InverseOfSingularIsUnchanged) {
  const float rows[4][4] = {{1, 2, 3, 4}, {2, 4, 6, 8}, {0, 1, 0, 0}, {0, 0, 0, 1}};
  g3d_XForm m(rows);
  EXPECT_EQ(m.Determinant(), 0.0);
  const g3d_XForm before = m;
  EXPECT_EQ(m.Invert(), before);
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
    g3d_XForm inverse = m;
    inverse.Invert();
    const g3d_XForm product = m * inverse;
    for (int i = 0; i < 4; ++i) {
      for (int j = 0; j < 4; ++j) EXPECT_NEAR(product.GetM(i, j), i == j ? 1.0f : 0.0f, 2e-4f);
    }
  }
  const double det = g3d_XForm().SetScale(2, 3, 4).Determinant();
  EXPECT_EQ(det, 24.0);
}

TEST(XFormTest, PerspectiveProjectsKnownPoints) {
  g3d_XForm p;
  p.SetPerspectiveProjection(-1, 1, 1, -1, 1, 10);
  const auto ndc = [&p](g3d_Point q) {
    q = Apply(p, q);
    return g3d_Point(q.x / q.w, q.y / q.w, q.z / q.w);
  };
  ExpectNear(ndc({1, 1, -1}), {1, 1, -1});      // near corner
  ExpectNear(ndc({-10, -10, -10}), {-1, -1, 1}, 1e-5f);  // far corner
  // Argument order: top before bottom. Swapping them flips y.
  g3d_XForm flipped;
  flipped.SetPerspectiveProjection(-1, 1, -1, 1, 1, 10);
  EXPECT_EQ(flipped.GetM(1, 1), -p.GetM(1, 1));
}

TEST(XFormTest, DegenerateFrustaLeaveIdentity) {
  EXPECT_EQ(g3d_XForm().SetPerspectiveProjection(-1, 1, 1, -1, 0, 10), g3d_XForm());  // near 0
  EXPECT_EQ(g3d_XForm().SetPerspectiveProjection(1, 1, 1, -1, 1, 10), g3d_XForm());
  EXPECT_EQ(g3d_XForm().SetPerspectiveProjection(-1, 1, 1, -1, 5, 2), g3d_XForm());
  g3d_XForm ortho;
  ortho.SetOrthographicProjection(-1, 1, 1, -1, 0, 10);
  EXPECT_NE(ortho, g3d_XForm());
  ExpectNear(Apply(ortho, {1, -1, -10}), {1, -1, 1, 1});
  EXPECT_EQ(g3d_XForm().SetOrthographicProjection(-1, 1, 1, 1, 0, 10), g3d_XForm());
}

TEST(XFormTest, ArraysMatchElementByElement) {
  g3d_XForm m;
  m.SetRotate(33, {1, 2, 3}).Translate(1, -2, 3).Scale(1.5f, 0.5f, 2);
  m.M(3, 0) = 0.25f;  // a projective row too
  std::vector<g3d_Point> points;
  std::vector<g3d_Vector> vectors;
  for (int i = 0; i < 11; ++i) {  // two passes of four and a rest of three
    points.emplace_back(float(i), float(i * i) * 0.1f, -float(i), 1.0f + float(i % 2));
    vectors.emplace_back(float(i), 1.0f, -float(i));
  }
  auto bulkPoints = points;
  auto bulkVectors = vectors;
  m.XForm(bulkPoints.data(), int(bulkPoints.size()));
  m.XForm(bulkVectors.data(), int(bulkVectors.size()));
  for (std::size_t i = 0; i < points.size(); ++i) {
    g3d_Point p = points[i];
    const float expected[4] = {
        m.GetM(0, 0) * p.x + m.GetM(0, 1) * p.y + m.GetM(0, 2) * p.z + m.GetM(0, 3) * p.w,
        m.GetM(1, 0) * p.x + m.GetM(1, 1) * p.y + m.GetM(1, 2) * p.z + m.GetM(1, 3) * p.w,
        m.GetM(2, 0) * p.x + m.GetM(2, 1) * p.y + m.GetM(2, 2) * p.z + m.GetM(2, 3) * p.w,
        m.GetM(3, 0) * p.x + m.GetM(3, 1) * p.y + m.GetM(3, 2) * p.z + m.GetM(3, 3) * p.w};
    EXPECT_EQ(bulkPoints[i], g3d_Point(expected[0], expected[1], expected[2], expected[3])) << i;
    m.XForm(&p, 1);
    EXPECT_EQ(bulkPoints[i], p);
    g3d_Vector v = vectors[i];
    m.XForm(&v, 1);
    EXPECT_EQ(bulkVectors[i], v);
    EXPECT_EQ(v.x, m.GetM(0, 0) * vectors[i].x + m.GetM(0, 1) * vectors[i].y + m.GetM(0, 2) * vectors[i].z);
  }
  m.XForm(points.data(), 0);
  m.XForm(points.data(), -3);
}

TEST(XFormTest, NaNMakesEvenCopiesUnequal) {
  g3d_XForm a;
  a.M(2, 1) = std::numeric_limits<float>::quiet_NaN();
  const g3d_XForm copy = a;
  EXPECT_FALSE(a == copy);
  EXPECT_TRUE(a != copy);
  EXPECT_FALSE(a == g3d_XForm());
  EXPECT_TRUE(a == a);
}

TEST(XFormTest, TransposeAndColumnMajorExport) {
  const float rows[4][4] = {{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}, {13, 14, 15, 16}};
  const g3d_XForm m(rows);
  double columns[16];
  m.GetTranspose(columns);
  EXPECT_EQ(columns[1], 5.0);
  EXPECT_EQ(columns[12], 4.0);
  g3d_XForm t = m;
  t.Transpose();
  EXPECT_EQ(t.GetM(0, 1), 5.0f);
  EXPECT_EQ(t.Transpose(), m);
  const g3d_XForm framed = g3d_XForm().Set({1, 2, 3}, {4, 5, 6}, {7, 8, 9});
  EXPECT_EQ(framed.GetM(1, 0), 2.0f);
  EXPECT_EQ(framed.GetM(0, 2), 7.0f);
  EXPECT_EQ(framed.GetM(3, 3), 1.0f);
}

TEST(XFormTest, PrintsRowsInBraces) {
  std::ostringstream text;
  aio_ostream out(&text);
  out << g3d_XForm().SetTranslate(g3d_Vector(0.5f, 0, -2));
  EXPECT_EQ(text.str(), "\n{\n  1 0 0 0.5\n  0 1 0 0\n  0 0 1 -2\n  0 0 0 1\n}\n");
}

TEST(XFormStackTest, PushPostMultipliesAndResetRebases) {
  g3d_XFormStack stack(3);
  EXPECT_EQ(stack.Top(), g3d_XForm());
  stack.Push(g3d_XForm().SetTranslate(g3d_Vector(1, 0, 0)));
  stack.Push(g3d_XForm().SetScale(2, 2, 2));
  EXPECT_EQ(Apply(stack.Top(), {1, 0, 0}), g3d_Point(3, 0, 0));
  const g3d_XFormStack copy = stack;
  stack.Pop();
  EXPECT_EQ(Apply(stack.Top(), {1, 0, 0}), g3d_Point(2, 0, 0));
  EXPECT_EQ(Apply(copy.Top(), {1, 0, 0}), g3d_Point(3, 0, 0));
  stack.Reset(g3d_XForm().SetScale(5, 5, 5));
  EXPECT_EQ(stack.Depth(), 0);
  EXPECT_EQ(Apply(stack.Top(), {1, 0, 0}), g3d_Point(5, 0, 0));
}

#ifndef NDEBUG
TEST(XFormStackTest, CapacityOneHoldsOnlyTheBase) {
  g3d_XFormStack stack(1);
  EXPECT_EQ(stack.Depth(), 0);
  EXPECT_THROW(stack.Push(g3d_XForm()), nex_AssertException);
  EXPECT_EQ(stack.Depth(), 0);
}
#endif
}  // namespace
