// How fast the language server is while somebody types, and whether its memory grows: in a source of 5,000 lines of each
// edition, the time from a key to its diagnostics and from a request to its completions, then resident memory over edits.
//
//   node benchmarks/language_server.mjs [edits]

import { spawn } from 'node:child_process';
import { readFileSync } from 'node:fs';
import path from 'node:path';

const LINES = 5000;
const KEYS = 100;
const URI = 'file:///tmp/language_server_benchmark.பொழில்';
const edits = Number(process.argv[2] ?? 10_000);
const command = path.resolve('build/release/பொழில்/பொழில்');

function source(first) {
    const lines = [...first];
    for (let number = 1; lines.length < LINES - 1; number += 1) {
        lines.push(`ஃ செயல் ${number}`, `செயல் கணக்கு_${number}(எண், பட்டியல்):`, `    விடை = எண் பெருக்கு ${number} கூட்டு 3`,
                   '    எனில் விடை பெரிது 10:', '        விடை = விடை கழி 1', '    ஒவ்வொன்றாக உறுப்பு இல் பட்டியல்:',
                   '        விடை = விடை கூட்டு உறுப்பு', '    திரும்பு விடை', '');
    }
    return `${lines.join('\n')}\n`;
}

/// A client that knows no more of the protocol than it takes.
class Client {
    constructor() {
        this.server = spawn(command, ['lsp'], { stdio: ['pipe', 'pipe', 'inherit'] });
        this.bytes = Buffer.alloc(0);
        this.waiting = [];
        this.server.stdout.on('data', piece => this.take(piece));
    }

    take(piece) {
        this.bytes = Buffer.concat([this.bytes, piece]);
        for (;;) {
            const [header, length] = this.bytes.toString('latin1', 0, 40).match(/^Content-Length: (\d+)\r\n\r\n/) ?? [];
            if (header === undefined || this.bytes.length < header.length + Number(length)) {
                return;
            }
            const message = JSON.parse(this.bytes.subarray(header.length, header.length + Number(length)));
            this.bytes = this.bytes.subarray(header.length + Number(length));
            this.waiting = this.waiting.filter(({ isIt, resolve }) => !isIt(message) || resolve(message));
        }
    }

    send(message) {
        const content = JSON.stringify({ jsonrpc: '2.0', ...message });
        this.server.stdin.write(`Content-Length: ${Buffer.byteLength(content)}\r\n\r\n${content}`);
    }

    when(isIt) {
        return new Promise(resolve => { this.waiting.push({ isIt, resolve }); });
    }

    ask(id, method, params) {
        const answer = this.when(message => message.id === id);
        this.send({ id, method, params });
        return answer;
    }

    change(version, line, text) {
        const place = { line, character: 0 };
        const range = text === '' ? { start: place, end: { line, character: 1 } } : { start: place, end: place };
        this.send({ method: 'textDocument/didChange',
                    params: { textDocument: { uri: URI, version }, contentChanges: [{ range, text }] } });
    }

    told(version) {
        return this.when(message => message.params?.version === version);
    }

    get memory() {
        return Number(readFileSync(`/proc/${this.server.pid}/status`, 'utf8').match(/VmRSS:\s+(\d+)/)[1]) / 1024;
    }
}

function median(times) {
    const sorted = [...times].sort((a, b) => a - b);
    return `${sorted[Math.floor(sorted.length / 2)].toFixed(1)} ms (worst ${sorted.at(-1).toFixed(1)})`;
}

async function measure(name, first) {
    const client = new Client();
    await client.ask(1, 'initialize', { capabilities: {} });
    const opened = client.told(0);
    client.send({ method: 'textDocument/didOpen',
                  params: { textDocument: { uri: URI, version: 0, text: source(first) } } });
    await opened;
    const diagnosed = [];
    const completed = [];
    let version = 0;
    const key = async text => {
        version += 1;
        const begin = performance.now();
        const told = client.told(version);
        client.change(version, LINES / 2, text);
        const answer = client.ask(1000 + version, 'textDocument/completion',
                                  { textDocument: { uri: URI }, position: { line: LINES / 2, character: text.length } });
        await answer;
        completed.push(performance.now() - begin);
        await told;
        diagnosed.push(performance.now() - begin);
    };
    for (let pressed = 0; pressed < KEYS; pressed += 1) {
        await key(pressed % 2 === 0 ? 'அ' : '');
    }
    console.log(`${name}: diagnostics ${median(diagnosed)} after a key, completion ${median(completed)}`);
    const memory = [client.memory];
    for (let made = 0; made < edits; made += 1) {
        version += 1;
        client.change(version, LINES / 2, made % 2 === 0 ? 'அ' : '');
        if ((made + 1) % Math.ceil(edits / 5) === 0) {
            await client.told(version);
            memory.push(client.memory);
        }
    }
    console.log(`${name}: memory over ${edits} edits: ${memory.map(used => used.toFixed(1)).join(', ')} MB`);
    client.server.kill();
}

await measure('first edition', []);
await measure('second edition', ['ஃ பொழில் 2']);
