"""Runs a process in a group of its own, so that nothing it started outlives its test."""

import contextlib
import os
import resource
import signal
import subprocess
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path

# A program that never stops printing is ended by the system instead of filling the disk.
OUTPUT_LIMIT = 256 * 1024 * 1024


@dataclass
class Result:
    """How a process ended and what it wrote, byte for byte."""

    status: int
    stdout: bytes
    stderr: bytes
    timed_out: bool = False

    @property
    def out(self):
        return readable(self.stdout)

    @property
    def err(self):
        return readable(self.stderr)

    def __str__(self):
        return f"exit status {self.status}\n--- stdout\n{self.out}\n--- stderr\n{self.err}"


def readable(data):
    """Text of `data`; a byte that isn't UTF-8 appears as \\x and its two digits."""
    return data.decode("utf-8", "backslashreplace")


def run(command, *, cwd, env, stdin=b"", timeout=60, stdout=None, stderr=None, user=None):
    """Runs `command` to its end and returns its `Result`; `stdout`, `stderr` replace the capture."""
    with tempfile.TemporaryFile() as source, tempfile.TemporaryFile() as out, tempfile.TemporaryFile() as err:
        source.write(stdin)
        source.seek(0)
        process = spawn(command, cwd=cwd, env=env, stdin=source, stdout=stdout or out, stderr=stderr or err, user=user)
        timed_out = False
        try:
            process.wait(timeout)
        except subprocess.TimeoutExpired:
            timed_out = True
        finally:
            end_group(process)
        out.seek(0)
        err.seek(0)
        return Result(process.returncode, out.read(), err.read(), timed_out)


def _prepare_child():
    """Bounds what the child writes; the keys of a terminal end it even where the tests themselves were told to ignore them,
    as in a job in the background."""
    resource.setrlimit(resource.RLIMIT_FSIZE, (OUTPUT_LIMIT, OUTPUT_LIMIT))
    signal.signal(signal.SIGINT, signal.SIG_DFL)
    signal.signal(signal.SIGQUIT, signal.SIG_DFL)


def spawn(command, *, cwd, env, stdin, stdout, stderr, user=None):
    """Starts `command` at the head of a new process group, as `user` where the tests may choose one."""
    identity = {"user": user, "group": user, "extra_groups": []} if user and os.geteuid() == 0 else {}
    return subprocess.Popen(
        command,
        cwd=cwd,
        env=env,
        stdin=stdin,
        stdout=stdout,
        stderr=stderr,
        start_new_session=True,
        preexec_fn=_prepare_child,
        **identity,
    )


def end_group(process):
    """Kills whatever is left of the group that `process` leads and of those below it, and collects its status. It is held
    first, so that it starts nothing new meanwhile."""
    if process.poll() is None:
        process.send_signal(signal.SIGSTOP)
    for group in [process.pid, *_groups_below(process.pid)]:
        try:
            os.killpg(group, signal.SIGKILL)
        except ProcessLookupError:
            pass
    process.wait()


def _groups_below(parent):
    """The groups that are led by what `parent` has started, such as the toolchain of a compiler."""
    groups = []
    for child in _children_of(parent):
        groups += [child, *_groups_below(child)]
    return groups


def _children_of(parent):
    """None of a process, or of a thread of one, that ends meanwhile."""
    children = []
    try:
        for thread in os.listdir(f"/proc/{parent}/task"):
            with contextlib.suppress(FileNotFoundError, ProcessLookupError):
                children += Path(f"/proc/{parent}/task/{thread}/children").read_text().split()
    except (FileNotFoundError, ProcessLookupError):
        pass
    return [int(child) for child in children]


class Session:
    """A process that is still running, and what it has written so far."""

    def __init__(self, command, *, cwd, env, stdin=subprocess.DEVNULL, user=None):
        self._out = tempfile.NamedTemporaryFile()
        self._err = tempfile.NamedTemporaryFile()
        self.process = spawn(command, cwd=cwd, env=env, stdin=stdin, stdout=self._out, stderr=self._err, user=user)

    def __enter__(self):
        return self

    def __exit__(self, *failure):
        end_group(self.process)
        self._out.close()
        self._err.close()

    @property
    def stdout(self):
        with open(self._out.name, "rb") as file:
            return file.read()

    @property
    def stderr(self):
        with open(self._err.name, "rb") as file:
            return file.read()

    def wait_until(self, holds, timeout=20):
        """Returns as soon as `holds()` is true; fails when it doesn't become so in time."""
        if not self.comes_true(holds, timeout):
            raise AssertionError(f"waited in vain; standard output:\n{readable(self.stdout)}\n"
                                 f"standard error:\n{readable(self.stderr)}")

    @staticmethod
    def comes_true(holds, timeout):
        """Whether `holds()` becomes true in time; returns as soon as it does."""
        end = time.monotonic() + timeout
        while not holds():
            if time.monotonic() > end:
                return False
            time.sleep(0.01)
        return True

    def wait_for_output(self, text, timeout=20):
        self.wait_until(lambda: text.encode() in self.stdout, timeout)

    def wait_for_errors(self, text, timeout=20):
        self.wait_until(lambda: text.encode() in self.stderr, timeout)

    def wait_for_end(self, timeout=20):
        """Returns the exit status of the process once it has ended by itself."""
        self.wait_until(lambda: self.process.poll() is not None, timeout)
        return self.process.returncode
