"""From the emitted text to the running program: the calls of g++, and what becomes of their outcome."""

import os
import signal
from concurrent.futures import ThreadPoolExecutor

import pytest

from support import texts as t
from support.console import behind_animation, failed_build_line
from support.toolchain import EMPTY_OBJECT, PROGRAM_OUTPUT
from support.workplace import Workplace

SOURCE = "அ.பொழில்"
PREVIOUS = b"the program before"


@pytest.fixture(autouse=True)
def source(place):
    return place.write(SOURCE)


def test_program_of_the_real_toolchain_runs(real_place):
    result = real_place.compile('அச்சிடு("வணக்கம்")\nஅச்சிடு("பொழில்")\n')
    assert (result.status, result.err) == (0, "")
    assert behind_animation(result.out, "நிரல்.பொழில்") == "வணக்கம்\nபொழில்\n"


def test_names_typed_in_two_halves_bring_no_warning(real_place):
    vowel = "\u0bc6\u0bbe"
    source = f"செயல் க{vowel}டி(ப{vowel}ருள்):\n    திரும்பு ப{vowel}ருள் கூட்டு 1\nஅச்சிடு(க{vowel}டி(2))\n"
    result = real_place.compile(source)
    assert (result.status, result.err) == (0, "")
    assert behind_animation(result.out, "நிரல்.பொழில்") == "3\n"


def test_link_call(installed_place, installation, tools):
    installed_place.run(SOURCE)
    assert tools.calls() == [installation.link_call(installed_place)]


def test_user_flags_are_added(installed_place, installation, tools):
    installed_place.env["POZHIL_CXXFLAGS"] = " -O1  -DPOZHIL_TRIAL "
    installed_place.run(SOURCE)
    (call,) = tools.calls()
    assert [word for word in call if word in ("-O1", "-DPOZHIL_TRIAL")] == ["-O1", "-DPOZHIL_TRIAL"]
    assert [word for word in call if word not in ("-O1", "-DPOZHIL_TRIAL")] == installation.link_call(installed_place)


def test_object_is_made_once_and_the_user_is_told(installed_place, installation, tools):
    installation.without_object()
    first = installed_place.run(SOURCE)
    assert first.out.endswith(t.OBJECT_NOTE + PROGRAM_OUTPUT)
    assert tools.calls() == [installation.object_call(), installation.link_call(installed_place)]
    second = installed_place.run(SOURCE)
    assert t.OBJECT_NOTE not in second.out
    assert tools.calls()[2:] == [installation.link_call(installed_place)]


def test_object_is_never_renewed(installed_place, installation, tools):
    installation.without_object().object.write_bytes(EMPTY_OBJECT)
    installation.reporter.unlink()
    installation.reporter.write_text("// newer than the object\n", encoding="utf-8")
    assert t.OBJECT_NOTE not in installed_place.run(SOURCE).out
    assert tools.calls() == [installation.link_call(installed_place)]


@pytest.mark.parametrize("size", [0, 63, 64, -1])
def test_object_that_was_cut_off_is_made_anew(installed_place, installation, tools, size):
    whole = installation.object.read_bytes()
    installation.without_object().object.write_bytes(whole[:size])
    assert t.OBJECT_NOTE in installed_place.run(SOURCE).out
    assert tools.calls() == [installation.object_call(), installation.link_call(installed_place)]
    assert installation.object.read_bytes() == EMPTY_OBJECT
    assert [file.name for file in installation.cache.iterdir() if t.CACHED_OBJECT in file.name] == [t.CACHED_OBJECT]


def test_first_runs_at_once_link_whole_objects(installation, scratch, tools):
    installation.without_object()
    tools.stands_in_for("g++", """object=${0%/*}/object
if [ "$1" = -c ]; then
    head -c 64 "$object" > "$out"; sleep 0.$(($$ % 5 + 1)); tail -c 64 "$object" >> "$out"
else
    cmp -s "$2" "$object" && /bin/cp "${0%/*}/program" "$out"
fi""")
    places = [Workplace(scratch / f"work{number}", scratch, installation.compiler, tools) for number in range(4)]
    with ThreadPoolExecutor() as pool:
        results = list(pool.map(lambda place: place.run(place.write(SOURCE)), places))
    assert [result.err for result in results] == [""] * 4
    assert all(result.out.endswith(PROGRAM_OUTPUT) for result in results)


def test_failure_to_make_the_object_shows_only_in_the_link(installed_place, installation, tools):
    installation.without_object()
    tools.stands_in_for("g++", 'test "$1" != -c && /bin/cp "${0%/*}/program" "$out"')
    result = installed_place.run(SOURCE)
    assert (result.status, result.err) == (0, "")
    assert result.out.endswith(PROGRAM_OUTPUT)
    assert len(tools.calls()) == 2


def test_program_takes_the_place_of_the_one_before(place):
    place.work_directory.mkdir()
    place.program.write_bytes(PREVIOUS)
    place.run(SOURCE)
    assert PREVIOUS not in place.program.read_bytes()
    assert not (place.work_directory / t.LINK_RESULT).exists()


def test_emitted_text_takes_the_place_of_the_one_before(place):
    place.run(SOURCE)
    emitted = place.emitted
    place.emitted_path.write_text(emitted * 2, encoding="utf-8")
    place.run(SOURCE)
    assert place.emitted == emitted


@pytest.mark.parametrize("failure", ["exit 1", "exit 127", "kill -9 $$", "kill -15 $$"])
def test_failed_link_leaves_the_program_before_untouched(place, tools, failure):
    place.work_directory.mkdir()
    place.program.write_bytes(PREVIOUS)
    tools.stands_in_for("g++", failure)
    result = place.run(SOURCE)
    assert result.status == 0
    assert behind_animation(result.out, SOURCE) == ""
    assert result.err.endswith(failed_build_line())
    assert place.program.read_bytes() == PREVIOUS


def test_toolchain_is_missing(place, scratch):
    place.env["PATH"] = str(scratch / "nothing")
    result = place.run(SOURCE)
    assert result.status == 0
    assert behind_animation(result.out, SOURCE) == ""
    assert result.err.endswith(failed_build_line())


def test_program_reads_the_standard_input(place, tools):
    tools.links("cat")
    result = place.run(SOURCE, stdin="முதல்\nஇரண்டாம்\n".encode())
    assert behind_animation(result.out, SOURCE) == "முதல்\nஇரண்டாம்\n"


def test_program_has_both_output_streams(place, tools):
    tools.links("echo stdout; echo stderr >&2")
    result = place.run(SOURCE)
    assert (behind_animation(result.out, SOURCE), result.err) == ("stdout\n", "stderr\n")


def test_program_runs_here_without_arguments(place, tools):
    tools.links('echo "$# $(pwd)"')
    assert behind_animation(place.run(SOURCE).out, SOURCE) == f"0 {place.folder}\n"


def test_compiler_waits_for_the_program(place, tools):
    tools.links("sleep 0.3; echo end")
    assert behind_animation(place.run(SOURCE).out, SOURCE) == "end\n"


@pytest.mark.parametrize("end", ["exit 3", "kill -9 $$", "kill -11 $$"])
def test_exit_status_of_the_program_is_dropped(place, tools, end):
    tools.links(f"echo end; {end}")
    result = place.run(SOURCE)
    assert (result.status, behind_animation(result.out, SOURCE)) == (0, "end\n")


def test_program_that_cannot_be_put_in_its_place(place):
    (place.program / "within").mkdir(parents=True)
    result = place.run(SOURCE)
    assert result.status == 0
    assert PROGRAM_OUTPUT not in result.out


def test_link_that_makes_nothing(place, tools):
    tools.stands_in_for("g++", "exit 0")
    result = place.run(SOURCE)
    assert (result.status, behind_animation(result.out, SOURCE)) == (0, "")


def test_interrupted_program_ends_the_run(place, tools):
    """Both stand in the foreground of one terminal, so both get its interrupt."""
    # A shell that is about to start another program swallows the interrupt, so the program is what the shell becomes.
    tools.links("echo began; exec sleep 20")
    with place.session(SOURCE) as session:
        session.wait_for_output("began")
        os.killpg(session.process.pid, signal.SIGINT)
        session.wait_for_end(timeout=5)
