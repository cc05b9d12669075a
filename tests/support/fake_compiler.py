#!/usr/bin/python3
"""A compiler for the tests of the test runner. Its language has one command a line:

print <text>, read, emit <text>, complain <text>, error <code> <line>, crash <code> <line>, hang, web.

With the marker of the second edition `error` and `crash`, which then take a third word, its code there, have its boxes,
and the exit status is that of the program.
"""

import os
import subprocess
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))

from support import texts as t  # noqa: E402
from support.catalogue import DESCRIPTIONS, SECOND_DESCRIPTIONS  # noqa: E402
from support.console import animation_line, failed_build_line  # noqa: E402


def box(dim, behind_remedy, category, code, file, line, source):
    inner_rule = f"{dim}  {t.RULE}{t.RESET}\n"
    return (
        f"\n{t.RED}{t.RULE}{t.RESET}\n"
        f"{t.BOX_TITLE}{t.GOLD}{code}{t.RESET}{t.BOX_TITLE_MIDDLE}{t.RED}{category}{t.RESET}\n"
        f"{t.RED}{t.RULE}{t.RESET}\n"
        f"  {t.BLUE}{t.BOX_FILE}{t.RESET}: {file}\n"
        f"  {t.BLUE}{t.BOX_PLACE}{t.RESET}{t.BOX_LINE}{line}\n"
        f"{inner_rule}"
        f"{t.CYAN}{t.BOX_FOUND}{t.RESET}\n"
        f"    {line:02} |  {source}\n"
        f"{t.BOX_MARGIN}{t.GOLD}{t.BOX_MARKER}{t.RESET}\n"
        f"{t.RED}{t.BOX_DESCRIPTION}{DESCRIPTIONS[code]}{t.RESET}\n"
        f"{inner_rule}"
        f"{t.GREEN}{t.BOX_REMEDY}{t.RESET}\n"
        f"     ...\n"
        f"{inner_rule}{behind_remedy}"
        f'  {t.GOLD}{t.BOX_SAYING}"..."{t.RESET}\n'
        f"{inner_rule}\n"
    )


def second_box(category, code, file, line, source):
    inner_rule = f"{t.DIM}  {t.RULE}{t.RESET}\n"
    return (
        f"\n{t.RED}{t.RULE}{t.RESET}\n"
        f"{t.BOX_TITLE}{t.GOLD}{code}{t.RESET}{t.BOX_TITLE_MIDDLE}{t.RED}{category}{t.RESET}\n"
        f"{t.RED}{t.RULE}{t.RESET}\n"
        f"  {t.BLUE}{t.BOX_FILE}{t.RESET}: {file}\n"
        f"  {t.BLUE}{t.BOX_PLACE}{t.RESET}{t.BOX_LINE}{line}\n"
        f"{inner_rule}"
        f"{t.CYAN}{t.BOX_FOUND}{t.RESET}\n"
        f"    {line:02} |  {source}\n"
        f"       |  {t.GOLD}▲▲▲{t.RESET}\n"
        f"{t.RED}       {t.SECOND_BOX_CORNER}{SECOND_DESCRIPTIONS[code]}{t.RESET}\n"
        f"{inner_rule}"
        f"{t.GREEN}{t.BOX_REMEDY}{t.RESET}\n"
        f"     ...\n"
        f"{inner_rule}\n"
    )


def main(path):
    with open(path, encoding="utf-8") as source:
        lines = source.read().splitlines()
    second = lines[:1] == [t.SECOND_EDITION_MARKER]
    commands = [line.split(" ", 1) for line in lines if not line.startswith("ஃ")]
    errors = [rest[0].split() for command, *rest in commands if command == "error"]
    for code, line, *second_code in errors if second else errors[:1]:
        if second:
            print(end=second_box(t.SCANNER_CATEGORY, t.CODE_PREFIX + second_code[0], path, int(line), "..."))
        else:
            print(end=box(t.DIM, "", t.SCANNER_CATEGORY, t.CODE_PREFIX + code, path, int(line), "..."))
    if errors:
        return 1
    os.makedirs(t.WORK_DIRECTORY, exist_ok=True)
    web = ["web"] in commands
    name = t.EMITTED_WEB_NAME if web else t.EMITTED_NAME
    with open(f"{t.WORK_DIRECTORY}/{name}", "w", encoding="utf-8") as emitted:
        emitted.write("in the runtime\n#ifdef WEB\nin the fence\n#endif\n")
        emitted.writelines(f"    {rest[0]}\n" for command, *rest in commands if command == "emit")
        emitted.write("void init_globals() {\n}\n")
    if web:
        subprocess.run(["em++"])
        time.sleep(600)
    print(end="banner\n" + animation_line(path), flush=True)
    if subprocess.run(["g++", "--version"], stdout=subprocess.DEVNULL).returncode:
        print(end=failed_build_line(), file=sys.stderr)
        return 0
    return run(commands, path, second)


def run(commands, path, second):
    for command, *rest in commands:
        if command == "print":
            print(rest[0] if rest else "", flush=True)
        elif command == "read":
            print(end=input(), flush=True)
        elif command == "complain":
            print(rest[0], file=sys.stderr, flush=True)
        elif command == "hang":
            child = subprocess.Popen(["sleep", "600"])
            print(f"child {child.pid}", file=sys.stderr, flush=True)
            child.wait()
        elif command == "crash":
            code, line, *second_code = rest[0].split()
            if second:
                print(end=second_box(t.RUNTIME_CATEGORY, t.CODE_PREFIX + second_code[0], path, int(line), "..."))
                return 1
            print(end=box(t.DIM_GREY, "\n", t.RUNTIME_CATEGORY, t.CODE_PREFIX + code, path, int(line), "..."))
            return 0
    return 0


sys.exit(main(sys.argv[1]))
