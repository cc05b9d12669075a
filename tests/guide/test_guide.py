"""Every program in docs/மொழி and docs/பிழைகள்.md is one test; so is what the pages say about names, errors, built-ins."""

import re

import pytest

from support import guide
from support.case_check import check_case
from support.compiler import REPOSITORY, compiler_path

PROGRAMS = [program for page in guide.pages() for program in guide.read_programs(guide.read_fences(page))]


def _number(program):
    """Chapter and line: the names of the pages are Tamil, which pytest would print as escapes."""
    chapter = re.match(r"\d*", program.fence.page.name)[0] or "errors"
    return f"{chapter}-line-{program.fence.line}"


@pytest.mark.parametrize("program", PROGRAMS, ids=_number)
def test_program(program, tmp_path):
    trouble = check_case(guide.as_case(program, tmp_path), compiler_path())
    assert not trouble, f"{program.place}\n{trouble}"


@pytest.mark.parametrize("page", guide.pages(), ids=lambda page: re.match(r"\d*", page.name)[0] or page.suffix)
def test_links(page):
    links = re.findall(r"\]\(([^)#]+)(?:#[^)]*)?\)", page.read_text(encoding="utf-8"))
    missing = [link for link in links if ":" not in link and not (page.parent / link).exists()]
    assert not missing


def test_index_names_every_chapter():
    index = (guide.GUIDE / "README.md").read_text(encoding="utf-8")
    assert [page.name for page in guide.pages() if f"{page.name})" not in index and page.name != "README.md"] == []


def test_built_in_functions_are_in_the_table():
    source = (REPOSITORY / "src" / "generator" / "builtins.cpp").read_text(encoding="utf-8")
    names = set(re.findall(r'^    \{"([^"]+)", ', source, re.MULTILINE))
    assert len(names) > 30
    page = guide.GUIDE / "13_உள்ளமை_செயல்கள்.md"
    described = {name for row in guide.table_rows(page) for name in re.findall(r"^`(\S+?)\(", row[0])}
    assert names - described == set()
