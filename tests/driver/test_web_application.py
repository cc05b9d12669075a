"""What an application's own declaration puts into its page and onto the command line of em++."""

import pytest

from support import texts as t
from support.server import get
from support.web_console import BEFORE_BUILD

pytestmark = pytest.mark.usefixtures("port")

SOURCE = "அ.பொழில்"
MISSING_VIDEO = "\n⚠️ எச்சரிக்கை: இல்லை.mp4 என்ற கோப்பு காணப்படவில்லை! \n"


def application(header="", body=""):
    return f"வலைதளம் தளம்(\n    தலைமை({header})\n    குமரி({body})\n    வரையறை()\n)\n"


@pytest.fixture
def web_place(installed_place, tools):
    tools.builds_pages()
    return installed_place


def serving(place, source):
    return place.session(place.write(SOURCE, source))


def packing(place, installation, tools):
    """The arguments of the only call that stand where packed files are named."""
    (call,) = tools.calls("em++")
    whole = installation.web_call(place)
    at = whole.index("-o")
    assert call[:at] + call[-2:] == whole
    return call[at:-2]


@pytest.mark.parametrize("flags", [[], [t.FLAG_WATCH]])
def test_application_is_recognised_behind_the_parse(web_place, flags):
    with web_place.session(web_place.write(SOURCE, application()), *flags) as session:
        session.wait_for_output(t.WEB_OPENING)
        assert session.stdout.decode().startswith(BEFORE_BUILD)
        assert get("/version") == (200, "2")


def test_page_takes_title_background_and_icon(web_place):
    web_place.write("சின்னம்.svg", "<svg/>")
    header = 'இணைய_தலைப்பு: "என் தளம்", சின்னம்: "சின்னம்.svg", பின்னணி: "#123456"'
    with serving(web_place, application(header)):
        page = get()[1]
    assert "<title>என் தளம்</title>" in page
    assert "#123456" in page
    assert "data:image/svg+xml;base64,PHN2Zy8+" in page


def test_page_without_values_takes_the_defaults(web_place):
    with serving(web_place, application()):
        page = get()[1]
    assert "<title>பொழில் தளம்</title>" in page
    assert "#ffffff" in page
    assert 'href="file-icon.png"' in page


def test_icon_that_is_not_there_is_no_error(web_place):
    with serving(web_place, application('சின்னம்: "இல்லை.svg"')) as session:
        session.wait_for_output(t.WEB_OPENING)
        assert 'href="file-icon.png"' in get()[1]
        assert session.stderr == b""


def test_change_of_the_title_reaches_the_page(web_place):
    with serving(web_place, application('இணைய_தலைப்பு: "முதல்"')) as session:
        assert "<title>முதல்</title>" in get()[1]
        session.wait_for_output(t.WEB_OPENING)
        web_place.write("புதியது", application('இணைய_தலைப்பு: "இரண்டு"'))
        (web_place.folder / "புதியது").rename(web_place.folder / SOURCE)
        session.wait_until(lambda: "<title>இரண்டு</title>" in get()[1])
        session.wait_until(lambda: get("/version")[1] == "3")


def test_files_are_packed(web_place, installation, tools):
    for name in ("சின்னம்.png", "காணொளி.mp4"):
        web_place.write(name, "")
    header = 'சின்னம்: "சின்னம்.png", பின்னணிகாணொளி: "காணொளி.mp4"'
    with serving(web_place, application(header)) as session:
        session.wait_for_output(t.WEB_OPENING)
        assert session.stderr == b""
    assert packing(web_place, installation, tools) == [
        "--preload-file", "சின்னம்.png", "--preload-file", "காணொளி.mp4"]


def test_files_of_the_widgets_are_packed_once_each_and_in_order(web_place, installation, tools):
    """Not packed on their own: what lies in assets, what is not there, and kinds of files that the page never loads."""
    for name in ("ஆ.jpg", "அ.ttf", "இ.png", "ஈ.svg", "assets/உ.png"):
        (web_place.folder / name).parent.mkdir(exist_ok=True)
        web_place.write(name, "")
    body = """நெடுவரிசை(
        படம்(பாதை: "ஆ.jpg"), பெட்டி(கிடைவரிசை(படம்(பாதை: "ஆ.jpg"))), உரை("அ", உரைபாணி(எழுத்துரு: "அ.ttf")),
        அடிப்பகுதி(அடி_உருப்படி(படம்(பாதை: "இ.png"))), படம்(பாதை: "இல்லை.png"), படம்(பாதை: "ஈ.svg"),
        படம்(பாதை: "assets/உ.png"))"""
    with serving(web_place, application(body=body)) as session:
        session.wait_for_output(t.WEB_OPENING)
        assert session.stderr == b""
    assert packing(web_place, installation, tools) == [
        "--preload-file", "assets", "--preload-file", "அ.ttf", "--preload-file", "ஆ.jpg", "--preload-file", "இ.png"]


def test_missing_video_is_told_and_the_build_goes_on(web_place, installation, tools):
    with serving(web_place, application('பின்னணிகாணொளி: "இல்லை.mp4"')) as session:
        session.wait_for_output(t.WEB_OPENING)
        assert session.stderr.decode() == MISSING_VIDEO
    assert packing(web_place, installation, tools) == []


def test_path_with_shell_text_is_one_word_for_each_blank(web_place, installation, tools):
    name = "a;touch INJECTED;$(touch INJECTED).png"
    web_place.write(name, "")
    with serving(web_place, application(f'சின்னம்: "{name}"')) as session:
        session.wait_for_output(t.WEB_OPENING)
    assert packing(web_place, installation, tools) == ["--preload-file", *name.split()]
    assert not (web_place.folder / "INJECTED").exists()
