"""A signal to the compiler alone, as `kill` sends it: nothing that it runs is left behind."""

import os
import pty
import re
import signal
import time
from contextlib import contextmanager
from pathlib import Path

import pytest

from support import texts as t
from support.console import animation_line
from support.process import Session
from support.server import get
from support.workplace import HELLO

SOURCE = "அ.பொழில்"
ENDING = [signal.SIGTERM, signal.SIGHUP, signal.SIGINT, signal.SIGQUIT]

# Writes its number, and is there until it is ended.
LINGERS = "echo $$ > running; exec sleep 60"
# As a toolchain does: what works is a program of its own.
LINGERS_BELOW = f"sh -c '{LINGERS}'; exit 1"

each_signal = pytest.mark.parametrize("number", ENDING, ids=lambda number: number.name)


@pytest.fixture(autouse=True)
def source(place):
    return place.write(SOURCE, HELLO)


def number_of(place):
    file = place.folder / "running"
    return int(file.read_text()) if file.exists() and file.read_text().endswith("\n") else None


def runs(number):
    """Whether there is such a process; one that waits to be collected has ended."""
    try:
        return re.search(r"\) (.)", Path(f"/proc/{number}/stat").read_text()).group(1) != "Z"
    except (FileNotFoundError, ProcessLookupError):
        return False


@contextmanager
def lingering(place, *arguments):
    """A compiler that waits for something that doesn't end by itself."""
    with place.session(SOURCE, *arguments) as session:
        if t.FLAG_WATCH in arguments:
            session.wait_for_output(animation_line(SOURCE))
            place.change_until(session, SOURCE, HELLO * 2)
        session.wait_until(lambda: number_of(place))
        yield session


def end_alone(session, number):
    session.process.send_signal(number)
    return session.wait_for_end(timeout=10)


@each_signal
@pytest.mark.parametrize("watch", [[], [t.FLAG_WATCH]], ids=["once", "watching"])
def test_running_program_is_ended_too(place, tools, number, watch):
    tools.links(LINGERS)
    with lingering(place, *watch) as session:
        assert end_alone(session, number) == -number
        session.wait_until(lambda: not runs(number_of(place)))


@each_signal
@pytest.mark.parametrize("watch", [[], [t.FLAG_WATCH]], ids=["once", "watching"])
def test_toolchain_is_ended_with_all_that_it_runs(place, tools, number, watch):
    tools.fails(LINGERS_BELOW)
    with lingering(place, *watch) as session:
        assert end_alone(session, number) == -number
        session.wait_until(lambda: not runs(number_of(place)))
        assert session.stderr == b""
    assert len(tools.calls()) == 1


def test_a_key_of_the_terminal_interrupts_the_program_once(place, tools):
    """It reaches the compiler and its program at the same time."""
    tools.links("trap 'echo >> interrupts' INT; echo $$ > running; until [ -e done ]; do sleep 0.3 & wait; done")
    terminal, end = pty.openpty()
    command = ["/usr/bin/setsid", "--ctty", place.compiler, SOURCE]
    with os.fdopen(end) as stdin, Session(command, cwd=place.folder, env=place.env, stdin=stdin) as session:
        session.wait_until(lambda: number_of(place))
        os.write(terminal, b"\x03")
        session.wait_until((place.folder / "interrupts").exists)
        (place.folder / "done").touch()
        session.wait_for_end(timeout=10)
    os.close(terminal)
    assert (place.folder / "interrupts").read_text() == "\n"


@pytest.mark.usefixtures("port")
def test_ignored_interrupt_does_not_end_the_server(place, tools):
    tools.builds_pages()
    command = ["/bin/sh", "-c", 'trap "" INT; exec "$0" "$@"', place.compiler, SOURCE, t.FLAG_WEB]
    with Session(command, cwd=place.folder, env=place.env) as session:
        session.wait_for_output(t.WEB_OPENING)
        session.process.send_signal(signal.SIGINT)
        assert not session.comes_true(lambda: session.process.poll() is not None, 0.5)


def test_program_that_tidies_up_is_waited_for(place, tools):
    tools.links("trap 'sleep 0.5; echo > tidied; exit' TERM; echo $$ > running; while :; do sleep 0.1; done")
    with lingering(place) as session:
        assert end_alone(session, signal.SIGTERM) == -signal.SIGTERM
        assert (place.folder / "tidied").exists()


def test_ignored_signal_stays_ignored(place, tools):
    tools.links(LINGERS)
    command = ["/bin/sh", "-c", 'trap "" HUP; exec "$0" "$@"', place.compiler, SOURCE]
    with Session(command, cwd=place.folder, env=place.env) as session:
        session.wait_until(lambda: number_of(place))
        session.process.send_signal(signal.SIGHUP)
        time.sleep(0.3)
        assert session.process.poll() is None and runs(number_of(place))


@pytest.mark.parametrize("number", [signal.SIGTERM, signal.SIGINT], ids=lambda number: number.name)
@pytest.mark.usefixtures("port")
def test_first_web_build_is_ended_with_all_that_it_runs(place, tools, number):
    tools.stands_in_for("em++", LINGERS_BELOW)
    with lingering(place, t.FLAG_WEB) as session:
        assert end_alone(session, number) == -number
        session.wait_until(lambda: not runs(number_of(place)))


@pytest.mark.usefixtures("port")
def test_interrupt_while_a_changed_application_is_built_says_goodbye(place, tools):
    tools.builds_pages()
    with place.session(SOURCE, t.FLAG_WEB) as session:
        get("/version")
        tools.stands_in_for("em++", LINGERS_BELOW)
        place.change_until(session, SOURCE, HELLO * 2)
        session.wait_until(lambda: number_of(place))
        assert end_alone(session, signal.SIGINT) == 0
        assert session.stdout.decode().endswith(t.WEB_GOODBYE)
        session.wait_until(lambda: not runs(number_of(place)))


@each_signal
def test_colours_are_off_after_the_compile_line_was_interrupted(place, number):
    place.env["POZHIL_ANIMATION_MS"] = "200"
    with place.session(SOURCE) as session:
        session.wait_for_output(t.CYAN + t.ANIMATION_BEFORE[:1])
        assert end_alone(session, number) == -number
        assert session.stdout.decode("utf-8", "ignore").endswith(t.RESET)


def test_no_colour_is_switched_off_while_the_program_runs(place, tools):
    tools.links("echo began; " + LINGERS)
    with lingering(place) as session:
        end_alone(session, signal.SIGTERM)
        assert session.stdout.decode().endswith("began\n")
