"""The tables of the language, as the compiler under test prints them."""

import json
import subprocess
from functools import cache

from support import texts as t
from support.compiler import compiler_path


@cache
def vocabulary():
    printed = subprocess.run([compiler_path(), t.FLAG_VOCABULARY], stdout=subprocess.PIPE, check=True)
    return json.loads(printed.stdout)


def language_words():
    """The words of the language outside of applications."""
    groups = ("statement", "condition", "operator")
    return [row["word"] for row in vocabulary()["keywords"] if row["group"] in groups]
