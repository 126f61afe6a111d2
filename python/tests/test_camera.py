"""The viewing camera, bounding spheres and volumes as a script meets them."""
import math

import numpy as np
import pytest

from cvxutils import BoundingVolume, Camera, Sphere

f32 = np.float32


def looking(eye, target=(0, 0, 0), perspective=True, window=(1, 1)):
    camera = Camera()
    camera.set_projection(perspective)
    return camera.set_location(eye, target).set_window(*window)


def frustum(camera):
    """left, right, top, bottom as the camera computes them in float32."""
    (w, h), (ox, oy) = camera.window, camera.view_offset
    half = f32(-0.5)
    return (half * f32(w) + f32(ox), f32(0.5) * f32(w) + f32(ox),
            f32(0.5) * f32(h) + f32(oy), half * f32(h) + f32(oy))


def expected_projection(camera):
    """The projection matrix by its textbook formula, in double, narrowed once."""
    l, r, t, b = map(float, frustum(camera))
    n, f = float(camera.near), float(camera.far)
    if camera.perspective:
        rows = [[2 * n / (r - l), 0, (r + l) / (r - l), 0], [0, 2 * n / (t - b), (t + b) / (t - b), 0],
                [0, 0, -(f + n) / (f - n), -2 * f * n / (f - n)], [0, 0, -1, 0]]
    else:
        rows = [[2 / (r - l), 0, 0, -(l + r) / (r - l)], [0, 2 / (t - b), 0, -(t + b) / (t - b)],
                [0, 0, -2 / (f - n), -(n + f) / (f - n)], [0, 0, 0, 1]]
    return np.array(rows).astype(f32)


# One row per camera: what it is, how it is made. Used by the matrix and inversion tests.
CAMERAS = [
    ("default", lambda: Camera()),
    ("perspective, wide", lambda: looking((0, 0, 10), window=(4, 2))),
    ("perspective, oblique, offset",
     lambda: looking((3, 4, 12), (1, 0, 0), window=(3, 2)).set_view_offset(0.25, -0.5).set_near_far(2, 40)),
    ("parallel, oblique, offset",
     lambda: looking((3, 4, 12), (1, 0, 0), False, (3, 2)).set_view_offset(-0.75, 0.5).set_near_far(-5, 40)),
    ("parallel, zoomed and panned", lambda: looking((0, 0, 10), perspective=False).zoom(30).pan(0.2, -0.1)),
]


@pytest.mark.parametrize("what, make", CAMERAS, ids=[c[0] for c in CAMERAS])
def test_projection_matrix_is_the_libraries_exactly(what, make):
    camera = make()
    matrix = camera.projection_matrix
    assert matrix.dtype == f32 and matrix.shape == (4, 4)
    np.testing.assert_array_equal(matrix, expected_projection(camera))


@pytest.mark.parametrize("eye, rows", [
    ((0, 0, 10), [[1, 0, 0, 0], [0, 1, 0, 0], [0, 0, 1, -10], [0, 0, 0, 1]]),
    ((10, 0, 0), [[0, 0, -1, 0], [0, 1, 0, 0], [1, 0, 0, -10], [0, 0, 0, 1]]),
    ((0, -4, 0), [[1, 0, 0, 0], [0, 0, 1, 0], [0, -1, 0, -4], [0, 0, 0, 1]]),  # up repaired to +z
])
def test_view_matrix_rows_are_right_up_back_and_the_eye_at_the_origin(eye, rows):
    np.testing.assert_array_equal(looking(eye).view_matrix, np.array(rows, dtype=f32))


@pytest.mark.parametrize("what, make", CAMERAS, ids=[c[0] for c in CAMERAS])
def test_unproject_inverts_project_to_float32_rounding(what, make):
    camera = make()
    size = max(camera.window)
    xy = np.array([[0, 0], [0.3, -0.2], [-0.45, 0.4], [0.5, 0.5]], dtype=f32) * f32(size)
    origins, directions = camera.unproject(xy)
    for i, (x, y) in enumerate(xy):
        origin, direction = camera.unproject(float(x), float(y))
        assert origin == tuple(origins[i]) and direction == tuple(directions[i])  # one mapping
        assert math.isclose(math.hypot(*direction), 1, rel_tol=1e-6)
        for depth in (1.0, 7.0, 25.0):
            back = camera.project(np.asarray(origin) + depth * np.asarray(direction))
            assert back == pytest.approx((x, y), abs=4e-6 * size), f"{what}, depth {depth}"
    # World points land back on their own ray.
    points = np.array([[0.2, 0.1, 0.3], [1.5, -0.5, 2], [-1, 2, -3]], dtype=f32)
    origins, directions = camera.unproject(camera.project(points))
    along = np.einsum("ij,ij->i", points - origins, directions)
    np.testing.assert_allclose(origins + along[:, None] * directions, points, atol=4e-6 * size * 10)


def test_project_one_point_and_many_agree_exactly():
    camera = looking((3, 4, 12), (1, 0, 0), window=(3, 2))
    points = np.random.default_rng(7).uniform(-5, 5, (50, 3)).astype(f32)
    many = camera.project(points)
    assert many.shape == (50, 2) and many.dtype == f32
    assert [tuple(row) for row in many] == [camera.project(p) for p in points]
    assert looking((0, 0, 10)).project((0.5, 0.25, 0)) == pytest.approx((0.05, 0.025))  # near 1, depth 10


def test_no_projection_gives_none_and_nan_rows():
    camera = looking((0, 0, 10)).set_near_far(0, 10)  # perspective needs near above 0
    assert camera.unproject(0.1, 0.1) is None
    origins, directions = camera.unproject(np.zeros((2, 2)))
    assert np.isnan(origins).all() and np.isnan(directions).all()
    assert looking((0, 0, 10)).project((1, 1, 10)) is None  # on the eye plane
    assert np.isnan(looking((0, 0, 10)).project(np.array([[1, 1, 10.0]]))).all()


@pytest.mark.parametrize("percent, scale", [(50, 0.5), (-50, 2), (150, 0.01), (-150, 100), (0, 1)])
def test_zoom_scales_the_window(percent, scale):
    camera = looking((0, 0, 10), window=(2, 1))
    assert camera.zoom(percent) is camera
    assert camera.window == pytest.approx((2 * scale, scale), rel=1e-6)


def test_setters_repair_as_the_library_does():
    camera = Camera().set_location((1, 2, 3), (1, 2, 3), (0, 0, 0))
    assert camera.eye == (1, 2, float(f32(3) * f32(1.1)))
    assert camera.up == (0, 1, 0)
    assert Camera().set_projection(False) is True and Camera().set_projection(True) is False
    parallel = looking((0, 0, 10), perspective=False).set_window(1000, 1)
    assert parallel.window == (1000, 2)
    assert Camera().field_of_view == pytest.approx(math.degrees(2 * math.atan(0.5)))
    assert repr(Camera()) == "Camera(eye=(2, 0, 0), target=(0, 0, 0), up=(0, 1, 0), perspective)"
    wide = looking((0, 0, 8)).make_parallel()
    assert not wide.perspective and wide.window == (8, 8)


# The sphere's outline touches the window's top; near and far around it are CameraTest.cpp's.
@pytest.mark.parametrize("perspective, edge", [(True, 0.5 * math.cos(math.atan(0.5))), (False, 0.5)])
def test_fit_frames_the_sphere(perspective, edge):
    camera = looking((0, 0, 5), perspective=perspective, window=(2, 1)).fit(Sphere((10, 0, 0), 2))
    assert camera.target == (10, 0, 0) and camera.eye[2] > 0
    x, y = camera.project((10, 2, 0))
    assert y / camera.window[1] == pytest.approx(edge, abs=1e-5)


def test_fit_to_a_box_is_fit_to_its_sphere():
    start = looking((3, 4, 12), (1, 0, 0), window=(3, 2))
    box = BoundingVolume.box((-1, -2, -3), (3, 2, 1))
    by_box = start.copy().fit(box)
    assert by_box == start.copy().fit(box.extent)
    assert by_box != start
    assert start.copy().fit_box((-1, -2, -3), (3, 2, 1)) == start.copy().fit(Sphere((1, 0, -1), math.sqrt(48) / 2))


@pytest.mark.parametrize("call, error, message", [
    (lambda c: c.set_location("abc", (0, 0, 0)), TypeError, "eye must be a sequence of 3 numbers, not str"),
    (lambda c: c.set_location((1, 2), (0, 0, 0)), ValueError, "eye must have 3 coordinates, not 2"),
    (lambda c: c.rotate(10, 5), TypeError, "axis must be a sequence of 3 numbers, not int"),
    (lambda c: c.project(np.zeros((4, 2))), ValueError, "points must have the shape (N, 3), not (4, 2)"),
    (lambda c: c.unproject(np.zeros(3)), ValueError, "points must have the shape (N, 2), not (3,)"),
    (lambda c: c.fit_box((0, 0, 0), [1, 1, 1, 1]), ValueError, "max must have 3 coordinates, not 4"),
])
def test_bad_points_raise_exact_errors(call, error, message):
    with pytest.raises(error) as raised:
        call(Camera())
    assert str(raised.value) == message


def test_sphere_union_and_volume_extent():
    assert Sphere((0, 0, 0), 1) + Sphere((4, 0, 0), 1) == Sphere((2, 0, 0), 3)
    assert Sphere().contains(Sphere((0.5, 0, 0), 0.5)) and Sphere((1, 2, 3), -1).empty
    assert repr(Sphere((1, 0.5, 0), 2.5)) == "Sphere((1, 0.5, 0), 2.5)"
    volume = BoundingVolume()
    assert len(volume) == 0 and volume.extent.empty
    volume.reset()
    assert volume.is_default and volume.vertices.shape == (8, 3)
    volume.extend([[3, 0, 0], [-1, -1, -1]])
    assert len(volume) == 10 and not volume.is_default
    assert volume.center == (1, 0, 0) and volume.radius == pytest.approx(math.sqrt(6))
