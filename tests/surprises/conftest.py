"""Every tests/surprises/<theme>/<surprise>.பொழில் is two tests, one per edition: see README.md beside this file."""

from pathlib import Path

import pytest

from support import case_file, pair_file
from support.case_check import check_case, observed_expectation
from support.compiler import compiler_path

SURPRISES = Path(__file__).parent

_NAMES = {1: "first", 2: "second"}


def pytest_collect_file(file_path, parent):
    if file_path.suffix == case_file.SOURCE_SUFFIX and file_path.parent.parent == SURPRISES:
        return PairFile.from_parent(parent, path=file_path)
    return None


class PairFile(pytest.File):
    def collect(self):
        for edition, name in _NAMES.items():
            yield EditionItem.from_parent(self, name=name, edition=edition)


class EditionItem(pytest.Item):
    def __init__(self, *, edition, **others):
        super().__init__(**others)
        self.edition = edition

    def runtest(self):
        pair = pair_file.read_pair(self.path)
        reason = pair.not_run(self.edition)
        if reason:
            pytest.skip(reason)
        case = pair.case(self.edition)
        if self.config.getoption("--rewrite"):
            pair.expectations[self.edition] = observed_expectation(case, compiler_path())
            pair_file.write_pair(pair)
            return
        trouble = check_case(case, compiler_path())
        if trouble:
            raise PairFailed(trouble)

    def repr_failure(self, excinfo, style=None):
        if isinstance(excinfo.value, (PairFailed, case_file.CaseError, FileNotFoundError)):
            return str(excinfo.value)
        return super().repr_failure(excinfo, style)

    def reportinfo(self):
        return self.path, 0, f"{self.path.parent.name}/{self.path.stem}/{self.name}"


class PairFailed(Exception):
    """What came of a pair in one edition isn't what it states."""
