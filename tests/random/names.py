"""The variables of calls while a random program runs, and which names a function has."""

import tree

UNSET = object()
DEFAULT_CATCH = "பிழை"


class Cell:
    def __init__(self, value=UNSET):
        self.value = value


class Frame:
    """The variables of one call; `outer` is the frame of the function around."""

    def __init__(self, names, outer):
        self.cells = {name: Cell() for name in names}
        self.outer = outer

    def find(self, name):
        frame = self
        while frame is not None:
            if name in frame.cells:
                return frame.cells[name]
            frame = frame.outer
        raise KeyError(name)


def blocks_of(node):
    """The statements within a statement, but not those of functions that it defines."""
    if isinstance(node, (tree.If, tree.Switch)):
        return [statement for branch in node.branches for statement in branch.body]
    if isinstance(node, tree.Try):
        return node.body + node.handler
    return node.body if isinstance(node, (tree.While, tree.ForEach)) else []


def functions_within(statements):
    """Functions that a function defines, in whichever block: they are there from its beginning."""
    for node in statements:
        if isinstance(node, tree.Function):
            yield node
        yield from functions_within(blocks_of(node))


def written_names(statements):
    """Names of one function: those that are its own by their nature, those it assigns, those it says are the file's."""
    own, assigned, public = set(), set(), set()
    for node in statements:
        if isinstance(node, (tree.Assign, tree.Change)) and isinstance(node.place, tree.Name):
            assigned.add(node.place.name)
        elif isinstance(node, tree.ForEach):
            own.add(node.variable)
        elif isinstance(node, tree.Try):
            own.add(node.variable or DEFAULT_CATCH)
        elif isinstance(node, tree.FileVariables):
            public.update(node.names)
        elif isinstance(node, tree.Function):
            own.add(node.name)
        for found, mine in zip(written_names(blocks_of(node)), (own, assigned, public)):
            mine.update(found)
    return own, assigned, public
