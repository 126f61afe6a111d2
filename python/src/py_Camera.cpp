#include "py_Camera.h"

#include "py_ArrayConverter.h"
#include "py_Triple.h"

#include <g3d_Camera.h>

#include <limits>

namespace py = pybind11;
using namespace pybind11::literals;

namespace {
using Camera = g3d_Camera;
// Operations return the camera itself, so that calls chain on the one Python object.
constexpr auto kSelf = py::return_value_policy::reference_internal;
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

bool IsRows(py::handle value) {
  return py_ArrayConverter::IsArray(value.ptr()) && value.attr("ndim").cast<int>() == 2;
}

py::array_t<float> Matrix(const g3d_XForm& m) {
  py::array_t<float> matrix({4, 4});
  m.GetM(reinterpret_cast<float(*)[4]>(matrix.mutable_data()));
  return matrix;
}

py::object Project(const Camera& camera, py::handle points) {
  if (!IsRows(points)) {
    float x = 0, y = 0;
    if (!camera.ToWindow(py_Triple::Point(points, "point"), x, y)) return py::none();
    return py::make_tuple(x, y);
  }
  const py_Triple::FloatArray rows = py_Triple::Rows(points, 3, "points");
  py_Triple::FloatArray out = py_Triple::NewRows(rows.shape(0), 2);
  const float* xyz = rows.data();
  float* xy = out.mutable_data();
  for (py::ssize_t i = 0; i < rows.shape(0); ++i, xyz += 3, xy += 2) {
    if (!camera.ToWindow(g3d_Point(xyz[0], xyz[1], xyz[2]), xy[0], xy[1])) xy[0] = xy[1] = kNaN;
  }
  return out;
}

py::object Unproject(const Camera& camera, float x, float y) {
  g3d_Ray ray;
  if (!camera.Unproject(x, y, ray)) return py::none();
  return py::make_tuple(py_Triple::Tuple(ray.origin), py_Triple::Tuple(ray.direction));
}

void Put(float* row, const g3d_Vector& v) {
  row[0] = v.x;
  row[1] = v.y;
  row[2] = v.z;
}

py::tuple UnprojectAll(const Camera& camera, py::handle points) {
  const py_Triple::FloatArray rows = py_Triple::Rows(points, 2, "points");
  const py::ssize_t n = rows.shape(0);
  py_Triple::FloatArray origins = py_Triple::NewRows(n, 3), directions = py_Triple::NewRows(n, 3);
  const float* xy = rows.data();
  float* origin = origins.mutable_data();
  float* direction = directions.mutable_data();
  for (py::ssize_t i = 0; i < n; ++i, xy += 2, origin += 3, direction += 3) {
    g3d_Ray ray;
    const bool found = camera.Unproject(xy[0], xy[1], ray);
    Put(origin, found ? ray.origin - g3d_Point() : g3d_Vector(kNaN, kNaN, kNaN));
    Put(direction, found ? ray.direction : g3d_Vector(kNaN, kNaN, kNaN));
  }
  return py::make_tuple(origins, directions);
}

Camera& Rotate(Camera& camera, float degrees, py::handle axis, py::handle center, bool eyeSpace) {
  const g3d_Vector about = py_Triple::Vector(axis, "axis");
  if (center.is_none()) return camera.Rotate(degrees, about, eyeSpace);
  return camera.Rotate(degrees, about, py_Triple::Point(center, "center"));
}

Camera& RotateTo(Camera& camera, py::handle from, py::handle to, py::handle center, bool eyeSpace) {
  const g3d_Vector a = py_Triple::Vector(from, "from_"), b = py_Triple::Vector(to, "to");
  if (center.is_none()) return camera.Rotate(a, b, eyeSpace);
  return camera.Rotate(a, b, py_Triple::Point(center, "center"));
}

std::string Repr(const Camera& camera) {
  return "Camera(eye=" + py_Triple::Text(camera.GetEye() - g3d_Point()) +
         ", target=" + py_Triple::Text(camera.GetTarget() - g3d_Point()) +
         ", up=" + py_Triple::Text(camera.GetUp()) +
         (camera.IsPerspective() ? ", perspective)" : ", parallel)");
}

void AddState(py::class_<Camera>& camera) {
  camera.def_property_readonly("eye", [](const Camera& c) { return py_Triple::Tuple(c.GetEye()); })
      .def_property_readonly("target",
                             [](const Camera& c) { return py_Triple::Tuple(c.GetTarget()); })
      .def_property_readonly("up", [](const Camera& c) { return py_Triple::Tuple(c.GetUp()); })
      .def_property_readonly(
          "window",
          [](const Camera& c) { return py::make_tuple(c.GetWindowWidth(), c.GetWindowHeight()); })
      .def_property_readonly(
          "view_offset",
          [](const Camera& c) { return py::make_tuple(c.GetViewOffsetX(), c.GetViewOffsetY()); })
      .def_property_readonly("near", &Camera::GetNear)
      .def_property_readonly("far", &Camera::GetFar)
      .def_property_readonly("perspective", &Camera::IsPerspective)
      .def_property_readonly("field_of_view", &Camera::GetFieldOfView)
      .def_property("fit_factor", &Camera::GetFitFactor, &Camera::SetFitFactor)
      .def_property_readonly("view_matrix", [](const Camera& c) { return Matrix(c.GetVOM()); })
      .def_property_readonly("projection_matrix", [](const Camera& c) { return Matrix(c.GetPM()); })
      .def(
          "__eq__", [](const Camera& a, const Camera& b) { return a == b; }, py::is_operator())
      .def("copy", [](const Camera& c) { return c; })
      .def("__repr__", &Repr);
}

void AddSetters(py::class_<Camera>& camera) {
  camera
      .def(
          "set_location",
          [](Camera& c, py::handle eye, py::handle target, py::handle up) -> Camera& {
            return c.SetLocation(py_Triple::Point(eye, "eye"), py_Triple::Point(target, "target"),
                                 py_Triple::Vector(up, "up"));
          },
          "eye"_a, "target"_a, "up"_a = py::make_tuple(0, 1, 0), kSelf)
      .def("set_window", &Camera::SetWindow, "width"_a, "height"_a, kSelf)
      .def("set_view_offset", &Camera::SetViewOffset, "x"_a, "y"_a, kSelf)
      .def("set_near_far", &Camera::SetNearFar, "near"_a, "far"_a, kSelf)
      .def(
          "set_projection",
          [](Camera& c, bool perspective) {
            return c.SetProjection(perspective ? Camera::PERSPECTIVE : Camera::PARALLEL);
          },
          "perspective"_a)
      .def("make_perspective", &Camera::MakePerspective, kSelf)
      .def("make_parallel", &Camera::MakeParallel, kSelf)
      .def("set_field_of_view", &Camera::SetFieldOfView, "degrees"_a, "keep_distance"_a = true,
           kSelf)
      .def("set_model", &Camera::SetModelBoundingVolume, "volume"_a, "margin"_a = 1.0f, kSelf)
      .def("correct_aspect", &Camera::CorrectAspect, "width"_a, "height"_a, "x0"_a, "x1"_a, "y0"_a,
           "y1"_a, "pixel_aspect"_a = 1.0f, kSelf);
}

void AddMotions(py::class_<Camera>& camera) {
  camera
      .def("zoom", py::overload_cast<float, bool>(&Camera::Zoom), "percent"_a, "dolly"_a = false,
           kSelf)
      .def("zoom_to", &Camera::ZoomTo, "x"_a, "y"_a, "percent"_a, "toward_point"_a = false,
           "dolly"_a = false, kSelf)
      .def("zoom_rect", py::overload_cast<float, float, float, float, bool>(&Camera::Zoom), "x0"_a,
           "y0"_a, "x1"_a, "y1"_a, "dolly"_a = false, kSelf)
      .def("pan", &Camera::Pan, "dx"_a, "dy"_a, "dz"_a = 0.0f, "fit_clipping"_a = false, kSelf)
      .def("rotate", &Rotate, "degrees"_a, "axis"_a, "center"_a = py::none(), "eye_space"_a = false,
           kSelf)
      .def("rotate_to", &RotateTo, "from_"_a, "to"_a, "center"_a = py::none(),
           "eye_space"_a = false, kSelf)
      .def("fit", py::overload_cast<const g3d_Sphere&>(&Camera::Fit), "sphere"_a, kSelf)
      .def("fit", py::overload_cast<const g3d_BoundingVolume&>(&Camera::Fit), "volume"_a, kSelf)
      .def(
          "fit_box",
          [](Camera& c, py::handle min, py::handle max) -> Camera& {
            return c.Fit(py_Triple::Point(min, "min"), py_Triple::Point(max, "max"));
          },
          "min"_a, "max"_a, kSelf)
      .def("fit_viewport", &Camera::FitCenterVP, "width"_a, "height"_a, "fraction"_a = 1.0f,
           "keep_direction"_a = true, kSelf)
      .def("project", &Project, "point"_a)
      .def("unproject", &Unproject, "x"_a, "y"_a)
      .def("unproject", &UnprojectAll, "points"_a);
}
}  // namespace

void py_Camera::Register(py::module_& module) {
  py::class_<Camera> camera(module, "Camera", "The viewing state of a 3-D viewport.");
  camera.def(py::init<>());
  AddState(camera);
  AddSetters(camera);
  AddMotions(camera);
}
