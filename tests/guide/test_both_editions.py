"""What the guide, the examples and the modules show prints the same in both editions of the language.

The exceptions stand in edition_differences.txt beside this file, each with its reason and what the second edition does:

    <name>: <a line of the program that no other program there has>
        <why>
    ஃ> <what comes out, as in the language cases; lines count the marker. Without such lines it must only run>

Chapters about surprises are left out: tests/surprises runs theirs in both editions. So are programs that show a fault of
the first edition, and web applications. `--rewrite` writes down what came out of the exceptions.
"""

from dataclasses import dataclass, field
from pathlib import Path

import pytest

from support import case_file as cf
from support import guide
from support import texts as t
from support.case_check import check_case, observed_expectation
from support.compiler import REPOSITORY, compiler_path

DIFFERENCES = Path(__file__).with_name("edition_differences.txt")
EXAMPLES = REPOSITORY / "எடுத்துக்காட்டுகள்"
EXAMPLE_OUTPUTS = REPOSITORY / "tests" / "examples"
# Chapters whose programs show what surprises in the first edition, or are of the second.
OTHER_CHAPTERS = ("01அ", "14", "15", "16")


@dataclass
class Shown:
    """A program that a document or an example shows; `entries` is what comes of it in the first edition."""

    name: str
    source: str
    files: dict
    entries: list

    def case(self, folder, entries):
        for file, text in self.files.items():
            path = folder / f"நிரல்{cf.FILES_SUFFIX}" / file
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        source = f"{t.SECOND_EDITION_MARKER}\n{self.source}"
        return cf.Case(folder / f"நிரல்{cf.SOURCE_SUFFIX}", source.encode(), cf.Expectation(entries, edition=2), None)

    @property
    def input(self):
        return [entry for entry in self.entries if entry[0] == cf.INPUT]


@dataclass
class Difference:
    name: str
    line: str
    reason: str = ""
    entries: list = field(default_factory=list)

    def is_of(self, shown):
        return self.name == shown.name and self.line in shown.source.split("\n")

    def __str__(self):
        block = "".join(cf.format_entry(*entry) + "\n" for entry in self.entries)
        return f"{self.name}: {self.line}\n    {self.reason}\n{block}"


def _of_the_guide():
    for page in [*sorted(guide.GUIDE.glob("*.md")), guide.ERROR_PAGE, REPOSITORY / "docs" / "தொகுப்புகள்.md"]:
        if page.name.startswith(OTHER_CHAPTERS):
            continue
        for program in guide.read_programs(guide.read_fences(page)):
            told = {kind for kind, _ in program.entries}
            if program.edition == 1 and told <= {cf.INPUT, cf.OUTPUT, cf.HINT}:
                entries = [entry for entry in program.entries if entry[0] != cf.HINT]
                yield Shown(page.stem, program.fence.text, program.files, entries)


def _examples():
    for stated in sorted(EXAMPLE_OUTPUTS.glob(f"*{cf.EXPECTATION_SUFFIX}")):
        folder = EXAMPLES / stated.stem
        main = folder / t.DEFAULT_SOURCE if folder.is_dir() else EXAMPLES / f"{stated.stem}{cf.SOURCE_SUFFIX}"
        # They name each other by their way from the root of the repository.
        beside = {str(path.relative_to(REPOSITORY)): path.read_text(encoding="utf-8") for path in folder.glob("*")}
        entries = cf.parse_expectation(stated.read_text(encoding="utf-8")).entries
        yield Shown(stated.stem, main.read_text(encoding="utf-8"), beside, entries)


def _differences():
    differences = []
    for line in DIFFERENCES.read_text(encoding="utf-8").split("\n"):
        if line.startswith(cf.MARK):
            differences[-1].entries += cf.parse_expectation(line).entries
        elif line.startswith("    "):
            differences[-1].reason = line.strip()
        elif line:
            differences.append(Difference(*line.split(": ", 1)))
    return differences


SHOWN = [*_of_the_guide(), *_examples()]
ALL_DIFFERENCES = _differences()


@pytest.mark.parametrize("shown", SHOWN, ids=range(1, len(SHOWN) + 1))
def test_prints_the_same_or_is_listed(shown, tmp_path):
    listed = next((difference for difference in ALL_DIFFERENCES if difference.is_of(shown)), None)
    if listed and not listed.entries:
        observed = observed_expectation(shown.case(tmp_path, shown.input), compiler_path())
        assert not observed.diagnostics and not observed.runtime and observed.status == 0
        return
    entries = shown.input + listed.entries if listed else shown.entries
    trouble = check_case(shown.case(tmp_path, entries), compiler_path())
    assert not trouble, f"{shown.name}\n{shown.source}\n{trouble}"
    assert entries != shown.entries or not listed, "what is listed prints the same"


def test_every_difference_is_of_one_program_and_has_a_reason(request, tmp_path):
    for number, difference in enumerate(ALL_DIFFERENCES):
        owners = [shown for shown in SHOWN if difference.is_of(shown)]
        assert len(owners) == 1, f"{difference.name}: {difference.line}"
        assert difference.reason
        if request.config.getoption("--rewrite") and difference.entries:
            folder = tmp_path / str(number)
            folder.mkdir()
            observed = observed_expectation(owners[0].case(folder, owners[0].input), compiler_path())
            difference.entries = [entry for entry in observed.entries if entry[0] != cf.INPUT]
    if request.config.getoption("--rewrite"):
        DIFFERENCES.write_text("\n".join(map(str, ALL_DIFFERENCES)), encoding="utf-8")
