// Faults and hints of a file, by `பொழில் சரிபார் --json`.

const { execute } = require('./command.js');

/// A place as the command tells it (from 1, in units of UTF-16) as one of the editor (from 0).
function position(place) {
    return { line: place.line - 1, character: place.utf16 - 1 };
}

/// What a finding says: the message, what may have been meant, and what to do.
function wording({ message, mend, suggestion }) {
    return [message, suggestion, mend].filter(Boolean).join('\n');
}

/// The findings of one answer of the command, by file. What has no place of its own stands on the first line.
function findingsOf(json) {
    const byFile = new Map();
    for (const finding of JSON.parse(json).findings) {
        const begin = finding.begin ? position(finding.begin) : { line: 0, character: 0 };
        const told = {
            begin,
            end: finding.end ? position(finding.end) : begin,
            message: wording(finding),
            code: finding.code,
            isFault: finding.kind === 'fault',
        };
        byFile.set(finding.file, [...(byFile.get(finding.file) ?? []), told]);
    }
    return byFile;
}

/// What the command finds in a file; null where it can't tell.
async function check(command, file) {
    const { stdout } = await execute(command, ['check', '--json', file]);
    try {
        return findingsOf(stdout);
    } catch {
        return null;
    }
}

module.exports = { check, findingsOf };
