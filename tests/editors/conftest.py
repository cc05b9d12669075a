"""Lets the tests of the files for editors use what derives them."""

import sys

from support.compiler import REPOSITORY

sys.path.insert(0, str(REPOSITORY / "editors"))
