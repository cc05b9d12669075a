"""The files for editors against the tables of the compiler."""

import copy
import subprocess

import pytest

from derivation import rules
from support.compiler import REPOSITORY, compiler_path
from support.vocabulary import vocabulary


def test_files_are_what_the_tables_give():
    told = subprocess.run([REPOSITORY / "scripts" / "derive-editors", "--check", compiler_path()],
                          capture_output=True, text=True, check=False)
    assert (told.returncode, told.stdout, told.stderr) == (0, "", "")


def test_new_word_of_statements_needs_a_place():
    tables = copy.deepcopy(vocabulary())
    tables["keywords"].append(
        {"word": "புதியது", "kind": 0, "group": "statement", "reserved": False, "reserved_in_second": False})
    with pytest.raises(rules.Trouble, match="புதியது"):
        rules.rules_of(tables)


def test_each_operator_and_widget_is_coloured():
    made = rules.rules_of(vocabulary())
    coloured = {word for rule in made.common for word in rule.words}
    assert {row["word"] for row in vocabulary()["operators"]} <= coloured
    assert {row["word"] for row in vocabulary()["widgets"]} <= coloured
