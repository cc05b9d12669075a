"""Reads the box of a diagnostic, row by row; a row that differs in one byte makes it no box."""

import re
from dataclasses import dataclass

from support import texts as t
from support.catalogue import DESCRIPTIONS


@dataclass
class Report:
    """The contents of a box."""

    code: str
    category: str
    file: str
    line: int
    source: str
    description: str
    remedy: str
    saying: str


def _pattern(dim, behind_remedy):
    """The rows as one expression; each field stands in a group of its own."""

    def fixed(*texts):
        return re.escape("".join(texts))

    def field(name):
        return f"(?P<{name}>[^\n]*)"

    rule = fixed(t.RED, t.RULE, t.RESET)
    inner_rule = fixed(dim, "  ", t.RULE, t.RESET)
    rows = [
        "",
        rule,
        fixed(t.BOX_TITLE, t.GOLD) + field("code") + fixed(t.RESET, t.BOX_TITLE_MIDDLE, t.RED) + field("category")
        + fixed(t.RESET),
        rule,
        fixed("  ", t.BLUE, t.BOX_FILE, t.RESET, ": ") + field("file"),
        fixed("  ", t.BLUE, t.BOX_PLACE, t.RESET, t.BOX_LINE) + field("line"),
        inner_rule,
        fixed(t.CYAN, t.BOX_FOUND, t.RESET),
        "    (?P<number>[0-9]{2,}) \\|  " + field("source"),
        fixed(t.BOX_MARGIN, t.GOLD, t.BOX_MARKER, t.RESET),
        fixed(t.RED, t.BOX_DESCRIPTION) + field("description") + fixed(t.RESET),
        inner_rule,
        fixed(t.GREEN, t.BOX_REMEDY, t.RESET),
        "     " + field("remedy"),
        inner_rule + behind_remedy,
        "  " + fixed(t.GOLD, t.BOX_SAYING, '"') + field("saying") + fixed('"', t.RESET),
        inner_rule + "\n",
    ]
    return re.compile("\n".join(rows) + "\n\\Z")


_COMPILER_BOX = _pattern(t.DIM, "")
_PROGRAM_BOX = _pattern(t.DIM_GREY, "\n")


def split_compiler_box(output):
    """Splits output that ends in the compiler's box: the text before it, and the `Report` or None."""
    return _split(_COMPILER_BOX, output)


def split_program_box(output):
    """The same for the box of a running program."""
    return _split(_PROGRAM_BOX, output)


def _split(pattern, output):
    found = pattern.search(output)
    if not found or not _is_consistent(found):
        return output, None
    fields = found.groupdict()
    del fields["number"]
    fields["line"] = int(fields["line"])
    return output[: found.start()], Report(**fields)


def _is_consistent(found):
    """The line stands in two rows, and what is wrong goes with the code."""
    line, description = found["line"], found["description"]
    known = DESCRIPTIONS.get(found["code"])
    return (
        re.fullmatch("0|[1-9][0-9]*", line) is not None
        and found["number"] == line.zfill(2)
        and known is not None
        and (description == known or re.fullmatch(re.escape(known) + r" \(.*\)", description) is not None)
    )
