"""Built-in functions and methods that random programs use."""

import math

from values import (
    LEAST,
    GREATEST,
    Fault,
    Key,
    Unspecified,
    copied,
    equal,
    is_number,
    is_whole,
    kind,
    letters,
    serving_whole,
    text_form,
)


def length(value):
    if isinstance(value, str):
        return len(letters(value))
    if isinstance(value, (list, dict)):
        return len(value)
    if is_number(value):
        return len(letters(text_form(value)))
    return 0


def counted(*arguments):
    """வரம்பு outside and in a loop: the same numbers."""
    numbers = [serving_whole(each) for each in arguments]
    first, last, step = 0, numbers[0], 1
    if len(numbers) > 1:
        first, last = numbers[0], numbers[1]
    if len(numbers) > 2:
        step = numbers[2]
    if step == 0:
        raise Fault("step of zero")
    result = range(first, last, step)
    if len(result) > 2000:
        raise Unspecified("a long range")
    return list(result)


def text(value):
    if not isinstance(value, str):
        raise Fault("no text")
    return value


def number(value):
    if not is_number(value):
        raise Fault("no number")
    return value


def read_number(value):
    if is_number(value):
        return value
    digits = text(value)
    if digits.isascii() and digits.isdigit() and len(digits) < 18:
        return int(digits)
    if any(each.isdigit() for each in digits):
        raise Unspecified("a text with digits")
    raise Fault("bad number")


def split(value, separator):
    if not text(separator):
        text(value)
        raise Unspecified("an empty separator")
    return text(value).split(separator)


def replaced(value, old, new):
    if not text(old):
        raise Unspecified("an empty search")
    return text(value).replace(old, text(new))


def root(value):
    if number(value) < 0:
        raise Unspecified("the root of a negative number")
    return math.sqrt(value)


def rounded(value, direction):
    if is_whole(number(value)):
        return value
    result = direction(value)
    if not LEAST <= result <= GREATEST:
        raise Unspecified("rounding out of range")
    return result


def removed(holder, item):
    if isinstance(holder, dict):
        if Key(item) not in holder:
            raise Fault("missing key")
        del holder[Key(item)]
    elif isinstance(holder, list):
        position = next((at for at, each in enumerate(holder) if equal(each, item)), None)
        if position is None:
            raise Fault("nothing to remove")
        del holder[position]
    else:
        raise Fault("nothing to remove from")


def appended(holder, item):
    if not isinstance(holder, list):
        raise Fault("no list")
    holder.append(copied(item))


def contains(holder, item):
    if isinstance(holder, dict):
        if not isinstance(item, (bool, int, str)):
            raise Unspecified("whether a map contains what is no key")
        return Key(item) in holder
    if isinstance(holder, list):
        return any(equal(each, item) for each in holder)
    if isinstance(holder, str):
        if not isinstance(item, str):
            raise Unspecified("whether a text contains something else")
        parts, wanted = letters(holder), letters(item)
        return any(parts[at : at + len(wanted)] == wanted for at in range(len(parts) - len(wanted) + 1))
    raise Fault("member")


PLAIN = {
    "நீளம்": length,
    "என்னவகை": kind,
    "வரம்பு": counted,
    "எண்": read_number,
    "பிளவு": split,
    "பதில்": replaced,
    "பெரியஎ": lambda value: text(value).upper(),
    "சிறியஎ": lambda value: text(value).lower(),
    "வர்க்கமூலம்": root,
    "கீழ்எண்": lambda value: rounded(value, math.floor),
    "மேல்எண்": lambda value: rounded(value, math.ceil),
}
CHANGING = {"நீக்கு": removed, "சேர்": appended}
METHODS = {"கொண்டுள்ளது": contains}
