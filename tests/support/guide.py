"""Reads the programs of the language guide, and what must come out of them, out of its Markdown pages."""

import re
import unicodedata
from dataclasses import dataclass, field
from pathlib import Path

from support import case_file as cf
from support import texts as t
from support.compiler import REPOSITORY

GUIDE = REPOSITORY / "docs" / "மொழி"
WEB_GUIDE = REPOSITORY / "docs" / "வலை"
ERROR_PAGE = REPOSITORY / "docs" / "பிழைகள்.md"
COMMAND_PAGE = REPOSITORY / "docs" / "கட்டளை.md"

# The tag of a fence is its first word; a name behind the first two makes a file that stands beside the next program.
PROGRAM = "பொழில்"
WEB_PROGRAM = "பொழில்-வலை"
TEST_PROGRAM = "பொழில்-சோதனை"
FILE = "கோப்பு"
WORDS = "சொற்கள்"
FRAGMENT = "துண்டு"
NOT_RUN = (FRAGMENT, WORDS, "sh", "text")
# The kinds of the language cases, with _ where they have blanks.
EXPECTATIONS = {kind.replace(" ", "_"): kind for kind in cf.KINDS}

# What the text for em++ holds once the compiler has nothing to object to.
_WEB_TEXT = "void render_frame() {"

_HEAD_RULE = re.compile(r"\|( *:?-+:? *\|)+")


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
    """A program, the texts of the files beside it by name, and what must come out as (kind, text) entries."""

    fence: Fence
    files: dict
    entries: list = field(default_factory=list)

    @property
    def place(self):
        return f"{self.fence.page.relative_to(REPOSITORY)}:{self.fence.line}"

    @property
    def edition(self):
        """That of the language in which it is written."""
        return 2 if self.fence.lines[:1] == [t.SECOND_EDITION_MARKER] else 1

    @property
    def is_test(self):
        """Whether it is a file of tests, which the command பொழில் runs."""
        return self.fence.tag == TEST_PROGRAM


def pages():
    """All pages whose programs are tests, in order."""
    return [*sorted(GUIDE.glob("*.md")), *sorted(WEB_GUIDE.glob("*.md")), ERROR_PAGE, COMMAND_PAGE]


def read_fences(page, text=None):
    """The fenced blocks of a page; raises `GuideError` for one that isn't closed or doesn't begin its line."""
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
        elif line.lstrip(" \t>").startswith(("```", "~~~")):
            raise GuideError(f"{page}:{number}: a fence begins with ``` at the start of its line")
    if current:
        raise current.error("the fence isn't closed")
    return fences


def read_programs(fences):
    """The programs among `fences`; raises `GuideError` for an unknown tag or a program that nothing is expected of.

    A web program is expected to become text for em++, which then isn't called.
    """
    programs, files = [], []
    for fence in fences:
        if fence.tag in (PROGRAM, FILE) and fence.name:
            files.append(fence)
        elif fence.tag in (PROGRAM, WEB_PROGRAM, TEST_PROGRAM):
            entries = [(cf.EMITTED, _WEB_TEXT)] if fence.tag == WEB_PROGRAM else []
            programs.append(Program(fence, {file.name: file.text for file in files}, entries))
            files = []
        elif fence.tag in EXPECTATIONS:
            if not programs or files:
                raise fence.error(f"no program stands before this {fence.tag}")
            programs[-1].entries += [(EXPECTATIONS[fence.tag], line) for line in fence.lines]
        elif fence.tag not in NOT_RUN:
            raise fence.error(f"unknown tag {fence.tag!r}")
    for program in programs:
        if not [kind for kind, _ in program.entries if kind != cf.INPUT]:
            raise program.fence.error(f"nothing says what must come out; what is no program is tagged {FRAGMENT}")
    if files:
        raise files[0].error("no program stands behind this file")
    return programs


def as_case(program, folder):
    """Writes the files of `program` into `folder` and returns the language case that runs beside them."""
    name = "நிரல்"
    for file, text in program.files.items():
        path = folder / (name + cf.FILES_SUFFIX) / file
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")
    block = "".join(cf.format_entry(*entry) + "\n" for entry in program.entries)
    expectation = cf.parse_expectation(block, program.edition)
    return cf.Case(folder / (name + cf.SOURCE_SUFFIX), program.fence.text.encode(), expectation, None)


def words(page):
    """The words that a page lists in its WORDS fences."""
    return [word for fence in read_fences(page) if fence.tag == WORDS for word in fence.text.split()]


def table_rows(page, text=None):
    """The cells of all rows of the tables of a page, or of `text` in its place, without their heads."""
    lines = (page.read_text(encoding="utf-8") if text is None else text).split("\n")
    rows = []
    for line, following in zip(lines, [*lines[1:], ""]):
        if line.startswith("|") and not _HEAD_RULE.fullmatch(line) and not _HEAD_RULE.fullmatch(following):
            rows.append([cell.strip() for cell in re.split(r"(?<!\\)\|", line)[1:-1]])
    return rows


def anchors(text):
    """The anchors of the headings in `text`: letters, digits, - and _ stay, blanks become -, other signs go."""
    headings = re.findall(r"^#+ (.*)$", text, re.MULTILINE)
    return {"".join(_anchor_piece(character) for character in heading.lower()) for heading in headings}


def _anchor_piece(character):
    if character == " ":
        return "-"
    return character if character in "-_" or unicodedata.category(character)[0] in "LMN" else ""
