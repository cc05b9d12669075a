"""Stand-ins for g++ and em++ that record how they were called."""

import re
import struct
from pathlib import Path

_RECORD = """#!/bin/sh
/bin/date +%s.%N >> "$0.started"
{ flock 9; for argument in "$@"; do printf 'a%s\\0' "$argument"; done; printf 'e\\0'; } 9> "$0.lock" >> "$0.calls"
for argument in "$@"; do
    if [ "$previous" = -o ]; then out=$argument; fi
    previous=$argument
done
"""

# The least that is a whole object: a header, and a table of one section at the end.
EMPTY_OBJECT = b"\x7fELF" + bytes(36) + struct.pack("<Q", 64) + bytes(10) + struct.pack("<HHH", 64, 1, 0) + bytes(64)

PROGRAM_OUTPUT = "நிரல் ஓடியது\n"


class Toolchain:
    """A folder for the front of PATH. Its g++ 'links' a small shell script, which is the program that then runs."""

    def __init__(self, folder):
        self.folder = Path(folder)
        self.folder.mkdir(parents=True)
        self.links()
        self.stands_in_for("em++", "exit 1")

    def stands_in_for(self, tool, behaviour):
        """Puts a recording `tool` here that goes on with the shell text `behaviour`; $out is what follows -o."""
        self._write(tool, _RECORD + behaviour + "\n")

    def links(self, program=f"printf '{PROGRAM_OUTPUT}'"):
        """From now on g++ succeeds, and the linked program is the shell text `program`."""
        self._write("program", "#!/bin/sh\n" + program + "\n")
        (self.folder / "object").write_bytes(EMPTY_OBJECT)
        self.stands_in_for("g++", 'if [ "$1" = -c ]; then made=object; else made=program; fi\n'
                                  '/bin/cp "${0%/*}/$made" "$out"')

    def fails(self, behaviour=""):
        """From now on g++ runs the shell text `behaviour` and fails."""
        self.stands_in_for("g++", behaviour + "\nexit 1")

    def builds_pages(self):
        """From now on em++ succeeds; each of its results holds the name of its kind."""
        self.stands_in_for("em++", 'for kind in js wasm data; do echo $kind > "${out%.js}.$kind"; done')

    def calls(self, tool="g++"):
        """The arguments of each call so far, in order. An object is made beside its place; the number that its name has
        there is left out."""
        record = self.folder / f"{tool}.calls"
        calls, current = [], []
        for word in (record.read_bytes() if record.exists() else b"").split(b"\0")[:-1]:
            if word == b"e":
                calls.append(current)
                current = []
            else:
                current.append(re.sub(r"\.o\.\d+$", ".o", word[1:].decode("utf-8", "surrogateescape")))
        return calls

    def started(self, tool="g++"):
        """When each call began, in seconds of the clock of time.time()."""
        return [float(line) for line in (self.folder / f"{tool}.started").read_text().split()]

    def in_front_of(self, path):
        return f"{self.folder}:{path}"

    def _write(self, name, text):
        file = self.folder / name
        file.write_text(text, encoding="utf-8")
        file.chmod(0o755)
