"""Calls while a random program runs: of functions, methods, lambdas and structures."""

import tree
from names import UNSET, Cell, Frame, blocks_of, functions_within, written_names
from values import Closure, Fault, Thing, Unspecified, copied

DEEPEST_CALLS = 60


class Returned(Exception):
    def __init__(self, value):
        super().__init__()
        self.value = value


class Calls:
    """Needs of its heir: structures, file, line, and how statements, places and expressions are run."""

    def __init__(self):
        self.depth = 0

    def method(self, holder, name):
        structure = self.structures[holder.structure] if isinstance(holder, Thing) else None
        while structure is not None:
            for method in structure.methods:
                if method.name == name:
                    return method
            structure = self.structures.get(structure.parent)
        raise Fault("member")

    def of_ParentMethod(self, node, frame):
        holder = self.value(node.arguments[0], frame)
        structure = self.structures[node.structure]
        method = next((each for each in structure.methods if each.name == node.name), None)
        while method is None:
            structure = self.structures[structure.parent]
            method = next((each for each in structure.methods if each.name == node.name), None)
        return self.call(Closure(method, self.file, holder), node.arguments[1:], frame)

    def of_Call(self, node, frame):
        if isinstance(node.callee, tree.Name) and node.callee.name in self.structures:
            return self.made(node.callee.name, node.arguments, frame)
        callee = self.value(node.callee, frame)
        if not isinstance(callee, Closure):
            self.values(node.arguments, frame)
            raise Fault("no function")
        return self.call(callee, node.arguments, frame)

    def made(self, name, arguments, frame):
        thing = Thing(name, {})
        lineage, structure = [], self.structures[name]
        while structure is not None:
            lineage.insert(0, structure)
            structure = self.structures.get(structure.parent)
        for structure in lineage:
            for method in structure.methods:
                for field in self.fields_given(method.body):
                    thing.fields.setdefault(field, UNSET)
        for structure in lineage:
            for field, value in structure.fields:
                thing.fields[field] = copied(self.value(value, self.file))
        try:
            start = self.method(thing, "துவக்கம்")
        except Fault:
            return thing
        self.call(Closure(start, self.file, thing), arguments, frame)
        return thing

    def fields_given(self, statements):
        for node in statements:
            if isinstance(node, tree.Assign) and node.place.__class__ is tree.Field:
                if node.place.object == tree.Name("தான்"):
                    yield node.place.name
            yield from self.fields_given(blocks_of(node))

    def call(self, closure, arguments, frame):
        function = closure.function
        if isinstance(function, tree.Lambda):
            parameters = [tree.Parameter(name) for name in function.parameters]
        else:
            parameters = function.parameters[1:] if closure.bound else function.parameters
        cells, returns = [], []
        for parameter, argument in zip(parameters, arguments):
            if not parameter.changes:
                cells.append(Cell(copied(self.value(argument, frame))))
                continue
            place = self.place(argument, frame)
            if place[0] == "cell":
                self.read(place)
                cells.append(place[1])
            else:
                cells.append(Cell(copied(self.looked_up(place))))
                returns.append((place, cells[-1]))
        if len(parameters) != len(arguments):
            raise Fault("number of arguments")
        line = self.line
        result = self.entered(closure, parameters, cells)
        self.line = line
        for place, cell in returns:
            self.write(place, copied(cell.value))
        return result

    def entered(self, closure, parameters, cells):
        function = closure.function
        self.depth += 1
        if self.depth > DEEPEST_CALLS:
            raise Unspecified("too deep")
        try:
            if isinstance(function, tree.Lambda):
                inner = Frame([], closure.frame)
                inner.cells.update(zip(function.parameters, cells))
                return copied(self.value(function.body, inner))
            inner = self.frame_of(function, closure)
            inner.cells.update((each.name, cell) for each, cell in zip(parameters, cells))
            for each in functions_within(function.body):
                inner.cells[each.name].value = Closure(each, inner)
            try:
                self.block(function.body, inner)
            finally:
                self.detach(inner, parameters)
        except Returned as returned:
            return returned.value
        finally:
            self.depth -= 1
        return None

    @staticmethod
    def detach(frame, parameters):
        """What a மாற்று parameter was is its argument's no longer: functions that outlive the call have their own."""
        for each in parameters:
            if each.changes:
                frame.cells[each.name] = Cell(copied(frame.cells[each.name].value))

    def frame_of(self, function, closure):
        """Own are parameters, loop and catch variables, and what it assigns that isn't பொது or of a function around."""
        own, assigned, public = written_names(function.body)
        around, frame = set(), closure.frame
        while frame is not self.file and frame is not None:
            around.update(frame.cells)
            frame = frame.outer
        names = own | (assigned - around - public)
        inner = Frame(names | {each.name for each in function.parameters}, closure.frame)
        if closure.bound is not None:
            inner.cells[function.parameters[0].name].value = closure.bound
        return inner
