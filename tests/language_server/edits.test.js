// Texts that are edited by chance: what is told of them must be what is told of the same text opened at once, and every
// request must be answered. POZHIL_EDITS says how many edits, SEED which ones.

import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import { withClient } from './client.js';

const EDITS = Number(process.env.POZHIL_EDITS ?? 60);
const SOURCES = ['எடுத்துக்காட்டுகள்/வங்கிக்_கணக்கு.பொழில்', 'எடுத்துக்காட்டுகள்/இரண்டாம்_பதிப்பு/பணிப்_பட்டியல்.பொழில்',
                 'எடுத்துக்காட்டுகள்/இரண்டாம்_பதிப்பு/கடை.பொழில்'];
const PIECES = ['', '(', ')', '"', '\n', '\r\n', '\r', '    ', 'செயல் ', 'ஃ', '😀', '\u0BCD', '.', ',', ':', '=', '\0', '\uFEFF', 'வகை ', '[',
                'கட்டமைப்பு அ:\n', 'நூஇறக்கி "பட்டியல்"\n', '௧௨', '1e999', 'வலைதளம் '];
const REQUESTS = ['completion', 'hover', 'definition', 'documentHighlight', 'signatureHelp'];

/// Numbers by chance, the same for the same seed, below `limit`.
function dice(seed) {
    let state = seed;
    return limit => {
        state = (Math.imul(state, 1664525) + 1013904223) >>> 0;
        return Math.floor(state / 2 ** 32 * limit);
    };
}

/// The place of an index of UTF-16, as the protocol counts lines.
function placeOf(text, index) {
    const lines = text.slice(0, index).split(/\r\n|\r|\n/);
    return { line: lines.length - 1, character: lines.at(-1).length };
}

/// Whether an edit may begin or end there: not between the halves of a character or of a line end.
function isBorder(text, index) {
    return !/^[\uDC00-\uDFFF]/.test(text.slice(index)) && text.slice(index - 1, index + 1) !== '\r\n';
}

test(`${EDITS} edits by chance leave the text that the client has`, async () => {
    const roll = dice(Number(process.env.SEED ?? 1));
    await withClient(async client => {
        for (const [index, source] of SOURCES.entries()) {
            const name = `${index}.பொழில்`;
            let text = readFileSync(source, 'utf8');
            client.open(name, text);
            for (let edit = 0; edit < EDITS; edit += 1) {
                const at = roll(text.length + 1);
                const begin = isBorder(text, at) ? at : 0;
                const end = Math.min(begin + roll(4) * roll(8), text.length);
                const till = isBorder(text, end) ? end : begin;
                const piece = PIECES[roll(PIECES.length)];
                client.change(name, [{ range: { start: placeOf(text, begin), end: placeOf(text, till) }, text: piece }]);
                text = text.slice(0, begin) + piece + text.slice(till);
                const position = placeOf(text, roll(text.length + 1));
                await client.ask(`textDocument/${REQUESTS[roll(REQUESTS.length)]}`,
                                 { textDocument: { uri: client.uri(name) }, position });
            }
            const told = await client.diagnostics(name);
            const whole = `முழுதும்_${name}`;
            client.open(whole, text);
            assert.deepEqual(await client.diagnostics(whole), told);
        }
    });
});
