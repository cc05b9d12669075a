"""Writes the tree of a random program as text, and notes in every statement the line it stands on."""

import random

import tree
from values import text_form

LEVELS = [
    ["அல்லது"],
    ["மற்றும்"],
    ["கூட்டுஇருமை"],
    ["வேறுஇருமை"],
    ["பெருக்குஇருமை"],
    ["சமம்", "சமமில்லை"],
    ["பெரிது", "சிறிது", "பெரிதுசமம்", "சிறிதுசமம்"],
    ["இடதுஇருமை", "வலதுஇருமை"],
    ["கூட்டு", "கழி", "இணை"],
    ["பெருக்கு", "வகு", "மீதி"],
]
LEVEL_OF = {word: level for level, words in enumerate(LEVELS, 1) for word in words}
COMPARISONS = LEVELS[5] + LEVELS[6]
CONDITIONAL, UNARY, ATOM = 0, 11, 12


class Writer:
    """Lines of text; `seed` decides where brackets stand that needn't."""

    def __init__(self, seed):
        self.lines = []
        self.random = random.Random(seed)

    def line(self, depth, text):
        self.lines.append("    " * depth + text)
        return len(self.lines)

    # Expressions: each gives its text and how tightly it binds.

    def expression(self, node, least=CONDITIONAL):
        text, level = getattr(self, "of_" + type(node).__name__)(node)
        if level < least or (level < ATOM and self.random.random() < 0.1):
            return f"({text})"
        return text

    def listed(self, nodes):
        return ", ".join(self.expression(node) for node in nodes)

    def of_Literal(self, node):
        value = node.value
        if value is None:
            return "வெறுமை", ATOM
        if isinstance(value, str):
            return '"' + value.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n") + '"', ATOM
        if isinstance(value, bool):
            return text_form(value), ATOM
        digits = f"{abs(value):.6f}".rstrip("0") if isinstance(value, float) else str(abs(value))
        if digits.endswith("."):
            digits += "0"
        return (f"குறை {digits}", UNARY) if value < 0 else (digits, ATOM)

    def of_Name(self, node):
        return node.name, ATOM

    def of_Binary(self, node):
        level = LEVEL_OF[node.word]
        left_level = level + 1 if node.word in COMPARISONS else level
        if node.word in COMPARISONS:
            left_level = LEVEL_OF["இடதுஇருமை"]
        right_level = left_level if node.word in COMPARISONS else level + 1
        left, right = self.expression(node.left, left_level), self.expression(node.right, right_level)
        return f"{left} {node.word} {right}", level

    of_Logical = of_Binary

    def of_Not(self, node):
        return "இல்லை " + self.expression(node.operand, ATOM), UNARY

    def of_Conditional(self, node):
        parts = [self.expression(part, 1) for part in (node.condition, node.yes, node.no)]
        if self.random.random() < 0.5:
            return "{} எனில் {} இல்லைஎனில் {}".format(*parts), CONDITIONAL
        return "{} ? {} : {}".format(*parts), CONDITIONAL

    def of_ListOf(self, node):
        return f"[{self.listed(node.items)}]", ATOM

    def of_MapOf(self, node):
        pairs = [f"{self.map_key(key)}: {self.expression(value)}" for key, value in node.items]
        return "{" + ", ".join(pairs) + "}", ATOM

    def map_key(self, key):
        """A bare name would be a text."""
        return f"({key.name})" if isinstance(key, tree.Name) else self.expression(key, 1)

    def of_Index(self, node):
        return f"{self.expression(node.container, ATOM)}[{self.expression(node.index)}]", ATOM

    def of_Field(self, node):
        return f"{self.expression(node.object, ATOM)}.{node.name}", ATOM

    def of_Call(self, node):
        callee = self.expression(node.callee, ATOM)
        if not isinstance(node.callee, tree.Name):
            callee = f"({callee})"
        return f"{callee}({self.listed(node.arguments)})", ATOM

    def of_Method(self, node):
        return f"{self.expression(node.object, ATOM)}.{node.name}({self.listed(node.arguments)})", ATOM

    def of_ParentMethod(self, node):
        return f"{node.structure}.{node.name}({self.listed(node.arguments)})", ATOM

    def of_BuiltIn(self, node):
        return f"{node.name}({self.listed(node.arguments)})", ATOM

    def of_Member(self, node):
        return f"{node.enumeration}.{node.name}", ATOM

    def of_Lambda(self, node):
        parameters = ", ".join(node.parameters)
        if len(node.parameters) != 1 or self.random.random() < 0.5:
            parameters = f"({parameters})"
        return f"{parameters} => {self.expression(node.body)}", CONDITIONAL

    # Statements

    def block(self, statements, depth):
        for statement in statements or [tree.Pass()]:
            self.statement(statement, depth)

    def statement(self, node, depth):
        getattr(self, "write_" + type(node).__name__)(node, depth)

    def write_Assign(self, node, depth):
        node.line = self.line(depth, f"{self.expression(node.place)} = {self.expression(node.value)}")

    def write_Change(self, node, depth):
        node.line = self.line(depth, f"{self.expression(node.place)} {node.word} {self.expression(node.value)}")

    def write_Do(self, node, depth):
        node.line = self.line(depth, self.expression(node.expression))

    def write_Print(self, node, depth):
        node.line = self.line(depth, f"அச்சிடு({self.listed(node.arguments)})")

    def write_If(self, node, depth):
        for number, branch in enumerate(node.branches):
            word = "எனில் " if number == 0 else "இல்லைஎனில் " if branch.condition is not None else "இல்லை"
            self.write_branch(word, branch, depth)
        node.line = node.branches[0].line

    def write_Switch(self, node, depth):
        node.line = self.line(depth, f"தேர்வு {self.expression(node.value, 1)}:")
        for branch in node.branches:
            self.write_branch("நிலை " if branch.condition is not None else "மற்றவை", branch, depth + 1)

    def write_branch(self, word, branch, depth):
        condition = "" if branch.condition is None else self.expression(branch.condition, 1)
        branch.line = self.line(depth, f"{word}{condition}:")
        self.block(branch.body, depth + 1)

    def write_While(self, node, depth):
        node.line = self.line(depth, f"சுற்று {self.expression(node.condition, 1)}:")
        self.block(node.body, depth + 1)

    def write_ForEach(self, node, depth):
        node.line = self.line(depth, f"ஒவ்வொன்றாக {node.variable} இல் {self.expression(node.over, ATOM)}:")
        self.block(node.body, depth + 1)

    def write_Break(self, node, depth):
        node.line = self.line(depth, "நிறுத்து")

    def write_Continue(self, node, depth):
        node.line = self.line(depth, "தொடர்")

    def write_Pass(self, node, depth):
        node.line = self.line(depth, "விடு")

    def write_Try(self, node, depth):
        node.line = self.line(depth, "முயற்சி:")
        self.block(node.body, depth + 1)
        self.line(depth, f"பிடி({node.variable}):" if node.variable else "பிடி:")
        self.block(node.handler, depth + 1)

    def write_Return(self, node, depth):
        node.line = self.line(depth, "திரும்பு" if node.value is None else f"திரும்பு {self.expression(node.value)}")

    def write_FileVariables(self, node, depth):
        node.line = self.line(depth, "பொது " + ", ".join(node.names))

    def write_Function(self, node, depth):
        parameters = ", ".join(("மாற்று " if each.changes else "") + each.name for each in node.parameters)
        node.line = self.line(depth, f"செயல் {node.name}({parameters}):")
        self.block(node.body, depth + 1)

    def write_Structure(self, node, depth):
        parent = f"({node.parent})" if node.parent else ""
        node.line = self.line(depth, f"கட்டமைப்பு {node.name}{parent}:")
        for name, value in node.fields:
            self.line(depth + 1, f"{name} = {self.expression(value)}")
        for method in node.methods:
            self.statement(method, depth + 1)
        if not node.fields and not node.methods:
            self.line(depth + 1, "விடு")

    def write_Enumeration(self, node, depth):
        node.line = self.line(depth, f"வகை {node.name}:")
        for member in node.members:
            self.line(depth + 1, member)
