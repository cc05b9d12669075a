"""Between two builds of an application, Emscripten's own em++ precompiles what their texts have in common."""

import re

import pytest

from support import texts as t
from support.server import get

pytestmark = pytest.mark.usefixtures("port")

SOURCE = "அ.பொழில்"
UPDATED = t.WEB_UPDATED + "\n"

# What em++ is told about headers in its variable, a line for each call; what precompiles writes its result.
NOTE = 'printf "%s\\n" "$EMCC_CFLAGS" >> "$0.flags"\n'
PRECOMPILE = 'case $* in *c++-header*) echo done > "$out"; exit 0 ;; esac\n'
BUILD = 'for kind in js wasm; do echo $kind > "${out%.js}.$kind"; done\n'


def page(name, text):
    return (f'வலைதளம் அ (\n    தலைமை (பக்கம்: "{name}")\n    குமரி (\n        உரை("{text}")\n    )\n'
            "    வரையறை (\n        எண் = 1\n    )\n)\n")


@pytest.fixture
def web_place(installed_place, installation, tools):
    """A working directory for a copy of the installation, with precompiled headers and an em++ that takes them."""
    headers = installation.include / "web_headers.pch"
    headers.unlink(missing_ok=True)
    headers.touch()
    (tools.folder / "em++.py").touch()
    tools.stands_in_for("em++", NOTE + PRECOMPILE + BUILD)
    installed_place.write(SOURCE, page("முகப்பு", "1"))
    return installed_place


def runtime_file(place, ending):
    return place.work_directory / (t.WEB_RUNTIME_NAME + ending)


def flags(tools):
    return (tools.folder / "em++.flags").read_text(encoding="utf-8").splitlines()


def is_precompilation(call):
    return "c++-header" in call


def replaced_bytes(line):
    found = re.search(r"-include-pch '(.*?)' -Xclang -preamble-bytes=(\d+),1$", line)
    return (found[1], int(found[2])) if found else None


def ready(session, tools, place, count):
    """Waits until em++ has been called `count` times and what it precompiled is there."""
    session.wait_until(lambda: len(tools.calls("em++")) == count and runtime_file(place, ".pch").exists())


def test_later_builds_leave_out_the_runtime(web_place, installation, tools):
    with web_place.session(SOURCE) as session:
        ready(session, tools, web_place, 2)
        web_place.change(SOURCE, page("முகப்பு", "2"))
        session.wait_for_output(UPDATED)
        web_place.change(SOURCE, page("முகப்பு", "3"), age=-20)
        session.wait_until(lambda: session.stdout.decode().count(UPDATED) == 2)
        assert get("/version") == (200, "4")
    first, precompilation, second, third = tools.calls("em++")
    assert first == second == third == installation.web_call(web_place)
    header, precompiled = runtime_file(web_place, ".h"), str(runtime_file(web_place, ".pch"))
    assert precompilation == [f"-I{installation.include}", f"-I{installation.include}/nanovg", "-std=c++17",
                              "-finput-charset=UTF-8", "-x", "c++-header", "-fpch-instantiate-templates", str(header),
                              "-o", precompiled]

    runtime = header.read_bytes()
    emitted = (web_place.work_directory / t.EMITTED_WEB_NAME).read_bytes()
    assert emitted.startswith(runtime)
    assert emitted[len(runtime):].startswith(b"void init_globals() {\n")
    lines = flags(tools)
    assert lines[0] == lines[1] and replaced_bytes(lines[0]) is None
    assert [replaced_bytes(line) for line in lines[2:]] == [(precompiled, len(runtime))] * 2


def test_another_start_page_is_another_runtime(web_place, tools):
    with web_place.session(SOURCE) as session:
        ready(session, tools, web_place, 2)
        web_place.change(SOURCE, page("வேறு", "2"))
        ready(session, tools, web_place, 4)
        web_place.change(SOURCE, page("வேறு", "3"), age=-20)
        session.wait_until(lambda: len(tools.calls("em++")) == 5)
    calls = tools.calls("em++")
    assert [is_precompilation(call) for call in calls] == [False, True, False, True, False]
    assert [replaced_bytes(line) is not None for line in flags(tools)] == [False, False, False, False, True]


def test_nobody_waits_for_the_runtime(web_place, tools, scratch):
    done = scratch / "done"
    hang = f'case $* in *c++-header*) until [ -e "{done}" ]; do /bin/sleep 0.05; done; exit 1 ;; esac\n'
    tools.stands_in_for("em++", NOTE + hang + BUILD)
    with web_place.session(SOURCE) as session:
        session.wait_until(lambda: len(tools.calls("em++")) == 2)
        web_place.change(SOURCE, page("முகப்பு", "2"))
        session.wait_for_output(UPDATED)
        done.touch()
    assert [is_precompilation(call) for call in tools.calls("em++")] == [False, True, False]
    assert [replaced_bytes(line) for line in flags(tools)] == [None] * 3


def test_removed_runtime_is_done_without(web_place, tools):
    with web_place.session(SOURCE) as session:
        ready(session, tools, web_place, 2)
        runtime_file(web_place, ".pch").unlink()
        web_place.change(SOURCE, page("முகப்பு", "2"))
        session.wait_for_output(UPDATED)
    assert [replaced_bytes(line) for line in flags(tools)] == [None] * 3


def test_what_does_not_fit_is_tried_once(web_place, installation, tools):
    """The headers of the installation fail for a program that is compiled with other flags, and would again."""
    tools.stands_in_for("em++", NOTE + "case $EMCC_CFLAGS in *-include-pch*) exit 1 ;; esac\n" + BUILD)
    with web_place.session(SOURCE) as session:
        session.wait_for_output(t.WEB_OPENING)
        web_place.change(SOURCE, page("முகப்பு", "2"))
        session.wait_for_output(UPDATED)
    assert tools.calls("em++") == [installation.web_call(web_place)] * 3
    assert ["-include-pch" in line for line in flags(tools)] == [True, False, False]


def test_runtime_that_does_not_fit_is_tried_once(web_place, tools):
    tools.stands_in_for("em++", NOTE + PRECOMPILE + "case $EMCC_CFLAGS in *preamble*) exit 1 ;; esac\n" + BUILD)
    with web_place.session(SOURCE) as session:
        ready(session, tools, web_place, 2)
        web_place.change(SOURCE, page("முகப்பு", "2"))
        session.wait_for_output(UPDATED)
        web_place.change(SOURCE, page("முகப்பு", "3"), age=-20)
        session.wait_until(lambda: session.stdout.decode().count(UPDATED) == 2)
    assert ["preamble" in line for line in flags(tools)] == [False, False, True, False, False]


def test_program_that_em_refuses_keeps_the_headers(web_place, tools):
    tools.stands_in_for("em++", NOTE + "exit 1")
    with web_place.session(SOURCE) as session:
        session.wait_for_output(t.WEB_FAILURE)
        tools.stands_in_for("em++", NOTE + PRECOMPILE + BUILD)
        web_place.change(SOURCE, page("முகப்பு", "2"))
        session.wait_for_output(UPDATED)
    assert ["-include-pch" in line for line in flags(tools)][:3] == [True, False, True]
