"""Makes programs, predicts what they do, and compares that with what came out."""

import re

import messages
import tree
from evaluator import Evaluator
from generator import Generator
from values import Unspecified
from writer import Writer

TOLD_KIND = re.compile("⟨([a-z ]+)⟩")
CHOICE = "எந்த_நிரல்"


class Prepared:
    """One program of a group, with what the evaluator predicts of it."""

    def __init__(self, seed, number):
        self.seed, self.number = seed, number
        self.tree = Generator(seed, number).program()
        self.lines = range(0)
        self.output, self.fault = "", None

    def predict(self):
        evaluator = Evaluator(self.tree)
        self.output, self.fault = evaluator.run()


def written(program, writer):
    """Writes definitions and statements of one program; gives the lines they stand on."""
    first = len(writer.lines) + 1
    if program.tree.definitions:
        writer.block(program.tree.definitions, 0)
    chosen = tree.Binary("சமம்", tree.Name(CHOICE), tree.Literal(program.number))
    body = program.tree.beginning + program.tree.body
    writer.statement(tree.If([tree.Branch(chosen, body)]), 0)
    program.lines = range(first, len(writer.lines) + 1)


def group_text(programs, seed):
    writer = Writer(seed)
    writer.line(0, "ஃ பொழில் 2")
    writer.line(0, f'{CHOICE} = எண்(உள்ளீடு(""))')
    for program in programs:
        written(program, writer)
    return "\n".join(writer.lines) + "\n", writer.lines


def usable(seed, number):
    """The program of this seed, or None if the documents don't say what it does."""
    program = Prepared(seed, number)
    try:
        writer = Writer(seed)
        written(program, writer)
        program.predict()
    except Unspecified:
        return None
    return program


def pattern_of(predicted):
    """What a predicted output is matched by: a group for each message of a fault, which may say whatever it says."""
    return "(.*)".join(re.escape(part) for part in TOLD_KIND.split(predicted)[::2])


def fits_line(predicted, got):
    """Whether a line is as predicted, whatever messages of faults in it say."""
    return re.fullmatch(pattern_of(predicted), got) is not None


def difference(program, result):
    """What is wrong with a run of the program, in words; empty if it is as predicted."""
    found = re.fullmatch(pattern_of(program.output), result.output)
    if found is None:
        return "output"
    for kind, message in zip(TOLD_KIND.findall(program.output), found.groups()):
        if not messages.fits(kind, message):
            return f"message of '{kind}': {message}"
    if program.fault is None:
        return "" if result.status == 0 else f"status {result.status}"
    kind, line = program.fault
    if result.status != 1 or result.lines()[:1] != [line]:
        return f"fault '{kind}' in line {line}: status {result.status}, lines {result.lines()}"
    if not messages.fits(kind, result.errors):
        return f"box of '{kind}'"
    return ""
