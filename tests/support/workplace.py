"""A folder to compile in, with everything around it that the compiler looks at."""

import os
import shutil
import time
from pathlib import Path

from support import texts as t
from support.case_check import own_part
from support.compiler import plain_environment
from support.process import Session, run

HELLO = 'அச்சிடு("வணக்கம்")\n'
WRONG = "அச்சிடூ\n"

NOBODY = 65534

# How long a compiler may take to see a change, and how often one is made before it counts as overlooked.
PATIENCE = 4
TRIES = 8

CHANGE_NOTE_BEGINNING = os.path.commonprefix([t.CHANGE_NOTE, t.WEB_CHANGE_NOTE]).encode()


class Workplace:
    """Runs one compiler in one working directory and one environment."""

    def __init__(self, folder, home, compiler, toolchain=None):
        self.folder = Path(folder)
        self.folder.mkdir(parents=True, exist_ok=True)
        self.compiler = Path(compiler)
        self.env = plain_environment(home)
        if toolchain:
            self.env["PATH"] = toolchain.in_front_of(self.env["PATH"])

    @property
    def work_directory(self):
        return self.folder / t.WORK_DIRECTORY

    @property
    def emitted_path(self):
        return self.work_directory / t.EMITTED_NAME

    def directory_of(self, source):
        """Where a program of the second edition is built."""
        return self.work_directory / source

    def program_of(self, source):
        """The program that was built of a source of the second edition."""
        return self.directory_of(source) / t.PROGRAM_NAME

    @property
    def emitted(self):
        return self.emitted_path.read_text(encoding="utf-8")

    @property
    def own_emitted(self):
        """The emitted text without the runtime that stands in every program."""
        return own_part(self.emitted)

    @property
    def web_directory(self):
        return self.folder / t.WEB_DIRECTORY

    def results_of(self, source):
        """Where em++ writes an application of the second edition to."""
        return self.web_directory / source

    @property
    def program(self):
        return self.work_directory / t.PROGRAM_NAME

    def write(self, name, contents=HELLO):
        """Writes a file and returns its name, to be given to `run`."""
        data = contents if isinstance(contents, bytes) else contents.encode()
        (self.folder / name).write_bytes(data)
        return name

    def change(self, name, contents, age=-10):
        """Replaces a source as an editor does; its time differs from the one before in any case."""
        new = self.folder / "புதியது"
        new.write_text(contents, encoding="utf-8")
        moment = time.time() - age
        os.utime(new, (moment, moment))
        new.rename(self.folder / name)

    def change_until(self, session, name, contents, age=-10):
        """Replaces a source until the compiler of `session` tells of a change. One that has only begun may not watch its
        source yet: nothing that can be seen from outside tells when it does."""
        def told():
            return session.stdout.count(CHANGE_NOTE_BEGINNING)

        before = told()
        for _ in range(TRIES):
            self.change(name, contents, age)
            if session.comes_true(lambda: told() > before, PATIENCE):
                return
        raise AssertionError(f"no change was seen; standard output:\n{session.stdout.decode()}")

    def run(self, *arguments, **settings):
        return run([self.compiler, *arguments], cwd=self.folder, env=self.env, **settings)

    def compile(self, contents, **settings):
        """Compiles one program and returns the result."""
        return self.run(self.write(f"நிரல்{t.SOURCE_ENDING}", contents), **settings)

    def session(self, *arguments, **settings):
        return Session([self.compiler, *arguments], cwd=self.folder, env=self.env, **settings)


class Installation:
    """A copy of the whole installation that `compiler` belongs to, for tests that change it or move it."""

    def __init__(self, folder, compiler):
        self.folder = Path(folder)
        shutil.copytree(compiler.parent, self.folder, copy_function=_link_or_copy)
        self.compiler = self.folder / compiler.name
        self.include = self.folder / t.INCLUDE_DIRECTORY
        self.cache = self.folder / t.CACHE_DIRECTORY
        self.object = self.cache / t.CACHED_OBJECT
        self.reporter = self.folder / t.REPORTER_SOURCE

    def without_object(self):
        self.object.unlink(missing_ok=True)
        return self

    def object_call(self, made=None):
        """The arguments with which g++ makes the reporter's object."""
        return ["-c", str(self.reporter), "-o", str(made or self.object), "-std=c++17", f"-I{self.include}"]

    def link_call(self, place, linked=None):
        """The arguments with which g++ makes the program of `place`."""
        return [
            str(place.emitted_path), str(linked or self.object), "-o", str(place.work_directory / t.LINK_RESULT),
            "-std=c++17", f"-I{self.include}", f"-I{self.include}/nanovg",
            "-static", "-static-libstdc++", "-static-libgcc", "-lm", "-lpthread",
        ]

    def web_call(self, place, packing=(), second=None):
        """The arguments with which em++ makes the page of `place`, or of its source `second` of the second edition."""
        return [
            str((place.directory_of(second) if second else place.work_directory) / t.EMITTED_WEB_NAME),
            str(self.cache / "error_handler_web.o"), str(self.cache / "nanovg_web.o"),
            *([str(self.cache / t.ENGINE_ARCHIVE)] if second else []),
            f"-I{self.include}", f"-I{self.include}/nanovg", "-std=c++17", "-finput-charset=UTF-8", "--bind",
            "-s", "USE_GLFW=3", "-s", "FULL_ES2=1", "-s", "WASM=1", "-s", "ALLOW_MEMORY_GROWTH=1",
            "-s", "EXPORTED_RUNTIME_METHODS=['ccall','cwrap']",
            *packing, "-o", str((place.results_of(second) if second else place.web_directory) / "index.js"),
        ]


def _link_or_copy(source, target):
    try:
        os.link(source, target)
    except OSError:
        shutil.copy2(source, target)
