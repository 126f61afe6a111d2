// The viewing chain end to end: a small model is framed, the view is zoomed, panned and
// turned, and the model is projected to the window and drawn as an SVG picture.
#include "DemoSections.h"

#include <g3d_Camera.h>
#include <g3d_Utils.h>

#include <aio_ostream.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <numbers>
#include <vector>

namespace {
constexpr int kRings = 24;       // around the torus
constexpr int kRingPoints = 12;  // around its tube
constexpr float kPicture = 600;  // pixels

// A torus of radii 3 and 1, tilted a little: 288 points.
std::vector<g3d_Point> TorusPoints() {
  std::vector<g3d_Point> points;
  for (int i = 0; i < kRings; ++i) {
    const double u = 2 * std::numbers::pi * i / kRings;
    for (int j = 0; j < kRingPoints; ++j) {
      const double v = 2 * std::numbers::pi * j / kRingPoints;
      const double r = 3 + std::cos(v);
      points.emplace_back(float(r * std::cos(u)), float(std::sin(v)), float(r * std::sin(u)));
    }
  }
  g3d_XForm().SetRotate(20, {1, 0, 0}).XForm(points.data(), int(points.size()));
  return points;
}

struct Pixel {
  float x, y;
};

// Window units to picture pixels, y down.
Pixel ToPixel(const g3d_Camera& camera, const g3d_Point& p) {
  float x = 0, y = 0;
  camera.ToWindow(p, x, y);
  const float scale = kPicture / std::max(camera.GetWindowWidth(), camera.GetWindowHeight());
  return {kPicture / 2 + x * scale, kPicture / 2 - y * scale};
}

double Turn(const Pixel& o, const Pixel& a, const Pixel& b) {
  return double(a.x - o.x) * (b.y - o.y) - double(a.y - o.y) * (b.x - o.x);
}

// The outline of the projected model: its convex hull (monotone chain).
std::vector<Pixel> Hull(std::vector<Pixel> pixels) {
  std::sort(pixels.begin(), pixels.end(),
            [](const Pixel& a, const Pixel& b) { return a.x < b.x || (a.x == b.x && a.y < b.y); });
  std::vector<Pixel> hull(2 * pixels.size());
  std::size_t k = 0;
  for (int pass = 0; pass < 2; ++pass) {
    const std::size_t start = k;
    for (const Pixel& p : pixels) {
      while (k >= start + 2 && Turn(hull[k - 2], hull[k - 1], p) <= 0) --k;
      hull[k++] = p;
    }
    --k;
    std::reverse(pixels.begin(), pixels.end());
  }
  hull.resize(k);
  return hull;
}

std::string Hex(const g3d_Color& c) {
  char text[8];
  std::snprintf(text, sizeof text, "#%06X", c.GetRGBA() >> 8);
  return text;
}

void WriteSvg(const std::filesystem::path& path, const g3d_Camera& camera,
              const std::vector<g3d_Point>& points) {
  std::vector<g3d_Color> ramp(kRings);
  g3d_Utils::Rainbow(ramp.data(), kRings, false, 1.0f);
  std::ofstream svg(path);
  svg << R"(<svg xmlns="http://www.w3.org/2000/svg" width=")" << kPicture << "\" height=\""
      << kPicture << "\">\n<rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n";
  std::vector<Pixel> pixels;
  for (int i = 0; i < kRings; ++i) {
    svg << R"(<polygon fill="none" stroke-width="1.5" stroke=")" << Hex(ramp[i]) << "\" points=\"";
    for (int j = 0; j < kRingPoints; ++j) {
      const Pixel p = ToPixel(camera, points[i * kRingPoints + j]);
      pixels.push_back(p);
      svg << p.x << ',' << p.y << ' ';
    }
    svg << "\"/>\n";
  }
  svg << R"(<polygon fill="none" stroke="black" stroke-width="2" points=")";
  for (const Pixel& p : Hull(pixels)) svg << p.x << ',' << p.y << ' ';
  svg << "\"/>\n</svg>\n";
}
}  // namespace

void DemoGeometry() {
  std::cout << "\n== Geometry and viewing\n";
  const std::vector<g3d_Point> points = TorusPoints();
  g3d_BoundingVolume model;
  model.AppendVertexes(points.data(), unsigned(points.size()));
  g3d_Sphere extent;
  model.GetExtent(extent);
  std::cout << "model: " << model.Count() << " points, bounding sphere radius " << extent.radius
            << '\n';

  g3d_Camera camera;
  camera.SetLocation({0, 4, 10}, {0, 0, 0}, {0, 1, 0});
  camera.SetModelBoundingVolume(model, 1.4f);
  camera.FitVP(kPicture, kPicture);
  camera.Zoom(10, false);
  camera.Pan(0.05f, -0.02f, 0, true);
  camera.Rotate(25, g3d_Vector(0, 1, 0), false);
  camera.Rotate(-15, g3d_Vector(1, 0, 0), true);
  std::cout << "field of view " << camera.GetFieldOfView() << " degrees, near " << camera.GetNear()
            << ", far " << camera.GetFar() << '\n';

  aio_ostream out(&std::cout);
  out << "view matrix:" << camera.GetVOM() << "projection matrix:" << camera.GetPM();

  const char* folder = std::getenv("CVX_DEMO_OUT");
  const std::filesystem::path path = std::filesystem::path(folder ? folder : ".") / "g3d_model.svg";
  WriteSvg(path, camera, points);
  std::cout << "picture of the projected model written to " << path.string() << '\n';
}
