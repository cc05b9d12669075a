// Texts as the client edits them, and what it is told to be wrong with them.

import assert from 'node:assert/strict';
import { test } from 'node:test';
import { until, withClient } from './client.js';

const SECOND = 'ஃ பொழில் 2\n';
const range = (line, from, to) => ({ start: { line, character: from }, end: { line, character: to } });

test('a fault is told with its number, place and remedy, in UTF-16', async () => {
    await withClient(async client => {
        client.open('அ.பொழில்', `${SECOND}அச்சிடு("😀", பெயர்)\n`);
        const [fault, ...more] = await client.diagnostics('அ.பொழில்');
        assert.deepEqual(more, []);
        assert.deepEqual(fault.range, range(1, 14, 19));
        assert.equal(fault.severity, 1);
        assert.match(fault.code, /^பொழி-\d+$/);
        assert.match(fault.message, /பெயர்.*\n./s);
    });
});

test('files of tests know what only tests have', async () => {
    await withClient(async client => {
        const source = `${SECOND}செயல் சோதி_கூட்டு():\n    சமம்_உறுதி(1 கூட்டு 1, 2)\n`;
        client.open('சோதனைகள்/அ.பொழில்', source);
        assert.deepEqual(await client.diagnostics('சோதனைகள்/அ.பொழில்'), []);
        client.open('அ.பொழில்', source);
        assert.equal((await client.diagnostics('அ.பொழில்')).length, 1);
    });
});

test('positions are in UTF-8 for a client that offers it', async () => {
    await withClient(async client => {
        client.open('அ.பொழில்', `${SECOND}அச்சிடு("😀", பெயர்)\n`);
        assert.deepEqual((await client.diagnostics('அ.பொழில்'))[0].range, range(1, 30, 45));
        client.change('அ.பொழில்', [{ range: range(1, 30, 45), text: '1' }]);
        assert.deepEqual(await client.diagnostics('அ.பொழில்'), []);
    }, { general: { positionEncodings: ['utf-16', 'utf-8'] } });
});

test('carriage returns and a byte order mark count for the client alone', async () => {
    await withClient(async client => {
        client.open('அ.பொழில்', '\uFEFFஃ பொழில் 2\r\nஅ = 1\r\nஅச்சிடு(அ, ஆ)\r\n');
        assert.deepEqual((await client.diagnostics('அ.பொழில்'))[0].range, range(2, 11, 12));
        client.change('அ.பொழில்', [{ range: range(2, 11, 12), text: 'அ' }]);
        assert.deepEqual(await client.diagnostics('அ.பொழில்'), []);
    });
});

test('a fault of the grammar hides no fault of meaning elsewhere, and brings none about', async () => {
    await withClient(async client => {
        client.open('அ.பொழில்', `${SECOND}செயல் அ(எ:\n    திரும்பு எ\nசெயல் ஆ():\n    திரும்பு இல்லாதது\nஅச்சிடு(அ(1))\n`);
        const places = (await client.diagnostics('அ.பொழில்')).map(fault => fault.range.start.line);
        assert.deepEqual(places, [1, 4]);
    });
});

test('a fault in one function does not hide those in others', async () => {
    await withClient(async client => {
        const wrong = 'செயல் அ():\n    திரும்பு (1 கூட்டு\nசெயல் ஆ():\n    எனில் :\n        விடு\nசெயல் இ():\n    திரும்பு 1 2\n';
        for (const first of [SECOND, '']) {
            const name = `${first.length}.பொழில்`;
            client.open(name, first + wrong);
            const lines = (await client.diagnostics(name)).map(fault => fault.range.start.line - (first ? 1 : 0));
            assert.ok(lines.some(line => line <= 1), `${first}: ${lines}`);
            assert.ok(lines.some(line => line === 3 || line === 4), `${first}: ${lines}`);
            assert.ok(lines.some(line => line >= 6), `${first}: ${lines}`);
        }
    });
});

test('hints are told as warnings and go when they no longer hold', async () => {
    await withClient(async client => {
        client.open('அ.பொழில்', `${SECOND}எண்ணிக்கை = 1\nஎண்ணிகை = 2\nஅச்சிடு(எண்ணிக்கை)\n`);
        const hints = await client.diagnostics('அ.பொழில்');
        assert.deepEqual(hints.map(hint => [hint.severity, hint.range.start.line]), [[2, 2]]);
        client.change('அ.பொழில்', [{ range: { start: { line: 2, character: 0 }, end: { line: 3, character: 0 } }, text: '' }]);
        assert.deepEqual(await client.diagnostics('அ.பொழில்'), []);
    });
});

test('the open text goes before the file, also where another text imports it', async () => {
    await withClient(async client => {
        client.write('கருவி.பொழில்', `${SECOND}செயல் பழையது():\n    திரும்பு 1\n`);
        client.open('முதன்மை.பொழில்', `${SECOND}நூஇறக்கி "கருவி"\nஅச்சிடு(புதியது())\n`);
        assert.equal((await client.diagnostics('முதன்மை.பொழில்')).length, 1);
        client.told.clear();
        client.open('கருவி.பொழில்', `${SECOND}செயல் புதியது():\n    திரும்பு 1\n`);
        assert.deepEqual(await client.diagnostics('முதன்மை.பொழில்'), []);
        client.told.clear();
        client.change('கருவி.பொழில்', `${SECOND}செயல் வேறு():\n    திரும்பு 1\n`);
        assert.equal((await client.diagnostics('முதன்மை.பொழில்')).length, 1);
        client.told.clear();
        client.write('கருவி.பொழில்', `${SECOND}செயல் புதியது():\n    திரும்பு 1\n`);
        client.tell('textDocument/didClose', { textDocument: { uri: client.uri('கருவி.பொழில்') } });
        assert.deepEqual(await client.diagnostics('முதன்மை.பொழில்'), []);
    });
});

test('a changed file is looked at when the client tells of it', async () => {
    await withClient(async client => {
        client.open('முதன்மை.பொழில்', `${SECOND}நூஇறக்கி "கருவி"\nஅச்சிடு(புதியது())\n`);
        assert.equal((await client.diagnostics('முதன்மை.பொழில்')).length, 1);
        client.told.clear();
        client.write('கருவி.பொழில்', `${SECOND}செயல் புதியது():\n    திரும்பு 1\n`);
        client.tell('workspace/didChangeWatchedFiles', { changes: [{ uri: client.uri('கருவி.பொழில்'), type: 1 }] });
        assert.deepEqual(await client.diagnostics('முதன்மை.பொழில்'), []);
    });
});

test('faults of a file that is imported but not open are told under its name, and taken back', async () => {
    await withClient(async client => {
        client.write('கருவி.பொழில்', `${SECOND}செயல் அ():\n    திரும்பு (\n`);
        client.open('முதன்மை.பொழில்', `${SECOND}நூஇறக்கி "கருவி"\nஅச்சிடு(1)\n`);
        const faults = await client.diagnostics('கருவி.பொழில்');
        assert.equal(faults[0].range.start.line, 2);
        client.change('முதன்மை.பொழில்', `${SECOND}அச்சிடு(1)\n`);
        await until(() => (client.told.get(client.uri('கருவி.பொழில்')).diagnostics.length === 0 ? true : undefined),
                    'the faults to be taken back');
    });
});

test('edits are made one after the other, many in one message', async () => {
    await withClient(async client => {
        client.open('அ.பொழில்', `${SECOND}அச்சிடு(ஒன்று)\nஅச்சிடு(இரண்டு)\n`);
        await client.diagnostics('அ.பொழில்');
        client.change('அ.பொழில்', [
            { range: { start: { line: 0, character: 10 }, end: { line: 0, character: 10 } }, text: '\nஒன்று = 1' },
            { range: range(3, 8, 14), text: 'ஒன்று' },
        ]);
        assert.deepEqual(await client.diagnostics('அ.பொழில்'), []);
    });
});

test('an edit that arrives too late is not made, and told', async () => {
    await withClient(async client => {
        client.open('அ.பொழில்', `${SECOND}அச்சிடு(1)\n`);
        client.change('அ.பொழில்', [{ range: range(1, 8, 9), text: '2' }], 5);
        assert.deepEqual(await client.diagnostics('அ.பொழில்'), []);
        client.change('அ.பொழில்', [{ range: range(1, 0, 9), text: 'தவறு(' }], 3);
        client.change('அ.பொழில்', [{ range: range(1, 8, 9), text: '3' }], 6);
        assert.deepEqual(await client.diagnostics('அ.பொழில்'), []);
        await until(() => (client.logged.length === 1 ? true : undefined), 'the message');
        assert.match(client.logged[0], /version 3/);
    });
});

test('places outside of the text count as its nearest end, turned ones as straight', async () => {
    await withClient(async client => {
        client.open('அ.பொழில்', `${SECOND}அச்சிடு(அ)`);
        client.change('அ.பொழில்', [
            { range: range(900, 5, 2147483647), text: '\n' },
            { range: { start: { line: 0, character: 4000000000 }, end: { line: 0, character: 4000000000 } }, text: '\nஅ = 12' },
            { range: range(1, 6, 5), text: '' },
        ]);
        assert.deepEqual(await client.diagnostics('அ.பொழில்'), []);
        assert.deepEqual(client.logged, []);
    });
});

test('an edit of a text that is not open, or with a negative place, is told', async () => {
    await withClient(async client => {
        client.versions.set('அ.பொழில்', 1);
        client.change('அ.பொழில்', 'அ');
        client.open('அ.பொழில்', `${SECOND}அச்சிடு(1)\n`);
        client.change('அ.பொழில்', [{ range: range(-1, 0, 0), text: 'தவறு(' }]);
        await until(() => (client.logged.length === 2 ? true : undefined), 'the messages');
    });
});

test('a text of any characters is looked at, halves of pairs among them', async () => {
    await withClient(async client => {
        const texts = ['\0', '\uD83D', 'அ\uDE00"\\', 'a\rb\r\r\nc', '((((', '"""', 'ஃ*', '\u200B=\u00A0', '\uFEFF\uFEFF'];
        for (const [index, text] of texts.entries()) {
            const name = `${index}.பொழில்`;
            client.open(name, text);
            client.open(`2${name}`, SECOND + text);
            await client.diagnostics(name);
            await client.diagnostics(`2${name}`);
        }
    });
});

test('brackets and blocks that nest too deep are a fault like any other', async () => {
    await withClient(async client => {
        for (const first of [SECOND, '']) {
            const name = `${first.length}.பொழில்`;
            client.open(name, `${first}அ = ${'('.repeat(50_000)}1${')'.repeat(50_000)}\n`);
            assert.ok((await client.diagnostics(name)).length > 0);
        }
    });
});

test('a text that was never saved is checked too', async () => {
    await withClient(async client => {
        const uri = 'untitled:Untitled-1';
        client.tell('textDocument/didOpen', { textDocument: { uri, languageId: 'pozhil', version: 1, text: `${SECOND}அச்சிடு(ஆ)\n` } });
        const told = await until(() => client.told.get(uri), 'diagnostics');
        assert.equal(told.diagnostics.length, 1);
    });
});
