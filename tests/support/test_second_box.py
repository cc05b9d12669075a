"""The reader of the second edition's boxes takes a box as it must be, and nothing that differs from it."""

import pytest

from support import texts as t
from support.box import Report
from support.second_box import split_boxes

TWICE = "'ஃ பொழில் 2' என்ற வரி இரண்டாம் முறை வந்துள்ளது."


def rows(code="பொழி-502", line=7, number="07", description=TWICE):
    inner_rule = f"{t.DIM}  {t.RULE}{t.RESET}"
    return [
        "",
        f"{t.RED}{t.RULE}{t.RESET}",
        f"  🚨 [ {t.GOLD}{code}{t.RESET} ] :: {t.RED}கோப்புப் பிழை{t.RESET}",
        f"{t.RED}{t.RULE}{t.RESET}",
        f"  {t.BLUE}📂 கோப்பு  {t.RESET}: அ.பொழில்",
        f"  {t.BLUE}📍 இடம்    {t.RESET}: வரி {line}",
        inner_rule,
        f"{t.CYAN}  🔍 பிழை கண்டறியப்பட்ட பகுதி:{t.RESET}",
        f"    {number} |  ஃ பொழில் 2",
        f"       |  {t.GOLD}▲▲▲{t.RESET}",
        f"{t.RED}       ╰── மச்சி, {description}{t.RESET}",
        inner_rule,
        f"{t.GREEN}  💡 சரி செய்யும் முறை:{t.RESET}",
        "     ஒரு வரியை நீக்கு.",
        inner_rule,
        "",
    ]


def text(box):
    return "".join(row + "\n" for row in box)


def test_box_is_read():
    assert split_boxes("முன்\n" + text(rows())) == ("முன்\n", [
        Report(code="பொழி-502", category="கோப்புப் பிழை", file="அ.பொழில்", line=7, source="ஃ பொழில் 2",
               description=TWICE, remedy="ஒரு வரியை நீக்கு.", saying="")])


def test_boxes_are_read_in_order():
    before, reports = split_boxes("முன்\n" + text(rows()) + text(rows(line=12, number="12")))
    assert (before, [report.line for report in reports]) == ("முன்\n", [7, 12])


def test_way_of_calls_stands_before_the_remedy():
    box = rows()
    box[12:12] = [f"{t.CYAN}  🧭 இங்கே வந்த வழி:{t.RESET}", "     'f' அழைக்கப்பட்ட இடம்: அ.பொழில், வரி 3", box[11]]
    assert split_boxes(text(box))[1][0].line == 7


def test_box_without_a_place_has_no_excerpt():
    box = rows()
    del box[7:10], box[4:6]
    assert split_boxes(text(box))[1][0].line == 0


@pytest.mark.parametrize("changes", [
    {"line": 8}, {"number": "7"}, {"line": 10, "number": "010"}, {"code": "பொழி-503"}, {"code": "502"},
    {"description": "வேறொன்று"},
])
def test_box_that_contradicts_itself_is_none(changes):
    assert split_boxes(text(rows(**changes)))[1] == []


def test_output_after_a_box_makes_it_no_box_at_the_end():
    assert split_boxes(text(rows()) + "பின்\n")[1] == []


@pytest.mark.parametrize("row", [row for row in range(len(rows())) if row not in (9, 13)])
def test_every_row_counts(row):
    without, doubled = rows(), rows()
    del without[row]
    doubled.insert(row, doubled[row])
    for box in (without, doubled):
        before, reports = split_boxes(text(box))
        assert reports == [] or before
