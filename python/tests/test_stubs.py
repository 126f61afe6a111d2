"""The type stubs name what the module exposes, and the module exposes what they name."""
import ast
import pathlib

import cvxutils

STUBS = pathlib.Path(__file__).resolve().parents[1] / "cvxutils.pyi"


def stub_names(body):
    names = {node.name for node in body if isinstance(node, (ast.ClassDef, ast.FunctionDef))}
    names.update(node.target.id for node in body if isinstance(node, ast.AnnAssign))
    return names | {target.id for node in body if isinstance(node, ast.Assign) for target in node.targets}


def public(names):
    return {name for name in names if not name.startswith("_")}


def scopes():
    """The module and each class the stubs describe: its name, the object, the stubs' body."""
    tree = ast.parse(STUBS.read_text())
    yield "cvxutils", cvxutils, tree.body
    for node in tree.body:
        if isinstance(node, ast.ClassDef) and hasattr(cvxutils, node.name):
            yield node.name, getattr(cvxutils, node.name), node.body


def test_the_stubs_name_what_the_module_exposes_and_no_more():
    differences = {}
    for name, scope, body in scopes():
        stubbed = public(stub_names(body))
        # The symbolic constants are covered by the stubs' module __getattr__.
        exposed = public(key for key, value in vars(scope).items()
                         if not isinstance(value, cvxutils.SymbolicConstant))
        missing, unstubbed = sorted(n for n in stubbed if not hasattr(scope, n)), sorted(exposed - stubbed)
        if missing or unstubbed:
            differences[name] = (missing, unstubbed)
    assert differences == {}, "scope: (stubbed but not exposed, exposed but not stubbed)"


def test_the_version_is_the_change_logs_newest():
    log = pathlib.Path(__file__).resolve().parents[2] / "CHANGELOG.md"
    newest = next(line for line in log.read_text().splitlines() if line.startswith("## "))
    assert newest.split()[1] == cvxutils.__version__
