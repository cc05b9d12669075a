// What the language server answers about a source: a test for each request.

import assert from 'node:assert/strict';
import { test } from 'node:test';
import { withClient } from './client.js';

const SECOND = 'ஃ பொழில் 2\n';
const range = (line, from, to) => ({ start: { line, character: from }, end: { line, character: to } });
const EDITIONS = { 'the first edition': '', 'the second edition': SECOND };

const PROGRAM = `நூஇறக்கி "கருவி"

வகை வண்ணங்கள்:
    சிவப்பு
    பச்சை

கட்டமைப்பு பறவை:
    பெயர் = ""
    செயல் பற(தான், தொலைவு):
        வேகம் = தொலைவு
        திரும்பு வேகம்

ஃ இரண்டையும் கூட்டும்
ஃ பல தடவை
செயல் கூட்டல்(அ, ஆ):
    விடை = அ கூட்டு ஆ
    திரும்பு விடை

மொத்தம் = கூட்டல்(1, 2)
அச்சிடு(மொத்தம், உதவி(3))
`;
const TOOLS = `ஃ மூன்று மடங்கு
செயல் உதவி(எண்ணிக்கை):
    திரும்பு எண்ணிக்கை பெருக்கு 3
`;

/// Opens a text in which | is the place that is asked about.
async function ask(client, method, marked, more = {}, name = 'அ.பொழில்') {
    client.open(name, marked.replace('|', ''));
    return client.ask(`textDocument/${method}`, { ...client.at(name, marked), ...more });
}

const labels = list => list.items.map(item => item.label);
async function offered(client, marked) {
    return labels(await ask(client, 'completion', marked));
}

for (const [edition, first] of Object.entries(EDITIONS)) {
    const text = first + PROGRAM;
    const line = number => number + (first === '' ? 0 : 1);

    test(`documentSymbol: what a source of ${edition} names, as a tree`, async () => {
        await withClient(async client => {
            const tree = nodes => nodes.map(node => (node.children ? [node.name, node.kind, tree(node.children)]
                : [node.name, node.kind]));
            const symbols = await ask(client, 'documentSymbol', `${text}|`);
            assert.deepEqual(tree(symbols), [
                ['வண்ணங்கள்', 10, [['சிவப்பு', 22], ['பச்சை', 22]]],
                ['பறவை', 5, [['பெயர்', 8], ['பற', 6]]],
                ['கூட்டல்', 12],
                ['மொத்தம்', 13],
            ]);
            const bird = symbols[1];
            assert.deepEqual([bird.range.start.line, bird.range.end.line], [line(6), line(10)]);
            assert.equal(symbols[2].detail, 'செயல் கூட்டல்(அ, ஆ)');
            assert.deepEqual(symbols[2].selectionRange, range(line(14), 6, 13));
        });
    });

    test(`foldingRange: blocks, brackets and comments of ${edition}`, async () => {
        await withClient(async client => {
            const folds = await ask(client, 'foldingRange', `${text}அ = [\n1,\n2]\n|`);
            assert.deepEqual(folds.map(fold => [fold.startLine, fold.endLine, fold.kind]), [
                [line(2), line(4), undefined], [line(6), line(10), undefined], [line(8), line(10), undefined],
                [line(12), line(13), 'comment'], [line(14), line(16), undefined], [line(20), line(22), undefined],
            ]);
        });
    });

    test(`definition, references and documentHighlight go over imports of ${edition}`, async () => {
        await withClient(async client => {
            client.write('கருவி.பொழில்', first + TOOLS);
            const [help] = await ask(client, 'definition', text.replace('உதவி(3)', 'உத|வி(3)'));
            assert.equal(decodeURI(help.uri).endsWith('/கருவி.பொழில்'), true);
            assert.deepEqual(help.range, range(line(1), 6, 10));
            // The open text is what counts, also where it isn't saved.
            client.open('கருவி.பொழில்', `${first}\n${TOOLS}`);
            const all = await ask(client, 'references', text.replace('உதவி(3)', 'உத|வி(3)'),
                                  { context: { includeDeclaration: true } });
            assert.deepEqual(all.map(place => place.range.start.line).sort(), [line(2), line(19)].sort());
            const uses = await ask(client, 'references', text.replace('உதவி(3)', 'உத|வி(3)'),
                                   { context: { includeDeclaration: false } });
            assert.deepEqual(uses.map(place => place.range.start.line), [line(19)]);
            const marked = await ask(client, 'documentHighlight', text.replace('அ கூட்டு ஆ', '|அ கூட்டு ஆ'));
            assert.deepEqual(marked.map(place => place.range), [range(line(14), 14, 15), range(line(15), 11, 12)]);
        });
    });

    test(`hover tells what functions of ${edition} take, with the comment above them`, async () => {
        await withClient(async client => {
            client.write('கருவி.பொழில்', first + TOOLS);
            const own = await ask(client, 'hover', text.replace('கூட்டல்(1', '|கூட்டல்(1'));
            assert.match(own.contents.value, /செயல் கூட்டல்\(அ, ஆ\)[^]*இரண்டையும் கூட்டும்\nபல தடவை/);
            assert.deepEqual(own.range, range(line(18), 10, 17));
            const imported = await ask(client, 'hover', text.replace('உதவி(3)', 'உதவி|(3)'));
            assert.match(imported.contents.value, /செயல் உதவி\(எண்ணிக்கை\)[^]*கருவி\.பொழில்[^]*மூன்று மடங்கு/);
        });
    });

    test(`signatureHelp: which argument of a call is written, in ${edition}`, async () => {
        await withClient(async client => {
            const help = await ask(client, 'signatureHelp', `${text}கூட்டல்([1, 2], (3|`);
            assert.equal(help, null);
            const second = await ask(client, 'signatureHelp', `${text}கூட்டல்([1, 2], |`);
            assert.equal(second.signatures[0].label, 'கூட்டல்(அ, ஆ)');
            assert.equal(second.activeParameter, 1);
            const builtin = await ask(client, 'signatureHelp', `${text}பிளவு(|`);
            assert.equal(builtin.signatures[0].parameters.length, 2);
            const method = await ask(client, 'signatureHelp', `${text}ப = பறவை()\nப.பற(|`);
            assert.equal(method.signatures[0].label, 'பற(தொலைவு)');
        });
    });

    test(`completion offers names in scope in ${edition}, those of imports too`, async () => {
        await withClient(async client => {
            client.write('கருவி.பொழில்', first + TOOLS);
            const inside = await offered(client, text.replace('    திரும்பு விடை', '    |\n    திரும்பு விடை'));
            for (const word of ['அ', 'ஆ', 'விடை', 'மொத்தம்', 'கூட்டல்', 'உதவி', 'எனில்', 'நீளம்']) {
                assert.ok(inside.includes(word), word);
            }
            for (const word of ['வேகம்', 'தொலைவு', 'எண்ணிக்கை', 'சிவப்பு', 'பொத்தான்', 'பெருக்கு']) {
                assert.ok(!inside.includes(word), word);
            }
            assert.deepEqual(await offered(client, `${text}ந = வண்ணங்கள்.|`).then(all => all.slice(0, 2)), ['சிவப்பு', 'பச்சை']);
            const self = await offered(client, text.replace('வேகம் = தொலைவு', 'வேகம் = தான்.|'));
            assert.ok(self.includes('பெயர்') && self.includes('பற') && !self.includes('பச்சை') && !self.includes('எனில்'));
        });
    });
}

test('completion finds words by their letters and by how they sound', async () => {
    await withClient(async client => {
        const first = async typed => (await offered(client, `${SECOND}மொத்தம் = 1\n${typed}|`));
        for (const typed of ['acc', 'achi', 'Acchid', 'அச்', 'அச']) {
            assert.ok((await first(typed)).includes('அச்சிடு'), typed);
        }
        for (const typed of ['mot', 'mottham', 'மொ', 'ம\u0BC6\u0BBE']) {
            assert.ok((await first(typed)).includes('மொத்தம்'), typed);
        }
        assert.ok(!(await first('x')).includes('அச்சிடு'));
        assert.ok(!(await first('அட')).includes('அச்சிடு'));
        // Of everything that sounds so, nothing else.
        assert.ok((await first('enil')).includes('எனில்') && !(await first('enil')).includes('இல்லை'));
        const all = await ask(client, 'completion', `${SECOND}acc|`);
        const item = all.items.find(offer => offer.label === 'அச்சிடு');
        assert.deepEqual([item.filterText, item.textEdit], ['acc', { range: range(1, 0, 3), newText: 'அச்சிடு' }]);
    });
});

const page = body => `${SECOND}வலைதளம் செயலி (
    குமரி(
        ${body}
    )
    வரையறை(
        எண் = 1
    )
)
`;

test('completion knows the properties of widgets, and their values', async () => {
    await withClient(async client => {
        const inWidget = await offered(client, page('உரைபெட்டி(|)'));
        assert.ok(inWidget.includes('குறிப்பு') && inWidget.includes('தெரிய') && !inWidget.includes('இடைவெளி'));
        assert.ok((await offered(client, page('நெடுவரிசை(இ|)()'))).includes('இடைவெளி'));
        assert.ok((await offered(client, page('நெடுவரிசை()(உ|)'))).includes('உரை'));
        const inStyle = await offered(client, page('உரை("அ", உரைபாணி(|))'));
        assert.ok(inStyle.includes('நிறம்') && inStyle.includes('தடிமன்'));
        assert.ok((await offered(client, page('உரை("அ", உரைபாணி(நிறம்: |))'))).includes('சிவப்பு'));
        assert.deepEqual(await offered(client, page('உரை("அ", உரைபாணி(நிறம்: "சிவ|"))')), ['சிவப்பு']);
        assert.ok((await offered(client, page('உரை("அ", உரைபாணி(சீரமைப்பு: "|"))'))).includes('மையம்'));
        assert.ok((await offered(client, page('உரை("அ", தெரிய: |)'))).includes('மெய்'));
    });
});

test('completion offers nothing in comments and texts, and members alone after a dot', async () => {
    await withClient(async client => {
        assert.deepEqual(await offered(client, `${SECOND}ஃ அச்|`), []);
        assert.deepEqual(await offered(client, `${SECOND}அ = "அச்|"`), []);
        assert.ok((await offered(client, `${SECOND}அச்சிடு("ஃ", நீ|`)).includes('நீளம்'));
        const members = await offered(client, `${SECOND}அ = []\nஅ.|`);
        assert.ok(members.includes('சேர்') && !members.includes('அச்சிடு'));
    });
});

test('hover tells the guide\'s words on built-ins, widgets and their properties', async () => {
    await withClient(async client => {
        const hover = async marked => (await ask(client, 'hover', marked))?.contents.value;
        assert.match(await hover(`${SECOND}அச்சிடு(நீ|ளம்("அ"))\n`), /நீளம்\(மதிப்பு\)[^]*letters of a text/);
        assert.match(await hover('அச்சிடு(நீ|ளம்("அ"))\n'), /நீளம்/);
        assert.match(await hover(`${SECOND}அ = []\nஅ.சே|ர்(1)\n`), /சேர்\(மதிப்பு\)[^]*appends to a list/);
        assert.match(await hover(page('உரை|பெட்டி()')), /உரைபெட்டி/);
        assert.match(await hover(page('உரை("அ", தெரி|ய: மெய்)')), /தெரிய:/);
        assert.match(await hover(`${SECOND}எ|னில் மெய்:\n    விடு\n`), /a word of the language/);
        assert.equal(await hover(`${SECOND}அ = 1|2\n`), undefined);
        assert.equal(await hover(`${SECOND}அ = "எனி|ல்"\n`), undefined);
        assert.equal(await hover(`${SECOND}தெரி|யாதது\n`), undefined);
    });
});

test('semanticTokens: words by what they are, relative to each other', async () => {
    await withClient(async client => {
        const { data } = await ask(client, 'semanticTokens/full',
                                   `${SECOND}செயல் க(அ):\n    திரும்பு அ கூட்டு "😀" இணை 5\nஆ = க(1)\nஆ.நீளம்()\n|`);
        const types = client.capabilities.semanticTokensProvider.legend.tokenTypes;
        const words = [];
        for (let at = 0; at < data.length; at += 5) {
            words.push([data[at], data[at + 1], data[at + 2], types[data[at + 3]]]);
        }
        assert.deepEqual(words, [
            [1, 0, 5, 'keyword'], [0, 6, 1, 'function'], [0, 2, 1, 'parameter'],
            [1, 4, 8, 'keyword'], [0, 9, 1, 'parameter'], [0, 2, 6, 'operator'], [0, 7, 4, 'string'], [0, 5, 3, 'operator'],
            [0, 4, 1, 'number'],
            [1, 0, 1, 'variable'], [0, 4, 1, 'function'], [0, 2, 1, 'number'],
            [1, 0, 1, 'variable'], [0, 2, 5, 'method'],
        ]);
    });
});

test('documentColor and colorPresentation: colours as digits and as words', async () => {
    await withClient(async client => {
        const colours = await ask(client, 'documentColor',
                                  page('உரை("சிவப்பு", உரைபாணி(நிறம்: "சிவப்பு", பின்னணி: "#FF800080"))|'));
        assert.equal(colours.length, 2);
        const { red, green, blue, alpha } = colours[1].color;
        assert.deepEqual([red, green, blue, alpha].map(share => Math.round(share * 255)), [255, 128, 0, 128]);
        const [{ label }] = await client.ask('textDocument/colorPresentation',
                                             { ...client.at('அ.பொழில்', '|'), color: colours[1].color, range: colours[1].range });
        assert.equal(label, '"#FF800080"');
        const [opaque] = await client.ask('textDocument/colorPresentation',
                                          { color: { red: 1, green: 7, blue: -1, alpha: 1 } });
        assert.equal(opaque.label, '"#FFFF00"');
    });
});

test('formatting: the one style as an edit, with the line ends of the text; nothing for a source with faults', async () => {
    await withClient(async client => {
        const edits = async text => {
            client.open('அ.பொழில்', text);
            return client.ask('textDocument/formatting', { textDocument: { uri: client.uri('அ.பொழில்') }, options: {} });
        };
        const [edit] = await edits(`\uFEFF${SECOND.trim()}\r\nஅ   =  1\r\nஅச்சிடு( அ )`);
        assert.equal(edit.newText, `${SECOND.trim()}\r\nஅ = 1\r\nஅச்சிடு(அ)\r\n`);
        assert.deepEqual(edit.range, { start: { line: 0, character: 1 }, end: { line: 2, character: 12 } });
        assert.deepEqual(await edits(`${SECOND}அ = 1\nஅச்சிடு(அ)\n`), []);
        assert.equal(await edits(`${SECOND}அ   =  (\n`), null);
        assert.equal(await edits(`${SECOND}ஃ குறிப்பு\rஅ  = 1\rஅச்சிடு( அ )\n`), null, 'its lines are not those of the source');
    });
});

test('every request about a text that is not open, or without a place, is refused', async () => {
    await withClient(async client => {
        for (const method of ['completion', 'hover', 'definition', 'references', 'documentHighlight', 'signatureHelp',
                              'documentSymbol', 'foldingRange', 'semanticTokens/full', 'documentColor', 'formatting',
                              'codeAction', 'rename', 'prepareRename']) {
            await assert.rejects(client.ask(`textDocument/${method}`, client.at('இல்லை.பொழில்', '|')), { code: -32602 }, method);
            await assert.rejects(client.ask(`textDocument/${method}`, {}), { code: -32602 }, method);
        }
    });
});

test('every request is answered everywhere in a text, whole or broken', async () => {
    const METHODS = ['completion', 'hover', 'definition', 'documentHighlight', 'signatureHelp'];
    const broken = ['', '.', '((', 'செயல்', 'செயல் அ(', 'கட்டமைப்பு அ(', 'வகை', 'அ.', ')', '=>', '() =>', 'வலைதளம் அ (', '"', 'ஃ', 'அ = \u0BCD',
                    'நூஇறக்கி "', 'நூஇறக்கி ""', 'நூஇறக்கி "அ.பொழில்"', '\t \tஅ', 'பொது அ,', 'தான்.அ = 1', '\r\r\n'];
    await withClient(async client => {
        for (const first of Object.values(EDITIONS)) {
            for (const text of [...broken, PROGRAM.slice(0, 150)]) {
                client.open('அ.பொழில்', first + text);
                const whole = { textDocument: { uri: client.uri('அ.பொழில்') } };
                for (const method of ['documentSymbol', 'foldingRange', 'semanticTokens/full', 'documentColor', 'formatting']) {
                    await client.ask(`textDocument/${method}`, whole);
                }
                await client.ask('textDocument/codeAction', { ...whole, range: { start: { line: 0, character: 0 }, end: { line: 99, character: 0 } } });
                const lines = (first + text).split(/\r\n|\r|\n/);
                for (const [line, content] of [...lines.entries(), [99, '']]) {
                    for (let character = 0; character <= content.length + 1; character += 3) {
                        await Promise.all(METHODS.map(method => client.ask(`textDocument/${method}`,
                                                                           { ...whole, position: { line, character } })));
                        // Where there is no name it is refused, and that in words.
                        const renaming = client.ask('textDocument/rename', { ...whole, position: { line, character }, newName: 'புதிது' });
                        await renaming.catch(error => assert.equal(error.code, -32803, error.message));
                    }
                }
            }
        }
    });
});
