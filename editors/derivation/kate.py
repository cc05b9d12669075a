"""The syntax file for Kate and whatever else colours by KSyntaxHighlighting."""

from xml.sax.saxutils import quoteattr

from . import patterns as p
from .rules import Kind

# The name of a style, and the style of the theme that it looks like.
STYLES = {
    None: ("Normal", "dsNormal"),
    Kind.COMMENT: ("Comment", "dsComment"),
    Kind.TEXT: ("Text", "dsString"),
    Kind.ESCAPE: ("Escape", "dsSpecialChar"),
    Kind.NUMBER: ("Number", "dsDecVal"),
    Kind.CONSTANT: ("Constant", "dsConstant"),
    Kind.CONTROL: ("Control", "dsControlFlow"),
    Kind.DECLARE: ("Declaration", "dsKeyword"),
    Kind.OPERATOR: ("Operator", "dsOperator"),
    Kind.WIDGET: ("Widget", "dsExtension"),
    Kind.PROPERTY: ("Property", "dsAttribute"),
    Kind.BUILTIN: ("Built-in", "dsBuiltIn"),
    Kind.FUNCTION: ("Function", "dsFunction"),
    Kind.TYPE: ("Type", "dsDataType"),
    Kind.CALL: ("Call", "dsFunction"),
}


def style(kind):
    return STYLES[kind][0]


def element(tag, **attributes):
    return f"<{tag} " + " ".join(f"{name}={quoteattr(value)}" for name, value in attributes.items()) + "/>"


def expression(kind, text, **more):
    return element("RegExpr", String=text, attribute=style(kind), context="#stay", **more)


def word_rule(rule, rules):
    first = {"firstNonSpace": "true"} if rule.place in p.LINE_PLACES else {}
    return expression(rule.kind, p.pattern(rule, rules), **first)


def context(name, kind, lines, **more):
    attributes = {"name": name, "attribute": style(kind), "lineEndContext": "#stay", **more}
    opening = " ".join(f"{key}={quoteattr(value)}" for key, value in attributes.items())
    return [f"<context {opening}>", *("  " + line for line in lines), "</context>"]


def edition(number):
    return [
        element("RegExpr", String=p.BLOCK_COMMENT, attribute="Comment", context="Block comment"),
        expression(Kind.COMMENT, p.COMMENT[number] + ".*$"),
        element("DetectChar", char='"', attribute="Text", context=f"Text {number}"),
        expression(Kind.TEXT, p.LETTER_TEXT[number]),
        *([element("IncludeRules", context="Second")] if number == 2 else []),
        element("IncludeRules", context="Common"),
    ]


def contexts(rules):
    closing = element("DetectChar", char='"', attribute="Text", context="#pop")
    common = [
        expression(Kind.NUMBER, p.NUMBER),
        *(expression(kind, p.declared(words)) for kind, words in rules.declarations),
        *(word_rule(rule, rules) for rule in rules.common),
        expression(Kind.CALL, p.CALLED),
        expression(Kind.CALL, p.MEMBER_CALLED),
        # What is no word of the language is passed over as a whole.
        expression(None, p.NAME),
    ]
    marker = element("RegExpr", String="^" + p.MARKER, attribute="Comment", context="Edition 2")
    return [
        # Only the first line of a file is read there.
        *context("First line", None, [marker], lineEmptyContext="Edition 1", fallthroughContext="Edition 1"),
        *context("Edition 1", None, edition(1)),
        *context("Edition 2", None, edition(2)),
        *context("Text 1", Kind.TEXT, [closing]),
        *context("Text 2", Kind.TEXT, [expression(Kind.ESCAPE, p.ESCAPE), closing]),
        *context("Block comment", Kind.COMMENT,
                 [element("StringDetect", String=p.BLOCK_COMMENT_END, attribute="Comment", context="#pop")]),
        *context("Second", None, [word_rule(rule, rules) for rule in rules.second]),
        *context("Common", None, common),
    ]


def text(rules):
    styles = [element("itemData", name=name, defStyleNum=looks) for name, looks in STYLES.values()]
    lines = [
        '<?xml version="1.0" encoding="UTF-8"?>',
        "<!DOCTYPE language>",
        '<language name="Pozhil" section="Sources" extensions="*.பொழில்" version="1" kateversion="5.62">',
        "  <highlighting>",
        "    <contexts>",
        *("      " + line for line in contexts(rules)),
        "    </contexts>",
        "    <itemDatas>",
        *("      " + line for line in styles),
        "    </itemDatas>",
        "  </highlighting>",
        "  <general>",
        "    <comments>",
        '      <comment name="singleLine" start="ஃ " position="afterwhitespace"/>',
        '      <comment name="multiLine" start="ஃஃ" end="ஃஃ"/>',
        "    </comments>",
        '    <keywords casesensitive="true"/>',
        '    <folding indentationsensitive="true"/>',
        "  </general>",
        "</language>",
    ]
    return "\n".join(lines) + "\n"
