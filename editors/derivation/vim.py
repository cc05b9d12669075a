"""The syntax file for Vim."""

from .rules import Kind, Place

GROUPS = {
    Kind.COMMENT: ("pozhilComment", "Comment"),
    Kind.TEXT: ("pozhilText", "String"),
    Kind.ESCAPE: ("pozhilEscape", "SpecialChar"),
    Kind.NUMBER: ("pozhilNumber", "Number"),
    Kind.CONSTANT: ("pozhilConstant", "Constant"),
    Kind.CONTROL: ("pozhilControl", "Statement"),
    Kind.DECLARE: ("pozhilDeclare", "Keyword"),
    Kind.OPERATOR: ("pozhilOperator", "Operator"),
    Kind.WIDGET: ("pozhilWidget", "Structure"),
    Kind.PROPERTY: ("pozhilProperty", "Label"),
    Kind.BUILTIN: ("pozhilBuiltin", "Special"),
    Kind.FUNCTION: ("pozhilFunction", "Function"),
    Kind.TYPE: ("pozhilType", "Type"),
    Kind.CALL: ("pozhilCall", "Identifier"),
}
# Vim's newer engine misses a word of a choice that differs from another one in the mark on a letter: சமம், சமமில்லை.
OLD_ENGINE = r"\%#=1"
BEGIN = r"\.\@1<!\<"
NAME = r"\<\D\k*"
LINE = r"^\s*\zs"
ARGUMENT = r"\%([(,]\s\?\)\@4<="


def any_of(words):
    return r"\%(" + r"\|".join(word.replace(".", r"\.") for word in words) + r"\)"


def after(words):
    """That one of the words stands before."""
    return rf"\%({any_of(words)} \)\@<="


def pattern(rule, rules):
    words = any_of(rule.words) + r"\>"
    not_operator = r"\%(" + any_of(rules.operators) + r"\>\)\@!"
    return {
        Place.ANYWHERE: rf"{BEGIN}{words}\%(\s*=>\@!\)\@!",
        Place.LINE_BEFORE_OPERAND: rf"""{LINE}{words}\ze\s\+{not_operator}\%(\k\|["'(\[]\)""",
        Place.AFTER_MODIFIER: rf"{after(rules.modifiers)}{words}\ze\s\+\k",
        Place.LINE_BEFORE_BLOCK: rf"{LINE}{words}\ze\s*[:(]",
        Place.LINE_ELSE: rf"{LINE}{words}\ze\%(\s*:\|\s\+{rules.condition}\>\)",
        Place.LINE_BEFORE_COLON: rf"{LINE}{words}\ze\s*:",
        Place.ARGUMENT_BEFORE_COLON: rf"{ARGUMENT}{words}\ze\s*:",
        Place.ARGUMENT_BEFORE_NAME: rf"{ARGUMENT}{words}\ze\s\+\k",
        Place.BETWEEN_BLANKS: rf"\s\@1<={words}\ze\s\+{not_operator}[^[:blank:]=:]",
        Place.BEFORE_BRACKET: rf"{BEGIN}{words}\ze\s*(",
        Place.AFTER_DOT: rf"\.\@1<={words}",
        Place.AFTER_COLON: rf"\%(:\s\?\)\@4<={words}\.\@!",
    }[rule.place]


def match(kind, expression):
    return f"syntax match {GROUPS[kind][0]} ~{OLD_ENGINE}{expression}~"


def word_rules(some, rules):
    """Of what fits at one place Vim takes the last."""
    return [match(rule.kind, pattern(rule, rules)) for rule in reversed(some)]


def text(rules):
    declared = [match(kind, after(words) + NAME) for kind, words in rules.declarations]
    lines = [
        '" பொழில்: நிறங்கள் · colours of programs. scripts/derive-editors writes this file.',
        "if exists('b:current_syntax')",
        "  finish",
        "endif",
        "",
        "let s:second = getline(1) =~# '^\\%uFEFF\\?\\s*ஃ\\s*பொழில்\\s\\+[2௨]\\s*\\r\\?$'",
        "syntax sync fromstart",
        "",
        match(Kind.CALL, rf"{NAME}\ze\s*("),
        *word_rules(rules.common, rules),
        "if s:second",
        *("  " + line for line in word_rules(rules.second, rules)),
        "endif",
        *declared,
        match(Kind.NUMBER, rf"{BEGIN}\%(\d\+\%(\.\d\+\)\?\|[௦-௯]\+\)%\?\k\@!"),
        "",
        "if s:second",
        rf"""  syntax match pozhilEscape ~\\\%(["'\\ntr]\|\o\{{1,3}}\)~ contained""",
        r"""  syntax region pozhilText start=~"~ skip=~\\.~ end=~"~ contains=pozhilEscape""",
        r"""  syntax match pozhilText ~'\%([^'\\]\|\\.\)\+'~ contains=pozhilEscape""",
        r"  syntax match pozhilComment ~\k\@1<!ஃ\%([[:alpha:]]\|\k\)\@!.*$~",
        "else",
        r"""  syntax region pozhilText start=~"~ end=~"~""",
        r"""  syntax match pozhilText ~'[^']\+'~""",
        r"  syntax match pozhilComment ~\k\@1<!ஃ.*$~",
        "endif",
        r"syntax region pozhilComment start=~\k\@1<!ஃஃ~ end=~ஃஃ~",
        "",
        *(f"highlight default link {group} {looks}" for group, looks in GROUPS.values()),
        "",
        "let b:current_syntax = 'pozhil'",
    ]
    return "\n".join(lines) + "\n"
