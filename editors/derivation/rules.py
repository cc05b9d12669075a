"""What editors colour: rules that hold in every editor, made of the tables that the compiler prints.

A rule says which words are of which kind, and where. Words that no variable may have the name of are told by themselves;
all others only where they stand as the language has them, since anyone may call a variable so.
"""

from dataclasses import dataclass
from enum import Enum


class Kind(Enum):
    """What a piece of a program is."""

    COMMENT = "comment"
    TEXT = "text"
    ESCAPE = "escape"
    NUMBER = "number"
    CONSTANT = "constant"
    CONTROL = "control"
    DECLARE = "declare"
    OPERATOR = "operator"
    WIDGET = "widget"
    PROPERTY = "property"
    BUILTIN = "builtin"
    FUNCTION = "function"
    TYPE = "type"
    CALL = "call"


class Place(Enum):
    """Where words are of their kind."""

    ANYWHERE = "but not as a member, and not where a value is given to that name"
    LINE_BEFORE_OPERAND = "first of a line, with a word, number or text after it"
    AFTER_MODIFIER = "after a word that says who may use what is declared"
    LINE_BEFORE_BLOCK = "first of a line, with a colon or bracket after it"
    LINE_ELSE = "first of a line, with a colon or a condition after it"
    LINE_BEFORE_COLON = "first of a line, with a colon after it"
    ARGUMENT_BEFORE_COLON = "first of an argument, with a colon after it"
    ARGUMENT_BEFORE_NAME = "first of an argument, with a name after it"
    BETWEEN_BLANKS = "between two blanks, with something after them"
    BEFORE_BRACKET = "with an opening bracket after it"
    AFTER_DOT = "as a member"
    AFTER_COLON = "as the value of a property"


@dataclass(frozen=True)
class Rule:
    kind: Kind
    place: Place
    words: tuple


@dataclass(frozen=True)
class Rules:
    """All that is coloured by words. Of rules that fit at one place, the first counts."""

    common: list
    # What only the second edition has.
    second: list
    # Words with the name after them that they declare: (kind of the name, words).
    declarations: list
    operators: tuple
    # Words before a declaration that say who may use it.
    modifiers: tuple
    condition: str


class Trouble(Exception):
    """A word of the vocabulary of which nobody said where it counts."""


CONSTANT_TOKEN = 5
MODIFIER_TOKEN = 6
DECLARING_FUNCTIONS = {"செயல்"}
DECLARING_TYPES = {"கட்டமைப்பு", "வடிவமைப்பு", "வகை", "வலைதளம்"}
DECLARING = DECLARING_FUNCTIONS | DECLARING_TYPES | {"வினை"}
CONDITION = "எனில்"
ELSE = "இல்லை"
# Words of statements that variables may be called by as well, and where they are those of statements.
PLACES = {
    "செயல்": Place.LINE_BEFORE_OPERAND,
    "வகை": Place.LINE_BEFORE_OPERAND,
    "நிலை": Place.LINE_BEFORE_OPERAND,
    "பொது": Place.LINE_BEFORE_OPERAND,
    "மற்றவை": Place.LINE_BEFORE_BLOCK,
    "பிடி": Place.LINE_BEFORE_BLOCK,
    "இல்": Place.BETWEEN_BLANKS,
    "மாற்று": Place.ARGUMENT_BEFORE_NAME,
    # As members, arguments and built-ins they are coloured by the tables of these.
    "இப்போதுநேரம்": None,
    "வரம்பு": None,
    "மூலம்": None,
    "உரைசீரமைப்பு": None,
    "அடையாளம்": None,
}
STATEMENT_GROUPS = ("statement", "condition")
PAGE_GROUPS = ("application", "widget", "animation")
CALLED_FORMS = {"call", "element_write", "loop_range", "page_call"}
MEMBER_FORMS = {"list_method", "time_part", "time_method", "clock", "input_property", "input_method", "method", "part",
                "field_part", "field_method"}


def in_order(words):
    """Each word once, long ones first, so that none is taken for the beginning of another."""
    return tuple(sorted(set(words), key=lambda word: (-len(word), word)))


def statement_rules(keywords):
    rules, anywhere = [], {}
    for row in keywords:
        word, group = row["word"], row["group"]
        if group not in STATEMENT_GROUPS and word not in DECLARING:
            continue
        if word == ELSE:
            rules.append(Rule(Kind.CONTROL, Place.LINE_ELSE, (word,)))
            continue
        kind = Kind.CONSTANT if row["kind"] == CONSTANT_TOKEN else Kind.DECLARE if word in DECLARING else Kind.CONTROL
        if row["reserved"] or row["reserved_in_second"]:
            anywhere.setdefault(kind, []).append(word)
        elif word not in PLACES:
            raise Trouble(f"PLACES in editors/derivation/rules.py doesn't say where {word!r} is a word of statements")
        elif PLACES[word]:
            rules.append(Rule(kind, PLACES[word], (word,)))
            if word in DECLARING_FUNCTIONS:
                rules.append(Rule(kind, Place.AFTER_MODIFIER, (word,)))
    return rules + [Rule(kind, Place.ANYWHERE, in_order(words)) for kind, words in anywhere.items()]


def called(tables, forms):
    rows = [*tables["builtins"], *tables["second"]["builtins"]]
    return in_order(row["name"] for row in rows if row["form"] in forms)


def properties(tables):
    own = [row["name"] for widget in tables["widgets"] for row in widget["properties"]]
    shared = [row["name"] for row in tables["common_properties"]]
    others = [row["word"] for row in tables["keywords"] if row["group"] in ("application", "animation")]
    return in_order([*own, *shared, *others, *tables["second"]["properties"]])


def rules_of(tables):
    operators = in_order(row["word"] for row in tables["operators"])
    widgets = [row["word"] for row in tables["widgets"]] + tables["second"]["widgets"]
    sections = [row["word"] for row in tables["keywords"] if row["group"] in PAGE_GROUPS]
    calls = called(tables, CALLED_FORMS)
    values = in_order([*tables["alignments"], *(row["name"] for row in tables["curves"])])
    known = properties(tables)
    common = [
        *statement_rules(tables["keywords"]),
        Rule(Kind.PROPERTY, Place.ARGUMENT_BEFORE_COLON, known),
        Rule(Kind.PROPERTY, Place.LINE_BEFORE_COLON, known),
        Rule(Kind.OPERATOR, Place.ANYWHERE, operators),
        Rule(Kind.CONSTANT, Place.AFTER_COLON, values),
        Rule(Kind.WIDGET, Place.BEFORE_BRACKET, in_order({*widgets, *sections} - set(calls))),
        Rule(Kind.BUILTIN, Place.BEFORE_BRACKET, calls),
        Rule(Kind.BUILTIN, Place.AFTER_DOT, called(tables, MEMBER_FORMS)),
    ]
    second = [
        Rule(Kind.CONSTANT, Place.ANYWHERE, tuple(tables["second"]["values"])),
        Rule(Kind.BUILTIN, Place.ANYWHERE, called(tables, {"page_word"})),
    ]
    declarations = [(Kind.FUNCTION, in_order(DECLARING_FUNCTIONS)), (Kind.TYPE, in_order(DECLARING_TYPES))]
    modifiers = in_order(row["word"] for row in tables["keywords"] if row["kind"] == MODIFIER_TOKEN)
    return Rules(common, second, declarations, operators, modifiers, CONDITION)
