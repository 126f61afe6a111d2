"""Native commands: the call's arguments bound by the library's binder, its messages exact."""
import pytest

import cvxutils


def test_command_is_a_native_callable():
    assert repr(cvxutils.probe) == "<cvxutils command probe>"
    assert cvxutils.probe.__name__ == "probe" and "binds" in cvxutils.probe.__doc__


@pytest.mark.parametrize("args, kwargs", [
    ((1, 2.5, "abc"), {}),
    ((1, 2.5, "abc", True, "Part-1"), {}),
    ((1, 2.5, "abc"), {"flag": True, "name": "Part-1"}),
    ((), {"a": 1, "b": 2.5, "c": "abc"}),
    ((1,), {"c": "abc", "b": 2}),                  # keywords in any order; an int where a float goes
    ((1, 2.5, "abc"), {"name": "Part-1"}),         # an optional one skipped
    ((1, 2.5, "abc", 0), {}),                      # a bool given as 0
    ((1, 2.5, "abc"), {"".join(["na", "me"]): "x"}),  # a keyword name made at run time
])
def test_good_calls_bind(args, kwargs):
    assert cvxutils.probe(*args, **kwargs) is None


# One row per wrong call: what the library's binder raises, in its order of faults.
@pytest.mark.parametrize("args, kwargs, message", [
    ((1, 2.5), {}, "probe; not all required arguments specified; expected 3, got 2"),
    ((), {}, "probe; not all required arguments specified; expected 3, got 0"),
    ((1, 2.5, "abc", True, "x", 6), {}, "probe; too many arguments; expected 5, got 6"),
    ((1, 2.5, "abc"), {"colour": "red"}, "probekeyword error on colour"),
    ((1, 2.5, "abc"), {"".join(["col", "our"]): "red"}, "probekeyword error on colour"),
    ((1, 2.5, "abc"), {"a": 1}, "probekeyword error on a"),            # given twice: by position and keyword
    (("1", 2.5, "abc"), {}, "probe[0]; found string, expecting int"),
    ((1.0, 2.5, "abc"), {}, "probe[0]; found float, expecting int"),
    ((2**31, 2.5, "abc"), {}, "probe[0]; found int, expecting int"),  # a UINT number by position
    ((1, "x", "abc"), {}, "probe[1]; found string, expecting float"),
    ((1, 2.5, "abc", 2), {}, "probe[3]; found int, expecting Boolean"),
    ((1, 2.5, "abc"), {"flag": "yes"}, "probe['flag']; found string, expecting Boolean"),
    ((1, 2.5), {"c": 3}, "probe['c']; found int, expecting string"),
    ((1, 2.5, "abc"), {"flag": "yes", "colour": 1}, "probekeyword error on colour"),  # unknown keyword first
    (("1", 2.5), {"c": 3}, "probe[0]; found string, expecting int"),                 # positional type before keyword
    ((1, 2.5, "abc"), {"name": cvxutils.SET}, "probe['name']; found SET, expecting string"),
])
def test_wrong_calls_get_the_binders_message(args, kwargs, message):
    with pytest.raises(TypeError) as raised:
        cvxutils.probe(*args, **kwargs)
    assert raised.value.args == (message,)


def test_missing_required_keyword_counts_as_missing():
    with pytest.raises(TypeError) as raised:
        cvxutils.probe(1, c="abc")
    assert raised.value.args == ("probe; not all required arguments specified; expected 3, got 2",)
    assert (raised.value.expecting, raised.value.found) == (3, 2)


class TestModelCommands:
    ELASTIC = [[200e9, 0.30, 20, 1], [180e9, 0.31, 400, 0], [195e9, 0.30, 100, 1], [205e9, 0.29, 20, 0]]

    def test_material_table_is_sorted_by_its_key_columns(self):
        material = cvxutils.createMaterial("Steel", self.ELASTIC)
        assert [row[2:] for row in material.elastic] == [(20.0, 0.0), (400.0, 0.0), (20.0, 1.0), (100.0, 1.0)]

    def test_material_sort_key_columns_are_range_checked(self):
        with pytest.raises(cvxutils.RangeError) as raised:
            cvxutils.createMaterial("Steel", self.ELASTIC, keyColumns=5)
        assert raised.value.args == ("keyColumns must be an Integer in the range: 1 <= keyColumns <= 4",)

    def test_material_name_is_validated(self):
        with pytest.raises(cvxutils.CorvexNameError, match="^invalid name$"):
            cvxutils.createMaterial("1st.steel", self.ELASTIC)

    def test_section_attributes_propagate_across_steps(self):
        section = cvxutils.createSection("Shell-1", 2.0, material="Steel")
        assert (section.thicknessState, section.materialState) == ("SET", "SET")
        section.nextStep(cvxutils.PROPAGATED)
        assert (section.thicknessState, section.materialState) == ("UNCHANGED", "UNCHANGED")
        section.thickness = 2.5
        section.setStatus("material", cvxutils.FREED)
        assert (section.thickness, section.thicknessState, section.material, section.materialState) == (
            2.5, "SET", "", "FREED")
        section.nextStep(status=cvxutils.MODIFIED)
        assert (section.thicknessState, section.materialState) == ("UNCHANGED", "UNSET")
        assert section.statuses == ("CREATED", "PROPAGATED", "MODIFIED")
        assert section.statusAt(2) == cvxutils.MODIFIED

    def test_section_step_status_must_be_a_propagation_status(self):
        section = cvxutils.createSection("Shell-1", 2.0)
        with pytest.raises(TypeError, match=r"^nextStep\[0\]; found SET, expecting BUILT_INTO_BASE_STATE, BUILT_INTO_MODES, COMPUTED, "):
            section.nextStep(cvxutils.SET)

    @pytest.mark.parametrize("call, error, message", [
        (lambda s: s.statusAt(1), IndexError, "1"),
        (lambda s: s.setStatus("colour", "SET"), KeyError, "colour"),
        (lambda s: setattr(s, "thickness", "thick"), TypeError, "thickness[0]; found string, expecting float"),
    ])
    def test_section_faults(self, call, error, message):
        with pytest.raises(error) as raised:
            call(cvxutils.createSection("Shell-1", 2.0))
        assert raised.value.args == (message,)

    @pytest.mark.parametrize("name, kind", [("x" * 80, 0), ("Model:1", 2), ("_part", 0), ("a,b", 0)])
    def test_legal_names_pass(self, name, kind):
        assert cvxutils.validateName(name, kind) == name

    @pytest.mark.parametrize("name, kind, message", [
        ("x" * 81, 0, "invalid name"), ("a$b", 2, "invalid model name"), ("_part", 3, "invalid name"),
        ("a,b", 7, "invalid name"), ("", 4, "name is empty")])
    def test_illegal_names_raise(self, name, kind, message):
        with pytest.raises(cvxutils.CorvexNameError) as raised:
            cvxutils.validateName(name, kind=kind)
        assert raised.value.args == (message,)

    @pytest.mark.parametrize("name, replacements, result", [
        ("1abc", "xxxxxx", (True, "x1abc")), ("...", "......", (False, "...")), ("my.part_", "x.--..", (True, "my-part"))])
    def test_gui_names_are_repaired(self, name, replacements, result):
        assert cvxutils.makeLegalGuiName(name, replacements) == result

    @pytest.mark.parametrize("args, message", [
        (("n", 0, False, 2147483647), "n must be an Integer > 0"),
        (("t", 0.0, True, -1.0), "t must be a Float >= 0"),
    ])
    def test_greater_than(self, args, message):
        with pytest.raises(cvxutils.RangeError) as raised:
            cvxutils.checkGreaterThan(*args)
        assert raised.value.args == (message,)

    @pytest.mark.parametrize("args", [("n", 1, True, 1, 10, True), ("x", 0.0, True, float("nan"), 1.0, False),
                                      ("x", 0.0, True, 1, 1.0, True)])
    def test_in_range_passes(self, args):
        assert cvxutils.checkRange(*args) is None
