"""Runs the tree of a random program: tells what it prints and, if a fault ends it, the fault's kind and line."""

import library
import tree
from calls import Calls, Returned
from names import DEFAULT_CATCH, UNSET, Cell, Frame, written_names
from values import (
    Closure,
    Fault,
    Key,
    Thing,
    Unspecified,
    copied,
    equal,
    keys_in_order,
    letters,
    operate,
    serving_whole,
    text_form,
    truth,
)

MOST_STEPS = 30_000
LONGEST_TEXT = 4_000


class BreakLoop(Exception):
    pass


class ContinueLoop(Exception):
    pass


class Evaluator(Calls):
    def __init__(self, program):
        super().__init__()
        self.output = []
        self.steps = 0
        self.line = 0
        self.structures = {}
        self.enumerations = {}
        self.program = program
        self.file = Frame([], None)

    def run(self):
        """(printed text, None or (kind of fault, line))"""
        statements = self.program.definitions + self.program.beginning + self.program.body
        own, assigned, _ = written_names(statements)
        self.file = Frame(own | assigned, None)
        for node in statements:
            if isinstance(node, tree.Structure):
                self.structures[node.name] = node
            elif isinstance(node, tree.Enumeration):
                self.enumerations[node.name] = node.members
            elif isinstance(node, tree.Function):
                self.file.cells[node.name].value = Closure(node, self.file)
        try:
            self.block(self.program.beginning + self.program.body, self.file)
        except Fault as fault:
            return "".join(self.output), (fault.kind, self.line)
        return "".join(self.output), None

    # Statements

    def block(self, statements, frame):
        for node in statements:
            self.statement(node, frame)

    def statement(self, node, frame):
        self.step()
        self.line = node.line
        getattr(self, "do_" + type(node).__name__)(node, frame)

    def step(self):
        self.steps += 1
        if self.steps > MOST_STEPS:
            raise Unspecified("too many steps")

    def do_Function(self, node, frame):
        pass

    do_Pass = do_FileVariables = do_Structure = do_Enumeration = do_Function

    def do_Assign(self, node, frame):
        place = self.place(node.place, frame)
        self.write(place, copied(self.value(node.value, frame)))

    def do_Change(self, node, frame):
        word = {
            "கூட்டிசேர்": "கூட்டு",
            "கழிசேர்": "கழி",
            "பெருக்குசேர்": "பெருக்கு",
            "வகுசேர்": "வகு",
            "மீதிசேர்": "மீதி",
        }[node.word]
        place = self.place(node.place, frame)
        before = copied(self.looked_up(place))
        after = self.value(node.value, frame)
        self.write(place, self.checked(operate(word, before, after)))

    def do_Do(self, node, frame):
        self.value(node.expression, frame)

    def do_Print(self, node, frame):
        values = [self.value(each, frame) for each in node.arguments]
        self.output.append("".join(text_form(each) for each in values) + "\n")

    def do_If(self, node, frame):
        for branch in node.branches:
            self.line = branch.line
            if branch.condition is None or truth(self.value(branch.condition, frame)):
                self.block(branch.body, frame)
                return

    def do_Switch(self, node, frame):
        chosen = self.value(node.value, frame)
        for branch in node.branches:
            self.line = branch.line
            if branch.condition is None or equal(chosen, self.value(branch.condition, frame)):
                self.block(branch.body, frame)
                return

    def goes_on(self, body, frame):
        """Carries out the body of a loop; whether there may be another round."""
        try:
            self.block(body, frame)
        except BreakLoop:
            return False
        except ContinueLoop:
            pass
        return True

    def do_While(self, node, frame):
        while True:
            self.step()
            self.line = node.line
            if not truth(self.value(node.condition, frame)):
                return
            if not self.goes_on(node.body, frame):
                return

    def do_ForEach(self, node, frame):
        for item in self.rounds(self.value(node.over, frame)):
            self.step()
            frame.cells[node.variable].value = copied(item)
            if not self.goes_on(node.body, frame):
                return

    @staticmethod
    def rounds(value):
        if isinstance(value, str):
            return letters(value)
        if isinstance(value, dict):
            return [key.value for key in keys_in_order(value)]
        if isinstance(value, list):
            return copied(value)
        raise Fault("no loop over this")

    def do_Break(self, node, frame):
        raise BreakLoop

    def do_Continue(self, node, frame):
        raise ContinueLoop

    def do_Try(self, node, frame):
        depth = self.depth
        try:
            self.block(node.body, frame)
        except Fault as fault:
            self.depth = depth
            frame.cells[node.variable or DEFAULT_CATCH].value = f"⟨{fault.kind}⟩"
            self.block(node.handler, frame)

    def do_Return(self, node, frame):
        raise Returned(None if node.value is None else copied(self.value(node.value, frame)))

    # Places: evaluated once, read and written later

    def place(self, node, frame):
        if isinstance(node, tree.Name):
            return ("cell", frame.find(node.name))
        if isinstance(node, tree.Index):
            container = self.place(node.container, frame)
            return ("element", container, self.value(node.index, frame))
        if isinstance(node, tree.Field):
            return ("field", ("cell", Cell(self.value(node.object, frame))), node.name)
        return ("cell", Cell(self.value(node, frame)))

    def read(self, place):
        if place[0] == "cell":
            if place[1].value is UNSET:
                raise Fault("unset")
            return place[1].value
        holder = self.read(place[1])
        return self.element(holder, place[2]) if place[0] == "element" else self.field(holder, place[2])

    def looked_up(self, place):
        """What a place that is to be written holds; the letters of a text are no places."""
        if place[0] != "element":
            return self.read(place)
        holder = self.looked_up(place[1])
        if isinstance(holder, str):
            raise Fault("no element of this")
        return self.element(holder, place[2])

    def write(self, place, value):
        if place[0] == "cell":
            place[1].value = value
            return
        holder = self.looked_up(place[1])
        if place[0] == "field":
            self.field(holder, place[2], writes=True)
            holder.fields[place[2]] = value
        elif isinstance(holder, list):
            holder[self.position(holder, place[2])] = value
        elif isinstance(holder, dict):
            holder[Key(place[2])] = value
        else:
            raise Fault("no element of this")

    @staticmethod
    def position(holder, index):
        number = serving_whole(index)
        if not 0 <= number < len(holder):
            raise Fault("index")
        return number

    def element(self, holder, index):
        if isinstance(holder, dict):
            key = Key(index)
            if key not in holder:
                raise Fault("missing key")
            return holder[key]
        if isinstance(holder, str):
            parts = letters(holder)
            return parts[self.position(parts, index)]
        if isinstance(holder, list):
            return holder[self.position(holder, index)]
        raise Fault("no element of this")

    def field(self, holder, name, writes=False):
        if not isinstance(holder, Thing) or name not in holder.fields:
            raise Fault("member")
        value = holder.fields[name]
        if value is UNSET and not writes:
            raise Fault("unset field")
        return value

    # Expressions

    def value(self, node, frame):
        self.step()
        return self.checked(getattr(self, "of_" + type(node).__name__)(node, frame))

    @staticmethod
    def checked(value):
        if isinstance(value, (str, list)) and len(value) > LONGEST_TEXT:
            raise Unspecified("too long")
        return value

    def values(self, nodes, frame):
        return [copied(self.value(node, frame)) for node in nodes]

    def of_Literal(self, node, frame):
        return node.value

    def of_Name(self, node, frame):
        return copied(self.read(("cell", frame.find(node.name))))

    def of_Binary(self, node, frame):
        left = self.value(node.left, frame)
        return operate(node.word, left, self.value(node.right, frame))

    def of_Logical(self, node, frame):
        left = truth(self.value(node.left, frame))
        if left == (node.word == "அல்லது"):
            return left
        return truth(self.value(node.right, frame))

    def of_Not(self, node, frame):
        return not truth(self.value(node.operand, frame))

    def of_Conditional(self, node, frame):
        return self.value(node.yes if truth(self.value(node.condition, frame)) else node.no, frame)

    def of_ListOf(self, node, frame):
        return self.values(node.items, frame)

    def of_MapOf(self, node, frame):
        result = {}
        for key, value in node.items:
            key = self.value(key, frame)
            value = copied(self.value(value, frame))
            result[Key(key)] = value
        return result

    def of_Index(self, node, frame):
        holder = self.value(node.container, frame)
        return copied(self.element(holder, self.value(node.index, frame)))

    def of_Field(self, node, frame):
        return copied(self.field(self.value(node.object, frame), node.name))

    def of_Member(self, node, frame):
        return self.enumerations[node.enumeration].index(node.name)

    def of_Lambda(self, node, frame):
        return Closure(node, frame)

    def of_BuiltIn(self, node, frame):
        if node.name in library.CHANGING:
            place = self.place(node.arguments[0], frame)
            self.looked_up(place)
            rest = self.values(node.arguments[1:], frame)
            return library.CHANGING[node.name](self.read(place), *rest)
        return library.PLAIN[node.name](*self.values(node.arguments, frame))

    def of_Method(self, node, frame):
        if node.name in library.CHANGING:
            place = self.place(node.object, frame)
            self.looked_up(place)
            rest = self.values(node.arguments, frame)
            return library.CHANGING[node.name](self.read(place), *rest)
        holder = self.value(node.object, frame)
        if node.name in library.METHODS:
            return library.METHODS[node.name](holder, *self.values(node.arguments, frame))
        method = self.method(holder, node.name)
        return self.call(Closure(method, self.file, holder), node.arguments, frame)
