#include <g3d_BoundingVolume.h>

#include <algorithm>
#include <vector>

g3d_BoundingVolume::g3d_BoundingVolume(const g3d_BoundingVolume& other) { *this = other; }

g3d_BoundingVolume& g3d_BoundingVolume::operator=(const g3d_BoundingVolume& other) {
  if (this == &other) return *this;
  if (!other.vertexes) {
    heapVertexes.reset();
    vertexes = nullptr;
    count = capacity = 0;
    return *this;
  }
  std::copy(other.vertexes, other.vertexes + other.count, AllocateVertexes(other.count));
  return *this;
}

g3d_BoundingVolume::~g3d_BoundingVolume() = default;

void g3d_BoundingVolume::Reset() { SetToRectangleBox(g3d_Point(-1, -1, -1), g3d_Point(1, 1, 1)); }

bool g3d_BoundingVolume::IsDefault() const noexcept {
  if (vertexes != inlineVertexes || count != 8) return false;
  g3d_BoundingVolume cube;
  cube.Reset();
  return std::equal(vertexes, vertexes + count, cube.vertexes);
}

void g3d_BoundingVolume::UseInline(unsigned int n) noexcept {
  heapVertexes.reset();
  vertexes = inlineVertexes;
  capacity = 8;
  count = n;
}

g3d_Point* g3d_BoundingVolume::AllocateVertexes(unsigned int n) {
  if (n <= 8) {
    UseInline(n);
  } else if (!heapVertexes || capacity < n) {
    heapVertexes = std::make_unique<g3d_Point[]>(n);
    vertexes = heapVertexes.get();
    capacity = n;
  }
  count = n;
  std::fill(vertexes, vertexes + n, g3d_Point());
  return vertexes;
}

void g3d_BoundingVolume::Reserve(unsigned int n) {
  if (!vertexes) UseInline(0);
  if (n <= capacity) return;
  auto grown = std::make_unique<g3d_Point[]>(std::max(n, capacity * 2));
  std::copy(vertexes, vertexes + count, grown.get());
  capacity = std::max(n, capacity * 2);
  heapVertexes = std::move(grown);
  vertexes = heapVertexes.get();
}

void g3d_BoundingVolume::AppendVertexes(const g3d_Point* points, unsigned int n) {
  if (n == 0) return;
  // Points taken from this volume itself would not survive a move to a larger array.
  std::vector<g3d_Point> own;
  if (vertexes && points >= vertexes && points < vertexes + capacity) {
    own.assign(points, points + n);
    points = own.data();
  }
  Reserve(count + n);
  std::copy(points, points + n, vertexes + count);
  count += n;
}

void g3d_BoundingVolume::SetToRectangleBox(g3d_Point min, g3d_Point max) {
  UseInline(8);
  for (unsigned int i = 0; i < 8; ++i) {
    vertexes[i] =
        g3d_Point((i & 4) ? max.x : min.x, (i & 2) ? max.y : min.y, (i & 1) ? max.z : min.z, 1.0f);
  }
}

void g3d_BoundingVolume::GetExtent(g3d_Sphere& sphere) const noexcept {
  if (count == 0) {
    sphere.Set(g3d_Point(), -1.0f);
    return;
  }
  const g3d_Point origin;
  g3d_Vector low = vertexes[0] - origin, high = low;
  for (unsigned int i = 1; i < count; ++i) {
    const g3d_Vector v = vertexes[i] - origin;
    low = {std::min(low.x, v.x), std::min(low.y, v.y), std::min(low.z, v.z)};
    high = {std::max(high.x, v.x), std::max(high.y, v.y), std::max(high.z, v.z)};
  }
  const g3d_Point center = origin + (low + high) * 0.5f;
  float radius = 0.0f;
  for (unsigned int i = 0; i < count; ++i) {
    radius = std::max(radius, (vertexes[i] - center).Length());
  }
  sphere.Set(center, radius);
}
