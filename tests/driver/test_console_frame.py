"""What the compiler shows before a program runs: the banner and the line that is written byte by byte."""

import os
import re
import subprocess
import time

import pytest

from support import texts as t
from support.box import split_compiler_box
from support.console import animation_line, behind_animation, failed_build_line, without_colours
from support.process import end_group, spawn
from support.toolchain import PROGRAM_OUTPUT
from support.workplace import HELLO, WRONG

SOURCE = "அ.பொழில்"
ANIMATION = animation_line(SOURCE).encode()


@pytest.fixture
def source(place):
    return place.write(SOURCE)


def test_output_of_a_plain_run(place, source):
    result = place.run(source)
    banner, line, rest = result.out.partition(animation_line(source))
    assert (result.status, rest, result.err) == (0, PROGRAM_OUTPUT, "")
    assert line and banner.endswith("\n\n")


def test_banner(place, source):
    banner, _, _ = place.run(source).out.partition(animation_line(source))
    rows = banner.split("\n")
    plain = [without_colours(row) for row in rows]
    assert len(rows) == 8 and rows[6:] == ["", ""]
    assert rows[0].startswith(t.BLUE)
    for row in (plain[0], plain[4]):
        assert re.fullmatch("[\u2500-\u257f]{58}", row)
    for row in (plain[1], plain[3]):
        assert re.fullmatch("[\u2500-\u257f] {56}[\u2500-\u257f]", row)
    assert re.fullmatch(f"[\u2500-\u257f] +{t.BANNER_NAME} +[\u2500-\u257f]", plain[2])
    assert re.search(re.escape(t.CYAN) + f" *{t.BANNER_NAME}", rows[2])
    assert rows[5].startswith(t.GREEN) and rows[5].endswith(t.RESET)
    assert re.search(f"{t.BANNER_VERSION}.*\\S", plain[5])


def test_nothing_but_the_box_is_shown_of_a_wrong_program(place):
    result = place.compile(HELLO + WRONG)
    before, report = split_compiler_box(result.out)
    assert (result.status, before, result.err) == (1, "", "")
    assert (report.code, report.category, report.line) == (t.CODE_PREFIX + "113", t.SCANNER_CATEGORY, 2)
    assert (report.file, report.source) == ("நிரல்.பொழில்", WRONG.rstrip("\n"))
    assert not place.emitted_path.exists()


@pytest.mark.parametrize("contents, told", [("\t", t.SCANNER_FAILED), ("நீளம்()\n", t.GENERATOR_FAILED)])
def test_nothing_but_a_line_is_shown_of_a_stage_that_fails_without_a_box(place, contents, told):
    result = place.compile(contents)
    assert (result.status, result.out, result.err) == (1, "", f"{t.RED}{told}{t.RESET}\n")


def test_compile_line_is_written_byte_by_byte(place, source):
    place.env["POZHIL_ANIMATION_MS"] = "5"
    pieces = timed_pieces(place, source)
    written = [(moment, piece) for moment, piece in pieces if piece in ANIMATION and b"\n" not in piece]
    letters = (t.ANIMATION_BEFORE + source + t.ANIMATION_BEHIND).encode()
    assert len(written) > len(letters) / 2
    assert 0.9 < (written[-1][0] - written[0][0]) / (0.005 * (len(letters) - 2)) < 3
    assert ANIMATION in b"".join(piece for _, piece in pieces)


def test_each_byte_takes_twenty_milliseconds_by_default(place, source):
    del place.env["POZHIL_ANIMATION_MS"]
    letters = (t.ANIMATION_BEFORE + source + t.ANIMATION_BEHIND).encode()
    pieces = timed_pieces(place, source)
    assert pieces[-1][0] - pieces[0][0] > 0.9 * 0.020 * len(letters)


def test_nothing_waits_without_a_delay(place, source):
    began = time.monotonic()
    place.run(source)
    assert time.monotonic() - began < 0.5 * 0.020 * len(ANIMATION)


def test_compiler_is_at_work_while_the_line_is_written(place, tools, source):
    place.env["POZHIL_ANIMATION_MS"] = "5"
    pieces = timed_pieces(place, source)
    letters = (t.ANIMATION_BEFORE + source).encode()
    shown = b""
    for moment, piece in pieces:
        shown += piece
        if letters in shown:
            break
    assert tools.started()[0] < moment


def test_words_of_the_toolchain_come_behind_the_line(place, tools, source):
    tools.fails("echo stdout; echo stderr >&2")
    place.env["POZHIL_ANIMATION_MS"] = "2"
    together = place.run(source, stderr=subprocess.STDOUT).out
    rest = behind_animation(together, source)
    assert sorted(rest.split("\n")) == sorted(["stdout", "stderr", *failed_build_line().split("\n")])
    assert rest.endswith(failed_build_line())
    separate = place.run(source)
    assert behind_animation(separate.out, source) == "stdout\n"
    assert separate.err == "stderr\n" + failed_build_line()


def timed_pieces(place, source):
    """What the compiler writes, piece by piece as it arrives, with the time of arrival."""
    read_end, write_end = os.pipe()
    process = spawn([place.compiler, source], cwd=place.folder, env=place.env, stdin=subprocess.DEVNULL,
                    stdout=write_end, stderr=subprocess.DEVNULL)
    os.close(write_end)
    pieces = []
    try:
        while piece := os.read(read_end, 65536):
            pieces.append((time.time(), piece))
    finally:
        os.close(read_end)
        end_group(process)
    return pieces
