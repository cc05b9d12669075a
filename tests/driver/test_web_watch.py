"""Watching an application: it is built anew whenever its source changes, and the page learns of it."""

import re
import shutil
import signal
import socket

import pytest

from support import texts as t
from support.box import split_compiler_box
from support.server import PORT, get
from support.web_console import UPDATED
from support.workplace import HELLO, WRONG

pytestmark = pytest.mark.usefixtures("port")

SOURCE = "அ.பொழில்"
CHANGED = 'அச்சிடு("மாற்றம்")\n'


@pytest.fixture
def web_place(place, tools):
    tools.builds_pages()
    place.write(SOURCE, HELLO)
    return place


@pytest.fixture
def session(web_place):
    """A compiler that has built the application and is about to wait for a change."""
    with web_place.session(SOURCE, t.FLAG_WEB) as running:
        get("/version")
        yield running


def page_version():
    return int(re.search(r"let currentVersion = (\d+);", get()[1]).group(1))


def shown_behind_start(session):
    return session.stdout.decode().partition(t.WEB_OPENING)[2]


def test_change_is_built_and_the_version_grows(session, web_place, tools):
    assert (get("/version")[1], page_version()) == ("2", 2)
    for number in (3, 4):
        web_place.change_until(session, SOURCE, CHANGED, age=-10 * number)
        session.wait_until(lambda: get("/version")[1] == str(number))
        assert page_version() == number
    session.wait_until(lambda: session.stdout.decode().count(UPDATED) == 2)
    announced = t.WEB_CHANGE_NOTE
    assert shown_behind_start(session) == (announced + "\n" + UPDATED) * 2
    assert session.stderr == b""
    assert "மாற்றம்" in (web_place.work_directory / t.EMITTED_WEB_NAME).read_text(encoding="utf-8")
    assert len(tools.calls("em++")) == 3


def test_number_stays_until_the_build_is_done(session, web_place, tools, scratch):
    """The page already asks for the new number, while the files may still be the old ones."""
    done = scratch / "done"
    tools.stands_in_for("em++", f'until [ -e "{done}" ]; do /bin/sleep 0.05; done; echo new > "$out"')
    web_place.change_until(session, SOURCE, CHANGED)
    session.wait_until(lambda: len(tools.calls("em++")) == 2)
    assert (get("/version")[1], page_version()) == ("2", 3)
    done.touch()
    session.wait_for_output(UPDATED)
    assert (get("/version")[1], page_version()) == ("3", 3)
    assert get("/index.js") == (200, "new\n")


def test_failed_build_keeps_the_version_and_the_watch_goes_on(session, web_place, tools):
    tools.stands_in_for("em++", "exit 1")
    web_place.change_until(session, SOURCE, CHANGED)
    session.wait_for_output(t.WEB_COMPILATION_HINT)
    assert get("/version") == (200, "2")
    assert page_version() == 3
    tools.builds_pages()
    web_place.change_until(session, SOURCE, HELLO, age=-20)
    session.wait_for_output(UPDATED)
    assert get("/version") == (200, "3")
    assert t.WEB_FAILURE not in session.stdout.decode()


def test_failed_first_build_is_made_good_by_a_change(web_place, tools):
    tools.stands_in_for("em++", "exit 1")
    with web_place.session(SOURCE, t.FLAG_WEB) as session:
        assert get("/version") == (200, "1")
        tools.builds_pages()
        web_place.change_until(session, SOURCE, CHANGED)
        session.wait_for_output(UPDATED)
        assert (get("/version")[1], page_version()) == ("2", 2)
        assert t.WEB_OPENING not in session.stdout.decode()


def test_removed_output_directory_is_made_again(session, web_place):
    for path in web_place.web_directory.iterdir():
        path.unlink()
    web_place.web_directory.rmdir()
    web_place.change_until(session, SOURCE, CHANGED)
    session.wait_for_output(UPDATED)
    assert get("/index.js") == (200, "js\n")


def test_removed_working_directory_is_made_again(session, web_place):
    shutil.rmtree(web_place.work_directory)
    web_place.change_until(session, SOURCE, CHANGED)
    session.wait_until(lambda: get("/version")[1] == "3")
    assert "மாற்றம்" in (web_place.work_directory / t.EMITTED_WEB_NAME).read_text(encoding="utf-8")
    assert session.stderr == b""


def test_diagnostic_ends_watch_and_server(session, web_place, tools):
    web_place.change_until(session, SOURCE, WRONG)
    assert session.wait_for_end() == 1
    shown, report = split_compiler_box(session.stdout.decode())
    assert shown.endswith(t.WEB_CHANGE_NOTE + "\n")
    assert report.code == t.CODE_PREFIX + "113"
    with pytest.raises(ConnectionRefusedError):
        get(patience=0)
    assert len(tools.calls("em++")) == 1


def test_source_that_gains_a_marker_is_told_in_pages_too(session, web_place, tools):
    web_place.change_until(session, SOURCE, "ஃ பொழில் 2\n" + CHANGED)
    session.wait_for_errors("'ஃ பொழில் 2' இப்போது உள்ளது!")
    session.wait_until(lambda: "முனையத்தில்" in get("/version/fault")[1])
    assert len(tools.calls("em++")) == 1
    web_place.change_until(session, SOURCE, CHANGED, age=-20)
    session.wait_for_output(UPDATED)
    assert get("/version/fault")[1] == "{}"


def test_watch_goes_on_without_a_server(web_place):
    with socket.create_server(("", PORT)), web_place.session(SOURCE, t.FLAG_WEB) as session:
        session.wait_until(lambda: t.WEB_PORT_TAKEN.encode() == session.stderr)
        web_place.change_until(session, SOURCE, CHANGED)
        session.wait_for_output(UPDATED)
        assert session.stderr.decode() == t.WEB_PORT_TAKEN


def test_interrupt_says_goodbye(session):
    session.process.send_signal(signal.SIGINT)
    assert session.wait_for_end() == 0
    assert session.stdout.decode().endswith(t.WEB_OPENING + t.WEB_GOODBYE)
    with pytest.raises(ConnectionRefusedError):
        get(patience=0)


def test_vanished_source_ends_the_watch(session, web_place):
    (web_place.folder / SOURCE).unlink()
    assert session.wait_for_end() != 0


def test_watch_flag_changes_nothing(web_place, tools):
    with web_place.session(SOURCE, t.FLAG_WEB, t.FLAG_WATCH) as session:
        assert get("/version") == (200, "2")
        session.wait_for_output(t.WEB_OPENING)
    assert len(tools.calls("em++")) == 1
