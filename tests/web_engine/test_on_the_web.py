"""What programs meet on the web that is otherwise on the console: stacks, memory, input, waiting, files, clock."""

import re
from datetime import datetime, timezone
from pathlib import Path
from zoneinfo import ZoneInfo

import pytest
from building import PLAIN, build_group, build_native, build_web, has_web_engine, run_web
from programs import Program

from support import texts as t

pytestmark = [
    pytest.mark.skipif(not has_web_engine(), reason="this installation has no parts for web programs"),
    pytest.mark.xdist_group("one program"),
]

PROGRAMS = {
    "deep": """
செயல் இறங்கு(எ):
    திரும்பு எ சமம் 0 ? 0 : 1 கூட்டு இறங்கு(எ கழி 1)
செயல் அழை(எதை, எ):
    திரும்பு எ சமம் 0 ? 0 : 1 கூட்டு எதை(எதை, எ கழி 1)
அச்சிடு(இறங்கு(1000), " ", அழை(அழை, 500))
ஒவ்வொன்றாக இ இல் வரம்பு(2):
    முயற்சி:
        இறங்கு(குறை 1)
    பிடி:
        அச்சிடு(பிழை)
    முயற்சி:
        அழை(அழை, குறை 1)
    பிடி:
        அச்சிடு(பிழை)
இறங்கு(குறை 1)
""",
    "deep catches": """
எத்தனை = 0
செயல் இறங்கு():
    பொது எத்தனை
    முயற்சி:
        திரும்பு இறங்கு() கூட்டு 1
    பிடி:
        எத்தனை கூட்டிசேர் 1
        அச்சிடு(எத்தனை, பிழை, வரம்பு(5))
        திரும்பு எத்தனை சிறிது 300 ? இறங்கு() : 0
அச்சிடு(இறங்கு() பெரிது 0)
""",
    "input": """
முயற்சி:
    அ = உள்ளீடு("பெயர்? ")
பிடி:
    அச்சிடு(பிழை)
அ = உள்ளீடு()
""",
    "waiting": """
முயற்சி:
    காத்திரு 0.5
பிடி:
    அச்சிடு(பிழை)
முயற்சி:
    காத்திரு குறை 1
பிடி:
    அச்சிடு(பிழை)
காத்திரு 1
""",
    "memory": """
செயல் வளர்():
    ப = []
    சுற்று மெய்:
        ப.சேர்(வரம்பு(100))
ஒவ்வொன்றாக இ இல் வரம்பு(3):
    முயற்சி:
        வளர்()
    பிடி:
        அச்சிடு(பிழை)
முயற்சி:
    அ = வரம்பு(4294967301)
பிடி:
    அச்சிடு(பிழை)
வளர்()
""",
    "far indexes": """
ப = [1, 2, 3]
முயற்சி:
    அச்சிடு(ப[4294967296])
பிடி:
    அச்சிடு(பிழை)
முயற்சி:
    ப[4294967297] = 5
பிடி:
    அச்சிடு(பிழை)
முயற்சி:
    அச்சிடு("அம்மா"[4294967296])
பிடி:
    அச்சிடு(பிழை)
அச்சிடு(ப)
""",
    "files": """
கோப்பு_எழுது("குறிப்பு.txt", "ஒன்று")
கோப்பு_சேர்("குறிப்பு.txt", ", இரண்டு")
அச்சிடு(கோப்பு_படி("குறிப்பு.txt"), " ", கோப்பு_உள்ளதா("குறிப்பு.txt"))
அச்சிடு(கோப்பு_அழி("குறிப்பு.txt"), " ", கோப்பு_உள்ளதா("குறிப்பு.txt"))
முயற்சி:
    கோப்பு_படி("குறிப்பு.txt")
பிடி:
    அச்சிடு(பிழை)
முயற்சி:
    கோப்பு_எழுது("இல்லாத/குறிப்பு.txt", "அ")
பிடி:
    அச்சிடு(பிழை)
""",
    "clock": """
அச்சிடு(முழுவதும்())
அச்சிடு(நேரம்.வினாடிகள்())
""",
    "chance": """
அச்சிடு(சீரற்ற_எண்(1, 1000000000000000))
""",
}
NAMES = list(PROGRAMS)
TOO_DEEP = "'{}' செயல் மிக ஆழமாகத் தன்னைத்தானே அல்லது பிற செயல்களை அழைத்துக்கொண்டே போகிறது; அழைப்புகளுக்கான இடம் தீர்ந்துவிட்டது."
NO_MEMORY = "நினைவகம் (Memory) தீர்ந்துவிட்டது."


@pytest.fixture(scope="module")
def script(tmp_path_factory):
    """All programs as one."""
    folder = tmp_path_factory.mktemp("web")
    emitted = []
    for number, source in enumerate(PROGRAMS.values()):
        program = Program(NAMES[number], f"{t.SECOND_EDITION_MARKER}{source}".encode())
        emitted.append(build_native(program, folder / str(number), runs=False)[0])
    return build_group(emitted, folder, PLAIN, ["-sMAXIMUM_MEMORY=64MB"])


@pytest.fixture
def result_of(script):
    return lambda name, **environment: run_web(script, str(NAMES.index(name)), **environment)


def lines_of(result):
    """What was printed before the box of a fault, and the number of that fault."""
    printed, _, box = result.out.partition("\n\x1b[1;31m---")
    # em++ remarks on want of memory too in a program that isn't optimised.
    remarks = [line for line in result.err.splitlines() if not line.startswith("Cannot enlarge memory")]
    assert not remarks
    return printed.splitlines(), next(iter(re.findall(r"பொழி-(\d+)", box)), None)


def test_calls_nest_deeply_and_too_deep_is_told(result_of):
    result = result_of("deep")
    told = [TOO_DEEP.format("இறங்கு"), TOO_DEEP.format("அழை")]
    assert lines_of(result) == (["1000 500", *told, *told], "640")
    assert result.status == 1


def test_where_the_stack_ends_work_goes_on(result_of):
    lines, fault = lines_of(result_of("deep catches"))
    assert fault is None and lines[-1] == "மெய்"
    assert lines[0] == f"1{TOO_DEEP.format('இறங்கு')}[0, 1, 2, 3, 4]"
    assert len(lines) >= 301


def test_a_page_has_no_input(result_of):
    result = result_of("input")
    assert lines_of(result) == (["பெயர்? இணையப் பக்கத்தில் 'உள்ளீடு' செயலால் எதையும் படிக்க முடியாது."], "675")
    assert result.status == 1


def test_a_page_cannot_wait(result_of):
    lines, fault = lines_of(result_of("waiting"))
    assert "'காத்திரு' சொல்லைப் பயன்படுத்த முடியாது" in lines[0]
    assert lines[1] == "'காத்திரு' சொல்லுக்கு வினாடிகளின் எண்ணிக்கை வேண்டும்; கிடைத்தது -1."
    assert fault == "684"


def test_want_of_memory_can_be_caught_again_and_again(result_of):
    assert lines_of(result_of("memory")) == ([NO_MEMORY] * 4, "641")


def test_indexes_beyond_all_addresses_are_no_others(result_of):
    assert lines_of(result_of("far indexes")) == (
        [
            "பட்டியலில் 4294967296 என்ற இடம் இல்லை; அதன் நீளம் 3.",
            "பட்டியலில் 4294967297 என்ற இடம் இல்லை; அதன் நீளம் 3.",
            "உரையில் 4294967296 என்ற இடம் இல்லை; அதன் நீளம் 3.",
            "[1, 2, 3]",
        ],
        None,
    )


def test_files_live_as_long_as_the_page(result_of):
    assert lines_of(result_of("files")) == (
        [
            "ஒன்று, இரண்டு மெய்",
            "மெய் பொய்",
            "'குறிப்பு.txt' கோப்பைத் திறக்க முடியவில்லை: அப்படி ஒரு கோப்போ அடைவோ இல்லை.",
            "'இல்லாத/குறிப்பு.txt' கோப்பில் எழுத முடியவில்லை: அப்படி ஒரு கோப்போ அடைவோ இல்லை.",
        ],
        None,
    )


@pytest.mark.parametrize("zone", ["Asia/Kolkata", "America/New_York"])
def test_the_clock_is_that_of_the_place(result_of, zone):
    (shown, seconds), _ = lines_of(result_of("clock", TZ=zone))
    moment = datetime.fromtimestamp(float(seconds), timezone.utc).astimezone(ZoneInfo(zone))
    local = datetime.strptime(shown, "%d-%m-%Y %H:%M:%S").replace(tzinfo=ZoneInfo(zone))
    assert abs((moment - local).total_seconds()) <= 2
    assert abs((moment - datetime.now(timezone.utc)).total_seconds()) < 60


def test_each_run_has_its_own_chance(result_of):
    drawn = {result_of("chance").out for _ in range(3)}
    assert len(drawn) == 3
    assert all(1 <= int(number) <= 10**15 for number in drawn)


def test_a_page_goes_on_after_faults(tmp_path):
    source = tmp_path / "page_work.cpp"
    source.write_bytes((Path(__file__).parent / source.name).read_bytes())
    result = run_web(build_web([source], tmp_path, PLAIN))
    assert result.out.splitlines() == [
        "start",
        "told 642 line 2 way 1",
        "புதிது",
        "told 655 line 1 way 0",
        "told 699 line 0 way 0",
        "told 699 line 0 way 0",
        "told 642 line 2 way 1",
        "800 1000",
        *["told 640 line 1 way 12"] * 6,
        "well",
    ]
    assert (result.status, result.err) == (0, "")
