"""The runner of language cases, tried on a compiler that understands a handful of commands."""

import os
import re
import shutil
import subprocess
import sys
import time
from pathlib import Path

import pytest

from support import case_file as cf
from support.case_check import check_case, own_part, rewrite_case
from support.case_run import visible_lines

TESTS = Path(__file__).resolve().parents[1]
COMPILER = TESTS / "support" / "fake_compiler.py"


@pytest.fixture
def write(tmp_path):
    """Writes a case from its lines and reads it."""

    def write(*lines, name="வழக்கு", newline="\n"):
        path = tmp_path / f"{name}{cf.SOURCE_SUFFIX}"
        path.write_text("".join(line + newline for line in lines), encoding="utf-8")
        return cf.read_case(path)

    return write


def check(case, **settings):
    return check_case(case, COMPILER, **settings)


@pytest.mark.parametrize("lines", [
    ("print அ", "print", "print ஆ", "ஃ> வெளியீடு: அ", "ஃ> வெளியீடு:", "ஃ> வெளியீடு: ஆ"),
    ("print  அ ", "ஃ> வெளியீடு:  அ "),
    ("read", "ஃ> உள்ளீடு: அம்மா", "ஃ> வெளியீடு: அம்மா␃"),
    ("ஃ> வெளியேற்றம்: 0",),
    ("error 106 3", "ஃ> பிழை: பொழி-106 வரி 3"),
    ("error 106 3", "ஃ> பிழை: பொழி-106 வரி 3", "ஃ> பிழை விளக்கம்: தனித்த உயிர்மெய்", "ஃ> வெளியேற்றம்: 1"),
    ("print அ", "crash 311 2", "ஃ> வெளியீடு: அ", "ஃ> இயக்கநேர பிழை: பொழி-311 வரி 2"),
    ("complain அபாயம்", "ஃ> வெளியேற்றம்: 0", "ஃ> பிழையோட்டம்: பாய"),
    ("emit int a;", "emit int b;", "ஃ> உருவாக்கம்: int a;", "ஃ> உருவாக்கம்: int b;", "ஃ> உருவாக்கம் இல்லை: c;"),
    ("emit int a;", "ஃ> உருவாக்கம்: in the runtime", "ஃ> உருவாக்கம்: int a;", "ஃ> உருவாக்கம் இல்லை: in the"),
    ("emit int a;", "print அ", "ஃ> உருவாக்கம்: int a;", "ஃ> வெளியீடு: அ"),
    ("emit int a;", "web", "ஃ> உருவாக்கம்: int a;"),
])
def test_case_passes(write, lines):
    assert check(write(*lines)) == ""


@pytest.mark.parametrize("lines, shown", [
    (("print அ",), "--rewrite"),
    (("print அ", "ஃ> வெளியீடு: ஆ"), "-ஃ> வெளியீடு: ஆ\n+ஃ> வெளியீடு: அ"),
    (("print அ ", "ஃ> வெளியீடு: அ"), "+ஃ> வெளியீடு: அ "),
    (("print அ", "print ஆ", "ஃ> வெளியீடு: அ"), "+ஃ> வெளியீடு: ஆ"),
    (("print அ", "ஃ> வெளியேற்றம்: 0"), "+ஃ> வெளியீடு: அ"),
    (("print அ", "ஃ> வெளியீடு: அ", "ஃ> வெளியேற்றம்: 1"), "+ஃ> வெளியேற்றம்: 0"),
    (("read", "ஃ> உள்ளீடு: அ", "ஃ> வெளியீடு: அ"), "+ஃ> வெளியீடு: அ␃"),
    (("error 106 3", "ஃ> பிழை: பொழி-106 வரி 2"), "+ஃ> பிழை: பொழி-106 வரி 3"),
    (("error 106 3", "ஃ> பிழை: பொழி-101 வரி 3"), "+ஃ> பிழை: பொழி-106 வரி 3"),
    (("error 106 3", "ஃ> பிழை: பொழி-106 வரி 3 கோப்பு பாகம்.பொழில்"), "+ஃ> பிழை: பொழி-106 வரி 3"),
    (("error 106 3", "ஃ> வெளியீடு: அ"), "+ஃ> பிழை: பொழி-106 வரி 3"),
    (("error 106 3", "ஃ> உருவாக்கம் இல்லை: x"), "+ஃ> பிழை: பொழி-106 வரி 3"),
    (("print அ", "ஃ> பிழை: பொழி-106 வரி 3"), "-ஃ> பிழை: பொழி-106 வரி 3"),
    (("error 106 3", "ஃ> பிழை: பொழி-106 வரி 3", "ஃ> பிழை விளக்கம்: வேறு"), "not in what the box says is wrong: வேறு"),
    (("print அ", "ஃ> வெளியீடு: அ", "ஃ> பிழை விளக்கம்: அ"), "not in what the box says is wrong: அ"),
    (("error 106 3", "ஃ> பிழை: பொழி-106 வரி 3", "ஃ> வெளியீடு: அ"), "-ஃ> வெளியீடு: அ"),
    (("crash 311 2", "ஃ> வெளியேற்றம்: 0"), "+ஃ> இயக்கநேர பிழை: பொழி-311 வரி 2"),
    (("crash 311 2", "ஃ> இயக்கநேர பிழை: பொழி-311 வரி 4"), "+ஃ> இயக்கநேர பிழை: பொழி-311 வரி 2"),
    (("complain அபாயம்", "ஃ> வெளியேற்றம்: 0"), "standard error isn't empty"),
    (("complain அபாயம்", "ஃ> வெளியேற்றம்: 0", "ஃ> பிழையோட்டம்: வேறு"), "not in standard error: வேறு"),
    (("emit int a;", "ஃ> உருவாக்கம்: int"), "not emitted, or not in this order: int"),
    (("emit a", "emit b", "ஃ> உருவாக்கம்: b", "ஃ> உருவாக்கம்: a"), "not emitted, or not in this order: a"),
    (("emit int a;", "ஃ> உருவாக்கம் இல்லை: t a"), "emitted all the same: t a"),
])
def test_case_fails_and_shows_why(write, lines, shown):
    assert shown in check(write(*lines))


def test_case_without_end_fails_and_leaves_nothing_running(write):
    trouble = check(write("hang", "ஃ> வெளியேற்றம்: 0"), timeout=1)
    assert "timed out" in trouble
    status = Path("/proc", re.search(r"child (\d+)", trouble)[1], "status")
    # What is killed may take a moment to go.
    end = time.monotonic() + 5
    while status.exists() and "zombie" not in status.read_text() and time.monotonic() < end:
        time.sleep(0.01)
    assert not status.exists() or "zombie" in status.read_text()


def test_emission_and_diagnostics_never_ask_for_a_compiler(write, monkeypatch, tmp_path):
    (tmp_path / "g++").write_text(f"#!/bin/sh\n: > '{tmp_path}/asked'\n", encoding="utf-8")
    (tmp_path / "g++").chmod(0o755)
    monkeypatch.setenv("PATH", f"{tmp_path}:{os.environ['PATH']}")
    assert check(write("emit a", "ஃ> உருவாக்கம்: a")) == ""
    assert check(write("error 106 1", "ஃ> பிழை: பொழி-106 வரி 1")) == ""
    assert not (tmp_path / "asked").exists()
    assert check(write("print அ", "ஃ> வெளியீடு: அ")) == ""
    assert (tmp_path / "asked").exists()


def test_expectation_beside_the_case(write, tmp_path):
    (tmp_path / f"வழக்கு{cf.EXPECTATION_SUFFIX}").write_text("ஃ> பிழை: பொழி-102 வரி 1\n", encoding="utf-8")
    case = write("error 102 1", newline="\r\n")
    assert case.source.endswith(b"\r\n")
    assert check(case) == ""


def test_the_marker_asks_for_the_second_edition(write):
    lines = ["ஃ> பிழை: பொழி-551 வரி 2", "ஃ> பிழை: பொழி-552 வரி 3"]
    assert check(write("ஃ பொழில் 2", "error 106 2 551", "error 106 3 552", *lines)) == ""
    assert check(write("ஃ பொழில் 2", "print அ", "crash 311 3 642", "ஃ> வெளியீடு: அ", "ஃ> இயக்கநேர பிழை: பொழி-642 வரி 3")) == ""
    with pytest.raises(cf.CaseError):
        write("error 106 2 551", *lines)


@pytest.mark.parametrize("line, edition", [
    ("ஃ பொழில் 2", 2), ("\ufeffஃ பொழில் 2", 2), (" ஃபொழில் ௨ \r", 2), ("ஃ பொழில் 3", 1), ("ஃ பொழில் 2 ", 2), ("ஃ பொழில் 20", 1),
    ("\nஃ பொழில் 2", 1), ("அ = 1", 1),
])
def test_edition_of_a_program(line, edition):
    assert cf.edition_of(f"{line}\nஅச்சிடு(1)\n".encode()) == edition


def test_files_stand_beside_the_program(tmp_path, write):
    folder = tmp_path / f"வழக்கு{cf.FILES_SUFFIX}"
    folder.mkdir()
    (folder / "தரவு").write_text("பொழில்", encoding="utf-8")
    case = write("print அ", "ஃ> வெளியீடு: அ")
    assert case.files == folder
    listing = tmp_path / "compiler"
    listing.write_text("#!/bin/sh\n/bin/ls >&2\n", encoding="utf-8")
    listing.chmod(0o755)
    assert "தரவு\nவழக்கு.பொழில்" in check_case(case, listing)


@pytest.mark.parametrize("block", [
    "ஃ> வெளியீடு", "ஃ> வேறு: அ", "print அ", "ஃ> பிழை: 106", "ஃ> பிழை: பொழி-106 வரி", "ஃ> வெளியேற்றம்: ஒன்று",
    "ஃ> பிழை: பொழி-106 வரி 1\nஃ> பிழை: பொழி-106 வரி 2", "ஃ> வெளியேற்றம்: 0\nஃ> வெளியேற்றம்: 1",
])
def test_unreadable_expectation(block):
    with pytest.raises(cf.CaseError):
        cf.parse_expectation(block)


@pytest.mark.parametrize("before, behind", [
    (["print அ", "print"], ["ஃ> வெளியீடு: அ", "ஃ> வெளியீடு:"]),
    (["print அ", "ஃ> வெளியீடு: ஆ", "ஃ> உருவாக்கம்: x"], ["ஃ> வெளியீடு: அ", "ஃ> உருவாக்கம்: x"]),
    (["read", "ஃ> உள்ளீடு: அ"], ["ஃ> உள்ளீடு: அ", "ஃ> வெளியீடு: அ␃"]),
    (["error 106 3", "ஃ> வெளியீடு: அ"], ["ஃ> பிழை: பொழி-106 வரி 3"]),
    (["print அ", "ஃ> பிழை: பொழி-106 வரி 3", "ஃ> பிழை விளக்கம்: அ"], ["ஃ> வெளியீடு: அ"]),
    (["error 106 3", "ஃ> பிழை விளக்கம்: தனி"], ["ஃ> பிழை: பொழி-106 வரி 3", "ஃ> பிழை விளக்கம்: தனி"]),
    (["print அ", "crash 311 2"], ["ஃ> வெளியீடு: அ", "ஃ> இயக்கநேர பிழை: பொழி-311 வரி 2"]),
    (["emit a", "print அ", "ஃ> உருவாக்கம்: a"], ["ஃ> உருவாக்கம்: a"]),
    (["ஃ சும்மா"], ["ஃ> வெளியேற்றம்: 0"]),
])
def test_rewriting(write, before, behind):
    case = write(*before)
    rewrite_case(case, COMPILER)
    program = [line for line in before if not line.startswith(cf.MARK)]
    assert case.path.read_text(encoding="utf-8").splitlines() == program + behind
    assert cf.read_case(case.path).expectation.entries


def test_rewriting_beside_the_case(write, tmp_path):
    sibling = tmp_path / f"வழக்கு{cf.EXPECTATION_SUFFIX}"
    sibling.touch()
    case = write("error 102 1", newline="\r\n")
    rewrite_case(case, COMPILER)
    assert sibling.read_text(encoding="utf-8") == "ஃ> பிழை: பொழி-102 வரி 1\n"
    assert case.path.read_bytes() == "error 102 1\r\n".encode()


def test_what_an_output_looks_like_in_a_case():
    assert visible_lines("") == []
    assert visible_lines("\n") == [""]
    assert visible_lines("அ\n\nஆ\n") == ["அ", "", "ஆ"]
    assert visible_lines("அ\nஆ") == ["அ", f"ஆ{cf.UNENDED}"]
    assert visible_lines("\x1b[0mஅ\r\tஆ\x00\n") == ["␛[0mஅ␍\tஆ␀"]


def test_own_part_of_the_emitted_text():
    assert own_part("a\n#ifdef X\nb\n#endif\nc\nvoid init_globals() {\n}\nd") == "c\nvoid init_globals() {\n}\nd"
    assert own_part("#endif\nvoid init_globals() {\n#ifdef X\n#endif\n}\n").startswith("void init_globals() {")
    assert own_part("a\nb") == "a\nb"


def test_cases_are_collected_run_and_rewritten_from_the_command_line(tmp_path):
    for name in ("pytest.ini", "conftest.py", "language/conftest.py"):
        (tmp_path / name).parent.mkdir(exist_ok=True)
        shutil.copy(TESTS / name, tmp_path / name)
    theme = tmp_path / "language" / "அச்சு"
    files = theme / f"ஒன்று{cf.FILES_SUFFIX}"
    files.mkdir(parents=True)
    (files / f"பாகம்{cf.SOURCE_SUFFIX}").write_text("print இல்லை\n", encoding="utf-8")
    (theme / f"ஒன்று{cf.SOURCE_SUFFIX}").write_text("print அ\nஃ> வெளியீடு: அ\n", encoding="utf-8")
    wrong = theme / f"இரண்டு{cf.SOURCE_SUFFIX}"
    wrong.write_text("print அ\nஃ> வெளியீடு: ஆ\n", encoding="utf-8")

    def pytest_run(*options):
        command = [sys.executable, "-m", "pytest", *options, "language"]
        env = {**os.environ, "PYTHONPATH": str(TESTS), "POZHIL_COMPILER": str(COMPILER)}
        return subprocess.run(command, cwd=tmp_path, env=env, capture_output=True, text=True).stdout

    first = pytest_run("-n", "2")
    assert "அச்சு/இரண்டு" in first and "+ஃ> வெளியீடு: அ" in first
    assert re.search("1 failed, 1 passed", first)
    assert re.search("2 passed", pytest_run("--rewrite"))
    assert wrong.read_text(encoding="utf-8") == "print அ\nஃ> வெளியீடு: அ\n"
    assert re.search("2 passed", pytest_run())
