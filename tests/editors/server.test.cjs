// The packed extension with a command that has a language server: the client in it greets the server and takes its leave.
// EXTENSION is the folder of the extension.

const assert = require('node:assert/strict');
const { chmodSync, mkdtempSync, readFileSync, writeFileSync } = require('node:fs');
const Module = require('node:module');
const { tmpdir } = require('node:os');
const path = require('node:path');
const { test } = require('node:test');
const { setTimeout: pause } = require('node:timers/promises');

const EXTENSION = process.env.EXTENSION;

/// A server that notes what it is asked, and has nothing to offer.
const SERVER = `
const { appendFileSync } = require('node:fs');
let read = Buffer.alloc(0);
function answer(id, result) {
    const body = JSON.stringify({ jsonrpc: '2.0', id, result });
    process.stdout.write('Content-Length: ' + Buffer.byteLength(body) + '\\r\\n\\r\\n' + body);
}
process.stdin.on('data', more => {
    read = Buffer.concat([read, more]);
    for (let head = read.indexOf('\\r\\n\\r\\n'); head >= 0; head = read.indexOf('\\r\\n\\r\\n')) {
        const length = Number(/Content-Length: (\\d+)/.exec(read.subarray(0, head))[1]);
        if (read.length < head + 4 + length) {
            return;
        }
        const { id, method } = JSON.parse(read.subarray(head + 4, head + 4 + length));
        read = read.subarray(head + 4 + length);
        appendFileSync(process.argv[2], method + '\\n');
        if (id !== undefined) {
            answer(id, method === 'initialize' ? { capabilities: {} } : null);
        }
        if (method === 'exit') {
            process.exit(0);
        }
    }
});
`;

/// A command whose server that is, and where it notes.
function commandWithServer() {
    const folder = mkdtempSync(path.join(tmpdir(), 'pozhil-'));
    const [command, server, notes] = ['command', 'server.cjs', 'notes'].map(name => path.join(folder, name));
    writeFileSync(server, SERVER);
    writeFileSync(notes, '');
    writeFileSync(command, `#!/bin/sh
case $1 in
help) exit 0 ;;
மொழிச்சேவை) exec '${process.execPath}' '${server}' '${notes}' ;;
*) exit 2 ;;
esac
`);
    chmodSync(command, 0o755);
    return { command, asked: () => readFileSync(notes, 'utf8').split('\n').filter(Boolean) };
}

/// Whatever the client asks of an editor: each thing is a class, a function and an object at once, unless it is named.
function anything(named = {}) {
    const target = class {};
    return new Proxy(target, {
        get: (_, name) => {
            if (name in named || typeof name === 'symbol' || name === 'then') {
                return named[name];
            }
            return name === 'prototype' ? target.prototype : (named[name] = anything());
        },
        set: (_, name, value) => {
            named[name] = value;
            return true;
        },
        apply: () => anything(),
    });
}

function editor(command, seen) {
    class EventEmitter {
        event = () => ({ dispose() {} });

        fire() {}

        dispose() {}
    }
    const settings = { command, checkOnSave: true };
    return anything({
        EventEmitter,
        version: '1.90.0',
        window: anything({
            showWarningMessage: text => seen.push(text),
            showErrorMessage: async text => seen.push(text),
            createOutputChannel: () => ({ append() {}, appendLine() {}, show() {}, dispose() {} }),
            visibleTextEditors: [],
            tabGroups: anything({ all: [] }),
        }),
        workspace: anything({
            isTrusted: true,
            textDocuments: [],
            notebookDocuments: [],
            workspaceFolders: undefined,
            getConfiguration: () => ({ get: name => settings[name] }),
        }),
    });
}

/// What the server has noted, once that ends like this: it takes its time.
async function askedUpTo(asked, end, limit = 30_000) {
    for (const begin = Date.now(); asked().at(-1) !== end && Date.now() - begin < limit;) {
        await pause(20);
    }
    return asked();
}

test('the server is greeted, and takes leave with the extension', async () => {
    const { command, asked } = commandWithServer();
    const seen = [];
    const vscode = editor(command, seen);
    const load = Module._load;
    Module._load = (name, ...rest) => (name === 'vscode' ? vscode : load(name, ...rest));
    const extension = require(path.join(EXTENSION, 'extension.js'));
    await extension.activate({ subscriptions: [] });
    assert.deepEqual(asked().slice(0, 1), ['initialize']);
    await extension.deactivate();
    const all = await askedUpTo(asked, 'exit');
    assert.deepEqual(all.slice(-2), ['shutdown', 'exit']);
    assert.ok(all.includes('initialized'));
    assert.deepEqual(seen, []);
});
