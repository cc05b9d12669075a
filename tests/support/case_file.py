"""Reads and writes language cases: one program and, in comments behind it, what must come out."""

import re
import unicodedata
from dataclasses import dataclass, field
from pathlib import Path

MARK = "ஃ>"

OUTPUT = "வெளியீடு"
DIAGNOSTIC = "பிழை"
DESCRIPTION = "பிழை விளக்கம்"
RUNTIME = "இயக்கநேர பிழை"
STATUS = "வெளியேற்றம்"
EMITTED = "உருவாக்கம்"
NOT_EMITTED = "உருவாக்கம் இல்லை"
INPUT = "உள்ளீடு"
ERROR_STREAM = "பிழையோட்டம்"
HINT = "குறிப்பு"

KINDS = (OUTPUT, DIAGNOSTIC, DESCRIPTION, RUNTIME, STATUS, EMITTED, NOT_EMITTED, INPUT, ERROR_STREAM, HINT)

SOURCE_SUFFIX = ".பொழில்"
EXPECTATION_SUFFIX = ".எதிர்பார்ப்பு"
FILES_SUFFIX = ".கோப்புகள்"

# The end of an output whose last line is not ended.
UNENDED = "␃"

_SECOND_EDITION = re.compile("\ufeff?[ \t]*ஃ[ \t]*பொழில்[ \t]*[2௨][ \t\r]*")

_PLACE = re.compile(r"(?P<code>\S+-\d{3}) வரி (?P<line>\d+)(?: கோப்பு (?P<file>.+))?")


class CaseError(Exception):
    """A case that isn't written as cases are."""


@dataclass(frozen=True)
class Place:
    """Where a diagnostic points. Without a file it points into the case itself."""

    code: str
    line: int
    file: str | None = None

    def __str__(self):
        return f"{self.code} வரி {self.line}" + (f" கோப்பு {self.file}" if self.file else "")


@dataclass
class Expectation:
    """What must come out of a case; `entries` are the lines as written, (kind, text) each.

    `edition` is that of the language in which the case is compiled.
    """

    entries: list = field(default_factory=list)
    edition: int = 1

    def texts(self, kind):
        return [text for entry, text in self.entries if entry == kind]

    @property
    def diagnostics(self):
        """In their order; the first edition tells one at most."""
        return [_place(text) for text in self.texts(DIAGNOSTIC)]

    @property
    def diagnostic(self):
        return next(iter(self.diagnostics), None)

    @property
    def runtime(self):
        return next((_place(text) for text in self.texts(RUNTIME)), None)

    @property
    def status(self):
        """The exit status of the compiler, if it isn't stated: 1 with a diagnostic and 0 without.

        In the second edition it is that of the program, hence 1 with its box too.
        """
        stated = self.texts(STATUS)
        if stated:
            return int(stated[0])
        return 1 if self.diagnostic or (self.edition > 1 and self.runtime) else 0

    @property
    def needs_program(self):
        """False when the answer is known before a C++ compiler is asked for."""
        if self.diagnostic or (self.edition == 1 and self.status != 0):
            return False
        told = {kind for kind, _ in self.entries}
        return not told & {EMITTED, NOT_EMITTED} or bool(told & {OUTPUT, RUNTIME, INPUT, ERROR_STREAM})


@dataclass
class Case:
    """One case as it stands in the repository."""

    path: Path
    source: bytes
    expectation: Expectation
    sibling: Path | None

    @property
    def files(self):
        """The folder whose contents stand beside the program when it runs, if there is one."""
        folder = self.path.with_name(self.path.stem + FILES_SUFFIX)
        return folder if folder.is_dir() else None


def read_case(path):
    """Reads the case at `path`; raises `CaseError` when its expectation can't be understood."""
    path = Path(path)
    source = path.read_bytes()
    edition = edition_of(source)
    sibling = path.with_name(path.stem + EXPECTATION_SUFFIX)
    if sibling.exists():
        return Case(path, source, parse_expectation(sibling.read_text(encoding="utf-8"), edition), sibling)
    _, block = split_block(source)
    return Case(path, source, parse_expectation(block.decode("utf-8"), edition), None)


def edition_of(source):
    """The edition that the first line of a program asks for."""
    first = source.split(b"\n", 1)[0].decode("utf-8", "replace")
    return 2 if _SECOND_EDITION.fullmatch(first) else 1


def parse_expectation(block, edition=1):
    """Reads expectation lines; raises `CaseError` with the number of a wrong line."""
    expectation = Expectation([(kind, text) for _, kind, text in marked_entries(block, (MARK,), KINDS)], edition)
    check_expectation(expectation)
    return expectation


def marked_entries(block, marks, kinds):
    """Each line of `block` as (mark, kind, text)."""
    for number, line in enumerate(block.split("\n"), start=1):
        if not line.strip():
            continue
        mark = next((mark for mark in marks if line.startswith(mark)), None)
        kind, colon, text = line.removeprefix(mark or "").partition(":")
        kind = unicodedata.normalize("NFC", kind.strip())
        if not mark or not colon or kind not in kinds:
            raise CaseError(f"expectation line {number} is none of {', '.join(kinds)}: {line}")
        yield mark, kind, text.removeprefix(" ")


def write_expectation(case, expectation):
    """Puts `expectation` into the case's file in the place of the old one."""
    block = "".join(format_entry(*entry) + "\n" for entry in expectation.entries).encode()
    if case.sibling:
        case.sibling.write_bytes(block)
        return
    program, _ = split_block(case.source)
    if program and not program.endswith(b"\n"):
        program += b"\n"
    case.path.write_bytes(program + block)


def format_entry(kind, text, mark=MARK):
    return f"{mark} {kind}: {text}" if text else f"{mark} {kind}:"


def split_block(source, mark=MARK):
    """The program and its expectation block, which begins with the expression `mark`; empty when there is none."""
    found = re.search(b"^" + mark.encode(), source, re.MULTILINE)
    start = found.start() if found else len(source)
    return source[:start], source[start:]


def check_expectation(expectation):
    """Raises `CaseError` for lines that can't all hold, or aren't as lines of their kind are."""
    for place in expectation.texts(DIAGNOSTIC) + expectation.texts(RUNTIME):
        _place(place)
    for kind in (DIAGNOSTIC, RUNTIME, STATUS):
        if len(expectation.texts(kind)) > 1 and (kind != DIAGNOSTIC or expectation.edition == 1):
            raise CaseError(f"more than one line of {kind}")
    if any(not status.strip().isdecimal() for status in expectation.texts(STATUS)):
        raise CaseError(f"{STATUS} is a number")


def _place(text):
    found = _PLACE.fullmatch(text.strip())
    if not found:
        raise CaseError(f"not of the form 'பொழி-106 வரி 3': {text}")
    return Place(found["code"], int(found["line"]), found["file"])
