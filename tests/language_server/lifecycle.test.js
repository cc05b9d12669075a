// How a client and the language server meet and part, and what becomes of messages that aren't as they should be.

import assert from 'node:assert/strict';
import { spawn, spawnSync } from 'node:child_process';
import { test } from 'node:test';
import { Client, command, until, withClient } from './client.js';

const framed = content => `Content-Length: ${Buffer.byteLength(content)}\r\n\r\n${content}`;
const message = json => framed(JSON.stringify({ jsonrpc: '2.0', ...json }));
const INITIALIZE = message({ id: 1, method: 'initialize', params: { capabilities: {} } });

/// What a server answers to bytes that come in these pieces, so many messages, and how it ends after them.
async function talk(pieces, count) {
    const client = new Client();
    try {
        let said = Buffer.alloc(0);
        client.process.stdout.on('data', piece => { said = Buffer.concat([said, piece]); });
        for (const piece of pieces) {
            client.process.stdin.write(piece);
            await new Promise(resolve => { setImmediate(resolve); });
        }
        await until(() => (messagesIn(said).length >= count ? true : undefined), `${count} answers`);
        client.process.stdin.end();
        const status = await client.exit;
        return { status, answers: messagesIn(said) };
    } finally {
        client.discard();
    }
}

function messagesIn(bytes) {
    const messages = [];
    let rest = bytes;
    for (;;) {
        const [header, length] = rest.toString('latin1').match(/^Content-Length: (\d+)\r\n\r\n/) ?? [];
        if (header === undefined || rest.length < header.length + Number(length)) {
            return messages;
        }
        messages.push(JSON.parse(rest.subarray(header.length, header.length + Number(length))));
        rest = rest.subarray(header.length + Number(length));
    }
}

test('a client that takes its leave is let go with status 0', async () => {
    await withClient(async client => {
        await assert.rejects(client.ask('initialize', { capabilities: {} }), { code: -32600 });
    });
});

test('leaving without shutdown ends with status 1', async () => {
    const { status } = await talk([INITIALIZE, message({ method: 'exit' })], 1);
    assert.equal(status, 1);
});

test('nothing is answered before initialize, and nothing but exit after shutdown', async () => {
    const { status, answers } = await talk([
        message({ id: 'அ', method: 'textDocument/hover', params: {} }),
        INITIALIZE, message({ id: 2, method: 'shutdown' }), message({ id: 3, method: 'shutdown' }),
        message({ method: 'exit' }),
    ], 4);
    assert.deepEqual(answers.map(answer => [answer.id, answer.error?.code]),
                     [['அ', -32002], [1, undefined], [2, undefined], [3, -32600]]);
    assert.equal(status, 0);
});

test('a client that vanishes leaves no process, even with requests waiting', async () => {
    const { status } = await talk([INITIALIZE + message({ id: 2, method: 'textDocument/hover', params: {} })], 1);
    assert.equal(status, 1);
});

test('unknown requests are refused, unknown notifications and answers to nothing are ignored', async () => {
    await withClient(async client => {
        await assert.rejects(client.ask('textDocument/nothingOfThisName', {}), { code: -32601 });
        client.tell('$/nothingOfThisName', {});
        client.tell('workspace/nothingOfThisName', { a: 1 });
        client.open('அ.பொழில்', 'அச்சிடு(1)\n');
        assert.deepEqual(await client.diagnostics('அ.பொழில்'), []);
    });
});

test('messages may arrive cut anywhere, and many at once', async () => {
    const all = Buffer.from(INITIALIZE + message({ id: 2, method: 'வணக்கம்' }) + message({ id: 3, method: 'அ' }));
    const bytewise = await talk([...all].map(byte => Buffer.of(byte)), 3);
    const atOnce = await talk([all], 3);
    assert.deepEqual(bytewise.answers, atOnce.answers);
    assert.deepEqual(atOnce.answers.map(answer => answer.id), [1, 2, 3]);
});

test('header fields of any case and order are read', async () => {
    const content = JSON.stringify({ jsonrpc: '2.0', id: 7, method: 'initialize', params: {} });
    const { answers } = await talk([`Content-Type: application/vscode-jsonrpc\r\ncontent-LENGTH:  ${content.length} \r\n\r\n${content}`], 1);
    assert.equal(answers[0].id, 7);
});

for (const [what, bytes] of Object.entries({
    'no length': 'Hello: 1\r\n\r\n{}',
    'a negative length': 'Content-Length: -5\r\n\r\n{}',
    'a length beyond all memory': 'Content-Length: 99999999999999999999999\r\n\r\n{}',
    'a length beyond all sources': 'Content-Length: 9999999999\r\n\r\n{}',
    'a length that is no number': 'Content-Length: 2x\r\n\r\n{}',
    'a header without end': 'a'.repeat(20_000),
})) {
    test(`a stream with ${what} ends the server, which says so`, async () => {
        const client = new Client();
        try {
            let complaint = '';
            client.process.stderr.on('data', piece => { complaint += piece; });
            client.process.stdin.write(bytes);
            assert.equal(await client.exit, 1);
            assert.match(complaint, /^பிழை: /);
        } finally {
            client.discard();
        }
    });
}

test('what is no JSON, no object or no request is refused, and the next request answered', async () => {
    const hostile = ['{', '', '[]', '[1,2]', '3', 'null', '"method"', '{"id":{"a":1},"method":"x"}', '{"method":3,"id":4}',
                     '['.repeat(200_000), `${'['.repeat(200_000)}${']'.repeat(200_000)}`,
                     `{"id":1,"method":"அ","params":${'{"a":'.repeat(100_000)}1${'}'.repeat(100_000)}}`];
    const { answers } = await talk([hostile.map(framed).join('') + INITIALIZE + message({ id: 99, method: 'அ' })],
                                 hostile.length + 2);
    assert.deepEqual(answers.at(-1).id, 99);
    assert.ok(answers.slice(0, hostile.length).every(answer => answer.error.code < -32000));
});

test('parameters of any kind are refused, not believed', async () => {
    await withClient(async client => {
        for (const params of [null, [], {}, { textDocument: 3 }, { textDocument: { uri: 4 } },
                              { textDocument: { uri: client.uri('இல்லை') }, position: { line: [[[1]]], character: {} } },
                              { textDocument: { uri: client.uri('இல்லை') }, position: { line: -1, character: 0 } },
                              { textDocument: { uri: client.uri('இல்லை') }, position: { line: 1e300, character: 'அ' } }]) {
            client.tell('textDocument/didOpen', params ?? undefined);
            client.tell('textDocument/didChange', params ?? undefined);
            client.tell('textDocument/didClose', params ?? undefined);
            client.tell('workspace/didChangeWatchedFiles', { changes: params });
        }
        client.open('அ.பொழில்', 'அச்சிடு(1)\n');
        assert.deepEqual(await client.diagnostics('அ.பொழில்'), []);
    });
});

test('a request that was cancelled while it waited is answered as cancelled', async () => {
    const { answers } = await talk([
        INITIALIZE + message({ id: 2, method: 'shutdown' }) + message({ method: '$/cancelRequest', params: { id: 2 } }) +
            message({ method: '$/cancelRequest', params: { id: 50 } }) + message({ id: 3, method: 'அ' }),
    ], 3);
    assert.deepEqual(answers.map(answer => [answer.id, answer.error?.code]),
                     [[1, undefined], [2, -32800], [3, -32601]]);
});

test('a client that reads no more ends the server as one that vanished', async () => {
    const server = spawn(command, ['lsp'], { stdio: ['pipe', 'pipe', 'ignore'] });
    const exit = new Promise(resolve => { server.on('exit', (status, signal) => resolve(status ?? signal)); });
    server.stdout.destroy();
    server.stdin.on('error', () => {});
    server.stdin.write(INITIALIZE);
    assert.equal(await exit, 1);
});

test('wrong words of the command line are refused', () => {
    assert.equal(spawnSync(command, ['மொழிச்சேவை', '--tcp'], { input: '' }).status, 2);
    assert.equal(spawnSync(command, ['மொழிச்சேவை', '--stdio'], { input: '' }).status, 1);
    assert.match(spawnSync(command, ['மொழிச்சேவை', '--help'], { input: '' }).stdout.toString(), /pozhil lsp/);
});
