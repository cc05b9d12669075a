"""Writes what editors know of the language's words from the tables of the compiler."""
