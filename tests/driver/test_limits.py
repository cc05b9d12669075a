"""What the system may limit: the compiler gets by with it, or tells what it ran into."""

import pytest

from support import texts as t
from support.process import run
from support.toolchain import PROGRAM_OUTPUT
from support.workplace import HELLO

# Not far from what is refused as too deep.
DEEP = "அச்சிடு(" + "(" * 990 + "1" + ")" * 990 + ")\n"

flat_and_deep = pytest.mark.parametrize("contents", [HELLO, DEEP], ids=["flat", "deep"])


def run_limited(place, limit, *arguments):
    """Runs the compiler under a limit as the shell's ulimit takes it."""
    shell = ["/bin/sh", "-c", f'ulimit {limit} && exec "$0" "$@"', place.compiler, *arguments]
    return run(shell, cwd=place.folder, env=place.env)


@pytest.mark.parametrize("kilobytes", [64, 256, 512])
@flat_and_deep
def test_a_small_stack_bears_every_source_that_is_taken(place, kilobytes, contents):
    result = run_limited(place, f"-s {kilobytes}", place.write("நிரல்.பொழில்", contents))
    assert (result.status, result.err) == (0, "")
    assert result.out.endswith(PROGRAM_OUTPUT)


@flat_and_deep
def test_a_stack_that_is_too_small_for_the_toolchain_still_gives_the_text(place, contents):
    result = run_limited(place, "-s 32", place.write("நிரல்.பொழில்", contents))
    assert result.status == 0
    assert place.own_emitted.endswith("return 0;\n}\n")


def test_without_memory_for_a_stack_of_its_own_the_compiler_does_with_what_there_is(place):
    result = run_limited(place, "-v 60000", place.write("நிரல்.பொழில்", HELLO))
    assert result.status == 0
    assert place.own_emitted.endswith("return 0;\n}\n")


def test_a_limit_of_file_sizes_is_told(place):
    limited = run_limited(place, "-f 16", place.write("நிரல்.பொழில்", HELLO))
    assert (limited.status, limited.err) == (1, t.beyond_the_file_limit(place.emitted_path))


def test_programs_meet_the_limit_of_file_sizes_as_ever(place, tools):
    tools.links("/bin/dd if=/dev/zero of=பெரிது bs=1024 count=4096 2> /dev/null; echo $? > நிலை")
    run_limited(place, "-f 2048", place.write("நிரல்.பொழில்", HELLO))
    assert (place.folder / "நிலை").read_text() == "153\n"  # ended by SIGXFSZ
