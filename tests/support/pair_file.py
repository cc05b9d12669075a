"""Reads and writes pairs: one program that shows a surprise, and below it what comes of it in either edition."""

import re
from dataclasses import dataclass
from pathlib import Path

from support import case_file as cf
from support import texts as t

EDITIONS = (1, 2)
_MARKS = {1: "ஃ1>", 2: "ஃ2>"}
_ALL_MARKS = (cf.MARK, *_MARKS.values())
_ANY_MARK = "ஃ[0-9]*>"

# Why a program isn't run in an edition.
NOT_RUN = "சோதனை இல்லை"
_KINDS = (*cf.KINDS, NOT_RUN)

# The first line says what the surprise is.
_FIRST_LINE = re.compile("ஃ .+".encode())


@dataclass
class Pair:
    """One program, and what must come of it by edition."""

    path: Path
    program: bytes
    expectations: dict

    def case(self, edition):
        """The program as a case of this edition. The marker of the second takes the place of the program's first line,
        so that lines keep their numbers."""
        first, newline, rest = self.program.partition(b"\n")
        source = (first if edition == 1 else t.SECOND_EDITION_MARKER.encode()) + newline + rest
        return cf.Case(self.path, source, self.expectations[edition], None)

    def not_run(self, edition):
        """Why the program isn't run in this edition; None if it is."""
        return next(iter(self.expectations[edition].texts(NOT_RUN)), None)


def read_pair(path):
    """Reads the pair at `path`; raises `CaseError` when it isn't written as pairs are."""
    program, block = cf.split_block(path.read_bytes(), _ANY_MARK)
    if not _FIRST_LINE.match(program):
        raise cf.CaseError("the first line is no comment that says what the surprise is")
    expectations = {edition: cf.Expectation([], edition) for edition in EDITIONS}
    for mark, kind, text in cf.marked_entries(block.decode("utf-8"), _ALL_MARKS, _KINDS):
        for edition in EDITIONS:
            if mark in (cf.MARK, _MARKS[edition]):
                expectations[edition].entries.append((kind, text))
    for expectation in expectations.values():
        cf.check_expectation(expectation)
    return Pair(path, program, expectations)


def write_pair(pair):
    """Puts what `pair` expects into its file; what is the same in both editions is written once."""
    by_edition = [pair.expectations[edition].entries for edition in EDITIONS]
    if by_edition[0] == by_edition[1]:
        lines = [cf.format_entry(*entry) for entry in by_edition[0]]
    else:
        lines = [cf.format_entry(*entry) for entry in by_edition[0] if entry[0] == cf.INPUT]
        lines += [cf.format_entry(*entry, _MARKS[edition]) for edition in EDITIONS
                  for entry in pair.expectations[edition].entries if entry[0] != cf.INPUT]
    pair.path.write_bytes(pair.program + "".join(line + "\n" for line in lines).encode())
