// What the server keeps must not grow with what it is asked, however hostile.

import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import { withClient } from './client.js';

const ROUNDS = 40;
const MOST_GROWTH_KIB = 12_000;

const residentKib = client => Number(/VmRSS:\s+(\d+)/.exec(readFileSync(`/proc/${client.process.pid}/status`, 'utf8'))[1]);

test('memory stays flat over refused and answered renames, mends and completions', async () => {
    await withClient(async client => {
        const text = 'ஃ பொழில் 2\nமொத்தம் = [1]\nஅச்சிடு(மொத்தமும், மொத்தம்.சேர்(1))\n';
        client.open('அ.பொழில்', text);
        const whole = { textDocument: { uri: client.uri('அ.பொழில்') } };
        const range = { start: { line: 0, character: 0 }, end: { line: 9, character: 0 } };
        const long = 'அ'.repeat(350_000);
        const round = async () => {
            for (const newName of [long, 'எனில்', 'புதிது', '']) {
                await assert.rejects(client.ask('textDocument/rename', { ...whole, position: { line: 1, character: 0 }, newName }));
            }
            await client.ask('textDocument/codeAction', { ...whole, range, context: { diagnostics: [] } });
            for (let character = 0; character < 30; character += 5) {
                await client.ask('textDocument/completion', { ...whole, position: { line: 2, character } });
            }
            client.change('அ.பொழில்', text);
        };
        for (let count = 0; count < ROUNDS; count += 1) {
            await round();
        }
        const before = residentKib(client);
        for (let count = 0; count < ROUNDS; count += 1) {
            await round();
        }
        const growth = residentKib(client) - before;
        assert.ok(growth < MOST_GROWTH_KIB, `${growth} KiB`);
    });
});
