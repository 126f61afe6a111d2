// Tolerance-driven predicates and intersections.
#include <g3d_GeomUtils.h>
#include <g3d_Plane.h>

#include <nex_TextException.h>

#include <gtest/gtest.h>

#include <iomanip>
#include <sstream>
#include <string>

namespace {
using S = g3d_Storage;
using P = g3d_Point;

// What an intersection call answered: "hit" or "miss", the count, and the parameters of each
// point found, to seven digits: "(s, t)", or "(lp; s, t)" where the call gives one along the line.
class GeomUtilsTest : public ::testing::Test, protected g3d_GeomUtils {
protected:
  void TearDown() override { setTolerance(1e-5); }

  static std::string Text(bool hit, int count, const double* s, const double* t,
                          const double* lp = nullptr) {
    std::ostringstream text;
    text << std::setprecision(7) << (hit ? "hit " : "miss ") << count;
    for (int i = 0; i < count; ++i) {
      text << " (";
      if (lp) text << lp[i] << "; ";
      text << s[i] << ", " << t[i] << ')';
    }
    return text.str();
  }
  template <class Q>  // g3d_Point widens to g3d_Storage
  static std::string LineLine(Q p0, Q p1, Q q0, Q q1, bool bounded) {
    double s[2], t[2];
    int count = -1;
    const bool hit = LineLineIntersection(p0, p1, q0, q1, s, t, count, bounded, bounded);
    return Text(hit, count, s, t);
  }
  static std::string LinePlane(S p0, S p1, S origin, S u, S v) {
    double lp[2], s[2], t[2];
    int count = -1;
    const bool hit = LinePlaneIntersection(p0, p1, origin, u, v, lp, s, t, count);
    return Text(hit, count, s, t, lp);
  }
  static std::string LineTri(S p0, S p1, bool bounded) {
    double lp[2], s[2], t[2];
    int count = -1;
    const bool hit =
        LineTriIntersection(p0, p1, S(0, 0, 0), S(1, 0, 0), S(0, 1, 0), lp, s, t, count, bounded);
    return Text(hit, count, s, t, lp);
  }
};

// Strict comparison; a vector shorter than the tolerance is not normalized; collinearity uses
// the absolute area; the tolerance is read on every call.
TEST_F(GeomUtilsTest, Tolerances) {
  EXPECT_FALSE(EqualValue(1, 1 + 1e-5, 1e-5));
  EXPECT_TRUE(EqualValue(1, 1 + 0.9e-5, 1e-5));
  EXPECT_FALSE(EqualPoint(S(0, 0, 0), S(0, 0, 2e-5), 1e-5));
  EXPECT_EQ(g3d_NormalizeVector({1e-6f, 0, 0}), g3d_Vector(1e-6f, 0, 0));
  EXPECT_EQ(g3d_NormalizeVector({0, 2, 0}), g3d_Vector(0, 1, 0));
  EXPECT_TRUE(PointsCollinear(S(0, 0, 0), S(1, 1, 1), S(3, 3, 3)));
  EXPECT_FALSE(PointsCollinear(S(0, 0, 0), S(1, 0, 0), S(0, 1e-4, 0)));
  setTolerance(1e-7);
  EXPECT_EQ(g3d_NormalizeVector({1e-6f, 0, 0}), g3d_Vector(1, 0, 0));
  setTolerance(1e-3);
  EXPECT_TRUE(PointsCollinear(P(0, 0, 0), P(1, 0, 0), P(0, 1e-4f, 0)));
}

// A point in a plane is given in the caller's vectors; a point on a line by its parameter.
TEST_F(GeomUtilsTest, PointInPlaneAndOnLine) {
  double s = 0, t = 0;
  ASSERT_TRUE(PointInPlane(S(3, 8, 5), S(1, 0, 5), S(2, 0, 0), S(0, 4, 0), s, t));
  EXPECT_NEAR(s, 1.0, 1e-12);
  EXPECT_NEAR(t, 2.0, 1e-12);
  EXPECT_FALSE(PointInPlane(S(3, 8, 6), S(1, 0, 5), S(2, 0, 0), S(0, 4, 0), s, t));  // off plane
  EXPECT_FALSE(PointInPlane(S(3, 8, 5), S(1, 0, 5), S(2, 0, 0), S(4, 0, 0), s, t));  // parallel
  double param = 0;
  EXPECT_TRUE(LinePointIntersection(S(0, 0, 0), S(4, 0, 0), S(1, 0, 0), param, true));
  EXPECT_DOUBLE_EQ(param, 0.25);
  EXPECT_FALSE(LinePointIntersection(S(0, 0, 0), S(4, 0, 0), S(8, 0, 0), param, true));
  EXPECT_TRUE(LinePointIntersection(S(0, 0, 0), S(4, 0, 0), S(8, 0, 0), param, false));
  EXPECT_DOUBLE_EQ(param, 2.0);
  EXPECT_FALSE(LinePointIntersection(S(0, 0, 0), S(4, 0, 0), S(1, 1e-3, 0), param, false));
}

TEST_F(GeomUtilsTest, Intersections) {
  const S o(0, 0, 0), x(1, 0, 0), y(0, 1, 0);
  // (0, 0, 0)-(2, 0, 0) against the segment across it at x = at.
  const auto across = [](float at, bool bounded) {
    return LineLine(P(0, 0, 0), P(2, 0, 0), P(at, -1, 0), P(at, 1, 0), bounded);
  };
  const struct {
    const char* what;
    std::string got, expected;
  } cases[] = {
      {"crossing", across(1, true), "hit 1 (0.5, 0.5)"},
      {"within the tolerance of the end", across(2.00001f, true), "hit 1 (1.000005, 0.5)"},
      {"beyond the end", across(2.1f, true), "miss 0"},
      {"beyond the end, unbounded", across(2.1f, false), "hit 1 (1.05, 0.5)"},
      {"before the start", across(-0.5f, true), "miss 0"},
      {"skew", LineLine(o, x, S(0, 1, 1), S(0, 2, 1), false), "miss 0"},
      {"parallel, apart", LineLine(o, x, y, S(1, 1, 0), false), "miss 0"},
      {"collinear, overlapping", LineLine(o, x * 2, x, x * 3, true), "hit 2 (0.5, 0) (1, 0.5)"},
      {"collinear, end to end", LineLine(o, x, x, x * 2, true), "hit 1 (1, 0)"},
      {"collinear, disjoint", LineLine(o, x, x * 2, x * 3, true), "miss 0"},
      {"through a plane", LinePlane(S(1, 2, -1), S(1, 2, 1), o, x * 2, y * 4),
       "hit 1 (0.5; 0.5, 0.5)"},
      {"in a plane", LinePlane(S(1, 1, 0), S(3, 2, 0), o, x, y), "hit 2 (0; 1, 1) (1; 3, 2)"},
      {"parallel, above a plane", LinePlane(S(0, 0, 1), S(1, 0, 1), o, x, y), "miss 0"},
      {"through a triangle", LineTri(S(0.25, 0.25, -1), S(0.25, 0.25, 1), true),
       "hit 1 (0.5; 0.25, 0.25)"},
      {"beside a triangle", LineTri(S(0.75, 0.75, -1), S(0.75, 0.75, 1), true), "miss 0"},
      {"short of a triangle", LineTri(S(0.25, 0.25, 1), S(0.25, 0.25, 2), true), "miss 0"},
      {"short of a triangle, unbounded", LineTri(S(0.25, 0.25, 1), S(0.25, 0.25, 2), false),
       "hit 1 (-1; 0.25, 0.25)"},
      // The segment y = 0.25 from x = -1 to 2 is clipped to x in [0, 0.75], widened by the
      // tolerance.
      {"in a triangle's plane", LineTri(S(-1, 0.25, 0), S(2, 0.25, 0), true),
       "hit 2 (0.33333; -1e-05, 0.25) (0.5833367; 0.75001, 0.25)"},
  };
  for (const auto& c : cases) EXPECT_EQ(c.got, c.expected) << c.what;
}

TEST_F(GeomUtilsTest, SegmentsPolygonRangeAndPointInside) {
  EXPECT_TRUE(SegmentsIntersect2D(P(0, 0, 0), P(2, 2, 0), P(0, 2, 0), P(2, 0, 0)));
  EXPECT_TRUE(SegmentsIntersect2D(P(0, 0, 0), P(1, 0, 0), P(1, 0, 0), P(1, 5, 0)));  // touching
  EXPECT_TRUE(SegmentsIntersect2D(P(0, 0, 0), P(2, 0, 0), P(1, 0, 0), P(3, 0, 0)));  // overlap
  EXPECT_FALSE(SegmentsIntersect2D(P(0, 0, 0), P(1, 0, 0), P(2, 0, 0), P(3, 0, 0)));
  EXPECT_FALSE(SegmentsIntersect2D(P(0, 0, 0), P(1, 1, 0), P(0, 1, 0), P(0.4f, 0.6f, 0)));
  const cow_List<g3d_Point> square{P(0, 0, 0), P(4, 0, 0), P(4, 4, 0), P(0, 4, 0)};
  P min, max;
  EXPECT_FALSE(RangeOfPolygon(cow_List<g3d_Point>(), min, max));
  ASSERT_TRUE(RangeOfPolygon({P(1, 5, 2, 3), P(-1, 7, 0, 1)}, min, max));
  EXPECT_EQ(min, P(-1, 5, 0, 3));
  EXPECT_EQ(max, P(1, 7, 2, 3));
  EXPECT_TRUE(PointInPolygon2D(square, P(2, 2, 0)));
  EXPECT_FALSE(PointInPolygon2D(square, P(5, 2, 0)));
  EXPECT_THROW(PointInPolygon2D(cow_List<g3d_Point>(), P()), nex_TextException);
}

TEST_F(GeomUtilsTest, LineAgainstPolygonNeedsTheClosingVertex) {
  const cow_List<g3d_Point> triangle{P(0, 0, 0), P(4, 0, 0), P(0, 4, 0)};
  cow_List<g3d_Point> closed = triangle;
  closed.Append(P(0, 0, 0));
  // This segment crosses only the closing edge x = 0.
  const P a(-1, 1, 0), b(1, 1, 0);
  EXPECT_EQ(IntersectLinePolygon2D(triangle, a, b), g3d_CLIP_OUTSIDE);
  EXPECT_EQ(IntersectLinePolygon2D(closed, a, b), g3d_CLIP_CROSSING);
  EXPECT_EQ(IntersectLinePolygon2D(closed, P(1, 1, 0), P(1, 2, 0)), g3d_CLIP_INSIDE);
  const P min(0, 0, 0), max(4, 4, 0);
  EXPECT_EQ(IntersectLinePolygon2D(closed, P(5, 0, 0), P(6, 9, 0), &min, &max),
            g3d_CLIP_OUTSIDE_EARLY);
  EXPECT_EQ(IntersectLinePolygon2D(closed, P(5, 0, 0), P(6, 9, 0), &min, nullptr),
            g3d_CLIP_OUTSIDE);
  EXPECT_THROW(IntersectLinePolygon2D(cow_List<g3d_Point>(), a, b), nex_TextException);
}

TEST_F(GeomUtilsTest, PolygonAgainstPolygon) {
  const cow_List<g3d_Point> square{P(0, 0, 0), P(4, 0, 0), P(4, 4, 0), P(0, 4, 0), P(0, 0, 0)};
  const struct {
    cow_List<g3d_Point> other;
    g3d_ClipResultEnum expected;
  } cases[] = {
      {{P(1, 1, 0), P(2, 1, 0), P(2, 2, 0), P(1, 1, 0)}, g3d_CLIP_INSIDE},
      {{P(3, 3, 0), P(5, 3, 0), P(5, 5, 0), P(3, 3, 0)}, g3d_CLIP_CROSSING},
      // Every edge is out early, but only a single vertex answers "early".
      {{P(6, 6, 0), P(7, 6, 0), P(7, 7, 0), P(6, 6, 0)}, g3d_CLIP_OUTSIDE},
      {{P(2, 2, 0)}, g3d_CLIP_INSIDE},
      {{P(9, 2, 0)}, g3d_CLIP_OUTSIDE_EARLY},
      {{}, g3d_CLIP_OUTSIDE},
  };
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    EXPECT_EQ(IntersectPolygonPolygon2D(square, cases[i].other), cases[i].expected) << "row " << i;
  }
  // A caller's range wins over the computed one.
  const P min(10, 10, 0), max(20, 20, 0);
  EXPECT_EQ(IntersectPolygonPolygon2D(square, cases[0].other, &min, &max), g3d_CLIP_OUTSIDE);
  EXPECT_THROW(IntersectPolygonPolygon2D(cow_List<g3d_Point>(), square), nex_TextException);
}

TEST_F(GeomUtilsTest, PlaneProjectAndRaySet) {
  const g3d_Plane floor{P(0, 0, 2), g3d_Vector(0, 0, 1)};
  g3d_Ray ray;
  ray.Set(P(1, 1, 5), g3d_Vector(0, 0, -2));
  EXPECT_EQ(floor.Project(ray), P(1, 1, 2));
  ray.Set(ray.origin, g3d_Vector(1, 0, 0));
  EXPECT_EQ(floor.Project(ray), P());  // parallel
  ray.Set(P(9, 9, 9), ray.direction);  // its own direction
  EXPECT_EQ(ray.direction, g3d_Vector(1, 0, 0));
}
}  // namespace
