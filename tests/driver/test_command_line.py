"""The arguments of the compiler, and how it chooses the source."""

import json
import os
import random

import pytest

from support import texts as t
from support.console import animation_line, cannot_open_line
from support.workplace import NOBODY


def program(text):
    return f'அச்சிடு("{text}")\n'


@pytest.mark.parametrize("arguments", [
    ["அ.பொழில்"],
    ["ஆ.பொழில்", "அ.பொழில்"],
    ["இல்லை.பொழில்", "அ.பொழில்"],
    ["--வேறு", "அ.பொழில்", "-V", "", "--"],
    ["அ.பொழில்", "ஆ.txt", "ஆ.pozhil", "ஆ.பொழில்.bak", "ஆபொழில்", "ஆ.பொழில"],
])
def test_last_source_is_compiled_and_other_arguments_are_ignored(place, arguments):
    place.write("அ.பொழில்", program("ஒன்று"))
    place.write("ஆ.பொழில்", program("இரண்டு"))
    result = place.run(*arguments)
    assert (result.status, result.err) == (0, "")
    assert animation_line("அ.பொழில்") in result.out
    assert t.DEFAULT_SOURCE_NOTE not in result.out
    assert "ஒன்று" in place.own_emitted and "இரண்டு" not in place.own_emitted


def test_ending_alone_is_a_source(place):
    assert animation_line(t.SOURCE_ENDING) in place.run(place.write(t.SOURCE_ENDING)).out


@pytest.mark.parametrize("arguments", [[], ["உரை.txt"], ["நிரல்.pozhil"], [""], ["--Version"], ["பதிப்பு"]])
def test_default_source(place, arguments):
    place.write(t.DEFAULT_SOURCE)
    result = place.run(*arguments)
    assert (result.status, result.err) == (0, "")
    assert result.out.startswith(t.DEFAULT_SOURCE_NOTE)
    assert animation_line(t.DEFAULT_SOURCE) in result.out


def test_no_arguments_and_no_default_source(place):
    result = place.run()
    assert (result.status, result.out, result.err) == (1, "", t.USAGE)


@pytest.mark.parametrize("arguments", [["உரை.txt"], [t.FLAG_WATCH], [t.FLAG_WEB], [""], ["நிரல்.pozhil", "--"]])
def test_no_source_and_no_default_source(place, arguments):
    result = place.run(*arguments)
    assert (result.status, result.out, result.err) == (1, "", t.NO_SOURCE)


@pytest.mark.parametrize("path", ["இல்லை.பொழில்", "அடைவு/இல்லை.பொழில்", "'\"$(touch x)`touch x`.பொழில்"])
@pytest.mark.parametrize("flags", [[], [t.FLAG_WEB], [t.FLAG_WATCH]])
def test_missing_source(place, path, flags):
    place.write(t.DEFAULT_SOURCE)
    result = place.run(path, *flags)
    assert (result.status, result.out, result.err) == (1, "", cannot_open_line(path))
    assert os.listdir(place.folder) == [t.DEFAULT_SOURCE]


def test_unreadable_source(installed_place):
    name = installed_place.write("பூட்டு.பொழில்")
    (installed_place.folder / name).chmod(0)
    result = installed_place.run(name, user=NOBODY)
    assert (result.status, result.out, result.err) == (1, "", cannot_open_line(name))


def test_unreadable_default_source(installed_place):
    (installed_place.folder / installed_place.write(t.DEFAULT_SOURCE)).chmod(0)
    result = installed_place.run(user=NOBODY)
    assert (result.status, result.out, result.err) == (1, "", t.USAGE)


def test_directory_in_place_of_a_source(place):
    (place.folder / "அடைவு.பொழில்").mkdir()
    result = place.run("அடைவு.பொழில்")
    assert (result.status, result.out, result.err) == (1, "", cannot_open_line("அடைவு.பொழில்"))


def test_directory_in_place_of_the_default_source(place):
    (place.folder / t.DEFAULT_SOURCE).mkdir()
    assert place.run().status == 1


def test_source_in_another_directory_is_compiled_in_this_one(place):
    (place.folder / "அடைவு").mkdir()
    place.write("அடைவு/அ.பொழில்")
    assert place.run("அடைவு/அ.பொழில்").status == 0
    assert place.emitted_path.exists()
    assert os.listdir(place.folder / "அடைவு") == ["அ.பொழில்"]


def test_any_list_of_arguments_ends_in_an_orderly_way(place):
    """Nothing in this folder can be opened, so what follows from a list is known beforehand."""
    version_screen = place.run("-v").stdout
    random_source = random.Random(20240115)
    pieces = [b"", b"-", b"--", b"-x", b"a\nb", b"\xff\xfe", "அ".encode(), b"$(x)", b"'\"", b" ", b"%s", b"x" * 100000,
              t.FLAG_WEB.encode(), t.FLAG_WATCH.encode(), *(switch.encode() for switch in t.VERSION_SWITCHES)]
    ending = t.SOURCE_ENDING.encode()
    pieces += [ending, b"\xff" + ending, b"x" * 5000 + ending, "அ/ஆ".encode() + ending, b"%s%n" + ending]
    for _ in range(100):
        arguments = random_source.choices(pieces, k=random_source.randint(0, 6))
        result = place.run(*arguments, timeout=10)
        assert (result.status, result.stdout, result.stderr) == outcome_in_an_empty_folder(arguments, version_screen)


def test_vocabulary_is_printed_in_place_of_compiling(place):
    place.write("அ.பொழில்")
    result = place.run("அ.பொழில்", t.FLAG_VOCABULARY)
    assert (result.status, result.stderr) == (0, b"")
    tables = json.loads(result.stdout)
    assert all(tables.values())
    assert not place.emitted_path.exists()


def test_vocabulary_is_asked_for_by_its_whole_name(place):
    assert place.run(t.FLAG_VOCABULARY[:-1]).stderr.decode() == t.NO_SOURCE


def outcome_in_an_empty_folder(arguments, version_screen):
    if not arguments:
        return 1, b"", t.USAGE.encode()
    source = None
    for argument in arguments:
        if argument in [switch.encode() for switch in t.VERSION_SWITCHES]:
            return 0, version_screen, b""
        if argument.endswith(t.SOURCE_ENDING.encode()):
            source = argument
    if source is None:
        return 1, b"", t.NO_SOURCE.encode()
    return 1, b"", t.CANNOT_OPEN_BEFORE.encode() + source + t.CANNOT_OPEN_BEHIND.encode() + b"\n"
