"""Watching an application of the second edition: it outlives every fault, and open pages are told what is wrong."""

import json
import re
import shutil
import signal
import time

import pytest

from support import texts as t
from support.console import without_colours
from support.second_box import split_boxes
from support.server import get
from support.web_console import BEFORE_BUILD, SECOND_FAILURE, SUCCESS, UPDATED

pytestmark = pytest.mark.usefixtures("port")

SOURCE = "அ.பொழில்"
MARKER = "ஃ பொழில் 2\n"
MODULE = "ஆ.பொழில்"
IMPORT = 'நூஇறக்கி "ஆ"\n'
FUNCTION = "செயல் பாதி(எ):\n    திரும்பு எ வகு 2\n"
CONSOLE = MARKER + "அச்சிடு(1)\n"
NO_FAULT = {}
UNTOLD = ("", "", 0)


def application(text="வணக்கம்", before="", logic=""):
    return (f'{MARKER}{before}வலைதளம் தளம்(\n    தலைமை(இணைய_தலைப்பு: "{text}")\n    குமரி(உரை("{text}"))\n'
            f"    வரையறை(\n{logic}    )\n)\n")


GOOD = application()
FAULTY = application(logic="        அ = இல்லாதது\n")


def fault():
    return json.loads(get("/version/fault")[1])


def place_of_fault():
    told = fault()
    return (told["code"], told["file"], told["line"]) if told else None


def page_version():
    return int(re.search(r"let currentVersion = (\d+);", get()[1]).group(1))


class Watched:
    """A compiler that has built the application and is about to wait for a change."""

    def __init__(self, place, session, tools):
        self.place, self.session, self.tools = place, session, tools
        self.changes = 0

    def change(self, contents):
        self.changes += 1
        self.place.change_until(self.session, SOURCE, contents, age=-10 * self.changes)

    def builds(self):
        return len(self.tools.calls("em++"))

    def is_built(self, contents, number):
        """A change of the source becomes this version, and takes back what pages were told."""
        self.change(contents)
        self.session.wait_until(lambda: get("/version")[1] == str(number))
        assert (fault(), page_version()) == (NO_FAULT, number)

    def is_told(self, contents, place):
        """A change of the source isn't built; this place is what pages are told of it. What stood before stays."""
        before = self.builds(), get()[1], get("/version")[1], get("/index.js")
        self.change(contents)
        self.session.wait_until(lambda: place_of_fault() == place)
        assert (self.builds(), get()[1], get("/version")[1], get("/index.js")) == before
        return fault()["description"]


@pytest.fixture
def web_place(place, tools):
    tools.builds_pages()
    place.write(SOURCE, GOOD)
    return place


@pytest.fixture
def watched(web_place, tools):
    with web_place.session(SOURCE) as session:
        get("/version")
        yield Watched(web_place, session, tools)
        assert session.process.poll() is None


def shown_after_start(session):
    return without_colours(session.stdout.decode().partition(t.WEB_OPENING)[2])


def test_changes_are_built_and_told(watched):
    for number in (3, 4):
        watched.is_built(application(str(number)), number)
        assert f"<title>{number}</title>" in get()[1]
    assert watched.session.stdout.decode() == BEFORE_BUILD + SUCCESS + (t.WEB_CHANGE_NOTE + "\n" + UPDATED) * 2
    assert watched.session.stderr == b""
    emitted = watched.place.directory_of(SOURCE) / t.EMITTED_WEB_NAME
    assert '"4"' in emitted.read_text(encoding="utf-8")


def test_fault_reaches_the_page_and_the_next_good_source_takes_it_back(watched):
    told = watched.is_told(FAULTY, ("பொழி-551", SOURCE, 6))
    assert "'இல்லாதது'" in told and "\n" not in told
    before, boxes = split_boxes(watched.session.stdout.decode())
    assert before.endswith(t.WEB_CHANGE_NOTE + "\n")
    assert [(box.code, box.line) for box in boxes] == [("பொழி-551", 6)]
    watched.is_built(application("சரி"), 3)


def test_one_fault_takes_the_place_of_another(watched):
    watched.is_told(FAULTY, ("பொழி-551", SOURCE, 6))
    watched.is_told(application(before="அ = 1\n", logic="        அ = இல்லாதது\n"), ("பொழி-551", SOURCE, 7))
    watched.is_told(GOOD.replace("உரை(", "உரைய("), ("பொழி-627", SOURCE, 4))
    watched.is_built(GOOD, 3)


def test_page_is_told_how_many_faults_there_are(watched):
    lines = [f"        அ = இல்லாதது{number}\n" for number in range(12)]
    for count, more in ((2, "ஒரு பிழை உள்ளது"), (3, "2 பிழைகள் உள்ளன"), (12, "10 பிழைகளாவது உள்ளன")):
        told = watched.is_told(application(before="\n" * count, logic="".join(lines[:count])),
                               ("பொழி-551", SOURCE, 6 + count))
        assert told.endswith(f"\nஇன்னும் {more}; {t.TOLD_IN_THE_CONSOLE} பார்க்கவும்.")
    watched.is_built(GOOD, 3)


def test_fault_of_an_import_names_its_file(watched):
    watched.place.write(MODULE, FUNCTION)
    watched.is_built(application(before=IMPORT), 3)
    watched.place.write(MODULE, FUNCTION + "செயல் தவறு():\n    திரும்பு இல்லாதது\n")
    watched.is_told(application("இரண்டு", before=IMPORT), ("பொழி-551", MODULE, 4))
    watched.place.write(MODULE, FUNCTION)
    watched.is_built(application("மூன்று", before=IMPORT), 4)


def test_import_that_cannot_be_read_is_told_and_may_come_back(watched):
    module = watched.place.folder / MODULE
    module.write_text(FUNCTION, encoding="utf-8")
    watched.is_built(application(before=IMPORT), 3)
    module.unlink()
    watched.is_told(application("இரண்டு", before=IMPORT), ("பொழி-545", SOURCE, 2))
    module.mkdir()
    watched.is_told(application("மூன்று", before="\n" + IMPORT), ("பொழி-545", SOURCE, 3))
    module.rmdir()
    module.write_text(FUNCTION, encoding="utf-8")
    watched.is_built(application("நான்கு", before=IMPORT), 4)


def test_source_that_vanishes_may_come_back(watched):
    (watched.place.folder / SOURCE).unlink()
    time.sleep(1.5)
    assert watched.session.process.poll() is None
    watched.is_built(application("மீண்டும்"), 3)
    assert watched.session.stderr == b""


def test_application_that_goes_is_told_and_comes_back(watched):
    assert t.TOLD_IN_THE_CONSOLE in watched.is_told(CONSOLE, UNTOLD)
    watched.session.wait_for_errors(t.NO_APPLICATION_NOW)
    watched.is_built(application("மீண்டும்"), 3)
    assert watched.session.stderr.decode() == t.NO_APPLICATION_NOW
    assert watched.tools.calls("g++") == []


@pytest.mark.parametrize("source", [MARKER, MARKER.strip()])
def test_marker_alone_is_a_source_without_an_application(watched, source):
    watched.is_told(source, UNTOLD)
    watched.session.wait_for_errors(t.NO_APPLICATION_NOW)
    watched.is_built(GOOD, 3)


def test_marker_that_goes_is_told_and_comes_back(watched):
    assert t.TOLD_IN_THE_CONSOLE in watched.is_told(GOOD.removeprefix(MARKER), UNTOLD)
    watched.session.wait_for_errors(t.NO_MARKER_NOW)
    watched.is_built("\ufeff" + GOOD.replace("\n", "\r\n"), 3)
    assert watched.session.stderr.decode() == t.NO_MARKER_NOW


def test_empty_source_is_one_without_a_marker(watched):
    """As an editor leaves it that empties the file before it writes."""
    watched.is_told("", UNTOLD)
    watched.session.wait_for_errors(t.NO_MARKER_NOW)
    watched.is_built(GOOD, 3)


def test_marker_with_a_fault_is_told_with_its_place(watched):
    watched.is_told(GOOD.replace("2", "3", 1), ("பொழி-501", SOURCE, 1))
    watched.is_told("\n" + GOOD, ("பொழி-503", SOURCE, 2))
    watched.is_built(GOOD, 3)


def test_console_program_that_becomes_an_application_is_told(web_place, tools):
    """It is watched as what it began as."""
    web_place.write(SOURCE, CONSOLE)
    with web_place.session(SOURCE, t.FLAG_WATCH) as session:
        session.wait_for_output(t.ANIMATION_BEFORE)
        web_place.change_until(session, SOURCE, GOOD)
        session.wait_for_errors("'வலைதளம்' இப்போது உள்ளது! அதை நீக்கு")
        assert tools.calls() == [] == tools.calls("em++")
        web_place.change_until(session, SOURCE, CONSOLE, age=-20)
        session.wait_until(lambda: len(tools.calls()) == 1)


def test_text_that_em_refuses_reaches_the_page(watched, tools):
    tools.stands_in_for("em++", 'line=$(/bin/grep -n -m1 -F "print({7LL})" "$1" | /usr/bin/cut -d: -f1)\n'
                                'if [ "$line" ]; then echo "$1:$line:5: error: strange words" >&2; exit 1; fi\necho > "$out"')
    watched.change(application(logic="        அச்சிடு(7)\n"))
    watched.session.wait_until(lambda: place_of_fault() == ("", SOURCE, 6))
    assert fault()["description"].startswith(t.OUR_FAULT)
    assert get("/version") == (200, "2")
    watched.session.wait_until(
        lambda: f"{SOURCE}, வரி 6\n     6 |  அச்சிடு(7)\n" in without_colours(watched.session.stderr.decode()))
    assert shown_after_start(watched.session) == t.WEB_CHANGE_NOTE + "\n"
    watched.is_built(application(logic="        அச்சிடு(8)\n"), 3)


def test_failed_first_build_is_made_good_by_a_change(web_place, tools):
    tools.stands_in_for("em++", "exit 1")
    with web_place.session(SOURCE) as session:
        session.wait_for_output(SECOND_FAILURE)
        assert get("/version") == (200, "1")
        tools.builds_pages()
        Watched(web_place, session, tools).is_built(application("சரி"), 2)


def test_hints_follow_each_build(watched):
    def hints():
        return [line.partition(" வரி ")[2][:2] for line in watched.session.stderr.decode().splitlines()]

    slip = "        செயல் எண்ணு(மொத்தம்):\n            மொத்தமம் = 1\n            திரும்பு மொத்தம்\n"
    watched.is_built(application(logic=slip), 3)
    watched.session.wait_until(lambda: hints() == ["7:"])
    watched.is_told(FAULTY, ("பொழி-551", SOURCE, 6))
    watched.is_built(application(before="\n", logic=slip), 4)
    watched.session.wait_until(lambda: hints() == ["7:", "8:"])


def test_removed_directories_are_made_again(watched):
    shutil.rmtree(watched.place.work_directory)
    shutil.rmtree(watched.place.web_directory)
    watched.is_built(application("மீண்டும்"), 3)
    assert get("/index.js") == (200, "js\n")
    assert watched.session.stderr == b""


def test_interrupt_says_goodbye_after_a_fault(web_place, tools):
    with web_place.session(SOURCE) as session:
        get("/version")
        Watched(web_place, session, tools).is_told(FAULTY, ("பொழி-551", SOURCE, 6))
        session.process.send_signal(signal.SIGINT)
        assert session.wait_for_end() == 0
        assert session.stdout.decode().endswith(t.WEB_GOODBYE)
        with pytest.raises(ConnectionRefusedError):
            get(patience=0)
