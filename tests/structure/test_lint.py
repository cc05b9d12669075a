"""The linter passes over what is known to be clean, and over nothing else."""

import json
import shutil
import subprocess

import pytest

import includes

LONG = "inline int twice(int number) {\n    number *= 2;\n    return number;\n}\n"
LIMIT = "Checks: '-*,readability-function-size'\nWarningsAsErrors: '*'\nHeaderFilterRegex: '/src/'\nCheckOptions:\n"
LIMIT += "  - {key: readability-function-size.LineThreshold, value: %d}\n"


class House:
    """Two sources, one of which includes a header that includes another."""

    def __init__(self, root):
        self.root = root
        self.write(".clang-tidy", LIMIT % 3)
        self.write("src/inner.h", "#pragma once\n")
        self.write("src/outer.h", '#pragma once\n#include "inner.h"\n')
        self.write("src/with.cpp", '#include "outer.h"\n')
        self.write("src/without.cpp", "int number = 1;\n")
        commands = [
            {"directory": str(root), "file": str(root / source), "command": f"c++ -std=c++17 -c {root / source}"}
            for source in ("src/with.cpp", "src/without.cpp")
        ]
        self.write("build/compile_commands.json", json.dumps(commands))
        self.write("scripts/lint", (includes.ROOT / "scripts/lint").read_text(encoding="utf-8"))

    def write(self, path, text):
        (self.root / path).parent.mkdir(parents=True, exist_ok=True)
        (self.root / path).write_text(text, encoding="utf-8")

    def lint(self):
        """The last line that the linter prints, and whether it is content."""
        command = ["/usr/bin/python3", str(self.root / "scripts/lint"), str(self.root / "build")]
        result = subprocess.run(command, stdout=subprocess.PIPE, text=True, check=False)
        return result.stdout.splitlines()[-1], result.returncode == 0


@pytest.fixture
def house(tmp_path):
    if shutil.which("clang-tidy") is None:
        pytest.skip("clang-tidy is not installed")
    house = House(tmp_path)
    assert house.lint() == ("2 sources, 2 of them checked, 0 with findings", True)
    return house


def test_clean_sources_are_not_checked_again(house):
    assert house.lint() == ("2 sources, 0 of them checked, 0 with findings", True)


def test_finding_in_a_header_is_found_and_stays(house):
    house.write("src/inner.h", "#pragma once\n" + LONG.replace("    return", "    number += 1;\n    return"))
    assert house.lint() == ("2 sources, 1 of them checked, 1 with findings", False)
    assert house.lint() == ("2 sources, 1 of them checked, 1 with findings", False)


def test_comment_that_silences_counts(house):
    long = LONG.replace("    return", "    number += 1;\n    return")
    house.write("src/without.cpp", long.replace("{", "{ // NOLINT(readability-function-size)", 1))
    house.lint()
    house.write("src/without.cpp", long)
    assert house.lint() == ("2 sources, 1 of them checked, 1 with findings", False)


def test_change_of_the_checks_counts(house):
    house.write("src/without.cpp", LONG)
    assert house.lint() == ("2 sources, 1 of them checked, 0 with findings", True)
    house.write(".clang-tidy", LIMIT % 2)
    assert house.lint() == ("2 sources, 2 of them checked, 1 with findings", False)
