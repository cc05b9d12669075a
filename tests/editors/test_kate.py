"""The syntax file for Kate, read by the library that Kate colours with."""

import html.parser
import os
import re
import subprocess

import pytest

import cases
from derivation import kate
from support.compiler import REPOSITORY

TOOL = "kate-syntax-highlighter"
FILE = REPOSITORY / "editors" / "kate" / "pozhil.xml"
# A colour of its own for each style, by which the test tells them apart.
COLOURS = {f"#0101{number:02x}": name for number, (name, _) in enumerate(kate.STYLES.values(), 1)}
STYLES = {kind.value if kind else "none": name for kind, (name, _) in kate.STYLES.items()}


class Painted(html.parser.HTMLParser):
    """The style of each character of a program, by lines."""

    def __init__(self):
        super().__init__()
        self.lines = None
        self.styles = ["Normal"]

    def handle_starttag(self, tag, attrs):
        if tag == "pre":
            self.lines = [[]]
        if tag == "span":
            colour = re.search(r"(?<!-)color:(#[0-9a-f]+)", dict(attrs)["style"])
            self.styles.append(COLOURS[colour[1]])

    def handle_endtag(self, tag):
        if tag == "span":
            self.styles.pop()

    def handle_data(self, data):
        for character in data if self.lines else "":
            if character == "\n":
                self.lines.append([])
            else:
                self.lines[-1].append(self.styles[-1])


@pytest.fixture(scope="module", name="home")
def fixture_home(tmp_path_factory):
    """A place where the library finds our file, with the colours of the test."""
    home = tmp_path_factory.mktemp("kate")
    folder = home / "org.kde.syntax-highlighting" / "syntax"
    folder.mkdir(parents=True)
    text = FILE.read_text(encoding="utf-8")
    for colour, name in COLOURS.items():
        assert f'<itemData name="{name}"' in text
        text = text.replace(f'<itemData name="{name}"', f'<itemData name="{name}" color="{colour}"')
    (folder / FILE.name).write_text(text, encoding="utf-8")
    return home


def highlight(path, home):
    told = subprocess.run([TOOL, "--syntax", "Pozhil", path], capture_output=True, timeout=60, check=True, text=True,
                          env={**os.environ, "XDG_DATA_HOME": str(home), "QT_QPA_PLATFORM": "offscreen"})
    assert not told.stderr
    return told.stdout


@pytest.mark.parametrize("path", cases.all_cases(), ids=lambda path: path.stem)
def test_colours(path, home):
    lines, expected = cases.expectations(path)
    painted = Painted()
    painted.feed(highlight(path, home).replace("<pre>\n", "<pre>"))
    assert [len(styles) for styles in painted.lines[: len(lines)]] == [len(line) for line in lines]
    found = [(lines[one.line], one, set(painted.lines[one.line][one.begin : one.end])) for one in expected]
    assert not [row for row in found if row[2] != {STYLES[row[1].kind]}]
