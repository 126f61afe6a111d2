#include <g3d_Camera.h>

#include <aio_ostream.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {
constexpr float kMinWindow = 0.0001f;
constexpr float kMaxWindow = 3.4028235e31f;
constexpr float kMaxAspect = 500.0f;
constexpr double kRadiansToDegrees = 57.29577951308232;
constexpr double kDegreesToRadians = 0.017453292519943295;
// Near and far keep this much of a fitted radius between them and the model.
constexpr float kClipMargin = 1.05f;
constexpr unsigned char kComparedBits = 0x01 | 0x02 | 0x08 | 0x10 | 0x20;

// Keeps a NaN, which compares false both ways.
float Bounded(float value) noexcept { return std::clamp(value, -kMaxWindow, kMaxWindow); }

float Limit(float size, float least) noexcept {
  return size < least ? least : (size > kMaxWindow ? kMaxWindow : size);
}

// The window scale of a zoom percentage: +50 halves, -50 doubles; +-99 at most.
double ZoomScale(float percent) noexcept {
  if (percent < 0.0f) return 1.0 / (1.0 + std::max(percent, -99.0f) * 0.01);
  return 1.0 - std::min(percent, 99.0f) * 0.01;
}

g3d_Point Cartesian(const g3d_Point& p) noexcept { return g3d_Point() + (p - g3d_Point()); }

g3d_Vector Unit(g3d_Vector v) noexcept { return v.Normalize(); }

// The eye's axes in world space, back pointing from the target to the eye. Written through
// references so that, inlined, the view matrix's rebuild keeps them in registers.
inline void EyeAxes(const g3d_Point& eye, const g3d_Point& target, const g3d_Vector& upward,
                    g3d_Vector& right, g3d_Vector& up, g3d_Vector& back) noexcept {
  back = Unit(eye - target);
  right = Unit(g3d_Cross(upward, back));
  up = g3d_Cross(back, right);
}

// Within the window's range, so that the view matrix's sums of products stay finite too.
bool InRange(const g3d_Point& p) noexcept {
  return std::fabs(p.x) <= kMaxWindow && std::fabs(p.y) <= kMaxWindow &&
         std::fabs(p.z) <= kMaxWindow;
}

int ReadZoomOutMode() {
  const char* text = std::getenv("CVX_ZOOM_TOWARD");
  if (!text) return 1;
  int value = 0;
  const int mode = std::sscanf(text, "%d", &value) == 1 ? std::clamp(value, 1, 3) : 1;
  static const char* const kOrigins[] = {"use start drag for zoom out origin.\n",
                                         "use center for zoom out origin.\n",
                                         "transpose center toward start drag position.\n"};
  (aio_cerr() << "CVX_ZOOM_TOWARD: Zoom-out set to " << kOrigins[mode - 1]).Flush();
  return mode;
}

struct CannedView {
  g3d_Vector from, up;
};
constexpr CannedView kCannedViews[] = {
    {{0, 0, 1}, {0, 1, 0}}, {{0, 0, -1}, {0, 1, 0}}, {{-1, 0, 0}, {0, 1, 0}},
    {{1, 0, 0}, {0, 1, 0}}, {{0, 1, 0}, {0, 0, -1}}, {{0, -1, 0}, {0, 0, 1}},
    {{1, 1, 1}, {0, 1, 0}},
};
}  // namespace

int g3d_Camera::ZoomOutMode() {
  static const int mode = ReadZoomOutMode();
  return mode;
}

int g3d_Camera::operator==(const g3d_Camera& o) const noexcept {
  if (o.IsLayerMode()) {
    return IsLayerMode() && m_Target == o.m_Target && GetVOM() == o.GetVOM();
  }
  return m_Eye == o.m_Eye && m_Target == o.m_Target && m_Up == o.m_Up &&
         (m_Flags & kComparedBits) == (o.m_Flags & kComparedBits) && m_OffsetX == o.m_OffsetX &&
         m_OffsetY == o.m_OffsetY && m_Width == o.m_Width && m_Height == o.m_Height &&
         m_Near == o.m_Near && m_Far == o.m_Far;
}

g3d_Camera& g3d_Camera::SetLocation(const g3d_Point& eye, const g3d_Point& target,
                                    const g3d_Vector& up) {
  if (IsLayerMode()) {
    m_Target = target;
  } else {
    g3d_Point from = eye;
    if (from == target) from.z *= 1.1f;  // never sit on the target
    g3d_Vector upward = up == g3d_Vector() ? g3d_Vector(0, 1, 0) : up;
    if (g3d_Cross(upward, from - target) == g3d_Vector()) {
      upward = upward.y > upward.z ? g3d_Vector(0, 0, 1) : g3d_Vector(0, 1, 0);
    }
    m_Eye = from;
    m_Target = target;
    m_Up = upward;
    SetViewOffset(0.0f, 0.0f);
  }
  ClearUserMark();
  m_VOMStale = true;
  return *this;
}

float g3d_Camera::MinWindowSize() const noexcept {
  if (!IsPerspective()) return kMinWindow;
  // Near clearly short of the target (the usual case): the scaled size is below the least
  // one whatever the rounding, so the clamp below would give kMinWindow; no square root.
  const g3d_Vector line = m_Target - m_Eye;
  const double dx = line.x, dy = line.y, dz = line.z, near = m_Near;
  if (near * near < (dx * dx + dy * dy + dz * dz) * (1 - 1e-6)) return kMinWindow;
  const float distance = line.Length();
  if (!(distance > 0.0f)) return kMinWindow;
  // A near plane far beyond a close target cannot ask for more than the largest window.
  return std::clamp(m_Near * kMinWindow / distance, kMinWindow, kMaxWindow);
}

g3d_Camera& g3d_Camera::SetWindow(float width, float height) {
  if (!IsLayerMode()) {
    const float least = MinWindowSize();
    width = Limit(width, least);
    height = Limit(height, least);
    if (height / width > kMaxAspect) width = height / kMaxAspect;
    if (width / height > kMaxAspect) height = width / kMaxAspect;
  }
  if (width != m_Width || height != m_Height) {
    m_Width = width;
    m_Height = height;
    m_PMStale = true;
  }
  return *this;
}

g3d_Camera& g3d_Camera::SetViewOffset(float x, float y) {
  x = Bounded(x);
  y = Bounded(y);
  if (x != m_OffsetX || y != m_OffsetY) {
    m_OffsetX = x;
    m_OffsetY = y;
    m_PMStale = true;
  }
  return *this;
}

g3d_Camera& g3d_Camera::SetNearFar(float near, float far) {
  m_Near = Bounded(near);
  m_Far = Bounded(far);
  m_PMStale = true;
  ClearUserMark();
  if (!IsLayerMode()) SetWindow(m_Width, m_Height);  // the least size depends on near
  return *this;
}

bool g3d_Camera::SetProjection(g3d_ProjectionEnum projection) {
  return SetProjectionValue(static_cast<int>(projection));
}

bool g3d_Camera::SetProjection(ProjectionEnum projection) {
  return SetProjectionValue(static_cast<int>(projection));
}

bool g3d_Camera::SetProjectionValue(int value) {
  const bool perspective = value == 1;
  if (perspective == IsPerspective()) return false;
  m_Flags = perspective ? (m_Flags | FLAG_PERSPECTIVE)
                        : static_cast<unsigned char>(m_Flags & ~FLAG_PERSPECTIVE);
  ClearUserMark();
  m_PMStale = true;
  return true;
}

void g3d_Camera::SwitchProjection(float ratio, bool perspective) {
  if (!(ratio > 0.0f && std::isfinite(ratio))) ratio = 1.0f;  // no plane to scale between
  const float width = m_Width * ratio, height = m_Height * ratio;
  if (m_OffsetX != 0.0f || m_OffsetY != 0.0f) SetViewOffset(m_OffsetX * ratio, m_OffsetY * ratio);
  SetProjectionValue(perspective ? 1 : 0);
  SetWindow(width, height);
}

g3d_Camera& g3d_Camera::MakePerspective() {
  if (!IsPerspective()) SwitchProjection(m_Near / EyeDistance(), true);
  return *this;
}

g3d_Camera& g3d_Camera::MakeParallel() {
  if (IsPerspective()) SwitchProjection(EyeDistance() / m_Near, false);
  return *this;
}

float g3d_Camera::GetFieldOfView() const noexcept {
  const double distance = IsPerspective() ? m_Near : EyeDistance();
  return static_cast<float>(2.0 * std::atan2(std::max(m_Width, m_Height) / 2.0, distance) *
                            kRadiansToDegrees);
}

g3d_Camera& g3d_Camera::SetFieldOfView(float degrees, bool keepDistance) {
  if (keepDistance) {
    const double distance = IsPerspective() ? m_Near : EyeDistance();
    const double size = 2.0 * std::tan(degrees * kDegreesToRadians / 2.0) * distance;
    const double w = m_Width, h = m_Height;
    double k = 1.0;
    if (w >= h && std::fabs(size - w) > 1e-4) {
      k = size / w;
      SetWindow(static_cast<float>(size), static_cast<float>(size * h / w));
    } else if (w < h && std::fabs(size - h) > 1e-4) {
      // The width takes the size here, not the height: kept as the viewports expect it.
      k = size / h;
      SetWindow(static_cast<float>(size), static_cast<float>(size * w / h));
    }
    SetViewOffset(static_cast<float>(m_OffsetX * k), static_cast<float>(m_OffsetY * k));
  } else {
    const double near =
        std::tan((180.0 - degrees) * kDegreesToRadians / 2.0) * std::max(m_Width, m_Height) / 2.0;
    SetNearFar(static_cast<float>(near), m_Far);
  }
  ClearUserMark();
  return *this;
}

g3d_Camera& g3d_Camera::Zoom(float percent, bool dolly) {
  const double s = ZoomScale(percent);
  ClearUserMark();
  if (IsLayerMode()) {
    const g3d_Vector t = m_Target - g3d_Point();
    const auto k = static_cast<float>(1.0 / s);
    g3d_XForm about;
    about.SetTranslate(t).Scale(k, k, k).Translate(-t.x, -t.y, -t.z);
    m_Layer *= about;
    m_VOMStale = true;
    return *this;
  }
  auto scale = static_cast<float>(s);
  if (dolly && IsPerspective()) {
    const float distance = EyeDistance();
    // The eye goes no farther than the window may grow, so that zooming out never overflows.
    if (distance * scale > kMaxWindow) scale = kMaxWindow / distance;
    m_Eye = m_Target + (m_Eye - m_Target) * scale;
    m_VOMStale = true;
    SetNearFar(m_Near * scale, std::max(m_Far - distance + distance * scale, m_Far * scale));
  }
  return SetWindow(m_Width * scale, m_Height * scale);
}

g3d_Camera& g3d_Camera::ZoomTo(float x, float y, float percent, bool towardPoint, bool dolly) {
  const int mode = ZoomOutMode();
  if (towardPoint && percent <= 0.0f && mode == 2) return Zoom(percent, dolly);
  const float before = m_Width;
  Pan(x, y, 0.0f, false);
  Zoom(percent, dolly);
  float k = m_Width / before;
  if (towardPoint) {
    if (percent >= 0.0f) {
      k = k * k;
    } else if (mode == 3) {
      k = std::min(k * k, k + 1.0f);
    }
  }
  return Pan(-k * x, -k * y, 0.0f, false);
}

g3d_Camera& g3d_Camera::Zoom(float x0, float y0, float x1, float y1, bool dolly) {
  if (!(x0 < x1) || !(y0 < y1)) return *this;
  const float least = MinWindowSize();
  const float w = Limit(x1 - x0, least), h = Limit(y1 - y0, least);
  const float width = m_Width, height = m_Height;
  Pan(x0 + w / 2, y0 + h / 2, 0.0f, dolly);
  return Zoom(std::min((height - h) / height, (width - w) / width) * 100.0f, dolly);
}

void g3d_Camera::Axes(g3d_Vector& right, g3d_Vector& up, g3d_Vector& back) const noexcept {
  EyeAxes(m_Eye, m_Target, m_Up, right, up, back);
}

g3d_Vector g3d_Camera::ToWorld(const g3d_Vector& eyeDirection) const {
  g3d_Vector right, up, back;
  Axes(right, up, back);
  return right * eyeDirection.x + up * eyeDirection.y + back * eyeDirection.z;
}

void g3d_Camera::MoveEyeAndTarget(const g3d_Vector& by) {
  const g3d_Point eye = m_Eye + by, target = m_Target + by;
  // A step out of range is not taken: the view could never come back from it.
  if (!InRange(eye) || !InRange(target)) return;
  m_Eye = eye;
  m_Target = target;
  m_VOMStale = true;
}

g3d_Camera& g3d_Camera::Pan(float dx, float dy, float dz, bool fitClipping) {
  // A window unit is a world unit at the target; in perspective the window is at the near
  // plane, so scale by the ratio of the distances. A near plane at or behind the eye has no
  // such ratio: there, as in parallel projection, window units are taken at the target.
  const float scale = IsPerspective() && m_Near > 0.0f ? EyeDistance() / m_Near : 1.0f;
  MoveEyeAndTarget(ToWorld(g3d_Vector(dx, dy, dz)) * scale);
  if (fitClipping) FitClippingToModel();
  ClearUserMark();
  return *this;
}

void g3d_Camera::MoveAbout(const g3d_XForm& motion, const g3d_Point& center) {
  const g3d_Point c = Cartesian(center);
  g3d_Vector moved[3] = {m_Eye - c, m_Target - c, m_Up};
  motion.XForm(moved, 3);
  m_Eye = c + moved[0];
  m_Target = c + moved[1];
  m_Up = moved[2];
  m_VOMStale = true;
  ClearUserMark();
}

g3d_Camera& g3d_Camera::Rotate(float degrees, const g3d_Vector& axis, const g3d_Point& center) {
  // The scene turns by +degrees, so the camera turns the other way around the centre.
  MoveAbout(g3d_XForm().SetRotate(-degrees, axis), center);
  return *this;
}

g3d_Camera& g3d_Camera::Rotate(float degrees, const g3d_Vector& axis, bool eyeSpace) {
  return Rotate(degrees, eyeSpace ? ToWorld(axis) : axis, m_Target);
}

g3d_Camera& g3d_Camera::Rotate(const g3d_Vector& from, const g3d_Vector& to,
                               const g3d_Point& center) {
  const auto degrees = static_cast<float>(from.AngleWith(to, false) * kRadiansToDegrees);
  g3d_Vector axis = g3d_Cross(from, to);
  if (degrees != 0.0f && axis == g3d_Vector()) {  // opposite: any perpendicular axis
    axis = g3d_Cross(from, g3d_Vector(1, 0, 0));
    if (axis == g3d_Vector()) axis = g3d_Cross(from, g3d_Vector(0, 1, 0));
  }
  return Rotate(degrees, axis, center);
}

g3d_Camera& g3d_Camera::Rotate(const g3d_Vector& from, const g3d_Vector& to, bool eyeSpace) {
  if (!eyeSpace) return Rotate(from, to, m_Target);
  return Rotate(ToWorld(from), ToWorld(to), m_Target);
}

void g3d_Camera::SetClipping(float near, float far) {
  const float oldNear = m_Near;
  SetNearFar(near, far);
  // In perspective the window lives at the near plane: keep the field of view.
  if (IsPerspective()) SetWindow(m_Width * near / oldNear, m_Height * near / oldNear);
}

void g3d_Camera::FitClippingToModel() {
  if (m_Model.IsEmpty()) return;
  g3d_Vector right, up, back;
  Axes(right, up, back);
  const float depth = g3d_Dot(m_Eye - m_Model.center, back);  // the model's centre, ahead
  const float far = depth + kClipMargin * m_Model.radius;
  if (!(far > 0.0f)) return;  // the model is behind the eye
  SetClipping(std::max(depth - kClipMargin * m_Model.radius, far * 0.001f), far);
}

void g3d_Camera::FitWithin(const g3d_Sphere& sphere) {
  if (sphere.IsEmpty()) return;
  const float radius = std::max(sphere.radius, kMinWindow);
  g3d_Vector back = Unit(m_Eye - m_Target);
  if (back == g3d_Vector()) back = g3d_Vector(0, 0, 1);
  float distance = m_FitFactor * radius;
  if (IsPerspective()) {
    const double halfAngle = std::atan2(std::min(m_Width, m_Height) / 2.0, double(m_Near));
    distance = static_cast<float>(radius / std::sin(halfAngle));
  }
  const g3d_Point center = Cartesian(sphere.center);
  const g3d_Point eye = center + back * distance;
  if (!InRange(eye)) return;  // so far away that no later step could stay finite
  SetLocation(eye, center, m_Up);
  const float far = distance + kClipMargin * radius;
  SetClipping(std::max(distance - kClipMargin * radius, far * 0.001f), far);
  if (!IsPerspective()) {
    const float k = 2.0f * radius / std::min(m_Width, m_Height);
    SetWindow(m_Width * k, m_Height * k);
  }
}

g3d_Camera& g3d_Camera::Fit(const g3d_Sphere& sphere) {
  FitWithin(sphere);
  return *this;
}

g3d_Camera& g3d_Camera::Fit(const g3d_BoundingVolume& volume) {
  g3d_Sphere extent;
  volume.GetExtent(extent);
  return Fit(extent);
}

g3d_Camera& g3d_Camera::Fit(const g3d_Point& min, const g3d_Point& max) {
  const g3d_Vector diagonal = max - min;
  return Fit(g3d_Sphere(min + diagonal * 0.5f, diagonal.Length() / 2.0f));
}

void g3d_Camera::MatchAspect(float aspect) {
  if (!(aspect > 0.0f)) return;
  if (m_Width / m_Height < aspect) {
    SetWindow(m_Height * aspect, m_Height);
  } else {
    SetWindow(m_Width, m_Width / aspect);
  }
}

g3d_Camera& g3d_Camera::FitVP(float viewportWidth, float viewportHeight) {
  return FitCenterVP(viewportWidth, viewportHeight, 1.0f, true);
}

g3d_Camera& g3d_Camera::FitCenterVP(float viewportWidth, float viewportHeight, float fraction,
                                    bool keepDirection) {
  if (!keepDirection) SetLocation(g3d_Point(2, 0, 0), g3d_Point(), g3d_Vector(0, 1, 0));
  if (viewportHeight > 0.0f) MatchAspect(viewportWidth / viewportHeight);
  g3d_Sphere framed = m_Model;
  if (fraction > 0.0f) framed.radius /= fraction;
  return Fit(framed);
}

g3d_Camera& g3d_Camera::Canned(const g3d_Sphere& sphere, g3d_SavedViewIdEnum view) {
  const int index = static_cast<int>(view);
  if (index < 0 || index >= static_cast<int>(std::size(kCannedViews))) return *this;
  const CannedView& canned = kCannedViews[index];
  const g3d_Point center = Cartesian(sphere.center);
  SetLocation(center + canned.from, center, canned.up);
  return Fit(sphere);
}

g3d_Camera& g3d_Camera::CorrectAspect(float viewportWidth, float viewportHeight, float x0, float x1,
                                      float y0, float y1, float pixelAspect) {
  if (!(viewportWidth > 0 && viewportHeight > 0 && x1 > x0 && y1 > y0 && pixelAspect > 0)) {
    return *this;
  }
  m_X0 = x0;
  m_X1 = x1;
  m_Y0 = y0;
  m_Y1 = y1;
  m_PMStale = true;
  MatchAspect(viewportWidth * pixelAspect / viewportHeight * (y1 - y0) / (x1 - x0));
  ClearUserMark();
  return *this;
}

g3d_Camera& g3d_Camera::SetModelBoundingVolume(const g3d_BoundingVolume& volume, float margin) {
  volume.GetExtent(m_Model);
  if (margin > 1.0f) m_Model.radius *= margin;
  return *this;
}

g3d_Camera& g3d_Camera::SetLayerXForm(bool on, g3d_XForm* layer) {
  if (on) {
    m_Flags |= FLAG_LAYER_XFORM;
    m_Layer = layer ? *layer : g3d_XForm();
  } else {
    if (layer) *layer = m_Layer;
    m_Flags &= static_cast<unsigned char>(~FLAG_LAYER_XFORM);
    m_Layer.SetIdentity();
  }
  m_VOMStale = true;
  ClearUserMark();
  return *this;
}

void g3d_Camera::GenerateVOM() const {
  // Written element by element from values kept in registers: the rows are right, up and
  // back, and post-multiplying by T(-eye) only fills column 3 with the rotated, negated eye.
  g3d_Vector right, up, back;
  EyeAxes(m_Eye, m_Target, m_Up, right, up, back);
  const g3d_Vector eye = m_Eye - g3d_Point();
  const auto row = [this, eye](int i, g3d_Vector axis) {
    m_VOM.M(i, 0) = axis.x;
    m_VOM.M(i, 1) = axis.y;
    m_VOM.M(i, 2) = axis.z;
    m_VOM.M(i, 3) = -axis.x * eye.x + -axis.y * eye.y + -axis.z * eye.z;
  };
  row(0, right);
  row(1, up);
  row(2, back);
  for (int j = 0; j < 4; ++j) m_VOM.M(3, j) = j == 3 ? 1.0f : 0.0f;
  if (IsLayerMode()) m_VOM *= m_Layer;
  m_VOMStale = false;
}

void g3d_Camera::GeneratePM() const {
  const float left = (m_X0 - 0.5f) * m_Width + m_OffsetX;
  const float right = (m_X1 - 0.5f) * m_Width + m_OffsetX;
  const float bottom = (m_Y0 - 0.5f) * m_Height + m_OffsetY;
  const float top = (m_Y1 - 0.5f) * m_Height + m_OffsetY;
  if (IsPerspective()) {
    m_PM.SetPerspectiveProjection(left, right, top, bottom, m_Near, m_Far);
  } else {
    m_PM.SetOrthographicProjection(left, right, top, bottom, m_Near, m_Far);
  }
  m_PMStale = false;
}

bool g3d_Camera::ToWindow(const g3d_Point& world, float& x, float& y) const {
  g3d_Point p = world;
  GetVOM().XForm(&p, 1);
  GetPM().XForm(&p, 1);
  if (p.w == 0.0f) return false;
  const float halfWidth = (m_X1 - m_X0) * m_Width / 2, halfHeight = (m_Y1 - m_Y0) * m_Height / 2;
  x = p.x / p.w * halfWidth + ((m_X0 + m_X1) / 2 - 0.5f) * m_Width + m_OffsetX;
  y = p.y / p.w * halfHeight + ((m_Y0 + m_Y1) / 2 - 0.5f) * m_Height + m_OffsetY;
  return true;
}

bool g3d_Camera::Unproject(float x, float y, g3d_Ray& ray) const {
  // The projections leave the identity for a frustum they cannot build, and no real
  // projection equals it: then ToWindow has no window mapping to invert.
  if (GetPM() == g3d_XForm()) return false;
  g3d_Vector right, up, back;
  Axes(right, up, back);
  // ToWindow's position is the eye-space point's, taken at the near plane in perspective
  // and as it is in parallel projection.
  g3d_Point origin = Cartesian(m_Eye);
  g3d_Vector direction = -back;
  if (IsPerspective()) {
    direction = right * x + up * y - back * m_Near;
  } else {
    origin = origin + right * x + up * y;
  }
  if (IsLayerMode()) {
    g3d_XForm undo = m_Layer;
    if (undo.Determinant() == 0.0) return false;
    undo.Invert();
    undo.XForm(&origin, 1);
    undo.XForm(&direction, 1);
    origin = Cartesian(origin);
  }
  ray.Set(origin, Unit(direction));
  return true;
}
