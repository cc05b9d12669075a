"""From the emitted text to the served page: what is shown, the call of em++, and what becomes of its outcome."""

import os
import re
import shutil

import pytest

from support import texts as t
from support.server import ADDRESS, get
from support.web_console import BEFORE_BUILD, FAILURE, SUCCESS
from support.workplace import HELLO, NOBODY, Workplace

pytestmark = pytest.mark.usefixtures("port")

SOURCE = "அ.பொழில்"
COMPILATION_FAILED = (t.RED + "\n" + t.WEB_COMPILATION_FAILED + t.RESET + "\n"
                      + t.GOLD + t.WEB_COMPILATION_HINT + t.RESET + "\n")
INSTALL_COMMAND = "apt install emscripten"


@pytest.fixture
def web_place(installed_place, tools):
    """A working directory for a copy of the installation, whose em++ succeeds."""
    tools.builds_pages()
    installed_place.write(SOURCE)
    return installed_place


def serving(place):
    return place.session(SOURCE, t.FLAG_WEB)


def outputs(place):
    """What em++ has made; the compressed copies of it come whenever they are ready."""
    return sorted(path.name for path in place.web_directory.iterdir() if ".gz" not in path.name)


def page_version():
    return int(re.search(r"let currentVersion = (\d+);", get()[1]).group(1))


def test_what_a_good_build_shows(web_place):
    with serving(web_place) as session:
        session.wait_for_output(t.WEB_OPENING)
        assert get("/version") == (200, "2")
        assert (session.stdout.decode(), session.stderr) == (BEFORE_BUILD + SUCCESS, b"")


def test_what_a_failed_build_shows(web_place, tools):
    tools.stands_in_for("em++", "echo words; echo words >&2; exit 1")
    with serving(web_place) as session:
        session.wait_for_output(FAILURE)
        assert get("/version") == (200, "1")
        assert session.stdout.decode() == BEFORE_BUILD + COMPILATION_FAILED + FAILURE
        assert b"words" not in session.stderr


def test_output_of_the_toolchain_is_thrown_away(web_place, tools):
    tools.stands_in_for("em++", "echo words; echo words >&2")
    with serving(web_place) as session:
        session.wait_for_output(t.WEB_OPENING)
        assert (session.stdout.decode(), session.stderr) == (BEFORE_BUILD + SUCCESS, b"")


def test_call_of_the_toolchain(web_place, installation, tools):
    with serving(web_place) as session:
        session.wait_for_output(t.WEB_OPENING)
    assert tools.calls("em++") == [installation.web_call(web_place)]
    assert tools.calls("g++") == []


def test_emitted_text_has_a_file_of_its_own(web_place):
    with serving(web_place) as session:
        session.wait_for_output(t.WEB_OPENING)
    assert web_place.emitted == ""
    assert "வணக்கம்" in (web_place.work_directory / t.EMITTED_WEB_NAME).read_text(encoding="utf-8")


def test_user_flags_come_last(web_place, installation, tools):
    web_place.env["POZHIL_EMFLAGS"] = " -O1  '-DA=a b' "
    with serving(web_place) as session:
        session.wait_for_output(t.WEB_OPENING)
    assert tools.calls("em++") == [installation.web_call(web_place) + ["-O1", "-DA=a b"]]


def test_assets_are_packed(web_place, installation, tools):
    (web_place.folder / "assets").mkdir()
    with serving(web_place) as session:
        session.wait_for_output(t.WEB_OPENING)
    assert tools.calls("em++") == [installation.web_call(web_place, ["--preload-file", "assets"])]


def test_flags_for_exceptions_stand_behind_the_user_s_own(web_place, tools, scratch):
    tools.stands_in_for("em++", 'printf %s "$EMCC_CFLAGS" > "$0.flags"')
    web_place.env["EMCC_CFLAGS"] = "-DOWN"
    with serving(web_place) as session:
        session.wait_for_output(t.WEB_OPENING)
    flags = (tools.folder / "em++.flags").read_text().split()
    assert flags[0] == "-DOWN"
    assert any("exceptions" in flag for flag in flags[1:])


@pytest.mark.parametrize("name", ["தமிழ் அடைவு", "$(touch INJECTED)", "'; touch INJECTED; '", "a\"b\\c", "வரி\nமாற்றம்"])
def test_places_of_any_name(scratch, installation, tools, name):
    moved = installation.folder.rename(scratch / f"i{name}")
    tools.builds_pages()
    place = Workplace(scratch / f"w{name}", scratch, moved / installation.compiler.name, tools)
    place.write(SOURCE)
    with serving(place) as session:
        session.wait_for_output(t.WEB_OPENING)
        assert session.stderr == b""
    (call,) = tools.calls("em++")
    assert call[0] == str(place.work_directory / t.EMITTED_WEB_NAME)
    assert call[1:4] == [f"{moved}/{t.CACHE_DIRECTORY}/error_handler_web.o",
                         f"{moved}/{t.CACHE_DIRECTORY}/nanovg_web.o", f"-I{moved}/{t.INCLUDE_DIRECTORY}"]
    assert call[-1] == str(place.web_directory / "index.js")
    assert not list(scratch.rglob("INJECTED"))


def test_results_are_served(web_place):
    with serving(web_place):
        status, page = get()
        assert (status, page_version()) == (200, 2)
        assert "பொழில் தளம்" in page and 'src="index.js"' in page and "{{{" not in page
        assert [get(f"/index.{kind}") for kind in ("js", "wasm", "data")] == [
            (200, "js\n"), (200, "wasm\n"), (200, "data\n")]


def test_page_is_no_file(web_place):
    with serving(web_place) as session:
        session.wait_for_output(t.WEB_OPENING)
    assert outputs(web_place) == ["index.data", "index.js", "index.wasm"]


def test_failed_build_leaves_the_server_up(web_place, tools):
    tools.stands_in_for("em++", "exit 1")
    with serving(web_place) as session:
        session.wait_for_output(FAILURE)
        assert get("/version") == (200, "1")
        assert page_version() == 2
        assert get("/index.js")[0] == 404
        assert session.process.poll() is None


def test_results_of_an_earlier_build_are_removed(web_place, tools):
    web_place.web_directory.mkdir()
    for name in ("index.html", "index.js", "index.wasm", "index.data", "என்.txt"):
        (web_place.web_directory / name).write_text("old")
    tools.stands_in_for("em++", "exit 1")
    with serving(web_place) as session:
        session.wait_for_output(FAILURE)
    assert outputs(web_place) == ["என்.txt"]


def test_template_is_missing(web_place, installation, tools):
    (installation.include / "template.html").unlink()
    with serving(web_place) as session:
        session.wait_for_output(FAILURE)
        assert session.stdout.decode() == BEFORE_BUILD + FAILURE
        assert session.stderr.decode() == (t.TEMPLATE_MISSING_BEFORE + str(installation.folder)
                                           + t.TEMPLATE_MISSING_BEHIND)
        assert get("/version") == (200, "1")
    assert tools.calls("em++") == []


def test_toolchain_is_missing(web_place, tools, scratch):
    (scratch / "nothing").mkdir()
    web_place.env["PATH"] = str(scratch / "nothing")
    with serving(web_place) as session:
        session.wait_for_output(FAILURE)
        assert session.stdout.decode() == BEFORE_BUILD + COMPILATION_FAILED + FAILURE
        assert "em++" in session.stderr.decode() and INSTALL_COMMAND in session.stderr.decode()
        assert get("/version") == (200, "1")


def test_toolchain_that_fails_is_not_taken_for_a_missing_one(web_place, tools):
    tools.stands_in_for("em++", "exit 127")
    with serving(web_place) as session:
        session.wait_for_output(FAILURE)
        assert "'em++'" not in session.stderr.decode()


def test_sdk_beside_the_compiler(web_place, installation, tools):
    own = installation.folder / "emsdk" / "upstream" / "emscripten"
    own.mkdir(parents=True)
    tools.stands_in_for("em++", 'printf %s "$PATH" > "$0.path"; printf %s "$EMSDK" > "$0.sdk"')
    shutil.move(tools.folder / "em++", own / "em++")
    with serving(web_place) as session:
        session.wait_for_output(t.WEB_OPENING)
    assert (own / "em++.path").read_text() == f"{own}:{installation.folder}/emsdk:{web_place.env['PATH']}"
    assert (own / "em++.sdk").read_text() == f"{installation.folder}/emsdk"
    assert tools.calls("em++") == []


def test_output_directory_that_cannot_be_made(web_place, tools):
    web_place.write(t.WEB_DIRECTORY, "a file")
    result = web_place.run(SOURCE, t.FLAG_WEB)
    assert result.status == 1
    assert str(web_place.web_directory) in result.err
    assert tools.calls("em++") == []


@pytest.mark.skipif(os.geteuid() != 0, reason="only root can run the compiler as another user")
def test_output_directory_that_cannot_be_written(web_place, tools):
    for folder in (web_place.work_directory, web_place.web_directory):
        folder.mkdir()
    os.chown(web_place.work_directory, NOBODY, NOBODY)
    tools.stands_in_for("em++", 'echo > "$out"')
    with web_place.session(SOURCE, t.FLAG_WEB, user=NOBODY) as session:
        session.wait_for_output(FAILURE)
        assert str(web_place.web_directory) in session.stderr.decode()


def test_emitted_text_that_does_not_fit(web_place, tools):
    web_place.work_directory.mkdir()
    (web_place.work_directory / t.EMITTED_WEB_NAME).symlink_to("/dev/full")
    with serving(web_place) as session:
        session.wait_for_output(FAILURE)
        assert t.EMITTED_WEB_NAME in session.stderr.decode()
        assert get("/version") == (200, "1")
    assert tools.calls("em++") == []


class TestBrowser:
    @pytest.fixture(autouse=True)
    def browsers(self, web_place, tools):
        for name in ("xdg-open", "உலாவி"):
            tools.stands_in_for(name, "")

    def opened(self, place, tools, browser, tool):
        if browser is None:
            place.env.pop("BROWSER")
        else:
            place.env["BROWSER"] = browser
        with serving(place) as session:
            session.wait_until(lambda: tools.calls(tool))
            assert (session.stdout.decode(), session.stderr) == (BEFORE_BUILD + SUCCESS, b"")
        return tools.calls(tool)

    @pytest.mark.parametrize("browser", [None, "", " "])
    def test_the_desktop_s_own(self, web_place, tools, browser):
        assert self.opened(web_place, tools, browser, "xdg-open") == [[ADDRESS]]

    def test_the_user_s_choice(self, web_place, tools):
        browser = "உலாவி --new '$(touch INJECTED)'"
        assert self.opened(web_place, tools, browser, "உலாவி") == [["--new", "$(touch INJECTED)", ADDRESS]]
        assert tools.calls("xdg-open") == []

    def test_what_it_writes_is_not_seen(self, web_place, tools):
        tools.stands_in_for("xdg-open", "echo words; echo words >&2")
        self.opened(web_place, tools, None, "xdg-open")

    def test_none(self, web_place, tools):
        with serving(web_place) as session:
            assert get("/version") == (200, "2")
            assert session.stdout.decode() == BEFORE_BUILD + SUCCESS
        assert tools.calls("xdg-open") == []

    @pytest.mark.parametrize("browser", ["/இல்லை/உலாவி", "''"])
    def test_missing_one_is_no_error(self, web_place, browser):
        web_place.env["BROWSER"] = browser
        with serving(web_place) as session:
            assert get("/version") == (200, "2")
            assert (session.stdout.decode(), session.stderr) == (BEFORE_BUILD + SUCCESS, b"")

    def test_slow_one_is_not_waited_for(self, web_place, tools):
        tools.stands_in_for("xdg-open", "sleep 5")
        web_place.env.pop("BROWSER")
        with serving(web_place) as session:
            assert get("/version", patience=3) == (200, "2")
            assert session.process.poll() is None

    def test_failed_build_opens_none(self, web_place, tools):
        web_place.env.pop("BROWSER")
        tools.stands_in_for("em++", "exit 1")
        with serving(web_place) as session:
            session.wait_for_output(FAILURE)
            assert get("/version") == (200, "1")
        assert tools.calls("xdg-open") == []


def test_console_program_leaves_the_web_alone(web_place, tools):
    web_place.env.pop("BROWSER")
    assert web_place.run(web_place.write(SOURCE, HELLO)).status == 0
    assert tools.calls("em++") == []
    assert not web_place.web_directory.exists()
