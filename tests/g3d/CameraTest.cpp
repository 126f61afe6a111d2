// The camera: repairs, window limits, zoom, projection switches, fitting, rotation,
// unprojection, and staying finite through long runs of operations.
#include "CameraFinite.h"
#include "G3dTestSupport.h"
#include "PosixEnv.h"

#include <g3d_Camera.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <utility>

namespace {
// A camera looking at target from eye, y up, in the given projection.
g3d_Camera Looking(g3d_Point eye, g3d_Point target = {},
                   g3d_ProjectionEnum projection = PERSPECTIVE_PROJECTION) {
  g3d_Camera camera;
  camera.SetProjection(projection);
  camera.SetLocation(eye, target, {0, 1, 0});
  return camera;
}

// Position of a world point as a fraction of the window (x, y, 0): what the user sees.
g3d_Point OnScreen(const g3d_Camera& camera, const g3d_Point& p) {
  float x = 0, y = 0;
  EXPECT_TRUE(camera.ToWindow(p, x, y));
  return {x / camera.GetWindowWidth(), y / camera.GetWindowHeight(), 0};
}

g3d_BoundingVolume UnitBox() {
  g3d_BoundingVolume model;
  model.SetToRectangleBox({-1, -1, -1}, {1, 1, 1});
  return model;
}

TEST(CameraTest, SetLocationRepairsDegenerateInput) {
  const struct {
    g3d_Point eye, target;
    g3d_Vector up, expectedUp;
    g3d_Point expectedEye;
  } cases[] = {
      {{1, 2, 3}, {1, 2, 3}, {0, 1, 0}, {0, 1, 0}, {1, 2, 3 * 1.1f}},  // eye on the target
      {{5, 0, 0}, {0, 0, 0}, {0, 0, 0}, {0, 1, 0}, {5, 0, 0}},         // no up
      {{0, 5, 0}, {0, 0, 0}, {0, 1, 0}, {0, 0, 1}, {0, 5, 0}},         // up along the view
      {{0, 0, 5}, {0, 0, 0}, {0, 0, 2}, {0, 1, 0}, {0, 0, 5}},
  };
  for (const auto& c : cases) {
    const g3d_Camera camera = g3d_Camera().SetViewOffset(1, 1).SetLocation(c.eye, c.target, c.up);
    EXPECT_EQ(camera.GetEye(), c.expectedEye);
    EXPECT_EQ(camera.GetUp(), c.expectedUp);
    EXPECT_EQ(camera.GetViewOffsetX(), 0.0f);
  }
}

TEST(CameraTest, MatricesAreRebuiltAfterAChange) {
  g3d_Camera camera = Looking({0, 0, 10});
  EXPECT_EQ(Through(camera.GetVOM(), {0, 0, 0}), g3d_Point(0, 0, -10));  // looking down -z
  camera.SetLocation({10, 0, 0}, {0, 0, 0}, {0, 1, 0});
  ExpectNear(Through(camera.GetVOM(), {0, 0, -1}), {1, 0, -10});  // from +x, -z is on the right
  camera.GetPM();                                                 // built for the 1 x 1 window
  camera.SetWindow(4, 2);
  EXPECT_EQ(camera.GetPM(), g3d_XForm().SetPerspectiveProjection(-2, 2, 1, -1, 1, 10000));
}

// In perspective the least size is near * 1e-4 over the eye's distance (2 here), but never
// below 1e-4: either side of near = distance, where the square-root-free test hands over.
TEST(CameraTest, WindowLimits) {
  const struct {
    g3d_ProjectionEnum projection;
    float near, w, h, expectedW, expectedH;
  } cases[] = {
      {PARALLEL_PROJECTION, 1, 1000, 1, 1000, 2},
      {PARALLEL_PROJECTION, 1, 1, 1000, 2, 1000},
      {PARALLEL_PROJECTION, 1, 1e38f, 1e38f, 3.4028235e31f, 3.4028235e31f},
      {PARALLEL_PROJECTION, 10, 0, 0, 0.0001f, 0.0001f},  // near does not count
      {PERSPECTIVE_PROJECTION, 10, 0, 0, 10 * 0.0001f / 2, 10 * 0.0001f / 2},
      {PERSPECTIVE_PROJECTION, 2.0000002f, 0, 0, 2.0000002f * 0.0001f / 2,
       2.0000002f * 0.0001f / 2},
      {PERSPECTIVE_PROJECTION, 2, 0, 0, 0.0001f, 0.0001f},
      {PERSPECTIVE_PROJECTION, 1.9999999f, 0, 0, 0.0001f, 0.0001f},
  };
  for (const auto& c : cases) {
    const g3d_Camera camera =
        Looking({2, 0, 0}, {}, c.projection).SetNearFar(c.near, 100).SetWindow(c.w, c.h);
    const auto size = std::pair(camera.GetWindowWidth(), camera.GetWindowHeight());
    EXPECT_EQ(size, std::pair(c.expectedW, c.expectedH))
        << c.w << " x " << c.h << ", near " << c.near << ", projection " << c.projection;
  }
}

// A plain zoom scales the window within its limits; a dolly zoom moves the eye instead.
TEST(CameraTest, ZoomPercentagesLimitsAndDolly) {
  const struct {
    float percent, scale;
  } cases[] = {{50, 0.5f}, {-50, 2}, {150, 0.01f}, {-150, 100}, {99, 0.01f}, {0, 1}};
  for (const auto& c : cases) {
    const g3d_Camera camera = g3d_Camera().SetWindow(2, 1).Zoom(c.percent, false);
    EXPECT_FLOAT_EQ(camera.GetWindowWidth(), 2 * c.scale) << c.percent;
    EXPECT_FLOAT_EQ(camera.GetWindowHeight(), c.scale) << c.percent;
  }
  g3d_Camera camera = Looking({0, 0, 10}).SetNearFar(1, 20);
  const float fov = camera.GetFieldOfView();
  const auto spot = OnScreen(camera, {0.5f, 0, 0});
  camera.Zoom(50, true);
  EXPECT_FLOAT_EQ(camera.GetEye().z, 5);
  EXPECT_FLOAT_EQ(camera.GetFieldOfView(), fov);
  EXPECT_FLOAT_EQ(camera.GetFar(), 15);  // far stays 10 beyond the target
  EXPECT_NEAR(OnScreen(camera, {0.5f, 0, 0}).x, 2 * spot.x, 1e-5);
}

TEST(CameraTest, ProjectionSwitchesKeepTheImage) {
  g3d_Camera camera = Looking({0, 0, 8}).SetViewOffset(0.1f, 0);
  EXPECT_FALSE(camera.SetProjection(g3d_Camera::PERSPECTIVE));
  const g3d_Point atTarget(0.3f, -0.2f, 0);
  const auto before = OnScreen(camera, atTarget);
  camera.MakeParallel();
  EXPECT_FLOAT_EQ(camera.GetWindowWidth(), 8);
  EXPECT_FLOAT_EQ(camera.GetViewOffsetX(), 0.8f);  // scaled too; ToWindow does not show it
  ExpectNear(OnScreen(camera, atTarget), before, 1e-5f);
  camera.MakeParallel();  // nothing more to do
  EXPECT_FLOAT_EQ(camera.GetWindowWidth(), 8);
  camera.MakePerspective();
  ExpectNear(OnScreen(camera, atTarget), before, 1e-5f);
  EXPECT_TRUE(camera.SetProjection(PARALLEL_PROJECTION));
  EXPECT_TRUE(camera.SetProjection(PERSPECTIVE_PROJECTION));
  EXPECT_FALSE(camera.SetProjection(PERSPECTIVE_PROJECTION));
}

TEST(CameraTest, FieldOfViewBothWays) {
  g3d_Camera camera = g3d_Camera().SetFieldOfView(90, true);
  EXPECT_FLOAT_EQ(camera.GetFieldOfView(), 90);
  EXPECT_FLOAT_EQ(camera.GetNear(), 1);
  camera.SetFieldOfView(60, false);
  EXPECT_NEAR(camera.GetFieldOfView(), 60, 1e-4);
  EXPECT_FLOAT_EQ(camera.GetWindowWidth(), 2);  // the window stayed
  // A tall window: the width takes the size all the same.
  const g3d_Camera tall = g3d_Camera().SetWindow(1, 3).SetFieldOfView(90, true);
  EXPECT_FLOAT_EQ(tall.GetWindowWidth(), 2);
  EXPECT_FLOAT_EQ(tall.GetWindowHeight(), 2.0f / 3);
}

TEST(CameraTest, ZoomToKeepsOrPullsThePointAndZoomToARectangleFramesIt) {
  const g3d_Camera start = Looking({0, 0, 10}, {}, PARALLEL_PROJECTION).SetWindow(4, 4);
  const g3d_Point p(1, 0.5f, 0), before = OnScreen(start, p);
  for (const bool toward : {false, true}) {
    const g3d_Camera camera = g3d_Camera(start).ZoomTo(1, 0.5f, 50, toward, false);
    const float pull = toward ? 0.5f : 1.0f;  // toward the point: halfway to the centre
    ExpectNear(OnScreen(camera, p), {before.x * pull, before.y * pull, 0});
  }
  EXPECT_EQ(g3d_Camera(start).Zoom(1, 1, 0, 2, false), start);  // an empty rectangle
  const g3d_Camera camera = g3d_Camera(start).Zoom(0, 0, 1, 0.5f, false);
  EXPECT_FLOAT_EQ(camera.GetWindowWidth(), 1);
  EXPECT_FLOAT_EQ(camera.GetTarget().x, 0.5f);
  EXPECT_FLOAT_EQ(camera.GetTarget().y, 0.25f);
}

TEST(CameraTest, RotationTurnsTheScene) {
  const struct {
    float degrees;
    g3d_Vector axis;
  } cases[] = {{90, {0, 1, 0}}, {30, {1, 1, 0}}, {-45, {0, 0, 1}}};
  const g3d_Camera original = Looking({1, 2, 9}, {1, 0, 0});
  for (const auto& c : cases) {
    const g3d_Camera camera = g3d_Camera(original).Rotate(c.degrees, c.axis, false);
    // What the turned camera sees of p, the original sees of p turned about the target.
    const g3d_XForm turn =
        g3d_XForm().Translate(1, 0, 0).Rotate(c.degrees, c.axis).Translate(-1, 0, 0);
    for (const g3d_Point p : {g3d_Point(2, 1, 0), g3d_Point(0, -1, 1)}) {
      ExpectNear(OnScreen(camera, p), OnScreen(original, Through(turn, p)), 1e-5f);
    }
  }
  // From one direction to another, about a point.
  const g3d_Camera camera =
      g3d_Camera().Rotate(g3d_Vector(1, 0, 0), g3d_Vector(0, 1, 0), g3d_Point());
  EXPECT_NEAR(camera.GetEye().y, -2, 1e-6);
  // An eye-space quarter turn about the view's up axis brings the right side to the front.
  const g3d_Camera eyeSpace = Looking({0, 0, 5}).Rotate(90, g3d_Vector(0, 1, 0), true);
  EXPECT_NEAR(eyeSpace.GetEye().x, -5, 1e-5);
}

TEST(CameraTest, FitFramesTheModel) {
  const g3d_Sphere model(g3d_Point(10, 0, 0), 2);
  for (const g3d_ProjectionEnum projection : {PERSPECTIVE_PROJECTION, PARALLEL_PROJECTION}) {
    const g3d_Camera camera = Looking({2, 0, 0}, {}, projection).SetWindow(2, 1).Fit(model);
    EXPECT_EQ(camera.GetTarget(), g3d_Point(10, 0, 0));
    EXPECT_GT(camera.GetEye().x, 10);
    // The sphere's outline touches the top of the window (in perspective the outline lies
    // nearer than the top point, which shows at cos(half angle) of the edge); near and far
    // enclose it.
    const float edge = camera.IsPerspective() ? 0.5f * std::cos(std::atan(0.5f)) : 0.5f;
    EXPECT_NEAR(OnScreen(camera, g3d_Point(10, 2, 0)).y, edge, 1e-5f);
    const float distance = camera.GetEye().x - 10;
    EXPECT_LT(camera.GetNear(), distance - 2);
    EXPECT_GT(camera.GetFar(), distance + 2);
    EXPECT_FLOAT_EQ(camera.GetWindowWidth() / camera.GetWindowHeight(), 2);
  }
}

TEST(CameraTest, CannedViewsAndViewportFits) {
  g3d_Camera camera = g3d_Camera().Canned(g3d_Sphere(g3d_Point(), 1), VIEW_TOP);
  EXPECT_GT(camera.GetEye().y, 1);
  EXPECT_EQ(camera.GetUp(), g3d_Vector(0, 0, -1));
  camera.Canned(g3d_Sphere(g3d_Point(), 1), VIEW_ISO);
  EXPECT_FLOAT_EQ(camera.GetEye().x, camera.GetEye().z);

  camera.SetModelBoundingVolume(UnitBox(), 1).FitCenterVP(800, 400, 0.5f, false);
  EXPECT_FLOAT_EQ(camera.GetWindowWidth() / camera.GetWindowHeight(), 2);
  EXPECT_GT(camera.GetEye().x, 0);  // back to the default direction
  // The model's sphere fills half the height (its top point shows at cos(half angle)).
  EXPECT_NEAR(OnScreen(camera, {0, std::sqrt(3.0f), 0}).y, 0.25f * std::cos(std::atan(0.5f)),
              1e-5f);
  camera.CorrectAspect(300, 300, 0, 0.5f, 0, 1, 1);
  EXPECT_FLOAT_EQ(camera.GetWindowWidth() / camera.GetWindowHeight(), 2);
}

TEST(CameraTest, PanMovesEyeAndTargetInWindowUnits) {
  g3d_Camera camera = Looking({0, 0, 10}, {}, PARALLEL_PROJECTION).Pan(1, 2, 0, false);
  EXPECT_EQ(camera.GetTarget(), g3d_Point(1, 2, 0));
  EXPECT_EQ(camera.GetEye(), g3d_Point(1, 2, 10));
  // Closer, with near and far around the model.
  camera.SetModelBoundingVolume(UnitBox(), 1).Pan(0, 0, -5, true);
  EXPECT_FLOAT_EQ(camera.GetEye().z, 5);
  EXPECT_LT(camera.GetFar(), 10);
  EXPECT_GT(camera.GetFar(), 5 + std::sqrt(3.0f));
  // In perspective, a near plane at or behind the eye has no distance ratio: units at the target.
  for (const float near : {0.0f, -2.0f}) {
    const g3d_Camera noNear = Looking({0, 0, 10}).SetNearFar(near, 20).Pan(1, 2, 0, false);
    EXPECT_EQ(noNear.GetTarget(), g3d_Point(1, 2, 0)) << "near " << near;
  }
}

TEST(CameraTest, LayerModeScalesAboutTheTarget) {
  g3d_Camera camera = Looking({0, 0, 10}, {1, 0, 0}).SetLayerXForm(true, nullptr);
  const g3d_XForm view = camera.GetVOM();
  camera.Zoom(50, false);
  EXPECT_FLOAT_EQ(camera.GetWindowWidth(), 1);  // the window stays
  // The target stays where it was; a point beyond it goes twice as far.
  ExpectNear(Through(camera.GetVOM(), {1, 0, 0}), Through(view, {1, 0, 0}), 1e-5f);
  EXPECT_NEAR(Through(camera.GetVOM(), {2, 0, 0}).x, Through(view, {3, 0, 0}).x, 1e-6);
  camera.SetLocation({5, 5, 5}, {2, 0, 0}, {0, 1, 0});
  EXPECT_EQ(camera.GetEye(), g3d_Point(0, 0, 10));
  EXPECT_EQ(camera.GetTarget(), g3d_Point(2, 0, 0));
  g3d_XForm layer;
  camera.SetLayerXForm(false, &layer);
  EXPECT_FLOAT_EQ(layer.GetM(0, 0), 2);
  EXPECT_FALSE(camera.IsLayerMode());
}

TEST(CameraTest, Equality) {
  const g3d_Camera a, offset = g3d_Camera().SetViewOffset(0.5f, 0);
  const g3d_Camera nan = g3d_Camera().SetNearFar(std::numeric_limits<float>::quiet_NaN(), 10);
  const g3d_Camera layered = g3d_Camera(a).SetLayerXForm(true, nullptr);
  const g3d_Camera otherEye =  // in layer mode only the view matrices differ
      g3d_Camera(a).SetLocation({5, 5, 5}, a.GetTarget(), {0, 1, 0}).SetLayerXForm(true, nullptr);
  EXPECT_EQ(std::tuple(a == g3d_Camera(), a != offset, nan == g3d_Camera(nan), a == layered,
                       layered == otherEye, layered == g3d_Camera(layered)),
            std::tuple(1, 1, 0, 0, 0, 1));
}

// Unproject gives rays that ToWindow maps back, or false with the ray untouched when there is
// no projection to invert.
TEST(CameraTest, UnprojectInvertsToWindow) {
  const auto oblique = [](g3d_ProjectionEnum projection) {
    return Looking({3, 4, 12}, {1, 0, 0}, projection)
        .SetWindow(3, 2)
        .SetViewOffset(0.25f, -0.5f)
        .SetNearFar(2, 40);
  };
  const struct {
    const char* what;
    g3d_Camera camera;
    bool inverts = true;
  } cases[] = {
      {"perspective", Looking({0, 0, 10})},
      {"perspective, oblique, offset", oblique(PERSPECTIVE_PROJECTION)},
      {"parallel, oblique, offset", oblique(PARALLEL_PROJECTION)},
      {"parallel, part of the window",
       oblique(PARALLEL_PROJECTION).CorrectAspect(400, 300, 0.1f, 0.6f, 0.2f, 0.9f, 1)},
      {"layer, zoomed",
       oblique(PERSPECTIVE_PROJECTION).SetLayerXForm(true, nullptr).Zoom(40, false)},
      {"perspective, near 0", Looking({0, 0, 10}).SetNearFar(0, 10), false},
      {"perspective, far before near", Looking({0, 0, 10}).SetNearFar(5, 1), false},
      {"parallel, far at near", Looking({0, 0, 10}, {}, PARALLEL_PROJECTION).SetNearFar(3, 3),
       false},
  };
  for (const auto& c : cases) {
    const g3d_Camera& camera = c.camera;
    if (!c.inverts) {
      g3d_Ray ray;
      EXPECT_FALSE(camera.Unproject(0.1f, 0.1f, ray.Set({7, 7, 7}, {1, 0, 0}))) << c.what;
      EXPECT_EQ(ray.origin, g3d_Point(7, 7, 7)) << c.what;
      continue;
    }
    const float size = std::max(camera.GetWindowWidth(), camera.GetWindowHeight());
    for (const auto& [x, y] : {std::pair{0.0f, 0.0f}, {0.7f, -0.3f}, {-1.4f, 0.9f}}) {
      g3d_Ray ray;
      ASSERT_TRUE(camera.Unproject(x, y, ray)) << c.what;
      EXPECT_NEAR(ray.direction.Length(), 1, 1e-6) << c.what;
      EXPECT_GT(g3d_Dot(ray.direction, camera.GetTarget() - camera.GetEye()), 0) << c.what;
      if (camera.IsPerspective() && !camera.IsLayerMode()) {
        EXPECT_EQ(ray.origin, camera.GetEye()) << c.what;
      }
      for (const float depth : {1.0f, 9.0f, 30.0f}) {
        float wx = 0, wy = 0;
        ASSERT_TRUE(camera.ToWindow(ray.origin + ray.direction * depth, wx, wy)) << c.what;
        EXPECT_NEAR(wx, x, 4e-6f * size) << c.what << " at depth " << depth;
        EXPECT_NEAR(wy, y, 4e-6f * size) << c.what << " at depth " << depth;
      }
    }
  }
}

// Every operation clears the user mark and leaves the camera finite. The long runs that once left
// the float range are the camera fuzzer's named seeds (dolly-out, clipping, fov-without-near,
// near-beyond-target, pan-at-tiny-near), which CI replays under the same finiteness check.
TEST(CameraTest, OperationsClearTheUserMarkAndStayFinite) {
  const struct {
    const char* what;
    void (*run)(g3d_Camera&);
  } cases[] = {
      {"set location",
       [](g3d_Camera& c) { c.SetLocation(g3d_Point(0, 0, 3), {}, g3d_Vector(0, 1, 0)); }},
      {"near and far", [](g3d_Camera& c) { c.SetNearFar(0.5f, 100); }},
      {"projection", [](g3d_Camera& c) { c.SetProjection(PARALLEL_PROJECTION); }},
      {"zoom", [](g3d_Camera& c) { c.Zoom(10, false); }},
      {"zoom to a point", [](g3d_Camera& c) { c.ZoomTo(0.1f, 0.1f, 20, false, false); }},
      {"field of view", [](g3d_Camera& c) { c.SetFieldOfView(40, true); }},
      {"pan", [](g3d_Camera& c) { c.Pan(0.1f, 0, 0, false); }},
      {"rotate", [](g3d_Camera& c) { c.Rotate(10, g3d_Vector(0, 1, 0), false); }},
      {"fit", [](g3d_Camera& c) { c.Fit(g3d_Sphere()); }},
  };
  for (const auto& c : cases) {
    g3d_Camera camera;
    camera.SetUserMark();
    c.run(camera);
    EXPECT_EQ(camera.GetFlags() & g3d_Camera::FLAG_USER_MARK, 0) << c.what;
    EXPECT_EQ(NotFinitePart(camera), nullptr) << c.what;
  }
}

TEST(CameraTest, ZoomTowardModeIsReadOnce) {
  ::testing::FLAGS_gtest_death_test_style = "threadsafe";  // a fresh process
  EXPECT_EXIT(
      {
        std::ostringstream errors;
        aio_cerr().Redirect(&errors);
        setenv("CVX_ZOOM_TOWARD", "7", 1);
        g3d_Camera camera;
        camera.ZoomTo(0.1f, 0.1f, -20, true, false);
        setenv("CVX_ZOOM_TOWARD", "2", 1);
        camera.ZoomTo(0.1f, 0.1f, -20, true, false);
        // What the child saw goes to its stderr, for the matcher to show on a mismatch.
        std::fprintf(stderr, "mode %d, reported: %s", g3d_Camera::ZoomOutMode(),
                     errors.str().c_str());
        std::exit(0);
      },
      ::testing::ExitedWithCode(0),
      "mode 3, reported: CVX_ZOOM_TOWARD: Zoom-out set to transpose center toward start drag "
      "position\\.\n");
}
}  // namespace
