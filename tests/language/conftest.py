"""Every tests/language/<theme>/<case>.பொழில் is one test: see README.md beside this file."""

from pathlib import Path

import pytest

from support import case_file
from support.case_check import check_case, rewrite_case
from support.compiler import compiler_path

LANGUAGE = Path(__file__).parent


def pytest_collect_file(file_path, parent):
    if file_path.suffix == case_file.SOURCE_SUFFIX and file_path.parent.parent == LANGUAGE:
        return CaseFile.from_parent(parent, path=file_path)
    return None


class CaseFile(pytest.File):
    def collect(self):
        yield CaseItem.from_parent(self, name=self.path.stem)


class CaseItem(pytest.Item):
    def runtest(self):
        case = case_file.read_case(self.path)
        if self.config.getoption("--rewrite"):
            rewrite_case(case, compiler_path())
            return
        trouble = check_case(case, compiler_path())
        if trouble:
            raise CaseFailed(trouble)

    def repr_failure(self, excinfo, style=None):
        if isinstance(excinfo.value, (CaseFailed, case_file.CaseError, FileNotFoundError)):
            return str(excinfo.value)
        return super().repr_failure(excinfo, style)

    def reportinfo(self):
        return self.path, 0, f"{self.path.parent.name}/{self.name}"


class CaseFailed(Exception):
    """What came out of a case isn't what it states."""
