"""The catalogue of diagnostics, as the compiler and its programs include it."""

import ast
import re

from support.compiler import REPOSITORY

CATALOGUE = REPOSITORY / "உள்ளடக்கம்" / "error_codes.h"

_TEXT = r'"(?:[^"\\]|\\.)*"'
_ROW = re.compile(rf"^    \{{({_TEXT}),\s*({_TEXT}),\s*{_TEXT}\}},$", re.MULTILINE)


def _read(catalogue):
    """Code to what is wrong. The escapes that a text may hold are the same in C++ and in Python."""
    return {ast.literal_eval(code): ast.literal_eval(description) for code, description in _ROW.findall(catalogue)}


DESCRIPTIONS = _read(CATALOGUE.read_text(encoding="utf-8"))
