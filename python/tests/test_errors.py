"""The library's errors as Python exceptions: class, message byte for byte, fields."""
import pytest

import cvxutils

# One row per case: the error's script name, its fields, the Python class, the message. Each
# class's other message formats are tests/omu/ScriptingErrorsTest.cpp's.
ERRORS = [
    ("AccessError", ["Part-1"], cvxutils.AccessError, "Part-1 no longer exists"),
    ("AttributeError", [0, ""], AttributeError, "read-only attributes"),
    ("AttributeError", [1, "size"], AttributeError, "size is read-only"),
    ("AttributeError", [2, "as it stands"], AttributeError, "as it stands"),
    ("CorvexNameError", [0], cvxutils.CorvexNameError, "invalid name"),
    ("CorvexNameError", [1], cvxutils.CorvexNameError, "name is empty"),
    ("CorvexNameError", [2], cvxutils.CorvexNameError, "invalid job name"),
    ("CorvexNameError", [4], cvxutils.CorvexNameError, ""),
    ("FontError", ["Arial"], cvxutils.FontError, "Arial is not a valid font."),
    ("GuiAccessError", ["no display"], cvxutils.GuiAccessError, "no display"),
    ("IndexError", [7], IndexError, "7"),
    ("NameError", ["x is not defined"], NameError, "x is not defined"),
    ("OverflowError", ["too large"], OverflowError, "too large"),
    ("RangeError", ["x", 2, "0", 1, "10", 2], cvxutils.RangeError, "x must be a Float in the range: 0 <= x < 10"),
    ("RangeError", ["n", 1, "1", 1, "", 0], cvxutils.RangeError, "n must be an Integer >= 1"),
    ("RangeError", ["t", 0, "", 0, "1.0", 1], cvxutils.RangeError, "t must be <= 1.0"),
    ("RangeError", ["t", 1, "0", 3, "1", 1], cvxutils.RangeError, "t must be an Integer "),
    ("ValueError", ["bad value"], ValueError, "bad value"),
    ("ZeroDivisionError", ["float division by zero"], ZeroDivisionError, "float division by zero"),
    ("ArgNumberError", [2, 2, ""], TypeError, "not all required arguments specified; expected 2, got 2"),
    ("ArgNumberError", [3, 1, "points"], TypeError, "points; not all required arguments specified; expected 3, got 1"),
    ("ArgTypeError", [1, "int", "string", ""], TypeError, "arg1; found string, expecting int"),
    ("GenericTypeError", [], TypeError, "illegal argument type for built-in operation"),
    ("KeywordError", ["name", ""], TypeError, "keyword error on name"),
    ("KeywordTypeError", ["size", "float", "string", ""], TypeError, "size; found string, expecting float"),
    ("ColorError", ["mauve"], cvxutils.ColorError, "mauve is not a valid color name."),
    ("KeyError", ["päivä ✓"], KeyError, "päivä ✓"),
]


# The errors whose fields a script reads, and the attribute names, in the order raiseError takes them.
FIELD_NAMES = {
    "RangeError": ["keyword", "keyword_type", "lower_limit_as_string", "lower_limit_qualifier",
                   "higher_limit_as_string", "higher_limit_qualifier"],
    "ArgTypeError": ["arg_num", "expecting", "found", "nesting_str"],
    "ArgNumberError": ["expecting", "found", "nesting_str"],
    "KeywordTypeError": ["keyword", "expecting", "found", "nesting_str"],
    "AttributeError": ["error_type", "attribute"], "CorvexNameError": ["error"], "IndexError": ["value"],
    "ColorError": ["value"],
}


@pytest.mark.parametrize("name, fields, error, message", ERRORS)
def test_error_has_its_class_exact_message_and_fields(name, fields, error, message):
    with pytest.raises(error) as raised:
        cvxutils.raiseError(name, *fields)
    assert (type(raised.value), raised.value.args) == (error, (message,))
    assert str(raised.value) == str(error(message))  # a KeyError's quoted, as Python's own
    names = FIELD_NAMES.get(name, [])
    assert {key: getattr(raised.value, key) for key in names} == dict(zip(names, fields))


@pytest.mark.parametrize("error, base", [
    (cvxutils.CorvexNameError, ValueError), (cvxutils.RangeError, ValueError), (cvxutils.FontError, ValueError),
    (cvxutils.ColorError, ValueError), (cvxutils.AccessError, ReferenceError),
    (cvxutils.GuiAccessError, RuntimeError),
])
def test_module_error_derives_from_the_closest_builtin(error, base):
    assert issubclass(error, base) and error.__module__ == "cvxutils"
