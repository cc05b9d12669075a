"""Every program in எடுத்துக்காட்டுகள் runs with the input and gives the output that a file beside this one states.

Web applications are only followed up to the text for em++.

`<example>.எதிர்பார்ப்பு` holds lines as the language cases have them: `ஃ> உள்ளீடு:` and `ஃ> வெளியீடு:`. A folder is an
example too, named like the folder; its main program is முதன்மை.பொழில். `--rewrite` writes down what came out.
"""

import re
import shutil
from pathlib import Path

import pytest

from support import case_file as cf
from support import texts as t
from support.case_run import run_case, visible_lines
from support.compiler import REPOSITORY, compiler_path
from support.console import behind_animation
from support.process import run
from support.workplace import Workplace

EXAMPLES = REPOSITORY / "எடுத்துக்காட்டுகள்"
EXPECTATIONS = Path(__file__).parent

# Ends a program that would wait for input for ever: none of them comes near.
TIMEOUT = 60


def is_web(path):
    return any(line.startswith("வலைதளம்") for line in path.read_text(encoding="utf-8").split("\n"))


WEB_EXAMPLES = [path for path in sorted(EXAMPLES.rglob(f"*{t.SOURCE_ENDING}")) if is_web(path)]


def example_paths():
    """The main programs for the console by the name of their example."""
    single = {path.stem: path for path in EXAMPLES.glob(f"*{t.SOURCE_ENDING}") if path not in WEB_EXAMPLES}
    folders = {path.parent.name: path for path in EXAMPLES.glob(f"*/{t.DEFAULT_SOURCE}")}
    return {**single, **folders}


@pytest.fixture
def place(tmp_path):
    """A working directory that has the examples where the repository has them."""
    place = Workplace(tmp_path / "work", tmp_path, compiler_path())
    shutil.copytree(EXAMPLES, place.folder / EXAMPLES.name, ignore=shutil.ignore_patterns(t.WORK_DIRECTORY, t.WEB_DIRECTORY, "assets"))
    return place


@pytest.mark.parametrize("name", sorted(example_paths()))
def test_example(place, name, request):
    source = str(example_paths()[name].relative_to(REPOSITORY))
    stated = EXPECTATIONS / f"{name}{cf.EXPECTATION_SUFFIX}"
    expectation = cf.parse_expectation(stated.read_text(encoding="utf-8")) if stated.exists() else cf.Expectation()
    typed = expectation.texts(cf.INPUT)
    result = place.run(source, stdin="".join(line + "\n" for line in typed).encode(), timeout=TIMEOUT)
    assert (result.status, result.err) == (0, "")
    output = visible_lines(behind_animation(result.out, source))
    if request.config.getoption("--rewrite"):
        entries = [(cf.INPUT, line) for line in typed] + [(cf.OUTPUT, line) for line in output]
        stated.write_text("".join(cf.format_entry(*entry) + "\n" for entry in entries), encoding="utf-8")
    else:
        assert output == expectation.texts(cf.OUTPUT)
    check_end_without_input(place)


def check_end_without_input(place):
    """The program just built ends by itself when there is nothing to read, and when there is nothing to read from."""
    for command in ([place.program], ["sh", "-c", 'exec "$0" <&-', place.program]):
        result = run(command, cwd=place.folder, env=place.env, timeout=TIMEOUT)
        assert (result.status, result.err, result.timed_out) == (0, "", False)


@pytest.mark.parametrize("path", WEB_EXAMPLES, ids=lambda path: path.stem)
def test_web_example(path):
    case = cf.Case(path, path.read_bytes(), cf.Expectation(), None)
    outcome = run_case(case, compiler_path(), with_program=False)
    assert outcome.diagnostic is None and outcome.result.status == 0, outcome.result
    assert "void render_frame() {" in outcome.emitted
    for page in re.findall(r'பக்கம்: "(.*?)"', case.source.decode()):
        assert f'if (g_currentPage == "{page}")' in outcome.emitted


def test_every_expectation_belongs_to_an_example():
    assert {path.stem for path in EXPECTATIONS.glob(f"*{cf.EXPECTATION_SUFFIX}")} == set(example_paths())


@pytest.mark.parametrize("path", sorted(EXAMPLES.rglob(f"*{t.SOURCE_ENDING}")), ids=lambda path: path.stem)
def test_every_file_says_what_it_is_for(path):
    is_first_program = path.stem == "வணக்கம்"
    assert is_first_program or path.read_text(encoding="utf-8").startswith("ஃ ")
