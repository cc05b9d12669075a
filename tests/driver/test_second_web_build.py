"""Applications of the second edition: the way from the source to the served page, and what ends it on the way."""

import pytest

from support import texts as t
from support.console import output_error_line, without_colours
from support.second_box import split_boxes
from support.server import get
from support.web_console import BEFORE_BUILD, SECOND_FAILURE, SUCCESS

pytestmark = pytest.mark.usefixtures("port")

SOURCE = "அ.பொழில்"
MARKER = "ஃ பொழில் 2\n"
HELLO = MARKER + 'அச்சிடு("வணக்கம்")\n'
OUR_FAULT = f"பிழை: {t.OUR_FAULT}: உருவான C++ உரையை em++ ஏற்கவில்லை.\n"
NO_APPLICATION = f"பிழை: '{SOURCE}{t.NO_WEB_APPLICATION_BEHIND}"


def application(body='உரை("வணக்கம்")', logic="", header="", marker=MARKER):
    return f"{marker}வலைதளம் தளம்(\n    தலைமை({header})\n    குமரி({body})\n    வரையறை(\n{logic}    )\n)\n"


@pytest.fixture
def web_place(installed_place, tools):
    """A working directory with an application, for a copy of the installation whose em++ succeeds."""
    tools.builds_pages()
    installed_place.write(SOURCE, application())
    return installed_place


def emitted(place, source=SOURCE):
    return (place.directory_of(source) / t.EMITTED_WEB_NAME).read_text(encoding="utf-8")


def refuses_line(tools, piece, source=SOURCE):
    """From now on em++ refuses the first line of the emitted text that holds `piece`."""
    tools.stands_in_for("em++", f'line=$(/bin/grep -n -m1 -F \'{piece}\' "$1" | /usr/bin/cut -d: -f1)\n'
                                'echo "$1:${line:?}:5: error: strange words" >&2; exit 1')


# A good build.


@pytest.mark.parametrize("flags", [[], [t.FLAG_WEB], [t.FLAG_WATCH], [t.FLAG_WATCH, t.FLAG_WEB]])
def test_what_a_good_build_shows(web_place, flags):
    with web_place.session(SOURCE, *flags) as session:
        session.wait_for_output(t.WEB_OPENING)
        assert get("/version") == (200, "2")
        assert (session.stdout.decode(), session.stderr) == (BEFORE_BUILD + SUCCESS, b"")


def test_default_source(web_place):
    web_place.write(t.DEFAULT_SOURCE, application('உரை("இயல்பு")'))
    with web_place.session() as session:
        session.wait_for_output(t.WEB_OPENING)
        assert session.stdout.decode() == t.DEFAULT_SOURCE_NOTE + BEFORE_BUILD + SUCCESS
    assert "இயல்பு" in emitted(web_place, t.DEFAULT_SOURCE)


@pytest.mark.parametrize("source", [
    MARKER.encode() + application(marker="").encode(), b"\xef\xbb\xbf" + application().encode(),
    application().replace("\n", "\r\n").encode(), b"\xef\xbb\xbf" + application().replace("\n", "\r\n").encode(),
    application(marker="ஃ   பொழில் ௨  \n").encode(),
], ids=["plain", "byte order mark", "carriage returns", "both", "blanks and a Tamil digit"])
def test_marker_may_be_written_in_any_way(web_place, installation, tools, source):
    web_place.write(SOURCE, source)
    with web_place.session(SOURCE) as session:
        session.wait_for_output(t.WEB_OPENING)
    assert tools.calls("em++") == [installation.web_call(web_place, second=SOURCE)]


def test_call_of_the_toolchain(web_place, installation, tools):
    web_place.env["POZHIL_EMFLAGS"] = " -O1  '-DA=a b' "
    (web_place.folder / "assets").mkdir()
    for name in ("காணொளி.mp4", "படம்.png"):
        web_place.write(name, "")
    web_place.write(SOURCE, application('படம்(பாதை: "படம்.png")', header='பின்னணிகாணொளி: "காணொளி.mp4"'))
    with web_place.session(SOURCE) as session:
        session.wait_for_output(t.WEB_OPENING)
        assert session.stderr == b""
    packing = ["--preload-file", "assets", "--preload-file", "படம்.png", "--preload-file", "காணொளி.mp4"]
    assert tools.calls("em++") == [installation.web_call(web_place, packing, SOURCE) + ["-O1", "-DA=a b"]]
    assert tools.calls("g++") == []


@pytest.mark.parametrize("source", [SOURCE, "உள்ளே/அ.பொழில்", "./உள்ளே/../அ.பொழில்"])
def test_emitted_text_lies_in_the_place_of_its_source(web_place, tools, source):
    (web_place.folder / "உள்ளே").mkdir()
    web_place.write(source, application('உரை("இங்கே")'))
    with web_place.session(source) as session:
        session.wait_for_output(t.WEB_OPENING)
    plain = source.replace("./உள்ளே/../", "")
    assert "இங்கே" in emitted(web_place, plain)
    assert tools.calls("em++")[0][0] == str(web_place.directory_of(plain) / t.EMITTED_WEB_NAME)
    assert [path.name for path in web_place.work_directory.rglob("*.cpp")] == [t.EMITTED_WEB_NAME]


def test_text_of_a_source_elsewhere_lies_below_the_working_directory(web_place, scratch):
    (scratch / "வேறு").mkdir()
    web_place.write("../வேறு/அ.பொழில்", application('உரை("வேறு")'))
    with web_place.session("../வேறு/அ.பொழில்") as session:
        session.wait_for_output(t.WEB_OPENING)
    assert "வேறு" in emitted(web_place, str(scratch / "வேறு" / SOURCE).lstrip("/"))
    assert [path.name for path in (scratch / "வேறு").iterdir()] == [SOURCE]


def test_hints_follow_the_build(web_place):
    slip = "        செயல் எண்ணு(மொத்தம்):\n            மொத்தமம் = 1\n            திரும்பு மொத்தம்\n"
    web_place.write(SOURCE, application(logic=slip))
    for value, count in (("1", 1), ("0", 0)):
        web_place.env["POZHIL_HINTS"] = value
        with web_place.session(SOURCE) as session:
            assert get("/version") == (200, "2")
            assert session.stderr.decode().count(t.HINT_BEFORE + SOURCE + " வரி 7: ") == count
            assert session.stdout.decode() == BEFORE_BUILD + SUCCESS


@pytest.mark.parametrize("other", ["ஆ.பொழில்", "உள்ளே/அ.பொழில்"])
@pytest.mark.parametrize("marker", [MARKER, ""])
def test_applications_of_one_folder_do_not_meet(web_place, tools, other, marker):
    """The second one finds the port taken; what the first one serves stays its own."""
    (web_place.folder / other).parent.mkdir(exist_ok=True)
    web_place.write(other, application('உரை("மற்றது")', marker=marker))
    tools.stands_in_for("em++", '/bin/cp "$1" "$out"')
    with web_place.session(SOURCE) as first:
        first.wait_for_output(t.WEB_OPENING)
        served = get("/index.js")
        assert served[0] == 200 and "வணக்கம்" in served[1]
        with web_place.session(other) as second:
            second.wait_for_errors(t.WEB_PORT_TAKEN)
            assert get("/index.js") == served
            assert "வணக்கம்" in emitted(web_place)
            second.wait_until(lambda: len(tools.calls("em++")) == 2)


def test_where_the_port_is_taken_nothing_is_said_to_be_served(web_place, tools):
    """Nor is the browser sent to what somebody else serves there."""
    web_place.write("ஆ.பொழில்", application())
    with web_place.session(SOURCE) as first:
        first.wait_for_output(t.WEB_OPENING)
        with web_place.session("ஆ.பொழில்") as second:
            second.wait_for_errors(t.WEB_PORT_TAKEN)
            # It goes on; whatever else it told would come before what it tells of a change.
            web_place.write("ஆ.பொழில்", application('உரை("மாறியது")'))
            second.wait_for_output(t.WEB_CHANGE_NOTE)
            assert second.stdout.decode().startswith(BEFORE_BUILD + t.WEB_CHANGE_NOTE)


# Pages of several declarations and files.


def test_all_pages_of_a_program_and_of_its_imports_are_its_application(web_place):
    web_place.write("ஆ.பொழில்", application('உரை("இறக்கியது")', header='பக்கம்: "ஆ"', marker=""))
    web_place.write(SOURCE, MARKER + 'நூஇறக்கி "ஆ"\n' + "".join(
        application(f'உரை("{name}")', header=f'பக்கம்: "{name}"', marker="") for name in ("ஒன்று", "இரண்டு")))
    with web_place.session(SOURCE) as session:
        session.wait_for_output(t.WEB_OPENING)
        assert session.stderr == b""
    for name in ("இறக்கியது", "ஒன்று", "இரண்டு"):
        assert f'"{name}"' in emitted(web_place)


def test_a_program_whose_import_alone_has_pages_is_an_application(web_place):
    """As in the first edition."""
    web_place.write("ஆ.பொழில்", application('உரை("இறக்கியது")', marker=""))
    for marker in (MARKER, ""):
        web_place.write(SOURCE, marker + 'நூஇறக்கி "ஆ"\nஅச்சிடு(1)\n')
        with web_place.session(SOURCE) as session:
            session.wait_for_output(t.WEB_OPENING)
            assert session.stdout.decode() == BEFORE_BUILD + SUCCESS


# What ends it before em++ is called.


@pytest.mark.parametrize("source, faults", [
    (application("உரை(1 $ 2)"), [("பொழி-505", 4)]),
    (application('உரைய("அ")'), [("பொழி-627", 4)]),
    (application("உரை(இல்லாதது)"), [("பொழி-551", 4)]),
    (application('பொத்தான்(உரை: "அ", அழுத்தினால்: இல்லாதது)'), [("பொழி-551", 4)]),
    (application('உரை("அ")', "        அ = இல்லாதது\n        ஆ = அதுவும்\n"), [("பொழி-551", 6), ("பொழி-551", 7)]),
    (MARKER + "வலைதளம் தளம்(\n    தலைமை()\n    குமரி(உரை(1))\n)\n", [("பொழி-624", 2)]),
    ("\n" + application(), [("பொழி-503", 2)]), (application(marker="ஃ பொழில் 3\n"), [("பொழி-501", 1)]),
], ids=["scanner", "widget", "name in a text", "name in a handler", "names in the logic", "section", "late marker", "number"])
def test_faults_are_boxes_and_nothing_is_built(web_place, tools, source, faults):
    web_place.write(SOURCE, source)
    result = web_place.run(SOURCE, t.FLAG_WEB)
    before, boxes = split_boxes(result.out)
    assert (result.status, before, result.err) == (1, "", "")
    assert [(box.code, box.line) for box in boxes] == faults
    assert {box.file for box in boxes} == {SOURCE}
    assert tools.calls("em++") == []
    assert not web_place.web_directory.exists() and not web_place.work_directory.exists()


def test_fault_of_an_import_stands_there(web_place, tools):
    web_place.write("ஆ.பொழில்", "செயல் பாதி(எ):\n    திரும்பு இல்லாதது\n")
    web_place.write(SOURCE, application().replace(MARKER, MARKER + 'நூஇறக்கி "ஆ"\n'))
    result = web_place.run(SOURCE)
    (box,) = split_boxes(result.out)[1]
    assert (result.status, box.file, box.line, box.source.strip()) == (1, "ஆ.பொழில்", 2, "திரும்பு இல்லாதது")
    assert tools.calls("em++") == []


def test_results_of_an_earlier_build_outlive_a_fault(web_place):
    with web_place.session(SOURCE) as session:
        session.wait_for_output(t.WEB_OPENING)
    before = emitted(web_place)
    web_place.write(SOURCE, application("உரை(இல்லாதது)"))
    assert web_place.run(SOURCE).status == 1
    assert emitted(web_place) == before
    assert (web_place.results_of(SOURCE) / "index.js").read_text() == "js\n"


@pytest.mark.parametrize("source", [MARKER, MARKER.strip(), "\ufeff" + MARKER, MARKER + "\n\n", MARKER + "ஃ வலைதளம்\n"],
                         ids=["marker", "no end of line", "byte order mark", "blank lines", "comment"])
def test_marker_alone_is_no_application(web_place, tools, source):
    web_place.write(SOURCE, source)
    result = web_place.run(SOURCE, t.FLAG_WEB)
    assert (result.status, result.out, result.err) == (1, "", NO_APPLICATION)
    assert tools.calls("em++") == []


@pytest.mark.parametrize("obstacle", [t.WEB_DIRECTORY, f"{t.WEB_DIRECTORY}/{SOURCE}"])
def test_output_directory_that_cannot_be_made(web_place, tools, obstacle):
    (web_place.folder / obstacle).parent.mkdir(exist_ok=True)
    web_place.write(obstacle, "a file")
    result = web_place.run(SOURCE)
    assert result.status == 1
    assert f"'{web_place.results_of(SOURCE)}' அடைவில் எழுத முடியவில்லை!" in result.err
    assert tools.calls("em++") == []


@pytest.mark.parametrize("obstacle", [t.WORK_DIRECTORY, f"{t.WORK_DIRECTORY}/{SOURCE}"])
def test_place_of_the_source_that_cannot_be_made(web_place, tools, obstacle):
    (web_place.folder / obstacle).parent.mkdir(exist_ok=True)
    web_place.write(obstacle, "a file")
    result = web_place.run(SOURCE)
    assert result.status == 1
    assert result.err == output_error_line(web_place.directory_of(SOURCE))
    assert tools.calls("em++") == []


# What em++ fails at.


def failed(place, piece):
    """A session whose build has failed, once `piece` stands on standard error, which is returned without colours."""
    with place.session(SOURCE) as session:
        session.wait_for_output(SECOND_FAILURE)
        session.wait_for_errors(piece)
        assert get("/version") == (200, "1")
        assert session.stdout.decode() == BEFORE_BUILD + SECOND_FAILURE
        assert session.process.poll() is None
        return without_colours(session.stderr.decode()), get("/version/fault")[1]


def test_what_em_refuses_is_our_fault_with_the_place_of_the_source(web_place, tools):
    web_place.write(SOURCE, application(logic="        அ = 1\n        அச்சிடு(7)\n"))
    refuses_line(tools, "print({7LL})")
    errors, told = failed(web_place, t.OUR_FAULT)
    assert errors.startswith(OUR_FAULT + f"  📍 {SOURCE}, வரி 7\n     7 |  அச்சிடு(7)\n")
    assert str(web_place.directory_of(SOURCE) / t.EMITTED_WEB_NAME) in errors
    assert "strange words" not in errors
    assert f'"file": "{SOURCE}", "line": 7, "description": "{t.OUR_FAULT}; ' in told


def test_runtime_that_em_refuses_is_told_without_a_place(web_place, tools):
    """An import, whose statements come first, has nothing to do with it."""
    web_place.write("ஆ.பொழில்", "செயல் பாதி(எ):\n    திரும்பு எ வகு 2\n")
    web_place.write(SOURCE, application().replace(MARKER, MARKER + 'நூஇறக்கி "ஆ"\n'))
    refuses_line(tools, "#include <algorithm>")
    errors, told = failed(web_place, t.OUR_FAULT)
    assert "📍" not in errors
    assert '"file": "", "line": 0' in told


def test_missing_engine_is_told(web_place, installation, tools):
    archive = installation.cache / t.ENGINE_ARCHIVE
    archive.unlink()
    tools.fails()
    tools.stands_in_for("em++", "exit 1")
    errors, told = failed(web_place, t.ENGINE_ARCHIVE)
    assert errors.startswith(f"பிழை: '{archive}' கிடைக்கவில்லை!") and t.OUR_FAULT not in errors
    assert t.TOLD_IN_THE_CONSOLE in told and t.OUR_FAULT not in told


def test_missing_toolchain_is_told(web_place, scratch):
    (scratch / "nothing").mkdir()
    web_place.env["PATH"] = str(scratch / "nothing")
    errors, _ = failed(web_place, "em++")
    assert errors.startswith("பிழை: 'em++' கிடைக்கவில்லை!") and t.OUR_FAULT not in errors


def test_flags_that_em_refuses_are_told(web_place, tools):
    tools.stands_in_for("em++", 'case "$*" in *-fno-such*) exit 1;; esac; echo > "$out"')
    web_place.env["POZHIL_EMFLAGS"] = "-fno-such"
    errors, told = failed(web_place, "POZHIL_EMFLAGS")
    assert t.OUR_FAULT not in errors + told


def test_missing_template_is_told(web_place, installation, tools):
    (installation.include / "template.html").unlink()
    errors, _ = failed(web_place, t.TEMPLATE_MISSING_BEFORE)
    assert errors == t.TEMPLATE_MISSING_BEFORE + str(installation.folder) + t.TEMPLATE_MISSING_BEHIND
    assert tools.calls("em++") == []
