"""Programs print the same and end the same with the web's engine as with that of the console."""

import re
from concurrent.futures import ThreadPoolExecutor

import pytest
from building import OPTIMISED, PLAIN, build_group, build_native, has_web_engine, run_native, run_web
from programs import all_programs, few_programs

GROUP = 40

# Programs, or their folders, that a browser lets end in another way; what they come to there is in test_on_the_web.py.
OTHERWISE = {
    "அழைப்பின்_ஆழம்": "the stack of a browser is smaller",
    "செயல்கள்/அழைப்பின்_ஆழம்": "it nests as deeply",
    "நேரமும்_உள்ளீடும்/முந்தைய_நேரம்": "it waits, which no page can",
}

# How many calls are left out of a long way depends on the stack.
LEFT_OUT = re.compile("இன்னும் [0-9,]+ அழைப்புகள்".encode())

pytestmark = pytest.mark.skipif(not has_web_engine(), reason="this installation has no parts for web programs")


def is_same(name):
    return name not in OTHERWISE and name.partition("/")[0] not in OTHERWISE


def pytest_generate_tests(metafunc):
    if "group" not in metafunc.fixturenames:
        return
    compares_all = metafunc.config.getoption("--all-programs")
    programs = [program for program in (all_programs() if compares_all else few_programs()) if is_same(program.name)]
    groups = [programs[begin : begin + GROUP] for begin in range(0, len(programs), GROUP)]
    metafunc.parametrize("group", groups, ids=lambda group: group[0].name)
    levels = (PLAIN, OPTIMISED) if compares_all else (PLAIN,)
    metafunc.parametrize("optimisation", levels, ids=lambda level: level[0])


def comparable(output):
    return LEFT_OUT.sub(b"", output)


def test_they_print_and_end_the_same(group, optimisation, tmp_path):
    with ThreadPoolExecutor(2) as pool:
        built = list(pool.map(lambda numbered: build_native(numbered[1], tmp_path / str(numbered[0])), enumerate(group)))
    script = build_group([emitted for emitted, _ in built], tmp_path, optimisation)
    differences = []
    for number, (program, (_, executable)) in enumerate(zip(group, built)):
        console = run_native(executable, tmp_path / f"{number}-run")
        web = run_web(script, str(number))
        if (web.status, comparable(web.stdout)) != (console.status, comparable(console.stdout)):
            differences.append(f"{program.name}: console: {console}\nweb: {web}")
    assert not differences, f"{len(differences)} of {len(group)}\n" + "\n".join(differences)
