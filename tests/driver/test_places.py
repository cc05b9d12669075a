"""Working directories, installations and sources of any name, wherever they stand."""

import os
import shutil

import pytest

from support import texts as t
from support.console import animation_line, behind_animation, output_error_line
from support.toolchain import PROGRAM_OUTPUT
from support.workplace import HELLO, NOBODY, Installation, Workplace

SOURCE = "அ.பொழில்"

AWKWARD = [
    "தமிழ் அடைவு", 'இரட்டை"மேற்கோள்', "ஒற்றை'மேற்கோள்", "$HOME", "$(touch INJECTED)", "`touch INJECTED`",
    '"; touch INJECTED; "', "'; touch INJECTED; '", "a&touch INJECTED&b", "a|b>INJECTED<c", "பின்\\சாய்வு\\",
    "%s%n", "*?[a]", "-o", "@", "#~!", " முன் பின் ", "வரி\nமாற்றம்",
]


@pytest.fixture
def nothing_injected(scratch):
    yield
    assert not list(scratch.rglob("INJECTED"))


@pytest.mark.parametrize("name", AWKWARD)
@pytest.mark.usefixtures("nothing_injected")
def test_working_directory_of_any_name(scratch, installation, tools, name):
    place = Workplace(scratch / name, scratch, installation.compiler, tools)
    result = place.run(place.write(SOURCE))
    assert (result.status, behind_animation(result.out, SOURCE), result.err) == (0, PROGRAM_OUTPUT, "")
    assert tools.calls() == [installation.link_call(place)]


@pytest.mark.parametrize("name", AWKWARD)
@pytest.mark.usefixtures("nothing_injected")
def test_installation_of_any_name(scratch, compiler, tools, name):
    installation = Installation(scratch / name, compiler).without_object()
    place = Workplace(scratch / "work", scratch, installation.compiler, tools)
    assert place.run(place.write(SOURCE)).status == 0
    assert tools.calls() == [installation.object_call(), installation.link_call(place)]


@pytest.mark.parametrize("name", AWKWARD)
@pytest.mark.usefixtures("nothing_injected")
def test_source_of_any_name(place, name):
    result = place.run(place.write(name + t.SOURCE_ENDING))
    assert (result.status, result.err) == (0, "")
    assert animation_line(name + t.SOURCE_ENDING) + PROGRAM_OUTPUT in result.out


@pytest.mark.usefixtures("nothing_injected")
def test_real_toolchain_reads_awkward_paths(scratch, compiler):
    name = "தமிழ் \"'$HOME`touch INJECTED`$(touch INJECTED)\\;&|"
    installation = Installation(scratch / f"நிறுவல் {name}", compiler).without_object()
    place = Workplace(scratch / f"வேலை {name}", scratch, installation.compiler)
    result = place.run(place.write(SOURCE))
    assert (result.status, result.err) == (0, "")
    assert result.out.endswith(t.OBJECT_NOTE + "வணக்கம்\n")


def test_paths_may_be_long(scratch, compiler, tools):
    depths = ["அ" * 80] * 6
    installation = Installation(scratch.joinpath("i", *depths), compiler)
    place = Workplace(scratch.joinpath("w", *depths), scratch, installation.compiler, tools)
    assert place.run(place.write(SOURCE)).status == 0
    assert tools.calls() == [installation.link_call(place)]


@pytest.mark.parametrize("links", [1, 3])
def test_started_through_symbolic_links(scratch, installation, installed_place, tools, links):
    target = installation.compiler
    for number in range(links):
        link = scratch / f"link{number}" / "வேறு பெயர்"
        link.parent.mkdir()
        link.symlink_to(target)
        target = link
    installed_place.compiler = target
    assert installed_place.run(installed_place.write(SOURCE)).status == 0
    assert tools.calls() == [installation.link_call(installed_place)]


def test_started_through_a_linked_directory(scratch, installation, installed_place, tools):
    (scratch / "link").symlink_to(installation.folder)
    installed_place.compiler = scratch / "link" / installation.compiler.name
    assert installed_place.run(installed_place.write(SOURCE)).status == 0
    assert tools.calls() == [installation.link_call(installed_place)]


def test_found_in_the_search_path(scratch, installation, installed_place, tools):
    (scratch / "bin").mkdir()
    (scratch / "bin" / "பொழி").symlink_to(installation.compiler)
    installed_place.env["PATH"] += f":{scratch / 'bin'}"
    installed_place.write(SOURCE)
    from_shell = Workplace(installed_place.folder, scratch, "/bin/sh")
    from_shell.env = installed_place.env
    assert from_shell.run("-c", f"பொழி {SOURCE}").status == 0
    assert tools.calls() == [installation.link_call(installed_place)]


def test_started_by_a_relative_path(installation, installed_place, tools):
    installed_place.compiler = os.path.join("..", installation.folder.name, installation.compiler.name)
    assert installed_place.run(installed_place.write(SOURCE)).status == 0
    assert tools.calls() == [installation.link_call(installed_place)]


def test_libraries_of_the_repository_are_not_needed(scratch, compiler):
    """A copy alone, with nothing around it, builds and runs a program."""
    installation = Installation(scratch / "alone", compiler)
    place = Workplace(scratch / "work", scratch, installation.compiler)
    assert behind_animation(place.run(place.write(SOURCE)).out, SOURCE) == "வணக்கம்\n"


@pytest.mark.parametrize("variable, folder", [("XDG_CACHE_HOME", "cache"), ("HOME", "home")])
def test_object_goes_to_the_user_when_the_installation_is_locked(installation, installed_place, scratch, tools,
                                                                 variable, folder):
    """The working directory and the records of the tools belong to the user, the installation doesn't."""
    installation.without_object()
    installation.cache.chmod(0o555)
    cache = scratch / folder
    cache.mkdir()
    for owned in (cache, installed_place.folder, tools.folder):
        shutil.chown(owned, NOBODY, NOBODY)
    installed_place.env[variable] = str(cache)
    name = installed_place.write(SOURCE)

    first = installed_place.run(name, user=NOBODY)
    assert (first.status, first.err) == (0, "")
    assert first.out.endswith(t.OBJECT_NOTE + PROGRAM_OUTPUT)
    (kept,) = cache.rglob(t.CACHED_OBJECT)
    if variable == "HOME":
        assert kept.is_relative_to(cache / ".cache")
    assert tools.calls() == [installation.object_call(kept), installation.link_call(installed_place, kept)]

    second = installed_place.run(name, user=NOBODY)
    assert t.OBJECT_NOTE not in second.out
    assert tools.calls()[2:] == [installation.link_call(installed_place, kept)]


def test_working_directory_is_locked(installed_place, tools):
    name = installed_place.write(SOURCE)
    installed_place.folder.chmod(0o555)
    result = installed_place.run(name, user=NOBODY)
    assert (result.status, result.out, result.err) == (1, "", output_error_line(installed_place.emitted_path))
    assert tools.calls() == []


def test_emitted_text_is_locked(installed_place, tools):
    name = installed_place.write(SOURCE)
    installed_place.work_directory.mkdir()
    installed_place.emitted_path.touch()
    installed_place.emitted_path.chmod(0o444)
    result = installed_place.run(name, user=NOBODY)
    assert (result.status, result.out, result.err) == (1, "", output_error_line(installed_place.emitted_path))
    assert tools.calls() == []


def test_file_in_the_place_of_the_hidden_directory(place, tools):
    place.write(t.WORK_DIRECTORY, "")
    result = place.run(place.write(SOURCE))
    assert (result.status, result.out, result.err) == (1, "", output_error_line(place.emitted_path))
    assert tools.calls() == []


def test_disk_is_full(place, tools):
    """The device takes no byte, as a full disk does."""
    place.work_directory.mkdir()
    place.emitted_path.symlink_to("/dev/full")
    result = place.run(place.write(SOURCE))
    assert (result.status, result.out) == (1, "")
    assert str(place.emitted_path) in result.err
    assert tools.calls() == []


@pytest.mark.parametrize("contents, status", [(HELLO, 0), ("அச்சிடூ\n", 1)])
def test_output_goes_nowhere(place, contents, status):
    with open("/dev/full", "wb") as full:
        assert place.compile(contents, stdout=full).status == status


def test_working_directory_is_gone(place, scratch):
    source = scratch / SOURCE
    source.write_text(HELLO, encoding="utf-8")
    shell = Workplace(place.folder, scratch, "/bin/sh")
    result = shell.run("-c", 'rmdir "$PWD" && exec "$0" "$1"', place.compiler, source)
    assert result.status == 1
    assert result.err
