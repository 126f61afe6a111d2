"""The library as a script meets it: values, a model across analysis steps, a material table,
names, wrong calls and repository objects, each under its own heading.

Run it through the host, which has cvxutils built in:
    build/release/python/host/cvx_host examples/demo.py
or under Debian's interpreter with the module on the path:
    PYTHONPATH=build/release/python/site /usr/bin/python3 examples/demo.py
"""
import contextlib
import os
import sys

import numpy as np

import cvxutils


def heading(title):
    print(f"\n== {title}")


class Indented:
    """Standard output indented under the prompt's lines."""

    def __init__(self, out):
        self.out, self.at_line_start = out, True

    def write(self, text):
        for piece in text.splitlines(keepends=True):
            self.out.write(("    " if self.at_line_start else "") + piece)
            self.at_line_start = piece.endswith("\n")

    def flush(self):
        self.out.flush()


def session(names, *lines):
    """Runs each line as the interactive prompt would: its result, or its error's class and
    exact message."""
    names = {"cvxutils": cvxutils, "np": np, **names}
    for line in lines:
        print("  >>> " + line.replace("\n", "\n  ... "))
        with contextlib.redirect_stdout(Indented(sys.stdout)):
            try:
                exec(compile(line, "<demo>", "single"), names)
            except Exception as error:
                print(f"{type(error).__name__}: {error.args[0] if error.args else ''}")
    return names


def values():
    heading("Values crossing the scripting boundary, both ways")
    options = {"meshing": cvxutils.SymbolicConstant("ON"), "tolerances": [0.1, 1e-05, 2.0],
               "label": "it's \"quoted\""}
    stiffness = np.array([[1e20, -0.0], [0.5, 100000.0]])
    result = (["Bracket", "Plate"], options, stiffness, cvxutils.Path(["mdb", "models", "Model-1"]))
    session({"result": result, "thing": object()},
            "print(cvxutils.text(result))",      # the library's text form of what it holds
            "back = cvxutils.echo(result)",
            "back[:2] == result[:2], type(back[3]).__name__, back[3] == result[3]",
            "back[2]",                           # the array comes back with no copy...
            "back[2].flags.writeable, back[2].flags.owndata",  # ...read-only on the library's numbers
            "cvxutils.echo(np.arange(6, dtype=np.int32).reshape(2, 3)[:, ::2])",  # strided, gathered
            "cvxutils.echo({1: 1 + 2j, -7: (None, True, 2**31)})",
            "cvxutils.echo(thing) is thing",     # a script object travels untouched
            "cvxutils.echo(2**32)",
            "cvxutils.echo(np.arange(3))",
            "cvxutils.echo({'a': 1, 2: 3})")


def status_row(step, section):
    thickness = f"{section.thicknessState} {section.thickness!r}"
    material = f"{section.materialState} {section.material!r}"
    print(f"  {step:<8} {section.statuses[-1]!s:<12} {thickness:<18} {material}")


def model_across_steps():
    heading("A shell section across analysis steps")
    print(f"  {'step':<8} {'status':<12} {'thickness':<18} material")
    section = cvxutils.createSection("Shell-1", 2.0, material="Steel")
    status_row("Initial", section)
    section.nextStep(cvxutils.PROPAGATED)
    status_row("Step-1", section)
    section.nextStep(cvxutils.MODIFIED)
    section.thickness *= 1.25  # changed in this step
    status_row("Step-2", section)
    section.nextStep(cvxutils.MODIFIED)
    section.setStatus("material", cvxutils.FREED)  # the material is taken away in this step
    status_row("Step-3", section)
    section.nextStep(status=cvxutils.DEACTIVATED)
    status_row("Step-4", section)
    session({"section": section},
            "section.statuses",
            "section.statusAt(2) == cvxutils.MODIFIED",
            "section.setStatus('thickness', cvxutils.UNSET)",
            "section.nextStep(cvxutils.SET)")


def print_table(rows):
    for row in rows:
        print("   " + "".join(f" {value:10g}" for value in row))


def material_table():
    heading("Elastic data by temperature and field (Young's modulus, Poisson's ratio, "
            "temperature, field)")
    elastic = [[200e9, 0.30, 20, 1], [180e9, 0.31, 400, 0], [195e9, 0.30, 100, 1],
               [190e9, 0.30, 200, 0], [205e9, 0.29, 20, 0]]
    print("  as given:")
    print_table(elastic)
    steel = cvxutils.createMaterial("Steel", elastic, keyColumns=2)
    print("  as created: sorted by the last two columns (field most significant), and valid:")
    print_table(steel.elastic)
    session({"steel": steel},
            "steel.validate()",
            "steel.elastic = [[250e6, 0.0], [0.0, 0.0], [300e6, 0.05]]",  # a blank row is refused
            "len(steel.elastic)",                                       # and the table is kept
            "steel.sort(5)",
            "cvxutils.createMaterial('Iron', [[1.0, 0.3], [2.0]])")


def names():
    heading("Names validated and repaired")
    session({},
            "cvxutils.validateName('Part-1')",
            "cvxutils.validateName('Model:1', kind=2)",  # a model name may hold a colon
            "cvxutils.validateName('1st.part')",
            "cvxutils.validateName('my job', 1)",
            "cvxutils.validateName('a$b', 2)",
            "cvxutils.validateName('x' * 39, 3)",        # short names stop at 38
            "cvxutils.validateName('', 4)",
            "cvxutils.makeLegalGuiName('my.part_')",
            "cvxutils.makeLegalGuiName('1abc', 'xxxxxx')",
            "cvxutils.makeLegalGuiName('...', '......')")  # repairs to nothing: left as it was


def wrong_calls():
    heading("Commands called wrongly, with the exact error each call gets")
    session({},
            "cvxutils.createSection('Shell-1', 2.0)",
            "cvxutils.createSection('Shell-1')",
            "cvxutils.createSection('Shell-1', 2.0, 'Steel', 4)",
            "cvxutils.createSection('Shell-1', 'thick')",
            "cvxutils.createSection('Shell-1', 2.0, colour='red')",
            "cvxutils.createSection('Shell-1', 2.0, material=7)",
            "cvxutils.createSection('1st shell', 2.0)",
            "cvxutils.createSection('Shell-1', -1.0)",
            "cvxutils.checkRange('n', 1, False, 1, 10, True)",
            "cvxutils.checkGreaterThan('t', 0.0, True, -0.5)")
    print("  The errors are classes a script can catch, with the library's fields:")
    session({},
            "try:\n    cvxutils.createSection('Shell-1', 2.0, 'Steel', 4)\n"
            "except TypeError as e:\n    print(e.expecting, e.found)",
            "try:\n    cvxutils.checkRange('x', 0.0, True, 12.5, 10.0, False)\n"
            "except cvxutils.RangeError as e:\n    print(e.keyword, e.higher_limit_as_string)",
            "issubclass(cvxutils.RangeError, ValueError), issubclass(cvxutils.AccessError, ReferenceError)")


def repository_objects():
    heading("A repository object used like a Python object")
    elastic = [[200e9, 0.3, 20.0], [190e9, 0.3, 100.0]]
    steel = cvxutils.createMaterial("Steel", elastic, 1)
    section = cvxutils.createSection("Shell-1", 2.0, "Steel")
    session({"steel": steel, "section": section, "elastic": elastic},
            "steel",
            "dir(steel)",
            "steel.name, steel.elastic[0]",
            "steel.sort",
            "section.thickness = 2.5",
            "section.thickness, section.thicknessState",
            "section.userData = {'note': 'checked', 'by': object}",  # any value, kept as it is
            "section.userData['by'] is object",
            "other = cvxutils.echo([steel])[0]",     # another handle on the same material
            "other == steel, other is steel, hash(other) == hash(steel)",
            "hasattr(steel, 'density'), getattr(steel, 'density', 7850.0)",
            "steel.density",
            "steel.name = 'Iron'",
            "del section.thickness",
            "section.thickness = 'thick'",
            "steel.delete()",
            "steel",
            "other.name")


def torus_points(rings=24, ring_points=12):
    """A torus of radii 3 and 1 as (rings * ring_points, 3) float32 points, tilted by 20 degrees
    through the library's transform, in place."""
    u = np.repeat(np.linspace(0, 2 * np.pi, rings, endpoint=False), ring_points)
    v = np.tile(np.linspace(0, 2 * np.pi, ring_points, endpoint=False), rings)
    r = 3 + np.cos(v)
    points = np.stack([r * np.cos(u), np.sin(v), r * np.sin(u)], axis=1).astype(np.float32)
    return cvxutils.XForm.rotation(20, cvxutils.Vector(1, 0, 0)).transform_points(points)


def write_svg(path, camera, points, rings, size=600):
    window = max(camera.window)
    pixels = camera.project(points) * (size / window) * np.float32([1, -1]) + size / 2
    colours = cvxutils.ColorRamp.rainbow(rings)
    with open(path, "w") as svg:
        svg.write(f'<svg xmlns="http://www.w3.org/2000/svg" width="{size}" height="{size}">\n'
                  '<rect width="100%" height="100%" fill="white"/>\n')
        for ring, colour in zip(pixels.reshape(rings, -1, 2), colours):
            corners = " ".join(f"{x:.1f},{y:.1f}" for x, y in ring)
            svg.write(f'<polygon fill="none" stroke-width="1.5" '
                      f'stroke="#{colour.rgba >> 8:06X}" points="{corners}"/>\n')
        svg.write("</svg>\n")


def viewing():
    heading("A camera framing a model, and the picture it sees")
    rings = 24
    points = torus_points(rings)
    model = cvxutils.BoundingVolume()
    model.extend(points)
    camera = cvxutils.Camera()
    camera.set_location((0, 4, 10), (0, 0, 0), (0, 1, 0)).set_model(model, 1.4)
    camera.fit_viewport(600, 600).zoom(10).pan(0.05, -0.02, 0, True).rotate(25, (0, 1, 0))
    folder = os.environ.get("CVX_DEMO_OUT", ".")
    os.makedirs(folder, exist_ok=True)
    picture = os.path.join(folder, "torus.svg")
    write_svg(picture, camera, points, rings)
    session({"camera": camera, "model": model, "points": points},
            "len(model), round(model.radius, 4)",
            "[round(c, 3) for c in camera.eye], camera.perspective, round(camera.field_of_view, 3)",
            "camera.view_matrix.round(3)",
            "x, y = camera.project(points[0]); round(x, 4), round(y, 4)",
            "origin, direction = camera.unproject(x, y)",  # the ray back through that pixel
            "np.allclose(np.cross(points[0] - origin, direction), 0, atol=1e-4)",
            "camera.set_window(0, -1).window")                # repaired, not refused
    print(f"  the picture: {picture}")


class ProgressLog:
    """A reporter written in Python: the library calls it from its native task."""

    def __init__(self):
        self.reports = []

    def progress(self, task, unit, done, total):
        self.reports.append((task, unit, done, total))


def progress():
    heading("Progress from a long native task")
    steel = cvxutils.createMaterial("Steel", [[200e9, 0.3, 20.0], [190e9, 0.3, 400.0]], 1)
    log = ProgressLog()
    with cvxutils.install_reporter(log):
        cvxutils.densifyMaterial("Steel", 2000)
    print(f"  a Python reporter heard {len(log.reports)} reports; first and last:")
    print(f"    {log.reports[0]}\n    {log.reports[-1]}")
    print("  the console reporter's bar, on this terminal or as plain lines:")
    with cvxutils.install_reporter(cvxutils.ConsoleReporter()):
        cvxutils.densifyMaterial("Steel", 2000)
    print(f"  the table grew from 2 to {len(steel.elastic)} rows, sorted and valid")


def journal():
    heading("The session's journal, replayed")
    cvxutils.resetModel()
    cvxutils.clear_journal()
    cvxutils.createMaterial("Steel", [[200e9, 0.3, 20.0], [190e9, 0.3, 400.0]], 1)
    cvxutils.createSection("Shell-1", 2.0, material="Steel")
    cvxutils.annotate("loads", (0.1, float("nan"), -0.0, 1e300, 2**31 - 1, "it's"))
    with contextlib.suppress(cvxutils.CorvexNameError):
        cvxutils.createSection("1st shell", 2.0)
    for line in cvxutils.journal():
        print("    " + line)
    saved = cvxutils.modelArchive()
    lines = cvxutils.journal()
    cvxutils.resetModel()
    cvxutils.replay(lines)
    same = cvxutils.modelArchive() == saved
    print(f"  replayed into a fresh model: archive of {len(saved)} bytes, "
          f"{'byte for byte the same' if same else 'DIFFERENT'}")


def main():
    where = "built into this interpreter" if "cvxutils" in sys.builtin_module_names else cvxutils.__file__
    print(f"cvxutils {cvxutils.__version__}: {where}")
    values()
    model_across_steps()
    material_table()
    names()
    wrong_calls()
    repository_objects()
    viewing()
    progress()
    journal()


if __name__ == "__main__":
    main()
