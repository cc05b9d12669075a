// Words where they can stand, and members by what is certain of the value before the dot.

import assert from 'node:assert/strict';
import { test } from 'node:test';
import { withClient } from './client.js';

const SECOND = 'ஃ பொழில் 2\n';
const EDITIONS = { 'the first edition': '', 'the second edition': SECOND };

async function offered(client, marked) {
    client.open('அ.பொழில்', marked.replace('|', ''));
    const list = await client.ask('textDocument/completion', client.at('அ.பொழில்', marked));
    return list.items.map(item => item.label);
}

// [place, text with the place, words that can stand there, words that can't]
const PLACES = [
    ['at the beginning of a program', '|', ['எனில்', 'சுற்று', 'செயல்', 'கட்டமைப்பு', 'நூஇறக்கி', 'திரும்பு'], ['இல்', 'கூட்டு', 'இல்லைஎனில்', 'பிடி', 'மற்றவை', 'கூட்டிசேர்']],
    ['where a statement is being written', 'அ = 1\nஎ|', ['எனில்'], ['இல்', 'கூட்டு', 'இல்லைஎனில்']],
    ['in a function', 'செயல் க():\n    அ = 1\n    |\n', ['எனில்', 'திரும்பு', 'பொது'], ['இல்லைஎனில்', 'பிடி', 'சமம்']],
    ['after a block with a condition', 'எனில் மெய்:\n    விடு\n|', ['இல்லைஎனில்', 'இல்லை', 'சுற்று'], ['பிடி', 'நிலை', 'கூட்டு']],
    ['after a try', 'முயற்சி:\n    விடு\n|', ['பிடி'], ['இல்லைஎனில்', 'கூட்டு']],
    ['in a choice of cases', 'தேர்வு 1:\n    நிலை 1:\n        விடு\n    |', ['நிலை', 'மற்றவை'], ['பிடி', 'கூட்டு', 'இல்']],
    ['in a structure', 'கட்டமைப்பு ப:\n    அ = 1\n    |', ['செயல்', 'ரகசிய'], ['கூட்டு', 'நிறுத்து', 'பிடி']],
    ['where a value begins', 'அ = |', ['மெய்', 'பொய்', 'இல்லை', 'வினை'], ['எனில்', 'சுற்று', 'கூட்டு', 'இல்', 'செயல்', 'கூட்டிசேர்', 'திரும்பு']],
    ['in the brackets of a call', 'அ = 1\nபெயர்(அ, |)\n', ['மெய்', 'இல்லை'], ['சுற்று', 'கூட்டு', 'கட்டமைப்பு']],
    ['after an operator', 'அ = 1 கூட்டு |', ['குறை'], ['கூட்டு', 'சுற்று', 'எனில்']],
    ['after a value', 'அ = 1 |', ['கூட்டு', 'சமம்', 'மற்றும்', 'எனில்'], ['மெய்', 'சுற்று', 'செயல்', 'கூட்டிசேர்', 'இல்', 'திரும்பு']],
    ['after the value of a condition', 'எனில் அ |', ['சமம்', 'பெரிது', 'மற்றும்'], ['மெய்', 'சுற்று', 'கூட்டிசேர்']],
    ['after a name that begins a statement', 'அ = 1\nஅ |', ['கூட்டிசேர்', 'ஒன்றுசேர்'], ['சுற்று', 'மெய்', 'இல்']],
    ['after the first value of a choice', 'அ = மெய் எனில் 1 |', ['இல்லைஎனில்', 'கூட்டு'], ['சுற்று', 'மெய்']],
    ['after the variable of a loop', 'ஒவ்வொன்றாக அ |', ['இல்'], ['கூட்டு', 'மெய்', 'எனில்']],
    ['after the word of a condition', 'எனில் |', ['இல்லை', 'மெய்'], ['சுற்று', 'கூட்டு', 'இல்', 'திரும்பு']],
    ['after "return"', 'செயல் க():\n    திரும்பு |\n', ['மெய்', 'இல்லை', 'வினை'], ['சுற்று', 'கூட்டு', 'திரும்பு']],
];
for (const [edition, first] of Object.entries(EDITIONS)) {
    test(`completion: words only where they can stand, in ${edition}`, async () => {
        await withClient(async client => {
            for (const [place, marked, fitting, others] of PLACES) {
                const words = await offered(client, first + marked);
                for (const word of fitting) {
                    assert.ok(words.includes(word), `${place}: ${word}`);
                }
                for (const word of others) {
                    assert.ok(!words.includes(word), `${place}: not ${word}`);
                }
            }
        });
    });
}

test('completion: values in the brackets of widgets, statements in the logic of an application', async () => {
    await withClient(async client => {
        const app = (body, logic) => `${SECOND}வலைதளம் செயலி (\n    தலைமை(இணைய_தலைப்பு: "அ")\n    குமரி(\n        ${body}\n    )\n    வரையறை(\n        எண்ணி = 1\n        ${logic}\n    )\n)\n`;
        const inWidget = await offered(client, app('உரை("அ", |)', ''));
        assert.ok(inWidget.includes('தெரிய') && inWidget.includes('எண்ணி') && !inWidget.includes('சுற்று') && !inWidget.includes('கூட்டு'));
        const value = await offered(client, app('உரை("அ", தெரிய: |)', ''));
        assert.ok(value.includes('மெய்') && !value.includes('சுற்று'));
        const logic = await offered(client, app('உரை("அ")', '|'));
        assert.ok(logic.includes('செயல்') && logic.includes('எனில்') && !logic.includes('கூட்டு'));
    });
});

const STRUCTURES = 'கட்டமைப்பு நாய்:\n    பெயர் = ""\n    செயல் குரை(தான்):\n        விடு\nகட்டமைப்பு குட்டி(நாய்):\n    வயது = 1\nகட்டமைப்பு மரம்:\n    நெட்டளவு = 1\n';
// [what, text with the place, members that fit, members that don't], of the second edition
const MEMBERS = [
    ['a text', 'அ = "அ"\nஅ.|', ['சுத்தம்', 'கொண்டுள்ளது'], ['சேர்', 'பெயர்', 'குரை', 'ஆண்டு']],
    ['a text as it is written', 'அச்சிடு("அ".|)\n', ['சுத்தம்'], ['சேர்', 'பெயர்', 'ஆண்டு']],
    ['a list', 'அ = [1, [2]]\nஅ.|', ['சேர்'], ['சுத்தம்', 'பெயர்', 'ஆண்டு']],
    ['a list of several lines', 'அ = [\n    1,\n    2\n]\nஅ.|', ['சேர்'], ['சுத்தம்', 'பெயர்']],
    ['a time', 'அ = இப்போதுநேரம்()\nஅ.|', ['ஆண்டு', 'மாதம்'], ['சேர்', 'பெயர்']],
    ['what a built-in function gives', 'பிளவு("அ ஆ", " ").|', ['சேர்'], ['சுத்தம்', 'பெயர்']],
    ['an object', 'ஓ = மரம்()\nஓ.|', ['நெட்டளவு'], ['பெயர்', 'குரை', 'சேர்', 'சுத்தம்']],
    ['an object with a parent', 'ஓ = குட்டி()\nஓ.|', ['வயது', 'பெயர்', 'குரை'], ['நெட்டளவு', 'சேர்']],
    ['an object as it is made', 'மரம்().|', ['நெட்டளவு'], ['பெயர்', 'சேர்']],
    ['a variable that is set twice alike', 'அ = [1]\nஅ = [2]\nஅ.|', ['சேர்'], ['பெயர்', 'சுத்தம்']],
    ['a variable that is set to different kinds', 'அ = [1]\nஅ = "அ"\nஅ.|', ['சேர்', 'சுத்தம்', 'பெயர்', 'நெட்டளவு'], ['எனில்']],
    ['a parameter', 'செயல் க(அ):\n    அ.|\n', ['சேர்', 'சுத்தம்', 'பெயர்', 'நெட்டளவு'], ['எனில்']],
    ['a parameter that hides a variable', 'அ = [1]\nசெயல் க(அ):\n    அ.|\n', ['சேர்', 'சுத்தம்', 'பெயர்'], []],
    ['the variable of a loop', 'அ = [1]\nஒவ்வொன்றாக அ இல் ["அ"]:\n    அ.|\n', ['சேர்', 'சுத்தம்', 'பெயர்'], []],
    ['an element', 'அ = ["அ"]\nஅ[0].|', ['சேர்', 'சுத்தம்', 'பெயர்'], []],
    ['what a handler of faults has caught', 'அ = "க"\nமுயற்சி:\n    விடு\nபிடி(அ):\n    விடு\nஅ.|', ['சேர்', 'சுத்தம்', 'பெயர்'], []],
    ['what calculations give', 'அ = [1] கூட்டு ஆ\nஅ.|', ['சேர்', 'சுத்தம்', 'பெயர்'], []],
    ['a variable of which calls can make anything', 'செயல் க(மாற்று இ):\n    இ = "அ"\nஅ = [1]\nக(அ)\nஅ.|', ['சேர்', 'சுத்தம்', 'பெயர்'], []],
];
test('completion: members of what is certain before the dot, else all', async () => {
    await withClient(async client => {
        for (const [what, marked, fitting, others] of MEMBERS) {
            const words = await offered(client, SECOND + STRUCTURES + marked);
            for (const word of fitting) {
                assert.ok(words.includes(word), `${what}: ${word}`);
            }
            for (const word of others) {
                assert.ok(!words.includes(word), `${what}: not ${word}`);
            }
        }
    });
});

test('completion: members by kind in the first edition too, where a function may set the variable of another', async () => {
    await withClient(async client => {
        const object = await offered(client, `${STRUCTURES}ஓ = மரம்()\nஓ.|`);
        assert.ok(object.includes('நெட்டளவு') && !object.includes('பெயர்') && !object.includes('சேர்'));
        const list = await offered(client, `${STRUCTURES}ஓ = [1]\nஓ.|`);
        assert.ok(list.includes('சேர்') && !list.includes('பெயர்') && !list.includes('ஆண்டு'));
        const anything = await offered(client, `${STRUCTURES}செயல் க():\n    ஓ = மரம்()\nஓ = [1]\nஓ.|`);
        assert.ok(anything.includes('சேர்') && anything.includes('நெட்டளவு'));
    });
});

test('completion: hostile texts and places are answered, and memory stays flat', async () => {
    await withClient(async client => {
        const long = 'அ'.repeat(350_000);
        for (const text of [long, `${long}.`, `அ = ${'['.repeat(3000)}`, `${'அ.'.repeat(3000)}`, `${'('.repeat(3000)}.`, ')].', '].', '}.', '").', 'தேர்வு', '    .', '=> ( .']) {
            for (const first of Object.values(EDITIONS)) {
                client.open('அ.பொழில்', first + text);
                const lines = (first + text).split('\n');
                for (const position of [{ line: lines.length - 1, character: lines.at(-1).length }, { line: 1e9, character: 1e9 }, { line: 0, character: 0 }]) {
                    await client.ask('textDocument/completion', { textDocument: { uri: client.uri('அ.பொழில்') }, position });
                }
            }
        }
        for (const position of [undefined, {}, { line: -1, character: 0 }, { line: 0, character: -7 }, { line: 0.5, character: 0 }, { line: '0', character: [] }]) {
            await assert.rejects(client.ask('textDocument/completion', { textDocument: { uri: client.uri('அ.பொழில்') }, position }), { code: -32602 });
        }
    });
});
