// What has changed between two texts that differ in blanks alone.

const BLANK = /\s/;

function blanksFrom(text, from) {
    let to = from;
    while (to < text.length && BLANK.test(text[to])) {
        to += 1;
    }
    return to;
}

/// The changes that make `before` into `after`, as CodeMirror wants them: one for each run of blanks that isn't as it was,
/// so that all else keeps its place; a single one if other letters differ as well.
export function changesBetween(before, after) {
    const changes = [];
    let from = 0;
    let at = 0;
    while (from < before.length || at < after.length) {
        const to = blanksFrom(before, from);
        const end = blanksFrom(after, at);
        if (before.slice(from, to) !== after.slice(at, end)) {
            changes.push({ from, to, insert: after.slice(at, end) });
        }
        if (before[to] !== after[end]) {
            return [{ from: 0, to: before.length, insert: after }];
        }
        from = to + 1;
        at = end + 1;
    }
    return changes;
}
