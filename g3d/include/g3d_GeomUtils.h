#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_GeomUtils
/// Geometric predicates and intersections, decided in double against one process-wide
/// tolerance (initially 1e-5). The tolerance is a plain value: set it on one thread, for
/// instance at start-up or around a batch of work, and not while others use these routines.
/// Degenerate input never raises: it gives false, a count of 0 or an unchanged value. Only
/// the polygon routines raise, with the list's out-of-range error, for an empty polygon.
#include <g3d_Storage.h>

#include <cow_List.h>

/// Result of the 2-D polygon clipping tests.
enum g3d_ClipResultEnum {
  g3d_CLIP_INSIDE = 0,         ///< lies inside the reference polygon
  g3d_CLIP_CROSSING = 1,       ///< crosses an edge of the reference polygon
  g3d_CLIP_OUTSIDE_EARLY = 2,  ///< outside, decided by the range or a single vertex
  g3d_CLIP_OUTSIDE = 3,        ///< no crossing and not inside
};

class CVX_EXPORT g3d_GeomUtils {
public:
  /// The process-wide tolerance (see the class).
  ///@{
  static void setTolerance(double tolerance) noexcept;
  static double getTolerance() noexcept;
  ///@}

  /// |a - b| < tol, strictly.
  static bool EqualValue(double a, double b, double tol) noexcept;
  /// EqualValue on each of x, y and z.
  static bool EqualPoint(const g3d_Storage& a, const g3d_Storage& b, double tol) noexcept;

  /// Twice the triangle's area (absolute units) below the tolerance.
  ///@{
  static bool PointsCollinear(const g3d_Storage& p0, const g3d_Storage& p1,
                              const g3d_Storage& p2) noexcept;
  static bool PointsCollinear(const g3d_Point& p0, const g3d_Point& p1,
                              const g3d_Point& p2) noexcept;
  ///@}

  /// s, t with p = origin + s u + t v; false when u and v are parallel, p is off the plane,
  /// or the axes disagree on s.
  static bool PointInPlane(const g3d_Storage& p, const g3d_Storage& origin, g3d_Storage u,
                           g3d_Storage v, double& s, double& t) noexcept;

  /// Line p0-p1 against the plane origin + s u + t v. Crossing: count 1 with the (unbounded)
  /// line parameter and plane coordinates in entry 0. Segment lying in the plane: count 2,
  /// parameters 0 and 1 with the coordinates of both ends. Otherwise false, count 0.
  static bool LinePlaneIntersection(const g3d_Storage& p0, const g3d_Storage& p1,
                                    const g3d_Storage& origin, const g3d_Storage& u,
                                    const g3d_Storage& v, double* lineParam, double* s, double* t,
                                    int& count) noexcept;

  /// Parameter of q on the line p0-p1 (q = p0 + param (p1 - p0)); false when q is farther
  /// than the tolerance from the line, or, with bound set, when param is outside
  /// [-1e-5, 1.00001]. A degenerate line (p0 = p1) answers whether q is p0, with param 0.
  static bool LinePointIntersection(const g3d_Storage& p0, const g3d_Storage& p1,
                                    const g3d_Storage& q, double& param, bool bound) noexcept;

  /// Lines p0-p1 and q0-q1: p0 + s (p1 - p0) = q0 + t (q1 - q0). s and t hold two entries.
  /// Crossing lines: count 1. Skew lines: false. Bounds apply with [-1e-5, 1.00001].
  /// Parallel lines: false unless they are the same line; then the overlap of the bounded
  /// extents is reported on the first line, count 2 with its ends (s[0] <= s[1]) and the
  /// matching t, or count 1 when the overlap is a single point. With neither side bounded
  /// the overlap is the first segment. A segment shrunk to a point is tested as a point on
  /// the other line.
  static bool LineLineIntersection(const g3d_Storage& p0, const g3d_Storage& p1,
                                   const g3d_Storage& q0, const g3d_Storage& q1, double* s,
                                   double* t, int& count, bool boundFirst,
                                   bool boundSecond) noexcept;
  /// Widens x, y, z (w is ignored) and forwards.
  static bool LineLineIntersection(const g3d_Point& p0, const g3d_Point& p1, const g3d_Point& q0,
                                   const g3d_Point& q1, double* s, double* t, int& count,
                                   bool boundFirst, bool boundSecond) noexcept;

  /// Segment p0-p1 against triangle a, b, c, with s, t the coordinates along b - a and c - a
  /// (inside: s, t >= 0 and s + t <= 1, each within 1e-5). Crossing: count 1. A segment in the
  /// triangle's plane is clipped to the triangle: count 2 with the ends of the clipped part.
  /// With bound set the line parameter is limited to the segment [-1e-5, 1.00001].
  static bool LineTriIntersection(const g3d_Storage& p0, const g3d_Storage& p1,
                                  const g3d_Storage& a, const g3d_Storage& b, const g3d_Storage& c,
                                  double* lineParam, double* s, double* t, int& count,
                                  bool bound) noexcept;

  /// Closed 2-D segments a0-a1 and b0-b1 in x/y: true when they share a point, touching ends
  /// and collinear overlaps included.
  static bool SegmentsIntersect2D(const g3d_Point& a0, const g3d_Point& a1, const g3d_Point& b0,
                                  const g3d_Point& b1) noexcept;

  /// False for an empty list; w keeps the first vertex's value.
  static bool RangeOfPolygon(const cow_List<g3d_Point>& polygon, g3d_Point& min,
                             g3d_Point& max) noexcept;
  /// Even-odd test in x/y on floats; the polygon is taken as closed. max is not used.
  static bool PointInPolygon2D(const cow_List<g3d_Point>& polygon, const g3d_Point& p,
                               const g3d_Point* max = nullptr);
  /// Only edges i to i + 1 are tested: a closed polygon repeats its first vertex at the end.
  static g3d_ClipResultEnum IntersectLinePolygon2D(const cow_List<g3d_Point>& polygon,
                                                   const g3d_Point& a, const g3d_Point& b,
                                                   const g3d_Point* min = nullptr,
                                                   const g3d_Point* max = nullptr);
  /// min and max, when both given, are a's range; otherwise it is computed.
  static g3d_ClipResultEnum IntersectPolygonPolygon2D(const cow_List<g3d_Point>& a,
                                                      const cow_List<g3d_Point>& b,
                                                      const g3d_Point* min = nullptr,
                                                      const g3d_Point* max = nullptr);

protected:
  /// A unit copy; below the tolerance the vector is returned unchanged.
  static g3d_Vector g3d_NormalizeVector(const g3d_Vector& v) noexcept;

private:
  static bool ParallelLineIntersection(const g3d_Storage& p0, const g3d_Storage& p1,
                                       const g3d_Storage& q0, const g3d_Storage& q1, double* s,
                                       double* t, int& count, bool boundFirst,
                                       bool boundSecond) noexcept;
};

/// @}
