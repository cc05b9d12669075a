"""One run: makes programs group by group, compiles and runs them, and tells what isn't as predicted."""

import collections
import itertools
import tempfile
from dataclasses import dataclass

from comparison import difference, fits_line, group_text, usable
from compilation import Compilation
from support.compiler import compiler_path

PROGRAMS_PER_SEED = 1_000_000


@dataclass
class Options:
    programs: int = 200
    seed: int = 1
    group: int = 30
    archive: tuple = ()
    headers: str = ""
    instrumented: bool = False
    verbose: bool = False


class Session:
    def __init__(self, options):
        self.options = options
        self.counts = collections.Counter()

    def report(self, program, what, lines, result):
        """Tells the difference; the whole of program and output with --verbose."""
        self.counts["different"] += 1
        print(f"\n=== seed {program.seed}: {what}; predicted to end {program.fault or 'well'}, status {result.status}")
        if self.options.verbose:
            print("\n".join(f"{number:5} {lines[number - 1]}" for number in program.lines))
            print("--- printed\n" + result.output)
        pairs = itertools.zip_longest(program.output.split("\n"), result.output.split("\n"))
        for number, (predicted, got) in enumerate(pairs, 1):
            if got is None or predicted is None or not fits_line(predicted, got):
                print(f"--- line {number} of the output\npredicted: {predicted}\ngot:       {got}")
                break
        print(result.errors[-2500:], flush=True)

    def group(self, programs, seed):
        text, lines = group_text(programs, seed)
        for program in programs:
            program.predict()
        with tempfile.TemporaryDirectory() as directory:
            compilation = Compilation(compiler_path(), directory, text)
            result = compilation.compile()
            if compilation.program is None:
                self.refused(programs, seed, lines, result)
                return
            self.compared(programs, compilation, lines, "plain")
            if self.options.archive:
                compilation.compile_sanitized(
                    self.options.headers, self.options.archive, self.options.instrumented
                )
                self.compared(programs, compilation, lines, "sanitized")

    def compared(self, programs, compilation, lines, way):
        for program in programs:
            result = compilation.run(program.number)
            what = difference(program, result)
            self.counts[way] += 1
            self.counts[f"{way}, ended by a fault"] += program.fault is not None
            if what:
                self.report(program, f"{way}: {what}", lines, result)

    def refused(self, programs, seed, lines, result):
        """Without the programs that the compiler refuses the group is tried again; each of them is told."""
        told = set(result.lines())
        rest = [program for program in programs if not told & set(program.lines)]
        for program in programs:
            if told & set(program.lines):
                self.counts["refused"] += 1
                if self.options.verbose:
                    self.report(program, "refused", lines, result)
        if len(rest) == len(programs) > 1:
            middle = len(rest) // 2
            self.group(rest[:middle], seed)
            self.group(rest[middle:], seed)
        elif len(rest) == len(programs):
            self.report(programs[0], "refused without a line", lines, result)
        elif rest:
            self.group(rest, seed)

    def run(self):
        seed, programs, made = self.options.seed * PROGRAMS_PER_SEED, [], 0
        while made < self.options.programs:
            program = usable(seed, len(programs))
            self.counts["unspecified"] += program is None
            seed += 1
            if program is None:
                continue
            made += 1
            programs.append(program)
            if len(programs) == self.options.group or made == self.options.programs:
                self.group(programs, seed)
                programs = []
                print(".", end="", flush=True)
        print("\n" + ", ".join(f"{name}: {count}" for name, count in sorted(self.counts.items())))
        return 1 if self.counts["different"] else 0
