"""On which lines a program died that nothing caught: told by the compiler after the program's last word."""

import pytest

from support.console import without_colours

SOURCE = "நிரல்.பொழில்"
TITLE = "🔎 பிழை நேர்ந்த இடம்:\n"
CALLER = "  ╰── அதை அழைத்த இடம்:\n"
IN_A_FUNCTION = "செயல் பரப்பு(ஆரம்):\n    திரும்பு ஆரம் பெருக்கு ஆரம்\n\nஅச்சிடு(பரப்பு(3))\nஅச்சிடு(பரப்பு(2.5))\n"


def shown(line, text, file=SOURCE):
    return f"  📍 {file}, வரி {line}\n     {line} |  {text}\n"


def told_after_the_last_word(result):
    last_word, title, told = without_colours(result.err).partition(TITLE)
    assert last_word.count("\n") == 3
    return title + told


DEATHS = {
    "before any call": ("அச்சிடு(1)\nஅ = 8\nஅச்சிடு(அ பெருக்கு 2.5)\nஅச்சிடு(2)\n",
                        TITLE + shown(3, "அச்சிடு(அ பெருக்கு 2.5)")),
    "by a signal": ("பூ = 0\nஅ = 5\nஅச்சிடு(அ மீதி பூ)\n", TITLE + shown(3, "அச்சிடு(அ மீதி பூ)")),
    "in a function, with the call that was too much": (
        IN_A_FUNCTION, TITLE + shown(2, "திரும்பு ஆரம் பெருக்கு ஆரம்") + CALLER + shown(5, "அச்சிடு(பரப்பு(2.5))")),
    "after a call": (
        f"{IN_A_FUNCTION.replace('2.5', '4')}வேர் = வர்க்கமூலம்(16)\n", TITLE + shown(6, "வேர் = வர்க்கமூலம்(16)")),
    "in a condition inside blocks": (
        'ஒவ்வொன்றாக எ இல் வரம்பு(3):\n    எனில் எ சமம் 2:\n        அ = 1\n        எனில் அ:\n            அச்சிடு("உண்டு")\n',
        TITLE + shown(4, "எனில் அ:")),
    "deep in calls: three lines": (
        "செயல் அடி(அ):\n    திரும்பு அ வகு 2 கழி \"x\"\n\nசெயல் நடு(அ):\n    திரும்பு அடி(அ)\n\n"
        "செயல் முடி(அ):\n    திரும்பு நடு(அ)\n\nமுடி(1)\n".replace(' கழி "x"', " மீதி (அ கழி 1)"),
        TITLE + shown(2, "திரும்பு அ வகு 2 மீதி (அ கழி 1)") + CALLER + shown(5, "திரும்பு அடி(அ)")
        + CALLER + shown(8, "திரும்பு நடு(அ)")),
    "recursion: each line once": (
        "செயல் இறங்கு(எ):\n    எனில் எ சமம் 0:\n        திரும்பு 1 மீதி எ\n    திரும்பு இறங்கு(எ கழி 1)\n\nஇறங்கு(5)\n",
        TITLE + shown(3, "திரும்பு 1 மீதி எ") + CALLER + shown(4, "திரும்பு இறங்கு(எ கழி 1)")
        + CALLER + shown(6, "இறங்கு(5)")),
}


@pytest.mark.parametrize("name", DEATHS)
def test_line_of_the_fault_and_of_its_callers(real_place, name):
    source, told = DEATHS[name]
    result = real_place.compile(source)
    assert result.status == 0
    assert told_after_the_last_word(result) == told


def test_a_fault_in_an_imported_file_is_told_with_that_file(real_place):
    real_place.write("கணக்கு.பொழில்", "செயல் பகிர்(அ, ஆ):\n    திரும்பு அ மீதி ஆ\n")
    result = real_place.compile('நூஇறக்கி "கணக்கு"\nஅச்சிடு(பகிர்(5, 0))\n')
    assert told_after_the_last_word(result) == (
        TITLE + shown(2, "திரும்பு அ மீதி ஆ", "கணக்கு.பொழில்") + CALLER + shown(2, "அச்சிடு(பகிர்(5, 0))"))


@pytest.mark.parametrize("flags", ["-O2", "-O2 -fno-omit-frame-pointer", "-g"])
def test_flags_of_the_user_leave_the_line(real_place, flags):
    real_place.env["POZHIL_CXXFLAGS"] = flags
    source, told = DEATHS["before any call"]
    assert told_after_the_last_word(real_place.compile(source)) == told


def test_a_stripped_program_has_the_last_word_alone(real_place):
    real_place.env["POZHIL_CXXFLAGS"] = "-s"
    assert told_after_the_last_word(real_place.compile(IN_A_FUNCTION)) == ""


@pytest.mark.parametrize("tool", ["nm", "addr2line"])
@pytest.mark.parametrize("script", ["exit 1", "echo '0 T'; echo 'generated.cpp:'; echo generated.cpp:99999999"])
def test_a_tool_that_knows_nothing(real_place, scratch, tool, script):
    broken = scratch / "tools" / tool
    broken.parent.mkdir()
    broken.write_text(f"#!/bin/sh\n{script}\n", encoding="utf-8")
    broken.chmod(0o755)
    real_place.env["PATH"] = f"{broken.parent}:{real_place.env['PATH']}"
    assert told_after_the_last_word(real_place.compile(IN_A_FUNCTION)) == ""


@pytest.mark.parametrize("source", [IN_A_FUNCTION, IN_A_FUNCTION.replace("2.5", "4"), "ப = [1]\nஅச்சிடு(ப[3])\n"])
def test_nothing_is_left_lying_about(real_place, source):
    real_place.compile(source)
    assert sorted(path.name for path in real_place.work_directory.iterdir()) == ["generated.cpp", "பொழில்_செயலி"]


def test_a_trace_of_a_run_before_tells_nothing(real_place):
    real_place.work_directory.mkdir()
    (real_place.work_directory / "pozhil_trace").write_text("401000\n", encoding="utf-8")
    result = real_place.compile("அச்சிடு(1)\n")
    assert result.err == ""


def test_only_a_death_is_worth_a_second_build(installed_place, installation, tools):
    installed_place.run(installed_place.write(SOURCE))
    assert tools.calls() == [installation.link_call(installed_place)]
