"""The word சரிபார் of the command பொழில்: which sources it checks, what it tells of them, and that it writes nothing."""

import json
import os
import re
import signal
import time

import pytest

from support.process import Session, run
from support.workplace import NOBODY

OK, FAULT, WRONG_USE, FAILED = 0, 1, 2, 3
SECOND = "ஃ பொழில் 2\n"
GOOD = 'அச்சிடு("வணக்கம்")\n'
WRONG = "அச்சிடு([1] கூட்டு [2])\n"
SUMMARY = "சரிபார்த்த கோப்புகள்: {}, பிழைகள்: {}, குறிப்புகள்: {}\n"


@pytest.fixture
def check(place, command):
    """Runs the word in the working directory."""
    def check_with(*arguments, word="சரிபார்", env=(), **settings):
        return run([command, word, *arguments], cwd=place.folder, env={**place.env, **dict(env)}, **settings)
    return check_with


@pytest.fixture
def found(check):
    """What --json tells of the working directory or of these."""
    def found_in(*arguments, status=FAULT):
        result = check("--json", *arguments)
        assert result.status == status
        assert result.out.count("\n") == 1 and result.out.endswith("\n")
        return json.loads(result.out)
    return found_in


def write(place, name, contents):
    path = place.folder / name
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(contents if isinstance(contents, bytes) else contents.encode())


def places(told):
    return [(one["file"], one["code"], one["begin"]["line"]) for one in told["findings"]]


# Which sources

def test_grammar_of_one_function_hides_no_meaning_of_others(place, found):
    write(place, "அ.பொழில்", SECOND + "செயல் அ():\n    திரும்பு இல்லாதது\nசெயல் ஆ(எ:\n    திரும்பு எ\nஅச்சிடு(ஆ(1))\n")
    assert places(found()) == [("அ.பொழில்", "பொழி-551", 3), ("அ.பொழில்", "பொழி-525", 4)]


def test_source_without_faults(place, check, tools):
    write(place, "அ.பொழில்", GOOD)
    write(place, "ஆ.பொழில்", SECOND + GOOD)
    before = sorted(place.folder.rglob("*"))
    result = check()
    assert (result.status, result.err) == (OK, "")
    assert result.out == "✅ " + SUMMARY.format(2, 0, 0)
    assert sorted(place.folder.rglob("*")) == before, "nothing is written"
    assert tools.calls() == [], "nothing is built"


def test_folder_and_all_below_it(place, found):
    write(place, "ஆ.பொழில்", WRONG)
    write(place, "உள்/அடியில்/அ.பொழில்", WRONG)
    write(place, "உள்/.மறை/இ.பொழில்", WRONG)
    write(place, "குறிப்பு.txt", WRONG)
    assert places(found()) == [("ஆ.பொழில்", "பொழி-304", 1), ("உள்/அடியில்/அ.பொழில்", "பொழி-304", 1)]


def test_given_file_is_a_source_whatever_its_name(place, found):
    write(place, "குறிப்பு.txt", WRONG)
    assert places(found("குறிப்பு.txt")) == [("குறிப்பு.txt", "பொழி-304", 1)]


def test_links_are_followed_but_not_round(place, found):
    write(place, "உள்/அ.பொழில்", WRONG)
    (place.folder / "உள்" / "மேல்").symlink_to("..")
    (place.folder / "உள்" / "தான்").symlink_to("தான்")
    (place.folder / "இணைப்பு").symlink_to("உள்")
    told = found()
    assert len(told["findings"]) == 1
    assert told["checked"] == 1


def test_file_that_is_given_twice_is_told_once(place, found):
    write(place, "அ.பொழில்", WRONG)
    assert len(found("அ.பொழில்", "./அ.பொழில்", ".")["findings"]) == 1


def test_folders_may_nest_deeper_than_calls(place, check):
    deep = place.folder / "/".join(["அ"] * 400)
    deep.mkdir(parents=True)
    (deep / "அ.பொழில்").write_text(WRONG)
    assert check().status == FAULT


@pytest.mark.parametrize("marker, fault", [("", "அ = 1 1 1\n"), ("", "\n\n" + WRONG), (SECOND, "அ = 1 1 1\n"),
                                           (SECOND, "அச்சிடு(இல்லாதது)\n")], ids=range(4))
def test_fault_of_an_imported_file_is_told_once(place, found, marker, fault):
    # The first name comes before the imported file, the other after it.
    write(place, "அ.பொழில்", marker + 'நூஇறக்கி "ந"\n')
    write(place, "ப.பொழில்", marker + 'நூஇறக்கி "ந"\n')
    write(place, "ந.பொழில்", marker + fault)
    told = found()
    assert [one["file"] for one in told["findings"]] == ["ந.பொழில்"]
    assert told["checked"] == 3


def test_files_that_import_each_other_are_not_lost(place, found):
    write(place, "அ.பொழில்", SECOND + 'நூஇறக்கி "ஆ"\nஅ = 1 1\n')
    write(place, "ஆ.பொழில்", SECOND + 'நூஇறக்கி "அ"\nஆ = 1 1\n')
    assert sorted(one["file"] for one in found()["findings"]) == ["அ.பொழில்", "ஆ.பொழில்"]


def test_part_of_a_program_need_not_mean_anything_alone(place, check):
    # Alone it would get a hint on a name without a value, whichever of both comes first.
    write(place, "அ_பகுதி.பொழில்", "செயல் சொல்():\n    அச்சிடு(பெயர்)\n")
    write(place, "நிரல்.பொழில்", 'பெயர் = "மலர்"\nநூஇறக்கி "அ_பகுதி"\nசொல்()\n')
    assert check().out == "✅ " + SUMMARY.format(2, 0, 0)


def test_same_file_under_two_editions_keeps_to_its_own(place, found):
    write(place, "அ.பொழில்", "அ = 1.5.2\n")
    write(place, "ஆ.பொழில்", SECOND + "அ = 1.5.2\n")
    first, second = found()["findings"]
    assert (first["code"], first["begin"]["line"]) == ("பொழி-104", 1)
    assert second["code"].startswith("பொழி-5") and second["begin"]["line"] == 2


# What is told

def test_all_faults_of_spelling_and_grammar_are_told(place, found):
    write(place, "அ.பொழில்", "அ = ௧2\nஆ = 1.2.3\nஅ = (1\nஇ = ''\n")
    codes = [code for _, code, _ in places(found())]
    assert {"பொழி-109", "பொழி-104", "பொழி-105"} <= set(codes)


def test_hint_is_no_fault(place, check, found):
    write(place, "அ.பொழில்", "எண் = 1\nஅச்சிடு(எணண்)\n")
    hint, = found(status=OK)["findings"]
    assert (hint["kind"], hint["code"], hint["mend"], hint["begin"]["line"]) == ("hint", None, None, 2)
    result = check()
    assert result.status == OK
    assert result.out.startswith("💡 குறிப்பு: அ.பொழில் வரி 2: ")
    assert result.out.endswith(SUMMARY.format(1, 0, 1))
    assert check(env={"POZHIL_HINTS": "0"}).out == "✅ " + SUMMARY.format(1, 0, 0)


def test_text_is_the_box_of_the_compiler(place, check):
    write(place, "அ.பொழில்", SECOND + "அ = 1 1\n")
    told = check().out
    compiled = place.run("அ.பொழில்").out
    assert told.replace(told.split("\n\n")[-1], "").rstrip() == re.sub("\033\\[[0-9;]*m", "", compiled).rstrip()


def test_colours_are_for_terminals(place, command):
    write(place, "அ.பொழில்", WRONG)
    for settings, coloured in (({}, True), ({"NO_COLOR": "1"}, False), ({"NO_COLOR": ""}, True)):
        shown = in_terminal([command, "check"], place.folder, {**place.env, **settings})
        assert ("\033[" in shown) == coloured
        assert "பொழி-304" in shown


def in_terminal(arguments, folder, env):
    """What a command shows on a terminal of its own."""
    child, terminal = os.forkpty()
    if child == 0:
        os.chdir(folder)
        os.execve(arguments[0], [str(argument) for argument in arguments], env)
    shown = b""
    while True:
        try:
            piece = os.read(terminal, 65536)
        except OSError:
            break
        if not piece:
            break
        shown += piece
    os.close(terminal)
    os.waitpid(child, 0)
    return shown.decode()


def test_columns_count_bytes_and_utf16_units(place, found):
    write(place, "அ.பொழில்", SECOND + 'அ = "😀é" 1\r\n')
    fault, = found()["findings"]
    line = 'அ = "😀é" '
    assert fault["begin"] == {"line": 2, "byte": len(line.encode()) + 1, "utf16": len(line.encode("utf-16-le")) // 2 + 1}
    assert fault["end"]["byte"] == fault["begin"]["byte"] + 1
    assert fault["end"]["utf16"] == fault["begin"]["utf16"] + 1


def test_json_has_all_members_of_a_fault(place, found):
    write(place, "அ.பொழில்", WRONG)
    told = found()
    assert list(told) == ["version", "checked", "findings", "unread"]
    assert (told["version"], told["checked"], told["unread"]) == (1, 1, [])
    fault, = told["findings"]
    assert list(fault) == ["file", "kind", "code", "category", "message", "cause", "mend", "suggestion", "begin", "end"]
    assert (fault["kind"], fault["category"], fault["message"]) == ("fault", "பொருள் பிழை", "தவறான கணிதச் செயல்பாடு.")
    assert list(fault["cause"]) == ["ta", "en"]


def test_json_is_valid_whatever_the_bytes(place, command):
    name = b'\xff"\\\n\x01' + ".பொழில்".encode()
    (place.folder / os.fsdecode(name)).write_bytes(SECOND.encode() + b'\xfe\x00"\\\x1b[31m\xc3\n\xed\xa0\x80 = \xf5\n')
    (place.folder / "அ.பொழில்").write_bytes(b"\xe0\xae = \xff\n" + bytes(range(256)))
    result = run([command, "check", "--json"], cwd=place.folder, env=place.env)
    told = json.loads(result.out)
    assert result.status == FAULT
    assert "\ufffd\"\\\n\x01.பொழில்" in {one["file"] for one in told["findings"]}


def test_sources_of_any_bytes(place, check):
    contents = [b"", b"\n", b"\0" * 1000, bytes(range(256)) * 50, b"\xef\xbb\xbf", b"(" * 100_000, b"\r" * 1000,
                "அ".encode() * 100_000, b'"' * 9999, SECOND.encode() + b"(" * 100_000, SECOND.encode() + b"\xff" * 1000,
                SECOND.encode()[:-1], SECOND.encode() + b"\t\x0b\x0c"]
    for number, text in enumerate(contents):
        write(place, f"{number}.பொழில்", text)
    result = check("--json")
    assert result.status == FAULT
    assert json.loads(result.out)["checked"] == len(contents)


# What can't be checked

def test_file_that_is_not_there(place, check):
    write(place, "அ.பொழில்", WRONG)
    result = check("அ.பொழில்", "இல்லாதது.பொழில்")
    assert (result.status, result.out) == (WRONG_USE, "")
    assert "'இல்லாதது.பொழில்'" in result.err


def test_folder_without_sources(place, check):
    result = check()
    assert (result.status, result.out) == (WRONG_USE, "")
    assert "எந்த .பொழில் கோப்பும் இல்லை" in result.err


def test_unknown_switch(place, check):
    write(place, "அ.பொழில்", GOOD)
    result = check("--வேகமாக")
    assert (result.status, result.out) == (WRONG_USE, "")
    assert "'--வேகமாக' என்ற தேர்வு" in result.err


def test_names_after_two_dashes_are_files(place, check):
    write(place, "--json", GOOD)
    assert check("--", "--json").out == "✅ " + SUMMARY.format(1, 0, 0)


def test_broken_link_pipe_and_device_are_told(place, check):
    write(place, "நல்லது.பொழில்", GOOD)
    (place.folder / "உடைந்தது.பொழில்").symlink_to("எங்கும்_இல்லை")
    os.mkfifo(place.folder / "குழாய்.பொழில்")
    (place.folder / "முடிவிலி.பொழில்").symlink_to("/dev/zero")
    result = check("--json", timeout=20)
    assert result.status == FAILED
    told = json.loads(result.out)
    assert told["checked"] == 1
    assert sorted(one["path"] for one in told["unread"]) == ["உடைந்தது.பொழில்", "குழாய்.பொழில்", "முடிவிலி.பொழில்"]
    assert all(f"'{one['path']}'" in result.err for one in told["unread"])


@pytest.mark.skipif(os.geteuid() != 0, reason="only the superuser can become another user")
def test_what_may_not_be_read_is_told(place, check):
    write(place, "பூட்டியது.பொழில்", WRONG)
    write(place, "பூட்டிய_அடைவு/அ.பொழில்", WRONG)
    write(place, "நல்லது.பொழில்", GOOD)
    (place.folder / "பூட்டியது.பொழில்").chmod(0)
    (place.folder / "பூட்டிய_அடைவு").chmod(0)
    result = check(user=NOBODY)
    assert result.status == FAILED
    assert "'பூட்டியது.பொழில்': இந்தக் கோப்பைப் படிக்க முடியவில்லை" in result.err
    assert "'பூட்டிய_அடைவு': இந்த அடைவைப் படிக்க முடியவில்லை" in result.err
    assert SUMMARY.format(1, 0, 0) in result.out


def test_file_that_fails_while_it_is_read_is_told(place, check):
    write(place, "நல்லது.பொழில்", GOOD)
    result = check("நல்லது.பொழில்", "/proc/self/mem")
    assert result.status == FAILED
    assert result.err == "பிழை: '/proc/self/mem': இந்தக் கோப்பைப் படிக்க முடியவில்லை!\n"
    assert result.out == "🚨 " + SUMMARY.format(1, 0, 0)


@pytest.mark.parametrize("arguments", [[], ["--json"]])
def test_output_that_takes_nothing_is_told(place, check, arguments):
    write(place, "அ.பொழில்", GOOD)
    with open("/dev/full", "wb") as full:
        result = check(*arguments, stdout=full)
    assert (result.status, result.err) == (FAILED, "பிழை: வெளியீட்டில் எழுத முடியவில்லை!\n")


# Watching

@pytest.fixture
def watch(place, command):
    """A session that watches, and waits for its next line of JSON."""
    def watching(*arguments):
        return Session([command, "check", "--json", "--watch", *arguments], cwd=place.folder, env=place.env)
    return watching


def lines(session, count):
    assert session.comes_true(lambda: session.stdout.count(b"\n") >= count, 15), session.stdout.decode()
    return [json.loads(line) for line in session.stdout.decode().splitlines()]


def test_watching_checks_again_on_changes(place, watch):
    write(place, "அ.பொழில்", 'நூஇறக்கி "வேறு/ந"\n' + GOOD)
    with watch("அ.பொழில்") as session:
        assert [one["code"] for one in lines(session, 1)[0]["findings"]] == ["பொழி-281"]
        write(place, "வேறு/ந.பொழில்", GOOD)  # which was looked for
        assert lines(session, 2)[1]["findings"] == []
        place.change("வேறு/ந.பொழில்", WRONG)  # which lies in no folder that is watched
        assert [one["file"] for one in lines(session, 3)[2]["findings"]] == ["வேறு/ந.பொழில்"]
        time.sleep(1.2)
        assert len(lines(session, 3)) == 3, "without a change nothing is checked"


def test_watching_sees_files_and_folders_come_and_go(place, watch):
    write(place, "அ.பொழில்", GOOD)
    with watch() as session:
        lines(session, 1)
        write(place, "உள்/ஆ.பொழில்", WRONG)
        while not lines(session, len(lines(session, 1)))[-1]["findings"]:
            time.sleep(0.1)
        (place.folder / "உள்" / "ஆ.பொழில்").unlink()
        (place.folder / "உள்").rmdir()
        before = len(lines(session, 1))
        assert lines(session, before + 1)[-1]["findings"] == []
        (place.folder / "அ.பொழில்").unlink()
        assert lines(session, before + 2)[-1]["checked"] == 0
        assert session.process.poll() is None


@pytest.mark.parametrize("switch", ["--கண்காணி", "--watch"])
def test_watching_tells_people_as_well_until_it_is_broken_off(place, command, switch):
    write(place, "அ.பொழில்", GOOD)
    with Session([command, "check", switch], cwd=place.folder, env=place.env) as session:
        session.wait_for_output(SUMMARY.format(1, 0, 0))
        place.change("அ.பொழில்", WRONG)
        session.wait_for_output(SUMMARY.format(1, 1, 0))
        assert "பொழி-304" in session.stdout.decode()
        session.process.send_signal(signal.SIGINT)
        assert session.wait_for_end() == -signal.SIGINT
        assert session.stderr == b""


def test_watched_file_may_be_replaced_go_and_come_back(place, watch):
    write(place, "அ.பொழில்", GOOD)
    with watch("அ.பொழில்") as session:
        assert lines(session, 1)[0]["findings"] == []
        write(place, "புதிது", WRONG)
        (place.folder / "புதிது").replace(place.folder / "அ.பொழில்")  # as many editors save
        assert len(lines(session, 2)[1]["findings"]) == 1
        (place.folder / "அ.பொழில்").unlink()
        assert [one["path"] for one in lines(session, 3)[2]["unread"]] == ["அ.பொழில்"]
        write(place, "அ.பொழில்", GOOD)
        assert lines(session, 4)[3]["unread"] == lines(session, 4)[3]["findings"] == []


# The command

@pytest.mark.parametrize("word, switch", [("சரிபார்", "--உதவி"), ("check", "--help")])
def test_help(check, word, switch):
    result = check(switch, word=word)
    assert (result.status, result.err) == (OK, "")
    assert result.out.startswith("பொழில் சரிபார் [--json] [--கண்காணி]")
