"""The TextMate grammar, by the engine of VS Code."""

import json
import os
import subprocess

import pytest

import cases
from derivation import textmate
from support.compiler import REPOSITORY
from support.vocabulary import vocabulary

EDITORS = REPOSITORY / "editors"
GRAMMAR = EDITORS / "vscode" / "syntaxes" / "pozhil.tmLanguage.json"
TOOL = EDITORS / "node_modules" / "vscode-tmgrammar-test" / "dist" / "unit.js"
MARK = "ஃ>"
SCOPES = {kind.value: scope for kind, scope in textmate.SCOPES.items()}
# Forms of comments and texts that have a scope of their own.
FORMS = {"comment": ["comment.line.pozhil", "comment.block.pozhil"],
         "text": ["string.quoted.double.pozhil", "string.quoted.single.pozhil"]}


def asserted(one, line):
    """What the tool is told: carets below the characters, and the scope."""
    if one.begin < len(MARK):
        position = MARK + "<" + "~" * one.begin + "-" * (one.end - one.begin)
    else:
        position = MARK + " " * (one.begin - len(MARK)) + "^" * (one.end - one.begin)
    if one.kind == "none":
        return position + " source.pozhil - " + " ".join([*SCOPES.values(), *sum(FORMS.values(), [])])
    if one.kind in FORMS:
        return position + " " + form_of(one, line)
    return f"{position} {SCOPES[one.kind]}"


def form_of(one, line):
    line_form, other_form = FORMS[one.kind]
    if one.kind == "text":
        return other_form if line[one.begin] == "'" else line_form
    return line_form if "ஃ" in line[: one.begin + 1] and "ஃஃ" not in line else other_form


@pytest.mark.parametrize("path", cases.all_cases(), ids=lambda path: path.stem)
def test_scopes(path, tmp_path):
    lines, expected = cases.expectations(path)
    written = [f'{MARK} SYNTAX TEST "source.pozhil"']
    for number, line in enumerate(lines):
        if not cases.SAID.fullmatch(line):
            written += [line, *(asserted(one, line) for one in expected if one.line == number)]
    case = tmp_path / "case.பொழில்"
    case.write_text("\n".join(written) + "\n", encoding="utf-8")
    told = subprocess.run(["node", TOOL, "--grammar", GRAMMAR, case], capture_output=True, text=True, timeout=120, check=False)
    assert told.returncode == 0, told.stdout + told.stderr


def test_published_programs():
    """Words of statements are coloured in all of them, and nothing stays open."""
    sources = [str(path) for folder in ("எடுத்துக்காட்டுகள்", "தொகுப்புகள்") for path in (REPOSITORY / folder).rglob("*.பொழில்")]
    groups = ("statement", "condition", "operator")
    words = [row["word"] for row in vocabulary()["keywords"]
             if row["group"] in groups and (row["reserved"] or row["reserved_in_second"] or row["word"] == "செயல்")]
    environment = {**os.environ, "TOOLS": str(EDITORS / "node_modules"), "GRAMMAR": str(GRAMMAR),
                   "SOURCES": json.dumps(sources), "WORDS": json.dumps(words)}
    told = subprocess.run(["node", "--test", REPOSITORY / "tests" / "editors" / "sources.test.cjs"], env=environment,
                          capture_output=True, text=True, timeout=120, check=False)
    assert told.returncode == 0, told.stdout
    assert f"# pass {len(sources)}\n" in told.stdout
