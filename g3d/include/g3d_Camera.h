#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_Camera
/// The viewing state of a 3-D viewport: eye, target, up, the visible window, near and far,
/// and the projection. The view matrix (world to eye; the eye looks down -z with +y up) and
/// the projection matrix are rebuilt lazily, on the first read after a change.
///
/// Window units: the window's size is measured at the near plane in perspective and at the
/// target's distance in parallel projection. Positions given to Pan and ZoomTo are in window
/// units relative to the window centre, x right and y up. The target is the default centre of
/// zooming and rotation. Every operation that changes the view clears the user mark (bit 4).
///
/// Threads: a camera is a value owned by one viewport and used by one thread at a time. It
/// takes no locks, and even its const reads (GetVOM, GetPM, ToWindow, operator== in
/// layer-transform mode) may rebuild the cached matrices, so two threads must not use one
/// camera at once, not even to read it; give another thread a copy. The one process-wide
/// state, the zoom-out mode of "CVX_ZOOM_TOWARD", is read once and may be read from any thread.
#include <g3d_BoundingVolume.h>
#include <g3d_Ray.h>
#include <g3d_XForm.h>

/// The projection, as SetProjection takes it.
enum g3d_ProjectionEnum : int { PARALLEL_PROJECTION = 0, PERSPECTIVE_PROJECTION = 1 };

/// The canned views: the eye on the named side of the model, up along +y except for the
/// views from above (up -z) and below (up +z); the isometric view looks from (+1, +1, +1).
enum g3d_SavedViewIdEnum : int {
  VIEW_FRONT = 0,  ///< from +z
  VIEW_BACK,       ///< from -z
  VIEW_LEFT,       ///< from -x
  VIEW_RIGHT,      ///< from +x
  VIEW_TOP,        ///< from +y
  VIEW_BOTTOM,     ///< from -y
  VIEW_ISO,
};

class CVX_EXPORT g3d_Camera {
public:
  /// The same values in the class's scope.
  enum ProjectionEnum : int { PARALLEL = 0, PERSPECTIVE = 1 };
  /// The mode bits of GetFlags().
  enum FlagBits : unsigned char {
    FLAG_PERSPECTIVE = 0x01,
    FLAG_USER_MARK = 0x10,  ///< set by the host; cleared by every camera operation
    FLAG_LAYER_XFORM = 0x20,
  };

  /// The default camera: perspective, the eye at (2, 0, 0) looking at the origin with +y up,
  /// a 1 x 1 window without offset, near 1 and far 10000, fit factor 4, no recorded model and
  /// not in layer-transform mode. Setters never raise: out-of-range input is limited or
  /// repaired as each one says.
  g3d_Camera() = default;

  /// Equal when eye, target, up, the mode bits 0, 1, 3, 4 and 5, the view offset, window,
  /// near and far are equal (a NaN is never equal). Against a camera in layer-transform mode,
  /// equal when both are in that mode with equal targets and view matrices.
  int operator==(const g3d_Camera& other) const noexcept;
  /// Negation of operator==.
  int operator!=(const g3d_Camera& other) const noexcept { return !(*this == other); }

  /// Repairs a coincident eye (its z times 1.1), a zero up (+y) and an up along the line of
  /// sight; resets the view offset. In layer-transform mode only the target is taken.
  g3d_Camera& SetLocation(const g3d_Point& eye, const g3d_Point& target, const g3d_Vector& up);
  /// Limited to at least 0.0001 (scaled to the near plane in perspective), at most 3.4e31,
  /// and an aspect of at most 500.
  g3d_Camera& SetWindow(float width, float height);
  /// Shifts the window off the line of sight by (x, y) window units, limited to +-3.4e31
  /// like the window so that no later step overflows; a NaN is kept.
  g3d_Camera& SetViewOffset(float x, float y);
  /// Limited to +-3.4e31 (a NaN is kept); the window is then limited again, as its least size
  /// depends on near.
  g3d_Camera& SetNearFar(float near, float far);
  /// False when the camera already has that projection; nothing else changes (see MakePerspective).
  ///@{
  bool SetProjection(g3d_ProjectionEnum projection);
  bool SetProjection(ProjectionEnum projection);
  ///@}
  /// Switch projection so that things at the target's distance keep their size on screen.
  /// Without a near plane in front of the eye, or with the eye on the target, there is no
  /// such size: the window stays as it is.
  ///@{
  g3d_Camera& MakePerspective();
  g3d_Camera& MakeParallel();
  ///@}
  /// The full angle, in degrees, that the window's longer side spans.
  float GetFieldOfView() const noexcept;
  /// keepDistance: the window is resized; otherwise the near plane moves.
  g3d_Camera& SetFieldOfView(float degrees, bool keepDistance);

  /// Positive percentages zoom in (50 halves the window), negative out (-50 doubles it),
  /// limited to +-99. With dolly set in perspective the eye moves toward the target instead
  /// of narrowing the field of view: window and near scale together, the eye-target
  /// distance scales by the same factor and far keeps its depth beyond the target (never
  /// below far times the factor); the eye goes no farther than 3.4e31 from the target. In
  /// layer-transform mode the layer scales about the target.
  g3d_Camera& Zoom(float percent, bool dolly);
  /// Zoom keeping the point (x, y) near the cursor; zooming out follows "CVX_ZOOM_TOWARD".
  g3d_Camera& ZoomTo(float x, float y, float percent, bool towardPoint, bool dolly);
  /// Zoom to the rectangle (x0, y0)-(x1, y1); an empty rectangle does nothing.
  g3d_Camera& Zoom(float x0, float y0, float x1, float y1, bool dolly);
  /// Moves eye and target together by (dx, dy, dz) in window units along the eye's right, up
  /// and backward axes. With fitClipping set, near and far then re-fit the recorded model.
  /// In perspective with a near distance of zero or less, window units are taken at the
  /// target, as in parallel projection, so that no step becomes infinite. A step that would
  /// take eye or target beyond +-3.4e31 on any axis is not taken.
  g3d_Camera& Pan(float dx, float dy, float dz, bool fitClipping);

  /// Turns the scene (the camera moves the opposite way) so that direction from appears
  /// where to was. eyeSpace: directions in eye coordinates (as a trackball gives them),
  /// otherwise world. The centre is the target, or the given point.
  ///@{
  g3d_Camera& Rotate(const g3d_Vector& from, const g3d_Vector& to, bool eyeSpace);
  g3d_Camera& Rotate(const g3d_Vector& from, const g3d_Vector& to, const g3d_Point& center);
  ///@}
  /// Turns the scene by degrees about the axis (right-handed), through the target or point.
  ///@{
  g3d_Camera& Rotate(float degrees, const g3d_Vector& axis, bool eyeSpace);
  g3d_Camera& Rotate(float degrees, const g3d_Vector& axis, const g3d_Point& center);
  ///@}

  /// Frames the sphere, keeping the direction of view and the field of view (perspective) or
  /// placing the eye at fitFactor radii (parallel); the sphere fills the window's shorter
  /// side, near and far enclose it, the offset is reset. An empty sphere does nothing, nor does
  /// one whose framing would put the eye beyond +-3.4e31 on any axis.
  ///@{
  g3d_Camera& Fit(const g3d_Sphere& sphere);
  g3d_Camera& Fit(const g3d_BoundingVolume& volume);
  g3d_Camera& Fit(const g3d_Point& min, const g3d_Point& max);
  ///@}
  /// Frames the recorded model in a viewport of the given size in pixels, first giving the
  /// window the viewport's aspect.
  g3d_Camera& FitVP(float viewportWidth, float viewportHeight);
  /// As FitVP, but the model fills only the given fraction of the shorter side; without
  /// keepDirection the view returns to the default direction (from +x, up +y).
  g3d_Camera& FitCenterVP(float viewportWidth, float viewportHeight, float fraction,
                          bool keepDirection);
  /// A standard view of the sphere (see g3d_SavedViewIdEnum), then Fit.
  g3d_Camera& Canned(const g3d_Sphere& sphere, g3d_SavedViewIdEnum view);
  /// Shows the part x0..x1, y0..y1 (fractions) of the window in a viewport of the given
  /// pixel size and pixel aspect (width over height of one pixel); the window grows on one
  /// side so that its visible part has the viewport's aspect.
  g3d_Camera& CorrectAspect(float viewportWidth, float viewportHeight, float x0, float x1, float y0,
                            float y1, float pixelAspect);
  /// Records the model's extent (its enclosing sphere, the radius times margin when margin
  /// is above 1) for FitVP, FitCenterVP and the clipping re-fit of Pan.
  g3d_Camera& SetModelBoundingVolume(const g3d_BoundingVolume& volume, float margin);
  /// Entering: zoom scales a layer transform about the target instead of the window, and
  /// SetLocation takes only the target; the layer starts as *layer (or the identity).
  /// Leaving: the accumulated layer transform is handed back through layer when given.
  g3d_Camera& SetLayerXForm(bool on, g3d_XForm* layer);

  /// The view matrix (world to eye) and the projection matrix, rebuilt here when stale.
  /// Inline, so that reading a fresh matrix costs one test and no call.
  ///@{
  const g3d_XForm& GetVOM() const {
    if (m_VOMStale) GenerateVOM();
    return m_VOM;
  }
  const g3d_XForm& GetPM() const {
    if (m_PMStale) GeneratePM();
    return m_PM;
  }
  ///@}
  /// The state as set (see the setters).
  ///@{
  const g3d_Point& GetEye() const noexcept { return m_Eye; }
  const g3d_Point& GetTarget() const noexcept { return m_Target; }
  const g3d_Vector& GetUp() const noexcept { return m_Up; }
  float GetWindowWidth() const noexcept { return m_Width; }
  float GetWindowHeight() const noexcept { return m_Height; }
  float GetNear() const noexcept { return m_Near; }
  float GetFar() const noexcept { return m_Far; }
  float GetViewOffsetX() const noexcept { return m_OffsetX; }
  float GetViewOffsetY() const noexcept { return m_OffsetY; }
  bool IsPerspective() const noexcept { return (m_Flags & FLAG_PERSPECTIVE) != 0; }
  bool IsLayerMode() const noexcept { return (m_Flags & FLAG_LAYER_XFORM) != 0; }
  unsigned char GetFlags() const noexcept { return m_Flags; }
  ///@}
  /// The host marks a view it set up itself; any camera operation clears the mark.
  void SetUserMark() noexcept { m_Flags |= FLAG_USER_MARK; }
  /// The eye's distance from a fitted sphere in parallel projection, in radii (default 4).
  ///@{
  float GetFitFactor() const noexcept { return m_FitFactor; }
  void SetFitFactor(float factor) noexcept { m_FitFactor = factor; }
  ///@}
  /// The window-unit position of a world point: its projection scaled to the window, with the
  /// view offset; the bool is false for a point on the eye plane (no position).
  bool ToWindow(const g3d_Point& world, float& x, float& y) const;
  /// The inverse of ToWindow: the ray of the world points that show at the window-unit
  /// position (x, y). In perspective it starts at the eye; in parallel projection on the plane
  /// through the eye facing the target, at (x, y) from the eye. Its direction has unit length
  /// and points away from the eye, into the view; in layer-transform mode the layer transform
  /// (taken as affine) is undone as well. ToWindow of any point on the ray gives (x, y) back to
  /// float rounding. The ray is left alone and the answer is false when there is no projection
  /// to invert: a window of no extent, far not beyond near, a near distance of zero or less in
  /// perspective, or a singular layer transform. Non-finite input gives a non-finite ray.
  /// Cost: that of the view and projection matrices when stale, then a few dozen float
  /// operations (a 4x4 inversion more in layer-transform mode); no allocation.
  bool Unproject(float x, float y, g3d_Ray& ray) const;

  /// The zoom-out mode of "CVX_ZOOM_TOWARD" (1-3), read and reported once per process.
  static int ZoomOutMode();

private:
  void GenerateVOM() const;
  void GeneratePM() const;
  bool SetProjectionValue(int value);
  float EyeDistance() const noexcept { return (m_Target - m_Eye).Length(); }
  float MinWindowSize() const noexcept;
  void ClearUserMark() noexcept { m_Flags &= static_cast<unsigned char>(~FLAG_USER_MARK); }
  void SwitchProjection(float ratio, bool perspective);
  void MatchAspect(float aspect);
  void FitWithin(const g3d_Sphere& sphere);
  void SetClipping(float near, float far);
  void Axes(g3d_Vector& right, g3d_Vector& up, g3d_Vector& back) const noexcept;
  void MoveEyeAndTarget(const g3d_Vector& by);
  void MoveAbout(const g3d_XForm& motion, const g3d_Point& center);
  g3d_Vector ToWorld(const g3d_Vector& eyeDirection) const;
  void FitClippingToModel();

  mutable g3d_XForm m_VOM;
  mutable g3d_XForm m_PM;
  g3d_Point m_Eye{2.0f, 0.0f, 0.0f, 1.0f};
  g3d_Point m_Target;
  g3d_Vector m_Up{0.0f, 1.0f, 0.0f};
  float m_Width = 1.0f;
  float m_Height = 1.0f;
  float m_Near = 1.0f;
  float m_Far = 10000.0f;
  mutable bool m_VOMStale = true;
  mutable bool m_PMStale = true;
  unsigned char m_Flags = FLAG_PERSPECTIVE;
  float m_OffsetX = 0.0f;
  float m_OffsetY = 0.0f;
  float m_X0 = 0.0f, m_X1 = 1.0f, m_Y0 = 0.0f, m_Y1 = 1.0f;
  float m_FitFactor = 4.0f;
  g3d_XForm m_Layer;                       ///< the layer transform of layer-transform mode
  g3d_Sphere m_Model{g3d_Point(), -1.0f};  ///< the recorded model extent; empty if none
};

/// @}
