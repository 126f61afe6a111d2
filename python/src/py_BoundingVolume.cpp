#include "py_BoundingVolume.h"

#include "py_Triple.h"

#include <g3d_BoundingVolume.h>

#include <vector>

namespace py = pybind11;
using namespace pybind11::literals;

namespace {
g3d_BoundingVolume Box(py::handle min, py::handle max) {
  g3d_BoundingVolume volume;
  volume.SetToRectangleBox(py_Triple::Point(min, "min"), py_Triple::Point(max, "max"));
  return volume;
}

void Extend(g3d_BoundingVolume& volume, py::handle points) {
  const py_Triple::FloatArray rows = py_Triple::Rows(points, 3, "points");
  const float* xyz = rows.data();
  std::vector<g3d_Point> vertices(static_cast<std::size_t>(rows.shape(0)));
  for (g3d_Point& vertex : vertices) {
    vertex = g3d_Point(xyz[0], xyz[1], xyz[2]);
    xyz += 3;
  }
  volume.AppendVertexes(vertices.data(), static_cast<unsigned int>(vertices.size()));
}

py_Triple::FloatArray Vertices(const g3d_BoundingVolume& volume) {
  py_Triple::FloatArray rows = py_Triple::NewRows(volume.Count(), 3);
  float* xyz = rows.mutable_data();
  for (unsigned int i = 0; i < volume.Count(); ++i, xyz += 3) {
    const g3d_Vector v = volume.Vertexes()[i] - g3d_Point();
    xyz[0] = v.x;
    xyz[1] = v.y;
    xyz[2] = v.z;
  }
  return rows;
}

g3d_Sphere Extent(const g3d_BoundingVolume& volume) {
  g3d_Sphere sphere;
  volume.GetExtent(sphere);
  return sphere;
}
}  // namespace

void py_BoundingVolume::Register(py::module_& module) {
  py::class_<g3d_BoundingVolume>(module, "BoundingVolume", "The hull vertices of a model.")
      .def(py::init<>())
      .def_static("box", &Box, "min"_a, "max"_a)
      .def("reset", &g3d_BoundingVolume::Reset)
      .def_property_readonly("is_default", &g3d_BoundingVolume::IsDefault)
      .def("extend", &Extend, "points"_a)
      .def_property_readonly("vertices", &Vertices)
      .def("__len__", &g3d_BoundingVolume::Count)
      .def_property_readonly("extent", &Extent)
      .def_property_readonly(
          "center", [](const g3d_BoundingVolume& v) { return py_Triple::Tuple(Extent(v).center); })
      .def_property_readonly("radius",
                             [](const g3d_BoundingVolume& v) { return Extent(v).radius; });
}
