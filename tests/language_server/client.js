// An editor's side of the language server: the client that editors are made of, over standard input and output.

import { spawn } from 'node:child_process';
import { mkdtempSync, rmSync, writeFileSync } from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import { pathToFileURL } from 'node:url';
import { createProtocolConnection, StreamMessageReader, StreamMessageWriter } from 'vscode-languageserver-protocol/node.js';

const compiler = process.env.POZHIL_COMPILER ?? path.resolve('build/release/பொழில்/பொழி');
export const command = path.join(path.dirname(compiler), 'பொழில்');

// What a loaded machine may take.
const PATIENCE = 20_000;

/// Waits until `find` finds something that isn't undefined.
export async function until(find, what) {
    const end = Date.now() + PATIENCE;
    for (;;) {
        const found = find();
        if (found !== undefined) {
            return found;
        }
        if (Date.now() > end) {
            throw new Error(`vain wait for ${what}`);
        }
        await new Promise(resolve => { setTimeout(resolve, 5); });
    }
}

/// A language server in a folder of its own, with a client that nobody has initialized yet.
export class Client {
    constructor(environment = {}) {
        this.folder = mkdtempSync(path.join(os.tmpdir(), 'pozhil-lsp-'));
        this.process = spawn(command, ['lsp'], { cwd: this.folder, env: { ...process.env, ...environment } });
        this.exit = new Promise(resolve => { this.process.on('exit', (status, signal) => resolve(status ?? signal)); });
        this.told = new Map();
        this.logged = [];
        this.versions = new Map();
        this.process.stdin.on('error', () => {});
    }

    /// Speaks the protocol from now on.
    async start(capabilities = {}) {
        this.connection = createProtocolConnection(new StreamMessageReader(this.process.stdout),
                                                   new StreamMessageWriter(this.process.stdin));
        this.connection.onNotification('textDocument/publishDiagnostics', params => {
            this.told.set(params.uri, params);
        });
        this.connection.onNotification('window/logMessage', params => this.logged.push(params.message));
        this.connection.listen();
        const answer = await this.ask('initialize',
                                      { processId: process.pid, rootUri: this.uri('').replace(/\/$/, ''), capabilities });
        this.capabilities = answer.capabilities;
        this.tell('initialized', {});
    }

    uri(name) {
        return pathToFileURL(path.join(this.folder, name)).href;
    }

    write(name, text) {
        writeFileSync(path.join(this.folder, name), text);
    }

    ask(method, params) {
        return this.connection.sendRequest(method, params);
    }

    tell(method, params) {
        return this.connection.sendNotification(method, params);
    }

    open(name, text) {
        this.versions.set(name, 1);
        this.tell('textDocument/didOpen',
                  { textDocument: { uri: this.uri(name), languageId: 'pozhil', version: 1, text } });
    }

    /// Makes edits, or puts a whole text in the place of what was there.
    change(name, changes, version = this.versions.get(name) + 1) {
        this.versions.set(name, version);
        this.tell('textDocument/didChange', {
            textDocument: { uri: this.uri(name), version },
            contentChanges: typeof changes === 'string' ? [{ text: changes }] : changes,
        });
    }

    /// What is wrong with a source as the client has it now.
    async diagnostics(name) {
        const { diagnostics } = await until(() => {
            const told = this.told.get(this.uri(name));
            return told !== undefined && (told.version === undefined || told.version === this.versions.get(name))
                ? told : undefined;
        }, `diagnostics of ${name}`);
        return diagnostics;
    }

    /// Asks about a place: `mark` in the text shows where, in UTF-16.
    at(name, text, mark = '|') {
        const before = text.slice(0, text.indexOf(mark)).split('\n');
        return { textDocument: { uri: this.uri(name) },
                 position: { line: before.length - 1, character: before.at(-1).length } };
    }

    /// Takes its leave as the protocol asks.
    async end() {
        await this.ask('shutdown');
        this.tell('exit');
        const status = await this.exit;
        this.connection.dispose();
        return status;
    }

    discard() {
        this.process.kill('SIGKILL');
        rmSync(this.folder, { recursive: true, force: true });
    }
}

/// Runs `test` with a client that has been initialized, and takes leave.
export async function withClient(test, capabilities = {}) {
    const client = new Client();
    try {
        await client.start(capabilities);
        await test(client);
        const status = await client.end();
        if (status !== 0) {
            throw new Error(`the server ended with ${status}`);
        }
    } finally {
        client.discard();
    }
}
