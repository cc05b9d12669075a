"""The tree of a random program: what the generator builds, the writer writes and the evaluator runs."""

from dataclasses import dataclass, field
from typing import Any, Optional


@dataclass
class Literal:
    value: Any


@dataclass
class Name:
    name: str


@dataclass
class Binary:
    word: str
    left: Any
    right: Any


@dataclass
class Logical:
    word: str
    left: Any
    right: Any


@dataclass
class Not:
    operand: Any


@dataclass
class Conditional:
    condition: Any
    yes: Any
    no: Any


@dataclass
class ListOf:
    items: list


@dataclass
class MapOf:
    items: list


@dataclass
class Index:
    container: Any
    index: Any


@dataclass
class Field:
    object: Any
    name: str


@dataclass
class Call:
    """A call of a function or a structure by its name, or of the value of any other expression."""

    callee: Any
    arguments: list


@dataclass
class Method:
    object: Any
    name: str
    arguments: list


@dataclass
class ParentMethod:
    structure: str
    name: str
    arguments: list


@dataclass
class BuiltIn:
    name: str
    arguments: list


@dataclass
class Member:
    """A member of an enumeration."""

    enumeration: str
    name: str


@dataclass
class Lambda:
    parameters: list
    body: Any


@dataclass
class Statement:
    line: int = field(default=0, init=False)


@dataclass
class Assign(Statement):
    place: Any
    value: Any


@dataclass
class Change(Statement):
    """An assignment that calculates, such as கூட்டிசேர்."""

    word: str
    place: Any
    value: Any


@dataclass
class Do(Statement):
    expression: Any


@dataclass
class Print(Statement):
    arguments: list


@dataclass
class Branch(Statement):
    """One condition of an எனில் with its block, or one நிலை of a தேர்வு; the last has no condition."""

    condition: Optional[Any]
    body: list


@dataclass
class If(Statement):
    branches: list


@dataclass
class Switch(Statement):
    value: Any
    branches: list


@dataclass
class While(Statement):
    condition: Any
    body: list


@dataclass
class ForEach(Statement):
    variable: str
    over: Any
    body: list


@dataclass
class Break(Statement):
    pass


@dataclass
class Continue(Statement):
    pass


@dataclass
class Pass(Statement):
    pass


@dataclass
class Try(Statement):
    body: list
    variable: Optional[str]
    handler: list


@dataclass
class Return(Statement):
    value: Optional[Any]


@dataclass
class FileVariables(Statement):
    names: list


@dataclass
class Parameter:
    name: str
    changes: bool = False


@dataclass
class Function(Statement):
    name: str
    parameters: list
    body: list


@dataclass
class Structure(Statement):
    name: str
    parent: Optional[str]
    fields: list
    methods: list


@dataclass
class Enumeration(Statement):
    name: str
    members: list


@dataclass
class Program:
    """Definitions, the file's first statements, and the statements after them that do the work."""

    definitions: list
    beginning: list
    body: list
