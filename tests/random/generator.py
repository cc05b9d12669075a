"""Random programs: well formed, of bounded length, mostly without faults. The same seed gives the same program."""

import random

import tree
from expressions import KEYS, SIMPLE_KINDS, Expressions
from scope import Function, Scope, Structure

CHANGES = ["கூட்டிசேர்", "கழிசேர்", "பெருக்குசேர்", "மீதிசேர்"]
FIELD_NAMES = ["உயரம்", "எடை", "பெயர்", "பட்டி", "கணக்கு", "வகை"]
METHOD_NAMES = ["சொல்", "வளர்", "எண்ணு", "காட்டு"]
PARAMETER_KINDS = ["W", "W", "D", "N", "T", "B", "LW", "LL", "MW", "ML", "A", "A", "F"]
RESULT_KINDS = ["W", "W", "D", "N", "T", "B", "LW", "MW", "A", "LL"]


class Generator(Expressions):
    """Makes the program of one seed; `number` distinguishes its functions and structures from those of others."""

    def __init__(self, seed, number):
        self.random = random.Random(seed)
        self.number = number
        self.functions = []
        self.structures = []
        self.enumeration = None
        self.show = None
        self.definitions = []

    def program(self):
        file = Scope(of_file=True)
        self.define_show()
        if self.random.random() < 0.3:
            members = self.random.sample(["சிவப்பு", "பச்சை", "நீலம்", "மஞ்சள்"], 3)
            self.enumeration = tree.Enumeration(f"நிறங்கள்{self.number}", members)
            self.definitions.append(self.enumeration)
        beginning = [self.file_variable(file) for _ in range(self.random.randint(1, 4))]
        for at in range(self.random.choice([0, 0, 1, 2])):
            self.define_structure(at, file)
        for at in range(self.random.randint(1, 4)):
            self.define_function(f"செய்{self.number}_{at}", file, recursive=self.random.random() < 0.25)
        if self.random.random() < 0.5:
            body = self.statements(file, self.random.randint(5, 10), 2)
        else:
            scope = Scope(file)
            self.make_public(scope, file)
            public = [tree.FileVariables(sorted(scope.public))] if scope.public else []
            inner = self.statements(scope, self.random.randint(5, 10), 2)
            main = tree.Function(f"முதன்மை{self.number}", [], public + inner)
            self.definitions.append(main)
            body = [tree.Do(tree.Call(tree.Name(main.name), []))]
        body += [tree.Print(self.told(file)) for _ in range(2)]
        self.random.shuffle(self.definitions)
        self.definitions.sort(key=lambda each: isinstance(each, tree.Function))
        return tree.Program(self.definitions, beginning, body)

    def define_show(self):
        if self.random.random() < 0.7:
            self.show = f"காட்டு{self.number}"
            value = tree.Name("இது")
            body = [tree.Print([tree.Literal("<"), value, tree.Literal(">")]), tree.Return(value)]
            self.definitions.append(tree.Function(self.show, [tree.Parameter("இது")], body))

    def file_variable(self, file):
        kind = self.random.choice(SIMPLE_KINDS)
        value = self.expression(kind, file, 0)
        name = file.fresh(self.random, f"கோப்பு{self.number}_")
        file.kinds[name] = kind
        return tree.Assign(tree.Name(name), value)

    def make_public(self, scope, file):
        scope.public = {name for name in file.kinds if self.random.random() < 0.5}

    # Structures

    def define_structure(self, at, file):
        parent = self.structures[0] if self.structures and self.random.random() < 0.8 else None
        name = f"அமைப்பு{self.number}_{at}"
        own = {}
        for field in self.random.sample(FIELD_NAMES, self.random.randint(1, 3)):
            if parent is None or field not in parent.fields:
                own[field] = self.random.choice(["W", "D", "T", "LW", "MW"])
        fields = dict(parent.fields if parent else {}, **own)
        structure = Structure(name, parent and parent.name, fields, dict(parent.methods) if parent else {}, [])
        structure.start = list(parent.start) if parent else []
        written = []
        if parent is None and self.random.random() < 0.6:
            written.append(self.start_method(structure, own))
        for method in self.random.sample(METHOD_NAMES, self.random.randint(1, 2)):
            written.append(self.method(structure, method, parent, file))
        values = [(field, self.literal(kind, Scope())) for field, kind in own.items()]
        self.definitions.append(tree.Structure(name, structure.parent, values, written))
        self.structures.append(structure)

    def start_method(self, structure, own):
        chosen = sorted(own)[: self.random.randint(1, 2)]
        structure.start = [own[field] for field in chosen]
        parameters = [tree.Parameter("தான்")] + [tree.Parameter("புது_" + field) for field in chosen]
        body = [
            tree.Assign(tree.Field(tree.Name("தான்"), field), tree.Name("புது_" + field)) for field in chosen
        ]
        return tree.Function("துவக்கம்", parameters, body)

    def method(self, structure, name, parent, file):
        known = structure.methods.get(name)
        scope = Scope(file)
        scope.kinds["தான்"] = "O:" + structure.name
        scope.frozen.add("தான்")
        if known is None:
            kinds = [self.random.choice(["W", "D", "T", "LW"]) for _ in range(self.random.randint(0, 2))]
            known = Function(name, [(kind, False) for kind in kinds], self.random.choice(["W", "D", "T", "LW"]))
        parameters = [tree.Parameter("தான்")] + self.parameters(known, scope)
        body = []
        if parent and name in parent.methods and self.random.random() < 0.7:
            arguments = [tree.Name(each.name) for each in parameters]
            kept = scope.fresh(self.random)
            scope.kinds[kept] = known.result
            body.append(tree.Assign(tree.Name(kept), tree.ParentMethod(parent.name, name, arguments)))
        # While its body is written the structure has its fields but not this method: no endless recursion.
        self.structures.append(structure)
        hidden = structure.methods
        structure.methods = {}
        body += self.statements(scope, self.random.randint(1, 3), 1)
        body.append(tree.Return(self.expression(known.result, scope, 2)))
        structure.methods = dict(hidden, **{name: known})
        self.structures.pop()
        return tree.Function(name, parameters, body)

    # Functions

    def parameters(self, function, scope):
        result = []
        for kind, changes in function.parameters:
            name = scope.fresh(self.random)
            scope.kinds[name] = kind
            result.append(tree.Parameter(name, changes))
        return result

    def define_function(self, name, file, recursive=False):
        kinds = [self.random.choice(PARAMETER_KINDS) for _ in range(self.random.randint(0, 3))]
        changing = [kind in ("W", "T", "LW") and self.random.random() < 0.35 for kind in kinds]
        function = Function(name, list(zip(kinds, changing)), self.random.choice(RESULT_KINDS))
        scope = Scope(file)
        scope.result = function.result
        self.make_public(scope, file)
        parameters = self.parameters(function, scope)
        body = [tree.FileVariables(sorted(scope.public))] if scope.public else []
        if recursive:
            body += self.recursion(function, scope, parameters)
        body += self.statements(scope, self.random.randint(2, 5), 2)
        if self.random.random() < 0.95:
            body.append(tree.Return(self.expression(function.result, scope, 3)))
        else:
            function.result = "A"
        self.functions.append(function)
        self.definitions.append(tree.Function(name, parameters, body))

    def recursion(self, function, scope, parameters):
        """The function calls itself with a smaller number, and stops at zero."""
        function.parameters.insert(0, ("W", False))
        count = scope.fresh(self.random)
        scope.kinds[count] = "W"
        scope.frozen.add(count)
        parameters.insert(0, tree.Parameter(count))
        function.parameters = [(kind, False) for kind, _ in function.parameters]
        for each in parameters:
            each.changes = False
        limit = tree.Logical(
            "அல்லது",
            tree.Binary("சிறிதுசமம்", tree.Name(count), tree.Literal(0)),
            tree.Binary("பெரிது", tree.Name(count), tree.Literal(5)),
        )
        stop = tree.If([tree.Branch(limit, [tree.Return(self.expression(function.result, scope, 1))])])
        smaller = tree.Binary("கழி", tree.Name(count), tree.Literal(1))
        rest = [self.expression(kind, scope, 1) for kind, _ in function.parameters[1:]]
        deeper = scope.fresh(self.random)
        call = tree.Assign(tree.Name(deeper), tree.Call(tree.Name(function.name), [smaller] + rest))
        scope.kinds[deeper] = function.result
        return [stop, call]

    # Statements

    def statements(self, scope, count, depth):
        result = []
        for _ in range(count):
            made = self.statement(scope, depth)
            result += made if self.random.random() < 0.12 else self.guarded(made, scope)
        return result

    def guarded(self, statements, scope):
        """The statements, with what may fail in a முயற்சி, after which a variable that was to be made has a value."""
        result = []
        for each in statements:
            if isinstance(each, (tree.Function, tree.Try, tree.ForEach, tree.While)):
                result.append(each)
                continue
            handler = [tree.Print([tree.Literal("!"), self.message()])]
            if isinstance(each, tree.Assign) and isinstance(each.place, tree.Name):
                if isinstance(each.value, tree.Literal):
                    result.append(each)
                    continue
                handler.append(tree.Assign(each.place, self.safe(scope.kind_of(each.place.name))))
            result.append(tree.Try([each], None, handler))
        return result

    def safe(self, kind):
        """A value of this kind that can't fail."""
        if kind == "F":
            return tree.Lambda(["இது"], tree.Name("இது"))
        if kind[0] == "O":
            structure = next(each for each in self.structures if each.name == kind[2:])
            return tree.Call(tree.Name(structure.name), [self.literal(its, Scope()) for its in structure.start])
        return self.literal(kind, Scope())

    def statement(self, scope, depth):
        makers = [self.assign] * 5 + [self.change] * 2 + [self.write] * 3 + [self.show_values] * 4 + [self.do_call] * 2
        makers += [self.grow] * 2
        if depth > 0:
            makers += [self.branch] * 2 + [self.for_each] * 3 + [self.while_loop, self.switch, self.attempt]
            makers += [self.attempt] * 2
            if not scope.of_file:
                makers += [self.inner_function] * 2
        if scope.loops:
            makers += [self.leave]
        if scope.result and depth < 2:
            makers += [self.early_return]
        return self.random.choice(makers)(scope, depth)

    def told(self, scope):
        names = [name for name in scope.readable(SIMPLE_KINDS + ["A", "N"]) if self.random.random() < 0.7]
        result = []
        for name in names[:6]:
            result += [tree.Name(name), tree.Literal(" ")]
        return result or [tree.Literal("-")]

    def assign(self, scope, _):
        if self.structures and self.random.random() < 0.25:
            kind = "O:" + self.random.choice(self.structures).name
        else:
            kind = self.random.choice(SIMPLE_KINDS + ["W", "N", "A", "F"])
        names = scope.assignable(kind)
        if names and self.random.random() < 0.5:
            name = self.random.choice(names)
            return [tree.Assign(tree.Name(name), self.expression(kind, scope))]
        value = self.expression(kind, scope)
        name = scope.fresh(self.random)
        scope.kinds[name] = kind
        return [tree.Assign(tree.Name(name), value)]

    def change(self, scope, depth):
        kind = self.random.choice("WWNDT")
        places = self.places(kind, scope)
        if not places:
            return self.assign(scope, depth)
        place = self.random.choice(places)
        if kind == "T":
            return [tree.Change("கூட்டிசேர்", place, self.expression("T", scope, 1))]
        if kind == "D" and self.random.random() < 0.3:
            return [tree.Change("வகுசேர்", place, self.divisor("N", scope, 1))]
        word = self.random.choice(CHANGES)
        value = self.divisor(kind, scope, 1) if word == "மீதிசேர்" else self.expression(kind, scope, 1)
        return [tree.Change(word, place, value)]

    def write(self, scope, depth):
        kind = self.random.choice(["W", "W", "LW", "T"])
        places = [place for place in self.places(kind, scope) if not isinstance(place, tree.Name)]
        if not places:
            return self.assign(scope, depth)
        return [tree.Assign(self.random.choice(places), self.expression(kind, scope, 2))]

    def grow(self, scope, depth):
        """Appends to a list or removes from a list or a map."""
        places = self.places("LW", scope)
        if not places:
            return self.assign(scope, depth)
        place = self.random.choice(places)
        if self.random.random() < 0.75:
            return [tree.Do(tree.Method(place, "சேர்", [self.expression("W", scope, 2)]))]
        maps = scope.assignable("MW")
        if maps and self.random.random() < 0.5:
            place, item = tree.Name(self.random.choice(maps)), tree.Literal(self.random.choice(KEYS))
        else:
            item = self.simple("W", scope)
        return self.attempted([tree.Do(tree.BuiltIn("நீக்கு", [place, item]))], scope)

    def attempted(self, statements, scope):
        return [tree.Try(statements, None, [tree.Print([tree.Literal("!"), self.message()])])]

    @staticmethod
    def message():
        return tree.Name("பிழை")

    def show_values(self, scope, _):
        if self.random.random() < 0.4:
            return [tree.Print(self.told(scope))]
        kinds = [self.random.choice(SIMPLE_KINDS + ["N", "A"]) for _ in range(self.random.randint(1, 3))]
        result = []
        for kind in kinds:
            result += [self.expression(kind, scope), tree.Literal(" ")]
        return [tree.Print(result[:-1])]

    def do_call(self, scope, depth):
        call = self.called(self.random.choice(RESULT_KINDS), scope, 2)
        if not isinstance(call, (tree.Call, tree.Method)):
            return self.show_values(scope, depth)
        return [tree.Do(call)]

    def inside(self, scope, count, depth, loop=False):
        """A block: what it alone assigns is mostly not read after it."""
        before = dict(scope.kinds)
        scope.loops += loop
        result = self.statements(scope, count, depth - 1)
        scope.loops -= loop
        for name in list(scope.kinds):
            if name not in before and self.random.random() < 0.85:
                del scope.kinds[name]
        return result

    def branch(self, scope, depth):
        branches = [
            tree.Branch(self.expression("B", scope), self.inside(scope, self.random.randint(1, 2), depth))
            for _ in range(self.random.randint(1, 3))
        ]
        if self.random.random() < 0.5:
            branches.append(tree.Branch(None, self.inside(scope, 1, depth)))
        return [tree.If(branches)]

    def switch(self, scope, depth):
        kind = self.random.choice("WTN")
        value = self.expression(kind, scope, 2)
        branches = [
            tree.Branch(self.expression(kind, scope, 1), self.inside(scope, 1, depth))
            for _ in range(self.random.randint(1, 3))
        ]
        branches.append(tree.Branch(None, self.inside(scope, 1, depth)))
        return [tree.Switch(value, branches)]

    def while_loop(self, scope, depth):
        count = scope.fresh(self.random)
        scope.kinds[count] = "W"
        scope.frozen.add(count)
        condition = tree.Binary("பெரிது", tree.Name(count), tree.Literal(0))
        if self.random.random() < 0.3:
            condition = tree.Logical("மற்றும்", condition, self.expression("B", scope, 2))
        body = [tree.Change("கழிசேர்", tree.Name(count), tree.Literal(1))]
        body += self.inside(scope, self.random.randint(1, 3), depth, loop=True)
        return [
            tree.Assign(tree.Name(count), tree.Literal(self.random.randint(0, 4))),
            tree.While(condition, body),
        ]

    def for_each(self, scope, depth):
        over, kind = self.random.choice([("R", "W"), ("R", "W"), ("LW", "W"), ("T", "T"), ("MW", "T"), ("LL", "LW")])
        source = tree.BuiltIn("வரம்பு", self.range_of(scope, 1)) if over == "R" else self.expression(over, scope, 2)
        reused = [name for name in scope.kinds if scope.kinds[name] == kind and name not in scope.frozen]
        variable = self.random.choice(reused) if reused and self.random.random() < 0.2 else scope.fresh(self.random)
        known = scope.kinds.get(variable)
        scope.kinds[variable] = kind
        body = self.inside(scope, self.random.randint(1, 3), depth, loop=True)
        if known is None and self.random.random() < 0.7:
            del scope.kinds[variable]
        return [tree.ForEach(variable, source, body)]

    def leave(self, scope, _):
        word = tree.Break() if self.random.random() < 0.5 else tree.Continue()
        return [tree.If([tree.Branch(self.expression("B", scope, 2), [word])])]

    def early_return(self, scope, _):
        value = self.expression(scope.result, scope, 2)
        return [tree.If([tree.Branch(self.expression("B", scope, 2), [tree.Return(value)])])]

    def attempt(self, scope, depth):
        body = self.inside(scope, self.random.randint(1, 3), depth)
        variable = None if self.random.random() < 0.5 else scope.fresh(self.random)
        handler = [tree.Print([tree.Literal("!"), tree.Name(variable or "பிழை")])]
        if self.random.random() < 0.4:
            handler += self.inside(scope, 1, depth)
        return [tree.Try(body, variable, handler)]

    def inner_function(self, scope, depth):
        """A function that shares the variables around it, called at once and perhaps kept as a value."""
        inner = Scope(scope)
        inner.public = set(scope.public)
        name = scope.fresh(self.random, for_function=True)
        parameter = inner.fresh(self.random)
        inner.kinds[parameter] = "N"
        inner.result = "N"
        body = [tree.FileVariables(sorted(inner.public))] if inner.public else []
        body += self.statements(inner, self.random.randint(1, 3), depth - 1)
        body.append(tree.Return(self.expression("N", inner, 2)))
        scope.kinds[name] = "F"
        scope.frozen.add(name)
        call = tree.Call(tree.Name(name), [self.expression("N", scope, 1)])
        return [tree.Function(name, [tree.Parameter(parameter)], body), tree.Print([call])]
