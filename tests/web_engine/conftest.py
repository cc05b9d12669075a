"""The option that compares all programs instead of a few."""


def pytest_addoption(parser):
    parser.addoption("--all-programs", action="store_true", help="compare all programs, optimised too; takes minutes")
