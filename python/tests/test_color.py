"""Colours, the colour-name table, colour ramps and lights as a script meets them."""
import numpy as np
import pytest

import cvxutils
from cvxutils import Color, ColorMap, ColorRamp, Light

f32 = np.float32
BYTE = f32(1) / f32(255)  # the library's byte scale

NAMES = ColorMap.names()


# The table's colours, hex texts and HSV are tests/g3d/ColorTest.cpp's; here the calls that reach them.
def test_table_lists_its_names_once_each_in_byte_order_and_names_and_texts_give_their_colours():
    assert NAMES == sorted(set(NAMES)) and ColorMap.count() == len(NAMES) > 0
    assert ColorMap.lookup("Sky blue") == Color(0, 0.8, 1, 1)
    assert ColorMap.find("Gold") == Color.from_name("Gold") == Color(1, 0.844, 0, 1)
    assert Color.from_name("#0A", 0.5) == Color(10 * BYTE, 0, 0, 0.5)


@pytest.mark.parametrize("call", [
    lambda: ColorMap.lookup("mauve"), lambda: Color.from_name("mauve"),
    lambda: ColorRamp.interpolate(["Red", "mauve"], 4), lambda: setattr(Light(), "diffuse_color", "mauve"),
])
def test_unknown_name_raises_color_error_with_the_libraries_message(call, failure):
    assert failure(call) == (cvxutils.ColorError, ("mauve is not a valid color name.",))


# The conversions' arithmetic is ColorTest.cpp's; here each way in and out once.
def test_packing_and_hsv_both_ways():
    assert Color(0.5, 0.5, 0.5, 1).rgba == 0x7F7F7FFF
    assert repr(Color.from_rgba(0xFF8000FF)) == "Color(1, 0.5019608, 0, 1)"
    assert Color(1, 0.5, 0).hsv == pytest.approx((1 / 12, 1, 1))
    assert Color.from_hsv(1 / 12, 1, 0.5).components == pytest.approx((0.5, 0.25, 0, 1))


def test_arithmetic_and_contrast():
    assert Color(0.5, 0.25, 1, 0.5) * Color(0.5, 1, 0.5, 0.5) == Color(0.25, 0.25, 0.5, 1)
    assert (Color(0.5, 0.5, 0.5, 1) + Color(0.25, 0, 0, 0)).components == (0.75, 0.5, 0.5, 1)
    assert Color(1, 1, 0.9).contrasting() == Color(0, 0, 0) and Color(0.1, 0, 0.2).contrasting() == Color(1, 1, 1)


def test_ramps(failure):
    assert ColorRamp.rainbow(3) == [Color(1, 0, 0), Color(0, 1, 0), Color(0, 0, 1)]
    assert ColorRamp.rainbow(5, reverse=True) == ColorRamp.rainbow(5)[::-1]
    assert ColorRamp.blue_to_red(3, alpha=0.5)[0] == Color(0, 0, 1, 0.5)
    assert ColorRamp.black_to_white(2) == [Color(0, 0, 0), Color(1, 1, 1)]
    assert len(set(c.rgba for c in ColorRamp.wrap_around(6))) == 6
    assert ColorRamp.interpolate(["Black", "White"], 3)[1] == Color(0.5, 0.5, 0.5)
    assert ColorRamp.rainbow(0) == [] and ColorRamp.interpolate([], 4) == []
    assert failure(ColorRamp.interpolate, "Red", 2) == (TypeError, ("names must be a sequence of str, not str",))


def test_light_position_and_colours():
    light = Light()
    assert light.set_position(90, 0) is light
    assert light.position == pytest.approx((0, 1, 0), abs=1e-7) and light.latitude == 90 and light != Light()
    light.diffuse_color = "Sky blue"
    assert light.diffuse_color == "Sky blue" and light.colors[1] == ColorMap.lookup("Sky blue")
    with pytest.raises(cvxutils.ColorError):
        light.diffuse_color = "sky blue"  # names are case-sensitive; the old colour stays
    assert light.diffuse_color == "Sky blue" and ColorMap.find("sky blue") is None
