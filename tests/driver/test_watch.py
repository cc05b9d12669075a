"""Watching a console program: it is built anew whenever its source changes."""

import shutil
import time
from contextlib import contextmanager

import pytest

from support import texts as t
from support.box import split_compiler_box
from support.console import animation_line, behind_animation, failed_build_line
from support.toolchain import PROGRAM_OUTPUT
from support.workplace import HELLO, WRONG

SOURCE = "அ.பொழில்"
CHANGED = 'அச்சிடு("மாற்றம்")\n'

# Longer than the pause between two looks at the source.
A_WHILE = 0.8


@contextmanager
def watching(place, contents=HELLO):
    """A compiler that has compiled `contents` and is about to wait for a change."""
    place.write(SOURCE, contents)
    with place.session(SOURCE, t.FLAG_WATCH) as session:
        session.wait_for_output(animation_line(SOURCE))
        yield session


def count(session, text):
    return session.stdout.decode().count(text)


@pytest.mark.parametrize("arguments", [[SOURCE, t.FLAG_WATCH], [t.FLAG_WATCH, SOURCE]])
def test_nothing_is_built_before_the_first_change(place, tools, arguments):
    place.write(SOURCE)
    with place.session(*arguments) as session:
        session.wait_for_output(animation_line(SOURCE))
        time.sleep(A_WHILE)
        assert session.process.poll() is None
        assert behind_animation(session.stdout.decode(), SOURCE) == ""
        assert "வணக்கம்" in place.own_emitted
    assert tools.calls() == []


def test_default_source_is_watched(place):
    place.write(t.DEFAULT_SOURCE)
    with place.session(t.FLAG_WATCH) as session:
        session.wait_for_output(animation_line(t.DEFAULT_SOURCE))
        assert session.stdout.decode().startswith(t.DEFAULT_SOURCE_NOTE)


def test_change_is_announced_built_and_run(place, tools):
    with watching(place) as session:
        place.change_until(session, SOURCE, CHANGED)
        session.wait_for_output(PROGRAM_OUTPUT)
        shown = behind_animation(session.stdout.decode(), SOURCE)
        assert shown in (t.CHANGE_NOTE + PROGRAM_OUTPUT, t.CHANGE_NOTE + "\n" + PROGRAM_OUTPUT)
        assert session.stderr == b""
    assert "மாற்றம்" in place.own_emitted
    assert len(tools.calls()) == 1


def test_source_that_became_older_has_changed_too(place):
    with watching(place) as session:
        place.change_until(session, SOURCE, CHANGED, age=1000)
        session.wait_for_output(PROGRAM_OUTPUT)


def test_every_change_is_built(place, tools):
    with watching(place) as session:
        for number in (1, 2, 3):
            place.change_until(session, SOURCE, CHANGED, age=-10 * number)
            session.wait_until(lambda: count(session, PROGRAM_OUTPUT) == number)
        time.sleep(A_WHILE)
        assert count(session, t.CHANGE_NOTE) == 3
    assert len(tools.calls()) == 3


def test_failed_link_is_told_and_watching_goes_on(place, tools):
    tools.fails()
    with watching(place) as session:
        place.change_until(session, SOURCE, CHANGED)
        session.wait_until(lambda: session.stderr.decode().endswith(failed_build_line()))
        tools.links()
        place.change_until(session, SOURCE, HELLO, age=-20)
        session.wait_for_output(PROGRAM_OUTPUT)


@pytest.mark.parametrize("wrong, told", [
    ("\t", t.SCANNER_FAILED_IN_WATCH), ("நீளம்()\n", f"{t.GENERATOR_FAILED_IN_WATCH}{t.CODE_PREFIX}331: "),
])
def test_exception_of_a_stage_is_told_with_its_cause_and_watching_goes_on(place, tools, wrong, told):
    with watching(place) as session:
        place.change_until(session, SOURCE, wrong)
        session.wait_until(lambda: session.stderr.endswith(b"\n"))
        message = session.stderr.decode()
        assert message.startswith(told) and len(message.rstrip()) > len(told)
        assert tools.calls() == []
        place.change_until(session, SOURCE, HELLO, age=-20)
        session.wait_for_output(PROGRAM_OUTPUT)


def test_change_of_an_imported_file_is_not_seen(place, tools):
    place.write("துணை.பொழில்", HELLO)
    with watching(place, 'நூஇறக்கி "துணை"\n') as session:
        place.change("துணை.பொழில்", CHANGED)
        time.sleep(A_WHILE)
        assert t.CHANGE_NOTE not in session.stdout.decode()
        place.change_until(session, SOURCE, 'நூஇறக்கி "துணை"\n', age=-20)
        session.wait_for_output(PROGRAM_OUTPUT)
    assert "மாற்றம்" in place.own_emitted


def test_changes_wait_until_the_running_program_has_ended(place, tools, scratch):
    done = scratch / "done"
    tools.links(f'until [ -e "{done}" ]; do /bin/sleep 0.05; done')
    with watching(place) as session:
        place.change_until(session, SOURCE, CHANGED)
        session.wait_until(lambda: len(tools.calls()) == 1)
        place.change(SOURCE, HELLO, age=-20)
        time.sleep(A_WHILE)
        assert count(session, t.CHANGE_NOTE) == 1
        done.touch()
        session.wait_until(lambda: count(session, t.CHANGE_NOTE) == 2)


def test_working_directory_that_was_removed_is_made_again(place, tools):
    with watching(place) as session:
        shutil.rmtree(place.work_directory)
        place.change_until(session, SOURCE, CHANGED)
        session.wait_for_output(PROGRAM_OUTPUT)
        assert session.stderr == b""
    assert "மாற்றம்" in place.own_emitted


def test_diagnostic_ends_the_watch(place, tools):
    with watching(place) as session:
        place.change_until(session, SOURCE, WRONG)
        assert session.wait_for_end() == 1
        shown, report = split_compiler_box(session.stdout.decode())
        assert behind_animation(shown, SOURCE) in (t.CHANGE_NOTE, t.CHANGE_NOTE + "\n")
        assert report.code == t.CODE_PREFIX + "113"
    assert tools.calls() == []


def test_wrong_program_is_not_watched(place):
    place.write(SOURCE, WRONG)
    result = place.run(SOURCE, t.FLAG_WATCH, timeout=10)
    before, report = split_compiler_box(result.out)
    assert (result.status, before, report.code) == (1, "", t.CODE_PREFIX + "113")


def test_vanished_source_ends_the_watch(place):
    with watching(place) as session:
        (place.folder / SOURCE).unlink()
        assert session.wait_for_end() != 0
