// Random sequences of camera operations with everyday finite values: after every step the
// camera's state and its view and projection matrices stay finite, and nothing crashes.
// Each step is one byte choosing the operation and a handful of bounded numbers.
#include <g3d_Camera.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <initializer_list>

namespace {
class Reader {
 public:
  Reader(const std::uint8_t* data, std::size_t size) : m_Data(data), m_Size(size) {}
  bool More() const { return m_At < m_Size; }
  std::uint8_t Byte() { return m_At < m_Size ? m_Data[m_At++] : 0; }
  // A value in [-limit, limit] in steps of limit / 32767: finite and never extreme.
  float Number(float limit) {
    std::int16_t raw = 0;
    if (m_At + sizeof raw <= m_Size) std::memcpy(&raw, m_Data + m_At, sizeof raw);
    m_At += sizeof raw;
    return raw / 32767.0f * limit;
  }
  g3d_Point Point() {
    const float x = Number(100), y = Number(100), z = Number(100);
    return {x, y, z};
  }
  g3d_Vector Vector() {
    const float x = Number(1), y = Number(1), z = Number(1);
    return {x, y, z};
  }

 private:
  const std::uint8_t* m_Data;
  std::size_t m_Size;
  std::size_t m_At = 0;
};

bool Finite(std::initializer_list<float> values) {
  for (const float value : values) {
    if (!std::isfinite(value)) return false;
  }
  return true;
}

bool Finite(const g3d_XForm& m) {
  for (int i = 0; i < 16; ++i) {
    if (!std::isfinite(m.GetM(i / 4, i % 4))) return false;
  }
  return true;
}

void Check(const g3d_Camera& camera, int step) {
  const g3d_Point &eye = camera.GetEye(), &target = camera.GetTarget();
  const g3d_Vector& up = camera.GetUp();
  const bool state = Finite({eye.x, eye.y, eye.z, eye.w, target.x, target.y, target.z, target.w,
                             up.x, up.y, up.z}) &&
                     Finite({camera.GetWindowWidth(), camera.GetWindowHeight(), camera.GetNear(),
                             camera.GetFar(), camera.GetViewOffsetX(), camera.GetViewOffsetY()});
  const char* broken = !state                     ? "state"
                       : !Finite(camera.GetVOM()) ? "view matrix"
                       : !Finite(camera.GetPM())  ? "projection matrix"
                                                  : nullptr;
  if (broken) {
    std::fprintf(stderr, "camera %s not finite after step %d\n", broken, step);
    __builtin_trap();
  }
}

void Step(g3d_Camera& camera, Reader& in) {
  switch (in.Byte() % 17) {
    case 0: {
      const g3d_Point eye = in.Point(), target = in.Point();
      camera.SetLocation(eye, target, in.Vector());
      break;
    }
    case 1: {
      const float w = in.Number(100);
      camera.SetWindow(w, in.Number(100));
      break;
    }
    case 2: {
      const float x = in.Number(10);
      camera.SetViewOffset(x, in.Number(10));
      break;
    }
    case 3: {
      const float near = in.Number(100);
      camera.SetNearFar(near, in.Number(1000));
      break;
    }
    case 4:
      camera.SetProjection(in.Byte() % 2 ? PERSPECTIVE_PROJECTION : PARALLEL_PROJECTION);
      break;
    case 5:
      camera.MakePerspective();
      break;
    case 6:
      camera.MakeParallel();
      break;
    case 7: {
      const float degrees = in.Number(179);
      camera.SetFieldOfView(degrees, in.Byte() % 2);
      break;
    }
    case 8: {
      const float percent = in.Number(150);
      camera.Zoom(percent, in.Byte() % 2);
      break;
    }
    case 9: {
      const float x = in.Number(20), y = in.Number(20), percent = in.Number(150);
      const std::uint8_t flags = in.Byte();
      camera.ZoomTo(x, y, percent, flags & 1, flags & 2);
      break;
    }
    case 10: {
      const float x0 = in.Number(20), y0 = in.Number(20), x1 = in.Number(20);
      camera.Zoom(x0, y0, x1, in.Number(20), in.Byte() % 2);
      break;
    }
    case 11: {
      const float dx = in.Number(20), dy = in.Number(20), dz = in.Number(20);
      camera.Pan(dx, dy, dz, in.Byte() % 2);
      break;
    }
    case 12: {
      const float degrees = in.Number(360);
      camera.Rotate(degrees, in.Vector(), in.Byte() % 2 != 0);
      break;
    }
    case 13: {
      const g3d_Vector from = in.Vector();
      camera.Rotate(from, in.Vector(), in.Point());
      break;
    }
    case 14: {
      const g3d_Point center = in.Point();
      camera.Fit(g3d_Sphere(center, in.Number(100)));
      break;
    }
    case 15: {
      g3d_BoundingVolume model;
      const g3d_Point min = in.Point();
      model.SetToRectangleBox(min, in.Point());
      camera.SetModelBoundingVolume(model, in.Number(3));
      const float w = in.Number(2000), h = in.Number(2000);
      camera.FitCenterVP(w, h, in.Number(1), in.Byte() % 2);
      break;
    }
    default:
      camera.Canned(g3d_Sphere(in.Point(), in.Number(100)),
                    static_cast<g3d_SavedViewIdEnum>(in.Byte() % 7));
      break;
  }
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Reader in(data, size);
  g3d_Camera camera;
  for (int step = 0; in.More() && step < 64; ++step) {
    Step(camera, in);
    Check(camera, step);
  }
  return 0;
}
