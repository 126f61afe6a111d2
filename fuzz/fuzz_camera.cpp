// Random sequences of camera operations with everyday finite values: after every step the
// camera's state and its view and projection matrices stay finite, and nothing crashes.
// Each step is one byte choosing the operation and a handful of bounded numbers.
#include "../tests/g3d/CameraFinite.h"
#include "FuzzInput.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <iterator>

namespace {
// A value in [-limit, limit] in steps of limit / 32767: finite and never extreme.
float Number(FuzzInput& in, float limit) {
  return static_cast<float>(in.Raw<std::int16_t>()) / 32767.0f * limit;
}

// Braced lists evaluate in order, so the components are read x, y, z.
g3d_Point Point(FuzzInput& in) { return {Number(in, 100), Number(in, 100), Number(in, 100)}; }
g3d_Vector Vector(FuzzInput& in) { return {Number(in, 1), Number(in, 1), Number(in, 1)}; }
bool Flag(FuzzInput& in) { return in.Byte() % 2 != 0; }

// The operations, chosen by a step's first byte; the seeds rely on their order. Arguments are
// read into locals first, as a call's arguments have no order of evaluation.
using Step = void (*)(g3d_Camera&, FuzzInput&);
constexpr Step kSteps[] = {
    [](g3d_Camera& c, FuzzInput& in) {
      const g3d_Point eye = Point(in), target = Point(in);
      c.SetLocation(eye, target, Vector(in));
    },
    [](g3d_Camera& c, FuzzInput& in) {
      const float w = Number(in, 100);
      c.SetWindow(w, Number(in, 100));
    },
    [](g3d_Camera& c, FuzzInput& in) {
      const float x = Number(in, 10);
      c.SetViewOffset(x, Number(in, 10));
    },
    [](g3d_Camera& c, FuzzInput& in) {
      const float near = Number(in, 100);
      c.SetNearFar(near, Number(in, 1000));
    },
    [](g3d_Camera& c, FuzzInput& in) {
      c.SetProjection(Flag(in) ? PERSPECTIVE_PROJECTION : PARALLEL_PROJECTION);
    },
    [](g3d_Camera& c, FuzzInput&) { c.MakePerspective(); },
    [](g3d_Camera& c, FuzzInput&) { c.MakeParallel(); },
    [](g3d_Camera& c, FuzzInput& in) {
      const float degrees = Number(in, 179);
      c.SetFieldOfView(degrees, Flag(in));
    },
    [](g3d_Camera& c, FuzzInput& in) {
      const float percent = Number(in, 150);
      c.Zoom(percent, Flag(in));
    },
    [](g3d_Camera& c, FuzzInput& in) {
      const float x = Number(in, 20), y = Number(in, 20), percent = Number(in, 150);
      const std::uint8_t flags = in.Byte();
      c.ZoomTo(x, y, percent, flags & 1, flags & 2);
    },
    [](g3d_Camera& c, FuzzInput& in) {
      const float x0 = Number(in, 20), y0 = Number(in, 20), x1 = Number(in, 20);
      const float y1 = Number(in, 20);
      c.Zoom(x0, y0, x1, y1, Flag(in));
    },
    [](g3d_Camera& c, FuzzInput& in) {
      const float dx = Number(in, 20), dy = Number(in, 20), dz = Number(in, 20);
      c.Pan(dx, dy, dz, Flag(in));
    },
    [](g3d_Camera& c, FuzzInput& in) {
      const float degrees = Number(in, 360);
      const g3d_Vector axis = Vector(in);
      c.Rotate(degrees, axis, Flag(in));
    },
    [](g3d_Camera& c, FuzzInput& in) {
      const g3d_Vector from = Vector(in), to = Vector(in);
      c.Rotate(from, to, Point(in));
    },
    [](g3d_Camera& c, FuzzInput& in) {
      const g3d_Point center = Point(in);
      c.Fit(g3d_Sphere(center, Number(in, 100)));
    },
    [](g3d_Camera& c, FuzzInput& in) {
      g3d_BoundingVolume model;
      const g3d_Point min = Point(in), max = Point(in);
      model.SetToRectangleBox(min, max);
      c.SetModelBoundingVolume(model, Number(in, 3));
      const float w = Number(in, 2000), h = Number(in, 2000), fraction = Number(in, 1);
      c.FitCenterVP(w, h, fraction, Flag(in));
    },
    [](g3d_Camera& c, FuzzInput& in) {
      const g3d_Point center = Point(in);
      const float radius = Number(in, 100);
      c.Canned(g3d_Sphere(center, radius), static_cast<g3d_SavedViewIdEnum>(in.Byte() % 7));
    },
};
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput in(data, size);
  g3d_Camera camera;
  for (int step = 0; !in.Empty() && step < 64; ++step) {
    kSteps[in.Byte() % std::size(kSteps)](camera, in);
    if (const char* broken = NotFinitePart(camera)) {
      std::fprintf(stderr, "camera %s not finite after step %d\n", broken, step);
      __builtin_trap();
    }
  }
  return 0;
}
