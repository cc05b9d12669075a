"""The tables of the guide against what they tell: errors, built-in functions, reserved words."""

import re
from concurrent.futures import ThreadPoolExecutor

from support import case_file as cf
from support import guide
from support import texts as t
from support.case_run import run_case
from support.compiler import REPOSITORY, compiler_path

SOURCES = REPOSITORY / "src"
NEVER_RAISED = "Raised by nothing today"


def _catalogue():
    """Code to (description, remedy) as the header has them, without blanks around."""
    header = (REPOSITORY / t.INCLUDE_DIRECTORY / "error_codes.h").read_text(encoding="utf-8")
    text = r'"((?:[^"\\]|\\.)*)"'
    entries = re.findall(rf'\{{"({t.CODE_PREFIX}\d{{3}})", {text},\s+{text}\}}', header)
    return {code: tuple(_unescaped(part).strip() for part in parts) for code, *parts in entries}


def _unescaped(literal):
    return re.sub(r"\\(.)", r"\1", literal)


def _error_rows(text=None):
    return {row[0]: row for row in guide.table_rows(guide.ERROR_PAGE, text) if row[0].startswith(t.CODE_PREFIX)}


def test_errors_are_told_as_the_box_shows_them():
    told = {code: (row[1], row[-1]) for code, row in _error_rows().items()}
    assert told == _catalogue()


def test_errors_that_nothing_raises():
    raised = set()
    for path in [*SOURCES.rglob("*.cpp"), *SOURCES.rglob("*.h")]:
        raised.update(re.findall(rf'"({t.CODE_PREFIX}\d{{3}})"', path.read_text(encoding="utf-8")))
    page = guide.ERROR_PAGE.read_text(encoding="utf-8")
    told = _error_rows(page[page.index(NEVER_RAISED):])
    assert set(told) == set(_catalogue()) - raised


def test_built_in_functions_are_in_the_table():
    source = (SOURCES / "generator" / "builtins.cpp").read_text(encoding="utf-8")
    names = set(re.findall(r'^    \{"([^"]+)", ', source, re.MULTILINE))
    assert names
    page = guide.GUIDE / "13_உள்ளமை_செயல்கள்.md"
    told = {name for row in guide.table_rows(page) for name in re.findall(r"^`(\S+?)\(", row[0])}
    assert names - told == set()


def test_reserved_words_are_listed(tmp_path):
    source = (SOURCES / "scanner" / "keywords.cpp").read_text(encoding="utf-8")
    words = sorted(set(re.findall(r'"([\u0b80-\u0bff][\u0b80-\u0bff_.]*)"', source)))
    listed = guide.words(guide.GUIDE / "03_பெயர்கள்.md")
    assert len(listed) == len(set(listed))
    with ThreadPoolExecutor() as workers:
        refused = [word for word, bad in zip(words, workers.map(_is_refused, words)) if bad]
    assert refused == sorted(listed)


def _is_refused(word):
    path = REPOSITORY / f"நிரல்{cf.SOURCE_SUFFIX}"  # isn't written: the case holds its source
    case = cf.Case(path, f"{word} = 1\n".encode(), cf.Expectation(), None)
    return run_case(case, compiler_path(), with_program=False).diagnostic is not None
