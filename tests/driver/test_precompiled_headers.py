"""Beside the first build of an application, Emscripten's own em++ precompiles what the texts of all have in common."""

import re
import time

import pytest

from support import texts as t
from support.server import get
from support.web_console import UPDATED

pytestmark = pytest.mark.usefixtures("port")

SOURCE = "அ.பொழில்"

# Longer than the pause between two looks at the source.
A_WHILE = 0.8
# What a build tells em++ about headers, a line for each call; what precompiles does so in a file of its own.
NOTE = 'printf "%s\\n" "$EMCC_CFLAGS" >> "$0.flags"\n'
PRECOMPILE = 'case $* in *c++-header*) echo "$EMCC_CFLAGS" > "$0.background"; echo done > "$out"; exit 0 ;; esac\n'
BUILD = 'for kind in js wasm; do echo $kind > "${out%.js}.$kind"; done\n'


MARKER = "ஃ பொழில் 2\n"


def page(name, text, marker=""):
    return (f'{marker}வலைதளம் அ (\n    தலைமை (பக்கம்: "{name}")\n    குமரி (\n        உரை("{text}")\n    )\n'
            "    வரையறை (\n        தொகை = 1\n    )\n)\n")


def second_page(name, text):
    return page(name, text, MARKER)


@pytest.fixture
def web_place(installed_place, installation, tools):
    """A working directory for a copy of the installation, with precompiled headers and an em++ that takes them."""
    headers = installation.include / "web_headers.pch"
    headers.unlink(missing_ok=True)
    headers.touch()
    (tools.folder / "em++.py").touch()
    tools.stands_in_for("em++", PRECOMPILE + NOTE + BUILD)
    installed_place.write(SOURCE, page("முகப்பு", "1"))
    return installed_place


@pytest.fixture
def second_place(web_place):
    """The same with an application of the second edition."""
    web_place.write(SOURCE, second_page("முகப்பு", "1"))
    return web_place


def runtime_file(directory, ending):
    return directory / (t.WEB_RUNTIME_NAME + ending)


def flags(tools):
    return (tools.folder / "em++.flags").read_text(encoding="utf-8").splitlines()


def builds(tools):
    return [call for call in tools.calls("em++") if "c++-header" not in call]


def precompilations(tools):
    return [call for call in tools.calls("em++") if "c++-header" in call]


def precompilation(installation, header, precompiled):
    """The arguments with which em++ precompiles a runtime."""
    return [f"-I{installation.include}", f"-I{installation.include}/nanovg", "-std=c++17", "-finput-charset=UTF-8",
            "-x", "c++-header", "-fpch-instantiate-templates", str(header), "-o", str(precompiled)]


def wait_for_precompilations(session, tools, count):
    session.wait_until(lambda: len(precompilations(tools)) == count)
    time.sleep(A_WHILE)


def replaced_bytes(line):
    found = re.search(r"-include-pch '(.*?)' -Xclang -preamble-bytes=(\d+),1$", line)
    return (found[1], int(found[2])) if found else None


@pytest.fixture
def start(web_place, tools):
    """Starts a compiler, and goes on when the first version is there, what is precompiled, and the watch has begun."""
    def started():
        session = web_place.session(SOURCE)
        session.wait_for_output(t.WEB_OPENING)
        wait_for_precompilations(session, tools, 1)
        return session
    return started


class Edits:
    """Saves one version after the other and waits for each."""

    def __init__(self, place, session):
        self.place, self.session, self.count = place, session, 0

    def save(self, contents):
        self.count += 1
        self.place.change_until(self.session, SOURCE, contents, age=-10 * self.count)
        self.session.wait_until(lambda: self.session.stdout.decode().count(UPDATED) == self.count)


def test_later_builds_leave_out_the_runtime(web_place, installation, tools, start):
    with start() as session:
        edits = Edits(web_place, session)
        edits.save(page("முகப்பு", "2"))
        edits.save(page("முகப்பு", "3"))
        assert get("/version") == (200, "4")
    assert builds(tools) == [installation.web_call(web_place)] * 3
    header, precompiled = runtime_file(web_place.work_directory, ".h"), str(runtime_file(web_place.work_directory, ".pch"))
    assert precompilations(tools) == [precompilation(installation, header, precompiled)]

    runtime = header.read_bytes()
    emitted = (web_place.work_directory / t.EMITTED_WEB_NAME).read_bytes()
    assert emitted.startswith(runtime)
    assert emitted[len(runtime):].startswith(b"void init_globals() {\n")
    first, *later = flags(tools)
    assert (tools.folder / "em++.background").read_text(encoding="utf-8") == first + "\n"
    assert replaced_bytes(first) is None
    assert [replaced_bytes(line) for line in later] == [(precompiled, len(runtime))] * 2


def test_another_start_page_is_another_runtime(web_place, tools, start):
    with start() as session:
        edits = Edits(web_place, session)
        edits.save(page("வேறு", "2"))
        wait_for_precompilations(session, tools, 2)
        edits.save(page("வேறு", "3"))
    assert [replaced_bytes(line) is not None for line in flags(tools)] == [False, False, True]
    assert len(precompilations(tools)) == 2


def test_nobody_waits_for_the_runtime(web_place, tools, start, scratch):
    done = scratch / "done"
    hang = f'case $* in *c++-header*) until [ -e "{done}" ]; do /bin/sleep 0.05; done; exit 1 ;; esac\n'
    tools.stands_in_for("em++", hang + NOTE + BUILD)
    with start() as session:
        Edits(web_place, session).save(page("முகப்பு", "2"))
        done.touch()
    assert [replaced_bytes(line) for line in flags(tools)] == [None] * 2
    assert len(precompilations(tools)) == 1


def test_removed_runtime_is_done_without(web_place, tools, start):
    with start() as session:
        runtime_file(web_place.work_directory, ".pch").unlink()
        Edits(web_place, session).save(page("முகப்பு", "2"))
    assert [replaced_bytes(line) for line in flags(tools)] == [None] * 2


def test_what_does_not_fit_is_tried_once(web_place, installation, tools, start):
    """The headers of the installation fail for a program that is compiled with other flags, and would again."""
    tools.stands_in_for("em++", PRECOMPILE + NOTE + "case $EMCC_CFLAGS in *-include-pch*) exit 1 ;; esac\n" + BUILD)
    with start() as session:
        Edits(web_place, session).save(page("முகப்பு", "2"))
    assert builds(tools) == [installation.web_call(web_place)] * 3
    first, second, third = flags(tools)
    assert first == f"{second} -include-pch '{installation.include}/web_headers.pch'"
    assert second == third


def test_runtime_that_does_not_fit_is_tried_once(web_place, tools, start):
    tools.stands_in_for("em++", PRECOMPILE + NOTE + "case $EMCC_CFLAGS in *preamble*) exit 1 ;; esac\n" + BUILD)
    with start() as session:
        edits = Edits(web_place, session)
        edits.save(page("முகப்பு", "2"))
        edits.save(page("முகப்பு", "3"))
    assert ["preamble" in line for line in flags(tools)] == [False, True, False, False]


def test_program_that_em_refuses_keeps_the_headers(web_place, tools):
    tools.stands_in_for("em++", PRECOMPILE + NOTE + "exit 1")
    with web_place.session(SOURCE) as session:
        session.wait_for_output(t.WEB_FAILURE)
        wait_for_precompilations(session, tools, 1)
        tools.stands_in_for("em++", PRECOMPILE + NOTE + BUILD)
        Edits(web_place, session).save(page("முகப்பு", "2"))
    assert ["-include-pch" in line for line in flags(tools)] == [True, False, True]
    assert replaced_bytes(flags(tools)[-1]) is not None


# The second edition.


def test_later_builds_of_the_second_edition_leave_out_its_runtime(second_place, installation, tools, start):
    with start() as session:
        edits = Edits(second_place, session)
        edits.save(second_page("முகப்பு", "2"))
        edits.save(second_page("முகப்பு", "3").replace("உரை", "பொத்தான்").replace("தொகை = 1", "செயல் கூட்டு_செய்():\n            விடு"))
        assert get("/version") == (200, "4")
    assert builds(tools) == [installation.web_call(second_place, second=SOURCE)] * 3
    directory = second_place.directory_of(SOURCE)
    header, precompiled = runtime_file(directory, ".h"), runtime_file(directory, ".pch")
    assert precompilations(tools) == [precompilation(installation, header, precompiled)]

    runtime = header.read_bytes()
    emitted = (directory / t.EMITTED_WEB_NAME).read_bytes()
    assert emitted.startswith(runtime) and runtime.endswith(b"\n")
    # The engine and what pages give their programs belong to it; what is the program's own doesn't.
    assert b'#include "engine/page.h"' in runtime and b"#include" not in emitted[len(runtime):]
    assert "உரை(" not in runtime.decode() and b"start_1" not in runtime
    first, *later = flags(tools)
    assert (tools.folder / "em++.background").read_text(encoding="utf-8") == first + "\n"
    assert f"-include-pch '{installation.include}/web_headers.pch'" in first
    assert [replaced_bytes(line) for line in later] == [(str(precompiled), len(runtime))] * 2


def test_another_start_page_of_the_second_edition_is_another_runtime(second_place, tools, start):
    with start() as session:
        edits = Edits(second_place, session)
        edits.save(second_page("வேறு", "2"))
        wait_for_precompilations(session, tools, 2)
        edits.save(second_page("வேறு", "3"))
    assert [replaced_bytes(line) is not None for line in flags(tools)] == [False, False, True]


def test_fault_keeps_the_precompiled_runtime(second_place, tools, start):
    with start() as session:
        second_place.change_until(session, SOURCE, second_page("முகப்பு", "2").replace('"2"', "இல்லாதது"), age=-5)
        session.wait_for_output("பொழி-551")
        Edits(second_place, session).save(second_page("முகப்பு", "3"))
    assert [replaced_bytes(line) is not None for line in flags(tools)] == [False, True]
    assert len(precompilations(tools)) == 1
