"""Reference counts of carried objects after many round trips: no leak, no early free."""
import sys

import numpy as np
import pytest

import cvxutils

ROUND_TRIPS = 100_000


class Carried:
    pass


# One row per way an object crosses: how it is sent in and read back.
@pytest.mark.parametrize("carry", [
    lambda o: cvxutils.echo(o),
    lambda o: cvxutils.echo([o, (o, {"k": o})]),
    lambda o: cvxutils.echo({7: [o]}),
    lambda o: cvxutils.text((o,)),
    lambda o: cvxutils.probe(o, 2.5, "abc"),  # refused by the binder: the error drops it too
], ids=["bare", "nested", "int-keyed", "text", "failed-call"])
def test_carried_object_keeps_its_count(carry):
    carried = Carried()
    before = sys.getrefcount(carried)
    for _ in range(ROUND_TRIPS):
        try:
            carry(carried)
        except TypeError:
            pass
    assert sys.getrefcount(carried) == before


def test_object_kept_by_the_library_keeps_one_reference():
    carried = Carried()
    before = sys.getrefcount(carried)
    section = cvxutils.createSection("Shell-1", 1.0)
    for _ in range(ROUND_TRIPS // 10):
        section.userData = [carried]
        assert section.userData[0] is carried
    assert sys.getrefcount(carried) == before + 1
    cvxutils.resetModel()  # the model holds the section as well
    del section
    assert sys.getrefcount(carried) == before


@pytest.mark.parametrize("value", ["text", 3.5, 2**31, (1, 2), np.arange(4.0)], ids=repr)
def test_values_converted_anew_keep_the_sources_count(value):
    before = sys.getrefcount(value)
    for _ in range(ROUND_TRIPS):
        cvxutils.echo(value)
    assert sys.getrefcount(value) == before


def test_arrays_handed_back_keep_the_numbers_alive_and_let_them_go():
    back = [cvxutils.echo(np.full(3, float(i))) for i in range(1000)]
    assert [float(b[2]) for b in back[::250]] == [0.0, 250.0, 500.0, 750.0]
    base = back[0].base
    assert sys.getrefcount(base) == 3  # the array, the local and getrefcount's argument
