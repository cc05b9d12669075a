"""The compiler's own server: one port for all tests, so only one test at a time may have it."""

import fcntl
import http.client
import tempfile
import time
from contextlib import contextmanager
from pathlib import Path

PORT = 6931
ADDRESS = f"http://127.0.0.1:{PORT}"


@contextmanager
def reserved_port():
    """Waits until no other test runs a server."""
    with open(Path(tempfile.gettempdir()) / "pozhil-port.lock", "w", encoding="utf-8") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        yield


def get(path="/", patience=10):
    """Status and text of what the server answers; it may take a moment to begin."""
    end = time.monotonic() + patience
    while True:
        connection = http.client.HTTPConnection("127.0.0.1", PORT, timeout=10)
        try:
            connection.request("GET", path)
            answer = connection.getresponse()
            return answer.status, answer.read().decode("utf-8", "replace")
        except ConnectionRefusedError:
            if time.monotonic() > end:
                raise
            time.sleep(0.05)
        finally:
            connection.close()
