"""Compiles a language case in a folder of its own and tells what came out."""

import shutil
import tempfile
import time
from dataclasses import dataclass, field
from pathlib import Path

from support import case_file as cf
from support import texts as t
from support.box import Report, split_compiler_box, split_program_box
from support.compiler import plain_environment
from support.console import behind_animation, hint_lines
from support.process import Result, Session, run
from support.second_box import split_boxes
from support.toolchain import Toolchain

TIMEOUT = 60


@dataclass
class Outcome:
    """What came out of a case: the compiler's own words, and those of the program if it ran.

    `errors` is what stood on standard error besides the hints.
    """

    result: Result
    emitted: str | None
    output: list[str] | None = None
    diagnostics: list[Report] = field(default_factory=list)
    runtime: Report | None = None
    hints: list[str] = field(default_factory=list)
    errors: str = ""

    @property
    def diagnostic(self):
        return next(iter(self.diagnostics), None)


def run_case(case, compiler, *, with_program, timeout=TIMEOUT):
    """Compiles the case; only `with_program` does g++ build it and does the program run."""
    with tempfile.TemporaryDirectory(prefix="pozhil-case-") as scratch:
        scratch = Path(scratch).resolve()
        work = scratch / "work"
        work.mkdir()
        if case.files:
            shutil.copytree(case.files, work, dirs_exist_ok=True)
        (work / case.path.name).write_bytes(case.source)
        command = [compiler, case.path.name]
        env = plain_environment(scratch)
        if with_program:
            typed = "".join(line + "\n" for line in case.expectation.texts(cf.INPUT)).encode()
            result = run(command, cwd=work, env=env, stdin=typed, timeout=timeout)
        else:
            result = _run_without_toolchain(command, work, env, scratch / "tools", timeout)
        return _outcome(case, result, _emitted_text(work / t.WORK_DIRECTORY, case.path.name), with_program)


def _run_without_toolchain(command, work, env, tools, timeout):
    """g++ fails at once. em++ doesn't come back, since behind it a web build serves and waits for ever."""
    toolchain = Toolchain(tools)
    toolchain.fails()
    toolchain.stands_in_for("em++", "exec /bin/sleep 600")
    env["PATH"] = toolchain.in_front_of(env["PATH"])
    end = time.monotonic() + timeout
    with Session(command, cwd=work, env=env) as session:
        while session.process.poll() is None and not toolchain.calls("em++") and time.monotonic() < end:
            time.sleep(0.002)
        status = 0 if toolchain.calls("em++") else session.process.poll()
        return Result(status, session.stdout, session.stderr, timed_out=status is None)


def _emitted_text(folder, source):
    """The text for em++ if the case is a web program, else the text for g++ of either edition, else None."""
    for name in (t.EMITTED_WEB_NAME, t.EMITTED_NAME, f"{source}/{t.EMITTED_WEB_NAME}", f"{source}/{t.EMITTED_NAME}"):
        if (folder / name).is_file():
            return (folder / name).read_text(encoding="utf-8", errors="backslashreplace")
    return None


def _outcome(case, result, emitted, with_program):
    outcome = Outcome(result, emitted)
    outcome.hints, outcome.errors = hint_lines(result.err, case.path.name)
    program_output = behind_animation(result.out, case.path.name)
    split_compile_time, split_run_time = _BOX_READERS[case.expectation.edition]
    if program_output is None:
        _, outcome.diagnostics = split_compile_time(result.out)
    elif with_program:
        program_output, boxes = split_run_time(program_output)
        outcome.runtime = next(iter(boxes), None)
        outcome.output = visible_lines(program_output)
    return outcome


def _as_list(split):
    """`split` with a list, of one box at most, in the place of a box or None."""

    def split_off(output):
        before, report = split(output)
        return before, [report] if report else []

    return split_off


# By edition: what splits the boxes of the compiler, and that of a running program, off an output.
_BOX_READERS = {1: (_as_list(split_compiler_box), _as_list(split_program_box)), 2: (split_boxes, split_boxes)}


def visible_lines(text):
    """The lines of an output; control characters are shown as pictures, and so is a missing last line end."""
    pictures = {code: 0x2400 + code for code in range(0x20) if chr(code) not in "\t\n"}
    lines = text.translate(pictures).split("\n")
    if lines[-1]:
        lines[-1] += cf.UNENDED
        return lines
    return lines[:-1]
