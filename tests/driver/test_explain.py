"""The word விளக்கு of the command பொழில்: what it tells of a fault's number, of either edition."""

import pytest

from support import case_file as cf
from support import guide
from support.process import run
from support.vocabulary import vocabulary

OK, WRONG_USE = 0, 2
RIGHT, WRONG = "சரியான நிரல் · Right", "தவறான நிரல் · Wrong"


@pytest.fixture
def explain(place):
    """Runs the word in a working directory, and looks that it leaves nothing there."""
    def explain_with(*arguments, word="விளக்கு"):
        result = run([place.compiler.parent / "பொழில்", word, *arguments], cwd=place.folder, env=place.env)
        assert list(place.folder.iterdir()) == []
        return result
    return explain_with


@pytest.mark.parametrize("argument", ["பொழி-304", "304", "௩௦௪", "பொழி-௩0௪", "0304"])
def test_a_number_is_known_in_every_way_of_writing_it(explain, argument):
    result = explain(argument)
    assert (result.status, result.err) == (OK, "")
    assert result.out.startswith("பொழி-304: தவறான கணிதச் செயல்பாடு.\n")
    assert "\n    அச்சிடு([1] கூட்டு [2])\n" in result.out.split(WRONG)[1].split(RIGHT)[0]
    assert "\n    அ.சேர்(2)\n" in result.out.split(RIGHT)[1]


def test_english_word_is_the_same(explain):
    assert explain("304", word="explain").out == explain("304").out


def shown_codes():
    """Those that a program of the list of errors comes to."""
    programs = guide.read_programs(guide.read_fences(guide.ERROR_PAGE))
    return {text.split()[0] for program in programs for kind, text in program.entries if kind in (cf.DIAGNOSTIC, cf.RUNTIME)}


def test_cause_remedy_and_message_are_those_of_the_catalogue(explain):
    rows = {row["code"]: row for row in vocabulary()["diagnostics"]}
    for code in sorted(shown_codes()):
        told, row = explain(code).out, rows.get(code)
        assert WRONG in told and RIGHT in told, f"{code} has no programs"
        if row is None:
            continue  # of the second edition, which the vocabulary doesn't list
        assert told.startswith(f"{code}: {row['description']}\n")
        assert f"\nகாரணம் · Cause\n  {row['cause']['ta']}\n  {row['cause']['en']}\n" in told
        assert f"\nதீர்வு · Remedy\n  {row['remedy']}\n" in told


def test_program_without_a_fault_after_another_fault_is_not_its_right_one(explain):
    # The web page's own 303 stands far below the first one, which is the one that is shown.
    assert "வலைதளம்" not in explain("303").out


def test_lines_of_a_program_keep_their_indentation_and_blank_lines(explain):
    assert "\n    செயல் வாழ்த்து():\n        அச்சிடு(\"வணக்கம்\")\n\n    வாழ்த்து()\n" in explain("203").out


def test_number_of_the_second_edition(explain):
    told = explain("551")
    assert (told.status, told.err) == (OK, "")
    assert told.out.startswith("பொழி-551: ")
    assert "{" not in told.out, "the holes of the message must not show"
    assert "\n    ஃ பொழில் 2\n    வயது = 12\n    அச்சிடு(வயசு)\n" in told.out.split(WRONG)[1].split(RIGHT)[0]
    assert "\n    ஃ பொழில் 2\n    வயது = 12\n    அச்சிடு(வயது)\n" in told.out.split(RIGHT)[1]


@pytest.mark.parametrize("code", ["691", "692", "693"])
def test_number_of_tests_has_tests_for_programs(explain, code):
    told = explain(code).out
    for program in (told.split(WRONG)[1].split(RIGHT)[0], told.split(RIGHT)[1]):
        assert "\n    ஃ பொழில் 2\n" in program and "செயல் சோதி_" in program


def test_number_of_the_second_edition_without_programs(explain):
    told = explain("502")
    assert told.status == OK
    assert "தீர்வு · Remedy" in told.out and WRONG not in told.out


def test_number_that_nothing_raises(explain):
    assert "இப்போது எதுவும் இதை எழுப்புவதில்லை" in explain("107").out


def test_list_of_all_numbers(explain):
    result = explain()
    lines = result.out.rstrip("\n").split("\n")
    numbers = [int(line.split("  ")[0].removeprefix("பொழி-")) for line in lines]
    assert result.status == OK
    assert numbers == sorted(set(numbers))
    assert {101, 304, 402, 501, 551} <= set(numbers)
    assert all(line.split("  ", 1)[1].strip() for line in lines)


@pytest.mark.parametrize("argument, nearest", [("600", "599"), ("1", "101"), ("99999999999999999999", None), ("3o4", None),
                                               ("", None), ("-304", None), ("பொழி-", None), ("304 ", None)])
def test_unknown_number(explain, argument, nearest):
    result = explain(argument)
    assert (result.status, result.out) == (WRONG_USE, "")
    assert "பொழில் விளக்கு" in result.err
    if nearest:
        assert f"அருகில் உள்ளது பொழி-{nearest}" in result.err


def test_two_numbers(explain):
    result = explain("304", "305")
    assert (result.status, result.out) == (WRONG_USE, "")
    assert "'305' இரண்டாவது" in result.err


def test_help(explain):
    result = explain("--உதவி")
    assert (result.status, result.err) == (OK, "")
    assert result.out.startswith("பொழில் விளக்கு [எண்]\n")
