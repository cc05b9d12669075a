"""The command பொழில் and its word வெளியிடு: command line, messages, exit status, and what stands on the disk afterwards.
A stand-in for em++ makes the files."""

import gzip
import os
import re
import shutil
import signal
import stat
import struct
import threading
import urllib.request
from functools import partial
from http.server import SimpleHTTPRequestHandler, ThreadingHTTPServer
from urllib.parse import quote

import pytest

from support import texts as t
from support.console import without_colours
from support.process import Session, run
from support.second_box import split_boxes
from support.workplace import NOBODY

SOURCE = "செயலி.பொழில்"
SITE = "செயலி_தளம்"
APPLICATION = 'வலைதளம் தளம்(\n    தலைமை(இணைய_தலைப்பு: "என் தளம்")\n    குமரி(உரை("வணக்கம்"))\n    வரையறை()\n)\n'
SECOND_EDITION = "ஃ பொழில் 2\n"
MARKER = "pozhil-site.txt"
MEASURED = "assets/font/Coiny-Regular.ttf"
DRAWN = "assets/font/Tamil-Regular.ttf"
MADE = ["index.data", "index.html", "index.js", "index.wasm"]

OK, FAULT, WRONG_USE, FAILED = 0, 1, 2, 3


@pytest.fixture
def place(installed_place, tools):
    """A working directory with an application, and an em++ that makes its files."""
    tools.builds_pages()
    installed_place.write(SOURCE, APPLICATION)
    return installed_place


@pytest.fixture
def publish(place, command):
    """Runs the command in the working directory."""
    def publish_with(*arguments, **settings):
        return run([command, *arguments], cwd=place.folder, env=place.env, **settings)
    return publish_with


def font(outline):
    """The least that is a font, of one letter with this outline."""
    tables = {
        b"cmap": b"", b"glyf": struct.pack(">hhhhh", 1, 0, 0, 500, 700) + outline,
        b"head": struct.pack(">12xL34xHxx", 0x5F0F3CF5, 1), b"hhea": struct.pack(">34xH", 1),
        b"hmtx": bytes(4), b"loca": struct.pack(">LL", 0, 10 + len(outline)), b"maxp": struct.pack(">4xH", 1),
        b"name": struct.pack(">HHH", 0, 0, 6),
    }
    rows, contents = b"", b""
    for tag, table in tables.items():
        rows += struct.pack(">4sLLL", tag, 0, 12 + 16 * len(tables) + len(contents), len(table))
        contents += table
    return struct.pack(">LH6x", 1 << 16, len(tables)) + rows + contents


def names(folder):
    return sorted(path.name for path in folder.iterdir() if path.suffix not in (".gz", ".br"))


def nothing_left(place, *own):
    """Beside the source and these there is nothing in the working directory."""
    assert sorted(path.name for path in place.folder.iterdir()) == sorted([SOURCE, *own])


# The command itself

def test_without_a_word_the_help_comes_as_a_refusal(publish):
    result = publish()
    assert (result.status, result.out) == (WRONG_USE, "")
    assert result.err.startswith("பொழில்: ")


@pytest.mark.parametrize("arguments", [["உதவி"], ["help"], ["--உதவி"], ["--help"], ["-h"]])
def test_help_is_in_tamil_first(publish, arguments):
    result = publish(*arguments)
    assert (result.status, result.err) == (OK, "")
    assert result.out.index("பயன்பாடு: பொழில்") < result.out.index("usage: pozhil")
    assert "  வெளியிடு " in result.out
    assert "  publish " in result.out


@pytest.mark.parametrize("arguments", [["உதவி", "வெளியிடு"], ["help", "publish"], ["வெளியிடு", "--உதவி"],
                                       ["publish", SOURCE, "--help"]])
def test_help_of_a_word(place, publish, arguments):
    result = publish(*arguments)
    assert (result.status, result.err) == (OK, "")
    assert result.out.startswith("பொழில் வெளியிடு <கோப்பு.பொழில்> [--அடைவு <அடைவு>]\n")
    nothing_left(place)


def test_version(publish):
    for switch in t.VERSION_SWITCHES:
        assert t.VERSION_VALUE in publish(switch).out.replace("\033[0m", "")


@pytest.mark.parametrize("word", ["வெளியீடு", "Publish", "", "--வலை", SOURCE])
def test_unknown_word(publish, word):
    result = publish(word)
    assert (result.status, result.out) == (WRONG_USE, "")
    assert f"'{word}' என்ற சொல் இங்கே இல்லை!" in result.err


def test_ascii_name_is_the_same_command(place, command):
    link = command.parent / "pozhil"
    assert os.readlink(link) == "பொழில்"
    assert run([link, "publish", SOURCE], cwd=place.folder, env=place.env).status == OK


# Publishing

@pytest.mark.parametrize("word, switch", [("வெளியிடு", "--அடைவு"), ("publish", "--dir")])
def test_folder_holds_all_that_a_host_needs(place, publish, tools, word, switch):
    result = publish(word, SOURCE, switch, "அ/தளம்")
    assert (result.status, result.err) == (OK, "")
    site = place.folder / "அ/தளம்"
    assert names(site) == [*MADE, MARKER]
    page = (site / "index.html").read_text()
    assert "<title>என் தளம்</title>" in page
    assert "/version" not in page
    assert 'src="index.js"' in page
    (call,) = tools.calls("em++")
    assert "-Oz" in call
    assert stat.S_IMODE(site.stat().st_mode) == 0o755
    nothing_left(place, "அ")
    assert names(place.folder / "அ") == ["தளம்"]


def test_folder_is_named_after_the_source(place, publish):
    assert publish("வெளியிடு", SOURCE).status == OK
    assert names(place.folder / SITE) == [*MADE, MARKER]
    nothing_left(place, SITE)


def test_compressed_copies_stand_beside_the_files(place, publish, tools):
    tools.stands_in_for("brotli", 'shift 3; for file in "$@"; do echo brotli > "$file.br"; done')
    assert publish("வெளியிடு", SOURCE).status == OK
    for name in MADE:
        assert gzip.decompress((place.folder / SITE / f"{name}.gz").read_bytes()) == (place.folder / SITE / name).read_bytes()
        assert (place.folder / SITE / f"{name}.br").read_text() == "brotli\n"
    assert not list((place.folder / SITE).glob("*.gz.*"))


def test_progress_and_sizes_are_told(place, publish):
    result = publish("வெளியிடு", SOURCE)
    steps = ["நிரல் படிக்கப்படுகிறது", "தொகுக்கப்படுகிறது", "சுருக்கப்படுகிறது", f"வெளியிடத் தயார்: {place.folder / SITE}"]
    places = [result.out.index(step) for step in steps]
    assert places == sorted(places)
    for name in MADE:
        assert f"  {name} " in result.out
    assert "\033" not in result.out


def test_licences_of_fonts_come_along(place, publish):
    (place.folder / "assets").mkdir()
    place.write("assets/எழுத்து.woff2", "wOF2")
    place.write("assets/OFL.txt", "இலவசம்")
    assert publish("வெளியிடு", SOURCE).status == OK
    assert "இலவசம்" in (place.folder / SITE / "licences.txt").read_text()


@pytest.fixture
def publish_with_fonts(place, publish, tools):
    """Publishes an application with these files. Tells which files em++ was to pack, in their order, and what each of
    those held that has a place of its own."""
    def publish_files(files, source=APPLICATION):
        (place.folder / "assets/font").mkdir(parents=True)
        for name, contents in files.items():
            (place.folder / name).write_bytes(contents)
        place.write(SOURCE, source)
        packed = place.folder.parent / "packed"
        tools.stands_in_for("em++", f"""for file in "$@"; do case $file in *@*) cp "${{file%%@*}}" {packed} ;; esac; done
for kind in js wasm data; do echo $kind > "${{out%.js}}.$kind"; done""")
        result = publish("வெளியிடு", SOURCE)
        assert (result.status, result.err) == (OK, "")
        (call,) = tools.calls("em++")
        places = [call[i + 1] for i, word in enumerate(call) if word == "--preload-file"]
        return [name.rpartition("@")[2] for name in places], packed.read_bytes() if packed.exists() else None
    return publish_files


def test_font_that_is_only_measured_is_packed_without_its_outlines(place, publish_with_fonts):
    whole = font(b"outline")
    places, packed = publish_with_fonts({MEASURED: whole, DRAWN: font(b"drawn")})
    # em++ takes the first that is for a place.
    assert places == [MEASURED, "assets"]
    assert b"outline" not in packed
    assert struct.pack(">hhhhh", 0, 0, 0, 500, 700) in packed
    licences = (place.folder / SITE / "licences.txt").read_text()
    assert licences.index(MEASURED) < licences.index("மாற்றப்பட்டது") < licences.index(DRAWN)
    assert (place.folder / MEASURED).read_bytes() == whole
    nothing_left(place, "assets", SITE)


@pytest.mark.parametrize("files, source", [
    ({MEASURED: font(b"outline")}, APPLICATION),
    ({MEASURED: font(b"outline")[:-1], DRAWN: font(b"drawn")}, APPLICATION),
    ({MEASURED: font(b"outline"), DRAWN: font(b"drawn")},
     APPLICATION.replace('உரை("வணக்கம்")', f'உரை("வணக்கம்", உரைபாணி(எழுத்துரு: "{MEASURED}"))')),
], ids=["pages draw with it", "it is no font", "a text is drawn with it"])
def test_font_is_packed_as_it_is(place, publish_with_fonts, files, source):
    assert publish_with_fonts(files, source) == (["assets"], None)
    assert "மாற்றப்பட்டது" not in (place.folder / SITE / "licences.txt").read_text()


def test_folder_with_a_sign_of_em(place, publish, tools):
    """Where "@" stands in a path, em++ would take what follows for the place in the page."""
    (place.folder / "assets/font").mkdir(parents=True)
    for name in (MEASURED, DRAWN):
        (place.folder / name).write_bytes(font(b"outline"))
    assert publish("வெளியிடு", SOURCE, "--அடைவு", "நான்@வீடு/தளம்").status == OK
    (call,) = tools.calls("em++")
    packed = call[call.index("--preload-file") + 1]
    assert "/நான்@@வீடு/.pozhil-" in packed
    assert packed.endswith(f"@{MEASURED}")


def test_own_folder_is_replaced(place, publish, tools):
    assert publish("வெளியிடு", SOURCE).status == OK
    tools.stands_in_for("em++", 'for kind in js wasm; do echo newer > "${out%.js}.$kind"; done')
    assert publish("வெளியிடு", SOURCE).status == OK
    assert (place.folder / SITE / "index.js").read_text() == "newer\n"
    assert names(place.folder / SITE) == ["index.html", "index.js", "index.wasm", MARKER]
    nothing_left(place, SITE)


def test_folder_of_others_is_left_alone(place, publish, tools):
    (place.folder / "என்_அடைவு").mkdir()
    place.write("என்_அடைவு/கடிதம்.txt", "முக்கியம்")
    result = publish("வெளியிடு", SOURCE, "--அடைவு", "என்_அடைவு")
    assert result.status == WRONG_USE
    assert "அதைப் பொழில் உருவாக்கவில்லை!" in result.err
    assert names(place.folder / "என்_அடைவு") == ["கடிதம்.txt"]
    assert not tools.calls("em++")


def test_own_folder_with_a_file_of_others_is_left_alone(place, publish):
    assert publish("வெளியிடு", SOURCE).status == OK
    place.write(f"{SITE}/CNAME", "example")
    result = publish("வெளியிடு", SOURCE)
    assert result.status == WRONG_USE
    assert f"'{place.folder / SITE / 'CNAME'}' பொழில் வைத்தது அல்ல" in result.err
    assert (place.folder / SITE / "CNAME").read_text() == "example"


@pytest.mark.parametrize("arguments, told", [
    ([], "எந்தக் கோப்பை வெளியிட வேண்டும்?"),
    ([SOURCE, "--அடைவு"], "ஓர் அடைவின் பெயர் வேண்டும்!"),
    ([SOURCE, "--dir", ""], "ஓர் அடைவின் பெயர் வேண்டும்!"),
    ([SOURCE, "--வலை"], "'--வலை' என்ற தேர்வு இங்கே இல்லை!"),
    ([SOURCE, "இரண்டு.பொழில்"], "'இரண்டு.பொழில்' இரண்டாவது!"),
    (["இல்லை.பொழில்"], "'இல்லை.பொழில்' என்ற கோப்பை திறக்க முடியவில்லை!"),
])
def test_wrong_use_is_told(place, publish, arguments, told):
    result = publish("வெளியிடு", *arguments)
    assert (result.status, result.out) == (WRONG_USE, "")
    assert told in result.err
    nothing_left(place)


def test_program_without_an_application(place, publish):
    place.write(SOURCE, 'அச்சிடு("வணக்கம்")\n')
    result = publish("வெளியிடு", SOURCE)
    assert result.status == WRONG_USE
    assert "நிரலில் 'வலைதளம்' இல்லை!" in result.err
    nothing_left(place)


def test_program_of_the_second_edition_without_an_application(place, publish):
    place.write(SOURCE, SECOND_EDITION + 'அச்சிடு("வணக்கம்")\n')
    result = publish("வெளியிடு", SOURCE)
    assert result.status == WRONG_USE
    assert "நிரலில் 'வலைதளம்' இல்லை!" in result.err
    nothing_left(place)


# Faults

@pytest.mark.parametrize("source, code", [
    (APPLICATION.replace("உரை(", "உரை"), "பொழி-203"), (APPLICATION.replace('"வணக்கம்"', '"வணக்கம்'), "பொழி-102"),
    (SECOND_EDITION + "அச்சிடு(இல்லாதது)\n", "பொழி-551"), ("ஃ பொழில் 7\n" + APPLICATION, "பொழி-501"),
])
def test_fault_in_the_source_shows_its_box(place, publish, source, code):
    place.write(SOURCE, source)
    result = publish("வெளியிடு", SOURCE)
    assert result.status == FAULT
    assert code in result.out
    nothing_left(place)


def test_program_that_em_refuses(place, publish, tools):
    tools.stands_in_for("em++", "echo 'x.cpp:1:1: error: no' >&2; exit 1")
    result = publish("வெளியிடு", SOURCE)
    assert result.status == FAULT
    assert t.WEB_COMPILATION_FAILED in result.out
    nothing_left(place)


def test_failure_leaves_the_former_folder(place, publish, tools):
    assert publish("வெளியிடு", SOURCE).status == OK
    before = {path.name: path.read_bytes() for path in (place.folder / SITE).iterdir()}
    tools.stands_in_for("em++", 'echo half > "$out"; exit 1')
    assert publish("வெளியிடு", SOURCE).status == FAULT
    assert {path.name: path.read_bytes() for path in (place.folder / SITE).iterdir()} == before
    nothing_left(place, SITE)


def test_missing_compiler(place, publish, tools):
    (tools.folder / "em++").unlink()
    place.env["PATH"] = str(tools.folder)
    result = publish("வெளியிடு", SOURCE)
    assert result.status == FAILED
    assert "'em++' கிடைக்கவில்லை!" in result.err
    nothing_left(place)


def test_incomplete_installation(place, publish):
    (place.compiler.parent / "உள்ளடக்கம்/template.html").unlink()
    result = publish("வெளியிடு", SOURCE)
    assert result.status == FAILED
    assert t.TEMPLATE_MISSING_BEFORE in result.err
    nothing_left(place)


def test_folder_that_cannot_be_written(place, publish):
    (place.folder / "பூட்டியது").mkdir(mode=0o555)
    result = publish("வெளியிடு", SOURCE, "--அடைவு", "பூட்டியது/தளம்", user=NOBODY)
    assert result.status == FAILED
    assert "அடைவில் எழுத முடியவில்லை!" in result.err
    assert names(place.folder / "பூட்டியது") == []


@pytest.mark.parametrize("tool", ["gzip", "brotli"])
def test_disk_that_is_full_at_the_end(place, publish, tools, tool):
    tools.stands_in_for(tool, "exit 1")
    result = publish("வெளியிடு", SOURCE)
    assert result.status == FAILED
    assert f"'{place.folder}' அடைவில் கோப்புகளை எழுதி முடிக்க முடியவில்லை!" in result.err
    nothing_left(place)


def test_disk_that_is_full_from_the_start(place, publish):
    """A small disk of its own, filled up."""
    disk = place.folder / "வட்டு"
    disk.mkdir()
    if os.system(f"mount -t tmpfs -o size=64k tmpfs '{disk}' 2>/dev/null"):
        pytest.skip("this user may not mount a disk")
    try:
        result = publish("வெளியிடு", SOURCE, "--அடைவு", "வட்டு/தளம்")
        assert result.status == FAILED
        assert "வட்டில் இடம்" in result.err
        assert names(disk) == []
    finally:
        os.system(f"umount '{disk}'")


@pytest.mark.parametrize("number", [signal.SIGINT, signal.SIGTERM, signal.SIGHUP])
def test_interrupt_leaves_nothing(place, command, tools, number):
    tools.stands_in_for("em++", 'echo half > "$out"; exec sleep 60')
    with Session([command, "வெளியிடு", SOURCE], cwd=place.folder, env=place.env) as session:
        session.wait_until(lambda: list(place.folder.glob(".pozhil-*/site/index.js")))
        session.process.send_signal(number)
        assert session.wait_for_end(10) == -number
        assert "நிறுத்தப்பட்டது; எதுவும் வெளியிடப்படவில்லை.\n" in session.stdout.decode()
    nothing_left(place)


def test_assets_come_from_the_working_directory(place, publish, tools):
    (place.folder / "assets").mkdir()
    shutil.move(place.folder / SOURCE, place.folder.parent / SOURCE)
    assert publish("வெளியிடு", f"../{SOURCE}").status == OK
    (call,) = tools.calls("em++")
    assert call[call.index("--preload-file") + 1] == "assets"
    assert (place.folder / SITE / "index.html").exists()


# The second edition

SECOND_APPLICATION = SECOND_EDITION + APPLICATION


@pytest.fixture
def second_place(place):
    place.write(SOURCE, SECOND_APPLICATION)
    return place


class _Quiet(SimpleHTTPRequestHandler):
    def log_message(self, format, *args):  # what it is called there
        pass


@pytest.fixture
def plain_host(scratch):
    """Serves a folder from the path /என்/செயலி/ as any host does; a function that fetches what lies there."""
    root = scratch / "host"
    (root / "என்").mkdir(parents=True)
    with ThreadingHTTPServer(("127.0.0.1", 0), partial(_Quiet, directory=root)) as server:
        threading.Thread(target=server.serve_forever, daemon=True).start()

        def fetch_from(site, name):
            (root / "என்/செயலி").unlink(missing_ok=True)
            (root / "என்/செயலி").symlink_to(site)
            with urllib.request.urlopen(f"http://127.0.0.1:{server.server_port}{quote('/என்/செயலி/')}{name}") as answer:
                return answer.read()

        yield fetch_from
        server.shutdown()


@pytest.mark.parametrize("source", [APPLICATION, SECOND_APPLICATION], ids=["first", "second"])
def test_page_finds_its_files_beside_itself_at_any_host(place, publish, plain_host, source):
    place.write(SOURCE, source)
    assert publish("வெளியிடு", SOURCE).status == OK
    page = plain_host(place.folder / SITE, "").decode()
    named = re.findall(r'(?:src|href)="([^"]+)"', page)
    own = [name for name in named if not re.match(r"https?:|data:|#", name)]
    assert "index.js" in own and not [name for name in own if name.startswith("/")]
    for name in {*own, "index.wasm", "index.data"} - {"file-icon.png"}:
        assert plain_host(place.folder / SITE, name), name


def test_site_of_the_second_edition_has_the_files_of_the_first(second_place, publish, tools):
    assert publish("வெளியிடு", SOURCE, "--அடைவு", "இரண்டு").status == OK
    second_place.write(SOURCE, APPLICATION)
    assert publish("வெளியிடு", SOURCE, "--அடைவு", "ஒன்று").status == OK
    first, second = second_place.folder / "ஒன்று", second_place.folder / "இரண்டு"
    assert names(first) == names(second) == [*MADE, MARKER]
    assert (first / "index.html").read_bytes() == (second / "index.html").read_bytes()
    nothing_left(second_place, "ஒன்று", "இரண்டு")


def test_second_edition_is_called_as_the_first_with_its_engine(second_place, publish, tools):
    assert publish("வெளியிடு", SOURCE).status == OK
    second_place.write(SOURCE, APPLICATION)
    assert publish("வெளியிடு", SOURCE).status == OK
    second, first = ([re.sub(r"/\.pozhil-[^/]*/", "/", word) for word in call] for call in tools.calls("em++"))
    engine = str(second_place.compiler.parent / t.CACHE_DIRECTORY / t.ENGINE_ARCHIVE)
    # What only newer builds of a page need is left out of its text, not of what is written to it.
    leaving_out = "-DPOZHIL_PUBLISHED"
    assert second.count(leaving_out) == 1
    second.remove(leaving_out)
    assert second == first[:3] + [engine] + first[3:]


@pytest.mark.parametrize("source, faults", [
    (SECOND_APPLICATION.replace("உரை(", "உரைய("), [("பொழி-627", 4)]),
    (SECOND_APPLICATION.replace('"வணக்கம்"', "இல்லாதது"), [("பொழி-551", 4)]),
    (SECOND_APPLICATION.replace("வரையறை()", "வரையறை(\n        அ = ஒன்றும்\n        ஆ = இல்லாதது\n    )"),
     [("பொழி-551", 6), ("பொழி-551", 7)]),
    ("\n" + SECOND_APPLICATION, [("பொழி-503", 2)]),
], ids=["widget", "name", "two", "late marker"])
def test_faults_of_the_second_edition_are_boxes(place, publish, tools, source, faults):
    place.write(SOURCE, source)
    result = publish("வெளியிடு", SOURCE)
    assert (result.status, result.err) == (FAULT, "")
    assert [(box.code, box.line) for box in split_boxes(result.out)[1]] == faults
    assert tools.calls("em++") == []
    nothing_left(place)


@pytest.mark.parametrize("source", [SECOND_EDITION, SECOND_EDITION.strip(), "\ufeff" + SECOND_EDITION])
def test_marker_alone_is_no_application(place, publish, source):
    place.write(SOURCE, source)
    result = publish("வெளியிடு", SOURCE)
    assert result.status == WRONG_USE
    assert "நிரலில் 'வலைதளம்' இல்லை!" in result.err
    nothing_left(place)


def failure(place, publish, status):
    """What a publication that ends with this status tells, without colours."""
    result = publish("வெளியிடு", SOURCE)
    assert result.status == status
    assert t.WEB_COMPILATION_FAILED not in result.out
    nothing_left(place)
    return without_colours(result.err)


def test_text_of_the_second_edition_that_em_refuses_is_our_fault(second_place, publish, tools):
    tools.stands_in_for("em++", 'line=$(/bin/grep -n -m1 "int main()" "$1" | /usr/bin/cut -d: -f1)\n'
                                'echo "$1:${line:?}:1: error: strange words" >&2; exit 1')
    told = failure(second_place, publish, FAULT)
    assert f"{t.OUR_FAULT}: உருவான C++ உரையை em++ ஏற்கவில்லை." in told and f"📍 {SOURCE}, வரி 2" in told
    # That text is gone by then.
    assert t.EMITTED_WEB_NAME not in told and "strange words" not in told


def test_missing_engine(second_place, publish, tools):
    engine = second_place.compiler.parent / t.CACHE_DIRECTORY / t.ENGINE_ARCHIVE
    engine.unlink()
    tools.stands_in_for("em++", "exit 1")
    told = failure(second_place, publish, FAILED)
    assert told.startswith(f"பிழை: '{engine}' கிடைக்கவில்லை!") and t.OUR_FAULT not in told


def test_first_edition_does_without_the_engine(place, publish):
    (place.compiler.parent / t.CACHE_DIRECTORY / t.ENGINE_ARCHIVE).unlink()
    assert publish("வெளியிடு", SOURCE).status == OK


def test_flags_that_em_refuses(second_place, publish, tools):
    second_place.env["POZHIL_EMFLAGS"] = "-fno-such"
    tools.stands_in_for("em++", 'case "$*" in *-fno-such*) exit 1;; esac; echo > "$out"')
    told = failure(second_place, publish, FAILED)
    assert "POZHIL_EMFLAGS" in told and t.OUR_FAULT not in told


@pytest.mark.parametrize("words", ["No space left on device", "out of memory"])
def test_machine_that_fails_the_second_edition(second_place, publish, tools, words):
    tools.stands_in_for("em++", f"echo 'LLVM ERROR: {words}' >&2; exit 1")
    assert t.OUR_FAULT not in failure(second_place, publish, FAILED)


def test_hints_of_the_second_edition_come_last(second_place, publish):
    slip = "வரையறை(\n        செயல் எண்ணு(மொத்தம்):\n            மொத்தமம் = 1\n            திரும்பு மொத்தம்\n    )"
    second_place.write(SOURCE, SECOND_APPLICATION.replace("வரையறை()", slip))
    result = publish("வெளியிடு", SOURCE)
    assert result.status == OK
    assert result.err.startswith(t.HINT_BEFORE + f"{SOURCE} வரி 7: ") and result.err.count("\n") == 1
