"""Vector, Point, XForm and XFormStack: the library's float arithmetic, seen from Python."""
import math
import re

import numpy as np
import pytest

import cvxutils
from cvxutils import Point, Vector, XForm, XFormStack

f32 = np.float32


def components(value):
    return [float(c) for c in value]


# The library computes in IEEE single precision, as NumPy's float32 does: each row's expected
# value takes the same steps, in the same order, through float32. The rows check what the
# binding adds (Python and NumPy numbers narrowed to float, float results passed on exactly,
# argument order); VectorTest.cpp checks the arithmetic itself.
A, B, K = (f32(0.1), f32(-2.5), f32(3e7)), (f32(1 / 3), f32(4), f32(-0.7)), f32(1.1)
VECTOR_RESULTS = [
    ("v + w", lambda v, w: v + w, [a + b for a, b in zip(A, B)]),
    ("v - w", lambda v, w: v - w, [a - b for a, b in zip(A, B)]),
    ("-v", lambda v, w: -v, [-a for a in A]),
    ("v * k", lambda v, w: v * 1.1, [a * K for a in A]),
    ("k * v", lambda v, w: 1.1 * v, [a * K for a in A]),
    ("numpy k * v", lambda v, w: np.float64(1.1) * v, [a * K for a in A]),
    ("v / k is times 1/k", lambda v, w: v / 1.1, [a * (f32(1) / K) for a in A]),
    ("v / 0", lambda v, w: v / 0, [math.copysign(math.inf, a) for a in A]),
    ("cross", lambda v, w: v.cross(w), [A[1] * B[2] - A[2] * B[1], A[2] * B[0] - A[0] * B[2],
                                        A[0] * B[1] - A[1] * B[0]]),
    ("dot", lambda v, w: [v.dot(w)], [(A[0] * B[0] + A[1] * B[1]) + A[2] * B[2]]),
    ("signed turn", lambda v, w: [Vector(1, 0, 0).angle_with(Vector(0, -1, 0), False, Vector(0, 0, 1))],
     [f32(2 * math.pi - float(f32(math.pi / 2)))]),
    ("point + vector keeps w", lambda v, w: Point(1, 2, 3, 2) + Vector(1, 1, 1), [2, 3, 4, 2]),
    ("point - vector", lambda v, w: Point(1, 2, 3) - Vector(1, 1, 1), [0, 1, 2, 1]),
]


@pytest.mark.parametrize("case, compute, expected", VECTOR_RESULTS, ids=[r[0] for r in VECTOR_RESULTS])
def test_result_is_the_float_arithmetic_of_the_library(case, compute, expected):
    assert components(compute(Vector(A), Vector(B))) == [float(e) for e in expected]


def test_operators_keep_the_class_and_modifiers_return_the_value_itself():
    v, form = Vector(3, 4, 0), XForm()
    assert type(v + v) is Vector and type(Point() + v) is Point and type(Point() - Point()) is Vector
    assert v.normalize() is v and form.translate(1, 2, 3) is form and form.invert() is form
    alias = form
    form @= XForm.scaling(2, 2, 2)
    assert form is alias and form[0, 0] == 2


@pytest.mark.parametrize("value, text", [
    (Vector(0.1, -0.0, 1e20), "Vector(0.1, -0.0, 1e+20)"),
    (Vector(math.inf, -math.inf, 1 / 3), "Vector(inf, -inf, 0.33333334)"),
    (Point(1, 2, 3), "Point(1.0, 2.0, 3.0, 1.0)"),
    (XForm.translation(Vector(1, 2, 3)),
     "XForm([[1.0, 0.0, 0.0, 1.0], [0.0, 1.0, 0.0, 2.0], [0.0, 0.0, 1.0, 3.0], [0.0, 0.0, 0.0, 1.0]])"),
])
def test_repr_reads_back_as_an_equal_value(value, text):
    assert repr(value) == text
    assert eval(text, {**vars(cvxutils), "inf": math.inf}) == value


@pytest.mark.parametrize("value, items", [
    (Vector([1, 2, 3]), [1, 2, 3]), (Vector(np.arange(3.0)), [0, 1, 2]),
    (Point((1, 2, 3)), [1, 2, 3, 1]), (Point(1, 2, 3, 0.5), [1, 2, 3, 0.5]), (Point(), [0, 0, 0, 1]),
])
def test_construction_indexing_and_iteration_agree(value, items):
    assert list(value) == items and [value[i] for i in range(-len(items), 0)] == items


def test_equality_is_exact():
    assert Vector(1, 2, 3) == Vector(1.0, 2.0, 3.0) and Vector(1, 2, 3) != Vector(1, 2, 3.0000005)
    assert Point(1, 2, 3) != Point(1, 2, 3, 0) and Vector(1, 2, 3) != (1, 2, 3)


Z = Vector(0, 0, 1)
# One row per factory or conversion: the transform and the matrix it must hold. The edge cases
# of the setters behind them are XFormTest.cpp's.
XFORMS = [
    ("translation of a point divides by w", XForm.translation(Point(2, 4, 6, 2)),
     [[1, 0, 0, 1], [0, 1, 0, 2], [0, 0, 1, 3], [0, 0, 0, 1]]),
    ("translate in the scaled frame", XForm.scaling(2, 3, 4).translate(1, 1, 1),
     [[2, 0, 0, 2], [0, 3, 0, 3], [0, 0, 4, 4], [0, 0, 0, 1]]),
    ("orthographic with near 0", XForm.orthographic(-1, 1, 1, -1, 0, 10),
     [[1, 0, 0, 0], [0, 1, 0, 0], [0, 0, f32(-2 / 10), f32(-1)], [0, 0, 0, 1]]),
    ("columns", XForm.columns(Vector(1, 2, 3), Vector(4, 5, 6), Vector(7, 8, 9)),
     [[1, 4, 7, 0], [2, 5, 8, 0], [3, 6, 9, 0], [0, 0, 0, 1]]),
    ("rotation_z is a z quaternion", XForm.rotation_z(0.6, 0.8), XForm.quaternion(0, 0, 0.6, 0.8).matrix),
    ("from float64 rows, narrowed", XForm(np.full((4, 4), 0.1)), np.full((4, 4), f32(0.1))),
    ("transposed", XForm(np.arange(16.0).reshape(4, 4)).transpose(), np.arange(16, dtype=f32).reshape(4, 4).T),
]


@pytest.mark.parametrize("case, form, matrix", XFORMS, ids=[r[0] for r in XFORMS])
def test_transform_holds_the_native_matrix(case, form, matrix):
    assert form.matrix.dtype == f32 and np.array_equal(form.matrix, np.asarray(matrix, dtype=f32))


RNG = np.random.default_rng(7)
FORM = XForm.rotation(33, Vector(1, 2, 3)).scale(1.5, 0.5, 2).translate(10, -20, 5)


def test_rotation_is_counter_clockwise_and_apply_takes_w_for_points_only():
    assert components(XForm.rotation(90, Z).apply(Point(1, 0, 0))) == pytest.approx([0, 1, 0, 1], abs=1e-7)
    form = XForm.translation(Vector(1, 2, 3))
    assert form.apply(Point(0, 0, 0, 2)) == Point(2, 4, 6, 2) and form.apply(Vector(1, 1, 1)) == Vector(1, 1, 1)


def test_matmul_composes_in_order_and_determinant_is_passed_on():
    other = XForm(RNG.random((4, 4)))
    assert np.allclose((FORM @ other).matrix, FORM.matrix.astype(float) @ other.matrix, rtol=1e-6)
    assert FORM.determinant() == pytest.approx(1.5 * 0.5 * 2, rel=1e-6)


def expected_rows(form, rows, kind):
    return np.array([components(form.apply(kind(row)))[:3] for row in rows])


# 1000 rows cross several of the native blocks and end in a partial one.
POINTS = RNG.uniform(-100, 100, (1000, 3))


@pytest.mark.parametrize("kind, method", [(Point, "transform_points"), (Vector, "transform_vectors")])
def test_float64_array_goes_into_a_new_array_through_float32(kind, method):
    points = POINTS.copy()
    result = getattr(FORM, method)(points)
    assert result.dtype == np.float64 and result.flags.c_contiguous and result is not points
    assert np.array_equal(points, POINTS)
    assert np.array_equal(result, expected_rows(FORM, points, kind))
    assert getattr(FORM, method)(np.zeros((0, 3))).shape == (0, 3)


def test_float32_array_is_transformed_in_place_unless_copied():
    points = POINTS.astype(f32)
    expected = expected_rows(FORM, points, Point)
    copied = FORM.transform_points(points, copy=True)
    assert copied is not points and copied.dtype == f32 and np.array_equal(points, POINTS.astype(f32))
    assert FORM.transform_points(points) is points
    assert np.array_equal(points, expected) and np.array_equal(copied, expected)


def test_strided_float32_view_changes_only_its_columns():
    block = np.ones((5, 4), dtype=f32)
    FORM.transform_points(block[:, 1:])
    assert np.array_equal(block[:, 0], np.ones(5)) and np.array_equal(block[:, 1:], expected_rows(FORM, np.ones((5, 3)), Point))


# One row per wrong input: the error and its message, exactly.
@pytest.mark.parametrize("make, error, message", [
    (lambda: Vector((1, 2)), ValueError, "a Vector is 3 numbers, not 2"),
    (lambda: Vector("abc"), TypeError, "a Vector is 3 numbers, not str"),
    (lambda: Vector(7), TypeError, "a Vector is 3 numbers, not int"),
    (lambda: Vector((1, "a", 3)), TypeError, "must be real number, not str"),
    (lambda: Point([1, 2, 3, 4, 5]), ValueError, "a Point is 3 or 4 numbers, not 5"),
    (lambda: XForm(np.eye(3)), ValueError, "an XForm is 4 rows of 4 numbers, not 3"),
    (lambda: XForm([[1, 0, 0, 0]] * 3 + [[1, 2]]), ValueError, "an XForm row is 4 numbers, not 2"),
    (lambda: XForm()[4, 0], IndexError, "an XForm index is (row, column), each 0 to 3"),
    (lambda: Vector()[3], IndexError, "index out of range"),
    (lambda: Vector() + Point(), TypeError, "unsupported operand type(s) for +: 'cvxutils.Vector' and 'cvxutils.Point'"),
    (lambda: FORM.transform_points(np.zeros(3)), ValueError, "an (N, 3) array is needed, not one of shape (3,)"),
    (lambda: FORM.transform_points(np.zeros((4, 2))), ValueError, "an (N, 3) array is needed, not one of shape (4, 2)"),
    (lambda: FORM.transform_points(np.zeros((2, 3, 1))), ValueError,
     "an (N, 3) array is needed, not one of shape (2, 3, 1)"),
    (lambda: FORM.transform_points(np.zeros((4, 3), dtype=np.int64)), TypeError,
     "an (N, 3) array of float32 or float64 is needed, not int64"),
    (lambda: FORM.transform_points([[0, 0, 0]]), TypeError,
     "an (N, 3) NumPy array of float32 or float64 is needed, not list"),
    (lambda: FORM.transform_points(np.frombuffer(bytes(48), dtype=f32).reshape(4, 3)), ValueError,
     "a read-only float32 array cannot be transformed in place; pass copy=True"),
    (lambda: XFormStack(0), cvxutils.RangeError, "capacity must be an Integer >= 1"),
])
def test_wrong_input_raises_with_its_message(make, error, message):
    with pytest.raises(error, match=f"^{re.escape(message)}$"):
        make()


@pytest.mark.parametrize("rows", [131_071, 131_072, 300_001])  # below, at and above a split
def test_large_arrays_shared_across_cores_give_the_rows_of_small_ones(rows):
    points = np.random.default_rng(rows).random((rows, 3))
    whole = FORM.transform_points(points)
    pieces = np.concatenate([FORM.transform_points(points[i:i + 4096]) for i in range(0, rows, 4096)])
    assert np.array_equal(whole, pieces)


def test_stack_post_multiplies_and_keeps_its_base():
    stack = XFormStack(3)
    a, b = XForm.translation(Vector(1, 0, 0)), XForm.rotation(90, Z)
    stack.push(a)
    stack.push(b)
    assert (stack.depth, stack.top) == (2, a @ b)
    with pytest.raises(IndexError, match=r"^push onto a full XFormStack of 3 entries$"):
        stack.push(a)
    for _ in range(3):
        stack.pop()  # the third pop finds only the base and keeps it
    assert (stack.depth, stack.top) == (0, XForm())
    stack.reset(b)
    assert (stack.depth, stack.top, repr(stack)) == (0, b, "XFormStack(depth=0, capacity=3)")

