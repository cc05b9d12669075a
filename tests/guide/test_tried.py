"""Nothing that the tables of the language hold is without a program or test that names it."""

from support import guide
from support import texts as t
from support.compiler import REPOSITORY
from support.vocabulary import vocabulary

TESTS = REPOSITORY / "tests"
READ = (".பொழில்", ".எதிர்பார்ப்பு", ".py", ".js", ".cpp")
# What the recipes add is made up.
PASSED_OVER = ("node_modules", "recipes", "support")
# A section of an application is known by the very word whose absence these tell.
OUT_OF_REACH = {t.CODE_PREFIX + number for number in ("241", "242", "243", "244")}


def _is_read(path):
    return path.suffix in READ and not set(PASSED_OVER) & set(path.relative_to(TESTS).parts)


def _tried():
    texts = [path.read_text(encoding="utf-8", errors="replace") for path in TESTS.rglob("*") if _is_read(path)]
    for page in guide.pages():
        for program in guide.read_programs(guide.read_fences(page)):
            texts += [program.fence.text, *(text for _, text in program.entries)]
    return "\n".join(texts)


def test_every_word_and_diagnostic_is_tried():
    tables = vocabulary()
    named = [row["name"] for row in tables["builtins"]] + [row["word"] for row in tables["widgets"]]
    named += [row["word"] for row in tables["keywords"] if row["group"] in ("statement", "condition", "operator")]
    named += [row["code"] for row in tables["diagnostics"] if row["cause"]["ta"] and row["code"] not in OUT_OF_REACH]
    tried = _tried()
    assert [name for name in named if name not in tried] == []
