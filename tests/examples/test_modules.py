"""docs/தொகுப்புகள்.md describes the modules of தொகுப்புகள்: all functions of each, with examples that are true in both
editions of the language."""

import re
from dataclasses import dataclass

import pytest

from support import case_file as cf
from support import guide
from support import texts as t
from support.case_check import check_case
from support.compiler import REPOSITORY, compiler_path

PAGE = REPOSITORY / "docs" / "தொகுப்புகள்.md"
MODULES = REPOSITORY / "தொகுப்புகள்"

# Functions with this behind the module's name are of no concern to its users.
INTERNAL = "_உதவி_"

# Examples whose results differ in the second edition in more than the digits of their decimals.
SECOND_RESULTS = {
    "கணிதம்_பை()": "3.14159265358979",
    'கணிதம்_முழுஎண்(நீளம்("அ")) கழி 1': "0",
}


@dataclass(frozen=True)
class Module:
    """A module as programs of an edition find it."""

    name: str
    edition: int

    @property
    def path(self):
        """The second edition looks into a folder of its own first."""
        own = MODULES / t.SECOND_MODULE_DIRECTORY / f"{self.name}{cf.SOURCE_SUFFIX}"
        return own if self.edition == 2 and own.exists() else MODULES / own.name

    def __str__(self):
        return f"{self.name}-{self.edition}"


def second_result(example, result):
    """What stands as the result of an example, as the second edition writes it."""
    shortest = re.sub(r"[0-9]+\.[0-9]{6}", lambda found: format(float(found[0]), ".15g"), result)
    return SECOND_RESULTS.get(example, shortest)


def parameter_count(parameters):
    return len([name for name in parameters.split(",") if name.strip()])


def documented(module):
    """Signature, example and result of every function that the page describes for `module`."""
    rows = [row for row in guide.table_rows(PAGE) if row[0].startswith(f"`{module}_")]
    return [(row[0].strip("`"), row[2].strip("`"), row[3].strip("`")) for row in rows]


NAMES = sorted(path.stem for path in MODULES.glob(f"*{cf.SOURCE_SUFFIX}"))


@pytest.fixture(params=[Module(name, edition) for name in NAMES for edition in (1, 2)], ids=str)
def module(request):
    return request.param


def test_page_describes_every_function(module):
    source = module.path.read_text(encoding="utf-8")
    defined = re.findall(r"^செயல் (\S+)\((.*)\):$", source, re.MULTILINE)
    described = [re.fullmatch(r"(\S+)\((.*)\)", signature).groups() for signature, _, _ in documented(module.name)]
    assert len(defined) == source.count("\nசெயல் ") and defined
    assert {(name, parameter_count(parameters)) for name, parameters in defined if INTERNAL not in name} == \
        {(name, parameter_count(parameters)) for name, parameters in described}


def test_functions_are_commented_and_named_after_their_module(module):
    lines = module.path.read_text(encoding="utf-8").split("\n")
    definitions = [(above, line) for above, line in zip(lines, lines[1:]) if line.startswith("செயல் ")]
    assert [line for _, line in definitions if not line.startswith(f"செயல் {module.name}_")] == []
    assert [line for above, line in definitions if INTERNAL not in line and not above.startswith("ஃ ")] == []


def test_examples_are_true(module, tmp_path):
    rows = documented(module.name)
    source = f'நூஇறக்கி "{module.name}"\n' + "".join(f"அச்சிடு({example})\n" for _, example, _ in rows)
    results = [result for _, _, result in rows]
    if module.edition == 2:
        source = f"{t.SECOND_EDITION_MARKER}\n{source}"
        results = [second_result(example, result) for _, example, result in rows]
    expectation = cf.Expectation([(cf.OUTPUT, result) for result in results], module.edition)
    case = cf.Case(tmp_path / f"நிரல்{cf.SOURCE_SUFFIX}", source.encode(), expectation, None)
    assert check_case(case, compiler_path()) == ""


@pytest.mark.parametrize("edition", [1, 2])
def test_whole_numbers_stay_exact_beyond_decimals(edition, tmp_path):
    """A decimal holds whole numbers up to 2 to the power of 53."""
    multiples = {
        "9007199254740993, 1": 9007199254740993, "3, 9007199254740993": 9007199254740993,
        "9223372036854775807, 7": 9223372036854775807, "9223372036854775807, 9223372036854775807": 9223372036854775807,
        "குறை 4611686018427387904, 2": 4611686018427387904, "குறை 6, குறை 4": 12,
    }
    source = 'நூஇறக்கி "கணிதம்"\n' + "".join(f"அச்சிடு(கணிதம்_மீபொம({pair}))\n" for pair in multiples)
    if edition == 2:
        source = f"{t.SECOND_EDITION_MARKER}\n{source}"
    expectation = cf.Expectation([(cf.OUTPUT, str(multiple)) for multiple in multiples.values()], edition)
    case = cf.Case(tmp_path / f"நிரல்{cf.SOURCE_SUFFIX}", source.encode(), expectation, None)
    assert check_case(case, compiler_path()) == ""


def test_modules_of_the_second_edition_say_so():
    folder = MODULES / t.SECOND_MODULE_DIRECTORY
    texts = {path.stem: path.read_text(encoding="utf-8") for path in folder.iterdir()}
    assert texts and set(texts) <= set(NAMES)
    assert all(text.startswith(t.SECOND_EDITION_MARKER + "\n") for text in texts.values())


def test_programs_of_the_page(tmp_path):
    programs = guide.read_programs(guide.read_fences(PAGE))
    assert programs
    for program in programs:
        assert check_case(guide.as_case(program, tmp_path), compiler_path()) == "", program.place
