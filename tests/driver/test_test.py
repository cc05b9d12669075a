"""The word சோதி of the command பொழில்: which tests run, what is told of them, and how the command ends."""

import os
import signal
from pathlib import Path

import pytest

from support.compiler import REPOSITORY
from support.process import Session, run
from support.workplace import NOBODY

OK, FAILURE, WRONG_USE, FAILED = 0, 1, 2, 3
MARK = "ஃ பொழில் 2\n"


class Project:
    """A project with real g++; its files by their paths."""

    def __init__(self, place):
        self.place = place

    def write(self, name, text):
        path = self.place.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(MARK + text)
        return path

    def test(self, *arguments, word="சோதி", **settings):
        settings = {"cwd": self.place.folder, "env": self.place.env, **settings}
        return run([self.place.compiler.parent / "பொழில்", word, *arguments], **settings)


@pytest.fixture
def project(real_place):
    return Project(real_place)


def summary(passed, failed):
    return f"சோதனைகள்: {passed + failed}, வெற்றி: {passed}, தோல்வி: {failed}\n"


FAILING = '''எண்ணிக்கை = 0

செயல் ஒன்று_கூட்டு():
    பொது எண்ணிக்கை
    எண்ணிக்கை கூட்டிசேர் 1
    திரும்பு எண்ணிக்கை

செயல் சோதி_கூட்டு():
    அச்சிடு("தெரியாதது")
    சமம்_உறுதி(ஒன்று_கூட்டு(), 1)

செயல் சோதி_புதிதாகத்_தொடங்கும்():
    சமம்_உறுதி(ஒன்று_கூட்டு(), 1)

செயல் வகு_சுழியால்(அ):
    திரும்பு அ வகு 0

செயல் சோதி_பிழை():
    அச்சிடு("தெரிவது")
    வகு_சுழியால்(1)

செயல் சோதி_பிடிபடாதது():
    முயற்சி:
        உறுதிசெய்(பொய், "வராத பிழை")
    பிடி:
        அச்சிடு("பிடிபட்டது")

செயல் சோதி_முடிவில்லாதது():
    சுற்று மெய்:
        விடு

செயல் சோதி_வேறுபாடு():
    சமம்_உறுதி([1, {"அ": "1"}, "ஒரு\\nவரி"], [1, {"அ": 1, "ஆ": 2}, "ஒரு\\nசொல்"])

செயல் சோதி_கடைசி():
    உறுதிசெய்(மெய், "வராது")

செயல் துணை_சோதி_():
    உறுதிசெய்(பொய், "இது சோதனை அல்ல")
'''


def test_failures_are_told_and_the_next_test_runs(project):
    project.write("சோதனைகள்/அ.பொழில்", FAILING)
    result = project.test("--வினாடி", "1")
    assert (result.status, result.err) == (FAILURE, "")
    out = result.out
    assert out.endswith(summary(3, 4)) and "\033" not in out
    parts = {part.split("\n", 1)[0]: part for part in out.replace("✅", "❌").split("❌ ")}
    assert "தெரியாதது" not in out
    fault = parts["சோதி_பிழை"]
    assert "தெரிவது" in fault and "பொழி-603" in fault and "வரி 17" in fault
    assert "'வகு_சுழியால்' அழைக்கப்பட்ட இடம்" in fault
    assert "சோதனை தோற்றது: வராத பிழை" in parts["சோதி_பிடிபடாதது"]
    assert "பிடிபட்டது" not in out
    assert "1 வினாடிக்குப் பின் நிறுத்தப்பட்டது" in parts["சோதி_முடிவில்லாதது"]
    for lines in (['[1]["அ"]:', 'பெற்றது: "1" (உரை)', "வேண்டியது: 1 (எண்)"],
                  ['[1]["ஆ"]:', "பெற்றது: இல்லை", "வேண்டியது: 2"],
                  ["[2] வரி 2:", 'பெற்றது: "வரி"', 'வேண்டியது: "சொல்"']):
        told = [line.strip() for line in parts["சோதி_வேறுபாடு"].splitlines()]
        at = told.index(lines[0])
        assert told[at:at + 3] == lines
    assert "வரி 1:" not in parts["சோதி_வேறுபாடு"].split("சமமில்லை")[1]
    assert out.index("சோதி_வேறுபாடு") < out.index("சோதி_கடைசி")


def test_a_long_text_is_told_where_it_differs(project):
    letters = "அ" * 40
    project.write("சோதனைகள்/அ.பொழில்", f'செயல் சோதி_நீளம்():\n    சமம்_உறுதி("{letters}க", "{letters}ங")\n')
    out = project.test().out
    assert "எழுத்து 41:" in out
    assert 'பெற்றது: …"அஅஅஅஅஅஅஅஅஅக"' in out and 'வேண்டியது: …"அஅஅஅஅஅஅஅஅஅங"' in out


def test_decimals_that_print_alike_are_told_so(project):
    project.write("சோதனைகள்/அ.பொழில்", "செயல் சோதி_தசமம்():\n    சமம்_உறுதி(0.1 கூட்டு 0.2, 0.3)\n")
    assert "அச்சில் ஒன்றுபோல" in project.test().out


def test_only_ten_differences_are_told(project):
    project.write("சோதனைகள்/அ.பொழில்", "செயல் சோதி_பல():\n    சமம்_உறுதி(வரம்பு(2, 21), வரம்பு(1, 20))\n")
    out = project.test().out
    assert out.count("பெற்றது:") == 10 and "மேலும் வேறுபடும் இடங்கள்: 9." in out


def test_names_are_filtered(project):
    project.write("சோதனைகள்/அ.பொழில்", FAILING)
    result = project.test("--name", "கூட்டு", word="test")
    assert (result.status, result.err) == (OK, "")
    assert result.out.endswith("✅ " + summary(1, 0)) and "சோதி_பிழை" not in result.out
    nothing = project.test("--பெயர்", "இல்லாதது")
    assert nothing.status == WRONG_USE and "'இல்லாதது'" in nothing.err


def test_faulty_file_leaves_the_others_to_run(project):
    project.write("சோதனைகள்/அ.பொழில்", "செயல் சோதி_அ():\n    காணாதது()\n")
    project.write("சோதனைகள்/ஆ.பொழில்", "செயல் சோதி_ஆ():\n    உறுதிசெய்(மெய், \"\")\n")
    project.write("சோதனைகள்/இ.பொழில்", "செயல் துணை():\n    விடு\n")
    project.write("சோதனைகள்/ஈ.பொழில்", "செயல் சோதி_ஈ(அ):\n    விடு\n")
    (project.place.folder / "சோதனைகள்/உ.பொழில்").write_text("அச்சிடு(1)\n")
    project.write("சோதனைகள்/துணை/ஊ.பொழில்", "காணாதது()\n")
    result = project.test()
    assert (result.status, result.err) == (FAILURE, "")
    assert result.out.endswith(summary(1, 0))
    assert "பொழி-552" in result.out and "பொழி-693" in result.out
    assert "'சோதி_' என்று தொடங்கும் பெயருள்ள செயல் இந்தக் கோப்பில் இல்லை" in result.out
    assert "இரண்டாம் பதிப்பில் மட்டுமே" in result.out
    assert "ஊ.பொழில்" not in result.out


@pytest.mark.parametrize("arguments, words", [
    ([], "'சோதனைகள்' என்ற அடைவு இல்லை"), (["காணாதது"], "'காணாதது'"), (["--என்ன"], "'--என்ன'"),
    (["--வினாடி", "0"], "86400"), (["--seconds"], "86400"), (["--name"], "'--name'")])
def test_wrong_use_is_told(project, arguments, words):
    result = project.test(*arguments)
    assert (result.status, result.out) == (WRONG_USE, "")
    assert words in result.err


def test_empty_folder_and_files_without_tests_are_wrong_use(project):
    (project.place.folder / "சோதனைகள்").mkdir()
    assert project.test().status == WRONG_USE
    project.write("சோதனைகள்/அ.பொழில்", "அ = 1\n")
    result = project.test()
    assert result.status == WRONG_USE and "சோதனை எதுவும் இல்லை" in result.err


@pytest.mark.skipif(os.geteuid() != 0, reason="only root can become somebody else")
@pytest.mark.parametrize("locked", ["சோதனைகள்", "சோதனைகள்/அ.பொழில்"])
def test_what_cannot_be_read_is_told(project, locked):
    project.write("சோதனைகள்/அ.பொழில்", "செயல் சோதி_அ():\n    விடு\n")
    (project.place.folder / locked).chmod(0)
    result = project.test(user=NOBODY)
    assert result.status == FAILED
    assert "படிக்க முடியவில்லை" in result.out + result.err


def test_missing_compiler_is_told(project):
    project.write("சோதனைகள்/அ.பொழில்", "செயல் சோதி_அ():\n    விடு\n")
    result = project.test(env={**project.place.env, "PATH": "/nowhere"})
    assert result.status == FAILED and "g++" in result.err


def test_endless_output_and_input_are_stopped(project):
    project.write("சோதனைகள்/அ.பொழில்", '''செயல் சோதி_அச்சு():
    சுற்று மெய்:
        அச்சிடு("மீண்டும் மீண்டும்")

செயல் சோதி_உள்ளீடு():
    சமம்_உறுதி(உள்ளீடு("?"), "")
''')
    result = project.test()
    assert result.status == FAILURE and result.out.endswith(summary(1, 1))
    assert "எல்லையில்லாமல் அச்சிடுகிறது" in result.out and len(result.out) < 200_000


def test_check_knows_tests_by_their_folder(project):
    text = 'செயல் சோதி_அ():\n    உறுதிசெய்(மெய், "")\n'
    project.write("சோதனைகள்/அ.பொழில்", text)
    assert project.test("சோதனைகள்", word="check").status == OK
    project.write("வெளியே.பொழில்", text)
    result = project.test("வெளியே.பொழில்", word="check")
    assert result.status == FAILURE and "பொழில் சோதி" in result.out


def test_names_are_free_elsewhere_and_in_tests(project):
    text = '''செயல் உறுதிசெய்(அ, ஆ):
    திரும்பு அ கூட்டு ஆ

செயல் சோதி_சொந்தம்():
    சமம்_உறுதி(உறுதிசெய்(1, 2), 3)
'''
    project.write("சோதனைகள்/அ.பொழில்", text)
    assert project.test().status == OK
    project.write("நிரல்.பொழில்", text.split("\n\n")[0] + "\n\nஅச்சிடு(உறுதிசெய்(1, 2))\n")
    result = run([project.place.compiler, "நிரல்.பொழில்"], cwd=project.place.folder, env=project.place.env)
    assert result.out.endswith("3\n")


def test_modules_pass_their_tests(project):
    result = project.test(REPOSITORY / "தொகுப்புகள்")
    assert (result.status, result.err) == (OK, ""), result.out
    for module in ("பட்டியல்", "உரை", "கணிதம்", "அகராதி"):
        assert f"{module}_சோதி.பொழில்" in result.out


def test_a_program_without_the_chosen_test_fails(project):
    """As when the file is built anew, with other tests, while its tests run."""
    project.write("சோதனைகள்/அ_சோதி.பொழில்", "செயல் சோதி_அ():\n    உறுதிசெய்(மெய், \"\")\n")
    project.test()
    built, = project.place.folder.glob(".நிலையற்ற/**/பொழில்_செயலி")
    env = {**project.place.env, "POZHIL_TEST": "சோதி_இல்லாதது"}
    result = run([built], cwd=project.place.folder, env=env)
    assert result.status == FAILURE and "இந்தச் சோதனை இல்லை" in result.out + result.err
    assert run([built], cwd=project.place.folder, env=project.place.env).status == OK


def test_nothing_of_a_run_stays_beside_the_program(project):
    project.write("சோதனைகள்/அ_சோதி.பொழில்", "செயல் சோதி_அ():\n    உறுதிசெய்(மெய், \"\")\n")
    project.test()
    first = sorted(project.place.folder.glob(".நிலையற்ற/**/*"))
    assert not list(project.place.folder.glob(".நிலையற்ற/சோதி.*"))
    project.test()
    assert sorted(project.place.folder.glob(".நிலையற்ற/**/*")) == first


# Several at a time

MEETING = """செயல் சந்தி(நான், அவன்):
    கோப்பு_எழுது(நான், "")
    சுற்று இல்லை கோப்பு_உள்ளதா(அவன்):
        விடு

செயல் சோதி_அ():
    சந்தி("அ.txt", "ஆ.txt")

செயல் சோதி_ஆ():
    சந்தி("ஆ.txt", "அ.txt")
"""


@pytest.mark.skipif(os.cpu_count() < 2, reason="on one processor tests run one after the other")
def test_tests_run_at_the_same_time(project):
    project.write("சோதனைகள்/அ.பொழில்", MEETING)
    result = project.test()
    assert (result.status, result.out.splitlines()[-1] + "\n") == (OK, "✅ " + summary(2, 0))


# What fails outside of tests, and what stands beside them

def test_fault_of_the_files_own_statements_fails_each_of_its_tests(project):
    project.write("கருவி.பொழில்", "செயல் இரட்டி(எ):\n    திரும்பு எ பெருக்கு 2\n")
    project.write("சோதனைகள்/அ.பொழில்", 'நூஇறக்கி "../கருவி"\nஆ = [1]\nஅச்சிடு("முன்னே")\nஇ = ஆ[5]\n\n'
                  "செயல் சோதி_ஒன்று():\n    விடு\n\nசெயல் சோதி_இரண்டு():\n    விடு\n")
    project.write("சோதனைகள்/ஆ.பொழில்", 'நூஇறக்கி "../கருவி"\nநூஇறக்கி "அருகில்/துணை"\n\n'
                  "செயல் சோதி_மூன்று():\n    சமம்_உறுதி(இரட்டி(துணை()), 14)\n")
    project.write("சோதனைகள்/அருகில்/துணை.பொழில்", "செயல் துணை():\n    திரும்பு 7\n")
    result = project.test()
    assert (result.status, result.err) == (FAILURE, "")
    assert result.out.endswith(summary(1, 2))
    assert result.out.count("முன்னே\n") == 2 and result.out.count("வரி 5\n") == 2
    assert "✅ சோதி_மூன்று" in result.out


def test_names_may_hold_anything(project):
    names = ["இரு சொல்.பொழில்", "வரி\nமாறும்.பொழில்", "-தொடக்கம்.பொழில்", "'\"$(ls);*.பொழில்", "கொக்கிகள்ௌ😀.பொழில்"]
    for name in names:
        project.write(f"ஒரு திட்டம்\n/சோதனைகள்/{name}", "செயல் சோதி_இது():\n    சமம்_உறுதி(1, 1)\n")
    result = project.test("ஒரு திட்டம்\n")
    assert (result.status, result.err) == (OK, "")
    assert result.out.endswith("✅ " + summary(len(names), 0))
    assert all(name in result.out for name in names)


def test_links_are_followed_but_not_round(project):
    project.write("சோதனைகள்/அ.பொழில்", "செயல் சோதி_அ():\n    விடு\n")
    tests = project.place.folder / "சோதனைகள்"
    (tests / "மேல்").symlink_to("..")
    (tests / "அடைவு.பொழில்").symlink_to("..")
    (tests / "ஆ.பொழில்").symlink_to("அ.பொழில்")
    (project.place.folder / "வேறு").symlink_to(".")
    result = project.test(".", "வேறு", "சோதனைகள்", "சோதனைகள்/அ.பொழில்")
    assert (result.status, result.err) == (OK, "")
    assert result.out.endswith("✅ " + summary(1, 0))


def test_broken_links_and_pipes_are_told_and_the_others_run(project):
    project.write("சோதனைகள்/நல்லது.பொழில்", "செயல் சோதி_அ():\n    விடு\n")
    tests = project.place.folder / "சோதனைகள்"
    (tests / "உடைந்தது.பொழில்").symlink_to("எங்கும்_இல்லை")
    (tests / "தான்.பொழில்").symlink_to("தான்.பொழில்")
    os.mkfifo(tests / "குழாய்.பொழில்")
    result = project.test(timeout=30)
    assert result.status == FAILED and not result.timed_out
    assert result.out.count("இந்தக் கோப்பைப் படிக்க முடியவில்லை") == 3
    assert "✅ சோதி_அ" in result.out


def test_folder_that_is_gone_is_told(project):
    project.write("சோதனைகள்/அ.பொழில்", "செயல் சோதி_அ():\n    விடு\n")
    shell = ["/bin/sh", "-c", 'mkdir போனது && cd போனது && rmdir ../போனது && exec "$0" "$@"',
             project.place.compiler.parent / "பொழில்", "test", project.place.folder]
    result = run(shell, cwd=project.place.folder, env=project.place.env)
    assert (result.status, result.err.count("இப்போதைய அடைவு இப்போது இல்லை")) == (FAILED, 1)


# Ctrl+C

def running_in(folder):
    """The numbers of the processes that run in a folder, or what was built there."""
    found = []
    for process in Path("/proc").iterdir():
        try:
            if process.name.isdigit() and os.readlink(process / "cwd").startswith(str(folder)):
                found.append(process.name)
        except OSError:
            pass  # it ended meanwhile
    return found


ENDLESS = """செயல் சோதி_முடிவில்லாதது():
    கோப்பு_எழுது("தொடங்கியது.txt", "")
    சுற்று மெய்:
        விடு
"""


@pytest.mark.parametrize("number", [signal.SIGINT, signal.SIGTERM, signal.SIGHUP])
def test_what_is_broken_off_leaves_nothing_running(project, number):
    folder = project.place.folder
    project.write("சோதனைகள்/அ.பொழில்", ENDLESS)
    command = [project.place.compiler.parent / "பொழில்", "test", "--seconds", "60"]
    with Session(command, cwd=folder, env=project.place.env) as session:
        session.wait_until((folder / "தொடங்கியது.txt").exists)
        session.process.send_signal(number)
        assert session.wait_for_end() in (-number, 128 + number)
        session.wait_until(lambda: running_in(folder) == [], 5)
    assert [path.name for path in folder.glob(".நிலையற்ற/சோதி.*")] == []


def test_what_is_broken_off_while_it_is_built_leaves_nothing_running(place, tools):
    tools.stands_in_for("g++", "exec /bin/sleep 60")
    folder = place.folder
    Project(place).write("சோதனைகள்/அ.பொழில்", ENDLESS)
    with Session([place.compiler.parent / "பொழில்", "test"], cwd=folder, env=place.env) as session:
        session.wait_until(lambda: tools.calls("g++"))
        session.process.send_signal(signal.SIGINT)
        session.wait_for_end()
        session.wait_until(lambda: running_in(folder) == [], 5)
