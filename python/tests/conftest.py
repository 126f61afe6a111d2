"""Set-up the whole suite shares: a fresh model and journal for each test, the usual objects,
and the failure of a call, as (class, args), for an exact check of both."""
import pytest

import cvxutils


@pytest.fixture(autouse=True)
def fresh_model():
    cvxutils.resetModel()
    cvxutils.clear_journal()


@pytest.fixture
def material():
    return cvxutils.createMaterial("Steel", [[200e9, 0.3, 20.0], [190e9, 0.3, 100.0]], 1)


@pytest.fixture
def section():
    return cvxutils.createSection("Shell-1", 2.0, "Steel")


@pytest.fixture
def failure():
    def raised(call, *args, **kwargs):
        with pytest.raises(Exception) as info:
            call(*args, **kwargs)
        return type(info.value), info.value.args
    return raised
