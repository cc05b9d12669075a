"""The catalogues of diagnostics, as the compiler and its programs include them."""

import ast
import re

from support.compiler import REPOSITORY

CATALOGUE = REPOSITORY / "உள்ளடக்கம்" / "error_codes.h"
SECOND_CATALOGUE = REPOSITORY / "src" / "report"

_TEXT = r'"(?:[^"\\]|\\.)*"'
_ROW = re.compile(rf"^    \{{({_TEXT}),\s*({_TEXT}),\s*{_TEXT}\}},$", re.MULTILINE)

_SECOND_ROW = re.compile(rf"^    \{{([0-9]{{3}}), \w+,\s*({_TEXT}),", re.MULTILINE)
_HOLE = re.compile(r"\\{[1-9]\\}")


def _read(catalogue):
    """Code to what is wrong. The escapes that a text may hold are the same in C++ and in Python."""
    return {ast.literal_eval(code): ast.literal_eval(description) for code, description in _ROW.findall(catalogue)}


DESCRIPTIONS = _read(CATALOGUE.read_text(encoding="utf-8"))


def _read_second(rows):
    """Code to what is wrong, with holes such as {1}."""
    return {f"பொழி-{number}": ast.literal_eval(message) for number, message in _SECOND_ROW.findall(rows)}


SECOND_DESCRIPTIONS = _read_second(
    "".join(path.read_text(encoding="utf-8") for path in SECOND_CATALOGUE.glob("catalogue_*.cpp")))


def second_description_fits(code, text):
    """Whether `text` is what is wrong by this code, whatever stands in the holes."""
    description = SECOND_DESCRIPTIONS.get(code)
    return description is not None and re.fullmatch(_HOLE.sub("(?s:.*)", re.escape(description)), text) is not None
