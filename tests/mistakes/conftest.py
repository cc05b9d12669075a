"""Every tests/mistakes/<mistake>.பொழில், and every one in இரண்டாம்_பதிப்பு, is one test: see README.md beside this file."""

import re
import tempfile
from contextlib import contextmanager
from dataclasses import dataclass, field
from pathlib import Path

import pytest

from support.compiler import compiler_path
from support.console import without_colours
from support.workplace import Workplace

MISTAKES = Path(__file__).parent
FOLDERS = (MISTAKES, MISTAKES / "இரண்டாம்_பதிப்பு")

_ENTRY = re.compile(r"^ஃ> (வர வேண்டும்|வரக் கூடாது): (.*)$", re.MULTILINE)

# What only C++ and its tools say.
CPP = ("error:", "std::", "any_cast", "global_vars", "fn_", "undefined reference", "In function", "generated.cpp",
       "terminate called")


@dataclass
class Mistake:
    """A program, and the words that must and must not come out of it, on either stream."""

    path: Path
    wanted: list = field(default_factory=list)
    unwanted: list = field(default_factory=list)


def read_mistake(path):
    """Raises `ValueError` for a file that asks for no words: its test could hardly fail."""
    mistake = Mistake(path)
    for kind, words in _ENTRY.findall(path.read_text(encoding="utf-8")):
        (mistake.wanted if kind == "வர வேண்டும்" else mistake.unwanted).append(words)
    if not mistake.wanted:
        raise ValueError(f"{path}: nothing says what must come")
    return mistake


def troubles(mistake, shown):
    """What is amiss in `shown`, a line each."""
    missing = [f"doesn't come: {words}" for words in mistake.wanted if words not in shown]
    return missing + [f"comes: {words}" for words in [*mistake.unwanted, *CPP] if words in shown]


def pytest_collect_file(file_path, parent):
    if file_path.suffix == ".பொழில்" and file_path.parent in FOLDERS:
        return MistakeFile.from_parent(parent, path=file_path)
    return None


class MistakeFile(pytest.File):
    def collect(self):
        yield MistakeItem.from_parent(self, name=self.path.stem)


class MistakeItem(pytest.Item):
    def runtest(self):
        mistake = read_mistake(self.path)
        with _workplace() as place:
            name = place.write(self.path.name, self.path.read_bytes())
            result = place.run(name)
        shown = without_colours(result.out + result.err)
        amiss = troubles(mistake, shown)
        if result.timed_out or amiss:
            raise MistakeFailed("\n".join([*amiss, str(result)]))

    def repr_failure(self, excinfo, style=None):
        if isinstance(excinfo.value, (MistakeFailed, ValueError, FileNotFoundError)):
            return str(excinfo.value)
        return super().repr_failure(excinfo, style)

    def reportinfo(self):
        return self.path, 0, self.path.stem


class MistakeFailed(Exception):
    """What a user sees of a mistake isn't what it must be."""


@contextmanager
def _workplace():
    """A folder to compile in, where g++ itself isn't heard."""
    with tempfile.TemporaryDirectory(prefix="pozhil-mistake-") as scratch:
        scratch = Path(scratch).resolve()
        place = Workplace(scratch / "work", scratch, compiler_path())
        place.env["POZHIL_SHOW_CXX"] = "0"
        yield place
