"""The journal: each command a script runs, as a line of Python that replays it exactly."""
import math
import subprocess
import sys

import numpy as np
import pytest

import cvxutils

STEEL = [[200e9, 0.3, 20.0], [190e9, 0.3, 100.0]]


def session():
    cvxutils.createMaterial("Steel", STEEL, 1)
    cvxutils.createMaterial("Alu", ((70e9, 0.33, 20.0), (69e9, 0.33, 80.0), (68e9, 1 / 3, 150.0)),
                            keyColumns=1)
    cvxutils.createSection("Shell-1", 2.0, "Steel")
    with pytest.raises(cvxutils.RangeError):
        cvxutils.createSection("Bad", -1.0)
    cvxutils.createSection("Shell-2", material="Alu", thickness=0.1)
    cvxutils.densifyMaterial("Alu", 7)
    cvxutils.annotate("units", ("SI", 1e-3, {"E": "Pa"}))
    cvxutils.createMaterial("Steel", STEEL + [[180e9, 0.3, 300.0]], 1)  # replaces the first


def test_replaying_the_journal_rebuilds_the_same_model(tmp_path):
    session()
    lines, before = cvxutils.journal(), cvxutils.modelArchive()
    assert lines[3].startswith("# createSection('Bad', -1.0)  -> RangeError: ")
    assert lines[4] == "createSection('Shell-2', material='Alu', thickness=0.1)"
    cvxutils.resetModel()
    assert cvxutils.modelArchive() != before
    cvxutils.replay(lines)
    assert cvxutils.modelArchive() == before
    # The replay ran the same commands, so it journaled the same lines (after resetModel).
    assert cvxutils.journal()[len(lines) + 1:] == [line for line in lines if line[0] != "#"]

    path = tmp_path / "session.py"
    cvxutils.clear_journal()
    cvxutils.replay(lines)
    cvxutils.write_journal(path)
    cvxutils.resetModel()
    cvxutils.replay(path)
    assert cvxutils.modelArchive() == before
    # The written file is a script of its own.
    shown = subprocess.run([sys.executable, "-c", f"exec(open({str(path)!r}).read()); "
                            "print(cvxutils.modelArchive().hex())"],
                           capture_output=True, text=True, check=True).stdout
    assert bytes.fromhex(shown) == before


def test_arguments_are_journaled_as_they_were_at_the_call():
    rows = [[1.0, 0.2, 5.0]]
    cvxutils.createMaterial("M", rows, 1)
    rows[0][0] = 9.0
    assert cvxutils.journal() == ["createMaterial('M', [[1.0, 0.2, 5.0]], 1)"]


# One row per value form: the value, and its text in the journal (None: not checked, the
# replay alone decides). Library forms where they read back exactly, round-trip forms else.
@pytest.mark.parametrize("value, text", [
    (0.1, "0.1"), (1.0, "1.0"), (-0.0, "-0.0"), (complex(1.5, -0.0), "complex(1.5, -0.0)"),
    (1 / 3, "0.3333333333333333"),          # 15 digits would lose it
    (math.nan, "float('nan')"), (math.inf, "float('inf')"), (-math.inf, "-float('inf')"),
    (5e-324, "4.94065645841247e-324"),      # the library's 15 digits read back exactly
    (2**31, "2147483648"),                   # an unsigned number
    (-2**31, "-2147483648"), (True, "True"), (None, "None"), ((), "()"), ((1,), "(1,)"),
    ("it's", '"it\'s"'), ('say "hi"', "'say \"hi\"'"), ("both ' and \"", None),
    ("line\nbreak", "'line\\nbreak'"), ("back\\slash", "'back\\\\slash'"), ("ünï € 𝄞", "'ünï € 𝄞'"),
    ("cr\rhere\x00", "'cr\\rhere\\x00'"),     # raw in the library's form: repr instead
    ((1, [2.5, {"k": (None, True)}], {3: "x"}), "(1, [2.5, {'k': (None, True)}], {3: 'x'})"),
    (cvxutils.CREATED, "SymbolicConstant('CREATED')"),
    (np.array([[1.5, math.nan], [0.1, -0.0]]),
     "numpy.array([[1.5, float('nan')], [0.1, -0.0]], dtype='float64')"),
    (np.arange(6, dtype=np.int32).reshape(2, 3), "numpy.array([[0, 1, 2], [3, 4, 5]], dtype='int32')"),
    (np.zeros((0, 3)), "numpy.array([], dtype='float64').reshape((0, 3))"),
])
def test_values_replay_exactly(value, text):
    cvxutils.annotate("value", (value,))
    line, before = cvxutils.journal()[-1], cvxutils.modelArchive()
    if text is not None:
        assert line == f"annotate('value', ({text},))"
    cvxutils.resetModel()
    cvxutils.replay([line])
    assert cvxutils.modelArchive() == before, line


# One row per refused call: its comment keeps the arguments in full and names the error.
@pytest.mark.parametrize("call, comment", [
    (lambda: cvxutils.annotate("big", (2**40,)),
     "# annotate('big', (1099511627776,))  -> OverflowError: int 1099511627776 does not fit"),
    (lambda: cvxutils.densifyMaterial("Nothing", 2), "# densifyMaterial('Nothing', 2)  -> KeyError: "),
    (lambda: cvxutils.validateName("a\nb", kind=9), "# validateName('a\\nb', kind=9)  -> RangeError: "),
])
def test_failed_calls_are_comments_with_their_error(call, comment, failure):
    failure(call)
    (line,) = cvxutils.journal()
    assert line.startswith(comment) and "\n" not in line
    cvxutils.replay([line])
    assert cvxutils.journal() == [line]  # a comment runs nothing
