"""The reader of the guide's pages, tried on small pages."""

from pathlib import Path

import pytest

from support import case_file as cf
from support import guide

PAGE = Path("பக்கம்.md")


def read(text):
    return guide.read_programs(guide.read_fences(PAGE, text))


def test_program_with_all_around_it():
    program, = read(
        "# Heading\n```sh\n./run\n```\n"
        "```பொழில் வட்டம்.பொழில்\nஅ = 1\n```\n```கோப்பு எண்கள்.txt\n1\n2\n```\n"
        "```பொழில்\nநூஇறக்கி \"வட்டம்\"\n\nஅச்சிடு(அ)\n```\ntext\n```உள்ளீடு\nமலர்\n```\n"
        "```வெளியீடு\n1\n\n 2\n```\n```இயக்கநேர_பிழை\nபொழி-311 வரி 2\n```\n"
    )
    assert program.fence.line == 12
    assert program.fence.text == 'நூஇறக்கி "வட்டம்"\n\nஅச்சிடு(அ)\n'
    assert program.files == {"வட்டம்.பொழில்": "அ = 1\n", "எண்கள்.txt": "1\n2\n"}
    assert program.entries == [
        (cf.INPUT, "மலர்"), (cf.OUTPUT, "1"), (cf.OUTPUT, ""), (cf.OUTPUT, " 2"), (cf.RUNTIME, "பொழி-311 வரி 2"),
    ]


def test_files_belong_to_the_next_program_only():
    first, second = read("```கோப்பு அ.txt\n1\n```\n" + "```பொழில்\nஅச்சிடு(1)\n```\n```வெளியீடு\n1\n```\n" * 2)
    assert first.files == {"அ.txt": "1\n"}
    assert second.files == {}


def test_case_runs_beside_its_files(tmp_path):
    program, = read("```பொழில் கருவி/அ.பொழில்\nஅ = 1\n```\n```பொழில்\nஅச்சிடு(அ)\n```\n```பிழை\nபொழி-106 வரி 1\n```\n")
    case = guide.as_case(program, tmp_path)
    assert case.source == "அச்சிடு(அ)\n".encode()
    assert (case.files / "கருவி" / "அ.பொழில்").read_text(encoding="utf-8") == "அ = 1\n"
    assert case.expectation.diagnostic == cf.Place("பொழி-106", 1)


def test_web_program_needs_no_expectation(tmp_path):
    program, = read("```பொழில்-வலை\nவலைதளம்(\n)\n```\n")
    case = guide.as_case(program, tmp_path)
    assert case.expectation.texts(cf.EMITTED) and not case.expectation.needs_program


def test_what_is_marked_as_no_program_is_left_alone():
    assert read("```துண்டு\nஅ = ...\n```\n```text\n```பொழில் inside\n```\n```சொற்கள்\nஅ ஆ\n```\n") == []


@pytest.mark.parametrize("text, trouble", [
    ("```பொழில்\nஅ = 1\n```\n", ":1: nothing says what must come out"),
    ("```பொழில்\nஅ = 1\n```\n```உள்ளீடு\nமலர்\n```\n", ":1: nothing says what must come out"),
    ("\n```வெளியீடு\n1\n```\n", ":2: no program stands before this வெளியீடு"),
    ("```பொழில்\nஅ = 1\n```\n```கோப்பு அ.txt\n1\n```\n```வெளியீடு\n1\n```\n", ":7: no program stands before"),
    ("```பொழில்\nஅச்சிடு(1)\n```\n```வெளியிடு\n1\n```\n", ":4: unknown tag 'வெளியிடு'"),
    ("```பொழில்\nஅச்சிடு(1)\n", ":1: the fence isn't closed"),
    ("- list\n  ```பொழில்\n  அச்சிடு(1)\n  ```\n", ":2: a fence begins"),
    ("```\nஅச்சிடு(1)\n```\n", ":1: unknown tag ''"),
    ("```கோப்பு அ.txt\n1\n```\n", ":1: no program stands behind this file"),
])
def test_page_that_is_not_understood(text, trouble):
    with pytest.raises(guide.GuideError, match=trouble):
        read(text)


def test_rows_of_tables_without_their_heads():
    text = "| A | B |\n| --- | :-: |\n| 1 | `x` |\n| 2 | |\ntext\n|no|table|\n"
    assert guide.table_rows(PAGE, text) == [["1", "`x`"], ["2", ""], ["no", "table"]]
