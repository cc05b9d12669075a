"""The tables of the guide against what they tell: errors, built-in functions, reserved words."""

import json
import re
import subprocess
from concurrent.futures import ThreadPoolExecutor
from functools import cache

from support import case_file as cf
from support import guide
from support import texts as t
from support.case_run import run_case
from support.compiler import REPOSITORY, compiler_path

SOURCES = REPOSITORY / "src"
NEVER_RAISED = "Raised by nothing today"
CALLED_FORMS = ("call", "element_write", "loop_range", "list_method", "clock")
BUILT_IN_COLUMNS = 4
CURVE_COLUMNS = 2
NAMED_CURVES = 43


@cache
def _vocabulary():
    """The tables of the compiler, as it prints them."""
    return json.loads(subprocess.run([compiler_path(), t.FLAG_VOCABULARY], stdout=subprocess.PIPE, check=True).stdout)


def _catalogue():
    """Code to (description, remedy), without blanks around."""
    return {row["code"]: (row["description"].strip(), row["remedy"].strip()) for row in _vocabulary()["diagnostics"]}


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


def _call(builtin):
    """A built-in with its arguments, as the first column of the guide's table has it."""
    before = {"list_method": "அ.", "clock": "நேரம்."}.get(builtin["form"], "")
    return f"`{before}{builtin['name']}({', '.join(builtin['parameters'])})`"


def _cell(told):
    return f"{told['ta']} · {told['en']}" if told["ta"] else ""


def _told_built_ins():
    """Call to (value, what it does) in the guide's table; a dash is no value."""
    rows = [row for row in guide.table_rows(guide.GUIDE / "13_உள்ளமை_செயல்கள்.md") if len(row) == BUILT_IN_COLUMNS]
    return {call: (row[1].strip("–"), row[2]) for row in rows for call in re.findall(r"`[^`]+`", row[0])}


def test_built_in_functions_are_told_as_the_compiler_has_them():
    told = _told_built_ins()
    of_use = [row for row in _called_built_ins() if row["description"]["ta"]]
    assert of_use
    for row in of_use:
        assert told[_call(row)] == (_cell(row["value"]), _cell(row["description"]))


def test_all_built_in_functions_are_told():
    names = {re.search(r"([^`.]+)\(", call)[1] for call in _told_built_ins()}
    assert names == {row["name"] for row in _called_built_ins()}


def _called_built_ins():
    return [row for row in _vocabulary()["builtins"] if row["form"] in CALLED_FORMS]


def test_colour_words_are_listed():
    page = (guide.WEB_GUIDE / "விட்ஜெட்டுகள்.md").read_text(encoding="utf-8")
    listed = re.search(r"^\*\*நிறங்கள்:\*\*.*$", page, re.MULTILINE)[0]
    words = re.findall(r'`"([^"#]+)"`', listed)
    assert sorted(words) == sorted(row["word"] for row in _vocabulary()["colours"])


def test_curves_are_listed_with_their_families():
    rows = [row for row in guide.table_rows(guide.WEB_GUIDE / "அசைவூட்டம்.md") if len(row) == CURVE_COLUMNS]
    told = {name: row[0] for row in rows for name in re.findall(r"`([^`]+)`", row[1])}
    curves = {row["name"]: _cell(row["family"]) for row in _vocabulary()["curves"]}
    listed = {name: family for name, family in told.items() if name in curves}
    assert len(listed) == NAMED_CURVES
    assert listed == {name: curves[name] for name in listed}


def test_reserved_words_are_listed():
    words = sorted({row["word"] for row in _vocabulary()["keywords"]})
    listed = guide.words(guide.GUIDE / "03_பெயர்கள்.md")
    assert len(listed) == len(set(listed))
    with ThreadPoolExecutor() as workers:
        refused = [word for word, bad in zip(words, workers.map(_is_refused, words)) if bad]
    assert refused == sorted(listed)


def _is_refused(word):
    path = REPOSITORY / f"நிரல்{cf.SOURCE_SUFFIX}"  # isn't written: the case holds its source
    case = cf.Case(path, f"{word} = 1\n".encode(), cf.Expectation(), None)
    return run_case(case, compiler_path(), with_program=False).diagnostic is not None
