"""The reader and runner of pairs, tried on a compiler that understands a handful of commands."""

import os
import re
import shutil
import subprocess
import sys
from pathlib import Path

import pytest

from support import case_file as cf
from support.case_check import check_case, observed_expectation
from support.pair_file import read_pair, write_pair

TESTS = Path(__file__).resolve().parents[1]
COMPILER = TESTS / "support" / "fake_compiler.py"

TITLE = "ஃ வியப்பு"


@pytest.fixture
def write(tmp_path):
    def write(*lines):
        path = tmp_path / "இணை.பொழில்"
        path.write_text("".join(line + "\n" for line in lines), encoding="utf-8")
        return read_pair(path)

    return write


def check(pair, edition):
    return check_case(pair.case(edition), COMPILER)


@pytest.mark.parametrize("lines", [
    ("print அ", "ஃ> வெளியீடு: அ"),
    ("print அ", "ஃ1> வெளியீடு: அ", "ஃ2> வெளியீடு: அ"),
    ("read", "ஃ> உள்ளீடு: அ", "ஃ> வெளியீடு: அ␃"),
    ("error 106 2 502", "ஃ1> பிழை: பொழி-106 வரி 2", "ஃ2> பிழை: பொழி-502 வரி 2"),
    ("error 106 2 502", "error 107 3 506", "ஃ1> பிழை: பொழி-106 வரி 2", "ஃ2> பிழை: பொழி-502 வரி 2",
     "ஃ2> பிழை: பொழி-506 வரி 3"),
    ("print அ", "crash 311 3 641", "ஃ> வெளியீடு: அ", "ஃ1> இயக்கநேர பிழை: பொழி-311 வரி 3",
     "ஃ2> இயக்கநேர பிழை: பொழி-641 வரி 3"),
    ("crash 311 2 641", "ஃ1> இயக்கநேர பிழை: பொழி-311 வரி 2", "ஃ2> இயக்கநேர பிழை: பொழி-641 வரி 2",
     "ஃ2> வெளியேற்றம்: 1"),
])
def test_pair_holds_in_both_editions(write, lines):
    pair = write(TITLE, *lines)
    assert [check(pair, edition) for edition in (1, 2)] == ["", ""]


@pytest.mark.parametrize("edition, lines, shown", [
    (2, ("print அ", "ஃ1> வெளியீடு: அ", "ஃ2> வெளியீடு: ஆ"), "-ஃ> வெளியீடு: ஆ\n+ஃ> வெளியீடு: அ"),
    (1, ("print அ", "ஃ1> வெளியீடு: ஆ", "ஃ2> வெளியீடு: அ"), "-ஃ> வெளியீடு: ஆ\n+ஃ> வெளியீடு: அ"),
    (2, ("print அ", "ஃ1> வெளியீடு: அ"), "--rewrite"),
    (2, ("error 106 2 502", "error 107 3 506", "ஃ2> பிழை: பொழி-502 வரி 2"), "+ஃ> பிழை: பொழி-506 வரி 3"),
    (2, ("error 106 2 502", "ஃ2> பிழை: பொழி-502 வரி 3"), "+ஃ> பிழை: பொழி-502 வரி 2"),
    (2, ("crash 311 2 641", "ஃ2> இயக்கநேர பிழை: பொழி-640 வரி 2"), "+ஃ> இயக்கநேர பிழை: பொழி-641 வரி 2"),
    (2, ("crash 311 2 641", "ஃ2> இயக்கநேர பிழை: பொழி-641 வரி 2", "ஃ2> வெளியேற்றம்: 0"), "+ஃ> வெளியேற்றம்: 1"),
])
def test_edition_fails_and_shows_why(write, edition, lines, shown):
    assert shown in check(write(TITLE, *lines), edition)


def test_first_line_gives_way_to_the_marker(write):
    pair = write(TITLE, "print அ", "ஃ2> வெளியீடு: அ")
    assert pair.case(1).source.decode() == f"{TITLE}\nprint அ\n"
    assert pair.case(2).source.decode() == "ஃ பொழில் 2\nprint அ\n"


def test_reason_not_to_run(write):
    pair = write(TITLE, "hang", "ஃ1> சோதனை இல்லை: முடிவில்லை", "ஃ2> வெளியீடு: அ")
    assert (pair.not_run(1), pair.not_run(2)) == ("முடிவில்லை", None)


@pytest.mark.parametrize("lines", [
    ("print அ", "ஃ> வெளியீடு: அ"),
    (TITLE, "ஃ3> வெளியீடு: அ"),
    (TITLE, "ஃ1> வேறு: அ"),
    (TITLE, "ஃ1> பிழை: பொழி-106 வரி 2", "ஃ1> பிழை: பொழி-106 வரி 3"),
    (TITLE, "ஃ> வெளியேற்றம்: 0", "ஃ2> வெளியேற்றம்: 1"),
])
def test_unreadable_pair(write, lines):
    with pytest.raises(cf.CaseError):
        write(*lines)


@pytest.mark.parametrize("lines, rewritten", [
    (["print அ", "ஃ2> வெளியீடு: ஆ"], ["print அ", "ஃ1> வெளியீடு: அ", "ஃ2> வெளியீடு: ஆ"]),
    (["print அ", "ஃ2> வெளியீடு: அ"], ["print அ", "ஃ> வெளியீடு: அ"]),
    (["read", "ஃ> உள்ளீடு: அ", "ஃ2> வெளியீடு: ஆ"],
     ["read", "ஃ> உள்ளீடு: அ", "ஃ1> வெளியீடு: அ␃", "ஃ2> வெளியீடு: ஆ"]),
])
def test_rewriting_one_edition(write, lines, rewritten):
    pair = write(TITLE, *lines)
    pair.expectations[1] = observed_expectation(pair.case(1), COMPILER)
    write_pair(pair)
    assert pair.path.read_text(encoding="utf-8").splitlines() == [TITLE, *rewritten]


def test_pairs_are_collected_run_and_rewritten_from_the_command_line(tmp_path):
    for name in ("pytest.ini", "conftest.py", "surprises/conftest.py"):
        (tmp_path / name).parent.mkdir(exist_ok=True)
        shutil.copy(TESTS / name, tmp_path / name)
    pair = tmp_path / "surprises" / "அச்சு" / "ஒன்று.பொழில்"
    pair.parent.mkdir()
    pair.write_text(f"{TITLE}\nprint அ\nஃ1> வெளியீடு: ஆ\nஃ2> வெளியீடு: அ\n", encoding="utf-8")

    def pytest_run(*options):
        command = [sys.executable, "-m", "pytest", *options]
        env = {**os.environ, "PYTHONPATH": str(TESTS), "POZHIL_COMPILER": str(COMPILER)}
        return subprocess.run(command, cwd=tmp_path, env=env, capture_output=True, text=True).stdout

    first = pytest_run("surprises")
    assert "அச்சு/ஒன்று/first" in first and re.search("1 failed, 1 passed", first)
    assert re.search("1 passed", pytest_run(f"{pair}::first", "--rewrite"))
    assert pair.read_text(encoding="utf-8") == f"{TITLE}\nprint அ\nஃ> வெளியீடு: அ\n"
    assert re.search("2 passed", pytest_run("surprises"))
