#include <g3d_GeomUtils.h>

#include <algorithm>
#include <array>
#include <cfloat>
#include <cmath>
#include <limits>

namespace {
double s_Tolerance = 1e-5;

// Parameters may overshoot [0, 1] by this much and still count as on the segment.
constexpr double kSlack = 1e-5;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

bool InBounds(double param) noexcept { return param >= -kSlack && param <= 1.00001; }

bool AllBelow(const g3d_Storage& v, double tol) noexcept {
  return std::fabs(v.x) < tol && std::fabs(v.y) < tol && std::fabs(v.z) < tol;
}

g3d_Storage Unit(g3d_Storage v) noexcept {
  g3d_Normalize(v);
  return v;
}

// The parameter interval [lo, hi] of a line, cut down by linear constraints f0 + k df >= -slack.
struct Interval {
  double lo;
  double hi;

  void Clip(double f0, double df) noexcept {
    if (df == 0.0) {
      if (f0 < -kSlack) hi = -kInfinity;
    } else if (df > 0.0) {
      lo = std::max(lo, (-kSlack - f0) / df);
    } else {
      hi = std::min(hi, (-kSlack - f0) / df);
    }
  }
  bool IsEmpty() const noexcept { return lo > hi; }
  bool IsPoint() const noexcept { return hi - lo <= kSlack; }
};

double Orientation(const g3d_Point& a, const g3d_Point& b, const g3d_Point& c) noexcept {
  return (double(b.x) - a.x) * (double(c.y) - a.y) - (double(b.y) - a.y) * (double(c.x) - a.x);
}

// c is known to be on the line a-b: is it within the segment's box?
bool WithinBox(const g3d_Point& a, const g3d_Point& b, const g3d_Point& c) noexcept {
  return std::min(a.x, b.x) <= c.x && c.x <= std::max(a.x, b.x) && std::min(a.y, b.y) <= c.y &&
         c.y <= std::max(a.y, b.y);
}

bool Straddles(double o1, double o2) noexcept { return (o1 > 0 && o2 < 0) || (o1 < 0 && o2 > 0); }

void Widen(g3d_Point& min, g3d_Point& max, const g3d_Point& v) noexcept {
  min.x = std::min(min.x, v.x);
  min.y = std::min(min.y, v.y);
  min.z = std::min(min.z, v.z);
  max.x = std::max(max.x, v.x);
  max.y = std::max(max.y, v.y);
  max.z = std::max(max.z, v.z);
}

bool BothBeyond(const g3d_Point& a, const g3d_Point& b, const g3d_Point& min,
                const g3d_Point& max) noexcept {
  return (a.x > max.x && b.x > max.x) || (a.y > max.y && b.y > max.y) ||
         (a.x < min.x && b.x < min.x) || (a.y < min.y && b.y < min.y);
}
}  // namespace

void g3d_GeomUtils::setTolerance(double tolerance) noexcept { s_Tolerance = tolerance; }
double g3d_GeomUtils::getTolerance() noexcept { return s_Tolerance; }

bool g3d_GeomUtils::EqualValue(double a, double b, double tol) noexcept {
  return std::fabs(a - b) < tol;
}

bool g3d_GeomUtils::EqualPoint(const g3d_Storage& a, const g3d_Storage& b, double tol) noexcept {
  return EqualValue(a.x, b.x, tol) && EqualValue(a.y, b.y, tol) && EqualValue(a.z, b.z, tol);
}

g3d_Vector g3d_GeomUtils::g3d_NormalizeVector(const g3d_Vector& v) noexcept {
  const g3d_Storage wide(v);
  const double length = g3d_Magnitude(wide);
  if (std::fabs(length) < s_Tolerance) return v;
  const g3d_Storage unit = wide * (1.0 / length);
  return {float(unit.x), float(unit.y), float(unit.z)};
}

bool g3d_GeomUtils::PointsCollinear(const g3d_Storage& p0, const g3d_Storage& p1,
                                    const g3d_Storage& p2) noexcept {
  return g3d_Magnitude(g3d_Cross(p1 - p0, p2 - p0)) < s_Tolerance;
}

bool g3d_GeomUtils::PointsCollinear(const g3d_Point& p0, const g3d_Point& p1,
                                    const g3d_Point& p2) noexcept {
  return PointsCollinear(g3d_Storage(p0), g3d_Storage(p1), g3d_Storage(p2));
}

bool g3d_GeomUtils::PointInPlane(const g3d_Storage& p, const g3d_Storage& origin, g3d_Storage u,
                                 g3d_Storage v, double& s, double& t) noexcept {
  const double tol = s_Tolerance;
  const double lengthU = g3d_Magnitude(u), lengthV = g3d_Magnitude(v);
  if (lengthU >= tol) g3d_Normalize(u);
  if (lengthV >= tol) g3d_Normalize(v);
  const g3d_Storage n = g3d_Cross(v, u);
  if (AllBelow(n, tol)) return false;

  g3d_Storage d = p - origin;
  const double distance = g3d_Magnitude(d);
  if (distance >= tol) g3d_Normalize(d);
  if (std::fabs(g3d_Dot(d, n)) >= tol) return false;

  // With unit u, v and d = s u + t v: v x d = s n and u x d = -t n, on any usable axis.
  const g3d_Storage a = g3d_Cross(v, d), b = g3d_Cross(u, d);
  std::array<double, 3> estimates{};
  int usable = 0;
  for (int axis = 0; axis < 3; ++axis) {
    if (std::fabs(n[axis]) < tol) continue;
    const double si = a[axis] / n[axis];
    for (int k = 0; k < usable; ++k) {
      if (!EqualValue(estimates[k], si, 1e-5)) return false;
    }
    if (usable == 0) t = -b[axis] / n[axis];
    estimates[usable++] = si;
  }
  s = estimates[0] * distance / lengthU;
  t = t * distance / lengthV;
  return true;
}

bool g3d_GeomUtils::LinePlaneIntersection(const g3d_Storage& p0, const g3d_Storage& p1,
                                          const g3d_Storage& origin, const g3d_Storage& u,
                                          const g3d_Storage& v, double* lineParam, double* s,
                                          double* t, int& count) noexcept {
  count = 0;
  const g3d_Storage n = g3d_Cross(u, v), d = p1 - p0;
  const double nd = g3d_Dot(d, n), dd = g3d_Dot(d, d), nn = g3d_Dot(n, n);
  const double tol = s_Tolerance;
  if (dd >= FLT_MIN && nn >= FLT_MIN && nd * nd / (nn * dd) >= tol * tol) {
    const g3d_Storage w = origin - p0, vd = g3d_Cross(v, d), ud = g3d_Cross(u, d);
    lineParam[0] = g3d_Dot(w, n) / nd;
    s[0] = -g3d_Dot(w, vd) / g3d_Dot(u, vd);
    t[0] = -g3d_Dot(w, ud) / g3d_Dot(v, ud);
    count = 1;
    return true;
  }
  if (PointInPlane(p0, origin, u, v, s[0], t[0]) && PointInPlane(p1, origin, u, v, s[1], t[1])) {
    lineParam[0] = 0.0;
    lineParam[1] = 1.0;
    count = 2;
    return true;
  }
  return false;
}

bool g3d_GeomUtils::LinePointIntersection(const g3d_Storage& p0, const g3d_Storage& p1,
                                          const g3d_Storage& q, double& param,
                                          bool bound) noexcept {
  const g3d_Storage d = p1 - p0;
  const double dd = g3d_Dot(d, d);
  param = 0.0;
  if (std::sqrt(dd) < s_Tolerance) return EqualPoint(p0, q, s_Tolerance);
  param = g3d_Dot(q - p0, d) / dd;
  if (g3d_Magnitude(q - (p0 + d * param)) >= s_Tolerance) return false;
  return !bound || InBounds(param);
}

bool g3d_GeomUtils::LineLineIntersection(const g3d_Storage& p0, const g3d_Storage& p1,
                                         const g3d_Storage& q0, const g3d_Storage& q1, double* s,
                                         double* t, int& count, bool boundFirst,
                                         bool boundSecond) noexcept {
  count = 0;
  // d1 runs backwards so that s comes out as the parameter along p0 -> p1.
  const g3d_Storage d1 = p0 - p1, d2 = q1 - q0;
  if (AllBelow(g3d_Cross(Unit(d1), Unit(d2)), s_Tolerance)) {
    return ParallelLineIntersection(p0, p1, q0, q1, s, t, count, boundFirst, boundSecond);
  }
  if (!PointInPlane(p0, q0, d1, d2, s[0], t[0])) return false;
  if ((boundFirst && !InBounds(s[0])) || (boundSecond && !InBounds(t[0]))) return false;
  count = 1;
  return true;
}

bool g3d_GeomUtils::LineLineIntersection(const g3d_Point& p0, const g3d_Point& p1,
                                         const g3d_Point& q0, const g3d_Point& q1, double* s,
                                         double* t, int& count, bool boundFirst,
                                         bool boundSecond) noexcept {
  return LineLineIntersection(g3d_Storage(p0), g3d_Storage(p1), g3d_Storage(q0), g3d_Storage(q1), s,
                              t, count, boundFirst, boundSecond);
}

bool g3d_GeomUtils::ParallelLineIntersection(const g3d_Storage& p0, const g3d_Storage& p1,
                                             const g3d_Storage& q0, const g3d_Storage& q1,
                                             double* s, double* t, int& count, bool boundFirst,
                                             bool boundSecond) noexcept {
  const g3d_Storage d = p1 - p0, e = q1 - q0;
  if (g3d_Magnitude(d) < s_Tolerance) {  // the first segment is a point
    if (!LinePointIntersection(q0, q1, p0, t[0], boundSecond)) return false;
    s[0] = 0.0;
    count = 1;
    return true;
  }
  double a = 0.0, b = 0.0;  // the second segment's ends along the first line
  if (!LinePointIntersection(p0, p1, q0, a, false) ||
      !LinePointIntersection(p0, p1, q1, b, false)) {
    return false;
  }
  Interval overlap{-kInfinity, kInfinity};
  if (boundFirst || !boundSecond) overlap = {0.0, 1.0};
  if (boundSecond) {
    overlap.lo = std::max(overlap.lo, std::min(a, b));
    overlap.hi = std::min(overlap.hi, std::max(a, b));
  }
  if (overlap.lo > overlap.hi + kSlack) return false;
  const double ee = g3d_Dot(e, e);
  const auto alongSecond = [&](double param) {
    return ee < DBL_MIN ? 0.0 : g3d_Dot(p0 + d * param - q0, e) / ee;
  };
  if (overlap.IsPoint()) {
    s[0] = (overlap.lo + overlap.hi) / 2.0;
    count = 1;
  } else {
    s[0] = overlap.lo;
    s[1] = overlap.hi;
    count = 2;
  }
  for (int i = 0; i < count; ++i) t[i] = alongSecond(s[i]);
  return true;
}

bool g3d_GeomUtils::LineTriIntersection(const g3d_Storage& p0, const g3d_Storage& p1,
                                        const g3d_Storage& a, const g3d_Storage& b,
                                        const g3d_Storage& c, double* lineParam, double* s,
                                        double* t, int& count, bool bound) noexcept {
  count = 0;
  int found = 0;
  if (!LinePlaneIntersection(p0, p1, a, b - a, c - a, lineParam, s, t, found)) return false;
  if (found == 1) {
    const bool inside = s[0] >= -kSlack && t[0] >= -kSlack && s[0] + t[0] <= 1.0 + kSlack;
    if (!inside || (bound && !InBounds(lineParam[0]))) return false;
    count = 1;
    return true;
  }
  // The segment lies in the plane: s and t are affine in the line parameter, so clip it
  // against s >= 0, t >= 0 and s + t <= 1.
  const double s0 = s[0], t0 = t[0], ds = s[1] - s[0], dt = t[1] - t[0];
  Interval range{-kInfinity, kInfinity};
  if (bound || (ds == 0.0 && dt == 0.0)) range = {0.0, 1.0};
  range.Clip(s0, ds);
  range.Clip(t0, dt);
  range.Clip(1.0 - s0 - t0, -(ds + dt));
  if (range.IsEmpty()) return false;
  count = range.IsPoint() ? 1 : 2;
  lineParam[0] = count == 1 ? (range.lo + range.hi) / 2.0 : range.lo;
  lineParam[1] = range.hi;
  for (int i = 0; i < count; ++i) {
    s[i] = s0 + lineParam[i] * ds;
    t[i] = t0 + lineParam[i] * dt;
  }
  return true;
}

bool g3d_GeomUtils::SegmentsIntersect2D(const g3d_Point& a0, const g3d_Point& a1,
                                        const g3d_Point& b0, const g3d_Point& b1) noexcept {
  const double o1 = Orientation(a0, a1, b0), o2 = Orientation(a0, a1, b1);
  const double o3 = Orientation(b0, b1, a0), o4 = Orientation(b0, b1, a1);
  if (Straddles(o1, o2) && Straddles(o3, o4)) return true;
  return (o1 == 0.0 && WithinBox(a0, a1, b0)) || (o2 == 0.0 && WithinBox(a0, a1, b1)) ||
         (o3 == 0.0 && WithinBox(b0, b1, a0)) || (o4 == 0.0 && WithinBox(b0, b1, a1));
}

bool g3d_GeomUtils::RangeOfPolygon(const cow_List<g3d_Point>& polygon, g3d_Point& min,
                                   g3d_Point& max) noexcept {
  if (polygon.IsEmpty()) return false;
  min = max = polygon[0];
  for (const g3d_Point& v : polygon) Widen(min, max, v);
  return true;
}

bool g3d_GeomUtils::PointInPolygon2D(const cow_List<g3d_Point>& polygon, const g3d_Point& p,
                                     const g3d_Point*) {
  const g3d_Point* prev = &polygon[polygon.Length() - 1];
  bool prevAbove = prev->y >= p.y, inside = false;
  for (const g3d_Point& cur : polygon) {
    const bool curAbove = cur.y >= p.y;
    if (curAbove != prevAbove) {
      // The edge's crossing with the horizontal through p, compared without a division.
      const float a = (prev->x - cur.x) * (cur.y - p.y);
      const float b = (prev->y - cur.y) * (cur.x - p.x);
      if ((a >= b) == curAbove) inside = !inside;
    }
    prev = &cur;
    prevAbove = curAbove;
  }
  return inside;
}

g3d_ClipResultEnum g3d_GeomUtils::IntersectLinePolygon2D(const cow_List<g3d_Point>& polygon,
                                                         const g3d_Point& a, const g3d_Point& b,
                                                         const g3d_Point* min,
                                                         const g3d_Point* max) {
  if (min && max && BothBeyond(a, b, *min, *max)) return g3d_CLIP_OUTSIDE_EARLY;
  for (int i = 0; i + 1 < polygon.Length(); ++i) {
    if (SegmentsIntersect2D(a, b, polygon[i], polygon[i + 1])) return g3d_CLIP_CROSSING;
  }
  return PointInPolygon2D(polygon, a) ? g3d_CLIP_INSIDE : g3d_CLIP_OUTSIDE;
}

g3d_ClipResultEnum g3d_GeomUtils::IntersectPolygonPolygon2D(const cow_List<g3d_Point>& a,
                                                            const cow_List<g3d_Point>& b,
                                                            const g3d_Point* min,
                                                            const g3d_Point* max) {
  g3d_Point low, high;
  if (!(min && max)) {
    const g3d_Point& seed = a[a.Length() - 1];
    low = high = g3d_Point(seed.x, seed.y, seed.z);
    for (const g3d_Point& v : a) Widen(low, high, v);
    min = &low;
    max = &high;
  }
  if (b.Length() == 1) {
    return PointInPolygon2D(a, b[0]) ? g3d_CLIP_INSIDE : g3d_CLIP_OUTSIDE_EARLY;
  }
  bool anyInside = false;
  for (int i = 0; i + 1 < b.Length(); ++i) {
    const g3d_ClipResultEnum edge = IntersectLinePolygon2D(a, b[i], b[i + 1], min, max);
    if (edge == g3d_CLIP_CROSSING) return edge;
    anyInside = anyInside || edge == g3d_CLIP_INSIDE;
  }
  return anyInside ? g3d_CLIP_INSIDE : g3d_CLIP_OUTSIDE;
}
