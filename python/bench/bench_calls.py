"""Measures the script call path and the array path of cvxutils beside their peers, in one run.

Run by hand against a release build:
    cmake --preset release && cmake --build --preset release --target cvxutils cvxutils_bench_peer
    PYTHONPATH=build/release/python/site /usr/bin/python3 python/bench/bench_calls.py
"""
import sys
import timeit

import numpy as np

import cvxutils
import cvxutils_bench_peer


def probe(a, b, c, flag=False, name=""):
    pass


def best_ns(statements, namespace, calls, rounds=9):
    # Rounds take each statement in turn, so that a change in the load of the shared machine
    # meets all of them; the best round of each is the least disturbed.
    timers = {label: timeit.Timer(statement, globals=namespace) for label, statement in statements}
    best = dict.fromkeys(timers, float("inf"))
    for _ in range(rounds):
        for label, timer in timers.items():
            best[label] = min(best[label], timer.timeit(calls) / calls * 1e9)
    return best


def calls(call, targets):
    print(f"{call}:")
    namespace = {"native": cvxutils.probe, "peer": cvxutils_bench_peer.probe, "python": probe,
                 "i": 1000, "x": 2.0, "s": "ab"}
    times = best_ns([("native command (cvxutils.probe)", call.replace("f(", "native(")),
                     ("plain pybind11 function", call.replace("f(", "peer(")),
                     ("pure Python function", call.replace("f(", "python("))], namespace, 100_000)
    for label, ns in times.items():
        print(f"  {label:34s} {ns:8.1f} ns/call")
    native, peer, python = times.values()
    print(f"  native / pybind11      {native / peer:5.2f}   {'(target <= 0.6)' if targets else ''}")
    print(f"  native / pure Python   {native / python:5.2f}   {'(moonshot <= 3)' if targets else ''}")


def arrays():
    array = np.random.default_rng(1).random(1_000_000)
    times = best_ns([("cvxutils.echo (into the library and back)", "cvxutils.echo(a)"),
                     ("numpy.copy", "np.copy(a)")], {"cvxutils": cvxutils, "np": np, "a": array}, 10)
    for label, ns in times.items():
        print(f"  {label:42s} {ns / 1e6:7.3f} ms")
    echo, copy = times.values()
    back = cvxutils.echo(array)
    zero_copy = not back.flags.owndata and back.base is not None
    print(f"  echo / numpy.copy      {echo / copy:5.2f}   (target <= 2.5)")
    print(f"  back without a copy:   {'yes' if zero_copy else 'no'}")


def transforms():
    form = cvxutils.XForm.rotation(33, cvxutils.Vector(1, 2, 3)).translate(10, -20, 5)
    matrix = form.matrix.astype(np.float64)
    points = np.random.default_rng(2).uniform(-100, 100, (1_000_000, 3))
    namespace = {"form": form, "p": points, "q": points.astype(np.float32), "R": matrix[:3, :3],
                 "t": matrix[:3, 3], "R32": form.matrix[:3, :3], "t32": form.matrix[:3, 3]}
    times = best_ns([("XForm.transform_points, float64 (new)", "form.transform_points(p)"),
                     ("numpy p @ R.T + t, float64", "p @ R.T + t"),
                     ("XForm.transform_points, float32 (in place)", "form.transform_points(q)"),
                     ("numpy q @ R.T + t, float32", "q @ R32.T + t32")], namespace, 10)
    for label, ns in times.items():
        print(f"  {label:42s} {ns / 1e6:7.3f} ms")
    native64, numpy64, native32, numpy32 = times.values()
    print(f"  float64 / numpy        {native64 / numpy64:5.2f}   (target <= 0.1)")
    print(f"  float32 / numpy        {native32 / numpy32:5.2f}")


if __name__ == "__main__":
    print(f"Python {sys.version.split()[0]}, NumPy {np.__version__}")
    calls("f(1, 2.5, 'abc', flag=True, name='Part-1')", targets=True)
    # The constants above are met again each call; these values are new objects each time.
    calls("f(i + 1, x + 0.5, s + 'c', flag=True, name=s + '-1')", targets=False)
    print("float64 array of 1,000,000 elements:")
    arrays()
    print("(1,000,000, 3) points through a transform:")
    transforms()
