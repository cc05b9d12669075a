"""Compiles a group of random programs as one and runs each of them, also with the engine under the sanitizers."""

import os
import re
import subprocess
from pathlib import Path

COLOURS = re.compile(r"\033\[[0-9;]*m")
BOX_BEGINNING = "\n\033[1;31m-----"
BOX_LINE = re.compile(r"இடம்\s*:\s*(?:.*/)?\s*வரி (\d+)")
BUILD_DIRECTORY = ".நிலையற்ற"
NONE_CHOSEN = "-1"


class Result:
    def __init__(self, finished):
        self.status = finished.returncode
        printed = finished.stdout.decode("utf-8", "replace")
        self.output, _, box = printed.partition(BOX_BEGINNING)
        self.errors = COLOURS.sub("", box + finished.stderr.decode("utf-8", "replace"))

    def lines(self):
        """The lines that boxes name."""
        return [int(line) for line in BOX_LINE.findall(self.errors)]


def emitted(directory):
    return next((directory / BUILD_DIRECTORY).rglob("generated.cpp"))


def call(command):
    finished = subprocess.run(command, capture_output=True, check=False)
    if finished.returncode != 0:
        raise RuntimeError(finished.stderr.decode("utf-8", "replace")[:3000])


class Compilation:
    def __init__(self, compiler, directory, text):
        self.compiler, self.directory = compiler, Path(directory)
        self.source = self.directory / "நிரல்.பொழில்"
        self.source.write_text(text, encoding="utf-8")
        self.program = None

    def compile(self):
        environment = dict(os.environ, POZHIL_ANIMATION_MS="0")
        finished = subprocess.run(
            [self.compiler, self.source.name],
            cwd=self.directory,
            env=environment,
            input=NONE_CHOSEN.encode() + b"\n",
            capture_output=True,
            timeout=300,
            check=False,
        )
        built = list((self.directory / BUILD_DIRECTORY).rglob("பொழில்_செயலி"))
        self.program = built[0] if built and finished.returncode == 0 else None
        return Result(finished)

    def compile_sanitized(self, headers, archive, instrumented):
        """With the engine of the archive; the emitted text is under the sanitizers too if it is to be instrumented."""
        compiled, target = self.directory / "program.o", self.directory / "sanitized"
        sanitizers = ["-fsanitize=address,undefined", "-fno-sanitize-recover=undefined"]
        call(["g++", "-c", emitted(self.directory), "-o", compiled, "-std=c++17", "-O0", f"-I{headers}"] +
             (sanitizers if instrumented else []))
        call(["g++", compiled, *archive, "-o", target] + sanitizers)
        self.program = target

    def run(self, number):
        environment = dict(os.environ, ASAN_OPTIONS="detect_leaks=0")
        try:
            choice = f"{number}\n".encode()
            finished = subprocess.run(
                [self.program], input=choice, env=environment, capture_output=True, timeout=20, check=False
            )
        except subprocess.TimeoutExpired as expired:
            finished = subprocess.CompletedProcess([], "timeout", expired.stdout or b"", expired.stderr or b"")
        return Result(finished)
