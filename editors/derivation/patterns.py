"""The rules as regular expressions, as TextMate grammars (Oniguruma) and Kate (PCRE) both read them.

Tamil letters take marks, which no `\\b` counts to a word: words are told by the letters, marks and digits around them.
"""

import re

from .rules import Place

LETTER = r"[\p{L}_]"
INSIDE = r"[\p{L}\p{M}\p{N}_]"
NAME = rf"{LETTER}{INSIDE}*"
BEGIN = rf"(?<!{INSIDE[:-1]}.])"
END = rf"(?!{INSIDE})"

COMMENT = {1: rf"(?<!{INSIDE})ஃ", 2: rf"(?<!{INSIDE})ஃ(?!\p{{L}})"}
BLOCK_COMMENT = rf"(?<!{INSIDE})ஃஃ"
BLOCK_COMMENT_END = "ஃஃ"
MARKER = r"\x{FEFF}?[ \t]*ஃ[ \t]*பொழில்[ \t]+[2௨][ \t]*\r?$"
NUMBER = rf"{BEGIN}(?:[0-9]+(?:\.[0-9]+)?|[௦-௯]+)%?{END}"
ESCAPE = r"\\(?:[\"'\\ntr]|[0-7]{1,3})"
LETTER_TEXT = {1: r"'[^'\n]+'", 2: r"'(?:[^'\\\n]|\\.)+'"}
CALLED = rf"{BEGIN}{NAME}(?=[ \t]*\()"
MEMBER_CALLED = rf"(?<=\.){NAME}(?=[ \t]*\()"

LINE_PLACES = {
    Place.LINE_BEFORE_OPERAND, Place.LINE_BEFORE_BLOCK, Place.LINE_ELSE, Place.LINE_BEFORE_COLON,
}
NOT_GIVEN = r"(?![ \t]*=(?!>))"


def any_of(words):
    return "(?:" + "|".join(re.escape(word) for word in words) + ")"


def after(words):
    """That one of the words stands before."""
    return "(?<=" + "|".join(re.escape(word) + " " for word in words) + ")"


def declared(words):
    """The name after one of the words that declare it."""
    return after(words) + NAME


def pattern(rule, rules):
    """What a rule matches. That LINE_PLACES are first of a line isn't said here: editors say so in their own ways."""
    words = any_of(rule.words)
    not_operator = rf"(?!{any_of(rules.operators)}{END})"
    return {
        Place.ANYWHERE: rf"{BEGIN}{words}{END}{NOT_GIVEN}",
        Place.LINE_BEFORE_OPERAND: rf"{words}(?=[ \t]+{not_operator}[\p{{L}}\p{{N}}_\"'(\[])",
        Place.AFTER_MODIFIER: rf"{after(rules.modifiers)}{words}(?=[ \t]+{LETTER})",
        Place.LINE_BEFORE_BLOCK: rf"{words}(?=[ \t]*[:(])",
        Place.LINE_ELSE: rf"{words}(?=[ \t]*:|[ \t]+{rules.condition}{END})",
        Place.LINE_BEFORE_COLON: rf"{words}(?=[ \t]*:)",
        Place.ARGUMENT_BEFORE_COLON: rf"(?<=[(,]|[(,][ ]){words}(?=[ \t]*:)",
        Place.ARGUMENT_BEFORE_NAME: rf"(?<=[(,]|[(,][ ]){words}(?=[ \t]+{LETTER})",
        Place.BETWEEN_BLANKS: rf"(?<=[ \t]){words}(?=[ \t]+{not_operator}[^\s=:])",
        Place.BEFORE_BRACKET: rf"{BEGIN}{words}(?=[ \t]*\()",
        Place.AFTER_DOT: rf"(?<=\.){words}{END}",
        Place.AFTER_COLON: rf"(?<=:|:[ ]){words}{END}(?!\.)",
    }[rule.place]
