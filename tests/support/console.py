"""What the compiler itself prints around a console program."""

import re

from support import texts as t

_ESCAPE = re.compile("\x1b\\[[0-9;]*m")


def without_colours(text):
    return _ESCAPE.sub("", text)


def hint_lines(error_output, source):
    """The hints on `source` in what stands on standard error, each as `வரி 3: …`, and the rest of it."""
    hints, rest = [], []
    for line in error_output.splitlines(keepends=True):
        is_hint = line.startswith(t.HINT_BEFORE)
        (hints if is_hint else rest).append(line)
    shown = [hint.removeprefix(t.HINT_BEFORE).removesuffix("\n").removeprefix(source + " ") for hint in hints]
    return shown, "".join(rest)


def animation_line(source):
    """The line that is written byte by byte while `source` is being compiled."""
    return t.CYAN + t.ANIMATION_BEFORE + source + t.ANIMATION_BEHIND + t.RESET + "\n"


def behind_animation(output, source):
    """What follows the compile line (and the note on a first run), or None if `output` has no such line."""
    _, line, rest = output.partition(animation_line(source))
    return rest.removeprefix(t.OBJECT_NOTE) if line else None


def failed_build_line():
    return t.RED + t.BUILD_FAILED + t.RESET + "\n"


def cannot_open_line(path):
    return t.CANNOT_OPEN_BEFORE + path + t.CANNOT_OPEN_BEHIND + "\n"


def output_error_line(path):
    return t.OUTPUT_ERROR_BEFORE + str(path) + t.OUTPUT_ERROR_BEHIND + "\n"
