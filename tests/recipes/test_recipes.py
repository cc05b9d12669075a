"""The recipes of docs/architecture.md lead where they say, touch no more files than they may, and have no step that can
be forgotten in silence."""

import pytest

from recipes import MOST_SOURCES, MOST_TESTS, RECIPES
from scratch_copy import ScratchCopy

FORGOTTEN = [(recipe, path) for recipe in RECIPES for path in recipe.paths]


@pytest.fixture(scope="module")
def copy(tmp_path_factory):
    """A copy with all recipes carried out and built."""
    scratch = ScratchCopy(tmp_path_factory.mktemp("recipes"))
    scratch.write(RECIPES)
    trouble = scratch.build()
    assert not trouble, trouble
    return scratch


@pytest.mark.parametrize("recipe", RECIPES, ids=lambda recipe: recipe.name)
def test_recipe_is_short(recipe):
    assert len(recipe.sources) <= MOST_SOURCES
    assert len(recipe.tests) <= MOST_TESTS
    assert len(recipe.sources) + len(recipe.tests) == len(recipe.paths)


def test_all_recipes_end_green(copy):
    stale = copy.derive_documents("--check")
    assert all(recipe.derived in stale for recipe in RECIPES), stale
    trouble = copy.trouble(RECIPES)
    assert not trouble, trouble


@pytest.mark.parametrize("recipe, path", FORGOTTEN, ids=[f"{r.name}-{r.paths.index(p)}" for r, p in FORGOTTEN])
def test_forgotten_step_is_told(copy, recipe, path):
    copy.write(RECIPES, without=path)
    try:
        assert copy.trouble([recipe]), path
    finally:
        copy.write(RECIPES)
