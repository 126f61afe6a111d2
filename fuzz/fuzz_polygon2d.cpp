// Random polygons and segments through the 2-D and 3-D intersection routines: no crash, no
// endless loop, whatever the coordinates (NaN and infinities included). An empty polygon
// may raise the list's out-of-range error, and nothing else.
#include "FuzzInput.h"

#include <g3d_GeomUtils.h>

#include <nex_TextException.h>

#include <cstddef>
#include <cstdint>

namespace {
// A braced list evaluates in order: x, y, z.
g3d_Point Point(FuzzInput& in) { return {in.Raw<float>(), in.Raw<float>(), in.Raw<float>()}; }

cow_List<g3d_Point> Polygon(FuzzInput& in) {
  cow_List<g3d_Point> polygon;
  for (int n = in.Byte() % 16; n > 0; --n) polygon.Append(Point(in));
  return polygon;
}

template <class Call>
void Guarded(Call&& call) {
  try {
    call();
  } catch (const nex_TextException&) {
  }
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput in(data, size);
  const cow_List<g3d_Point> a = Polygon(in), b = Polygon(in);
  const g3d_Point p0 = Point(in), p1 = Point(in), p2 = Point(in), p3 = Point(in);
  g3d_Point min, max;
  g3d_GeomUtils::RangeOfPolygon(a, min, max);
  Guarded([&] { g3d_GeomUtils::PointInPolygon2D(a, p0); });
  Guarded([&] { g3d_GeomUtils::IntersectLinePolygon2D(a, p0, p1, &min, &max); });
  Guarded([&] { g3d_GeomUtils::IntersectPolygonPolygon2D(a, b); });
  g3d_GeomUtils::SegmentsIntersect2D(p0, p1, p2, p3);
  double s[2], t[2], line[2];
  int count = 0;
  g3d_GeomUtils::LineLineIntersection(p0, p1, p2, p3, s, t, count, true, false);
  if (count < 0 || count > 2) __builtin_trap();
  const g3d_Storage q0(p0), q1(p1), q2(p2), q3(p3);
  g3d_GeomUtils::LineTriIntersection(q0, q1, q2, q3, g3d_Storage(min), line, s, t, count, false);
  if (count < 0 || count > 2) __builtin_trap();
  return 0;
}
