"""Values carried into the library's primitives and back (cvxutils.echo) and their text."""
import math
import sys

import numpy as np
import pytest
from hypothesis import given, settings, strategies as st

import cvxutils

INT_MIN, INT_MAX, UINT_MAX = -2**31, 2**31 - 1, 2**32 - 1
THING = object()  # compares by identity


@pytest.mark.parametrize("value", [
    None, True, False, 0, -1, INT_MIN, INT_MAX, INT_MAX + 1, UINT_MAX,
    0.0, -2.5, 1e300, math.inf, 1 + 2j, -0.5j,
    "", "abc", "it's", "päivää 世界 🙂", "a\nb\\c",
    (), (1,), (1, "a", (2.5, None)), [], [1, [2, [3]]], {}, {"a": 1, "b": [2]}, {1: "x", -7: (1,)},
    {"päivä": 1}, [True, 1],  # keys cross as UTF-8; a bool stays a bool beside an int
    cvxutils.Path(["a", "b", "c"]), cvxutils.Path("Part-1.faces"), cvxutils.SymbolicConstant("ON"),
    THING, [THING, (THING,)],  # a script object comes back as the same object, even nested
])
def test_round_trip_gives_an_equal_value_of_the_same_type(value):
    back = cvxutils.echo(value)
    assert back == value
    assert type(back) is type(value)
    if isinstance(value, list):
        assert [type(v) for v in back] == [type(v) for v in value]


def test_strings_cross_as_themselves_past_the_texts_kept_for_them():
    # The library keeps the text of the first 1,024 short strings; the rest convert each time.
    names = [f"name_{i}" for i in range(3000)] + [sys.intern(f"interned_{i}") for i in range(9)]
    for _ in range(2):
        assert [cvxutils.echo(name) for name in names] == names
        assert cvxutils.echo({name: 1 for name in names[::7]}) == {name: 1 for name in names[::7]}
    class Unhashable(str):
        __hash__ = None  # its text is read, never its hash
    assert cvxutils.echo(Unhashable("".join(["never", "hashed"]))) == "neverhashed"


def test_nan_round_trips_as_nan():
    assert math.isnan(cvxutils.echo(math.nan))


# INT numbers past INT_MAX would print as -2147483648: a number takes the 32-bit kind it fits.
# The text of the library's own values is the C++ tests'; here the values a script brings.
@pytest.mark.parametrize("value, text", [
    (INT_MAX, "2147483647"), (INT_MAX + 1, "2147483648"), (UINT_MAX, "4294967295"), (INT_MIN, "-2147483648"),
    (cvxutils.Path(["a", "b"]), "'a.b'"), (cvxutils.SymbolicConstant("ON"), "ON"),
    (np.array([1, 2, 3], dtype=np.int32), "array([1, 2, 3], 'l')"),
    (np.array([[1.0, 2.0], [3.0, 4.0]]), "array([[1.0, 2.0], [3.0, 4.0]], 'd')"),
    (object(), "PyObject object"),
])
def test_text_is_the_libraries_text_form(value, text):
    assert cvxutils.text(value) == text


@pytest.mark.parametrize("value", [np.int64(5), np.int32(-3), np.uint8(200)])
def test_integer_of_another_kind_converts_by_index(value):
    back = cvxutils.echo(value)
    assert back == int(value) and type(back) is int


def test_bytes_that_are_not_utf8_come_back_replaced():
    # The repair cuts the name at 38 bytes, inside a two-byte character.
    repaired, name = cvxutils.makeLegalGuiName("a" + "é" * 20)
    assert repaired and name == "a" + "é" * 18 + "\ufffd"


@pytest.mark.parametrize("dtype", [np.int32, np.float32, np.float64])
@pytest.mark.parametrize("shape", [(0,), (5,), (2, 3), (2, 1, 4)])
def test_array_round_trips_with_dtype_and_shape(dtype, shape):
    array = np.arange(math.prod(shape), dtype=dtype).reshape(shape)
    back = cvxutils.echo({"a": [array]})["a"][0]  # inside containers too
    assert back.dtype == array.dtype and back.shape == array.shape
    np.testing.assert_array_equal(back, array)


@pytest.mark.parametrize("view", [lambda a: a[::2], lambda a: a.T, lambda a: a[:, ::-1], lambda a: a[1:, 1:]])
def test_strided_array_is_gathered(view):
    array = view(np.arange(30.0).reshape(5, 6))
    np.testing.assert_array_equal(cvxutils.echo(array), array)


def test_array_is_copied_in_and_not_copied_back():
    array = np.arange(6.0)
    back = cvxutils.echo(array)
    array[0] = 99.0
    assert back[0] == 0.0  # the library holds its own copy
    assert not back.flags.owndata and not back.flags.writeable  # a view on the library's numbers


# Values that cannot be carried: each raises a Python exception naming what was wrong.
class Exploding:
    def __index__(self):
        raise ArithmeticError("no index today")


recursive_list = [1]
recursive_list.append(recursive_list)
recursive_dict = {}
recursive_dict["self"] = [recursive_dict]


@pytest.mark.parametrize("value, error, message", [
    (2**40, OverflowError, "int 1099511627776 does not fit a 32-bit"),
    (UINT_MAX + 1, OverflowError, "does not fit a 32-bit"),
    (INT_MIN - 1, OverflowError, "does not fit a 32-bit"),
    (2**100, OverflowError, "does not fit a 32-bit"),
    (-2**100, OverflowError, "does not fit a 32-bit"),
    ({(1, 2): 3}, TypeError, r"all keys str or all keys int; key \(1, 2\)"),
    ({"a": 1, 2: 3}, TypeError, "all keys str or all keys int; key 2"),
    ({True: 1}, TypeError, "key True"),
    ({2**33: 1}, OverflowError, "dictionary key 8589934592 does not fit"),
    ("\ud800", UnicodeEncodeError, "surrogates not allowed"),
    ("a\udc80b", UnicodeEncodeError, "surrogates not allowed"),
    (np.arange(3, dtype=np.int64), TypeError, "dtype int64 cannot be carried: int32, float32 or float64 only"),
    (np.arange(3, dtype=">f8"), TypeError, "dtype >f8 cannot be carried"),
    (np.array(["a"]), TypeError, "dtype <U1 cannot be carried"),
    (np.zeros(3, dtype=complex), TypeError, "dtype complex128 cannot be carried"),
    (recursive_list, ValueError, "a list that holds itself cannot be carried"),
    (recursive_dict, ValueError, "a dict that holds itself cannot be carried"),
    ([Exploding()], ArithmeticError, "no index today"),
])
def test_bad_value_raises_a_clear_exception(value, error, message):
    with pytest.raises(error, match=message):
        cvxutils.echo(value)


def test_deep_nesting_meets_the_recursion_limit():
    value = []
    for _ in range(100000):
        value = [value]
    with pytest.raises(RecursionError):
        cvxutils.echo(value)


# Nested values as a script builds them, within what the library carries.
scalars = st.one_of(
    st.none(), st.booleans(), st.integers(INT_MIN, UINT_MAX),
    st.floats(allow_nan=False), st.complex_numbers(allow_nan=False), st.text(st.characters(blacklist_categories=["Cs"])))
nested = st.recursive(scalars, lambda inner: st.one_of(
    st.lists(inner, max_size=5), st.lists(inner, max_size=5).map(tuple),
    st.dictionaries(st.text(max_size=5), inner, max_size=5),
    st.dictionaries(st.integers(INT_MIN, INT_MAX), inner, max_size=5)), max_leaves=30)


@settings(max_examples=150, deadline=None)
@given(nested)
def test_nested_values_round_trip(value):
    assert cvxutils.echo(value) == value
