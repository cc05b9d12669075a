"""Programs that ask for the second edition: how they are built, what is told, and which status is left."""

import re
import signal
from contextlib import ExitStack, contextmanager

import pytest

from support import texts as t
from support.console import animation_line, behind_animation, hint_lines, output_error_line
from support.process import run
from support.second_box import split_boxes
from support.toolchain import PROGRAM_OUTPUT

SOURCE = "அ.பொழில்"
MARKER = "ஃ பொழில் 2\n"
HELLO = MARKER + 'அச்சிடு("வணக்கம்")\n'
FAULTY = MARKER + "அச்சிடு(இல்லாதது)\nஅச்சிடு(அதுவும்)\n"
ARCHIVE = "libpozhil_engine.a"

NO_APPLICATION = f"பிழை: '{SOURCE}{t.NO_WEB_APPLICATION_BEHIND}"
MORE_FAULTS = (
    f"{t.GOLD}  இன்னும் பிழைகள் உள்ளன; முதல் 10 மட்டும் மேலே உள்ளன. இவற்றைச் சரி செய்துவிட்டு மீண்டும் ஓட்டு மச்சி!{t.RESET}\n\n"
)
OUR_FAULT = f"பிழை: {t.OUR_FAULT}"
NO_ARCHIVE = "கிடைக்கவில்லை! பொழிலை மீண்டும் நிறுவிக்கொள்."


def files_of(place, source):
    return sorted(path.name for path in place.directory_of(source).iterdir())


def shown(result, source=SOURCE):
    return behind_animation(result.out, source)


def numbers(output):
    return [report.code for report in split_boxes(output)[1]]


# Built and run.


def test_program_of_the_real_toolchain_runs(real_place):
    real_place.write(SOURCE, HELLO)
    result = real_place.run(SOURCE)
    assert (result.status, result.err, shown(result)) == (0, "", "வணக்கம்\n")


def test_engine_is_linked_and_no_object_of_the_first_edition(installed_place, installation, tools):
    installed_place.write(SOURCE, HELLO)
    result = installed_place.run(SOURCE)
    assert (result.status, result.err) == (0, "")
    assert result.out.endswith(PROGRAM_OUTPUT)
    (call,) = tools.calls()
    assert str(installation.object.parent / ARCHIVE) in call
    assert str(installation.object) not in call
    assert "-static" in call
    assert str(installed_place.directory_of(SOURCE) / t.EMITTED_NAME) in call


def test_user_flags_are_added(place, tools):
    place.write(SOURCE, HELLO)
    place.env["POZHIL_CXXFLAGS"] = " -O2  -DPOZHIL_TRIAL "
    place.run(SOURCE)
    (call,) = tools.calls()
    assert call[-2:] == ["-O2", "-DPOZHIL_TRIAL"]


@pytest.mark.parametrize("lines, flag", [(40, "-O1"), (4000, "-Og"), (8000, "-O0")])
def test_long_programs_are_optimised_less(place, tools, lines, flag):
    place.write(SOURCE, MARKER + "அச்சிடு(1)\n" * lines)
    place.run(SOURCE)
    (call,) = tools.calls()
    assert [word for word in call if word.startswith("-O")] == [flag]


def test_without_the_marker_nothing_of_it_is_seen(place, tools):
    place.write(SOURCE, 'அச்சிடு("வணக்கம்")\n' + MARKER.replace("2", "இரண்டு"))
    place.run(SOURCE)
    (call,) = tools.calls()
    assert not [word for word in call if ARCHIVE in word]


# Exit status.


@pytest.mark.parametrize("status", [0, 1, 7, 255])
def test_status_is_that_of_the_program(place, tools, status):
    place.write(SOURCE, HELLO)
    tools.links(f"exit {status}")
    assert place.run(SOURCE).status == status


@pytest.mark.parametrize("name", ["SEGV", "KILL", "TERM"])
def test_a_signal_is_told_by_the_status(place, tools, name):
    place.write(SOURCE, HELLO)
    tools.links(f"kill -{name} $$")
    assert place.run(SOURCE).status == 128 + getattr(signal, f"SIG{name}")


def test_a_fault_of_the_running_program_is_status_1(real_place):
    real_place.write(SOURCE, MARKER + 'அச்சிடு("முன்")\nப = []\nஅச்சிடு(ப[3])\n')
    result = real_place.run(SOURCE)
    before, boxes = split_boxes(shown(result))
    assert (result.status, result.err, before) == (1, "", "முன்\n")
    assert [(box.code, box.line) for box in boxes] == [("பொழி-642", 4)]


# Faults of the source.


def test_faults_are_boxes_and_nothing_is_built(place, tools):
    place.write(SOURCE, FAULTY)
    result = place.run(SOURCE)
    before, boxes = split_boxes(result.out)
    assert (result.status, result.err, before) == (1, "", "")
    assert [box.line for box in boxes] == [2, 3]
    assert tools.calls() == []


@pytest.mark.parametrize("count, note", [(10, ""), (11, MORE_FAULTS), (15, MORE_FAULTS)])
def test_ten_faults_are_told_and_that_there_are_more(place, count, note):
    place.write(SOURCE, MARKER + "".join(f"அச்சிடு(இல்லாதது{number})\n" for number in range(count)))
    result = place.run(SOURCE)
    assert result.out.endswith(note)
    assert [box.line for box in split_boxes(result.out.removesuffix(note))[1]] == list(range(2, 12))


# What the first line asks for.


def test_banner_names_the_edition(place):
    for text, version in ((HELLO, t.BANNER_SECOND_VERSION), (HELLO.removeprefix(MARKER), t.BANNER_VERSION)):
        place.write(SOURCE, text)
        assert f"பதிப்பு: {version}  |" in place.run(SOURCE).out


ALMOST_MARKED = ["ஃ பொழில் 2 என் நிரல்", "ஃ பொழில் இரண்டு", "ஃ பொழில் பதிப்பு 2"]


@pytest.mark.parametrize("line", ALMOST_MARKED)
@pytest.mark.parametrize("value, count", [("1", 1), ("0", 0)])
def test_a_line_that_almost_asks_for_the_edition_is_a_hint(place, line, value, count):
    place.env["POZHIL_HINTS"] = value
    place.write(SOURCE, f"{line}\nஅச்சிடு(1)\n")
    result = place.run(SOURCE)
    shown_hints, rest = hint_lines(result.err, SOURCE)
    assert (result.status, len(shown_hints), rest) == (0, count, "")
    assert all(hint.startswith("வரி 1: ") and "'ஃ பொழில் 2' என்று மட்டும்" in hint for hint in shown_hints)
    assert f"பதிப்பு: {t.BANNER_VERSION}  |" in result.out


def test_it_is_a_hint_beside_the_fault_that_it_brings(place):
    place.write(SOURCE, "# பொழில் 2\nஅச்சிடு(1)\n")
    result = place.run(SOURCE)
    assert (result.status, len(hint_lines(result.err, SOURCE)[0])) == (1, 1)
    assert "பொழி-101" in result.out


def test_a_number_that_no_edition_has(place, tools):
    place.write(SOURCE, 'ஃ பொழில் 3\nஅச்சிடு("வணக்கம்")\n')
    result = place.run(SOURCE)
    assert (result.status, [box.line for box in split_boxes(result.out)[1]]) == (1, [1])
    assert tools.calls() == []


@pytest.mark.parametrize("arguments", [[SOURCE, t.FLAG_WEB], [t.FLAG_WEB, SOURCE], [SOURCE, t.FLAG_WEB, t.FLAG_WATCH]])
def test_a_console_program_is_nothing_for_the_web(place, tools, arguments):
    place.write(SOURCE, HELLO)
    result = place.run(*arguments)
    assert (result.status, result.out, result.err) == (1, "", NO_APPLICATION)
    assert tools.calls() == [] == tools.calls("em++")
    assert not place.web_directory.exists()


def test_faults_come_before_that_there_is_no_application(place):
    place.write(SOURCE, FAULTY)
    result = place.run(SOURCE, t.FLAG_WEB)
    assert (result.status, result.err, len(split_boxes(result.out)[1])) == (1, "", 2)


# A toolchain that fails.


def test_a_missing_archive_is_told(installed_place, installation, tools):
    (installation.object.parent / ARCHIVE).unlink()
    tools.fails()
    installed_place.write(SOURCE, HELLO)
    result = installed_place.run(SOURCE)
    assert (result.status, shown(result)) == (1, "")
    assert NO_ARCHIVE in result.err and ARCHIVE in result.err
    assert OUR_FAULT not in result.err


def test_a_missing_compiler_is_told(place, tools):
    (tools.folder / "g++").unlink()
    place.env["PATH"] = str(tools.folder)
    place.write(SOURCE, HELLO)
    result = place.run(SOURCE)
    assert result.status == 1
    assert "'g++' கிடைக்கவில்லை!" in result.err
    assert OUR_FAULT not in result.err


def refusal_of(place, tools, piece):
    """What the compiler says if g++ refuses the line of the text that holds `piece`."""
    place.write(SOURCE, MARKER + "அச்சிடு(1)\n\nஅச்சிடு(2)\n")
    tools.fails(
        f'line=$(/bin/grep -n -F "{piece}" {t.WORK_DIRECTORY}/{SOURCE}/{t.EMITTED_NAME} | /usr/bin/cut -d: -f1); '
        'echo "$1:$line:5: error: strange words" >&2'
    )
    return place.run(SOURCE)


def test_what_gxx_refuses_is_our_fault_with_the_place_of_the_source(place, tools):
    result = refusal_of(place, tools, "print({2LL})")
    assert (result.status, shown(result)) == (1, "")
    assert OUR_FAULT in result.err
    assert f"{SOURCE}, வரி 4" in re.sub("\x1b\\[[0-9;]*m", "", result.err)
    assert "அச்சிடு(2)" in result.err
    assert "POZHIL_SHOW_CXX=1" in result.err
    assert "strange words" not in result.err


def test_the_words_of_gxx_are_shown_on_demand(place, tools):
    place.env["POZHIL_SHOW_CXX"] = "1"
    assert "strange words" in refusal_of(place, tools, "print({2LL})").err


# What g++, the assembler and the linkers say when it isn't the text that they fail for.
OBSTACLES = {
    "as: {text}: Fatal error: can't write 9 bytes to section .text: No space left on device": "வட்டில் இடம் இல்லை.",
    "mold: failed to write to an output file. Disk full?": "வட்டில் இடம் இல்லை.",
    "{text}:3:1: fatal error: error writing to /tmp/a.s: No space left on device": "வட்டில் இடம் இல்லை.",
    "collect2: fatal error: ld terminated with signal 25 [File size limit exceeded]": "ulimit -f",
    "cc1plus: out of memory allocating 65536 bytes after a total of 3211264 bytes": "நினைவகம் போதவில்லை.",
    "g++: fatal error: Killed signal terminated program cc1plus": "முடிக்கும் முன் நிறுத்தப்பட்டது",
}


@pytest.mark.parametrize("said", OBSTACLES)
def test_what_keeps_gxx_from_working_is_not_our_fault(place, tools, said):
    place.write(SOURCE, HELLO)
    words = said.replace("{text}", "'\"$1\"'").replace("can't", "cannot")
    tools.fails(f"echo '{words}' >&2")
    result = place.run(SOURCE)
    assert (result.status, shown(result)) == (1, "")
    assert OBSTACLES[said] in result.err
    assert OUR_FAULT not in result.err and said[:8] not in result.err


def test_gxx_that_is_killed_is_not_our_fault(place, tools):
    place.write(SOURCE, HELLO)
    tools.fails("kill -9 $$")
    result = place.run(SOURCE)
    assert result.status == 1
    assert "முடிக்கும் முன் நிறுத்தப்பட்டது" in result.err and OUR_FAULT not in result.err


def test_words_of_the_program_are_no_obstacle(place, tools):
    """g++ shows the line that it refuses, with whatever texts stand there."""
    place.write(SOURCE, HELLO)
    tools.fails('echo "$1:12:5: error: strange words"; echo "   12 | print(No space left on device, out of memory)"; '
                'echo "collect2: fatal error: ld terminated with signal 11 [Segmentation fault]"')
    result = place.run(SOURCE)
    assert result.status == 1 and OUR_FAULT in result.err


def test_flags_that_gxx_refuses_are_told(real_place):
    real_place.write(SOURCE, HELLO)
    real_place.env["POZHIL_CXXFLAGS"] = "-fno-such-flag"
    result = real_place.run(SOURCE)
    assert (result.status, shown(result)) == (1, "")
    assert "POZHIL_CXXFLAGS" in result.err and OUR_FAULT not in result.err
    assert files_of(real_place, SOURCE) == [t.EMITTED_NAME]


def test_a_text_that_gxx_refuses_with_and_without_flags_is_our_fault(place, tools):
    place.env["POZHIL_CXXFLAGS"] = "-O2"
    assert OUR_FAULT in refusal_of(place, tools, "print({2LL})").err


@pytest.mark.parametrize("link", ["exit 0", ": > \"$out\""])
def test_a_program_that_cannot_be_started_is_told(place, tools, link):
    """As in a folder where the system starts no programs."""
    place.write(SOURCE, HELLO)
    tools.stands_in_for("g++", link)
    result = place.run(SOURCE)
    assert (result.status, shown(result)) == (1, "")
    assert "தொடங்க முடியவில்லை!" in result.err and str(place.directory_of(SOURCE) / t.PROGRAM_NAME) in result.err


def test_the_program_before_is_not_run_after_a_refusal(place, tools):
    place.write(SOURCE, HELLO)
    place.run(SOURCE)
    tools.fails()
    result = place.run(SOURCE)
    assert (result.status, shown(result)) == (1, "")


# Side by side.


@pytest.mark.parametrize("source", ["ஆ.பொழில்", "உள்ளே/அ.பொழில்", "../வெளியே/அ.பொழில்"])
def test_two_programs_of_one_folder_do_not_meet(real_place, source):
    (real_place.folder / source).parent.mkdir(exist_ok=True)
    real_place.write(SOURCE, HELLO)
    real_place.write(source, MARKER + 'அச்சிடு("மற்றது")\n')
    with real_place.session(SOURCE) as first, real_place.session(source) as second:
        assert [first.wait_for_end(), second.wait_for_end()] == [0, 0]
        assert "வணக்கம்\n".encode() in first.stdout
        assert "மற்றது\n".encode() in second.stdout


def test_runs_of_one_program_do_not_meet(real_place):
    real_place.write(SOURCE, HELLO)
    with ExitStack() as stack:
        sessions = [stack.enter_context(real_place.session(SOURCE)) for _ in range(4)]
        assert [session.wait_for_end() for session in sessions] == [0] * 4
        assert all(session.stdout.endswith("வணக்கம்\n".encode()) and not session.stderr for session in sessions)
    assert files_of(real_place, SOURCE) == [t.EMITTED_NAME, t.PROGRAM_NAME]


def test_a_folder_that_cannot_be_made_is_told(place):
    place.write(t.WORK_DIRECTORY, "")
    place.write(SOURCE, HELLO)
    result = place.run(SOURCE)
    assert (result.status, result.out) == (1, "")
    assert result.err == output_error_line(place.directory_of(SOURCE) / t.EMITTED_NAME)


def test_the_text_of_a_build_that_does_not_fit_leaves_the_one_before(place, tools):
    place.write(SOURCE, HELLO)
    place.run(SOURCE)
    place.write(SOURCE, MARKER + "அச்சிடு(5)\n" * 2000)
    result = run(["/bin/sh", "-c", f'ulimit -f 8; exec "$0" {SOURCE}', place.compiler], cwd=place.folder, env=place.env)
    assert result.status == 1
    assert str(place.directory_of(SOURCE) / t.EMITTED_NAME) in result.err
    assert "வணக்கம்" in (place.directory_of(SOURCE) / t.EMITTED_NAME).read_text(encoding="utf-8")
    assert files_of(place, SOURCE) == [t.EMITTED_NAME, t.PROGRAM_NAME]


# Watching.


@contextmanager
def watching(place):
    place.write(SOURCE, HELLO)
    with place.session(SOURCE, t.FLAG_WATCH) as session:
        session.wait_for_output(animation_line(SOURCE))
        yield session


def test_a_change_is_built_and_run(place, tools):
    with watching(place) as session:
        assert tools.calls() == []
        place.change_until(session, SOURCE, MARKER + "அச்சிடு(5)\n")
        session.wait_for_output(t.CHANGE_NOTE)
        session.wait_for_output(PROGRAM_OUTPUT)
        assert "print({5LL});" in (place.directory_of(SOURCE) / t.EMITTED_NAME).read_text(encoding="utf-8")


def test_watching_goes_on_after_a_fault(place):
    with watching(place) as session:
        place.change_until(session, SOURCE, FAULTY)
        session.wait_for_output("அச்சிடு(அதுவும்)")
        place.change_until(session, SOURCE, HELLO)
        session.wait_for_output(PROGRAM_OUTPUT)
        assert session.process.poll() is None


def test_a_source_of_the_first_edition_that_gets_a_marker_is_told(place, tools):
    place.write(SOURCE, 'அச்சிடு("வணக்கம்")\n')
    with place.session(SOURCE, t.FLAG_WATCH) as session:
        session.wait_for_output(animation_line(SOURCE))
        place.change_until(session, SOURCE, HELLO)
        session.wait_for_errors("'ஃ பொழில் 2' இப்போது உள்ளது!")
        place.change_until(session, SOURCE, "\n" + HELLO)
        session.wait_for_output("பொழி-503")
        assert tools.calls() == []
        place.change_until(session, SOURCE, "அச்சிடு(5)\n")
        session.wait_for_output(PROGRAM_OUTPUT)


def test_a_source_that_loses_its_marker_is_told(place, tools):
    with watching(place) as session:
        place.change_until(session, SOURCE, "அச்சிடு(1)\n")
        session.wait_for_errors("'ஃ பொழில் 2' இப்போது இல்லை!")
        assert tools.calls() == []
