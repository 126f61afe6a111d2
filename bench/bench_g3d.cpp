// Transforming point arrays beside GLM, Eigen and a plain copy of the same bytes; rebuilding
// the camera's matrices beside GLM's lookAt and frustum.
#include <g3d_Camera.h>

#include <benchmark/benchmark.h>
#include <Eigen/Dense>
#include <glm/glm.hpp>
#include <glm/gtc/matrix_transform.hpp>

#include <cstring>
#include <string>
#include <vector>

namespace {
// Points of four floats each; the same buffer layout for every contender.
std::vector<float> Points(std::size_t n) {
  std::vector<float> data(4 * n);
  for (std::size_t i = 0; i < n; ++i) {
    data[4 * i] = float(i % 1000) * 0.01f;
    data[4 * i + 1] = float(i % 777) * 0.02f;
    data[4 * i + 2] = float(i % 555) * 0.03f;
    data[4 * i + 3] = 1.0f;
  }
  return data;
}

// A rotation (no growth over many passes) with a small translation.
g3d_XForm Motion() {
  g3d_XForm m;
  m.SetRotate(0.5f, {1, 2, 3}).Translate(1e-6f, 0, -1e-6f);
  return m;
}

void Count(benchmark::State& state, std::size_t n) {
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * n * 16));
}

void XForm_ours(benchmark::State& state, std::size_t n) {
  std::vector<float> data = Points(n);
  const g3d_XForm m = Motion();
  auto* points = reinterpret_cast<g3d_Point*>(data.data());
  for (auto _ : state) {
    m.XForm(points, static_cast<int>(n));
    benchmark::ClobberMemory();
  }
  Count(state, n);
}

void XForm_glm(benchmark::State& state, std::size_t n) {
  std::vector<float> data = Points(n);
  glm::mat4 m;  // column-major: m[column][row]
  const g3d_XForm x = Motion();
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 4; ++j) m[j][i] = x.GetM(i, j);
  }
  auto* points = reinterpret_cast<glm::vec4*>(data.data());
  for (auto _ : state) {
    for (std::size_t i = 0; i < n; ++i) points[i] = m * points[i];
    benchmark::ClobberMemory();
  }
  Count(state, n);
}

void XForm_eigen(benchmark::State& state, std::size_t n) {
  std::vector<float> data = Points(n);
  Eigen::Matrix4f m;
  const g3d_XForm x = Motion();
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 4; ++j) m(i, j) = x.GetM(i, j);
  }
  Eigen::Map<Eigen::Matrix<float, 4, Eigen::Dynamic>> points(data.data(), 4,
                                                             static_cast<Eigen::Index>(n));
  for (auto _ : state) {
    for (Eigen::Index i = 0; i < points.cols(); ++i) {
      const Eigen::Vector4f p = points.col(i);
      points.col(i).noalias() = m * p;
    }
    benchmark::ClobberMemory();
  }
  Count(state, n);
}

void XForm_memcpy(benchmark::State& state, std::size_t n) {
  const std::vector<float> from = Points(n);
  std::vector<float> to(from.size());
  for (auto _ : state) {
    std::memcpy(to.data(), from.data(), from.size() * sizeof(float));
    benchmark::ClobberMemory();
  }
  Count(state, n);
}

const bool s_XFormRegistered = [] {
  using Runner = void (*)(benchmark::State&, std::size_t);
  const std::pair<const char*, Runner> sides[] = {
      {"ours", XForm_ours}, {"glm", XForm_glm}, {"eigen", XForm_eigen}, {"memcpy", XForm_memcpy}};
  for (const auto& [label, n] :
       {std::pair{"1M", std::size_t{1} << 20}, {"16M", std::size_t{1} << 24}}) {
    for (const auto& [side, run] : sides) {
      benchmark::RegisterBenchmark((std::string("XFormPoints") + label + "/" + side).c_str(),
                                   [run = run, n = n](benchmark::State& s) { run(s, n); })
          ->Unit(benchmark::kMillisecond);
    }
  }
  return true;
}();

void CameraRebuild_ours(benchmark::State& state) {
  g3d_Camera camera;
  camera.SetLocation({3, 2, 10}, {0, 0, 0}, {0, 1, 0});
  int i = 0;
  for (auto _ : state) {
    const float wobble = float(++i & 1) * 1e-3f;
    camera.SetLocation({3 + wobble, 2, 10}, {0, 0, 0}, {0, 1, 0});
    camera.SetWindow(1 + wobble, 1);
    benchmark::DoNotOptimize(camera.GetVOM());
    benchmark::DoNotOptimize(camera.GetPM());
  }
}
BENCHMARK(CameraRebuild_ours)->Name("CameraRebuild/ours");

void CameraRebuild_glm(benchmark::State& state) {
  int i = 0;
  for (auto _ : state) {
    const float wobble = float(++i & 1) * 1e-3f;
    glm::mat4 view = glm::lookAt(glm::vec3(3 + wobble, 2, 10), glm::vec3(0), glm::vec3(0, 1, 0));
    const float w = (1 + wobble) / 2;
    glm::mat4 projection = glm::frustum(-w, w, -0.5f, 0.5f, 1.0f, 10000.0f);
    benchmark::DoNotOptimize(view);
    benchmark::DoNotOptimize(projection);
  }
}
BENCHMARK(CameraRebuild_glm)->Name("CameraRebuild/glm");
}  // namespace
