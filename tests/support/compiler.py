"""Finds the compiler under test and gives it a plain environment."""

import os
from pathlib import Path

REPOSITORY = Path(__file__).resolve().parents[2]
STAGED = REPOSITORY / "build" / "release" / "பொழில்" / "பொழி"


def compiler_path():
    """The executable named by POZHIL_COMPILER, or else the release build; fails when there is none."""
    path = Path(os.environ.get("POZHIL_COMPILER") or STAGED).absolute()
    if not path.is_file():
        raise FileNotFoundError(f"no compiler at {path}: build it first, or name one in POZHIL_COMPILER")
    return path


def plain_environment(home, **changes):
    """The tests' own environment without the user's settings, at home in `home`, with no waiting for the animation."""
    kept = {name: value for name, value in os.environ.items() if not name.startswith("POZHIL_")}
    kept.pop("XDG_CACHE_HOME", None)
    kept.update(HOME=str(home), POZHIL_ANIMATION_MS="0", BROWSER="none")
    kept.update(changes)
    return kept
