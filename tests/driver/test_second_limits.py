"""Programs of the second edition that go to their limits, or beyond: they run, or are told why they don't, and soon."""

import os

import pytest

from support.console import behind_animation
from support.process import run
from support.second_box import split_boxes

SOURCE = "அ.பொழில்"
MARKER = "ஃ பொழில் 2\n"
SOON = 60

MANY = 100_000
MEGABYTE = 1_000_000


def outcome(place, program, limit=None, **settings):
    """What the program prints, its boxes as (number, line), and the exit status."""
    place.write(SOURCE, program if isinstance(program, bytes) else MARKER + program)
    command = [place.compiler, SOURCE]
    if limit:
        command = ["/bin/sh", "-c", f'ulimit {limit} && exec "$0" "$@"', *command]
    result = run(command, cwd=place.folder, env=place.env, timeout=SOON, **settings)
    assert not result.timed_out, "no end in sight"
    assert result.err == ""
    before, boxes = split_boxes(result.out)
    output = behind_animation(before, SOURCE)
    return output or "", [(int(box.code[-3:]), box.line) for box in boxes], result.status


def nested(head, leaf, depth):
    lines = [" " * level + head.format(level) for level in range(depth)]
    return "".join(line + "\n" for line in [*lines, " " * depth + leaf])


# Nesting.


@pytest.mark.parametrize("head", [
    "எனில் ஒ சமம் 1:", "சுற்று ஒ சமம் 1:", "ஒவ்வொன்றாக எ{} இல் வரம்பு(ஒ):", "ஒவ்வொன்றாக எ{} இல் [ஒ]:",
])
def test_a_thousand_blocks_inside_each_other(real_place, head):
    leaf = 'அச்சிடு("உள்ளே"); ஒ = 0'
    assert outcome(real_place, "ஒ = 1\n" + nested(head, leaf, 1000)) == ("உள்ளே\n", [], 0)


def test_functions_inside_functions(real_place):
    calls = "".join(" " * level + f"செயல்{level}()\n" for level in reversed(range(400)))
    program = nested("செயல் செயல்{}():", 'அச்சிடு("உள்ளே")', 400) + calls
    assert outcome(real_place, program) == ("உள்ளே\n", [], 0)


def test_tries_inside_tries(real_place):
    handlers = "".join(f"{' ' * level}பிடி:\n{' ' * level} அச்சிடு({level})\n" for level in reversed(range(400)))
    assert outcome(real_place, nested("முயற்சி:", "அச்சிடு([][0])", 400) + handlers) == ("399\n", [], 0)


@pytest.mark.parametrize("head", ["எனில் மெய்:", "சுற்று மெய்:", "செயல் அ{}():"])
def test_blocks_that_nest_too_deeply_are_told(place, head):
    _, boxes, status = outcome(place, nested(head, "விடு", 3000))
    assert (status, boxes[0][0]) == (1, 547)


@pytest.mark.parametrize("opening, closing", [("(", ")"), ("[", "]"), ("{1: ", "}"), ("குறை ", ""), ("அ => ", ""), ("அ(", ")")])
def test_values_that_nest_too_deeply_are_told(place, opening, closing):
    program = "அ = 1\nஆ = " + opening * MANY + "1" + closing * MANY + "\n"
    assert outcome(place, program) == ("", [(547, 3)], 1)


@pytest.mark.parametrize("opening, closing", [("[", "]"), ("{1: ", "}")])
def test_lists_and_maps_inside_each_other(real_place, opening, closing):
    program = "அ = " + opening * 300 + "1" + closing * 300 + "\nஅச்சிடு(நீளம்(அ))\n"
    assert outcome(real_place, program) == ("1\n", [], 0)


def test_long_lists_and_maps(real_place):
    texts = ", ".join(f'"அ{number}"' for number in range(10_000))
    entries = ", ".join(f'"அ{number}": {number}' for number in range(10_000))
    program = f"ப = [{texts}]\nம = {{{entries}}}\nஅச்சிடு(நீளம்(ப), நீளம்(ம), ப[9999], ம[ப[5000]])\n"
    assert outcome(real_place, program) == ("1000010000அ99995000\n", [], 0)


# Recursion over values.


def test_values_that_nest_deeply_are_printed_compared_and_freed(real_place):
    program = """
செயல் ஆழமான(எத்தனை):
    ப = []
    ஒவ்வொன்றாக எ இல் வரம்பு(எத்தனை):
        ப = [{"அ": ப}]
    திரும்பு ப
அச்சிடு(ஆழமான(100000) சமம் ஆழமான(100000), " ", நீளம்("" இணை ஆழமான(100000)))
"""
    assert outcome(real_place, program) == ("மெய் 900002\n", [], 0)


def test_a_linked_list_of_a_million_objects_is_freed(real_place):
    program = """
கட்டமைப்பு கண்ணி:
    அடுத்தது = வெறுமை
முதல் = வெறுமை
ஒவ்வொன்றாக எ இல் வரம்பு(1000000):
    க = கண்ணி()
    க.அடுத்தது = முதல்
    முதல் = க
முதல் = வெறுமை
க = வெறுமை
அச்சிடு("சரி")
"""
    assert outcome(real_place, program) == ("சரி\n", [], 0)


def test_a_million_circles_of_objects_take_little_memory(real_place):
    program = """
கட்டமைப்பு கண்ணி:
    எதிர் = வெறுமை
    எண்ணம் = 0
ஒவ்வொன்றாக எ இல் வரம்பு(1000000):
    அ = கண்ணி()
    ஆ = கண்ணி()
    அ.எதிர் = ஆ
    ஆ.எதிர் = அ
அச்சிடு("சரி")
"""
    assert outcome(real_place, program) == ("சரி\n", [], 0)
    memory = ["/bin/sh", "-c", f"ulimit -v {300 * 1024} && exec {real_place.program_of(SOURCE)}"]
    result = run(memory, cwd=real_place.folder, env=real_place.env)
    assert (result.status, result.out) == (0, "சரி\n")


# Want of memory.

LIMITED = f"-v {400 * 1024}"


@pytest.mark.parametrize("begin, grow", [
    ("ப = []", "ப.சேர்([1, 2, 3])"), ('ப = "அம்மா"', "ப = ப இணை ப"), ("ப = {}", 'ப[நீளம்(ப)] = "அ" இணை நீளம்(ப)'),
    ("ப = வெறுமை", "ப = [ப, ப]"), ("ப = []", "ப.சேர்(() => ப)"),
])
def test_want_of_memory_is_told(real_place, begin, grow):
    output, boxes, status = outcome(real_place, f"{begin}\nசுற்று மெய்:\n    {grow}\n", LIMITED)
    assert (output, status) == ("", 1)
    assert [number for number, _ in boxes] == [641]


def test_want_of_memory_is_caught_and_the_program_goes_on(real_place):
    program = """
செயல் வளர்():
    ப = []
    சுற்று மெய்:
        ப.சேர்([1, 2, 3])
ஒவ்வொன்றாக எ இல் வரம்பு(2):
    முயற்சி:
        வளர்()
    பிடி:
        முயற்சி:
            வளர்()
        பிடி:
            அச்சிடு("மீண்டும்")
அச்சிடு(நீளம்(வரம்பு(1000)))
"""
    assert outcome(real_place, program, LIMITED) == ("மீண்டும்\nமீண்டும்\n1000\n", [], 0)


# Large texts.


def test_large_texts(real_place):
    text = "அ" * (MEGABYTE // 3)
    program = f"""
உரை = "{text}"
பெரியது = ""
ஒவ்வொன்றாக எ இல் வரம்பு(20):
    பெரியது = பெரியது இணை உரை
வரி = உள்ளீடு()
அச்சிடு(நீளம்(உரை), " ", நீளம்(பெரியது), " ", பெரியது[6000000], " ", நீளம்(வரி))
"""
    typed = ("க\u0bc6\u0bbe" * MEGABYTE + "\n").encode()
    assert outcome(real_place, program, stdin=typed) == ("333333 6666660 அ 1000000\n", [], 0)


def test_a_fault_in_a_line_of_a_megabyte_is_told(place):
    line = 'அ = "' + "அ" * (MEGABYTE // 3) + '" 5\n'
    assert outcome(place, line) == ("", [(530, 2)], 1)


# Names.


@pytest.mark.parametrize("name", ["café", "имя", "變數", "متغير", "ชื่อ", "이름", "ñ", "名前2", "a_б_அ", "ﬁ"])
def test_names_of_all_scripts(real_place, name):
    assert outcome(real_place, f"{name} = 5\nஅச்சிடு({name})\n") == ("5\n", [], 0)


@pytest.mark.parametrize("name, number", [
    ("😀", 505), ("\u0301a", 515), ("அ\u200bஆ", 509), ("அ\u202eஆ", 509), ("அ\u2066ஆ", 509), ("அ\x01ஆ", 505), ("அ\x7fஆ", 505),
    ("\u0bcdஅ", 515), ("அ\u00a0ஆ", 508), ("٣அ", 505),
])
def test_what_no_name_holds_is_told(place, name, number):
    _, boxes, status = outcome(place, f"{name} = 5\n")
    assert (status, boxes[0]) == (1, (number, 2))


def test_a_name_of_a_megabyte(real_place):
    name = "அ" * (MEGABYTE // 3)
    assert outcome(real_place, f"{name} = 5\nஅச்சிடு({name})\n") == ("5\n", [], 0)


def test_marks_without_end_on_one_letter(real_place):
    marks = "\u0316\u0301" * 10_000
    program = f'உரை = "a{marks}"\nஅச்சிடு(நீளம்(உரை), " ", உரை சமம் உள்ளீடு())\n'
    assert outcome(real_place, program, stdin=f"a{marks}\n".encode()) == ("1 மெய்\n", [], 0)


# The first line, and imports.


@pytest.mark.parametrize("source, box", [
    ("ஃ பொழில் 3\nஅச்சிடு(1)\n", (501, 1)), ("ஃ பொழில் 2\nஅ = 1\nஃ பொழில் 2\n", (502, 3)), ("\nஃ பொழில் 2\n", (503, 2)),
    ("ஃ குறிப்பு\n\nஃ பொழில் 2\n", (503, 3)), ("ஃ பொழில் 99999999999999999999\n", (501, 1)),
])
def test_a_marker_that_is_wrong(place, source, box):
    assert outcome(place, source.encode()) == ("", [box], 1)


@pytest.mark.parametrize("marker", ["", "ஃ பொழில் 2\n"])
def test_imports_with_and_without_the_marker(real_place, marker):
    real_place.write("ஆ.பொழில்", f"{marker}செயல் பாதி(எ):\n    திரும்பு எ வகு 2\n")
    assert outcome(real_place, 'நூஇறக்கி "ஆ"\nஅச்சிடு(பாதி(5))\n') == ("2.5\n", [], 0)


def test_imports_in_a_circle(real_place):
    real_place.write("ஆ.பொழில்", 'நூஇறக்கி "இ"\nசெயல் ஒன்று(எ):\n    திரும்பு எ சமம் 0 ? "முடிவு" : இரண்டு(எ கழி 1)\n')
    real_place.write("இ.பொழில்", 'நூஇறக்கி "ஆ"\nநூஇறக்கி "அ"\nசெயல் இரண்டு(எ):\n    திரும்பு ஒன்று(எ)\n')
    assert outcome(real_place, 'நூஇறக்கி "ஆ"\nஅச்சிடு(ஒன்று(5))\n') == ("முடிவு\n", [], 0)


def test_a_chain_of_many_imports(real_place):
    for number in range(300):
        body = f'நூஇறக்கி "ப{number + 1}"\nசெயல் செ{number}():\n    திரும்பு செ{number + 1}()\n'
        real_place.write(f"ப{number}.பொழில்", body)
    real_place.write("ப300.பொழில்", "செயல் செ300():\n    திரும்பு 300\n")
    assert outcome(real_place, 'நூஇறக்கி "ப0"\nஅச்சிடு(செ0())\n') == ("300\n", [], 0)


@pytest.mark.parametrize("make", [
    lambda path: path.mkdir(), lambda path: path.symlink_to("/dev/zero"), lambda path: path.symlink_to(path.name),
    os.mkfifo, lambda path: path.symlink_to("/proc/self/mem"),
], ids=["folder", "device", "circle", "pipe", "memory"])
def test_what_is_no_file_is_not_imported(place, make):
    make(place.folder / "ஆ.பொழில்")
    assert outcome(place, 'நூஇறக்கி "ஆ"\n') == ("", [(545, 2)], 1)


@pytest.mark.parametrize("contents", [b"\xff\xfe", b"\xe0\xae", b"\x00\x01\x02\xff" * 100])
def test_an_import_that_is_no_text_is_told(place, contents):
    place.write("ஆ.பொழில்", contents)
    _, boxes, status = outcome(place, 'நூஇறக்கி "ஆ"\n')
    assert (status, boxes[0][0]) == (1, 504)
