"""Builds programs with g++, as the compiler does, and once more with em++ and the web's engine."""

import shutil

from support import texts as t
from support.compiler import compiler_path, plain_environment
from support.process import run
from support.toolchain import Toolchain

TIMEOUT = 120
ARCHIVE = "libpozhil_engine_web.a"

# The one for whoever tries a page out. Published pages are optimised.
PLAIN = ("-O0",)
OPTIMISED = ("-Oz",)

# What a program is linked with whatever it is, on a page or not.
MEMORY = ("-sALLOW_MEMORY_GROWTH=1",)

_DISPATCH = """#include <cstdlib>
int main(int, char** arguments) {{
    int (*const programs[])() = {{{names}}};
    return programs[std::atoi(arguments[1])]();
}}
"""


class BuildError(Exception):
    """What a compiler said that failed."""


def has_web_engine():
    return shutil.which("em++") is not None and (compiler_path().parent / t.CACHE_DIRECTORY / ARCHIVE).is_file()


def build_native(program, folder, runs=True):
    """Compiles the program in a new folder; with `runs` g++ builds it and it is run.

    Returns its emitted text and the executable; raises `BuildError` if there is none.
    """
    if program.files:
        shutil.copytree(program.files, folder)
    else:
        folder.mkdir()
    source = program.name.rpartition("/")[2] + t.SOURCE_ENDING
    (folder / source).write_bytes(program.source)
    environment = plain_environment(folder)
    if not runs:
        toolchain = Toolchain(folder / "tools")
        toolchain.fails()
        environment["PATH"] = toolchain.in_front_of(environment["PATH"])
    result = run([compiler_path(), source], cwd=folder, env=environment, timeout=TIMEOUT)
    built = folder / t.WORK_DIRECTORY / source
    if not (built / (t.PROGRAM_NAME if runs else t.EMITTED_NAME)).is_file():
        raise BuildError(f"{program.name}: {result}")
    return built / t.EMITTED_NAME, built / t.PROGRAM_NAME


def build_web(sources, folder, optimisation, linked_with=()):
    """Compiles C++ sources and links them with the web's engine; returns the script for node."""
    installation = compiler_path().parent
    script = folder / "program.js"
    include = installation / t.INCLUDE_DIRECTORY
    objects = [source.with_suffix(".o") for source in sources]
    for source, compiled in zip(sources, objects):
        call(["em++", "-std=c++17", "-fwasm-exceptions", f"-I{include}", *optimisation, "-c", source, "-o", compiled], folder)
    # Linked without optimisation, which would only take long.
    call(["em++", "-fwasm-exceptions", *objects, installation / t.CACHE_DIRECTORY / ARCHIVE, *MEMORY, "-sEXIT_RUNTIME=1",
           *linked_with, "-o", script], folder)
    return script


def build_group(emitted_texts, folder, optimisation, linked_with=()):
    """Compiles emitted texts as one program, which runs the one whose number it is given."""
    names = [f"program_{number}" for number, _ in enumerate(emitted_texts)]
    parts = [f'namespace {name} {{\n#include "{text}"\n}}\n' for name, text in zip(names, emitted_texts)]
    source = folder / "group.cpp"
    mains = ", ".join(f"{name}::main" for name in names)
    source.write_text('#include "engine/program.h"\n' + "".join(parts) + _DISPATCH.format(names=mains), encoding="utf-8")
    return build_web([source], folder, optimisation, linked_with)


def run_native(executable, folder):
    folder.mkdir()
    return run([executable], cwd=folder, env=plain_environment(folder), timeout=TIMEOUT)


def run_web(script, *arguments, **environment):
    # em++ takes a node that knows fetch for a browser.
    command = ["node", "--no-experimental-fetch", script, *arguments]
    return run(command, cwd=script.parent, env=plain_environment(script.parent, **environment), timeout=TIMEOUT)


def call(command, folder):
    """Runs a compiler; raises `BuildError` if it fails."""
    result = run(command, cwd=folder, env=plain_environment(folder), timeout=TIMEOUT * 5)
    if result.status != 0:
        raise BuildError(str(result))
