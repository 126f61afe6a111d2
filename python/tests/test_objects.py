"""Repository objects: attribute access, methods, read-only members, deletion, repr, equality."""
import subprocess
import sys
import textwrap

import pytest

import cvxutils

STEEL = "mdb.models['Model-1'].materials['Steel']"


def test_members_read_and_write_through_the_table_and_a_refused_write_changes_nothing(material):
    assert material.name == "Steel"
    assert material.elastic == ((200e9, 0.3, 20.0), (190e9, 0.3, 100.0))
    material.elastic = [[1.0, 0.2, 5.0]]
    assert material.elastic == ((1.0, 0.2, 5.0),)
    with pytest.raises(RuntimeError, match="zero valued row"):
        material.elastic = [[0.0, 0.0, 0.0]]
    assert material.elastic == ((1.0, 0.2, 5.0),)


def test_method_is_a_bound_callable_through_its_handler(material, failure):
    method = material.sort
    assert method.__name__ == "sort" and method.__self__ is material
    assert repr(method) == f"<method sort of {STEEL}>"
    assert method(keyColumns=1) is None and material.elastic[0][2] == 20.0
    assert material.validate() is None
    assert failure(material.sort) == (TypeError, ("sort; not all required arguments specified; expected 1, got 0",))


def test_dir_lists_what_the_object_answers_and_repr_is_the_libraries_text(material, section):
    for thing in (material, section):
        names = dir(thing)
        assert names == sorted(names) and all(hasattr(thing, name) for name in names)
    assert {"elastic", "sort"} <= set(dir(material)) and {"thickness", "nextStep"} <= set(dir(section))
    assert repr(material) == STEEL and cvxutils.text(material) == STEEL
    assert repr(section) == "mdb.models['Model-1'].sections['Shell-1']"


# One row per refused attribute use on a section, and the message it gets. No member, settable
# or not, can be deleted.
@pytest.mark.parametrize("use, message", [
    (lambda s: setattr(s, "name", "x"), "name is read-only"),
    (lambda s: delattr(s, "thickness"), "'Section' object attribute 'thickness' cannot be deleted"),
    (lambda s: s.nosuch, "'Section' object has no attribute 'nosuch'"),
    (lambda s: setattr(s, "nosuch", 1), "'Section' object has no attribute 'nosuch'"),
], ids=["read-only", "delete", "get unknown", "set unknown"])
def test_refused_attribute_use(section, use, message, failure):
    assert failure(use, section) == (AttributeError, (message,))


def test_handles_on_one_object_are_equal_by_path_and_share_it(material, section):
    again = cvxutils.echo(material)
    assert again is not material and again == material and hash(again) == hash(material)
    assert material != cvxutils.createMaterial("Iron", material.elastic, 1) and material != "Steel"
    back, thing = cvxutils.echo({"m": material, "s": (section,)}), object()
    assert back["m"] == material
    back["s"][0].thickness, back["s"][0].userData = 4.0, {"thing": thing}  # user data as it is
    assert section.thickness == 4.0 and section.userData["thing"] is thing


def test_a_deleted_object_prints_and_fails_as_the_library_says(material, failure):
    other = cvxutils.echo(material)
    material.delete()
    assert repr(material) == "<stale handle>"
    for use in (lambda: material.name, lambda: other.name, lambda: setattr(material, "elastic", ()),
                other.validate):
        assert failure(use) == (cvxutils.AccessError, (f"{STEEL} no longer exists",))


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
