"""What the tests of the driver stand on."""

import shutil
import tempfile
from pathlib import Path

import pytest

from support import texts as t
from support.compiler import compiler_path
from support.server import reserved_port
from support.toolchain import Toolchain
from support.workplace import Installation, Workplace


@pytest.fixture(scope="session")
def compiler():
    """The compiler in a complete installation, since a missing object would be made there by the recording g++."""
    path = compiler_path()
    made = path.parent / t.CACHE_DIRECTORY / t.CACHED_OBJECT
    assert made.is_file(), f"the installation isn't complete: no {made}"
    return path


@pytest.fixture
def scratch():
    """An empty folder that other users may look into."""
    folder = Path(tempfile.mkdtemp(prefix="pozhil-")).resolve()
    folder.chmod(0o755)
    yield folder
    for locked in folder.rglob(""):
        locked.chmod(0o755)
    shutil.rmtree(folder)


@pytest.fixture
def tools(scratch):
    """The recording g++ of `place`."""
    return Toolchain(scratch / "tools")


@pytest.fixture
def place(scratch, compiler, tools):
    """A working directory whose g++ is the recording one."""
    return Workplace(scratch / "work", scratch, compiler, tools)


@pytest.fixture
def command(place):
    """The command பொழில், which stands beside the compiler."""
    return place.compiler.parent / "பொழில்"


@pytest.fixture
def real_place(scratch, compiler):
    """A working directory with the machine's own g++."""
    return Workplace(scratch / "work", scratch, compiler)


@pytest.fixture
def installation(scratch, compiler):
    """A copy of the installation that a test may change."""
    return Installation(scratch / "installed", compiler)


@pytest.fixture
def installed_place(scratch, installation, tools):
    """A working directory for the copy of the installation, with the recording g++."""
    return Workplace(scratch / "work", scratch, installation.compiler, tools)


@pytest.fixture
def port():
    """The server's port, for this test alone."""
    with reserved_port():
        yield
