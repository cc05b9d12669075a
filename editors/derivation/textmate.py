"""The grammar for editors that read those of TextMate, VS Code among them."""

import json

from . import patterns as p
from .rules import Kind

SCOPES = {
    Kind.COMMENT: "comment.line.pozhil",
    Kind.TEXT: "string.quoted.double.pozhil",
    Kind.ESCAPE: "constant.character.escape.pozhil",
    Kind.NUMBER: "constant.numeric.pozhil",
    Kind.CONSTANT: "constant.language.pozhil",
    Kind.CONTROL: "keyword.control.pozhil",
    Kind.DECLARE: "storage.type.pozhil",
    Kind.OPERATOR: "keyword.operator.word.pozhil",
    Kind.WIDGET: "support.class.widget.pozhil",
    Kind.PROPERTY: "support.type.property-name.pozhil",
    Kind.BUILTIN: "support.function.pozhil",
    Kind.FUNCTION: "entity.name.function.pozhil",
    Kind.TYPE: "entity.name.type.pozhil",
    Kind.CALL: "entity.name.function.call.pozhil",
}
NEVER = "(?!)"


def match(kind, expression):
    return {"match": expression, "name": SCOPES[kind]}


def word_rule(rule, rules):
    expression = p.pattern(rule, rules)
    if rule.place not in p.LINE_PLACES:
        return match(rule.kind, expression)
    return {"match": rf"^[ \t]*({expression})", "captures": {"1": {"name": SCOPES[rule.kind]}}}


def edition(number):
    """Comments and texts, which differ between the editions, and then what is the same."""
    escapes = [match(Kind.ESCAPE, p.ESCAPE)] if number == 2 else []
    return [
        {"begin": p.BLOCK_COMMENT, "end": p.BLOCK_COMMENT_END, "name": "comment.block.pozhil"},
        match(Kind.COMMENT, p.COMMENT[number] + ".*$"),
        {"begin": '"', "end": '"', "name": SCOPES[Kind.TEXT], "patterns": escapes},
        {"match": p.LETTER_TEXT[number], "name": "string.quoted.single.pozhil"},
        *([{"include": "#second"}] if number == 2 else []),
        {"include": "#common"},
    ]


def common(rules):
    return [
        match(Kind.NUMBER, p.NUMBER),
        *(match(kind, p.declared(words)) for kind, words in rules.declarations),
        *(word_rule(rule, rules) for rule in rules.common),
        match(Kind.CALL, p.CALLED),
        match(Kind.CALL, p.MEMBER_CALLED),
    ]


def text(rules):
    grammar = {
        "name": "பொழில்",
        "scopeName": "source.pozhil",
        "fileTypes": ["பொழில்"],
        "patterns": [
            {
                "begin": rf"\A({p.MARKER})",
                "beginCaptures": {"1": {"name": SCOPES[Kind.COMMENT]}},
                "end": NEVER,
                "patterns": edition(2),
            },
            *edition(1),
        ],
        "repository": {
            "common": {"patterns": common(rules)},
            "second": {"patterns": [word_rule(rule, rules) for rule in rules.second]},
        },
    }
    return json.dumps(grammar, ensure_ascii=False, indent=2) + "\n"
