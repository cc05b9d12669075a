"""What a program says when a fault ends it that nothing in it catches, and that it ends as it would without a word."""

import os
import re
import signal
import subprocess
from dataclasses import dataclass

import pytest

from support import texts as t
from support.process import run
from support.workplace import Workplace

SOURCE = "நிரல்.பொழில்"
OUTSIDE = "செயல்களுக்கு வெளியே உள்ள வரிகள்"
LATER = "அல்லது அதற்குப் பின் ஓடிய வரிகள்"

WRONG_KIND = "ஒரு மதிப்பு, அது பயன்படும் இடத்துக்கு ஏற்ற வகையில் இல்லை."
ZERO = "ஒரு முழு எண்ணைச் சுழியத்தால் (0) வகுக்கவோ, மீதி காணவோ முயன்றது."
STACK = "ஒன்றுக்குள் ஒன்றாக நடந்தவை மிக ஆழமாகி, அடுக்கு நினைவகம் தீர்ந்துவிட்டது (Stack Overflow)."
MEMORY = "நினைவகம் தீர்ந்துவிட்டது, அல்லது ஒரு மதிப்பு அளவு மீறிப் பெரிதாகிவிட்டது (Out of Memory)."
UNKNOWN_NAME = "இதுவரை மதிப்பே தராத ஒரு மாறியைப் பயன்படுத்த முயன்றது."
BROKEN = "நினைவகத்தில் தனக்கு உரியதல்லாத இடத்தைத் தொட முயன்றது."
UNKNOWN = "யாரும் பிடிக்காத ஒரு பிழை நேர்ந்தது."

ENGLISH = re.compile(r"terminate|what\(\)|std::|any_cast|bad_|map::at")

DIVIDE = "செயல் பகிர்(அ, ஆ):\n    திரும்பு அ வகு ஆ\nபூ = 0\n"
REMAINDER = "பூ = 0\nஅச்சிடு(5 மீதி பூ)\n"
LIST_IN_LIST = "ப = [1]\nஎ = 0\nசுற்று எ சிறிது 4000:\n    ப = [ப]\n    எ = எ கூட்டு 1\n"
DEEP_METHOD = """கட்டமைப்பு கிணறு:
    ஆழம் = 0
    செயல் இறங்கு(தான், வ):
        எனில் வ சமம் 0:
            திரும்பு 0
        திரும்பு தான்.இறங்கு(வ கழி 1)
க = கிணறு()
அச்சிடு(க.இறங்கு(140))
"""
# Endless only where it is told to run, which the compiler doesn't.
ENDLESS_TEXT = 'உ = உள்ளீடு("")\nசுற்று உ சமமில்லை "":\n    உ = உ இணை உ\n'


@dataclass
class Death:
    source: str
    signal: int
    cause: str
    place: str
    limits: str = ""
    out: str = ""

    @property
    def word(self):
        """All but the remedy."""
        return f"🚨 நிரல் இடையிலேயே நின்றுவிட்டது: {self.cause}\n📍 தேட வேண்டிய இடம்: {SOURCE}, {self.place}\n💡 சரி செய்யும் முறை: "


DEATHS = {
    "value of another kind": Death("அச்சிடு(வர்க்கமூலம்(16))\n", signal.SIGABRT, WRONG_KIND, OUTSIDE),
    "division": Death("பூ = 0\nஅச்சிடு(5 வகு பூ)\n", signal.SIGABRT, t.DIVISION_BY_ZERO, OUTSIDE),
    "remainder while printing": Death(REMAINDER, signal.SIGFPE, ZERO, OUTSIDE),
    "index of another kind": Death('ப = [1]\nப["அ"] = 2\n', signal.SIGABRT, "பொருந்தாத தரவு வகை (Type Mismatch)!", OUTSIDE),
    "variable without a value": Death("செயல் கூடு(மாற்று அ):\n    அ = 1\nகூடு(இல்லாத)\n", signal.SIGABRT, UNKNOWN_NAME,
                                       f"வரி 3, {LATER}"),
    "in a function": Death(f"{DIVIDE}அச்சிடு(பகிர்(5, பூ))\n", signal.SIGABRT, t.DIVISION_BY_ZERO,
                           f"வரி 4-இல் கடைசியாக அழைத்த செயல், {LATER}"),
    "after a function": Death(f"{DIVIDE}அச்சிடு(பகிர்(5, 1))\nஅச்சிடு(5 மீதி பூ)\n", signal.SIGFPE, ZERO, f"வரி 4, {LATER}", out="5\n"),
    "no memory": Death(ENDLESS_TEXT, signal.SIGABRT, MEMORY, OUTSIDE, "ulimit -v 300000"),
    "stack of the main program": Death(LIST_IN_LIST, signal.SIGSEGV, STACK, OUTSIDE, "ulimit -s 256"),
    "stack of a method": Death(DEEP_METHOD, signal.SIGSEGV, STACK, f"வரி 6-இல் கடைசியாக அழைத்த செயல், {LATER}",
                               "ulimit -s 64"),
}


def run_program(place, limits="", **settings):
    """Runs the program that was built last as the compiler does, under the limits that a shell sets."""
    env = {**place.env, "POZHIL_SOURCE": SOURCE, "POZHIL_TRACE": str(place.folder / "trace")}
    command = ["/bin/sh", "-c", f'ulimit -c 0; {limits or ":"}; exec "$0"', place.program]
    return run(command, cwd=place.folder, env=env, stdin="ஓடு\n".encode(), timeout=20, **settings)


def assert_word(death, err):
    """What the compiler adds of lines is tested elsewhere."""
    assert err.startswith(death.word)
    remedy = err[len(death.word):].partition("🔎")[0]
    assert remedy.endswith("!\n") and remedy.count("\n") == 1
    assert not ENGLISH.search(err)


@pytest.mark.parametrize("name", DEATHS)
def test_each_way_to_die_has_its_words_and_the_status_that_it_has_without(real_place, name):
    death = DEATHS[name]
    real_place.compile(death.source)
    result = run_program(real_place, death.limits)
    assert not result.timed_out
    assert (result.status, result.out) == (-death.signal, death.out)
    assert_word(death, result.err)


def test_the_compiler_runs_the_program_with_its_source_and_shows_its_word(real_place):
    death = DEATHS["remainder while printing"]
    result = real_place.compile('அச்சிடு("முன்")\n' + death.source)
    assert result.status == 0
    assert result.out.endswith("முன்\n")
    assert_word(death, result.err)


def test_a_program_that_is_run_by_itself_knows_its_line_but_not_its_source(real_place):
    real_place.compile(DEATHS["in a function"].source)
    files = set(real_place.folder.rglob("*"))
    result = run([real_place.program], cwd=real_place.folder, env=real_place.env)
    assert result.status == -signal.SIGABRT
    assert "இடம்: வரி 4-இல் கடைசியாக அழைத்த செயல், " in result.err
    assert set(real_place.folder.rglob("*")) == files


def test_a_trace_that_cannot_be_written_changes_nothing(real_place):
    death = DEATHS["division"]
    real_place.compile(death.source)
    (real_place.folder / "trace").mkdir()
    result = run_program(real_place)
    assert (result.status, result.out) == (-death.signal, death.out)
    assert_word(death, result.err)


def test_what_the_program_catches_or_shows_in_a_box_has_no_word(real_place):
    caught = real_place.compile("முயற்சி:\n    அச்சிடு(வர்க்கமூலம்(16))\nபிடி:\n    அச்சிடு(பிழை)\n")
    assert (caught.err, caught.out.endswith("bad any_cast\n")) == ("", True)
    boxed = real_place.compile("ப = [1]\nஅச்சிடு(ப[3])\n")
    assert (boxed.err, "311" in boxed.out) == ("", True)


def test_the_object_of_the_first_run_has_the_word_too(scratch, installation):
    """It is made of what the installation holds alone."""
    installation.without_object()
    place = Workplace(scratch / "work", scratch, installation.compiler)
    death = DEATHS["remainder while printing"]
    assert_word(death, place.compile(death.source).err)


@pytest.mark.parametrize("name", ["division", "remainder while printing", "stack of a method"])
@pytest.mark.parametrize("redirection", ["2>&-", "2>/dev/full"])
def test_standard_error_that_takes_nothing(real_place, name, redirection):
    death = DEATHS[name]
    real_place.compile(death.source)
    result = run_program(real_place, f"{death.limits or ':'}; exec {redirection}")
    assert not result.timed_out
    assert (result.status, result.out, result.err) == (-death.signal, "", "")


@pytest.mark.parametrize("name", ["division", "remainder while printing"])
def test_reader_of_standard_error_that_has_gone_or_stands_still(real_place, name):
    death = DEATHS[name]
    real_place.compile(death.source)
    reader, writer = os.pipe()
    os.set_blocking(writer, False)
    try:
        while True:
            os.write(writer, b"x" * 512)
    except BlockingIOError:
        os.set_blocking(writer, True)
    full = run_program(real_place, stderr=writer)
    assert (full.timed_out, full.status) == (False, -death.signal)
    os.close(reader)
    assert run_program(real_place, stderr=writer).status == -death.signal
    os.close(writer)


@pytest.mark.parametrize("number", [signal.SIGSEGV, signal.SIGFPE, signal.SIGABRT])
def test_a_signal_from_outside_is_no_fault_of_the_program(real_place, number):
    real_place.compile('ப = உள்ளீடு("")\n')
    process = subprocess.Popen([real_place.program], cwd=real_place.folder, env=real_place.env, stdin=subprocess.PIPE,
                               stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    wait_until_asleep(process.pid)
    process.send_signal(number)
    assert (process.communicate(timeout=10), process.returncode) == ((b"", b""), -number)


def wait_until_asleep(pid):
    state = ""
    while state != "S":
        with open(f"/proc/{pid}/stat", encoding="utf-8") as file:
            state = file.read().rpartition(") ")[2][0]


# Faults that no program of the language can bring about at will, in C++ that defines what the emitted text does.
FRAME = "int g_current_call_line = 7;\nint g_call_depth = 0;\nvoid init_globals() {}\n"
THROW = "throw std::runtime_error(\"அ\");"
FAULTS = {
    "exception in a thread": (f"std::thread([] {{ {THROW} }}).join();", signal.SIGABRT, "அ"),
    "two threads at once": (f"std::thread a([] {{ {THROW} }}), b([] {{ {THROW} }}); a.join(); b.join();",
                            signal.SIGABRT, "அ"),
    "fault in a thread": ("std::thread([] { volatile int zero = 0; zero = 1 % zero; }).join();", signal.SIGFPE, ZERO),
    "thread left alone": ("std::thread running([] { pause(); });", signal.SIGABRT, UNKNOWN),
    "exception of the destructor": (f"struct Thrower {{ ~Thrower() {{ {THROW} }} }} thrower;", signal.SIGABRT, "அ"),
    "no exception of the library": ("throw 7;", signal.SIGABRT, UNKNOWN),
    "wild pointer": ("*reinterpret_cast<volatile char*>(8) = 1;", signal.SIGSEGV, BROKEN),
    "abort": ("std::abort();", signal.SIGABRT, BROKEN),
    "broken heap": ("char* volatile block = new char[64]; free(block + 16);", signal.SIGABRT, BROKEN),
    "fault in a stream that prints": (
        "struct Broken : std::streambuf { int overflow(int) override { std::abort(); } } broken;"
        " std::cout.rdbuf(&broken); std::cout << 1;", signal.SIGABRT, BROKEN),
    "what() that faults": (
        "struct Wild : std::exception { const char* what() const noexcept override"
        " { *reinterpret_cast<volatile char*>(8) = 1; return nullptr; } }; throw Wild();", signal.SIGSEGV, BROKEN),
}


def build_cpp(place, installation_folder, body, frame=FRAME):
    source = place.folder / "fault.cpp"
    source.write_text("#include <csignal>\n#include <cstdlib>\n#include <exception>\n#include <iostream>\n"
                      "#include <stdexcept>\n#include <thread>\n#include <unistd.h>\n"
                      f"{frame}int main() {{\n{body}\n}}\n", encoding="utf-8")
    place.work_directory.mkdir(exist_ok=True)
    subprocess.run(["g++", source, installation_folder / t.CACHE_DIRECTORY / t.CACHED_OBJECT, "-o", place.program,
                    "-std=c++17", "-w", "-static", "-lpthread"], check=True)


@pytest.mark.parametrize("name", FAULTS)
def test_faults_of_the_library_and_of_threads(real_place, compiler, name):
    body, number, cause = FAULTS[name]
    build_cpp(real_place, compiler.parent, body)
    result = run_program(real_place)
    assert not result.timed_out
    assert (result.status, result.out) == (-number, "")
    assert result.err.count("🚨") == 1
    assert f"நின்றுவிட்டது: {cause}\n" in result.err
    assert "terminate called" not in result.err


def test_only_generated_programs_are_watched(real_place, compiler):
    """The compiler and its tests link the same report."""
    build_cpp(real_place, compiler.parent, THROW, frame="int g_current_call_line = 7;\nint g_call_depth = 0;\n")
    result = run_program(real_place)
    assert result.status == -signal.SIGABRT
    assert "terminate called" in result.err
    assert "🚨" not in result.err
