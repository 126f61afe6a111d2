#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_BoundingVolume
/// The hull vertices of a model. Up to eight vertices live in an inline buffer, so the
/// default box and any box need no allocation; more move to a heap array that doubles.
#include <g3d_Sphere.h>

#include <memory>

class CVX_EXPORT g3d_BoundingVolume {
public:
  /// No vertices; Reset() gives the default cube [-1, 1]^3.
  g3d_BoundingVolume() noexcept = default;
  /// Copies the vertices.
  ///@{
  g3d_BoundingVolume(const g3d_BoundingVolume& other);
  g3d_BoundingVolume& operator=(const g3d_BoundingVolume& other);
  ///@}
  ~g3d_BoundingVolume();

  /// The vertices; null when there are none.
  const g3d_Point* Vertexes() const noexcept { return vertexes; }
  /// The number of vertices.
  unsigned int Count() const noexcept { return count; }
  /// The vertices the current buffer holds (8 inline).
  unsigned int Capacity() const noexcept { return capacity; }

  /// The eight corners of [-1, 1]^3, x slowest and z fastest, in the inline buffer.
  void Reset();
  /// True when the vertices are the default cube of Reset().
  bool IsDefault() const noexcept;
  /// n vertices (default points) to be filled in through the returned array; earlier
  /// vertices are dropped.
  g3d_Point* AllocateVertexes(unsigned int n);
  /// Adds n points after the present vertices; points may lie in this volume itself.
  void AppendVertexes(const g3d_Point* points, unsigned int n);
  /// The eight corners of the axis-aligned box, in the order of Reset().
  void SetToRectangleBox(g3d_Point min, g3d_Point max);
  /// A sphere around every vertex: centred on their bounding box, reaching the farthest.
  /// No vertices give the empty sphere (radius -1).
  void GetExtent(g3d_Sphere& sphere) const noexcept;

private:
  void UseInline(unsigned int n) noexcept;
  void Reserve(unsigned int n);

  g3d_Point* vertexes = nullptr;
  unsigned int count = 0;
  unsigned int capacity = 0;
  g3d_Point inlineVertexes[8];
  std::unique_ptr<g3d_Point[]> heapVertexes;
};

/// @}
