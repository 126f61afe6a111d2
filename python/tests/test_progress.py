"""Native progress seen from Python: reporters written in Python, the console reporter, Ctrl-C."""
import os
import signal
import threading

import pytest

import cvxutils

class Recorder:
    """Keeps every report it receives, in order."""

    def __init__(self, fail_at=None):
        self.reports = []
        self.fail_at = fail_at

    def progress(self, task, unit, done, total):
        self.reports.append(("progress", task, unit, done, total))
        if done == self.fail_at:
            raise ValueError(f"reporter gave up at {done}")

    def interrupted(self):
        self.reports.append(("interrupted",))
        return False


def test_python_reporter_receives_the_reports_in_order(material):
    with cvxutils.install_reporter(Recorder()) as recorder:
        assert cvxutils.densifyMaterial("Steel", 3) == 5
    step = lambda done: ("progress", "densifyMaterial Steel", "rows", done, 3)
    asked = ("interrupted",)
    assert recorder.reports == [step(0), asked, step(1), asked, step(2), asked, step(3)]
    # Midpoints of the widest gap each time: 60, then 40 (first of two equal gaps), then 80.
    assert [row[2] for row in material.elastic] == [20.0, 40.0, 60.0, 80.0, 100.0]
    assert material.elastic[2] == (195e9, 0.3, 60.0)
    with cvxutils.install_reporter(object()):  # a reporter's methods may be missing
        assert cvxutils.densifyMaterial("Steel", 4) == 9


def test_install_reporter_nests_restores_and_is_per_thread():
    first, second, seen = Recorder(), Recorder(), []
    assert cvxutils.reporter() is None
    with cvxutils.install_reporter(first) as installed:
        assert installed is first and cvxutils.reporter() is first
        with cvxutils.install_reporter(second):
            assert cvxutils.reporter() is second
            worker = threading.Thread(target=lambda: seen.append(cvxutils.reporter()))
            worker.start()
            worker.join()
        assert cvxutils.reporter() is first and seen == [None]
    assert cvxutils.reporter() is None


def test_console_reporter_draws_the_task(material, capfd):
    console = cvxutils.ConsoleReporter("plain")
    assert not console.shows_bar and cvxutils.ConsoleReporter("terminal").shows_bar
    with cvxutils.install_reporter(console):
        cvxutils.densifyMaterial("Steel", 10)
    err = capfd.readouterr().err
    assert "densifyMaterial Steel: 100%" in err and "10/10 rows" in err
    with pytest.raises(ValueError, match="style is 'auto', 'plain' or 'terminal'"):
        cvxutils.ConsoleReporter("fancy")


def requested_interrupt():
    console = cvxutils.ConsoleReporter("plain")
    console.request_interrupt()
    return console


# One row per way a task stops and the error the script gets: Ctrl-C with no reporter installed
# (the module's silent one), a Python reporter or the console reporter; a Python reporter that
# raises; an interrupt the console reporter was asked for.
@pytest.mark.parametrize("make_reporter, ctrl_c, error, message", [
    (lambda: None, True, KeyboardInterrupt, ""), (Recorder, True, KeyboardInterrupt, ""),
    (lambda: cvxutils.ConsoleReporter("plain"), True, KeyboardInterrupt, ""),
    (lambda: Recorder(fail_at=1000), False, ValueError, "reporter gave up at 1000"),
    (requested_interrupt, False, RuntimeError, "Operation interrupted by the user."),
], ids=["ctrl-c", "ctrl-c python", "ctrl-c console", "reporter raises", "requested"])
def test_a_stopped_task_leaves_the_model_as_it_was(material, make_reporter, ctrl_c, error, message):
    before, reporter = cvxutils.modelArchive(), make_reporter()
    timer = threading.Timer(0.3, os.kill, (os.getpid(), signal.SIGINT))
    with cvxutils.install_reporter(reporter):
        if ctrl_c:
            timer.start()
        try:
            with pytest.raises(error) as raised:
                cvxutils.densifyMaterial("Steel", 1_000_000)
        finally:
            timer.cancel()
    assert cvxutils.modelArchive() == before
    assert cvxutils.journal()[-1] == f"# densifyMaterial('Steel', 1000000)  -> {error.__name__}: {message}"
    assert str(raised.value) == message
    if isinstance(reporter, Recorder):
        steps = reporter.reports.count(("interrupted",))
        assert 0 < steps < 1_000_000  # stopped in the middle, not before or after
