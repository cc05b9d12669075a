"""Random expressions of a wanted kind.

Kinds: W whole, D decimal, N either, T text, B truth value, LW and LT lists, LL list of lists of wholes, MW and ML maps
from texts to wholes and to lists of wholes, F a function from a number to a number, O:name an object, A anything.
"""

import tree

TEXTS = ["அ", "அம்மா", "தமிழ்", "க்", "கா", "ஃ", "வணக்கம்", "", "மா பலா", "ab", "Z9", "நன்றி, ஐயா", "கொடி", "ஔவை"]
KEYS = ["மா", "பலா", "க", "க்", "ஆறு", "x"]
BIG = [9223372036854775807, -9223372036854775807, 4611686018427387904, 3037000500, 10**18]
DECIMALS = [0.5, 1.5, 2.0, 0.1, 0.2, 3.25, 100.0, 1e-5 * 100, 12345.678, -2.5]
SIMPLE_KINDS = ["W", "D", "T", "B", "LW", "LT", "LL", "MW", "ML"]
FALLBACK = {"LT": "T", "LL": "LW", "ML": "LW", "MW": "W", "LW": "W"}


class Expressions:
    """Needs of its heir: random, functions, structures, enumeration, show (the name of the function that prints)."""

    def expression(self, kind, scope, depth=3):
        roll = self.random.random()
        if kind not in ("A", "F") and kind[0] != "O" and roll < 0.03:
            return self.doubtful(scope, depth)
        if depth <= 0 or roll < 0.3:
            return self.simple(kind, scope)
        if roll < 0.36 and self.show and kind[0] not in "FO":
            return tree.Call(tree.Name(self.show), [self.expression(kind, scope, depth - 1)])
        if roll < 0.42:
            condition = self.expression("B", scope, depth - 2)
            return tree.Conditional(
                condition, self.expression(kind, scope, depth - 1), self.expression(kind, scope, depth - 1)
            )
        if roll < 0.62:
            found = self.called(kind, scope, depth - 1)
            if found is not None:
                return found
        return getattr(self, "some_" + kind[0] + kind[1:2].replace(":", ""), self.simple_for(kind))(
            *([kind] if kind[0] == "O" else []), scope, depth - 1
        )

    def simple_for(self, kind):
        return lambda *arguments: self.simple(kind, arguments[-2])

    def doubtful(self, scope, depth):
        """A value whose kind only the running program knows."""
        names = scope.readable(["A"])
        if names and self.random.random() < 0.6:
            return tree.Name(self.random.choice(names))
        items = [self.simple(self.random.choice(["W", "D", "T", "B", "LW"]), scope) for _ in range(3)]
        return tree.Index(tree.ListOf(items), self.small(scope, 3))

    def simple(self, kind, scope):
        """A variable or a literal."""
        names = scope.readable(["W", "D", "N"] if kind == "N" else SIMPLE_KINDS + ["A", "N"] if kind == "A" else [kind])
        if names and self.random.random() < 0.7:
            return tree.Name(self.random.choice(names))
        return self.literal(kind, scope)

    def literal(self, kind, scope):
        pick = self.random
        if kind == "W":
            roll = pick.random()
            number = pick.choice(BIG) if roll < 0.03 else -pick.randint(1, 9) if roll < 0.15 else pick.randint(0, 12)
            return tree.Literal(number)
        if kind == "D":
            return tree.Literal(pick.choice(DECIMALS))
        if kind == "T":
            return tree.Literal(pick.choice(TEXTS))
        if kind == "B":
            return tree.Literal(pick.random() < 0.5)
        if kind == "F":
            return self.some_F(scope, 1)
        if kind[0] == "O":
            return self.some_O(kind, scope, 1)
        if kind in ("N", "A"):
            return self.literal(pick.choice(["W", "D"] if kind == "N" else SIMPLE_KINDS), scope)
        items = [self.simple(FALLBACK[kind], scope) for _ in range(pick.randint(1 if kind == "LL" else 0, 4))]
        if kind[0] == "L":
            return tree.ListOf(items)
        return tree.MapOf([(tree.Literal(key), item) for key, item in zip(pick.sample(KEYS, len(items)), items)])

    def small(self, scope, size):
        """An index: mostly within the size, now and then not."""
        roll = self.random.random()
        if roll < 0.75:
            return tree.Literal(self.random.randrange(size))
        if roll < 0.8:
            return tree.Literal(float(self.random.randrange(size)))
        names = scope.readable(["W"])
        if names:
            return tree.Name(self.random.choice(names))
        return tree.Literal(self.random.randrange(size))

    def key(self, scope):
        names = scope.readable(["T"])
        if names and self.random.random() < 0.2:
            return tree.Name(self.random.choice(names))
        return tree.Literal(self.random.choice(KEYS))

    def called(self, kind, scope, depth):
        """A call of a function, a method or a field that gives this kind, or None."""
        choices = [function for function in self.functions if self.gives(function.result, kind)]
        choices += [
            (structure, member)
            for structure in self.structures
            if scope.readable(["O:" + structure.name])
            for member in list(structure.methods.values()) + [(name, its) for name, its in structure.fields.items()]
            if self.gives(member[1] if isinstance(member, tuple) else member.result, kind)
        ]
        if not choices:
            return None
        chosen = self.random.choice(choices)
        if not isinstance(chosen, tuple):
            arguments = self.arguments(chosen, scope, depth)
            return None if arguments is None else tree.Call(tree.Name(chosen.name), arguments)
        structure, member = chosen
        thing = tree.Name(self.random.choice(scope.readable(["O:" + structure.name])))
        if isinstance(member, tuple):
            return tree.Field(thing, member[0])
        arguments = self.arguments(member, scope, depth)
        return None if arguments is None else tree.Method(thing, member.name, arguments)

    @staticmethod
    def gives(result, kind):
        return result == kind or (kind == "N" and result in ("W", "D")) or (kind == "A" and result != "F")

    def arguments(self, function, scope, depth):
        result = []
        for kind, changes in function.parameters:
            if not changes:
                result.append(self.expression(kind, scope, depth - 1))
                continue
            places = self.places(kind, scope)
            if not places:
                return None
            result.append(self.random.choice(places))
        return result

    def places(self, kind, scope):
        """Places of this kind that a statement here may change: variables, elements and fields."""
        places = [tree.Name(name) for name in scope.assignable(kind)]
        if kind == "W":
            places += [tree.Index(tree.Name(name), self.small(scope, 2)) for name in scope.assignable("LW")]
            places += [tree.Index(tree.Name(name), self.key(scope)) for name in scope.assignable("MW")]
            places += [
                tree.Index(tree.Index(tree.Name(name), self.small(scope, 2)), self.small(scope, 2))
                for name in scope.assignable("LL")
            ]
            places += [
                tree.Index(tree.Index(tree.Name(name), self.key(scope)), self.small(scope, 2))
                for name in scope.assignable("ML")
            ]
        if kind == "LW":
            places += [tree.Index(tree.Name(name), self.small(scope, 2)) for name in scope.assignable("LL")]
            places += [tree.Index(tree.Name(name), self.key(scope)) for name in scope.assignable("ML")]
        if kind == "T":
            places += [tree.Index(tree.Name(name), self.small(scope, 2)) for name in scope.assignable("LT")]
        for structure in self.structures:
            for name in scope.readable(["O:" + structure.name]):
                for field, its in structure.fields.items():
                    if its == kind:
                        places.append(tree.Field(tree.Name(name), field))
                    elif kind == "W" and its in ("LW", "MW"):
                        index = self.small(scope, 2) if its == "LW" else self.key(scope)
                        places.append(tree.Index(tree.Field(tree.Name(name), field), index))
        return places

    # Expressions of each kind

    def two(self, word, kinds, scope, depth):
        return tree.Binary(word, self.expression(kinds[0], scope, depth), self.expression(kinds[1], scope, depth))

    def some_W(self, scope, depth):
        roll = self.random.randrange(14)
        if roll < 5:
            return self.two(self.random.choice(["கூட்டு", "கழி", "பெருக்கு", "கூட்டு"]), "WW", scope, depth)
        if roll == 5:
            return tree.Binary("மீதி", self.expression("W", scope, depth), self.divisor("W", scope, depth))
        if roll == 6:
            kind = self.random.choice(["T", "LW", "LT", "MW", "LL", "ML"])
            return tree.BuiltIn("நீளம்", [self.expression(kind, scope, depth)])
        if roll == 7:
            return tree.Index(self.expression("LW", scope, depth), self.small(scope, 3))
        if roll == 8:
            return tree.Index(self.expression("MW", scope, depth), self.key(scope))
        if roll == 9:
            return tree.BuiltIn(self.random.choice(["கீழ்எண்", "மேல்எண்"]), [self.expression("N", scope, depth)])
        if roll == 10 and self.enumeration:
            return tree.Member(self.enumeration.name, self.random.choice(self.enumeration.members))
        if roll == 11:
            word = self.random.choice(["பெருக்குஇருமை", "கூட்டுஇருமை", "வேறுஇருமை"])
            return self.two(word, "WW", scope, depth)
        if roll == 12:
            inner = tree.Index(self.expression("LL", scope, depth), self.small(scope, 2))
            return tree.Index(inner, self.small(scope, 2))
        return tree.Index(tree.Index(self.expression("ML", scope, depth), self.key(scope)), self.small(scope, 2))

    def divisor(self, kind, scope, depth):
        found = self.expression(kind, scope, depth)
        return tree.Literal(3) if isinstance(found, tree.Literal) and found.value == 0 else found

    def some_D(self, scope, depth):
        roll = self.random.randrange(5)
        if roll < 2:
            return tree.Binary("வகு", self.expression("N", scope, depth), self.divisor("N", scope, depth))
        if roll == 2:
            return tree.Binary("மீதி", self.expression("D", scope, depth), self.divisor("N", scope, depth))
        kinds = self.random.choice(["DW", "WD", "DD"])
        return self.two(self.random.choice(["கூட்டு", "கழி", "பெருக்கு"]), kinds, scope, depth)

    def some_N(self, scope, depth):
        functions = scope.readable(["F"])
        if functions and self.random.random() < 0.5:
            return tree.Call(tree.Name(self.random.choice(functions)), [self.expression("N", scope, depth)])
        return self.expression(self.random.choice("WD"), scope, depth)

    def some_T(self, scope, depth):
        roll = self.random.randrange(7)
        if roll < 2:
            return self.two("இணை", "TA", scope, depth)
        if roll == 2:
            return self.two("கூட்டு", self.random.choice(["TT", "TW", "AT"]), scope, depth)
        if roll == 3:
            return tree.Index(self.expression("T", scope, depth), self.small(scope, 2))
        if roll == 4:
            return tree.BuiltIn("என்னவகை", [self.expression("A", scope, depth)])
        if roll == 5:
            return tree.Index(self.expression("LT", scope, depth), self.small(scope, 2))
        name = self.random.choice(["பெரியஎ", "சிறியஎ"])
        return tree.BuiltIn(name, [self.expression("T", scope, depth)])

    def some_B(self, scope, depth):
        roll = self.random.randrange(8)
        if roll < 3:
            word = self.random.choice(["சிறிது", "பெரிது", "சிறிதுசமம்", "பெரிதுசமம்"])
            return self.two(word, self.random.choice(["WW", "NN", "TT", "DW"]), scope, depth)
        if roll < 5:
            word = self.random.choice(["சமம்", "சமமில்லை"])
            kind = self.random.choice(["W", "N", "T", "LW", "MW", "A", "B"])
            return tree.Binary(word, self.expression(kind, scope, depth), self.expression(kind, scope, depth))
        if roll == 5:
            return tree.Not(self.expression("B", scope, depth))
        if roll == 6:
            holder, item = self.random.choice([("LW", "W"), ("MW", "T"), ("T", "T"), ("LT", "T")])
            return tree.Method(
                self.expression(holder, scope, depth), "கொண்டுள்ளது", [self.expression(item, scope, depth)]
            )
        word = self.random.choice(["மற்றும்", "அல்லது"])
        return tree.Logical(word, self.expression("B", scope, depth), self.expression("B", scope, depth))

    def some_LW(self, scope, depth):
        roll = self.random.randrange(5)
        if roll == 0:
            return tree.BuiltIn("வரம்பு", self.range_of(scope, depth))
        if roll == 1:
            return tree.Binary("கூட்டு", self.expression("LW", scope, depth), self.expression("LW", scope, depth))
        if roll == 2:
            return tree.Index(self.expression("LL", scope, depth), self.small(scope, 2))
        if roll == 3:
            return tree.Index(self.expression("ML", scope, depth), self.key(scope))
        return tree.ListOf([self.expression("W", scope, depth) for _ in range(self.random.randint(1, 3))])

    def range_of(self, scope, depth):
        roll = self.random.random()
        if roll < 0.4:
            return [tree.Literal(self.random.randint(0, 5))]
        if roll < 0.5:
            return [self.expression("W", scope, depth)]
        first, last = self.random.randint(-3, 4), self.random.randint(-3, 7)
        step = [] if roll < 0.7 else [tree.Literal(self.random.choice([1, 2, 3, -1, -2, 2.0]))]
        if roll > 0.95:
            step = [self.simple("W", scope)]
            if isinstance(step[0], tree.Literal) and step[0].value == 0:
                step = []
        return [tree.Literal(first), tree.Literal(last)] + step

    def some_LT(self, scope, depth):
        if self.random.random() < 0.5:
            separator = tree.Literal(self.random.choice([" ", "ா", "மா", ","]))
            return tree.BuiltIn("பிளவு", [self.expression("T", scope, depth), separator])
        return tree.ListOf([self.expression("T", scope, depth) for _ in range(self.random.randint(1, 3))])

    def some_LL(self, scope, depth):
        return tree.ListOf([self.expression("LW", scope, depth) for _ in range(self.random.randint(1, 3))])

    def some_MW(self, scope, depth):
        return self.map_of("W", scope, depth)

    def some_ML(self, scope, depth):
        return self.map_of("LW", scope, depth)

    def map_of(self, kind, scope, depth):
        keys = [tree.Literal(key) for key in self.random.sample(KEYS, 2)]
        names = scope.readable(["T"])
        if names and self.random.random() < 0.2:
            keys[1] = tree.Name(self.random.choice(names))
        return tree.MapOf([(key, self.expression(kind, scope, depth)) for key in keys])

    def some_A(self, scope, depth):
        return self.expression(self.random.choice(SIMPLE_KINDS), scope, depth)

    def some_F(self, scope, depth):
        names = scope.readable(["F"])
        if names and self.random.random() < 0.3:
            return tree.Name(self.random.choice(names))
        parameter = scope.fresh(self.random)
        inner = type(scope)(scope)
        inner.kinds[parameter] = "N"
        return tree.Lambda([parameter], self.expression("N", inner, depth))

    def some_O(self, kind, scope, depth):
        structures = [each for each in self.structures if each.name == kind[2:] or each.parent == kind[2:]]
        structure = self.random.choice(structures)
        arguments = [self.expression(its, scope, depth - 1) for its in structure.start]
        return tree.Call(tree.Name(structure.name), arguments)
