"""The type stubs name what the module exposes, and the module exposes what they name."""
import ast
import pathlib

import cvxutils

STUBS = pathlib.Path(__file__).resolve().parents[1] / "cvxutils.pyi"


def stub_names(body):
    names = set()
    for node in body:
        if isinstance(node, (ast.ClassDef, ast.FunctionDef)):
            names.add(node.name)
        elif isinstance(node, ast.AnnAssign):
            names.add(node.target.id)
        elif isinstance(node, ast.Assign):
            names.update(target.id for target in node.targets)
    return names


def public(names):
    return {name for name in names if not name.startswith("_")}


def module_names():
    # The symbolic constants are covered by the stubs' module __getattr__.
    return public(name for name, value in vars(cvxutils).items()
                  if not isinstance(value, cvxutils.SymbolicConstant))


def test_module_names_match_the_stubs():
    tree = ast.parse(STUBS.read_text())
    stubbed = public(stub_names(tree.body))
    exposed = module_names()
    assert (sorted(stubbed - exposed), sorted(exposed - stubbed)) == ([], []), \
        "(stubbed but not exposed, exposed but not stubbed)"


def test_class_members_match_the_stubs():
    differences = {}
    for node in ast.parse(STUBS.read_text()).body:
        if not isinstance(node, ast.ClassDef) or not hasattr(cvxutils, node.name):
            continue
        cls = getattr(cvxutils, node.name)
        stubbed = stub_names(node.body)
        exposed = public(vars(cls))
        missing = sorted(name for name in stubbed if not hasattr(cls, name))
        unstubbed = sorted(exposed - stubbed)
        if missing or unstubbed:
            differences[node.name] = (missing, unstubbed)
    assert differences == {}, "class: (stubbed but not exposed, exposed but not stubbed)"


def test_the_version_is_the_change_logs_newest():
    log = pathlib.Path(__file__).resolve().parents[2] / "CHANGELOG.md"
    newest = next(line for line in log.read_text().splitlines() if line.startswith("## "))
    assert newest.split()[1] == cvxutils.__version__
