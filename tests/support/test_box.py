"""The reader of boxes takes a box as it must be, and nothing that differs from it."""

import pytest

from support import texts as t
from support.box import Report, split_compiler_box, split_program_box


LONE_SIGNS = "தனித்த உயிர்மெய் குறிகள் பயன்படுத்தப்பட்டுள்ளன."


def rows(dim=t.DIM, code="பொழி-106", line=7, number="07", description=LONE_SIGNS):
    inner_rule = f"{dim}  {t.RULE}{t.RESET}"
    return [
        "",
        f"{t.RED}{t.RULE}{t.RESET}",
        f"  🚨 [ {t.GOLD}{code}{t.RESET} ] :: {t.RED}சொல் பிழை{t.RESET}",
        f"{t.RED}{t.RULE}{t.RESET}",
        f"  {t.BLUE}📂 கோப்பு  {t.RESET}: அ.பொழில்",
        f"  {t.BLUE}📍 இடம்    {t.RESET}: வரி {line}",
        inner_rule,
        f"{t.CYAN}  🔍 பிழை கண்டறியப்பட்ட பகுதி:{t.RESET}",
        f"    {number} |  ாஅ = 1",
        f"       |  {t.GOLD}        ▲{t.RESET}",
        f"{t.RED}       ╰── மச்சி, {description}{t.RESET}",
        inner_rule,
        f"{t.GREEN}  💡 சரி செய்யும் முறை:{t.RESET}",
        "     சேர்த்துப் பயன்படுத்து.",
        inner_rule,
        f'  {t.GOLD}✨ "தமிழ் வெல்லும்"{t.RESET}',
        inner_rule,
        "",
    ]


def text(box):
    return "".join(row + "\n" for row in box)


def test_compiler_box_is_read():
    before, report = split_compiler_box("முன்\n" + text(rows()))
    assert before == "முன்\n"
    assert report == Report(code="பொழி-106", category="சொல் பிழை", file="அ.பொழில்", line=7, source="ாஅ = 1",
                            description=LONE_SIGNS, remedy="சேர்த்துப் பயன்படுத்து.", saying="தமிழ் வெல்லும்")


def test_program_box_has_one_empty_row_more():
    box = rows(dim=t.DIM_GREY)
    box.insert(15, "")
    assert split_program_box("1\n" + text(box))[1].line == 7
    assert split_program_box(text(rows(dim=t.DIM_GREY)))[1] is None
    assert split_compiler_box(text(box))[1] is None


@pytest.mark.parametrize("line, number", [(1, "01"), (10, "10"), (100, "100")])
def test_line_has_two_digits_at_least_beside_its_text(line, number):
    assert split_compiler_box(text(rows(line=line, number=number)))[1].line == line


def test_detail_stands_behind_what_is_wrong():
    detailed = rows(code="பொழி-302", description="வகை மாற்றப் பிழை (அ)")
    assert split_compiler_box(text(detailed))[1].description == "வகை மாற்றப் பிழை (அ)"


@pytest.mark.parametrize("changes", [
    {"line": 8}, {"number": "7"}, {"line": 10, "number": "010"}, {"code": "பொழி-105"}, {"code": "106"},
    {"dim": t.DIM_GREY}, {"description": "தனித்த உயிர்மெய் குறிகள்"},
])
def test_box_that_contradicts_itself_is_none(changes):
    assert split_compiler_box(text(rows(**changes)))[1] is None


@pytest.mark.parametrize("row", range(len(rows())))
def test_every_row_counts(row):
    without, doubled, blank_behind = rows(), rows(), rows()
    del without[row]
    doubled.insert(row, doubled[row])
    blank_behind[row] += " "
    free_text = row in (4, 8, 13)
    for box in [without, doubled] + [blank_behind] * (not free_text):
        before, report = split_compiler_box(text(box))
        assert report is None or before
