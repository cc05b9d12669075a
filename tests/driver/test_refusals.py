"""What the user is told of a program that g++ or em++ refuses, and of a stage that fails without a box."""

import resource
import shutil

import pytest

from support import texts as t
from support.console import failed_build_line, without_colours
from support.server import get

SOURCE = "அ.பொழில்"
OTHER = "வேறு.பொழில்"
BARE_INPUT = "பெயர் = உள்ளீடு()\n"
INPUT_REMEDY = 'கேள்வி வேண்டாம்னா \'உள்ளீடு("")\' போதும் மச்சி!\n'
REFUSED_PAGE = """வலைதளம் (
    தலைமை ()
    குமரி (
        உரை("வணக்கம்")
    )
    வரையறை (
        அ = 5
        எனில் அ கூட்டு 1:
            அச்சிடு(அ)
        ஆ = குறை அ
        ஒவ்வொன்றாக இ இல் [1, 2]:
            அச்சிடு(இ)
        அ கூட்டிசேர் ஆ
        பெயர் = உள்ளீடு()
    )
)
"""
UNKNOWN = "பொழில் ஏற்கும் இந்தக் கூற்றை C++ தொகுப்பி மறுக்கிறது."
WITHOUT_PLACE = "உருவான உரையை C++ தொகுப்பி மறுக்கிறது."


def explained(result):
    """What stands after the red line."""
    _, line, rest = result.err.partition(failed_build_line())
    assert line
    return without_colours(rest)


def refuses(tools, place, *errors, tool="g++", emitted=None):
    """From now on the tool fails with `errors`: (what stands in the line of the emitted text, message)."""
    emitted = emitted or place.emitted_path
    finds = "".join(
        f"echo \"{emitted}:$(/bin/grep -n -m1 -F '{piece}' '{emitted}' | /usr/bin/cut -d: -f1):1: error: {message}\" >&2\n"
        for piece, message in errors
    )
    tools.stands_in_for(tool, finds + "exit 1")


def test_refusal_of_the_real_toolchain_is_explained_after_its_words_and_the_line(real_place):
    result = real_place.compile("ஃ முதல்\n" + BARE_INPUT)
    words, _, _ = result.err.partition(failed_build_line())
    assert result.status == 0
    assert "error: too few arguments" in words
    assert explained(result) == (
        "  📍 நிரல்.பொழில், வரி 2\n"
        "     2 |  பெயர் = உள்ளீடு()\n"
        "  ╰── 'உள்ளீடு' செயலுக்கு ஒரு கேள்வி வேண்டும்; இங்கே அடைப்புக்குறி வெறுமையாக உள்ளது.\n"
        "  💡 கேள்வியைச் சேர்த்து 'உள்ளீடு(\"உன் பெயர்: \")'-ன்னு எழுது; " + INPUT_REMEDY
    )


def test_words_of_the_real_toolchain_can_be_left_out(real_place):
    real_place.env["POZHIL_SHOW_CXX"] = "0"
    result = real_place.compile(BARE_INPUT)
    assert result.err.startswith(failed_build_line())
    assert explained(result).endswith(INPUT_REMEDY)


def test_names_are_letters_where_the_user_s_settings_know_english_alone(real_place):
    real_place.env["LC_ALL"] = "C"
    result = real_place.compile("செயல் அ():\n    திரும்பு ஆ()\nசெயல் ஆ():\n    திரும்பு 1\nஅச்சிடு(அ())\n")
    assert "'ஆ' செயலை, அதை அழைக்கிற செயலுக்கு மேலே" in explained(result)


def test_refusal_in_an_imported_file_names_that_file(real_place):
    real_place.write(OTHER, "\n\nசெயல் கேள்():\n    திரும்பு உள்ளீடு()\n")
    result = real_place.compile(f'நூஇறக்கி "{OTHER}"\nஅச்சிடு(கேள்())\n')
    assert explained(result).startswith(f"  📍 {OTHER}, வரி 4\n     4 |  திரும்பு உள்ளீடு()\n")


def test_refusal_without_a_row_tells_statement_and_emitted_text(place, tools):
    refuses(tools, place, ('"இரண்டு"', "something new"))
    result = place.run(place.write(SOURCE, 'அச்சிடு("ஒன்று")\nஅச்சிடு("இரண்டு")\n'))
    told = explained(result)
    assert told.startswith(f"  📍 {SOURCE}, வரி 2\n     2 |  அச்சிடு(\"இரண்டு\")\n  ╰── {UNKNOWN}\n")
    number = int(told.partition(f"'{place.emitted_path}', வரி ")[2].partition("\n")[0])
    assert '"இரண்டு"' in place.emitted.split("\n")[number - 1]


def test_each_line_is_told_once(place, tools):
    refuses(tools, place, ('"ஒன்று"', "something new"), ('"ஒன்று"', "break statement not within loop or switch"),
            ('"இரண்டு"', "something new"))
    told = explained(place.run(place.write(SOURCE, 'அச்சிடு("ஒன்று")\nஅச்சிடு("இரண்டு")\n')))
    assert (told.count("வரி 1\n"), told.count(f"📍 {SOURCE}, வரி 2\n"), told.count(UNKNOWN)) == (1, 1, 1)
    assert "'நிறுத்து'" in told, "of what is said of a line, what a row knows counts"


def test_words_that_name_no_line_of_the_program(place, tools):
    tools.fails("echo 'g++: internal compiler error' >&2")
    told = explained(place.run(place.write(SOURCE)))
    assert WITHOUT_PLACE in told
    assert str(place.emitted_path) in told
    assert "📍" not in told


def test_nothing_is_explained_where_nothing_was_said(place, tools):
    tools.fails()
    assert explained(place.run(place.write(SOURCE))) == ""


def test_missing_part_of_the_installation_is_not_the_program_s_fault(place, tools):
    tools.fails("echo \"/usr/bin/ld: x.o: undefined reference to \\`f'\" >&2")
    told = explained(place.run(place.write(SOURCE)))
    assert "உன் நிரலில் தவறு இல்லை" in told


def test_words_of_a_build_that_succeeds_can_be_left_out_too(place, tools):
    tools.stands_in_for("g++", 'echo warning >&2; /bin/cp "${0%/*}/program" "$out"')
    assert place.run(place.write(SOURCE)).err == "warning\n"
    place.env["POZHIL_SHOW_CXX"] = "0"
    assert place.run(SOURCE).err == ""


def test_ten_megabytes_of_errors_are_read_in_no_time(place, tools):
    """Each names another line of the program, as far as there are any."""
    place.write(SOURCE, "".join(f'அச்சிடு("{number}")\n' for number in range(5000)))
    errors = f'{{print "{place.emitted_path}:" NR ":1: error: {"x" * 60}"}}'
    tools.fails(f"/usr/bin/seq 100000 | /usr/bin/awk '{errors}' >&2")
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    result = place.run(SOURCE)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    assert after.ru_utime - before.ru_utime < 10
    assert len(result.stderr) > 10_000_000
    assert "… இன்னும் 4995 வரிகள் மறுக்கப்பட்டன.\n" in explained(result)


def test_refusal_while_watching(place, tools):
    place.write(SOURCE)
    with place.session(SOURCE, t.FLAG_WATCH) as session:
        session.wait_for_output("தொகுக்கப்படுகிறது")
        refuses(tools, place, ("fn_உள்ளீடு()", "too few arguments to function ‘std::string fn_உள்ளீடு(std::string)’"))
        place.change_until(session, SOURCE, "அ = 1\n" + BARE_INPUT)
        session.wait_until(lambda: INPUT_REMEDY.strip().encode() in session.stderr)
        assert f"📍 \x1b[1;36m{SOURCE}\x1b[0m, வரி 2\n" in session.stderr.decode()


def test_fault_in_an_imported_file_names_that_file(place):
    place.write(OTHER, "செயல் கேள்():\n    திரும்பு நீளம(1)\n")
    result = place.compile(f'நூஇறக்கி "{OTHER}"\nஅச்சிடு(கேள்())\n')
    assert result.status == 1
    told = without_colours(result.err)
    assert told.startswith(f"{t.GENERATOR_FAILED}\n  📍 {OTHER}, வரி 2\n     2 |  திரும்பு நீளம(1)\n")
    assert "நீ எழுத நினைச்சது 'நீளம்'-ஆ?" in told


@pytest.mark.usefixtures("port")
def test_refusal_of_em_is_explained_at_first_and_while_watching(place, tools):
    emitted = place.work_directory / t.EMITTED_WEB_NAME
    refuses(tools, place, ("fn_உள்ளீடு()", "no matching function for call to 'fn_உள்ளீடு'"), tool="em++", emitted=emitted)
    place.write(SOURCE, BARE_INPUT)
    with place.session(SOURCE, t.FLAG_WEB) as session:
        get("/version")
        first = session.stderr.decode()
        assert without_colours(first).startswith(f"  📍 {SOURCE}, வரி 1\n")
        assert "error:" not in first
        assert t.WEB_COMPILATION_FAILED in session.stdout.decode()
        place.change_until(session, SOURCE, "அ = 1\n" + BARE_INPUT)
        session.wait_until(lambda: "வரி 2\n".encode() in session.stderr)
        session.wait_until(lambda: session.stderr.decode().count(INPUT_REMEDY.strip()) == 2)


@pytest.mark.skipif(shutil.which("em++") is None, reason="em++ isn't installed")
@pytest.mark.usefixtures("port")
def test_refusals_of_the_real_em_are_explained(real_place):
    real_place.write(SOURCE, REFUSED_PAGE)
    with real_place.session(SOURCE) as session:
        session.wait_until(lambda: INPUT_REMEDY.strip().encode() in session.stderr, timeout=120)
        told = without_colours(session.stderr.decode())
    lines = [line for line in told.split("\n") if "📍" in line]
    assert lines == [f"  📍 {SOURCE}, வரி {number}" for number in (8, 10, 11, 13, 14)]
    remedies = [line for line in told.split("\n") if "💡" in line]
    for remedy, piece in zip(remedies, ("சமமில்லை 0", "0 கழி அ", "ஒரு மாறியில வை", "அ = அ கூட்டு ஆ", 'உள்ளீடு("")'), strict=True):
        assert piece in remedy
    assert "error" not in told
