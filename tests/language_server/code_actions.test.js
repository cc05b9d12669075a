// Mends: what is wrong and has one right mend is gone once that is made.

import assert from 'node:assert/strict';
import { test } from 'node:test';
import { withClient } from './client.js';

const SECOND = 'ஃ பொழில் 2\n';
const page = body => `வலைதளம் செயலி (\n    தலைமை(இணைய_தலைப்பு: "அ")\n    குமரி(\n        ${body}\n    )\n    வரையறை(\n        எண்ணி = 1\n    )\n)\n`;

/// What is offered for a diagnostic, as a client asks for it.
async function actions(client, name, diagnostic, more = {}) {
    return client.ask('textDocument/codeAction', {
        textDocument: { uri: client.uri(name) }, range: diagnostic.range, context: { diagnostics: [diagnostic], ...more },
    });
}

function edited(text, [{ range, newText }, ...others]) {
    assert.deepEqual(others, []);
    const lines = text.split('\n');
    const line = lines[range.start.line];
    lines[range.start.line] = line.slice(0, range.start.character) + newText + line.slice(range.end.character);
    return lines.join('\n');
}

// [what, program with one thing wrong, program with that mended]
const OF_SECOND = [
    ['a misspelt keyword', 'சுற்ற மெய்:\n    நிறுத்து\n', 'சுற்று மெய்:\n    நிறுத்து\n'],
    ['a misspelt name', 'மொத்தம் = 1\nஅச்சிடு(மொத்தமும்)\n', 'மொத்தம் = 1\nஅச்சிடு(மொத்தம்)\n'],
    ['a misspelt function', 'செயல் கணக்கிடு():\n    திரும்பு 1\nஅச்சிடு(கணக்கிட())\n', 'செயல் கணக்கிடு():\n    திரும்பு 1\nஅச்சிடு(கணக்கிடு())\n'],
    ['a misspelt built-in function', 'அச்சிடு(நீலம்("அ"))\n', 'அச்சிடு(நீளம்("அ"))\n'],
    ['a misspelt member', 'கட்டமைப்பு ப:\n    எடைமுறை = 1\nஓ = ப()\nஅச்சிடு(ஓ.எடைமுரை)\n', 'கட்டமைப்பு ப:\n    எடைமுறை = 1\nஓ = ப()\nஅச்சிடு(ஓ.எடைமுறை)\n'],
    ['a misspelt property of a widget', page('உரை("அ", தெரியா: மெய்)'), page('உரை("அ", தெரிய: மெய்)')],
    ['a misspelt colour', page('உரை("அ", உரைபாணி(நிறம்: "சிவப்பூ"))'), page('உரை("அ", உரைபாணி(நிறம்: "சிவப்பு"))')],
    ['a misspelt widget', page('உரைபெட்டீ()'), page('உரைபெட்டி()')],
    ['if', 'அ = 1\nif அ சமம் 1:\n    அச்சிடு(அ)\n', 'அ = 1\nஎனில் அ சமம் 1:\n    அச்சிடு(அ)\n'],
    ['while', 'while மெய்:\n    நிறுத்து\n', 'சுற்று மெய்:\n    நிறுத்து\n'],
    ['return', 'செயல் க():\n    return 1\nக()\n', 'செயல் க():\n    திரும்பு 1\nக()\n'],
    ['break', 'சுற்று மெய்:\n    break\n', 'சுற்று மெய்:\n    நிறுத்து\n'],
    ['and', 'எனில் மெய் and பொய்:\n    விடு\n', 'எனில் மெய் மற்றும் பொய்:\n    விடு\n'],
    ['True', 'அ = True\nஅச்சிடு(அ)\n', 'அ = மெய்\nஅச்சிடு(அ)\n'],
    ['None', 'அ = None\nஅச்சிடு(அ)\n', 'அ = வெறுமை\nஅச்சிடு(அ)\n'],
    ['print', 'print("அ")\n', 'அச்சிடு("அ")\n'],
    ['len', 'அச்சிடு(len("அ"))\n', 'அச்சிடு(நீளம்("அ"))\n'],
    ['append', 'அ = []\nஅ.append(1)\nஅச்சிடு(அ)\n', 'அ = []\nஅ.சேர்(1)\nஅச்சிடு(அ)\n'],
    ['==', 'அ = 1\nஎனில் அ==1:\n    அச்சிடு(அ)\n', 'அ = 1\nஎனில் அ சமம் 1:\n    அச்சிடு(அ)\n'],
    ['+', 'அச்சிடு(1 + 2)\n', 'அச்சிடு(1 கூட்டு 2)\n'],
    ['≤', 'அச்சிடு(1≤2)\n', 'அச்சிடு(1 சிறிதுசமம் 2)\n'],
    ['# before a comment', '#குறிப்பு\nஅச்சிடு(1)\n', 'ஃ குறிப்பு\nஅச்சிடு(1)\n'],
    ['a variable that is only written, by a slip', 'மொத்தம் = 1\nமொத்தமும் = 2\nஅச்சிடு(மொத்தம்)\n', 'மொத்தம் = 1\nமொத்தம் = 2\nஅச்சிடு(மொத்தம்)\n'],
    ['one of several mistakes of a line', 'அச்சிடு(True, False)\n', 'அச்சிடு(மெய், False)\n'],
];
const OF_FIRST = [
    ['a misspelt keyword', 'சுற்ற மெய்:\n    நிறுத்து\n', 'சுற்று மெய்:\n    நிறுத்து\n'],
    ['a misspelt function', 'செயல் கணக்கிடு():\n    திரும்பு 1\nஅச்சிடு(கணக்கிட())\n', 'செயல் கணக்கிடு():\n    திரும்பு 1\nஅச்சிடு(கணக்கிடு())\n'],
    ['"=" in a condition', 'அ = 1\nஎனில் அ = 5:\n    அச்சிடு(அ)\n', 'அ = 1\nஎனில் அ சமம் 5:\n    அச்சிடு(அ)\n'],
];

for (const [edition, first, rows] of [['the second edition', SECOND, OF_SECOND], ['the first edition', '', OF_FIRST]]) {
    for (const [what, wrong, right] of rows) {
        test(`codeAction mends ${what}, in ${edition}`, async () => {
            await withClient(async client => {
                client.open('அ.பொழில்', first + wrong);
                const before = await client.diagnostics('அ.பொழில்');
                assert.ok(before.length > 0, 'there is something wrong');
                const [action, ...others] = await actions(client, 'அ.பொழில்', before[0]);
                assert.ok(action !== undefined, before[0].message);
                assert.deepEqual(others, []);
                assert.equal(action.kind, 'quickfix');
                assert.deepEqual(action.diagnostics, [before[0]]);
                const mended = edited(first + wrong, action.edit.changes[client.uri('அ.பொழில்')]);
                assert.equal(mended, first + right);
                client.change('அ.பொழில்', mended);
                const after = await client.diagnostics('அ.பொழில்');
                assert.equal(after.length, before.length - 1, JSON.stringify(after));
            });
        });
    }
}

// [what, program]: what has no mend, or more than one.
const WITHOUT = [
    ['a name near to two others', `${SECOND}விலை = 1\nவிலா = 2\nஅச்சிடு(விலை, விலா, விலு)\n`],
    ['a name near to none', `${SECOND}அச்சிடு(எதுவோ)\n`],
    ['a word of other languages whose statement has another shape', `${SECOND}ஒன்று = [1]\nfor அ in ஒன்று:\n    அச்சிடு(அ)\n`],
    ['a word of other languages that may mean two things', `${SECOND}அச்சிடு(int("5"))\n`],
    ['a function of a module that isn\'t imported', `${SECOND}அச்சிடு(sum([1]))\n`],
    ['a missing bracket', `${SECOND}அச்சிடு(1\n`],
    ['a name that nobody knows, in the first edition', 'எதுவோ_தெரியாது()\n'],
];
for (const [what, text] of WITHOUT) {
    test(`codeAction offers nothing for ${what}`, async () => {
        await withClient(async client => {
            client.open('அ.பொழில்', text);
            const told = await client.diagnostics('அ.பொழில்');
            assert.ok(told.length > 0);
            for (const diagnostic of told) {
                assert.deepEqual(await actions(client, 'அ.பொழில்', diagnostic), []);
            }
        });
    });
}

test('codeAction: only what is asked for, and where', async () => {
    await withClient(async client => {
        const text = `${SECOND}அச்சிடு(True)\n\nஅச்சிடு(None)\n`;
        client.open('அ.பொழில்', text);
        const [one] = await client.diagnostics('அ.பொழில்');
        assert.equal((await actions(client, 'அ.பொழில்', one)).length, 1);
        assert.equal((await actions(client, 'அ.பொழில்', one, { only: ['quickfix'] })).length, 1);
        assert.deepEqual(await actions(client, 'அ.பொழில்', one, { only: ['refactor', 'source.organizeImports'] }), []);
        const at = (from, to) => ({ range: { start: { line: from, character: 0 }, end: { line: to, character: 0 } } });
        assert.deepEqual(await actions(client, 'அ.பொழில்', at(2, 2)), []);
        assert.equal((await actions(client, 'அ.பொழில்', at(0, 9))).length, 2);
    });
});

test('codeAction: hostile parameters are refused, and the server goes on', async () => {
    await withClient(async client => {
        client.open('அ.பொழில்', `${SECOND}அச்சிடு(True)\n`);
        const whole = { textDocument: { uri: client.uri('அ.பொழில்') } };
        const range = { start: { line: 1, character: 0 }, end: { line: 1, character: 20 } };
        for (const params of [{}, whole, { ...whole, range: 3 }, { ...whole, range: { start: range.start } },
                              { ...whole, range: { start: { line: -1, character: 0 }, end: range.end } },
                              { textDocument: { uri: 'file:///இல்லை' }, range }, { textDocument: 5, range }]) {
            await assert.rejects(client.ask('textDocument/codeAction', params), { code: -32602 }, JSON.stringify(params));
        }
        for (const context of [undefined, null, 7, [], { only: 3 }, { only: [null, {}, 'quickfix'] }, { diagnostics: 'அ'.repeat(350_000) }]) {
            assert.equal((await client.ask('textDocument/codeAction', { ...whole, range, context })).length, 1, JSON.stringify(context)?.slice(0, 40));
        }
        const far = { start: { line: 1e9, character: 1e9 }, end: { line: 0, character: 0 } };
        assert.equal((await client.ask('textDocument/codeAction', { ...whole, range: far })).length, 1);
    });
});
