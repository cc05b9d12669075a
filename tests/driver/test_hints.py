"""Hints: what surely isn't meant is told on standard error, once the program has ended or the page is built."""

import pytest

from support import texts as t
from support.console import behind_animation, failed_build_line, hint_lines
from support.server import ADDRESS
from support.workplace import HELLO

SOURCE = "நிரல்.பொழில்"
MISSPELT = "மொத்தம் = 5\nஅச்சிடு(மொதம்)\n"
MISSPELT_PAGE = """வலைதளம் (
    தலைமை()
    குமரி()
    வரையறை(
        அ = () => மொதம்
    )
)
"""


def hints(errors):
    return [hint.partition(":")[0] for hint in hint_lines(errors, SOURCE)[0]]


def test_a_hint_stands_after_what_the_program_says(real_place):
    result = real_place.compile(MISSPELT)
    assert behind_animation(result.out, SOURCE) == "[தெரியாத வகை]\n"
    shown, rest = hint_lines(result.err, SOURCE)
    assert (result.status, len(shown), rest) == (0, 1, "")
    assert shown[0].startswith("வரி 2: 'மொதம்' ")


def test_hints_come_last(place, tools):
    tools.links("echo நிரல் >&2; exit 3")
    place.write(SOURCE, MISSPELT)
    lines = place.run(SOURCE).err.splitlines()
    assert lines[0] == "நிரல்" and lines[1].startswith(t.HINT_BEFORE) and len(lines) == 2


def test_a_hint_follows_a_failed_build(place, tools):
    tools.fails()
    place.write(SOURCE, MISSPELT)
    shown, rest = hint_lines(place.run(SOURCE).err, SOURCE)
    assert (len(shown), rest) == (1, failed_build_line())


def test_no_hint_without_need(real_place):
    assert real_place.compile(HELLO).err == ""


def test_no_hint_beside_a_diagnostic(place):
    place.write(SOURCE, MISSPELT + ")\n")
    result = place.run(SOURCE)
    assert (result.status, result.err) == (1, "")


@pytest.mark.parametrize("value, count", [("0", 0), ("1", 1), ("", 1)])
def test_hints_can_be_switched_off(place, value, count):
    place.env["POZHIL_HINTS"] = value
    place.write(SOURCE, MISSPELT)
    assert len(hints(place.run(SOURCE).err)) == count


def test_each_change_brings_its_own_hints(place):
    place.write(SOURCE)
    with place.session(SOURCE, t.FLAG_WATCH) as session:
        session.wait_for_output(t.ANIMATION_BEHIND)
        place.change_until(session, SOURCE, MISSPELT)
        session.wait_for_errors("வரி 2: ")
        assert hints(session.stderr.decode()) == ["வரி 2"]


@pytest.mark.usefixtures("port")
def test_a_page_has_its_hints_after_the_messages_of_the_build(installed_place, tools):
    tools.builds_pages()
    installed_place.write(SOURCE, MISSPELT_PAGE)
    with installed_place.session(SOURCE) as session:
        session.wait_for_output(ADDRESS)
        session.wait_for_errors("வரி 5: ")
        assert hints(session.stderr.decode()) == ["வரி 5"]
        installed_place.change_until(session, SOURCE, "\n" + MISSPELT_PAGE)
        session.wait_for_output(t.WEB_UPDATED)
        session.wait_for_errors("வரி 6: ")
        assert hints(session.stderr.decode()) == ["வரி 5", "வரி 6"]
