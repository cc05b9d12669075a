"""The extension for VS Code: that it can be packed, what it does, and its snippets."""

import json
import os
import re
import subprocess
import zipfile

import pytest

from support.compiler import REPOSITORY, compiler_path

SNIPPETS = REPOSITORY / "editors" / "vscode" / "snippets" / "pozhil.json"
COMMAND = compiler_path().parent / "பொழில்"
MARKER = "ஃ பொழில் 2"
HOLE = re.compile(r"\$\{\d+:([^}]*)\}")


@pytest.fixture(scope="module", name="package")
def fixture_package(tmp_path_factory):
    folder = tmp_path_factory.mktemp("extension")
    subprocess.run([REPOSITORY / "scripts" / "build-extension", folder], check=True, timeout=300)
    return folder


def test_package_holds_what_it_names(package):
    with zipfile.ZipFile(package / "pozhil.vsix") as packed:
        names = {name.removeprefix("extension/") for name in packed.namelist()}
        told = json.loads(packed.read("extension/package.json"))
        icon = packed.read("extension/" + told["icon"])
    parts = told["contributes"]
    named = [told["main"], parts["languages"][0]["configuration"], parts["grammars"][0]["path"], parts["snippets"][0]["path"]]
    assert {os.path.normpath(name) for name in named} <= names
    assert icon.startswith(b"\x89PNG")


@pytest.mark.parametrize("file", ["extension.test.cjs", "server.test.cjs"])
def test_behaviour(file, package):
    environment = {**os.environ, "EXTENSION": str(package / "vscode"), "COMMAND": str(COMMAND)}
    told = subprocess.run(["node", "--test", REPOSITORY / "tests" / "editors" / file], env=environment,
                          capture_output=True, text=True, timeout=120, check=False)
    assert told.returncode == 0, told.stdout


@pytest.mark.parametrize("edition", ["1", "2"])
def test_snippets_are_programs(edition, tmp_path):
    for number, (name, snippet) in enumerate(json.loads(SNIPPETS.read_text(encoding="utf-8")).items()):
        lines = HOLE.sub(r"\1", "\n".join(snippet["body"])).replace("$0", "").split("\n")
        if edition == "2" and lines[0] != MARKER:
            lines.insert(0, MARKER)
        program = tmp_path / f"{number}.பொழில்"
        program.write_text("\n".join(lines) + "\n", encoding="utf-8")
        told = subprocess.run([COMMAND, "check", "--json", program], stdout=subprocess.PIPE, timeout=60, check=False)
        assert [one for one in json.loads(told.stdout)["findings"] if one["kind"] == "fault"] == [], name
