"""The programs of the second edition that the web's engine is held against, each with what it reads."""

from dataclasses import dataclass
from pathlib import Path

from support import case_file as cf
from support import pair_file
from support import texts as t
from support.compiler import REPOSITORY

TESTS = REPOSITORY / "tests"
EXAMPLES = REPOSITORY / "எடுத்துக்காட்டுகள்"
EXAMPLE_NAMES = (
    "வணக்கம்",
    "சொல்_எண்ணி",
    "பகா_எண்கள்",
    "போக்குவரத்து_விளக்கு",
    "மதிப்பெண்_தரம்",
    "வங்கிக்_கணக்கு",
    "வடிவங்கள்",
    "வினைகள்",
    "வெப்பநிலை",
)

# Those that run with all tests, beside the examples: numbers, letters, collections, and faults that nobody catches.
FEW_CASES = (
    "ஓடும்போது_பிழைகள்/602",
    "ஓடும்போது_பிழைகள்/642",
    "ஓடும்போது_பிழைகள்/657",
)


@dataclass(frozen=True)
class Program:
    """A program that runs to its end, by its folder and name; `files` is a folder with what it imports, or None."""

    name: str
    source: bytes
    files: Path | None = None


def _in_second_edition(source):
    """The source with the marker in place of its first line, which is a comment."""
    _, newline, rest = source.partition(b"\n")
    return t.SECOND_EDITION_MARKER.encode() + newline + rest


def _examples():
    return [Program(name, _in_second_edition((EXAMPLES / f"{name}{cf.SOURCE_SUFFIX}").read_bytes())) for name in EXAMPLE_NAMES]


def _runs(case):
    """Whether the case is of the second edition, runs, and reads nothing."""
    stated = case.expectation
    return stated.edition == 2 and stated.needs_program and not stated.diagnostics and not stated.texts(cf.INPUT)


def _program(case):
    return Program(f"{case.path.parent.name}/{case.path.stem}", case.source, case.files)


def _language_cases():
    cases = [cf.read_case(path) for path in sorted((TESTS / "language").glob(f"*/*{cf.SOURCE_SUFFIX}"))]
    return [_program(case) for case in cases if _runs(case)]


def _surprises():
    pairs = [pair_file.read_pair(path) for path in sorted((TESTS / "surprises").glob(f"*/*{cf.SOURCE_SUFFIX}"))]
    cases = [pair.case(2) for pair in pairs if not pair.not_run(2)]
    return [_program(case) for case in cases if _runs(case)]


def all_programs():
    return [*_examples(), *_language_cases(), *_surprises()]


def few_programs():
    return [*_examples(), *(case for case in _language_cases() if case.name in FEW_CASES)]
