"""How a compiled program ends when it is run by itself, and what its box shows of the source."""

import signal

from support import texts as t
from support.box import split_program_box
from support.process import run

SOURCE = "நிரல்.பொழில்"
OUT_OF_RANGE = 'அச்சிடு("முன்")\nப = [1]\n' + "\n" * 7 + "அச்சிடு(ப[3])\n"


def run_program(place):
    return run([place.program], cwd=place.folder, env=place.env)


def box_of(result):
    before, report = split_program_box(result.out)
    assert (result.status, result.err, before) == (1, "", "முன்\n")
    return report


def test_a_box_shows_the_source_as_it_stands_when_the_program_runs(real_place):
    real_place.compile(OUT_OF_RANGE)
    report = box_of(run_program(real_place))
    assert (report.code, report.file, report.line) == (t.CODE_PREFIX + "311", SOURCE, 10)
    assert report.source == "அச்சிடு(ப[3])"

    real_place.write(SOURCE, "\n" * 9 + "மாறிய வரி\n")
    assert box_of(run_program(real_place)).source == "மாறிய வரி"

    real_place.write(SOURCE, "குறைந்தது\n")
    assert box_of(run_program(real_place)).source == ""

    (real_place.folder / SOURCE).unlink()
    assert box_of(run_program(real_place)).source == t.NO_SOURCE_FILE


def test_a_program_that_comes_to_its_end_or_is_ended_by_an_exception(real_place):
    real_place.compile('எனில் உள்ளீடு("") சமம் "0":\n    அச்சிடு(1 வகு எண்("0"))\n')
    command = dict(cwd=real_place.folder, env=real_place.env)
    assert run([real_place.program], stdin=b"1\n", **command).status == 0
    ended = run([real_place.program], stdin=b"0\n", **command)
    assert (ended.status, ended.stdout) == (-signal.SIGABRT, b"")
    assert t.DIVISION_BY_ZERO in ended.err
