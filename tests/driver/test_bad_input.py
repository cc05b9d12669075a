"""Sources that nobody meant as programs: the compiler ends in an orderly way, and soon."""

import os
import random

import pytest

from support import texts as t
from support.box import split_compiler_box
from support.console import behind_animation, failed_build_line, hint_lines
from support.vocabulary import language_words
from support.workplace import HELLO

SOON = 20

EMPTY_MAIN = "int main() {\nreturn 0;\n}\n"

MANY = 100_000
MEGABYTE = 1_000_000

LANGUAGE = [*language_words(), "அ", "ஆ", "தான்", "1", "2.5", "௧௨", "50%", '"சரம்"', "'எ'", "(", ")", "[", "]", "{", "}",
            ",", ":", ".", "?", "=", "=>", "*", ";", "\n", "\n    ", "\n        ", "ஃ", "ஃஃ"]


@pytest.fixture(autouse=True)
def nothing_is_linked(tools):
    tools.fails()


def compile_soon(place, contents):
    """Compiles `contents` up to the call of g++; status 1 comes with a diagnostic or a message, and only with one."""
    result = place.compile(contents, timeout=SOON)
    assert not result.timed_out, "no end in sight"
    _, report = split_compiler_box(result.out)
    if result.status == 0:
        _, errors = hint_lines(result.err, "நிரல்.பொழில்")
        assert report is None and errors == failed_build_line()
    else:
        assert result.status == 1, f"ended by {result}"
        assert report or result.err.strip()
    return result


def code(result):
    _, report = split_compiler_box(result.out)
    return report and (report.code.removeprefix(t.CODE_PREFIX), report.line)


@pytest.mark.parametrize("contents", [
    "", "\n", "\n\n\n", "    \n", "  \n    \n", "\r\n\r\n", "ஃ", "ஃ குறிப்பு", "ஃ குறிப்பு\n", "    ஃ குறிப்பு\n", ";",
    "ஃஃ குறிப்பு\nஇரண்டு வரி ஃஃ", "\0", "\0அச்சிடு(",
])
def test_source_that_holds_nothing(place, contents):
    assert compile_soon(place, contents).status == 0
    assert place.own_emitted.endswith(EMPTY_MAIN)


@pytest.mark.parametrize("contents, line", [("    ", 1), ("\n  \n ", 3), (HELLO + "    ", 2)])
def test_blanks_on_the_last_line_indent_a_statement_that_is_missing(place, contents, line):
    assert code(compile_soon(place, contents)) == ("111", line)


def test_empty_program_runs_and_prints_nothing(real_place):
    result = real_place.compile("")
    assert (result.status, behind_animation(result.out, "நிரல்.பொழில்"), result.err) == (0, "", "")


def test_everything_behind_a_nul_byte_is_dropped(place):
    compile_soon(place, HELLO)
    plain = place.emitted
    assert compile_soon(place, HELLO + "\0(((").status == 0
    assert place.emitted == plain


def test_line_ends_of_other_systems(place):
    program = 'அச்சிடு("ஒன்று")\n\n    \nஅச்சிடு("இரண்டு")\n'
    compile_soon(place, program)
    plain = place.emitted
    assert compile_soon(place, program.replace("\n", "\r\n")).status == 0
    assert place.emitted == plain


@pytest.mark.parametrize("cut", [1, 2])
@pytest.mark.parametrize("before", ["", "அச்சிடு(1)\n", "அச்சிடு", "அச்சிடு('", "ஃ ", "ஃஃ ", "ஃ", "௧"])
def test_file_ends_within_a_letter(place, before, cut):
    compile_soon(place, (before + "அ").encode()[:-cut])


def test_string_with_the_file_ending_within_a_letter_is_open(place):
    assert code(compile_soon(place, 'அச்சிடு("அ'.encode()[:-1])) == ("102", 1)


@pytest.mark.parametrize("seed", range(8))
def test_noise(place, seed):
    source = random.Random(seed)
    for _ in range(25):
        compile_soon(place, source.randbytes(source.choice([1, 3, 10, 100, 1000])))


@pytest.mark.parametrize("seed", range(4))
def test_noise_of_tamil_letters(place, seed):
    source = random.Random(seed)
    for _ in range(25):
        letters = source.choices(range(0x0B80, 0x0C00), k=source.choice([2, 10, 200]))
        blanks = source.choices([" ", "\n", "", "", "\t", "\u200c", "("], k=len(letters))
        compile_soon(place, "".join(chr(letter) + blank for letter, blank in zip(letters, blanks)))


@pytest.mark.parametrize("seed", range(8))
def test_noise_of_words(place, seed):
    source = random.Random(seed)
    for _ in range(40):
        words = source.choices(LANGUAGE, k=source.choice([2, 5, 10, 50]))
        compile_soon(place, " ".join(words).replace("\n ", "\n"))


@pytest.mark.parametrize("seed", range(4))
def test_damaged_programs(place, seed):
    program = (HELLO * 3 + "அ = 1 கூட்டு 2.5\nஅச்சிடு(அ, 'எ', மெய்)\nஃஃ குறிப்பு ஃஃ\n").encode()
    source = random.Random(seed)
    for _ in range(25):
        damaged = bytearray(program)
        for _ in range(source.randint(1, 3)):
            place_of_damage = source.randrange(len(damaged))
            damaged[place_of_damage:place_of_damage + source.randint(0, 2)] = source.randbytes(source.randint(0, 2))
        compile_soon(place, bytes(damaged))


@pytest.mark.parametrize("line", [
    'அச்சிடு("' + "அ" * (MEGABYTE // 3) + '")', "அ" * (MEGABYTE // 3), "a" * MEGABYTE, "1" * MEGABYTE,
    "௧" * (MEGABYTE // 3), "1." * (MEGABYTE // 2), " " * MEGABYTE, "\t" * MEGABYTE, ";" * MEGABYTE,
    "ஃ" + "அ" * (MEGABYTE // 3), "ஃஃ" + "அ" * (MEGABYTE // 3) + "ஃஃ", "அ = " + "1, " * (MEGABYTE // 3),
    "அச்சிடு(" + "1, " * (MEGABYTE // 3) + "1)",
], ids=lambda line: line[:9] + "...")
def test_line_of_a_megabyte(place, line):
    compile_soon(place, line + "\n")


def test_long_string_is_emitted_whole(place):
    text = "அ" * (MEGABYTE // 3)
    assert compile_soon(place, f'அச்சிடு("{text}")\n').status == 0
    assert text in place.emitted


@pytest.mark.parametrize("bracket", ["(", "[", "{"])
@pytest.mark.parametrize("before", ["", "அ = ", "அச்சிடு("])
def test_opening_brackets_without_end(place, before, bracket):
    assert compile_soon(place, before + bracket * MANY).status == 1


@pytest.mark.parametrize("program", [
    "அ = " + "[" * MANY + "]" * MANY,
    "அச்சிடு(" + "(" * MANY + "1" + ")" * MANY + ")",
    "அ" + "(அ" * MANY + ")" * MANY,
    "அ = " + '{"அ": ' * MANY + "1" + "}" * MANY,
    "அ = " + "குறை " * MANY + "1",
    "அ = " + "எதிர்இருமை " * MANY + "1",
    "அ = 1" + " கூட்டு 1" * MANY,
    "அ = 1" + " மற்றும் 1" * MANY,
    "அ = அ" + ".ஆ" * MANY,
    "அ = அ" + "[1]" * MANY,
    "அ" + "()" * MANY,
    "அ" + " = அ" * MANY,
    "அ = மெய்" + " ? 1 : மெய்" * MANY,
    "ஃஃ ஃஃ" * MANY,
    "ஃஃ\nஃஃ\n" * MANY,
    "ஃ\n" * MANY,
    ";" * MANY,
    "".join(" " * depth + "எனில் (மெய்):\n" for depth in range(2000)),
    "".join(" " * depth + "அ\n" for depth in range(2000)),
], ids=lambda program: program[:12] + "...")
def test_deep_nesting_and_long_chains(place, program):
    compile_soon(place, program + "\n")


def test_byte_order_mark(place):
    compile_soon(place, "\ufeff" + HELLO)


def test_source_that_links_to_itself(place):
    os.symlink("நிரல்.பொழில்", place.folder / "நிரல்.பொழில்")
    assert place.run("நிரல்.பொழில்", timeout=SOON).status == 1
