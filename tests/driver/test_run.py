"""The word ஓட்டு of the command பொழில்: it is the compiler by another name, but tells what it doesn't understand."""

import pytest

from support.process import run

OK, FAULT, WRONG_USE, FAILED = 0, 1, 2, 3
SOURCE = "நிரல்.பொழில்"
HELLO = 'அச்சிடு("வணக்கம், " இணை உள்ளீடு(""))\n'


@pytest.fixture
def run_word(real_place):
    def run_with(*arguments, word="ஓட்டு", **settings):
        command = [real_place.compiler.parent / "பொழில்", word, *arguments]
        return run(command, cwd=real_place.folder, env=real_place.env, **settings)
    return run_with


@pytest.mark.parametrize("word", ["ஓட்டு", "run"])
def test_it_does_what_the_compiler_does(real_place, run_word, word):
    real_place.write(SOURCE, HELLO)
    result = run_word(SOURCE, word=word, stdin="மலர்\n".encode())
    compiled = real_place.run(SOURCE, stdin="மலர்\n".encode())
    assert result.out.endswith("வணக்கம், மலர்\n")
    assert (result.status, result.out, result.err) == (compiled.status, compiled.out, compiled.err)


def test_fault_of_the_program(real_place, run_word):
    real_place.write(SOURCE, "ஃ பொழில் 2\nஅ = 1 1\n")
    result = run_word(SOURCE)
    assert result.status == FAULT
    assert "இலக்கணப் பிழை" in result.out


@pytest.mark.parametrize("switches", [["--கண்காணி"], ["--watch"], ["--வலை"], ["--web"]])
def test_switches_reach_the_compiler(installed_place, switches):
    installed_place.write(SOURCE, HELLO)
    installed_place.compiler.unlink()
    installed_place.compiler.write_text('#!/bin/sh\nprintf "%s\\n" "$@"\nexit 7\n')
    installed_place.compiler.chmod(0o755)
    command = [installed_place.compiler.parent / "பொழில்", "run", *switches, SOURCE]
    result = run(command, cwd=installed_place.folder, env=installed_place.env)
    tamil = {"--watch": "--கண்காணி", "--web": "--வலை"}.get(switches[0], switches[0])
    assert (result.status, result.out) == (7, f"{tamil}\n{SOURCE}\n")


@pytest.mark.parametrize("arguments, words", [
    ([], "எந்தக் கோப்பை"),
    (["இல்லை.பொழில்"], "'இல்லை.பொழில்' என்ற கோப்பு இல்லை"),
    ([SOURCE, SOURCE], "இரண்டாவது"),
    (["--வேகம்", SOURCE], "'--வேகம்'"),
    ([SOURCE, "குறிப்பு.txt"], "'குறிப்பு.txt'"),
])
def test_wrong_use(real_place, run_word, arguments, words):
    real_place.write(SOURCE, HELLO)
    result = run_word(*arguments)
    assert (result.status, result.out) == (WRONG_USE, "")
    assert words in result.err
    assert not real_place.work_directory.exists()


def test_installation_without_a_compiler(installed_place):
    installed_place.write(SOURCE, HELLO)
    installed_place.compiler.unlink()
    command = [installed_place.compiler.parent / "பொழில்", "run", SOURCE]
    result = run(command, cwd=installed_place.folder, env=installed_place.env)
    assert result.status == FAILED
    assert "இயக்க முடியவில்லை" in result.err


def test_help(run_word):
    assert run_word("--உதவி").out.startswith("பொழில் ஓட்டு <கோப்பு.பொழில்>")
