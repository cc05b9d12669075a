"""A few random programs, the same ones each time; `run` compares more of them."""

import pytest

from session import Options, Session

GROUPS = 4


@pytest.mark.parametrize("seed", range(1, GROUPS + 1))
def test_programs_do_what_the_evaluator_predicts(seed):
    session = Session(Options(programs=Options.group, seed=seed))
    status = session.run()
    assert session.counts["plain"] > Options.group // 2, "nearly all programs have to run"
    assert status == 0
