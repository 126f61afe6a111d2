"""The viewing camera, bounding spheres and volumes as a script meets them: conversions, the
native answers passed on exactly, and failures as Python values and exceptions. What the camera
computes is checked in CameraTest.cpp."""
import math

import numpy as np
import pytest

from cvxutils import BoundingVolume, Camera, Sphere, XForm

f32 = np.float32


def looking(eye, target=(0, 0, 0), perspective=True, window=(1, 1)):
    camera = Camera()
    camera.set_projection(perspective)
    return camera.set_location(eye, target).set_window(*window)


def test_matrices_are_float32_copies_of_the_native_rows():
    camera = looking((10, 0, 0), window=(4, 2)).set_near_far(2, 40)
    view = camera.view_matrix
    assert view.dtype == f32 and view.shape == (4, 4)
    # Rows, not columns: the eye's offset is in the last column.
    np.testing.assert_array_equal(view, [[0, 0, -1, 0], [0, 1, 0, 0], [1, 0, 0, -10], [0, 0, 0, 1]])
    np.testing.assert_array_equal(camera.projection_matrix,
                                  XForm.perspective(-2, 2, 1, -1, 2, 40).matrix)
    view[0, 0] = 7
    assert camera.view_matrix[0, 0] == 0


# In perspective every ray starts at the eye, in parallel projection each at its own origin.
CAMERAS = [
    ("perspective", lambda: looking((3, 4, 12), (1, 0, 0), window=(3, 2)).set_view_offset(0.25, -0.5)),
    ("parallel", lambda: looking((3, 4, 12), (1, 0, 0), False, (3, 2)).set_view_offset(-0.75, 0.5)),
]


@pytest.mark.parametrize("what, make", CAMERAS, ids=[c[0] for c in CAMERAS])
def test_one_point_and_many_give_the_same_answers(what, make):
    camera = make()
    points = np.random.default_rng(7).uniform(-5, 5, (50, 3)).astype(f32)
    xy = camera.project(points)
    assert xy.shape == (50, 2) and xy.dtype == f32
    assert [tuple(row) for row in xy] == [camera.project(p) for p in points]
    origins, directions = camera.unproject(xy)
    assert origins.dtype == directions.dtype == f32
    assert [(tuple(o), tuple(d)) for o, d in zip(origins, directions)] == [
        camera.unproject(float(x), float(y)) for x, y in xy]
    # Each point lies on its own ray: origin and direction come in that order.
    along = np.einsum("ij,ij->i", points - origins, directions)
    np.testing.assert_allclose(origins + along[:, None] * directions, points, atol=1e-4)


def test_no_answer_is_none_for_one_point_and_nan_rows_for_many():
    camera = looking((0, 0, 10)).set_near_far(0, 10)  # perspective needs near above 0
    assert camera.unproject(0.1, 0.1) is None
    origins, directions = camera.unproject(np.zeros((2, 2)))
    assert np.isnan(origins).all() and np.isnan(directions).all()
    assert looking((0, 0, 10)).project((1, 1, 10)) is None  # on the eye plane
    assert np.isnan(looking((0, 0, 10)).project(np.array([[1, 1, 10.0]]))).all()


def test_operations_chain_on_the_camera_itself():
    camera = Camera()
    assert repr(camera) == "Camera(eye=(2, 0, 0), target=(0, 0, 0), up=(0, 1, 0), perspective)"
    assert camera.zoom(50).pan(0.1, 0).rotate(10, (0, 1, 0)).fit(Sphere()) is camera
    assert camera.set_projection(False) is True and camera.set_projection(False) is False
    assert repr(camera).endswith(", parallel)")
    assert camera.copy() == camera and camera.copy() is not camera


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
