"""Repository objects: attribute access, methods, read-only members, deletion, repr, equality."""
import subprocess
import sys
import textwrap

import pytest

import cvxutils

ELASTIC = [[200e9, 0.3, 20.0], [190e9, 0.3, 100.0]]


@pytest.fixture
def material():
    return cvxutils.createMaterial("Steel", ELASTIC, 1)


@pytest.fixture
def section():
    return cvxutils.createSection("Shell-1", 2.0, "Steel")


class TestAccess:
    def test_members_read_through_the_table(self, material):
        assert material.name == "Steel"
        assert material.elastic == ((200e9, 0.3, 20.0), (190e9, 0.3, 100.0))

    def test_member_write_goes_through_its_setter(self, material):
        material.elastic = [[1.0, 0.2, 5.0]]
        assert material.elastic == ((1.0, 0.2, 5.0),)

    def test_setter_failure_leaves_the_member(self, material):
        with pytest.raises(RuntimeError, match="zero valued row"):
            material.elastic = [[0.0, 0.0, 0.0]]
        assert material.elastic == ((200e9, 0.3, 20.0), (190e9, 0.3, 100.0))

    def test_method_call_goes_through_its_handler(self, material):
        material.sort(keyColumns=1)
        assert material.elastic[0][2] == 20.0
        assert material.validate() is None

    def test_method_is_a_bound_callable(self, material):
        method = material.sort
        assert method.__name__ == "sort" and method.__self__ is material
        assert repr(method) == "<method sort of mdb.models['Model-1'].materials['Steel']>"

    def test_method_gets_the_binders_messages(self, material):
        with pytest.raises(TypeError) as raised:
            material.sort()
        assert raised.value.args == ("sort; not all required arguments specified; expected 1, got 0",)

    def test_dir_lists_members_and_methods(self, material, section):
        assert dir(material) == ["delete", "elastic", "name", "sort", "validate"]
        assert dir(section) == ["material", "materialState", "name", "nextStep", "setStatus", "statusAt",
                                "statuses", "thickness", "thicknessState", "userData"]

    def test_repr_is_the_libraries_text(self, material, section):
        assert repr(material) == "mdb.models['Model-1'].materials['Steel']"
        assert repr(section) == "mdb.models['Model-1'].sections['Shell-1']"
        assert cvxutils.text(material) == repr(material)


class TestRefusals:
    @pytest.mark.parametrize("member, message", [("name", "name is read-only"),
                                                 ("thicknessState", "thicknessState is read-only")])
    def test_read_only_member(self, section, member, message):
        with pytest.raises(AttributeError) as raised:
            setattr(section, member, "x")
        assert raised.value.args == (message,) and raised.value.error_type == 1

    @pytest.mark.parametrize("member", ["name", "thickness", "nosuch"])
    def test_delete_is_refused(self, section, member):
        with pytest.raises(AttributeError) as raised:
            delattr(section, member)
        assert raised.value.args == (f"'Section' object attribute '{member}' cannot be deleted",)

    @pytest.mark.parametrize("use", [lambda s: s.nosuch, lambda s: setattr(s, "nosuch", 1)])
    def test_unknown_attribute(self, section, use):
        with pytest.raises(AttributeError) as raised:
            use(section)
        assert raised.value.args == ("'Section' object has no attribute 'nosuch'",)

    def test_hasattr_and_getattr_default_work(self, section):
        assert hasattr(section, "thickness") and not hasattr(section, "nosuch")
        assert getattr(section, "nosuch", 5) == 5


class TestHandles:
    def test_handles_on_one_object_are_equal_by_path(self, material):
        again = cvxutils.echo(material)
        assert again is not material and again == material and hash(again) == hash(material)
        assert material != cvxutils.createMaterial("Iron", ELASTIC, 1)
        assert material != "Steel"

    def test_handles_share_the_object(self, section):
        other = cvxutils.echo([section])[0]
        other.thickness = 4.0
        assert section.thickness == 4.0

    def test_a_deleted_object_prints_and_fails_as_the_library_says(self, material):
        other = cvxutils.echo(material)
        material.delete()
        assert repr(material) == "<stale handle>"
        for handle in (material, other):
            with pytest.raises(cvxutils.AccessError) as raised:
                handle.name
            assert raised.value.args == ("mdb.models['Model-1'].materials['Steel'] no longer exists",)
        with pytest.raises(cvxutils.AccessError):
            material.elastic = ELASTIC
        with pytest.raises(cvxutils.AccessError):
            other.validate()

    def test_user_data_is_carried_as_it_is(self, section):
        thing = object()
        section.userData = {"thing": thing}
        assert section.userData["thing"] is thing
        assert cvxutils.echo(section).userData["thing"] is thing

    def test_objects_inside_containers(self, material, section):
        back = cvxutils.echo({"m": material, "s": (section,)})
        assert back["m"] == material and back["s"][0].name == "Shell-1"


def test_script_objects_the_library_holds_at_exit_are_let_go_safely():
    # Released while the interpreter runs; once it is shutting down, let go without it.
    script = textwrap.dedent("""
        import cvxutils, numpy as np
        class Noisy:
            def __del__(self):
                print("released")
        section = cvxutils.createSection("S", 1.0)
        section.userData = [Noisy()]
        section.userData = None
        section.userData = [Noisy(), {"array": np.arange(5.0)}]
        print("exiting")
    """)
    done = subprocess.run([sys.executable, "-c", script], capture_output=True, text=True, timeout=60)
    assert (done.returncode, done.stdout, done.stderr) == (0, "released\nexiting\n", "")
