"""What shells offer while a command is typed, and the words that the manual tells: those that the command has."""

import subprocess

import pytest

from support.process import run
from support.compiler import REPOSITORY

PACKAGING = REPOSITORY / "packaging"


@pytest.fixture
def candidates(place, command):
    """What may come after these words, as the command itself says; by what is typed, what it does."""
    def ask(*words):
        result = run([command, "--நிறைவு", *words], cwd=place.folder, env=place.env)
        assert (result.status, result.err) == (0, "")
        return dict(line.split("\t") for line in result.out.splitlines())
    return ask


def shell(place, *call):
    bin_first = {**place.env, "PATH": f"{place.compiler.parent}:{place.env['PATH']}"}
    result = subprocess.run(call, cwd=place.folder, env=bin_first, capture_output=True, text=True, timeout=60)
    assert result.returncode == 0, result.stderr
    return result.stdout.splitlines()


BASH = """source "$0"; COMP_WORDS=("${@:1}"); COMP_CWORD=$(($# - 1)); compopt() { :; }; _pozhil; printf '%s\\n' "${COMPREPLY[@]}" """
ZSH = """_describe() { print -l -- ${(P)2} }; _files() { print -l -- *.பொழில் }; service=$2; words=(${@:2}); CURRENT=$(($# - 1)); source $1"""


def from_bash(place, *words):
    return shell(place, "bash", "-c", BASH, PACKAGING / "completions/pozhil.bash", *words)


def from_zsh(place, *words):
    offered = shell(place, "zsh", "-fc", ZSH, "zsh", PACKAGING / "completions/_pozhil", *words)
    return [line.split(":")[0] for line in offered]


def from_fish(place, *words):
    line = " ".join(words)
    offered = shell(place, "fish", "-c", f"source {PACKAGING}/completions/pozhil.fish; complete -C '{line}'")
    return [candidate.split("\t")[0] for candidate in offered]


SHELLS = pytest.mark.parametrize("offered_by", [from_bash, from_zsh, from_fish], ids=["bash", "zsh", "fish"])


def test_all_words_are_told_in_both_languages(candidates, place, command):
    told = candidates()
    help_text = run([command, "உதவி"], cwd=place.folder, env=place.env).out
    assert len(told) >= 12
    for word, summary in told.items():
        assert word in ("உதவி", "help") or f"  {word}    {summary}\n" in help_text


def test_switches_are_those_of_the_help(candidates):
    assert set(candidates("run")) == set(candidates("ஓட்டு")) == {"--வலை", "--கண்காணி", "--web", "--watch"}
    assert candidates("run")["--watch"] == "again whenever the file changes"
    assert candidates("nonsense") == {}


@SHELLS
@pytest.mark.parametrize("name", ["பொழில்", "pozhil"])
def test_shells_offer_the_words(place, candidates, offered_by, name):
    assert set(offered_by(place, name, "")) >= set(candidates())


@SHELLS
def test_shells_offer_the_switches_of_a_word(place, candidates, offered_by):
    assert set(offered_by(place, "pozhil", "check", "--")) == set(candidates("check"))


@SHELLS
def test_shells_offer_programs(place, offered_by):
    place.write("நிரல்.பொழில்", "")
    place.write("other.txt", "")
    offered = offered_by(place, "pozhil", "run", "")
    assert "நிரல்.பொழில்" in offered


@pytest.mark.parametrize("page, language", [("pozhil.1", "en"), ("ta/pozhil.1", "ta")])
def test_the_manual_has_all_words(place, candidates, command, page, language):
    page_text = "\n".join(shell(place, PACKAGING / "man/write-page", PACKAGING / "man" / page, command, language))
    for word, summary in candidates().items():
        assert word in page_text
        is_tamil = any("\u0b80" <= letter <= "\u0bff" for letter in word)
        assert (summary in page_text) == (is_tamil == (language == "ta"))
    assert "@WORDS@" not in page_text
