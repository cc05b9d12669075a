"""The word வடிவமை of the command பொழில்: which files it sets anew, what it tells, and that it never harms one. The style
itself is told by the unit tests."""

import os

import pytest

from support.process import run
from support.workplace import NOBODY

OK, FAULT, WRONG_USE, FAILED = 0, 1, 2, 3
SECOND = "ஃ பொழில் 2\n"
UNTIDY = 'அச்சிடு(  "வணக்கம்" )\n'
TIDY = 'அச்சிடு("வணக்கம்")\n'
WRONG = "அச்சிடு(  (1 )\n"


@pytest.fixture
def format(place, command):
    """Runs the word in the working directory."""
    def format_with(*arguments, word="வடிவமை", **settings):
        return run([command, word, *arguments], cwd=place.folder, env=place.env, **settings)
    return format_with


def write(place, name, contents):
    path = place.folder / name
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(contents if isinstance(contents, bytes) else contents.encode())
    return path


def names(place):
    return sorted(path.name for path in place.folder.iterdir())


# Which files

@pytest.mark.parametrize("word", ["வடிவமை", "format"])
@pytest.mark.parametrize("marker", ["", SECOND])
def test_file_is_formatted_and_named(place, format, tools, word, marker):
    file = write(place, "அ.பொழில்", marker + UNTIDY)
    result = format("அ.பொழில்", word=word)
    assert (result.status, result.out, result.err) == (OK, "அ.பொழில்\n", "")
    assert file.read_text() == marker + TIDY
    assert names(place) == ["அ.பொழில்"]
    assert tools.calls() == []


def test_what_is_formatted_stays_the_same_file(place, format):
    file = write(place, "அ.பொழில்", TIDY)
    before = file.stat()
    result = format("அ.பொழில்")
    assert (result.status, result.out, result.err) == (OK, "", "")
    assert (file.stat().st_ino, file.stat().st_mtime_ns) == (before.st_ino, before.st_mtime_ns)


def test_folders_are_searched_as_check_does(place, format):
    write(place, "ஆ.பொழில்", UNTIDY)
    write(place, "உள்/அடியில்/அ.பொழில்", UNTIDY)
    hidden = write(place, "உள்/.மறை/இ.பொழில்", UNTIDY)
    note = write(place, "குறிப்பு.txt", UNTIDY)
    (place.folder / "உள்" / "மேல்").symlink_to("..")
    result = format()
    assert (result.status, result.out) == (OK, "ஆ.பொழில்\nஉள்/அடியில்/அ.பொழில்\n")
    assert hidden.read_text() == note.read_text() == UNTIDY
    assert format("குறிப்பு.txt").out == "குறிப்பு.txt\n"


def test_new_projects_are_in_the_style(place, command, format):
    for number, options in enumerate([[], ["--வலை"], ["--பதிப்பு", "1"], ["--பதிப்பு", "1", "--வலை"]]):
        run([command, "new", f"வேலை{number}", *options], cwd=place.folder, env=place.env)
    result = format("--check")
    assert (result.status, result.out, result.err) == (OK, "", "")


def test_import_need_not_be_found(place, format):
    write(place, "அ.பொழில்", 'நூஇறக்கி   "எங்கோ"\n')
    write(place, "ஆ.பொழில்", SECOND + 'நூஇறக்கி   "எங்கோ"\n')
    assert (format().status, format().out) == (OK, "")


def test_fault_of_an_imported_file_is_not_that_of_the_importer(place, format):
    write(place, "அ.பொழில்", 'நூஇறக்கி   "தவறு.பொழில்"\n')
    write(place, "தவறு.பொழில்", WRONG)
    result = format("அ.பொழில்")
    assert (result.status, result.out, result.err) == (OK, "அ.பொழில்\n", "")


# Checking

def test_check_writes_nothing_and_names_what_would_change(place, format):
    untidy = write(place, "அ.பொழில்", UNTIDY)
    write(place, "ஆ.பொழில்", TIDY)
    for option in ["--சரிபார்", "--check"]:
        result = format(option)
        assert (result.status, result.out, result.err) == (FAULT, "அ.பொழில்\n", "")
    assert untidy.read_text() == UNTIDY
    assert format("--check", "ஆ.பொழில்").status == OK


# From input to output

def test_input_goes_to_output(format):
    result = format("-", stdin=UNTIDY.encode())
    assert (result.status, result.out, result.err) == (OK, TIDY, "")


def test_input_with_faults_comes_out_as_it_is(format):
    result = format("-", stdin=b"\xef\xbb\xbf" + WRONG.encode())
    assert result.status == FAULT
    assert result.stdout == b"\xef\xbb\xbf" + WRONG.encode()
    assert "[ பொழி-" in result.err


def test_input_is_checked_without_output_of_it(format):
    assert (format("--check", "-", stdin=UNTIDY.encode()).status, format("--check", "-", stdin=TIDY.encode()).status) == (1, 0)
    assert format("--check", "-", stdin=UNTIDY.encode()).out == "-\n"


def test_output_that_takes_nothing_is_told(format):
    with open("/dev/full", "wb") as full:
        result = format("-", stdin=UNTIDY.encode(), stdout=full)
    assert result.status == FAILED


# What is left as it is

@pytest.mark.parametrize("marker", ["", SECOND])
def test_program_with_faults_is_left_and_told(place, format, marker):
    wrong = write(place, "அ.பொழில்", marker + WRONG)
    right = write(place, "ஆ.பொழில்", UNTIDY)
    result = format()
    assert (result.status, result.out) == (FAULT, "ஆ.பொழில்\n")
    assert "[ பொழி-" in result.err
    assert "'அ.பொழில்': நிரலில் பிழை உள்ளது" in result.err
    assert wrong.read_text() == marker + WRONG
    assert right.read_text() == TIDY


def test_program_wrong_in_meaning_alone_is_formatted(place, format):
    write(place, "அ.பொழில்", SECOND + "அச்சிடு( இல்லாதது )\n")
    result = format()
    assert (result.status, result.out, result.err) == (OK, "அ.பொழில்\n", "")


@pytest.mark.parametrize(
    "contents",
    [
        "எனில் மெய்:\n\tஅவிடு\n".encode(),  # a tab that swallows a letter
        "ஃ ஒன்று\rஅச்சிடு(  1 )\r".encode(),  # lines that end as on old machines, a comment to the compiler
        "அ   = 1\n".encode() + b"\0" + "ஆ  = 2\n".encode(),
    ],
)
def test_what_can_not_be_set_anew_is_left_and_told(place, format, contents):
    file = write(place, "அ.பொழில்", contents)
    result = format()
    assert (result.status, result.out) == (FAULT, "")
    assert "'அ.பொழில்': இடைவெளிகளை மாற்றினால்" in result.err
    assert file.read_bytes() == contents


def test_random_bytes_are_left(place, format):
    contents = bytes(range(256)) * 40
    file = write(place, "அ.பொழில்", contents)
    assert format().status == FAULT
    assert file.read_bytes() == contents


def test_mark_and_line_ends_of_other_systems_go(place, format):
    file = write(place, "அ.பொழில்", b"\xef\xbb\xbf" + UNTIDY.replace("\n", "\r\n").encode() * 2)
    assert format().status == OK
    assert file.read_text() == TIDY * 2


def test_file_that_is_too_large_is_left_and_told(place, command, format):
    large = write(place, "அ.பொழில்", UNTIDY)
    os.truncate(large, 100 * 1024 * 1024)
    write(place, "ஆ.பொழில்", UNTIDY)
    shell = ["/bin/sh", "-c", 'ulimit -v 400000 && exec "$0" "$@"', command, "format"]
    result = run(shell, cwd=place.folder, env=place.env)
    assert (result.status, result.out) == (FAULT, "ஆ.பொழில்\n")
    assert "'அ.பொழில்': 16 MB-ஐ விடப் பெரிய நிரலை வடிவமைக்க முடியாது" in result.err
    assert large.stat().st_size == 100 * 1024 * 1024


def test_input_that_is_too_large_comes_out_as_it_is(format):
    text = UNTIDY.encode() + b"\0" * (16 * 1024 * 1024)
    result = format("-", stdin=text)
    assert result.status == FAULT and result.stdout == text
    assert "'-': 16 MB" in result.err


# Writing

def test_mode_stays(place, format):
    file = write(place, "அ.பொழில்", UNTIDY)
    file.chmod(0o754)
    assert format().status == OK
    assert file.stat().st_mode & 0o7777 == 0o754


def test_owner_stays(place, format):
    file = write(place, "அ.பொழில்", UNTIDY)
    os.chown(file, NOBODY, NOBODY)
    assert format().status == OK
    assert (file.stat().st_uid, file.stat().st_gid) == (NOBODY, NOBODY)


def test_link_stays_one(place, format):
    target = write(place, ".மறை/நிரல்.பொழில்", UNTIDY)
    link = place.folder / "அ.பொழில்"
    link.symlink_to(".மறை/நிரல்.பொழில்")
    assert format().status == OK
    assert link.is_symlink()
    assert target.read_text() == TIDY
    assert [path.name for path in target.parent.iterdir()] == ["நிரல்.பொழில்"]


def test_other_names_of_a_file_lead_to_the_same_one(place, format):
    file = write(place, "அ.பொழில்", UNTIDY)
    other = place.folder / "வேறு.txt"
    other.hardlink_to(file)
    file.chmod(0o640)
    before = file.stat()
    assert (format().status, format().out) == (OK, "")
    assert other.read_text() == TIDY
    assert file.stat().st_ino == other.stat().st_ino == before.st_ino
    assert (file.stat().st_mode, file.stat().st_nlink) == (before.st_mode, 2)
    assert names(place) == ["அ.பொழில்", "வேறு.txt"]


def test_file_with_other_names_that_grows_is_whole(place, format):
    shorter, longer = "அ=1\n" * 3000, "அ = 1\n" * 3000
    file = write(place, "அ.பொழில்", shorter)
    (place.folder / "வேறு.txt").hardlink_to(file)
    assert format().status == OK
    assert file.read_text() == longer


@pytest.mark.skipif(os.geteuid() != 0, reason="only root can become somebody else")
def test_file_of_somebody_else_that_one_may_write_is_formatted(place, format):
    place.folder.chmod(0o777)
    file = write(place, "அ.பொழில்", UNTIDY)
    file.chmod(0o666)
    result = format(user=NOBODY)
    assert (result.status, result.out, result.err) == (OK, "அ.பொழில்\n", "")
    assert file.read_text() == TIDY
    assert (file.stat().st_uid, file.stat().st_mode & 0o777) == (os.geteuid(), 0o666)
    assert names(place) == ["அ.பொழில்"]


def test_locked_files_and_folders_are_told(place, format):
    place.folder.chmod(0o777)
    locked = write(place, "அ.பொழில்", UNTIDY)
    locked.chmod(0o444)
    inside = write(place, "உள்/ஆ.பொழில்", UNTIDY)
    inside.chmod(0o666)
    unread = write(place, "இ.பொழில்", UNTIDY)
    unread.chmod(0)
    result = format(user=NOBODY)
    assert (result.status, result.out) == (FAILED, "")
    assert "'அ.பொழில்': இந்தக் கோப்பில் எழுத முடியவில்லை" in result.err
    assert "'உள்/ஆ.பொழில்': இந்தக் கோப்பில் எழுத முடியவில்லை" in result.err
    assert "'இ.பொழில்': இந்தக் கோப்பைப் படிக்க முடியவில்லை" in result.err
    assert locked.read_text() == inside.read_text() == UNTIDY


@pytest.mark.parametrize("has_other_name", [False, True])
def test_full_disk_leaves_the_file(place, command, has_other_name):
    file = write(place, "அ.பொழில்", UNTIDY * 200)
    if has_other_name:
        (place.folder.parent / "வேறு.பொழில்").hardlink_to(file)
    shell = ["/bin/sh", "-c", 'ulimit -f 1 && exec "$0" "$@"', command, "format", "அ.பொழில்"]
    result = run(shell, cwd=place.folder, env=place.env)
    assert (result.status, result.out) == (FAILED, "")
    assert "'அ.பொழில்': இந்தக் கோப்பில் எழுத முடியவில்லை" in result.err
    assert file.read_text() == UNTIDY * 200
    assert names(place) == ["அ.பொழில்"]


# The command line

@pytest.mark.parametrize(
    "arguments, told",
    [
        (["--இல்லாதது"], "'--இல்லாதது' என்ற தேர்வு இங்கே இல்லை"),
        (["எங்கோ.பொழில்"], "'எங்கோ.பொழில்' என்ற கோப்போ அடைவோ இல்லை"),
        (["-", "அ.பொழில்"], "'-' உடன் கோப்புகளைச் சொல்ல முடியாது"),
        ([], "வடிவமைக்க எந்த .பொழில் கோப்பும் இல்லை"),
    ],
)
def test_wrong_use(place, format, arguments, told):
    result = format(*arguments)
    assert (result.status, result.out) == (WRONG_USE, "")
    assert told in result.err
    assert "பொழில் வடிவமை --உதவி" in result.err


def test_names_of_files_may_look_like_options(place, format):
    write(place, "-", UNTIDY)
    write(place, "--check", UNTIDY)
    result = format("--", "-", "--check")
    assert (result.status, result.out) == (OK, "-\n--check\n")


def test_help(format):
    result = format("--help")
    assert result.status == OK
    assert "பொழில் வடிவமை [--சரிபார்]" in result.out
    assert "pozhil format [--check]" in result.out
