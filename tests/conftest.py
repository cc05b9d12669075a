"""Settings of all Python tests: the option that rewrites expectations."""


def pytest_addoption(parser):
    parser.addoption(
        "--rewrite",
        action="store_true",
        help="write what came out into the language cases instead of comparing it",
    )
