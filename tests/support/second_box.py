"""Reads the boxes of the second edition, row by row; a row that isn't as it must be makes it no box."""

import re

from support import texts as t
from support.box import Report
from support.catalogue import second_description_fits

_INNER_RULE = f"{t.DIM}  {t.RULE}{t.RESET}\n"


def _box():
    """The rows as one expression; what a box says stands in named groups."""

    def fixed(*texts):
        return re.escape("".join(texts))

    gutter = " {7,}"
    rows = [
        fixed("\n", t.RED, t.RULE, t.RESET, "\n"),
        fixed(t.BOX_TITLE, t.GOLD) + "(?P<code>[^\n]*)" + fixed(t.RESET, t.BOX_TITLE_MIDDLE, t.RED)
        + "(?P<category>[^\n]*)" + fixed(t.RESET, "\n"),
        fixed(t.RED, t.RULE, t.RESET, "\n"),
        "(?:" + fixed("  ", t.BLUE, t.BOX_FILE, t.RESET, ": ") + "(?P<file>[^\n]*)\n)?",
        "(?:" + fixed("  ", t.BLUE, t.BOX_PLACE, t.RESET, t.BOX_LINE) + "(?P<line>[1-9][0-9]*)\n)?",
        fixed(_INNER_RULE),
        "(?:" + fixed(t.CYAN, t.BOX_FOUND, t.RESET, "\n") + "    (?P<number>[0-9]{2,}) \\|  (?P<source>[^\n]*)\n"
        + f"(?:{gutter}\\|   *{re.escape(t.GOLD)}▲+{re.escape(t.RESET)}\n)?)?",
        fixed(t.RED) + gutter + fixed(t.SECOND_BOX_CORNER) + "(?P<description>[^\x1b]*)" + fixed(t.RESET, "\n"),
        fixed(_INNER_RULE),
        "(?:" + fixed(t.CYAN, t.SECOND_BOX_WAY, t.RESET, "\n") + "(?: {5}[^\n]+\n)+" + fixed(_INNER_RULE) + ")?",
        fixed(t.GREEN, t.BOX_REMEDY, t.RESET, "\n"),
        "(?P<remedy>(?: {5}[^\n]+\n)+)",
        fixed(_INNER_RULE, "\n"),
    ]
    return "".join(rows)


_BOX = re.compile(_box())
_BOXES = re.compile("(?:" + re.sub(r"\(\?P<\w+>", "(?:", _box()) + r")+\Z")


def split_boxes(output):
    """Splits output that ends in boxes: the text before them, and a `Report` of each."""
    found = _BOXES.search(output)
    if not found:
        return output, []
    boxes = list(_BOX.finditer(output, found.start()))
    if not all(map(_is_consistent, boxes)):
        return output, []
    return output[: found.start()], [_report(box) for box in boxes]


def _report(box):
    return Report(box["code"], box["category"], box["file"] or "", int(box["line"] or 0), box["source"] or "",
                  box["description"], box["remedy"].strip(), "")


def _is_consistent(box):
    """A place has its file, the line stands in two rows, and the message goes with the code."""
    has_place = box["line"] is not None
    return (
        has_place == (box["number"] is not None)
        and (not has_place or (box["number"] == box["line"].zfill(2) and box["file"] is not None))
        and second_description_fits(box["code"], re.sub("\n *", "\n", box["description"]))
    )
