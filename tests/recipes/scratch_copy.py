"""A copy of the repository in which recipes are carried out, with a compiler built from it."""

import os
import shutil
import subprocess
import sys

from recipes import File
from support.compiler import REPOSITORY, compiler_path

CATALOGUE = "உள்ளடக்கம்/error_codes.h"
TABLE_TESTS = ("language_tables_test", "diagnostics_test", "raised_codes_test", "scanner_keywords_test")
# What is put beside the new compiler as it stands in the installation.
INSTALLED = ("திரட்டு", "தொகுப்புகள்", "src")


class RecipeError(Exception):
    """A place that a recipe names isn't there."""


class ScratchCopy:
    def __init__(self, folder):
        self.root = folder / "repository"
        self._build = folder / "build"
        self._installation = folder / "பொழில்"
        self._environment = dict(os.environ, POZHIL_COMPILER=str(self._installation / "பொழி"))
        self._environment.pop("PYTEST_ADDOPTS", None)
        self._copy_repository()
        self._lay_out_installation()
        self._configure()

    def _copy_repository(self):
        listed = subprocess.run(
            ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
            cwd=REPOSITORY, stdout=subprocess.PIPE, check=True,
        ).stdout.decode()
        for path in filter(None, listed.split("\0")):
            if (REPOSITORY / path).is_file():
                (self.root / path).parent.mkdir(parents=True, exist_ok=True)
                shutil.copyfile(REPOSITORY / path, self.root / path)
                shutil.copymode(REPOSITORY / path, self.root / path)

    def _lay_out_installation(self):
        installed = compiler_path().parent
        headers = self._installation / "உள்ளடக்கம்"
        headers.mkdir(parents=True)
        for name in INSTALLED:
            (self._installation / name).symlink_to(installed / name)
        for header in (installed / "உள்ளடக்கம்").iterdir():
            (headers / header.name).symlink_to(header)
        (self.root / CATALOGUE).resolve(strict=True)
        (headers / "error_codes.h").unlink()
        (headers / "error_codes.h").symlink_to(self.root / CATALOGUE)

    def _configure(self):
        settings = ["-G", "Ninja", "-D", "CMAKE_BUILD_TYPE=None", "-D", "CMAKE_CXX_FLAGS=-O0"]
        if shutil.which("ccache"):
            self._environment.update(CCACHE_BASEDIR=str(self.root.parent), CCACHE_NOHASHDIR="1")
            settings += ["-D", "CMAKE_CXX_COMPILER_LAUNCHER=ccache"]
        trouble = self._trouble("cmake", *settings, "-S", self.root, "-B", self._build)
        assert not trouble, trouble

    def write(self, recipes, without=None):
        """Brings the files that the recipes name to the state after them all, but for the path `without`."""
        steps = [step for recipe in recipes for step in recipe.steps]
        for path in dict.fromkeys(step.path for step in steps):
            text = None if path == without else self._text([step for step in steps if step.path == path])
            if text is None and (REPOSITORY / path).exists():
                text = (REPOSITORY / path).read_text(encoding="utf-8")
            self._put(self.root / path, text)

    def _text(self, steps):
        text = ""
        for step in steps:
            if isinstance(step, File):
                return step.text
            text = text or (REPOSITORY / step.path).read_text(encoding="utf-8")
            lines = text.splitlines(keepends=True)
            places = [at for at, line in enumerate(lines) if step.before and line.startswith(step.before)]
            if step.before and len(places) != 1:
                raise RecipeError(f"{step.path}: {len(places)} lines begin with {step.before!r}")
            at = places[0] if places else len(lines)
            text = "".join([*lines[:at], step.text, *lines[at:]])
        return text

    @staticmethod
    def _put(path, text):
        """Writes only what changes, for the sake of the build; no text removes the file."""
        if text is None:
            path.unlink(missing_ok=True)
        elif not path.exists() or path.read_text(encoding="utf-8") != text:
            path.write_text(text, encoding="utf-8")

    def build(self):
        """What the build says if it fails."""
        trouble = self._trouble("cmake", "--build", self._build, "--target", "pozhil", *TABLE_TESTS)
        if not trouble:
            shutil.copy2(self._build / "src" / "பொழி", self._installation / "பொழி")
        return trouble

    def derive_documents(self, *options):
        return self._trouble(self.root / "scripts" / "derive-documents", *options)

    def check(self, recipes):
        """What the first test that fails says, among those that look at what the recipes touch."""
        cases = [path for recipe in recipes for path in recipe.tests if (self.root / path).exists()]
        checks = [[self._build / "tests" / name, "--gtest_brief=1"] for name in TABLE_TESTS]
        checks.append([sys.executable, "-m", "pytest", "-q", "tests/guide/test_tables.py", "tests/guide/test_tried.py", *cases])
        return next(filter(None, (self._trouble(*command) for command in checks)), "")

    def trouble(self, recipes):
        return self.build() or self.derive_documents() or self.check(recipes)

    def _trouble(self, *command):
        result = subprocess.run(
            [str(part) for part in command], cwd=self.root, env=self._environment,
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, encoding="utf-8", errors="replace",
        )
        return "" if result.returncode == 0 else result.stdout or f"{command[0]}: exit status {result.returncode}"
