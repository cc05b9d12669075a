"""Reads who includes what, and compares it with the rooms."""

import posixpath
import re
from pathlib import Path

import rooms as allowed

ROOT = Path(__file__).resolve().parents[2]
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(?P<mark>["<])(?P<name>[^">]+)[">]', re.MULTILINE)
SUFFIXES = {".h", ".hpp", ".inc", ".cpp", ".c"}
# Where the compiler looks for headers, apart from the folder of who includes them.
SEARCHED = ["src", "உள்ளடக்கம்"]


def sources(root):
    """The sources of the house as paths from its root."""
    for top in SEARCHED:
        for path in sorted((root / top).rglob("*")):
            if path.suffix in SUFFIXES:
                yield path.relative_to(root).as_posix()


def resolve(root, file, name):
    """The file that an include means, as a path from the root; None if it is none of the house."""
    for folder in [posixpath.dirname(file), *SEARCHED]:
        path = posixpath.normpath(posixpath.join(folder, name))
        if (root / path).is_file():
            return path
    return None


def room_of(path):
    """The room in which a file lies; None if it lies in none."""
    folder = posixpath.dirname(path)
    if folder == "src":
        return folder
    while folder and folder not in allowed.ROOMS:
        folder = posixpath.dirname(folder)
    return folder if folder not in ("", "src") else None


def is_allowed(root, file, mark, name):
    room = room_of(file)
    target = resolve(root, file, name)
    if target is not None:
        return room_of(target) == room or room_of(target) in allowed.ROOMS[room]
    if name in allowed.DRAWING_HEADERS:
        return room in allowed.ROOMS_THAT_DRAW
    if mark == '"':
        return False
    of_the_language = "." not in name and "/" not in name
    return of_the_language or room in allowed.ROOMS_WITH_SYSTEM_HEADERS


def forbidden(root):
    """The includes that no room allows, as (file, what it includes)."""
    found = set()
    for file in sources(root):
        if room_of(file) is None:
            continue
        for include in INCLUDE.finditer((root / file).read_text(encoding="utf-8")):
            if not is_allowed(root, file, include["mark"], include["name"]):
                found.add((file, include["name"]))
    return found


def upward(rooms):
    """The arrows of a table of rooms that don't lead to a room above, as (room, room)."""
    above = set()
    arrows = []
    for room, used in rooms.items():
        arrows += [(room, other) for other in used if other not in above]
        above.add(room)
    return arrows


def without_room(root):
    """The files for which no room has been named."""
    return [file for file in sources(root) if room_of(file) is None]

