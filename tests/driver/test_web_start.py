"""The first lines of a web build, up to the point where the page is put together."""

import pytest

from support import texts as t
from support.box import split_compiler_box
from support.web_console import RULE
from support.workplace import HELLO, WRONG

pytestmark = pytest.mark.usefixtures("port")

ANNOUNCED = t.WEB_START + RULE + t.WEB_ANALYSIS
STARTED = ANNOUNCED + t.WEB_DONE + t.WEB_INTERFACE


def first_lines(place, *arguments):
    with place.session(*arguments) as session:
        session.wait_for_output(t.WEB_INTERFACE)
        return session.stdout.decode()


@pytest.mark.parametrize("arguments", [
    [t.FLAG_WEB, "நிரல்.பொழில்"], ["நிரல்.பொழில்", t.FLAG_WEB], [t.FLAG_WATCH, "நிரல்.பொழில்", t.FLAG_WEB],
])
def test_start_is_announced(place, arguments):
    place.write("நிரல்.பொழில்", HELLO)
    assert first_lines(place, *arguments).startswith(STARTED)


def test_default_source(place):
    place.write(t.DEFAULT_SOURCE, HELLO)
    assert first_lines(place, t.FLAG_WEB).startswith(t.DEFAULT_SOURCE_NOTE + STARTED)


def test_diagnostic_stands_behind_the_announcement(place):
    place.write("நிரல்.பொழில்", WRONG)
    result = place.run("நிரல்.பொழில்", t.FLAG_WEB)
    before, report = split_compiler_box(result.out)
    assert (result.status, before, result.err) == (1, ANNOUNCED, "")
    assert (report.code, report.line) == (t.CODE_PREFIX + "113", 1)
