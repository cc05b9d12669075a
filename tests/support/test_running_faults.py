"""Every fault of a running program has a language case that is called by its number: it can be caught, பிழை is its message,
and uncaught it is shown with its box and ends the program with status 1."""

import re

import pytest

from support import case_file as cf
from support.catalogue import SECOND_DESCRIPTIONS, second_description_fits
from support.compiler import REPOSITORY

CASES = REPOSITORY / "tests" / "language" / "ஓடும்போது_பிழைகள்"

NUMBERS = sorted(int(code.rpartition("-")[2]) for code in SECOND_DESCRIPTIONS)
# What is wrong in the source of a web application has its numbers among those of running programs.
APPLICATIONS = range(624, 640)
RUNNING = [number for number in NUMBERS if number >= 601 and number not in APPLICATIONS]

WITHOUT_PROGRAM = {
    617: "only properties of widgets ask for it",
    661: "the analysis knows every construction, and refuses that of an abstract structure",
    675: "only a page has no input",
    684: "only a page can't wait",
    685: "only the work of a page is stopped",
    690: "only controls of pages are bound to variables",
    691: "only a test fails so, and பிடி doesn't catch that",
    692: "only a test fails so, and பிடி doesn't catch that",
    693: "told of a test before it is built",
    699: "a mistake of the engine, which no program knows how to make",
}


@pytest.mark.parametrize("number", RUNNING)
def test_it_can_be_caught_and_is_told(number):
    path = CASES / f"{number}{cf.SOURCE_SUFFIX}"
    assert path.is_file() != (number in WITHOUT_PROGRAM)
    if number in WITHOUT_PROGRAM:
        return
    case = cf.read_case(path)
    assert re.search("^முயற்சி:\n    தவறு\\(\\)\nபிடி:\n    அச்சிடு\\(பிழை\\)\nதவறு\\(\\)\n", case.source.decode(), re.MULTILINE)
    assert case.expectation.runtime.code == f"பொழி-{number}"
    (message,) = case.expectation.texts(cf.OUTPUT)
    assert second_description_fits(f"பொழி-{number}", message)
    assert case.expectation.status == 1


def test_no_case_has_a_number_of_its_own():
    assert {int(path.stem) for path in CASES.glob(f"*{cf.SOURCE_SUFFIX}")} <= set(RUNNING)
