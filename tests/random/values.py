"""Values of the second edition as the documents describe them: kinds, text form, order, equality, arithmetic.

Whole numbers are int, decimals float, texts str, truth values bool, lists list, maps dict, nothing None.
"""

import math
import unicodedata

LEAST, GREATEST = -(2**63), 2**63 - 1
VOWELS = "அஆஇஈஉஊஎஏஐஒஓஔஃ"
CONSONANTS = "கஙசஞடணதநபமயரலவழளறன"
SIGNS = "ாிீுூெேைொோௌ"
PULLI = "்"


class Fault(Exception):
    """A fault of the program; `kind` names it for the table of messages."""

    def __init__(self, kind):
        super().__init__(kind)
        self.kind = kind


class Unspecified(Exception):
    """The documents don't say what the program does, or it grows too large: it isn't used."""


class Thing:
    def __init__(self, structure, fields):
        self.structure = structure
        self.fields = fields


class Closure:
    def __init__(self, function, frame, bound=None):
        self.function = function
        self.frame = frame
        self.bound = bound


def copied(value):
    """Lists and maps are values: whoever takes one has its own. Objects and functions are shared."""
    if isinstance(value, list):
        return [copied(item) for item in value]
    if isinstance(value, dict):
        return {key: copied(item) for key, item in value.items()}
    return value


def is_number(value):
    return isinstance(value, (int, float)) and not isinstance(value, bool)


def is_whole(value):
    return isinstance(value, int) and not isinstance(value, bool)


def kind(value):
    if value is None:
        return "தெரியாத_வகை (Unknown)"
    names = {bool: "நிலை", int: "எண்", float: "தசம_எண்", str: "உரை", list: "பட்டியல்", dict: "அகராதி"}
    names.update({Thing: "பொருள்", Closure: "வினை"})
    return names[type(value)]


def letters(text):
    result = []
    for code in text:
        if result and unicodedata.category(code) in ("Mn", "Mc"):
            result[-1] += code
        else:
            result.append(code)
    return result


def letter_rank(letter):
    base, marks = letter[0], letter[1:]
    if base in VOWELS:
        return (1, VOWELS.index(base), 0)
    if base in CONSONANTS:
        sign = 0 if marks == PULLI else 1 if not marks else 2 + SIGNS.index(marks)
        return (2, CONSONANTS.index(base), sign)
    return (0, ord(base), 0)


def text_rank(text):
    return [letter_rank(letter) for letter in letters(text)]


def key_rank(key):
    if isinstance(key, bool):
        return (0, key)
    if isinstance(key, int):
        return (1, key)
    return (2, text_rank(key))


class Key:
    """A key of a map: to Python, 1 and True would be one."""

    def __init__(self, value):
        if isinstance(value, float) and value.is_integer():
            value = int(value)
        if not isinstance(value, (bool, int, str)):
            raise Fault("key kind")
        self.value = value

    def __eq__(self, other):
        return type(self.value) is type(other.value) and self.value == other.value

    def __hash__(self):
        return hash((type(self.value), self.value))


def keys_in_order(mapping):
    return sorted(mapping, key=lambda key: key_rank(key.value))


def text_form(value):
    if value is None:
        return "[தெரியாத வகை]"
    if isinstance(value, bool):
        return "மெய்" if value else "பொய்"
    if isinstance(value, float):
        return number_form(value)
    if isinstance(value, list):
        return "[" + ", ".join(text_form(item) for item in value) + "]"
    if isinstance(value, dict):
        return "{" + ", ".join(pair_form(key.value, value[key]) for key in keys_in_order(value)) + "}"
    if isinstance(value, Thing):
        return "[பொருள்]"
    if isinstance(value, Closure):
        return "[வினை]"
    return str(value)


def pair_form(key, value):
    written = f'"{key}"' if isinstance(key, str) else text_form(key)
    return f"{written}: {text_form(value)}"


def number_form(value):
    if not math.isfinite(value) or (value == 0 and math.copysign(1, value) < 0):
        raise Unspecified("text form of an infinity or of minus zero")
    return f"{value:.15g}"


def equal(left, right):
    if is_number(left) and is_number(right):
        return left == right
    if type(left) is not type(right):
        return False
    if isinstance(left, list):
        return len(left) == len(right) and all(equal(one, other) for one, other in zip(left, right))
    if isinstance(left, dict):
        return left.keys() == right.keys() and all(equal(left[key], right[key]) for key in left)
    if isinstance(left, Thing):
        return left is right
    if isinstance(left, Closure):
        raise Unspecified("functions that are compared")
    return left == right


def ordered(word, left, right):
    if is_number(left) and is_number(right):
        one, other = left, right
    elif isinstance(left, str) and isinstance(right, str):
        one, other = text_rank(left), text_rank(right)
    else:
        raise Fault("order")
    return {
        "சிறிது": one < other,
        "பெரிது": one > other,
        "சிறிதுசமம்": one <= other,
        "பெரிதுசமம்": one >= other,
    }[word]


def whole_result(value):
    if not LEAST <= value <= GREATEST:
        raise Fault("overflow")
    return value


def decimal_result(value):
    if not math.isfinite(value):
        raise Unspecified("a decimal out of range")
    return value


def serving_whole(value):
    """The whole number of a value that must be one: a decimal without fraction serves as well."""
    if is_whole(value):
        return value
    if isinstance(value, float) and value.is_integer() and LEAST <= value <= GREATEST:
        return int(value)
    if isinstance(value, float):
        raise Fault("no whole number")
    raise Fault("number kind")


def truth(value):
    if not isinstance(value, bool):
        raise Fault("no truth value")
    return value


def add(left, right):
    if is_number(left) and is_number(right):
        return calculated(left, right, lambda one, other: one + other)
    if isinstance(left, str) or isinstance(right, str):
        return text_form(left) + text_form(right)
    if isinstance(left, list) and isinstance(right, list):
        return copied(left) + copied(right)
    raise Fault("operand kind")


def calculated(left, right, operation):
    if not (is_number(left) and is_number(right)):
        raise Fault("operand kind")
    if is_whole(left) and is_whole(right):
        return whole_result(operation(left, right))
    return decimal_result(operation(float(left), float(right)))


def divide(left, right):
    if not (is_number(left) and is_number(right)):
        raise Fault("operand kind")
    if right == 0:
        raise Fault("division by zero")
    return decimal_result(float(left) / float(right))


def remainder(left, right):
    if not (is_number(left) and is_number(right)):
        raise Fault("operand kind")
    if right == 0:
        raise Fault("remainder by zero")
    if is_whole(left) and is_whole(right):
        return abs(left) % abs(right) * (1 if left >= 0 else -1)
    return math.fmod(left, right)


def bits(word, left, right):
    one, other = serving_whole(left), serving_whole(right)
    if word in ("இடதுஇருமை", "வலதுஇருமை"):
        if not 0 <= other < 64 or one < 0 or one << other > GREATEST:
            raise Unspecified("a shift out of range")
        return one << other if word == "இடதுஇருமை" else one >> other
    return {"பெருக்குஇருமை": one & other, "கூட்டுஇருமை": one | other, "வேறுஇருமை": one ^ other}[word]


def operate(word, left, right):
    """What an operator makes of its operands."""
    if word == "கூட்டு":
        return add(left, right)
    if word == "கழி":
        return calculated(left, right, lambda one, other: one - other)
    if word == "பெருக்கு":
        return calculated(left, right, lambda one, other: one * other)
    if word == "வகு":
        return divide(left, right)
    if word == "மீதி":
        return remainder(left, right)
    if word == "இணை":
        return text_form(left) + text_form(right)
    if word == "சமம்":
        return equal(left, right)
    if word == "சமமில்லை":
        return not equal(left, right)
    if word in ("சிறிது", "பெரிது", "சிறிதுசமம்", "பெரிதுசமம்"):
        return ordered(word, left, right)
    return bits(word, left, right)
