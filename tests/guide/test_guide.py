"""Every program of the guides and of the list of errors is one test: docs/மொழி/README.md tells its fences."""

import re

import pytest

from support import guide
from support.case_check import check_case
from support.compiler import compiler_path
from support.shown_tests import check_tests

PROGRAMS = [program for page in guide.pages() for program in guide.read_programs(guide.read_fences(page))]


def _chapter(page):
    """A plain name: pytest would print Tamil as escapes."""
    if page.parent == guide.WEB_GUIDE:
        return f"web{sorted(guide.WEB_GUIDE.glob('*.md')).index(page)}"
    number, is_inserted = re.match(r"(\d*)(அ?)", page.name).groups()
    chapter = number + ("a" if is_inserted else "")
    return chapter or {guide.ERROR_PAGE: "errors", guide.COMMAND_PAGE: "command"}.get(page, "index")


def _place(program):
    return f"{_chapter(program.fence.page)}-{program.fence.line}"


@pytest.mark.parametrize("program", PROGRAMS, ids=_place)
def test_program(program, tmp_path):
    if program.is_test:
        trouble = check_tests(program, tmp_path, compiler_path())
    else:
        trouble = check_case(guide.as_case(program, tmp_path), compiler_path())
    assert not trouble, f"{program.place}\n{trouble}"


@pytest.mark.parametrize("page", guide.pages(), ids=_chapter)
def test_links_lead_somewhere(page):
    broken = []
    text = re.sub(r"`[^`]*`", "", page.read_text(encoding="utf-8"))
    for link in re.findall(r"\]\(([^)]+)\)", text):
        path, _, anchor = link.partition("#")
        target = page.parent / path if path else page
        if not target.exists() or anchor and anchor not in guide.anchors(target.read_text(encoding="utf-8")):
            broken.append(link)
    assert broken == []


@pytest.mark.parametrize("folder", [guide.GUIDE, guide.WEB_GUIDE], ids=["language", "web"])
def test_index_names_every_chapter(folder):
    index = (folder / "README.md").read_text(encoding="utf-8")
    assert [page.name for page in folder.glob("*.md") if page.name != "README.md" and f"{page.name})" not in index] == []
