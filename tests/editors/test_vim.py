"""The files for Vim, in Vim itself."""

import subprocess

import pytest

import cases
from derivation import vim
from support.compiler import REPOSITORY

FILES = REPOSITORY / "editors" / "vim"
GROUPS = {kind.value: group for kind, (group, _) in vim.GROUPS.items()} | {"none": ""}


def run_vim(file, *commands, tmp_path):
    """What Vim, with our files alone, echoes for the commands."""
    answers = tmp_path / "answers"
    start = ["vim", "-N", "-u", "NONE", "-i", "NONE", "-n", "-es", "--cmd", "set encoding=utf-8", "--cmd",
             f"set runtimepath={FILES},$VIMRUNTIME", "--cmd", "filetype plugin indent on", "--cmd", "syntax on"]
    script = tmp_path / "commands.vim"
    script.write_text("\n".join([f"redir! > {answers}", *commands, "redir END", "qall!"]) + "\n", encoding="utf-8")
    subprocess.run([*start, file, "-S", script], stdin=subprocess.DEVNULL, timeout=60, check=False)
    return answers.read_text(encoding="utf-8").split("\n")[1:]


@pytest.mark.parametrize("path", cases.all_cases(), ids=lambda path: path.stem)
def test_colours(path, tmp_path):
    lines, expected = cases.expectations(path)
    asked = []
    for one in expected:
        for place in (one.begin, one.end - 1):
            column = len(lines[one.line][:place].encode()) + 1
            asked.append(f"echo synIDattr(synID({one.line + 1}, {column}, 1), 'name')")
    told = run_vim(path, *asked, tmp_path=tmp_path)
    assert len(told) == len(asked)
    pairs = zip(told[::2], told[1::2])
    wrong = [(lines[one.line], one, pair) for one, pair in zip(expected, pairs) if set(pair) != {GROUPS[one.kind]}]
    assert not wrong


def test_words_with_marks_are_one_word(tmp_path):
    program = tmp_path / "சொல்.பொழில்"
    program.write_text("வட்டி_சேர் கொண்டுள்ளது x1 ௧௨\n", encoding="utf-8")
    told = run_vim(program, "normal! 0", "echo expand('<cword>')", "normal! w", "echo expand('<cword>')",
                   "echo col('.')", tmp_path=tmp_path)
    assert told == ["வட்டி_சேர்", "கொண்டுள்ளது", str(len("வட்டி_சேர் ".encode()) + 1)]


PROGRAM = """செயல் தரம்(மதிப்பு):
    எனில் மதிப்பு பெரிது 90: ஃ முதல் (
        திரும்பு "அ:"
    இல்லை எனில் மதிப்பு பெரிது 50:
        அச்சிடு(
            "ஆ"
        )
    இல்லை:
        முயற்சி:
            அச்சிடு(1)
        பிடி:
            அச்சிடு(2)
"""


def test_indentation(tmp_path):
    """A program without indentation gets it back, but for what Vim can't know: where a block ends."""
    program = tmp_path / "உள்.பொழில்"
    program.write_text("\n".join(line.strip() for line in PROGRAM.splitlines()) + "\n", encoding="utf-8")
    run_vim(program, "normal! gg=G", "write", tmp_path=tmp_path)
    assert program.read_text(encoding="utf-8") == PROGRAM


def test_comments(tmp_path):
    told = run_vim(tmp_path / "அ.பொழில்", "echo &filetype &commentstring &expandtab &shiftwidth", tmp_path=tmp_path)
    assert told == ["pozhil ஃ %s 1 4"]
