"""Set-up the whole suite shares: a fresh model and journal for each test, the usual objects."""
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
