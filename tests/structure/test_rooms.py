"""Arrows between the rooms of the source point one way, and the reader of them sees one that doesn't."""

import pytest

import includes
from rooms import EXCEPTIONS, ROOMS


def test_rooms_use_only_rooms_above():
    assert includes.upward(ROOMS) == []


def test_every_source_stands_in_a_room():
    assert includes.without_room(includes.ROOT) == []


def test_no_include_leads_elsewhere():
    assert sorted(includes.forbidden(includes.ROOT) - EXCEPTIONS) == []


def test_exceptions_are_still_needed():
    assert sorted(EXCEPTIONS - includes.forbidden(includes.ROOT)) == []


def test_the_whole_source_is_read():
    read = set(includes.sources(includes.ROOT))
    assert {"src/main.cpp", "src/installation/web_drawing.c", "உள்ளடக்கம்/error_codes.h"} <= read
    assert {includes.room_of(file) for file in read} <= set(ROOMS)


@pytest.fixture
def house(tmp_path):
    """Writes a house of a few files, and tells what is forbidden in it."""

    def build(**added):
        files = {
            "src/base/utf8.h": "",
            "src/scanner/token.h": "",
            "src/parser/parser.h": "",
            "src/platform/paths.h": "",
            "உள்ளடக்கம்/error_codes.h": "",
        }
        files.update({path.replace("__", "/"): text for path, text in added.items()})
        for path, text in files.items():
            (tmp_path / path).parent.mkdir(parents=True, exist_ok=True)
            (tmp_path / path).write_text(text, encoding="utf-8")
        return includes.forbidden(tmp_path)

    return build


@pytest.mark.parametrize(
    "line",
    [
        '#include "base/utf8.h"',
        '#include "token.h"',
        '#include "scanner/token.h"',
        "#include <string>",
        '// #include "parser/parser.h"',
    ],
)
def test_downward_include_is_allowed(house, line):
    assert house(**{"src/scanner/lexer.cpp": line}) == set()


@pytest.mark.parametrize(
    ("line", "name"),
    [
        ('#include "parser/parser.h"', "parser/parser.h"),
        ('#include "../parser/parser.h"', "../parser/parser.h"),
        ("#include <parser/parser.h>", "parser/parser.h"),
        ('#  include  "parser/parser.h" // why', "parser/parser.h"),
        ('#include "platform/paths.h"', "platform/paths.h"),
        ('#include "error_codes.h"', "error_codes.h"),
        ('#include "nowhere.h"', "nowhere.h"),
        ('#include "nanovg.h"', "nanovg.h"),
        ("#include <unistd.h>", "unistd.h"),
        ("#include <sys/wait.h>", "sys/wait.h"),
    ],
)
def test_other_include_is_found(house, line, name):
    assert house(**{"src/scanner/lexer.cpp": f"#include <string>\n{line}\n"}) == {("src/scanner/lexer.cpp", name)}


def test_folder_without_a_line_belongs_to_the_room_around_it(house):
    text = '#include "scanner/token.h"\n#include "parser/parser.h"\n'
    assert house(**{"src/scanner/letters/vowels.h": text}) == {("src/scanner/letters/vowels.h", "parser/parser.h")}


def test_source_outside_all_rooms_is_found(tmp_path):
    (tmp_path / "src" / "attic").mkdir(parents=True)
    (tmp_path / "src" / "attic" / "box.cpp").touch()
    assert includes.without_room(tmp_path) == ["src/attic/box.cpp"]


def test_arrow_upward_in_the_table_is_found():
    rooms = {"low": [], "middle": ["low", "high"], "high": ["middle", "nowhere"]}
    assert includes.upward(rooms) == [("middle", "high"), ("high", "nowhere")]
