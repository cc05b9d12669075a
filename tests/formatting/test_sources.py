"""The programs of the repository are in the one style of the language, but for those whose layout is what they are about."""

import re
import subprocess

import pytest

from support.compiler import REPOSITORY, compiler_path

FOLDERS = ["எடுத்துக்காட்டுகள்", "தொகுப்புகள்", "benchmarks/programs", "tests/language", "tests/surprises", "tests/mistakes"]

# Blanks at the end of what is expected would go.
BLANK_AT_END = "an expected line ends in a blank"
LAYOUT = "its layout is what it is about"
UNLIKE = {
    "tests/language/இலக்கணம்_கூற்றுகள்/கடைசி_வரி_முடியாவிட்டாலும்_தொகுதி_முடிகிறது.பொழில்": LAYOUT,
    "tests/language/உள்ளமை_செயல்கள்/உள்ளீடு.பொழில்": BLANK_AT_END,
    "tests/language/உள்ளமை_செயல்கள்/என்னவகை.பொழில்": BLANK_AT_END,
    "tests/language/உள்ளமை_செயல்கள்/கணிதம்.பொழில்": BLANK_AT_END,
    "tests/language/உள்ளமை_செயல்கள்/நீளம்.பொழில்": BLANK_AT_END,
    "tests/language/குறிப்புகள்/சிறப்பு_இடைவெளி.பொழில்": LAYOUT,
    "tests/language/கூற்றுகள்/உறுப்புச்_சுற்று.பொழில்": LAYOUT,
    "tests/language/கூற்றுகள்/திரும்புதல்.பொழில்": BLANK_AT_END,
    "tests/language/சட்டகம்/தொடர்ந்து_அச்சிடுதல்.பொழில்": BLANK_AT_END,
    "tests/language/சட்டகம்/பிரிவுகளின்_வரிசை.பொழில்": BLANK_AT_END,
    "tests/language/சட்டகம்/மிகச்சிறிய_நிரல்.பொழில்": BLANK_AT_END,
    "tests/language/சட்டகம்/வெற்று_நிரல்.பொழில்": BLANK_AT_END,
    "tests/language/சொல்_பகுப்பாய்வு/கடைசி_வரி_முடியாத_கோப்பு.பொழில்": LAYOUT,
    "tests/language/சொல்_பகுப்பாய்வு/குறிப்பின்_முடிவில்_வெட்டிய_எழுத்து.பொழில்": LAYOUT,
    "tests/language/சொல்_பகுப்பாய்வு/குறிப்பு_மட்டும்_உள்ள_வரி_பிளாக்கை_மூடாது.பொழில்": LAYOUT,
    "tests/language/சொல்_பகுப்பாய்வு/குறிப்புகள்_மட்டும்.பொழில்": LAYOUT,
    "tests/language/சொல்_பகுப்பாய்வு/தொடக்கத்தில்_பைட்டு_வரிசைக்_குறி.பொழில்": LAYOUT,
    "tests/language/சொல்_பகுப்பாய்வு/பிளாக்குகளின்_உள்தள்ளல்_வேறுபடலாம்.பொழில்": LAYOUT,
    "tests/language/சொல்_பகுப்பாய்வு/வரித்_தொடக்கக்_குறிப்பு_உள்தள்ளலை_அளக்காது.பொழில்": LAYOUT,
    "tests/language/சொல்_பகுப்பாய்வு/விண்டோஸ்_வரி_முடிவுகள்.பொழில்": LAYOUT,
    "tests/language/சொல்_பகுப்பாய்வு/வெற்று_வரி_பிளாக்கை_மூடாது.பொழில்": LAYOUT,
    "tests/language/தொகுப்புகள்/உரை_எண்ணாக்கம்.பொழில்": BLANK_AT_END,
}


# In the documents. What has faults, such as most programs of the list of errors, is passed over.
PROGRAM = re.compile(r"^```பொழில்[^\n]*\n(.*?)^```$", re.MULTILINE | re.DOTALL)


@pytest.fixture
def check():
    """Runs --check on folders."""
    def check_folders(*folders, cwd=REPOSITORY):
        tool = compiler_path().parent / "பொழில்"
        return subprocess.run([tool, "வடிவமை", "--சரிபார்", *folders], cwd=cwd, capture_output=True, check=False)
    return check_folders


def test_sources_are_in_the_style(check):
    unlike = set(check(*FOLDERS).stdout.decode().splitlines())
    assert unlike - set(UNLIKE) == set(), "format these: பொழில் வடிவமை <file>"
    assert set(UNLIKE) - unlike == set(), "these needn't be left out any more"


def test_published_programs_have_no_faults(check):
    result = check(*FOLDERS[:3])
    assert (result.returncode, result.stdout, result.stderr) == (0, b"", b"")


def test_programs_of_the_documents_are_in_the_style(check, tmp_path):
    count = 0
    for page in (REPOSITORY / "docs").rglob("*.md"):
        text = page.read_text(encoding="utf-8")
        for program in PROGRAM.finditer(text):
            line = text.count("\n", 0, program.start()) + 1
            (tmp_path / f"{page.stem}:{line}.பொழில்").write_text(program[1], encoding="utf-8")
            count += 1
    assert count > 100, "the programs were found"
    assert check(".", cwd=tmp_path).stdout.decode().splitlines() == []
