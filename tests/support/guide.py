"""Reads programs and what must come out of them from Markdown pages, where fences are tagged as docs/மொழி/README.md says."""

import re
from dataclasses import dataclass, field
from pathlib import Path

from support import case_file as cf
from support.compiler import REPOSITORY

GUIDE = REPOSITORY / "docs" / "மொழி"
ERROR_PAGE = REPOSITORY / "docs" / "பிழைகள்.md"

PROGRAM = "பொழில்"
FILE = "கோப்பு"
WORDS = "சொற்கள்"
FRAGMENT = "துண்டு"
NOT_RUN = (FRAGMENT, WORDS, "sh", "text")
# A tag is one word, so the kinds of the language cases have _ where they have blanks there.
EXPECTATIONS = {kind.replace(" ", "_"): kind for kind in cf.KINDS}

_FENCE = re.compile(r"\s*(?:```|~~~)")


class GuideError(Exception):
    """A page whose fences can't be understood."""


@dataclass
class Fence:
    """One fenced block; `line` is that of its tag."""

    page: Path
    line: int
    tag: str
    name: str
    lines: list = field(default_factory=list)

    @property
    def text(self):
        return "".join(line + "\n" for line in self.lines)

    def error(self, trouble):
        return GuideError(f"{self.page}:{self.line}: {trouble}")


@dataclass
class Program:
    """A program of a page, the files beside it, and what must come out as (kind, text) entries."""

    fence: Fence
    files: dict
    entries: list = field(default_factory=list)

    @property
    def place(self):
        return f"{self.fence.page.relative_to(REPOSITORY)}:{self.fence.line}"


def pages():
    """All pages whose programs are tests, in order."""
    return [*sorted(GUIDE.glob("*.md")), ERROR_PAGE]


def read_fences(page, text=None):
    """The fenced blocks of a page; raises `GuideError` when one isn't closed or is indented."""
    fences, current = [], None
    lines = (page.read_text(encoding="utf-8") if text is None else text).split("\n")
    for number, line in enumerate(lines, start=1):
        if current and line == "```":
            fences.append(current)
            current = None
        elif current:
            current.lines.append(line)
        elif line.startswith("```"):
            tag, _, name = line[3:].partition(" ")
            current = Fence(page, number, tag, name)
        elif _FENCE.match(line):
            raise GuideError(f"{page}:{number}: a fence begins with ``` at the start of its line")
    if current:
        raise current.error("the fence isn't closed")
    return fences


def read_programs(fences):
    """The programs among `fences`; raises `GuideError` for an unknown tag, and for a program nothing is expected of."""
    programs, files = [], {}
    for fence in fences:
        if fence.tag in (PROGRAM, FILE) and fence.name:
            files[fence.name] = fence.text
        elif fence.tag == PROGRAM:
            programs.append(Program(fence, files))
            files = {}
        elif fence.tag in EXPECTATIONS:
            if not programs or files:
                raise fence.error(f"no program stands before this {fence.tag}")
            programs[-1].entries += [(EXPECTATIONS[fence.tag], line) for line in fence.lines]
        elif fence.tag not in NOT_RUN:
            raise fence.error(f"unknown tag {fence.tag!r}")
    for program in programs:
        if not program.entries:
            raise program.fence.error(f"nothing says what must come out; a text that isn't a program is tagged {FRAGMENT}")
    if files:
        raise GuideError(f"no program stands behind the file {next(iter(files))}")
    return programs


def words(page):
    """The words that a page lists in its WORDS fences."""
    return [word for fence in read_fences(page) if fence.tag == WORDS for word in fence.text.split()]


def table_rows(page):
    """The cells of all table rows of a page, heads and rules left out."""
    rows = []
    lines = page.read_text(encoding="utf-8").split("\n")
    for line, following in zip(lines, [*lines[1:], ""]):
        is_head = re.fullmatch(r"\|( *:?-+:? *\|)+", following)
        is_rule = re.fullmatch(r"\|( *:?-+:? *\|)+", line)
        if line.startswith("|") and not is_head and not is_rule:
            rows.append([cell.strip() for cell in line.strip("|").split("|")])
    return rows


def as_case(program, folder):
    """Writes the files of `program` into `folder` and returns the case that runs there."""
    case = cf.Case(folder / f"நிரல்{cf.SOURCE_SUFFIX}", program.fence.text.encode(), _expectation(program), None)
    beside = folder / f"நிரல்{cf.FILES_SUFFIX}"
    for name, text in program.files.items():
        path = beside / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")
    return case


def _expectation(program):
    return cf.parse_expectation("".join(cf.format_entry(*entry) + "\n" for entry in program.entries))
