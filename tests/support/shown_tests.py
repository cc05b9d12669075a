"""Runs a file of tests that a page shows, as `பொழில் சோதி` does, and compares what came out with what the page says."""

import difflib
import re

from support import case_file as cf
from support.compiler import plain_environment
from support.process import run

FOLDER = "சோதனைகள்"
NAME = "நிரல்" + cf.SOURCE_SUFFIX

_FAULT = re.compile(r"\[ (\S+-\d{3}) \] .*\n.*\n.*\n.* (வரி \d+)\n")
_FAILED_TEST = "  ❌ "


def check_tests(program, folder, compiler):
    """Runs the `guide.Program` in `folder`; returns "" when all is as stated, else a text that shows the difference."""
    for name, text in {**program.files, f"{FOLDER}/{NAME}": program.fence.text}.items():
        path = folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")
    result = run([compiler.parent / "பொழில்", "test"], cwd=folder, env=plain_environment(folder))
    observed = _observed(result.out)
    status = 1 if _faults(observed) else 0
    stated = [cf.format_entry(*entry) for entry in program.entries]
    came = [cf.format_entry(*entry) for entry in observed]
    if stated == came and (result.status, result.err) == (status, ""):
        return ""
    return "\n".join([*difflib.unified_diff(stated, came, "stated", "came out", lineterm=""), str(result)])


def _observed(out):
    """The fault that the file or a test comes to, or else all that is told of tests that pass."""
    fault = _FAULT.search(out)
    if not fault:
        return [(cf.OUTPUT, line) for line in out.splitlines()]
    kind = cf.RUNTIME if _FAILED_TEST in out[: fault.start()] else cf.DIAGNOSTIC
    return [(kind, " ".join(fault.groups()))]


def _faults(entries):
    return [text for kind, text in entries if kind != cf.OUTPUT]
