"""Reference counts of carried objects after many round trips: no leak, no early free."""
import contextlib
import sys

import numpy as np
import pytest

import cvxutils

ROUND_TRIPS = 100_000


# One row per way a value crosses: the value, and how it is sent in and read back. Script
# objects are carried as they are; the other values are converted anew each time.
@pytest.mark.parametrize("value, carry", [
    (object(), cvxutils.echo),
    (object(), lambda o: cvxutils.echo([o, (o, {"k": o})])),
    (object(), lambda o: cvxutils.echo({7: [o]})),
    (object(), lambda o: cvxutils.text((o,))),
    (object(), lambda o: cvxutils.probe(o, 2.5, "abc")),  # refused by the binder: the error drops it too
    ("text", cvxutils.echo), (3.5, cvxutils.echo), (2**31, cvxutils.echo), ((1, 2), cvxutils.echo),
    (np.arange(4.0), cvxutils.echo),
], ids=["bare", "nested", "int-keyed", "text", "failed-call", "str", "float", "uint", "tuple", "array"])
def test_carried_value_keeps_its_count(value, carry):
    def round_trip():
        with contextlib.suppress(TypeError):  # the failed call's
            carry(value)
    round_trip()  # a first crossing may fill the library's caches
    before = sys.getrefcount(value)
    for _ in range(ROUND_TRIPS):
        round_trip()
    assert sys.getrefcount(value) == before


def test_object_kept_by_the_library_keeps_one_reference():
    carried, section = object(), cvxutils.createSection("Shell-1", 1.0)
    before = sys.getrefcount(carried)
    for _ in range(ROUND_TRIPS // 10):
        section.userData = [carried]
        assert section.userData[0] is carried
    assert sys.getrefcount(carried) == before + 1
    cvxutils.resetModel()  # the model holds the section as well
    del section
    assert sys.getrefcount(carried) == before


def test_arrays_handed_back_keep_the_numbers_alive_and_let_them_go():
    back = [cvxutils.echo(np.full(3, float(i))) for i in range(1000)]
    assert [float(b[2]) for b in back[::250]] == [0.0, 250.0, 500.0, 750.0]
    base = back[0].base
    assert sys.getrefcount(base) == 3  # the array, the local and getrefcount's argument


def test_journal_keeps_one_reference_a_call_and_gives_them_back_when_cleared():
    text = "".join(["journal", "ed text"])  # not interned
    cvxutils.probe(1, 2.5, text)
    cvxutils.clear_journal()
    before = sys.getrefcount(text)  # with the reference the call path keeps between calls
    for _ in range(20_000):  # more than a megabyte of journal
        cvxutils.probe(1, 2.5, text)
    assert sys.getrefcount(text) == before + 20_000
    cvxutils.clear_journal()
    assert sys.getrefcount(text) == before
