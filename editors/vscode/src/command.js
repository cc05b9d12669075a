// The command பொழில்: where it is, and what it says.

const { execFile } = require('node:child_process');

const NAMES = ['பொழில்', 'pozhil'];
const MOST_OUTPUT = 64 * 1024 * 1024;

/// Runs a program to its end, with \p input to read: its exit status (null where it couldn't be started) and what it
/// printed.
function execute(program, words, input = '') {
    return new Promise(resolve => {
        const running = execFile(program, words, { maxBuffer: MOST_OUTPUT, windowsHide: true }, (error, stdout) => {
            const status = error ? (typeof error.code === 'number' ? error.code : null) : 0;
            resolve({ status, stdout });
        });
        running.stdin.on('error', () => {}); // a program needn't read what it is given
        running.stdin.end(input);
    });
}

/// The command as it can be started: the one that the settings name, else the first of its names that there is; null if
/// there is none.
async function findCommand(named) {
    for (const name of named ? [named] : NAMES) {
        if ((await execute(name, ['help'])).status === 0) {
            return name;
        }
    }
    return null;
}

/// Whether this command has a language server; older ones have none.
async function hasServer(command) {
    return (await execute(command, ['help', 'lsp'])).status === 0;
}

module.exports = { execute, findCommand, hasServer };
