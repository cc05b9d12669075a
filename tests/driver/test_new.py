"""The word புதிது of the command பொழில்: what a new project holds, and that nothing that is there is touched."""

import json
import os

import pytest

from support.process import run
from support.workplace import NOBODY

OK, WRONG_USE, FAILED = 0, 2, 3
FILES = [".editorconfig", ".gitignore", "README.md", "முதன்மை.பொழில்"]
TESTED = {False: ["சோதனைகள்/வாழ்த்து_சோதி.பொழில்", "வாழ்த்து.பொழில்"],
          True: ["எண்ணுதல்.பொழில்", "சோதனைகள்/எண்ணுதல்_சோதி.பொழில்"]}


@pytest.fixture
def new(place):
    def new_with(*arguments, word="புதிது", **settings):
        return run([place.compiler.parent / "பொழில்", word, *arguments], cwd=place.folder, env=place.env, **settings)
    return new_with


def told_by_check(place, folder):
    command = [place.compiler.parent / "பொழில்", "check", "--json", folder]
    return json.loads(run(command, cwd=place.folder, env=place.env).out)


@pytest.mark.parametrize("web", [[], ["--வலை"], ["--web"]])
@pytest.mark.parametrize("edition, marked", [([], True), (["--பதிப்பு", "1"], False), (["--edition", "௨"], True)])
def test_project_has_a_program_without_faults_and_hints(place, new, web, edition, marked):
    result = new("என் வேலை", *web, *edition)
    folder = place.folder / "என் வேலை"
    assert (result.status, result.err) == (OK, "")
    files = {str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file()}
    assert files == set(FILES + (TESTED[bool(web)] if marked else []))
    program = (folder / "முதன்மை.பொழில்").read_text()
    assert program.startswith("ஃ பொழில் 2\n") == marked
    assert ("வலைதளம்" in program) == bool(web)
    assert told_by_check(place, "என் வேலை") == {"version": 1, "checked": 3 if marked else 1, "findings": [], "unread": []}
    readme = (folder / "README.md").read_text()
    assert readme.startswith("# என் வேலை\n")
    assert ("வெளியிடு" in readme) == bool(web)
    assert ("பொழில் சோதி" in readme) == marked


@pytest.mark.parametrize("name", ["வேலை", "என் வேலை", "அ'ஆ", "$(ls)", "வரி\nமாறும்", "க;ங"])
def test_what_to_type_next_can_be_typed(place, new, name):
    _, _, told = new(name).out.partition("👉 ")
    shell = told.split("; பொழில் ஓட்டு")[0] + " && exec ls முதன்மை.பொழில்"
    result = run(["/bin/sh", "-c", shell], cwd=place.folder, env=place.env)
    assert (result.status, result.out) == (OK, "முதன்மை.பொழில்\n")


def test_plain_name_is_told_as_it_is(new):
    assert "👉 cd வேலை; பொழில் ஓட்டு முதன்மை.பொழில்\n" in new("வேலை").out


@pytest.mark.parametrize("web", [[], ["--web"]])
def test_new_project_passes_its_test(real_place, web):
    command = real_place.compiler.parent / "பொழில்"
    assert run([command, "new", "வேலை", *web], cwd=real_place.folder, env=real_place.env).status == OK
    result = run([command, "சோதி"], cwd=real_place.folder / "வேலை", env=real_place.env)
    assert (result.status, result.err) == (OK, "")
    assert "சோதனைகள்: 1, வெற்றி: 1, தோல்வி: 0" in result.out


@pytest.mark.parametrize("edition", ["1", "2"])
def test_program_runs_where_no_file_is_named(real_place, edition):
    command = [real_place.compiler.parent / "பொழில்", "new", "வேலை", "--edition", edition]
    assert run(command, cwd=real_place.folder, env=real_place.env).status == OK
    result = run([real_place.compiler], cwd=real_place.folder / "வேலை", env=real_place.env)
    assert result.out.endswith("வணக்கம், உலகே!\n")
    ignored = (real_place.folder / "வேலை" / ".gitignore").read_text().split()
    tests = ["சோதனைகள்/"] if edition == "2" else []
    made = sorted(path.name + "/" for path in (real_place.folder / "வேலை").iterdir() if path.is_dir())
    assert made == [ignored[0], *tests]


@pytest.mark.parametrize("kind", ["file", "folder", "broken link"])
@pytest.mark.parametrize("name", ["வேலை", "வேலை/"])
def test_what_is_there_is_left_alone(place, new, kind, name):
    there = place.folder / "வேலை"
    if kind == "file":
        there.write_text("என்னுடையது")
    elif kind == "folder":
        there.mkdir()
    else:
        there.symlink_to("எங்கும்_இல்லை")
    result = new(name)
    assert (result.status, result.out) == (WRONG_USE, "")
    assert "'வேலை' ஏற்கெனவே இருக்கிறது" in result.err
    assert [path.name for path in place.folder.iterdir()] == ["வேலை"]
    assert kind != "file" or there.read_text() == "என்னுடையது"
    assert kind != "folder" or list(there.iterdir()) == []


@pytest.mark.parametrize("arguments", [[], [""], ["/"], ["அ", "ஆ"], ["அ", "--வேகம்"], ["அ", "--பதிப்பு"],
                                       ["அ", "--பதிப்பு", "3"], ["அ", "--பதிப்பு", "--வலை"], ["."], [".."]])
def test_wrong_use(place, new, arguments):
    result = new(*arguments)
    assert (result.status, result.out) == (WRONG_USE, "")
    assert result.err.startswith("பிழை: ")
    assert list(place.folder.iterdir()) == []


def test_folder_above_it_must_be_there(place, new):
    result = new("இல்லை/வேலை")
    assert result.status == FAILED
    assert "'இல்லை/வேலை' என்ற அடைவை உருவாக்க முடியவில்லை" in result.err


@pytest.mark.skipif(os.geteuid() != 0, reason="only the superuser can become another user")
def test_folder_that_may_not_be_written_to(place, new):
    result = new("வேலை", user=NOBODY)
    assert result.status == FAILED
    assert list(place.folder.iterdir()) == []


def test_help(new):
    assert new("--help", word="new").out.startswith("பொழில் புதிது <பெயர்>")
