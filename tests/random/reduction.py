"""Makes a program that shows a difference smaller: statement by statement, as long as the difference stays."""

import copy

import tree


def blocks(program):
    """All lists of statements of a program, the outer before the inner."""
    found = [program.definitions, program.beginning, program.body]
    for block in found:
        for node in block:
            for branch in getattr(node, "branches", []):
                found.append(branch.body)
            found += [getattr(node, name) for name in ("body", "handler", "methods") if hasattr(node, name)]
    return found


def smaller(program):
    """Programs with one statement less, or with the inner statements in place of one."""
    for at, block in enumerate(blocks(program)):
        for position in reversed(range(len(block))):
            node = block[position]
            replacements = [[]]
            if isinstance(node, (tree.Try, tree.While, tree.ForEach)):
                replacements.append(node.body)
            if isinstance(node, (tree.If, tree.Switch)):
                replacements += [branch.body for branch in node.branches]
            for replacement in replacements:
                made = copy.deepcopy(program)
                blocks(made)[at][position : position + 1] = copy.deepcopy(replacement)
                yield made


def reduced(program, differs):
    """The smallest program found for which `differs` still holds."""
    progress = True
    while progress:
        progress = False
        for made in smaller(program):
            if differs(made):
                program, progress = made, True
                break
    return program
