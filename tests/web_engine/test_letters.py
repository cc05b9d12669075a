"""The small tables of the web's engine say the same of every character as those that they are made of."""

from pathlib import Path

import pytest
from building import OPTIMISED, build_web, call, has_web_engine, run_native, run_web

from support.compiler import REPOSITORY

UTF8PROC = REPOSITORY / "third_party" / "utf8proc"

pytestmark = pytest.mark.skipif(
    not has_web_engine() or not UTF8PROC.is_dir(), reason="there are no parts for web programs"
)


def test_every_character_is_as_it_was(tmp_path):
    source = tmp_path / "letters_work.cpp"
    source.write_bytes((Path(__file__).parent / source.name).read_bytes())
    original, executable = tmp_path / "utf8proc.o", tmp_path / "original"
    call(["gcc", "-c", "-O2", "-DUTF8PROC_STATIC", UTF8PROC / "utf8proc.c", "-o", original], tmp_path)
    call(["g++", "-O2", "-std=c++17", "-DUTF8PROC_STATIC", f"-I{UTF8PROC}", source, original, "-o", executable], tmp_path)
    web = run_web(build_web([source], tmp_path, ["-DUTF8PROC_STATIC", f"-I{UTF8PROC}", *OPTIMISED]))
    console = run_native(executable, tmp_path / "run")
    assert len(console.out.splitlines()) == 0x110
    assert (web.status, web.out) == (console.status, console.out)
