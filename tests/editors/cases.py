"""Programs with what editors should make of their words, said once for all editors.

Below a line stand `ஃ> word: kind`, each about the first such piece of the line that isn't within a word; `none` is what
isn't coloured. To the editors these lines are comments.
"""

import re
from dataclasses import dataclass
from pathlib import Path

FOLDER = Path(__file__).parent / "cases"
SAID = re.compile(r"ஃ> (.+): ([a-z]+)")
INSIDE = re.compile(r"[\w\u0b80-\u0bff]")


@dataclass(frozen=True)
class Expectation:
    """That the characters from begin to end of a line, counted from 0, are of a kind."""

    line: int
    begin: int
    end: int
    kind: str


def find(line, piece):
    """Where the piece stands in the line, as a word of its own if it is one."""
    for begin in (match.start() for match in re.finditer(re.escape(piece), line)):
        end = begin + len(piece)
        joined = (INSIDE.match(piece[0]) and begin and INSIDE.match(line[begin - 1])) or (
            INSIDE.match(piece[-1]) and end < len(line) and INSIDE.match(line[end]))
        if not joined:
            return begin, end
    raise ValueError(f"{piece!r} isn't in {line!r}")


def expectations(path):
    """The lines of a program, and what is expected of them."""
    lines, expected, last = path.read_text(encoding="utf-8").splitlines(), [], 0
    for number, line in enumerate(lines):
        said = SAID.fullmatch(line)
        if said:
            expected.append(Expectation(last, *find(lines[last], said[1]), said[2]))
        else:
            last = number
    return lines, expected


def all_cases():
    return sorted(FOLDER.glob("*.பொழில்"))
