"""Compares what came out of a language case with what must, and writes it into the case on request."""

import difflib

from support import case_file as cf
from support.case_run import run_case

# The runtime ends with a fence; behind it stand the program's own definitions and then this function.
_FENCE_END = "#endif\n"
_SET_UP = "void init_globals() {"

_SHOWN_LINES = 100


def check_case(case, compiler, **settings):
    """Runs the case; returns "" when all is as stated, else a text that shows the difference."""
    if not case.expectation.entries:
        return "the case doesn't say what must come out; --rewrite adds what does"
    outcome = run_case(case, compiler, with_program=case.expectation.needs_program, **settings)
    checks = (_difference, _description_trouble, _error_stream_trouble, _hint_trouble, _emission_trouble)
    troubles = [trouble for check in checks if (trouble := check(case, outcome))]
    return "\n\n".join([*troubles, str(outcome.result)]) if troubles else ""


def rewrite_case(case, compiler, **settings):
    """Runs the case and writes what came out over what is stated; lines of the other kinds stay."""
    cf.write_expectation(case, observed_expectation(case, compiler, **settings))


def observed_expectation(case, compiler, **settings):
    """Runs the case; the expectation that holds of it, with its lines of kinds that don't simply come out."""
    stated = case.expectation
    only_emission = stated.entries and not stated.needs_program and not stated.diagnostic
    outcome = run_case(case, compiler, with_program=not only_emission, **settings)
    if outcome.result.timed_out:
        raise cf.CaseError(f"not rewritten, since it doesn't end:\n{outcome.result}")
    *observed, (_, status) = _observed(case, outcome)
    rewritten = {cf.OUTPUT, cf.DIAGNOSTIC, cf.RUNTIME, cf.STATUS}
    if not _hint_trouble(case, outcome):
        outcome.hints = stated.texts(cf.HINT)
    if not outcome.diagnostic and not outcome.runtime:
        rewritten.add(cf.DESCRIPTION)
    typed = [entry for entry in stated.entries if entry[0] == cf.INPUT]
    observed += [(cf.HINT, hint) for hint in outcome.hints]
    kept = [entry for entry in stated.entries if entry[0] not in rewritten | {cf.INPUT, cf.HINT}]
    if status != str(cf.Expectation(observed, stated.edition).status) or not observed + kept:
        observed.append((cf.STATUS, status))
    return cf.Expectation(typed + observed + kept, stated.edition)


def own_part(emitted):
    """The emitted text behind the runtime, which is the same in every program."""
    set_up = emitted.find(_SET_UP)
    fence = emitted.rfind(_FENCE_END, 0, max(set_up, 0))
    return emitted[fence + len(_FENCE_END) :] if fence >= 0 else emitted


def _stated(case):
    expectation = case.expectation
    entries = [(cf.OUTPUT, text) for text in expectation.texts(cf.OUTPUT)]
    entries += [(cf.DIAGNOSTIC, str(place)) for place in expectation.diagnostics]
    entries += [(cf.RUNTIME, str(place)) for place in [expectation.runtime] if place]
    return [*entries, (cf.STATUS, str(expectation.status))]


def _observed(case, outcome):
    entries = [(cf.OUTPUT, text) for text in outcome.output or []]
    entries += [(cf.DIAGNOSTIC, _place(case, report)) for report in outcome.diagnostics]
    entries += [(cf.RUNTIME, _place(case, report)) for report in [outcome.runtime] if report]
    return [*entries, (cf.STATUS, "timed out" if outcome.result.timed_out else str(outcome.result.status))]


def _place(case, report):
    return str(cf.Place(report.code, report.line, None if report.file == case.path.name else report.file))


def _difference(case, outcome):
    stated, observed = ([cf.format_entry(*entry) for entry in entries]
                        for entries in (_stated(case), _observed(case, outcome)))
    return "\n".join(difflib.unified_diff(stated, observed, "stated", "came out", n=3, lineterm=""))


def _description_trouble(case, outcome):
    report = outcome.diagnostic or outcome.runtime
    shown = report.description if report else ""
    missing = [text for text in case.expectation.texts(cf.DESCRIPTION) if text not in shown]
    return f"not in what the box says is wrong: {missing[0]}\nit says: {shown}" if missing else ""


def _error_stream_trouble(case, outcome):
    stated = case.expectation.texts(cf.ERROR_STREAM)
    missing = [text for text in stated if text not in outcome.errors]
    if missing:
        return f"not in standard error: {missing[0]}"
    heard = case.expectation.needs_program or case.expectation.status != 0
    return "standard error isn't empty" if heard and not stated and outcome.errors else ""


def _hint_trouble(case, outcome):
    stated = case.expectation.texts(cf.HINT)
    if not stated and not case.expectation.needs_program:
        return ""
    fitting = len(stated) == len(outcome.hints) and all(map(_fits, stated, outcome.hints))
    return "" if fitting else "\n".join(["other hints than stated; these came out:", *outcome.hints])


def _fits(stated, hint):
    """Whether `hint` is as stated: in this line, and in these words if any are stated."""
    return hint == stated or hint.startswith(stated + ":")


def _emission_trouble(case, outcome):
    emitted = outcome.emitted or ""
    own = own_part(emitted)
    lines = iter([line.strip() for line in emitted.split("\n")])
    for text in case.expectation.texts(cf.EMITTED):
        if text.strip() not in lines:  # goes on behind the line found before
            return f"not emitted, or not in this order: {text.strip()}\n{_shown(own)}"
    for text in case.expectation.texts(cf.NOT_EMITTED):
        if text in own:
            return f"emitted all the same: {text}\n{_shown(own)}"
    return ""


def _shown(own):
    lines = own.strip("\n").split("\n")
    more = [f"... and {len(lines) - _SHOWN_LINES} lines more"] if len(lines) > _SHOWN_LINES else []
    return "\n".join(["--- the program's own part of the emitted text", *lines[:_SHOWN_LINES], *more])
