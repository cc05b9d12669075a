"""docs/தொகுப்புகள்.md describes the modules of தொகுப்புகள்: all functions of each, with examples that are true."""

import re

import pytest

from support import case_file as cf
from support import guide
from support.case_check import check_case
from support.compiler import REPOSITORY, compiler_path

PAGE = REPOSITORY / "docs" / "தொகுப்புகள்.md"
MODULES = {path.stem: path for path in (REPOSITORY / "தொகுப்புகள்").rglob(f"*{cf.SOURCE_SUFFIX}")}

# Functions with this behind the module's name are of no concern to its users.
INTERNAL = "_உதவி_"


def parameter_count(parameters):
    return len([name for name in parameters.split(",") if name.strip()])


def documented(module):
    """Signature, example and result of every function that the page describes for `module`."""
    rows = [row for row in guide.table_rows(PAGE) if row[0].startswith(f"`{module}_")]
    return [(row[0].strip("`"), row[2].strip("`"), row[3].strip("`")) for row in rows]


@pytest.fixture(params=sorted(MODULES))
def module(request):
    return request.param


def test_page_describes_every_function(module):
    source = MODULES[module].read_text(encoding="utf-8")
    defined = re.findall(r"^செயல் (\S+)\((.*)\):$", source, re.MULTILINE)
    described = [re.fullmatch(r"(\S+)\((.*)\)", signature).groups() for signature, _, _ in documented(module)]
    assert len(defined) == source.count("\nசெயல் ") and defined
    assert {(name, parameter_count(parameters)) for name, parameters in defined if INTERNAL not in name} == \
        {(name, parameter_count(parameters)) for name, parameters in described}


def test_functions_are_commented_and_named_after_their_module(module):
    lines = MODULES[module].read_text(encoding="utf-8").split("\n")
    definitions = [(above, line) for above, line in zip(lines, lines[1:]) if line.startswith("செயல் ")]
    assert [line for _, line in definitions if not line.startswith(f"செயல் {module}_")] == []
    assert [line for above, line in definitions if INTERNAL not in line and not above.startswith("ஃ ")] == []


def test_examples_are_true(module, tmp_path):
    rows = documented(module)
    source = f'நூஇறக்கி "{module}"\n' + "".join(f"அச்சிடு({example})\n" for _, example, _ in rows)
    entries = [(cf.OUTPUT, result) for _, _, result in rows]
    case = cf.Case(tmp_path / f"நிரல்{cf.SOURCE_SUFFIX}", source.encode(), cf.Expectation(entries), None)
    assert check_case(case, compiler_path()) == ""


def test_programs_of_the_page(tmp_path):
    programs = guide.read_programs(guide.read_fences(PAGE))
    assert programs
    for program in programs:
        assert check_case(guide.as_case(program, tmp_path), compiler_path()) == "", program.place
