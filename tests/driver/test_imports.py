"""Where imported files are looked for, and which file a fault in them is told of."""

import pytest

from support import texts as t
from support.box import split_compiler_box
from support.workplace import HELLO

SOURCE = "நிரல்.பொழில்"
MODULE = "துணை.பொழில்"
IMPORT = 'நூஇறக்கி "துணை"\n'


def put(folder, name, contents):
    file = folder / name
    file.parent.mkdir(parents=True, exist_ok=True)
    file.write_text(contents, encoding="utf-8")


def prints(text):
    return f'அச்சிடு("{text}")\n'


def printed(place, *arguments):
    """The texts that the emitted program prints, in order."""
    result = place.run(*arguments)
    assert (result.status, result.err) == (0, "")
    return [line.split('u8"')[1].split('"')[0] for line in place.own_emitted.split("\n") if 'u8"' in line]


@pytest.fixture
def module_places(scratch, installation, installed_place):
    """The three folders that are searched, in their order."""
    installed_place.write(SOURCE, IMPORT)
    installed_place.env["POZHIL_MODULES"] = str(scratch / "என் தொகுப்புகள்")
    return [installed_place.folder, scratch / "என் தொகுப்புகள்", installation.folder / t.MODULE_DIRECTORY]


def test_the_first_place_that_has_the_file_wins(installed_place, module_places):
    for folder in reversed(module_places):
        put(folder, MODULE, prints(folder.name))
        assert printed(installed_place, SOURCE) == [folder.name]


def test_imports_of_modules_are_searched_from_the_start(installed_place, module_places):
    here, mine, installed = module_places
    put(installed, MODULE, 'நூஇறக்கி "அடைவு/உள்"\n' + prints("துணை"))
    put(installed, "அடைவு/உள்.பொழில்", prints("நிறுவியது"))
    assert printed(installed_place, SOURCE) == ["நிறுவியது", "துணை"]
    put(mine, "அடைவு/உள்.பொழில்", prints("என்னுடையது"))
    assert printed(installed_place, SOURCE) == ["என்னுடையது", "துணை"]
    put(here, "அடைவு/உள்.பொழில்", prints("இங்கே"))
    assert printed(installed_place, SOURCE) == ["இங்கே", "துணை"]


def test_the_installation_is_searched_without_any_setting(installation, installed_place):
    put(installation.folder / t.MODULE_DIRECTORY, MODULE, prints("நிறுவியது"))
    assert printed(installed_place, installed_place.write(SOURCE, IMPORT)) == ["நிறுவியது"]


def test_the_folder_of_the_source_is_not_searched(place):
    put(place.folder, f"அடைவு/{SOURCE}", IMPORT)
    put(place.folder, f"அடைவு/{MODULE}", prints("உள்"))
    _, report = split_compiler_box(place.run(f"அடைவு/{SOURCE}").out)
    assert (report.code, report.file, report.line) == (t.CODE_PREFIX + "281", f"அடைவு/{SOURCE}", 1)
    put(place.folder, MODULE, prints("வெளி"))
    assert printed(place, f"அடைவு/{SOURCE}") == ["வெளி"]


def test_a_grammar_fault_in_a_module_names_no_file(place):
    put(place.folder, MODULE, HELLO + "அ 5\n")
    result = place.compile(IMPORT + HELLO)
    _, report = split_compiler_box(result.out)
    assert (result.status, result.err) == (1, "")
    assert (report.code, report.file, report.line) == (t.CODE_PREFIX + "208", "", 2)
    assert report.source == t.NO_SOURCE_TEXT
    assert not place.emitted_path.exists()


def test_a_spelling_fault_in_a_module_names_the_path_that_was_found(installed_place, module_places):
    put(module_places[1], MODULE, HELLO + "அச்சிடூ\n")
    _, report = split_compiler_box(installed_place.run(SOURCE).out)
    assert (report.code, report.file, report.line) == (t.CODE_PREFIX + "113", str(module_places[1] / MODULE), 2)
    assert report.source == "அச்சிடூ"


def test_a_fault_of_meaning_in_a_module_names_the_program(place):
    put(place.folder, MODULE, HELLO + "எண்(1, 2)\n")
    _, report = split_compiler_box(place.compile(IMPORT + prints("இரண்டாம் வரி")).out)
    assert (report.code, report.file, report.line) == (t.CODE_PREFIX + "331", SOURCE, 2)
    assert report.source == prints("இரண்டாம் வரி").rstrip("\n")
