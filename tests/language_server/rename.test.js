// New names: which places get them, and which names are refused, in words for the user.

import assert from 'node:assert/strict';
import { chmodSync, mkdirSync, readFileSync } from 'node:fs';
import path from 'node:path';
import { test } from 'node:test';
import { Client, withClient } from './client.js';

const SECOND = 'ஃ பொழில் 2\n';
const EDITIONS = { 'the first edition': '', 'the second edition': SECOND };
const REFUSED = -32803;

/// The text with edits made in it, whose places are counted in UTF-16.
function edited(text, edits) {
    const lines = text.split('\n');
    const byPlace = [...edits].sort((one, other) => other.range.start.line - one.range.start.line ||
        other.range.start.character - one.range.start.character);
    for (const { range, newText } of byPlace) {
        assert.equal(range.start.line, range.end.line);
        const line = lines[range.start.line];
        lines[range.start.line] = line.slice(0, range.start.character) + newText + line.slice(range.end.character);
    }
    return lines.join('\n');
}

/// What becomes of a text in which | stands before or in the name.
async function renamed(client, marked, newName, name = 'அ.பொழில்') {
    const text = marked.replace('|', '');
    client.open(name, text);
    const { changes } = await client.ask('textDocument/rename', { ...client.at(name, marked), newName });
    return edited(text, changes[client.uri(name)]);
}

const prepared = (client, marked) => {
    client.open('அ.பொழில்', marked.replace('|', ''));
    return client.ask('textDocument/prepareRename', client.at('அ.பொழில்', marked));
};

// [what, program with the name marked, new name, program afterwards]
const BOTH = [
    ['a variable', '|அ = 1\nஅச்சிடு(அ, "அ") ஃ அ\n', 'புதிது', 'புதிது = 1\nஅச்சிடு(புதிது, "அ") ஃ அ\n'],
    ['a parameter, not what has its name elsewhere', 'செயல் க(|அ):\n    திரும்பு அ கூட்டு 1\nஅ = 5\nஅச்சிடு(க(அ))\n', 'ஆ',
     'செயல் க(ஆ):\n    திரும்பு ஆ கூட்டு 1\nஅ = 5\nஅச்சிடு(க(அ))\n'],
    ['the variable, not a parameter that hides it', 'செயல் க(அ):\n    திரும்பு அ கூட்டு 1\n|அ = 5\nஅச்சிடு(க(அ))\n', 'ஆ',
     'செயல் க(அ):\n    திரும்பு அ கூட்டு 1\nஆ = 5\nஅச்சிடு(க(ஆ))\n'],
    ['a function that is called before it stands', 'செயல் ஒன்று():\n    திரும்பு இர|ண்டு()\nசெயல் இரண்டு():\n    திரும்பு 2\nஅச்சிடு(ஒன்று())\n', 'நான்கு',
     'செயல் ஒன்று():\n    திரும்பு நான்கு()\nசெயல் நான்கு():\n    திரும்பு 2\nஅச்சிடு(ஒன்று())\n'],
    ['a field, also after the dot of an object', 'கட்டமைப்பு ப:\n    நிறைவு = 1\n    செயல் எடைமுறை(தான்):\n        திரும்பு தான்.நிறைவு\nஓ = ப()\nஓ.நி|றைவு = 3\nஅச்சிடு(ஓ.எடைமுறை())\n', 'அளவை',
     'கட்டமைப்பு ப:\n    அளவை = 1\n    செயல் எடைமுறை(தான்):\n        திரும்பு தான்.அளவை\nஓ = ப()\nஓ.அளவை = 3\nஅச்சிடு(ஓ.எடைமுறை())\n'],
    ['a method of a parent, with that of its child', 'கட்டமைப்பு ப:\n    செயல் ஒலி(தான்):\n        திரும்பு "ப"\nகட்டமைப்பு கா(ப):\n    செயல் ஒ|லி(தான்):\n        திரும்பு "கா"\nஓ = கா()\nஅச்சிடு(ஓ.ஒலி())\n', 'சத்தம்',
     'கட்டமைப்பு ப:\n    செயல் சத்தம்(தான்):\n        திரும்பு "ப"\nகட்டமைப்பு கா(ப):\n    செயல் சத்தம்(தான்):\n        திரும்பு "கா"\nஓ = கா()\nஅச்சிடு(ஓ.சத்தம்())\n'],
    ['a structure, also where it is a parent', 'கட்டமைப்பு ப:\n    நிறைவு = 1\nகட்டமைப்பு கா(|ப):\n    நெட்டளவு = 1\nஓ = ப()\nஅச்சிடு(ஓ.நிறைவு)\n', 'பறவை',
     'கட்டமைப்பு பறவை:\n    நிறைவு = 1\nகட்டமைப்பு கா(பறவை):\n    நெட்டளவு = 1\nஓ = பறவை()\nஅச்சிடு(ஓ.நிறைவு)\n'],
    ['an enumeration', 'வகை |நிறங்கள்:\n    ஒன்று\n    இரண்டு\nஅச்சிடு(நிறங்கள்.இரண்டு)\n', 'வண்ணங்கள்', 'வகை வண்ணங்கள்:\n    ஒன்று\n    இரண்டு\nஅச்சிடு(வண்ணங்கள்.இரண்டு)\n'],
    ['one of its members', 'வகை நிறங்கள்:\n    ஒன்று\n    இரண்டு\nஅச்சிடு(நிறங்கள்.இரண்|டு)\n', 'மூன்று', 'வகை நிறங்கள்:\n    ஒன்று\n    மூன்று\nஅச்சிடு(நிறங்கள்.மூன்று)\n'],
    ['the parameter of a function without a name alone', 'அ = 7\nஇரு = (|அ) => அ பெருக்கு 2\nஅச்சிடு(அ)\n', 'ஆ',
     'அ = 7\nஇரு = (ஆ) => ஆ பெருக்கு 2\nஅச்சிடு(அ)\n'],
    ['what characters of two units stand before', '|அ = 1\nஅச்சிடு("😀😀", அ)\n', 'ஆ', 'ஆ = 1\nஅச்சிடு("😀😀", ஆ)\n'],
];

for (const [edition, first] of Object.entries(EDITIONS)) {
    for (const [what, before, newName, after] of BOTH) {
        test(`rename: ${what}, in ${edition}`, async () => {
            await withClient(async client => {
                assert.equal(await renamed(client, first + before, newName), first + after);
            });
        });
    }

    test(`rename goes over all files of the folder in ${edition}, open or not`, async () => {
        await withClient(async client => {
            const tool = `${first}செயல் உதவி(அ):\n    திரும்பு அ பெருக்கு 3\n`;
            const unopened = `${first}நூஇறக்கி "கருவி"\nஅச்சிடு(உதவி(1))\n`;
            client.write('கருவி.பொழில்', tool);
            client.write('மற்றது.பொழில்', unopened);
            client.write('வேறு.பொழில்', `${first}செயல் உதவி():\n    திரும்பு 0\nஅச்சிடு(உதவி())\n`);
            const text = `${first}நூஇறக்கி "கருவி"\nஅச்சிடு(உத|வி(3))\n`;
            client.open('அ.பொழில்', text.replace('|', ''));
            const { changes } = await client.ask('textDocument/rename', { ...client.at('அ.பொழில்', text), newName: 'மும்மடங்கு' });
            const names = Object.keys(changes).map(uri => decodeURI(uri).split('/').at(-1)).sort();
            assert.deepEqual(names, ['அ.பொழில்', 'கருவி.பொழில்', 'மற்றது.பொழில்']);
            assert.equal(edited(tool, changes[client.uri('கருவி.பொழில்')]), tool.replace('உதவி', 'மும்மடங்கு'));
            assert.equal(edited(unopened, changes[client.uri('மற்றது.பொழில்')]), unopened.replace('உதவி', 'மும்மடங்கு'));
        });
    });
}

test('rename: in the first edition a variable is that of the whole program, in the second that of its function', async () => {
    const marked = 'செயல் க():\n    வி|டை = 1\n    திரும்பு விடை\nசெயல் ச():\n    விடை = 2\n    திரும்பு விடை\nஅச்சிடு(க(), ச())\n';
    const whole = marked.replace('|', '');
    await withClient(async client => {
        assert.equal(await renamed(client, marked, 'புதிது'), whole.replaceAll('விடை', 'புதிது'));
        assert.equal(await renamed(client, SECOND + marked, 'புதிது'),
                     SECOND + whole.replace('விடை', 'புதிது').replace('விடை', 'புதிது'));
    });
});

test('rename: a variable of a method is another one than the field of its name', async () => {
    const marked = 'கட்டமைப்பு ப:\n    எண்ணி = 0\n    செயல் க(தான்):\n        எண்|ணி = 1\n        திரும்பு எண்ணி கூட்டு தான்.எண்ணி\nஅச்சிடு(ப().க())\n';
    const [field, first, second, ofField] = marked.replace('|', '').split('எண்ணி');
    await withClient(async client => {
        assert.equal(await renamed(client, SECOND + marked, 'மொத்தம்'),
                     `${SECOND}${field}எண்ணி${first}மொத்தம்${second}மொத்தம்${ofField}எண்ணி${marked.split('எண்ணி').at(-1)}`);
    });
});

// [what, program, new name, program afterwards], all of the second edition
const OF_SECOND = [
    ['a variable of the file that functions assign by பொது', 'செயல் க():\n    பொது எண்ணி\n    எண்ணி = எண்ணி கூட்டு 1\nஎண்|ணி = 0\nக()\nஅச்சிடு(எண்ணி)\n'],
    ['a variable that an inner function assigns before the outer one does',
     'செயல் க():\n    செயல் உள்():\n        எண்ணி = 5\n        திரும்பு எண்ணி\n    எண்|ணி = 1\n    உள்()\n    திரும்பு எண்ணி\nஅச்சிடு(க())\n'],
    ['the state of an application, also in functions before it stands and in pages',
     'வலைதளம் செயலி (\n    தலைமை(இணைய_தலைப்பு: "அ")\n    குமரி(\n        நெடுவரிசை()(\n            உரை(எண்ணி),\n            பொத்தான்(உரை("கூட்டு"), அழுத்தினால்: கூட்டுக)\n        )\n    )\n    வரையறை(\n        செயல் கூட்டுக():\n            எண்ணி = எண்ணி கூட்டு 1\n        எண்|ணி = 0\n    )\n)\n'],
];
for (const [what, marked] of OF_SECOND) {
    test(`rename: ${what}`, async () => {
        await withClient(async client => {
            const text = SECOND + marked;
            assert.equal(await renamed(client, text, 'மொத்தம்'), text.replace('|', '').replaceAll('எண்ணி', 'மொத்தம்'));
        });
    });
}

test('rename: what was typed in two parts is found, and the places of a client that counts in UTF-8', async () => {
    const capabilities = { general: { positionEncodings: ['utf-8'] } };
    await withClient(async client => {
        client.open('அ.பொழில்', `${SECOND}மொ = 1\nஅச்சிடு("😀", ம\u0BC6\u0BBE)\n`);
        const { changes } = await client.ask('textDocument/rename',
                                             { textDocument: { uri: client.uri('அ.பொழில்') }, position: { line: 1, character: 3 }, newName: 'ப' });
        const places = changes[client.uri('அ.பொழில்')].map(({ range }) => [range.start.line, range.start.character, range.end.character]);
        assert.deepEqual(places, [[1, 0, 6], [2, 30, 39]]);
    }, capabilities);
});

test('prepareRename tells the word, and refuses what has no name of the program', async () => {
    await withClient(async client => {
        const { range, placeholder } = await prepared(client, `${SECOND}மொத்தம் = 1\nஅச்சிடு(மொத்|தம்)\n`);
        assert.equal(placeholder, 'மொத்தம்');
        assert.deepEqual(range, { start: { line: 2, character: 8 }, end: { line: 2, character: 15 } });
        for (const marked of ['அச்|சிடு(1)\n', 'எனி|ல் மெய்:\n    விடு\n', 'அ = நீள|ம்("அ")\n', 'அ = "உ|ரை"\n', 'அ = 1|2\n', '|\n', 'அச்சிடு(தெரி|யாதது)\n',
                              'கட்டமைப்பு ப:\n    செயல் துவ|க்கம்(தான்):\n        விடு\n', 'கட்டமைப்பு ப:\n    செயல் க(தா|ன்):\n        விடு\n',
                              'நூஇறக்கி "பட்டியல்"\nஅச்சிடு(பட்டியல்_முத|ல்([1]))\n']) {
            for (const first of Object.values(EDITIONS)) {
                await assert.rejects(prepared(client, first + marked), { code: REFUSED, message: /[ஂ-௺]/ }, first + marked);
            }
        }
    });
});

// [what, program, new name, what the refusal says]
const REFUSALS = [
    ['no name', '|அ = 1\nஅச்சிடு(அ)\n', ['', '1அ', 'அ ஆ', 'அ.ஆ', '"அ"', 'அ\n', '+', 'ஃ', ' அ', '12'], /பெயர் அல்ல/],
    ['a word of the language', '|அ = 1\nஅச்சிடு(அ)\n', ['எனில்', 'கூட்டு', 'நீளம்', 'பொத்தான்', 'தான்', 'மெய்', 'துவக்கம்'], /மொழியின் சொல்|பெயர் அல்ல/],
    ['a name that the same function has', 'செயல் க(|அ):\n    ஆ = 2\n    திரும்பு அ கூட்டு ஆ\nஅச்சிடு(க(1))\n', ['ஆ', 'க'], /ஏற்கெனவே உள்ளது/],
    ['the name of a parameter that would capture the variable', '|அ = 1\nசெயல் க(ஆ):\n    திரும்பு அ கூட்டு ஆ\nஅச்சிடு(க(2))\n', ['ஆ'], /ஏற்கெனவே உள்ளது/],
    ['the name of another function of the file', 'செயல் |க():\n    திரும்பு 1\nசெயல் ச():\n    திரும்பு 2\nஅச்சிடு(க(), ச())\n', ['ச'], /ஏற்கெனவே உள்ளது/],
    ['the name of another member', 'கட்டமைப்பு ப:\n    |நிறைவு = 1\n    நெட்டளவு = 2\nஓ = ப()\nஅச்சிடு(ஓ.நிறைவு, ஓ.நெட்டளவு)\n', ['நெட்டளவு'], /ஏற்கெனவே உள்ளது/],
    ['any name in a program with faults', '|அ = 1\nஅச்சிடு(அ\n', ['ஆ'], /பிழை உள்ளது/],
];
for (const [edition, first] of Object.entries(EDITIONS)) {
    for (const [what, marked, newNames, reason] of REFUSALS) {
        test(`rename refuses ${what}, in ${edition}`, async () => {
            await withClient(async client => {
                for (const newName of newNames) {
                    await assert.rejects(renamed(client, first + marked, newName), { code: REFUSED, message: reason }, newName);
                }
            });
        });
    }
}

test('rename refuses names that would catch other variables, which no outline of the text shows', async () => {
    await withClient(async client => {
        // A parameter that would hide a variable which the function reads.
        const hiding = `${SECOND}மொத்தம் = 5\nசெயல் க(|அ):\n    திரும்பு அ கூட்டு மொத்தம்\nஅச்சிடு(க(1))\n`;
        await assert.rejects(renamed(client, hiding, 'மொத்தம்'), { code: REFUSED });
        // A variable of a function that would become that of the file.
        const shared = `${SECOND}செயல் க():\n    பொது மொத்தம்\n    மொத்தம் = 2\n    |அ = 1\n    திரும்பு அ\nமொத்தம் = 5\nஅச்சிடு(க(), மொத்தம்)\n`;
        await assert.rejects(renamed(client, shared, 'மொத்தம்'), { code: REFUSED });
        // An inner function's own variable that would become the outer one's, which is assigned further down.
        const inner = `${SECOND}செயல் க():\n    செயல் உள்():\n        |அ = 5\n        திரும்பு அ\n    உள்()\n    ஆ = 1\n    திரும்பு ஆ\nஅச்சிடு(க())\n`;
        await assert.rejects(renamed(client, inner, 'ஆ'), { code: REFUSED });
        // In the first edition the variables of all functions are one.
        const global = 'செயல் க():\n    |அ = 1\n    திரும்பு அ\nசெயல் ச():\n    ஆ = 2\n    திரும்பு ஆ\nஅச்சிடு(க(), ச())\n';
        await assert.rejects(renamed(client, global, 'ஆ'), { code: REFUSED });
        // One letter away from a word of the language, or together with the next word one.
        await assert.rejects(renamed(client, '|அ = 1\nஅச்சிடு(அ)\n', 'அச்சிடூ'), { code: REFUSED });
    });
});

test('rename: members that nobody can tell apart get the new name together, those of the language keep theirs', async () => {
    await withClient(async client => {
        const two = `${SECOND}கட்டமைப்பு நாய்:\n    பெயர் = "அ"\nகட்டமைப்பு பூனை:\n    பெயர் = "ஆ"\nஒவ்வொன்றாக ஓ இல் [நாய்(), பூனை()]:\n    அச்சிடு(ஓ.பெய|ர்)\n`;
        assert.equal(await renamed(client, two, 'அழைப்பு'), two.replace('|', '').replaceAll('பெயர்', 'அழைப்பு'));
        const list = `${SECOND}கட்டமைப்பு பை:\n    செயல் சே|ர்(தான், அ):\n        திரும்பு அ\nஒவ்வொன்றாக ஓ இல் [பை(), [1]]:\n    ஓ.சேர்(1)\n`;
        await assert.rejects(renamed(client, list, 'இடு'), { code: REFUSED });
    });
});

test('rename refuses files that can\'t be written to or stand outside of the folder, and test functions other names', async () => {
    await withClient(async client => {
        const text = `${SECOND}நூஇறக்கி "கருவி"\nஅச்சிடு(உத|வி(3))\n`;
        client.write('கருவி.பொழில்', `${SECOND}செயல் உதவி(அ):\n    திரும்பு அ\n`);
        chmodSync(path.join(client.folder, 'கருவி.பொழில்'), 0o444);
        if (process.getuid() !== 0) { // who writes to everything
            await assert.rejects(renamed(client, text, 'புதிது'), { code: REFUSED, message: /எழுத முடியாத/ });
        }
        mkdirSync(path.join(client.folder, 'சோதனைகள்'));
        const tests = `${SECOND}செயல் சோதி_|ஒன்று():\n    உறுதிசெய்(மெய், "")\n`;
        await assert.rejects(renamed(client, tests, 'ஒன்று', 'சோதனைகள்/க.பொழில்'), { code: REFUSED, message: /சோதி_/ });
        assert.match(await renamed(client, tests, 'சோதி_இரண்டு', 'சோதனைகள்/க.பொழில்'), /செயல் சோதி_இரண்டு\(\)/);
    });
    const outside = new Client();
    try {
        outside.write('கருவி.பொழில்', `${SECOND}செயல் உதவி(அ):\n    திரும்பு அ\n`);
        await withClient(async client => {
            const text = `${SECOND}நூஇறக்கி "${path.join(outside.folder, 'கருவி')}"\nஅச்சிடு(உத|வி(3))\n`;
            await assert.rejects(renamed(client, text, 'புதிது'), { code: REFUSED, message: /வெளியே/ });
        });
    } finally {
        outside.discard();
    }
});

test('rename: hostile parameters are refused, and the server goes on', async () => {
    await withClient(async client => {
        client.open('அ.பொழில்', `${SECOND}அ = 1\n`);
        const place = { textDocument: { uri: client.uri('அ.பொழில்') }, position: { line: 1, character: 0 } };
        for (const params of [place, { ...place, newName: 3 }, { ...place, newName: null }, { newName: 'ஆ' }, {}, null,
                              { ...place, position: { line: -1, character: 0 }, newName: 'ஆ' }, { ...place, position: [], newName: 'ஆ' }]) {
            await assert.rejects(client.ask('textDocument/rename', params ?? undefined), { code: -32602 }, JSON.stringify(params));
        }
        const far = { ...place, position: { line: 1e9, character: 1e9 }, newName: 'ஆ' };
        await assert.rejects(client.ask('textDocument/rename', far), { code: REFUSED });
        for (const newName of ['அ'.repeat(350_000), 'a\0b', '\uFFFD', '😀', '\u200B', 'அ\u0BCD\u0BCD', '<script>']) {
            await assert.rejects(client.ask('textDocument/rename', { ...place, newName }), error => error.message.length < 2000);
        }
        const { changes } = await client.ask('textDocument/rename', { ...place, newName: 'ஆ' });
        assert.equal(Object.values(changes).flat().length, 1);
    });
});

// POZHIL_RENAMES says how many names of each program.
const RENAMES = Number(process.env.POZHIL_RENAMES ?? 4);
const PROGRAMS = ['எடுத்துக்காட்டுகள்/வங்கிக்_கணக்கு.பொழில்', 'எடுத்துக்காட்டுகள்/இரண்டாம்_பதிப்பு/பணிப்_பட்டியல்.பொழில்',
                  'எடுத்துக்காட்டுகள்/இரண்டாம்_பதிப்பு/கணிப்பான்.பொழில்', 'எடுத்துக்காட்டுகள்/சொல்_எண்ணி.பொழில்'];

test('rename: names of whole programs can be changed, and changed back', async () => {
    await withClient(async client => {
        let count = 0;
        for (const program of PROGRAMS) {
            const text = readFileSync(program, 'utf8');
            const names = [...new Map([...text.matchAll(/(?<=^ *)([\p{L}\p{M}_]+)(?= = )/gmu)].map(found => [found[1], found.index]))];
            for (const [name, index] of names.slice(0, RENAMES)) {
                const changed = await renamed(client, `${text.slice(0, index)}|${text.slice(index)}`, 'முழுதும்_புதிது');
                assert.ok(changed !== text && changed.includes('முழுதும்_புதிது'), `${program}: ${name}`);
                const begin = changed.indexOf('முழுதும்_புதிது');
                assert.equal(await renamed(client, `${changed.slice(0, begin)}|${changed.slice(begin)}`, name), text, `${program}: ${name}`);
                count += 1;
            }
        }
        assert.ok(count >= Math.min(RENAMES, 3) * PROGRAMS.length, `${count}`);
    });
});
