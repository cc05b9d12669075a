"""The server of web applications, over bare sockets: compressed answers, parts of files, and who is answered at all."""

import gzip
import os
import socket
import time
from urllib.parse import quote

import pytest

from support import texts as t
from support.server import PORT

pytestmark = pytest.mark.usefixtures("port")

SOURCE = "அ.பொழில்"
APPLICATION = "வலைதளம் தளம்(\n    தலைமை()\n    குமரி()\n    வரையறை()\n)\n"
SECOND_EDITION = "ஃ பொழில் 2\n"
VIDEO = bytes(range(256)) * 1000


@pytest.fixture
def web_place(installed_place, tools):
    tools.builds_pages()
    (installed_place.folder / "assets").mkdir()
    installed_place.write("assets/கடல்.mp4", VIDEO)
    installed_place.write("இரகசியம்.txt", "இரகசியம்")
    return installed_place


class Serving:
    """A session that serves an application, with these variables."""

    def __init__(self, place, application=APPLICATION, **variables):
        place.env.update(variables)
        self.session = place.session(place.write(SOURCE, application))

    def __enter__(self):
        self.session.__enter__()
        self.session.wait_for_output(t.WEB_OPENING)
        return self.session

    def __exit__(self, *failure):
        self.session.__exit__(*failure)


def send(request, host="127.0.0.1", patience=10):
    """All that comes back for these bytes; the server may take a moment to begin."""
    end = time.monotonic() + patience
    while True:
        try:
            connection = socket.create_connection((host, PORT), timeout=10)
            break
        except ConnectionRefusedError:
            if time.monotonic() > end:
                raise
            time.sleep(0.05)
    with connection:
        connection.sendall(request)
        answer = b""
        while piece := connection.recv(65536):
            answer += piece
    return answer


def ask(path, *headers, method="GET"):
    """Status, headers by name, and body."""
    lines = [f"{method} {path} HTTP/1.1", *headers, "", ""]
    head, _, body = send("\r\n".join(lines).encode()).partition(b"\r\n\r\n")
    status, *rest = head.decode().split("\r\n")
    return int(status.split()[1]), dict(line.split(": ", 1) for line in rest), body


MOVIE = "/assets/%E0%AE%95%E0%AE%9F%E0%AE%B2%E0%AF%8D.mp4"
OWN = f"Host: 127.0.0.1:{PORT}"


def test_without_variables_and_headers_answers_are_what_they_always_were(web_place):
    with Serving(web_place):
        assert send(b"GET /version HTTP/1.1\r\nHost: foreign.example\r\nOrigin: null\r\n\r\n") == (
            b"HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\nContent-Length: 1\r\nConnection: close\r\n"
            b"Access-Control-Allow-Origin: *\r\n\r\n2")
        assert send(b"GET /index.js HTTP/1.1\r\n\r\n") == (
            b"HTTP/1.1 200 OK\r\nContent-Type: application/javascript\r\nContent-Length: 3\r\nConnection: close\r\n"
            b"Access-Control-Allow-Origin: *\r\n\r\njs\n")
        assert ask("/%E0%AE%87%E0%AE%B0%E0%AE%95%E0%AE%9A%E0%AE%BF%E0%AE%AF%E0%AE%AE%E0%AF%8D.txt")[0] == 200


@pytest.mark.parametrize("path", ["/", "/version", "/index.wasm", MOVIE, "/இல்லை"])
def test_head_is_what_get_begins_with(web_place, path):
    with Serving(web_place) as session:
        session.wait_until(lambda: list(web_place.web_directory.glob("*.data.gz")))
        whole = send(f"GET {path} HTTP/1.1\r\n\r\n".encode())
        head = send(f"HEAD {path} HTTP/1.1\r\n\r\n".encode())
    assert head == whole[:whole.index(b"\r\n\r\n") + 4]


def test_page_and_results_go_compressed_to_whoever_takes_it(web_place):
    with Serving(web_place) as session:
        session.wait_until(lambda: list(web_place.web_directory.glob("*.data.gz")))
        for path in ("/", "/index.js", "/index.wasm", "/index.data"):
            status, headers, body = ask(path, "Accept-Encoding: gzip, deflate")
            plain = ask(path)
            assert (status, headers["Content-Encoding"], headers["Vary"]) == (200, "gzip", "Accept-Encoding")
            assert headers["Content-Type"] == plain[1]["Content-Type"]
            assert int(headers["Content-Length"]) == len(body)
            assert gzip.decompress(body) == plain[2]
            assert "Content-Encoding" not in plain[1]
        assert "Content-Encoding" not in ask(MOVIE, "Accept-Encoding: gzip")[1]
        assert "Content-Encoding" not in ask("/", "Accept-Encoding: gzip;q=0")[1]


def test_copies_are_those_of_the_newest_build(web_place, tools):
    with Serving(web_place) as session:
        session.wait_until(lambda: list(web_place.web_directory.glob("*.data.gz")))
        tools.stands_in_for("em++", 'for kind in js wasm data; do echo newer $kind > "${out%.js}.$kind"; done')
        web_place.change_until(session, SOURCE, APPLICATION + "\n")
        session.wait_for_output("✅")
        session.wait_until(_is_compressed)
        assert gzip.decompress(ask("/index.js", "Accept-Encoding: gzip")[2]) == b"newer js\n"


def _is_compressed():
    return "Content-Encoding" in ask("/index.js", "Accept-Encoding: gzip")[1]


def test_without_gzip_all_goes_as_it_is(web_place, tools):
    tools.stands_in_for("gzip", "echo half > index.js.gz; exit 1")
    with Serving(web_place):
        for path in ("/", "/index.js"):
            assert "Content-Encoding" not in ask(path, "Accept-Encoding: gzip")[1]


@pytest.mark.parametrize("asked, first, last", [
    ("0-", 0, 255_999), ("0-0", 0, 0), ("1000-1999", 1000, 1999), ("-100", 255_900, 255_999),
    ("255999-999999999999999999999999", 255_999, 255_999),
])
def test_part_of_a_video(web_place, asked, first, last):
    with Serving(web_place):
        status, headers, body = ask(MOVIE, f"Range: bytes={asked}")
    assert (status, headers["Content-Range"]) == (206, f"bytes {first}-{last}/256000")
    assert headers["Content-Type"] == "video/mp4"
    assert body == VIDEO[first:last + 1]


@pytest.mark.parametrize("asked", ["256000-", "300000-400000", "-0"])
def test_part_that_is_not_there(web_place, asked):
    with Serving(web_place):
        status, headers, body = ask(MOVIE, f"Range: bytes={asked}")
    assert (status, headers["Content-Range"], body) == (416, "bytes */256000", b"")


@pytest.mark.parametrize("asked", [
    "9-5", "0-1,3-4", "0-,1-,2-,3-", "-", "a-b", "--5", "0x10-", ",".join("0-" for _ in range(500)), "5", "=",
])
def test_parts_that_make_no_sense_are_the_whole(web_place, asked):
    with Serving(web_place):
        status, _, body = ask(MOVIE, f"Range: bytes={asked}")
    assert (status, body) == (200, VIDEO)


def test_flood_of_headers_hurts_nobody(web_place):
    with Serving(web_place):
        ask("/version")
        for flood in ("X: y\r\n" * 20_000, "X: " + "y" * 200_000 + "\r\n", ":\r\n" * 50_000,
                      "Range: bytes=0-1\r\n" * 10_000, "Accept-Encoding: " + "gzip," * 30_000 + "\r\n"):
            answer = _send_all(f"GET /version HTTP/1.1\r\n{flood}\r\n".encode())
            assert answer.endswith(b"\r\n\r\n2") or answer == b""
        assert ask("/version")[0] == 200


def _send_all(request):
    """The server may have closed before it took all; what counts is that it goes on."""
    try:
        return send(request)
    except (ConnectionResetError, BrokenPipeError):
        return b""


def _listeners():
    """Addresses on which this machine listens at the port, as the kernel writes them."""
    with open("/proc/net/tcp", encoding="ascii") as table:
        rows = [line.split() for line in table.readlines()[1:]]
    return {row[1].split(":")[0] for row in rows if row[3] == "0A" and row[1].endswith(f":{PORT:04X}")}


@pytest.mark.parametrize("variables, address", [
    ({}, "00000000"), ({"POZHIL_HOST": ""}, "00000000"), ({"POZHIL_HOST": "0.0.0.0"}, "00000000"),
    ({"POZHIL_HOST": "127.0.0.1"}, "0100007F"), ({"POZHIL_HOST": "localhost"}, "0100007F"),
    ({"POZHIL_HOST": "127.0.0.2"}, "0200007F"), ({"POZHIL_STRICT": "1"}, "0100007F"),
    ({"POZHIL_STRICT": "1", "POZHIL_HOST": "0.0.0.0"}, "0100007F"), ({"POZHIL_STRICT": "0"}, "00000000"),
])
def test_server_listens_where_it_is_told(web_place, variables, address):
    with Serving(web_place, **variables) as session:
        session.wait_until(_listeners)
        assert _listeners() == {address}


@pytest.mark.parametrize("variables, place, address", [
    ({}, "6931", "127.0.0.1"), ({"POZHIL_HOST": "127.0.0.1"}, "127.0.0.1:6931", "127.0.0.1"),
    ({"POZHIL_STRICT": "1"}, "127.0.0.1:6931", "127.0.0.1"),
    ({"POZHIL_HOST": "0.0.0.0"}, "0.0.0.0:6931", "127.0.0.1"), ({"POZHIL_HOST": "127.0.0.2"}, "127.0.0.2:6931", "127.0.0.2"),
])
def test_start_tells_the_address(web_place, variables, place, address):
    with Serving(web_place, **variables) as session:
        out = session.stdout.decode()
    assert f"உள்ளூர் சேவையகம் {place}-ல் கெத்தாக இயங்குகிறது..." in out
    assert f"👉 \033[1;36mhttp://{address}:6931\033[0m\n" in out


@pytest.mark.parametrize("host", ["example.invalid", "300.1.1.1", "127.0.0.1:80", "::1", "127.0.0.1 ", "1"])
def test_host_that_is_no_address_is_refused_before_anything_is_built(web_place, tools, host):
    web_place.env["POZHIL_HOST"] = host
    result = web_place.run(web_place.write(SOURCE, APPLICATION))
    assert result.status == 1
    assert result.err == f"பிழை: POZHIL_HOST-இல் உள்ள '{host}' முகவரி அல்ல! 127.0.0.1 போல எண்களால் எழுதவும்.\n"
    assert not tools.calls("em++")


def test_address_of_another_machine_is_told(web_place):
    with Serving(web_place, POZHIL_HOST="203.0.113.7") as session:
        session.wait_for_errors("🚨 203.0.113.7:6931 போர்ட்டில் சர்வரைத் தொடங்க முடியவில்லை!\n")


def test_strict_server_answers_its_own_pages(web_place):
    with Serving(web_place, POZHIL_STRICT="1"):
        for path in ("/", "/index.html", "/version", "/version/fault", "/index.js", "/index.wasm", "/index.data", MOVIE):
            for host in (OWN, "Host: localhost:6931", "Host: 127.0.0.1"):
                status, headers, _ = ask(path, host)
                assert status == 200, (path, host)
                assert "Access-Control-Allow-Origin" not in headers
                assert headers["Cross-Origin-Resource-Policy"] == "same-origin"
        assert ask(MOVIE, OWN, f"Origin: http://127.0.0.1:{PORT}", "Range: bytes=1-2")[0] == 206


@pytest.mark.parametrize("headers", [
    [], ["Host: foreign.example"], ["Host: 127.0.0.1.foreign.example:6931"], ["Host: "], ["Host: 192.168.1.5:6931"],
    [OWN, OWN], [OWN, "Host: foreign.example"], [OWN, "Origin: null"], [OWN, "Origin: http://foreign.example"],
    [OWN, "Origin: http://127.0.0.1:8080"], [OWN, "Origin: https://127.0.0.1:6931"],
    [OWN, f"Origin: http://127.0.0.1:{PORT}", "Origin: http://foreign.example"],
])
def test_strict_server_refuses_other_pages(web_place, headers):
    with Serving(web_place, POZHIL_STRICT="1"):
        for path in ("/", "/version", "/index.js"):
            status, _, body = ask(path, *headers)
            assert (status, body.decode()) == (403, "403 - அனுமதி இல்லை")


def test_strict_server_has_the_files_of_the_application_alone(web_place):
    os.symlink("../இரகசியம்.txt", web_place.folder / "assets/இணைப்பு.txt")
    secret = "%E0%AE%87%E0%AE%B0%E0%AE%95%E0%AE%9A%E0%AE%BF%E0%AE%AF%E0%AE%AE%E0%AF%8D.txt"
    link = "%E0%AE%87%E0%AE%A3%E0%AF%88%E0%AE%AA%E0%AF%8D%E0%AE%AA%E0%AF%81.txt"
    with Serving(web_place, POZHIL_STRICT="1"):
        for path in (f"/{secret}", f"/assets/../{secret}", f"/assets/%2e%2e/{secret}", f"/assets/..%2f{secret}",
                     f"/%2E%2E/{web_place.folder.name}/{secret}", "/../../etc/passwd", "//etc/passwd",
                     "/etc/passwd", f"/assets/{link}",
                     "/%E0%AE%85.%E0%AE%AA%E0%AF%8A%E0%AE%B4%E0%AE%BF%E0%AE%B2%E0%AF%8D", "/assets/", "/assets",
                     f"{MOVIE}/../../{secret}", f"{MOVIE}%00.png", "/.tools", f"/{t.WORK_DIRECTORY}/", "*"):
            status, _, body = ask(path, OWN)
            assert (status, body.decode()) == (404, "404 - பக்கம் காணவில்லை"), path


def test_strict_server_cannot_be_asked_without_a_whole_head(web_place):
    """A header that was cut off isn't one that was never sent."""
    with Serving(web_place, POZHIL_STRICT="1"):
        assert b" 403 " in send(b"GET / HTTP/1.1\r\nHost: 127.0.0.1")
        assert b" 403 " in send(b"GET / HTTP/1.1\r\n\r\nHost: 127.0.0.1\r\n\r\n")
        assert b" 403 " in send(b"GET / HTTP/1.1\r\nHost: 127.0.0.1\0\r\n\r\n")


# The second edition.


def second_application(image, icon="சின்னம்.svg"):
    body = f'நெடுவரிசை(படம்(பாதை: "{image}"), படம்(பாதை: "படங்கள்/உள்.jpg"), படம்(பாதை: "வெளியே.png"))'
    header = f'சின்னம்: "{icon}", பின்னணிகாணொளி: "பின்னணி.mp4"'
    return f"{SECOND_EDITION}வலைதளம் தளம்(\n    தலைமை({header})\n    குமரி({body})\n    வரையறை()\n)\n"


OWN_FILES = ["ஒன்று.png", "படங்கள்/உள்.jpg", "சின்னம்.svg", "பின்னணி.mp4", "assets/கடல்.mp4", "assets/உள்/எழுத்து.ttf"]
OTHER_FILES = ["இரண்டு.png", "படங்கள்/வேறு.jpg", "assets.txt", "இரகசியம்.txt", ".இரகசியம்", "index.txt"]


@pytest.fixture
def second_place(web_place, scratch):
    """A working directory with files of the application, those of others, and links that lead from the one to the other."""
    for folder in ("படங்கள்", "assets/உள்"):
        (web_place.folder / folder).mkdir()
    for name in (*OWN_FILES, *OTHER_FILES, "../வெளியில்.txt"):
        web_place.write(name, name)
    links = {"assets/இணைப்பு.txt": "../இரகசியம்.txt", "assets/அடைவு": "..", "வெளியே.png": scratch / "வெளியில்.txt",
             "assets/இங்கே.mp4": "கடல்.mp4"}
    for name, target in links.items():
        os.symlink(target, web_place.folder / name)
    return web_place


def status_of(path, *headers):
    return ask(quote(path, safe="/%*"), *headers)[0]


def unserved_paths(place):
    """What lies in the working directory and isn't the application's, and ways to write paths that lead there."""
    text = f"{t.WORK_DIRECTORY}/{SOURCE}/{t.EMITTED_WEB_NAME}"
    assert (place.folder / text).is_file()
    return [
        *(f"/{name}" for name in OTHER_FILES), f"/{SOURCE}", f"/{text}", f"/{t.WORK_DIRECTORY}", f"/{t.WORK_DIRECTORY}/",
        f"/{t.WEB_DIRECTORY}/{SOURCE}/index.js", f"/{t.WEB_DIRECTORY}", "/index.js.gz", "/assets", "/assets/", "/படங்கள்/", "/.", "/..",
        "/assets/இணைப்பு.txt", "/assets/அடைவு/இரகசியம்.txt", "/வெளியே.png/..",
        "/assets/../இரகசியம்.txt", "/assets/%2e%2e/இரகசியம்.txt", "/assets/..%2fஇரகசியம்.txt", "/assets/%2e%2e%2fஇரகசியம்.txt",
        "/assets/./கடல்.mp4", "//assets/கடல்.mp4", "/assets/%252e%252e/இரகசியம்.txt",
        "/../வெளியில்.txt", "/assets/../../வெளியில்.txt", f"/%2e%2e/{place.folder.name}/assets/கடல்.mp4",
        "/assets/..\\இரகசியம்.txt", "/assets%2f..%2fஇரகசியம்.txt", "/ஒன்று.png/../இரண்டு.png", "/ஒன்று.png%00.txt",
        "//etc/passwd", "/../../../../etc/passwd", "/etc/passwd", "/proc/self/environ", "*", "assets/கடல்.mp4",
    ]


@pytest.mark.parametrize("variables", [{}, {"POZHIL_STRICT": "1"}])
def test_server_of_the_second_edition_has_the_files_of_the_application_alone(second_place, variables):
    with Serving(second_place, second_application("ஒன்று.png"), **variables) as session:
        session.wait_until(lambda: list(second_place.results_of(SOURCE).glob("*.gz")))
        for path in ("/", "/index.html", "/version", "/version/fault", "/index.js", "/index.wasm", "/index.data"):
            assert status_of(path, OWN) == 200, path
        # What the program itself names is in index.data, wherever it leads.
        for name in (*OWN_FILES, "assets/இங்கே.mp4", "வெளியே.png"):
            assert status_of(f"/{name}", OWN) == 200, name
        for path in unserved_paths(second_place):
            status, _, body = ask(quote(path, safe="/%*"), OWN)
            assert (status, body.decode()) == (404, "404 - பக்கம் காணவில்லை"), path


def test_server_of_the_first_edition_has_any_file(second_place):
    with Serving(second_place, second_application("ஒன்று.png").removeprefix(SECOND_EDITION)):
        for path in (*OWN_FILES, *OTHER_FILES, SOURCE, f"{t.WORK_DIRECTORY}/{t.EMITTED_WEB_NAME}", "assets/இணைப்பு.txt",
                     f"{t.WEB_DIRECTORY}/index.js", "வெளியே.png"):
            assert status_of(f"/{path}") == 200, path


@pytest.mark.parametrize("headers", [[], ["Host: foreign.example"], [OWN, "Origin: http://foreign.example"]])
def test_server_of_the_second_edition_answers_whoever_asks_unless_it_is_strict(second_place, headers):
    with Serving(second_place, second_application("ஒன்று.png")):
        status, answered, _ = ask("/version", *headers)
        assert (status, answered["Access-Control-Allow-Origin"]) == (200, "*")
    with Serving(second_place, second_application("ஒன்று.png"), POZHIL_STRICT="1"):
        assert [status_of(path, *headers) for path in ("/", "/version", MOVIE)] == [403] * 3


def test_files_of_the_newest_version_are_served(second_place):
    with Serving(second_place, second_application("ஒன்று.png")) as session:
        assert (status_of("/ஒன்று.png"), status_of("/இரண்டு.png")) == (200, 404)
        second_place.change_until(session, SOURCE, second_application("இரண்டு.png"))
        session.wait_for_output(t.WEB_UPDATED)
        assert (status_of("/ஒன்று.png"), status_of("/இரண்டு.png")) == (404, 200)


def test_icon_outside_of_the_working_directory_is_in_the_page_but_not_served(second_place):
    with Serving(second_place, second_application("ஒன்று.png", icon="../வெளியில்.txt")):
        assert b"data:image/png;base64," in ask("/")[2]
        assert status_of("/../வெளியில்.txt") == 404
