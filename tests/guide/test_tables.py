"""The tables of the documents against what they tell. Most are derived; what is compared here is that nobody has edited
them, and what the compiler makes of the words that they list."""

import subprocess
from concurrent.futures import ThreadPoolExecutor

from support import case_file as cf
from support import guide
from support.case_run import run_case
from support.catalogue import DESCRIPTIONS
from support.compiler import REPOSITORY, compiler_path
from support.vocabulary import vocabulary

DERIVE = REPOSITORY / "scripts" / "derive-documents"


def test_derived_tables_are_up_to_date():
    result = subprocess.run([DERIVE, "--check", compiler_path()], capture_output=True, text=True, encoding="utf-8")
    assert result.returncode == 0, result.stdout + result.stderr


def test_catalogue_is_read_as_the_compiler_has_it():
    assert {row["code"]: row["description"] for row in vocabulary()["diagnostics"]} == DESCRIPTIONS


def test_reserved_words_are_those_that_are_refused():
    words = sorted({row["word"] for row in vocabulary()["keywords"]})
    listed = guide.words(guide.GUIDE / "03_பெயர்கள்.md")
    with ThreadPoolExecutor() as workers:
        refused = [word for word, bad in zip(words, workers.map(_is_refused, words)) if bad]
    assert refused == sorted(listed)


def test_reserved_words_of_the_second_edition_are_those_that_are_refused():
    # With a dot in it, a word is a member of a name.
    words = sorted({row["word"] for row in vocabulary()["keywords"] if "." not in row["word"]})
    listed = guide.words(guide.GUIDE / "15_இரண்டாம்_பதிப்பு.md")
    with ThreadPoolExecutor() as workers:
        refused = [word for word, bad in zip(words, workers.map(_is_refused_in_second, words)) if bad]
    assert refused == sorted(listed)


def _is_refused_in_second(word):
    return _is_refused(word, first_line="ஃ பொழில் 2\n", edition=2)


def _is_refused(word, first_line="", edition=1):
    path = REPOSITORY / f"நிரல்{cf.SOURCE_SUFFIX}"  # isn't written: the case holds its source
    case = cf.Case(path, f"{first_line}{word} = 1\n".encode(), cf.Expectation(edition=edition), None)
    return run_case(case, compiler_path(), with_program=False).diagnostic is not None
