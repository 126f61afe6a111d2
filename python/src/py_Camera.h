#pragma once
// cvxutils.Camera: the viewing state of a 3-D viewport (g3d_Camera). Points and directions
// are sequences of 3 numbers (py_Triple), narrowed to float32; results are tuples, or float32
// NumPy arrays for many points at once. Every operation is the library's own, so a script
// gets exactly the numbers a native viewport gets. Nothing raises for odd values: the camera
// repairs or limits them as the library does.
//
//   Camera()                         perspective, eye (2, 0, 0), target the origin, up +y,
//                                    a 1 x 1 window, near 1, far 10000
//   eye, target, up, window, view_offset, near, far, perspective, field_of_view
//                                    read-only; fit_factor settable
//   set_location(eye, target, up=(0, 1, 0)), set_window(width, height),
//   set_view_offset(x, y), set_near_far(near, far), set_field_of_view(degrees,
//   keep_distance=True), make_perspective(), make_parallel(), zoom(percent, dolly=False),
//   zoom_to(x, y, percent, toward_point=True, dolly=False), zoom_rect(x0, y0, x1, y1,
//   dolly=False), pan(dx, dy, dz=0, fit_clipping=False), rotate(degrees, axis, center=None,
//   eye_space=False), rotate_to(from_, to, center=None, eye_space=False), fit(Sphere or
//   BoundingVolume), fit_box(min, max), set_model(volume, margin=1), fit_viewport(width,
//   height, fraction=1, keep_direction=True), correct_aspect(width, height, x0, x1, y0, y1,
//   pixel_aspect=1)
//                                    the library's operations; each returns the camera
//   set_projection(perspective)      True when the projection changed (the window is not
//                                    rescaled; make_perspective and make_parallel do that)
//   view_matrix, projection_matrix   4x4 float32 arrays (row-major, column vectors), copies
//   project(point)                   (x, y) in window units, or None for a point on the eye
//                                    plane; given an (N, 3) NumPy array, an (N, 2) array
//                                    with NaN rows for such points
//   unproject(x, y)                  the ray (origin, direction) of the points that show at
//                                    (x, y), direction of unit length, or None without a
//                                    projection to invert; given one (N, 2) NumPy array, a
//                                    pair of (N, 3) arrays with NaN rows for None
//   ==, copy()                       the library's camera equality; an independent copy
#include <pybind11/pybind11.h>

class py_Camera {
public:
  static void Register(pybind11::module_& module);
};
