"""cvx_host (its path in CVX_HOST) runs scripts as python does, with cvxutils built in."""
import os
import pathlib
import re
import subprocess

import pytest

HOST = os.environ["CVX_HOST"]
DEMO = pathlib.Path(__file__).resolve().parents[1] / "demo.py"

# One row per run: the script, its arguments, the input, then the exit status, the exact
# output and a pattern the error stream must match in full.
RUNS = [
    ("arguments reach sys.argv as python sets them",
     "import sys, cvxutils\nprint(sys.argv[1:], cvxutils.echo([1, 2.5, 'a']))\n", ["-x", "päivä"], "",
     0, "['-x', 'päivä'] [1, 2.5, 'a']\n", ""),
    ("cvxutils is built in, with no path set up",
     "import sys, cvxutils\nprint('cvxutils' in sys.builtin_module_names, hasattr(cvxutils, '__file__'))\n",
     [], "", 0, "True False\n", ""),
    ("an uncaught library error prints its traceback and fails",
     "import cvxutils\nprint('before')\ncvxutils.validateName('1st part')\nprint('after')\n", [], "",
     1, "before\n",
     r'Traceback \(most recent call last\):\n  File ".*script\.py", line 3, in <module>\n'
     r"    cvxutils\.validateName\('1st part'\)\ncvxutils\.CorvexNameError: invalid name\n"),
    ("sys.exit gives its status", "import sys\nsys.exit(3)\n", [], "", 3, "", ""),
    ("without a script the interpreter reads its input",
     None, [], "import cvxutils\nprint(cvxutils.text({'b': 1, 'a': 2.5}))\n", 0, "{'a': 2.5, 'b': 1}\n", ""),
    ("script objects the library holds at exit are let go safely",
     "import cvxutils\nclass Noisy:\n    def __del__(self):\n        print('released')\n"
     "section = cvxutils.createSection('S', 1.0)\nsection.userData = [Noisy()]\nprint('exiting')\n", [], "",
     0, "exiting\n", ""),
]


def run(arguments, stdin="", **extra):
    environment = {k: v for k, v in os.environ.items() if k != "PYTHONPATH"} | extra
    return subprocess.run([HOST, *arguments], input=stdin, capture_output=True, text=True,
                          env=environment, timeout=120)


@pytest.mark.parametrize("case, script, arguments, stdin, status, stdout, stderr", RUNS,
                         ids=[row[0] for row in RUNS])
def test_host_runs_like_python(tmp_path, case, script, arguments, stdin, status, stdout, stderr):
    path = tmp_path / "script.py"
    if script is not None:
        path.write_text(script)
    done = run([str(path), *arguments] if script is not None else arguments, stdin)
    assert (done.returncode, done.stdout) == (status, stdout), done.stderr
    assert re.fullmatch(stderr, done.stderr), done.stderr


def test_demo_runs_through_the_host(tmp_path):
    done = run([str(DEMO)], CVX_DEMO_OUT=str(tmp_path))
    # The console reporter's progress lines are all the demo writes to stderr.
    stray = [line for line in done.stderr.splitlines() if not line.startswith("densifyMaterial")]
    assert (done.returncode, stray) == (0, []), done.stderr
    headings = re.findall(r"^== (.*)$", done.stdout, re.MULTILINE)
    assert len(headings) >= 9 and re.match(r"cvxutils [0-9.]+: built into this interpreter\n",
                                           done.stdout)
    assert "byte for byte the same" in done.stdout
    assert (tmp_path / "torus.svg").read_text().count("<polygon") == 24
