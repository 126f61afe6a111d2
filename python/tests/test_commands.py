"""Native commands: the call's arguments bound by the library's binder, its messages exact."""
import pytest

import cvxutils

ELASTIC = [[200e9, 0.30, 20, 1], [180e9, 0.31, 400, 0], [195e9, 0.30, 100, 1], [205e9, 0.29, 20, 0]]


@pytest.mark.parametrize("args, kwargs", [
    ((1, 2.5, "abc"), {}),
    ((1, 2.5, "abc", True, "Part-1"), {}),
    ((1, 2.5, "abc"), {"flag": True, "name": "Part-1"}),
    ((1,), {"c": "abc", "b": 2}),                  # keywords in any order; an int where a float goes
    ((1, 2.5, "abc", 0), {}),                      # a bool given as 0
    ((1, 2.5, "abc"), {"".join(["na", "me"]): "x"}),  # a keyword name made at run time
])
def test_good_calls_bind(args, kwargs):
    assert cvxutils.probe(*args, **kwargs) is None


# One row per wrong call: what the library's binder raises, in its order of faults.
@pytest.mark.parametrize("args, kwargs, message", [
    ((1, 2.5), {}, "probe; not all required arguments specified; expected 3, got 2"),
    ((1, 2.5, "abc", True, "x", 6), {}, "probe; too many arguments; expected 5, got 6"),
    ((1, 2.5, "abc"), {"colour": "red"}, "probekeyword error on colour"),
    ((1, 2.5, "abc"), {"".join(["col", "our"]): "red"}, "probekeyword error on colour"),
    ((1, 2.5, "abc"), {"a": 1}, "probekeyword error on a"),            # given twice: by position and keyword
    (("1", 2.5, "abc"), {}, "probe[0]; found string, expecting int"),
    ((1.0, 2.5, "abc"), {}, "probe[0]; found float, expecting int"),
    ((2**31, 2.5, "abc"), {}, "probe[0]; found int, expecting int"),  # a UINT number by position
    ((1, "x", "abc"), {}, "probe[1]; found string, expecting float"),
    ((1, 2.5, "abc", 2), {}, "probe[3]; found int, expecting Boolean"),
    ((1, 2.5), {"c": 3}, "probe['c']; found int, expecting string"),
    ((1, 2.5, "abc"), {"flag": "yes", "colour": 1}, "probekeyword error on colour"),  # unknown keyword first
    (("1", 2.5), {"c": 3}, "probe[0]; found string, expecting int"),                 # positional type before keyword
    ((1, 2.5, "abc"), {"name": cvxutils.SET}, "probe['name']; found SET, expecting string"),
])
def test_wrong_calls_get_the_binders_message(args, kwargs, message, failure):
    assert failure(cvxutils.probe, *args, **kwargs) == (TypeError, (message,))


# The states themselves are tests/mdl/PropagatingAttributeTest.cpp's; here they cross as constants.
def test_section_statuses_cross_as_constants(section):
    section.nextStep(cvxutils.PROPAGATED)
    section.setStatus("material", cvxutils.FREED)
    section.nextStep(status=cvxutils.MODIFIED)
    assert (section.thicknessState, section.materialState) == ("UNCHANGED", "UNSET")
    assert section.statuses == ("CREATED", "PROPAGATED", "MODIFIED")
    assert section.statusAt(2) == cvxutils.MODIFIED
    with pytest.raises(TypeError, match=r"^nextStep\[0\]; found SET, expecting BUILT_INTO_BASE_STATE, "):
        section.nextStep(cvxutils.SET)  # a step takes a propagation status only


# The rules are CorvexNameTest's and RangeCheckerTest's; here each command's answer as Python sees it.
@pytest.mark.parametrize("call, result", [
    (lambda: cvxutils.validateName("Model:1", 2), "Model:1"),
    (lambda: cvxutils.makeLegalGuiName("1abc", "xxxxxx"), (True, "x1abc")),
    (lambda: cvxutils.checkRange("x", 0.0, True, 1, 1.0, True), None),  # an int where the limits are floats
])
def test_accepted_calls_answer(call, result):
    assert call() == result


def test_each_call_sees_its_own_values_as_objects_die_between_calls():
    def validated(i):
        name = "".join(["n", str(i)])  # held by a name, as a value met again would be
        answer = cvxutils.validateName(name)
        cvxutils.clear_journal()  # nothing else holds it: the next value may take its address
        return answer
    assert [validated(i) for i in range(5000)] == [f"n{i}" for i in range(5000)]


def shell():
    return cvxutils.createSection("Shell-1", 2.0)


# One row per refused command: the error the library raises and its message, exactly.
REFUSALS = [
    ("key columns", lambda: cvxutils.createMaterial("Steel", ELASTIC, keyColumns=5), cvxutils.RangeError,
     "keyColumns must be an Integer in the range: 1 <= keyColumns <= 4"),
    ("material name", lambda: cvxutils.createMaterial("1st.steel", ELASTIC), cvxutils.CorvexNameError,
     "invalid name"),
    ("zero row", lambda: cvxutils.createMaterial("Steel", [[200e9, 0.3], [0.0, 0.0]], 1), RuntimeError,
     "Tabular data for at least one option or suboption\nhas either blank or zero valued row(s)."),
    ("ragged rows", lambda: cvxutils.createMaterial("Steel", [[1.0, 0.3], [2.0]]), TypeError,
     "createMaterial[1]; found list, expecting sequence of sequences of float"),
    ("float for int", lambda: cvxutils.validateName("ok", 1.0), TypeError, "validateName[1]; found float, expecting int"),
    ("status index", lambda: shell().statusAt(1), IndexError, "1"),
    ("status key", lambda: shell().setStatus("colour", "SET"), KeyError, "colour"),
    ("status text", lambda: shell().setStatus("thickness", "set"), ValueError,
     "omu_PrimEnum(const cow_String&) - str not allowed: set  Permissible: {ABS_DEFAULT: 6, COMP_DEFAULT: 7, "
     "FREED: 3, INVALID: 5, NOT_APPLICABLE: 4, SET: 1, UNCHANGED: 2, UNSET: 0}"),
    ("status here", lambda: shell().setStatus("thickness", cvxutils.UNSET), RuntimeError,
     "Invalid propagation status for 'thickness' attribute."),
    ("thickness", lambda: setattr(shell(), "thickness", "thick"), TypeError, "thickness[0]; found string, expecting float"),
    ("job name", lambda: cvxutils.validateName("my job", kind=1), cvxutils.CorvexNameError, "invalid job name"),
    ("range", lambda: cvxutils.checkRange("n", 1, False, 1, 10, True), cvxutils.RangeError,
     "n must be an Integer in the range: 1 < n <= 10"),
    ("int above", lambda: cvxutils.checkGreaterThan("n", 0, False, 2147483647), cvxutils.RangeError,
     "n must be an Integer > 0"),
    ("float above", lambda: cvxutils.checkGreaterThan("t", 0.0, True, -1.0), cvxutils.RangeError,
     "t must be a Float >= 0"),
]


@pytest.mark.parametrize("what, call, error, message", REFUSALS, ids=[r[0] for r in REFUSALS])
def test_refused_command_raises_its_error(what, call, error, message, failure):
    assert failure(call) == (error, (message,))
