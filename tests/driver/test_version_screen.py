"""The version screen: what it shows, and that it is all that happens."""

import os
import re

import pytest

from support import texts as t
from support.console import without_colours

YELLOW = re.compile("\x1b\\[(1;)?[39]3m")
WHITE = "\x1b\\[(?:1;)?[39]7m"


@pytest.mark.parametrize("switch", t.VERSION_SWITCHES)
@pytest.mark.parametrize("before, behind", [
    ([], []), (["நிரல்.பொழில்"], []), ([], ["நிரல்.பொழில்"]), ([t.FLAG_WEB, t.FLAG_WATCH], ["--வேறு"]),
])
def test_switch_shows_the_screen_and_nothing_else(place, switch, before, behind):
    result = place.run(*before, switch, *behind)
    assert (result.status, result.err) == (0, "")
    assert result.stdout == place.run("-v").stdout
    assert os.listdir(place.folder) == []


def test_no_file_is_opened(place):
    """A pipe that nobody writes to would hold up whoever opens it."""
    os.mkfifo(place.folder / "நிரல்.பொழில்")
    os.mkfifo(place.folder / t.DEFAULT_SOURCE)
    assert place.run("நிரல்.பொழில்", "-v", timeout=10).status == 0


def test_box(place):
    lines = place.run("-v").out.split("\n")
    assert lines[0] == ""
    box = [without_colours(line) for line in lines[1:4]]
    assert lines[1].startswith(t.CYAN + "┌")
    assert re.fullmatch("┌─{44}┐", box[0])
    assert re.fullmatch("└─{44}┘", box[2])
    assert lines[3].endswith(t.RESET) or lines[4].startswith(t.RESET)
    left, right = box[1].split(t.VERSION_TITLE)
    assert left[0] == right[-1] == "│"
    assert left[1:].isspace() and right[:-1].isspace()
    assert abs(len(left) - len(right)) <= 3


def test_rows_behind_the_box(place):
    screen = place.run("-v").out
    rows = [line for line in screen.split("\n")[4:] if without_colours(line).strip()]
    motto, version, maker, platform, *closing = rows
    assert YELLOW.search(motto)
    assert re.search(f"{WHITE}\\s*{t.VERSION_LABEL}", version) and without_colours(version).endswith(t.VERSION_VALUE)
    assert re.search(f"{WHITE}\\s*{t.MAKER_LABEL}", maker)
    assert re.search(f"{WHITE}\\s*{t.PLATFORM_LABEL}", platform)
    assert re.fullmatch(r"\s*\S+\s*: \S.*", without_colours(platform))
    assert f"{platform}\n\n" in screen
    assert len(closing) == 3 and t.GREEN in screen[screen.index(platform):]
    assert screen.endswith("\n") and t.RESET in screen[screen.index(without_colours(closing[2]).strip()):]
