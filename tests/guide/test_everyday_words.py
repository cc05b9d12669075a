"""The everyday words that the guide says can't be names, against the vocabulary and the compiler."""

import re
from concurrent.futures import ThreadPoolExecutor

import pytest

from support import case_file as cf
from support import guide
from support.case_check import check_case
from support.case_run import run_case
from support.compiler import REPOSITORY, compiler_path
from support.vocabulary import vocabulary

PAGE = guide.GUIDE / "03_பெயர்கள்.md"
COLUMNS = 5
MAY_BE_NAME = "ஆகும் · yes"
LIKE_KEYWORD = re.compile(r"`(.+)` போன்றது · like `\1`")
STATEMENT = "கூற்றுச் சொல் · word of statements"
WHY = {
    "statement": STATEMENT,
    "condition": STATEMENT,
    "operator": "செயற்சொல் · operator",
    "application": "வலைச் சொல் · word of web applications",
    "widget": "விட்ஜெட் · widget",
    "animation": "அசைவூட்டச் சொல் · word of animation",
}
# A program with the word in each place that the table names.
AS_VARIABLE = "{0} = 1\n"
AS_FIELD = "கட்டமைப்பு பை:\n    {0} = 1\n"


def _rows():
    """Word, reason, as a variable, as a field, substitute."""
    rows = [row for row in guide.table_rows(PAGE) if len(row) == COLUMNS]
    return [(row[0].strip("`"), *row[1:-1], row[-1].strip("`")) for row in rows]


def _is_one_letter_off(word, keyword):
    """Whether one letter less, more or other makes the keyword of the word."""
    pieces = [(word[:cut], word[cut:]) for cut in range(len(word) + 1)]
    letters = set(keyword)
    made = {head + tail[1:] for head, tail in pieces if tail}
    made |= {head + letter + tail for head, tail in pieces for letter in letters}
    made |= {head + letter + tail[1:] for head, tail in pieces if tail for letter in letters}
    return word != keyword and keyword in made


def _case(source, entries=()):
    path = REPOSITORY / f"நிரல்{cf.SOURCE_SUFFIX}"  # isn't written: the case holds its source
    return cf.Case(path, source.encode(), cf.Expectation(entries), None)


def _answer(source):
    """What the compiler says to a program: a code, or that the word may be a name."""
    diagnostic = run_case(_case(source), compiler_path(), with_program=False).diagnostic
    return diagnostic.code if diagnostic else MAY_BE_NAME


def test_table_holds_words():
    words = [row[0] for row in _rows()]
    assert len(words) > 30
    assert len(words) == len(set(words))


@pytest.mark.parametrize("word, why", [row[:2] for row in _rows()], ids=range(1, len(_rows()) + 1))
def test_reason_is_that_of_the_vocabulary(word, why):
    groups = [row["group"] for row in vocabulary()["keywords"] if row["word"] == word]
    if groups:
        assert why == WHY[groups[0]]
    else:
        keyword = LIKE_KEYWORD.fullmatch(why)[1]
        assert keyword in vocabulary()["typo_candidates"]
        assert _is_one_letter_off(word, keyword)


@pytest.mark.parametrize("form, column", [(AS_VARIABLE, 2), (AS_FIELD, 3)], ids=["variable", "field"])
def test_words_are_refused_where_the_table_says(form, column):
    told = {row[0]: row[column] for row in _rows()}
    with ThreadPoolExecutor() as workers:
        answers = dict(zip(told, workers.map(lambda word: _answer(form.format(word)), told)))
    assert answers == told


def test_every_word_is_refused_somewhere():
    assert [row[0] for row in _rows() if row[2] == row[3] == MAY_BE_NAME] == []


def test_substitutes_are_variables_and_fields():
    words = [row[-1] for row in _rows()]
    numbered = list(enumerate(words, start=1))
    source = "கட்டமைப்பு பை:\n" + "".join(f"    {word} = {number}\n" for number, word in numbered)
    source += "என்_பை = பை()\n" + "".join(f"{word} = {number}\n" for number, word in numbered)
    source += "".join(f'அச்சிடு({word}, " ", என்_பை.{word})\n' for word in words)
    expected = [(cf.OUTPUT, f"{number} {number}") for number, _ in numbered]
    assert check_case(_case(source, expected), compiler_path()) == ""
