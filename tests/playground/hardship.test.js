// What the playground survives: any text, a compiler that breaks down, no network.

import assert from 'node:assert/strict';

import { ACCESSIBILITY_CHECK, PHONE, playgroundTest, siteFiles } from './site.js';

const GOOD = 'அச்சிடு("வணக்கம்")\n';

/// Whether it checks as ever.
async function checksAsEver(playground) {
    await playground.write(GOOD);
    assert.match(await playground.summary(), /^பிழை இல்லை/);
    await playground.write('அச்சிடு(1 கூட்டு)\n');
    assert.match(await playground.summary(), /^பிழைகள்: 1/);
}

/// The site with this before the script of its worker.
const withWorker = script => new Map([...siteFiles, ['worker.js', script + siteFiles.get('worker.js').toString()]]);

const nested = (edition, depth) => `${edition}அ = ${'('.repeat(depth)}1${')'.repeat(depth)}\nஅச்சிடு(அ)\n`;

/// Texts that come to harm: deep, long, and of letters that stand nowhere.
function hostileTexts() {
    let seed = 7;
    const random = most => { seed = (seed * 48271) % 2147483647; return seed % most; };
    const any = (length, most) => Array.from({ length }, () => String.fromCodePoint(random(most))).join('');
    const blocks = depth => Array.from({ length: depth }, (_, level) => `${' '.repeat(level)}எனில் மெய்:\n`).join('');
    return Object.entries({
        'brackets at the limit': nested('', 990),
        'brackets beyond it': nested('', 100_000),
        'brackets of the second edition at the limit': nested('ஃ பொழில் 2\n', 1190),
        'brackets of the second edition beyond it': nested('ஃ பொழில் 2\n', 100_000),
        'blocks': blocks(1100),
        'blocks of the second edition': `ஃ பொழில் 2\n${blocks(1300)}`,
        'a chain of operators': `ஃ பொழில் 2\nஅ = 1${' கூட்டு 1'.repeat(50_000)}\n`,
        'characters': any(20_000, 0xd800),
        'control characters': any(20_000, 0x30),
        'half pairs': '\ud800\udfff\udc00'.repeat(2000),
        'one line of 200,000 letters': `அ = "${'க'.repeat(200_000)}"`,
        'a text that never ends': `ஃ பொழில் 2\nஅ = "${'க\n'.repeat(20_000)}`,
    });
}

const FORMAT_ANSWER = /^(பிழையுள்ள நிரலை|இடைவெளிகளை மாற்றினால்|ஏற்கெனவே ஒரே பாணியில்|வடிவமைக்கப்பட்டது)/;
const FORMAT_ANSWER_OR_NONE = new RegExp(`${FORMAT_ANSWER.source}|^சரிபார்ப்பி விடை தரவில்லை`);

/// What the button for formatting answers.
async function formatted(playground) {
    if (await playground.page.isVisible('#note')) {
        await playground.page.click('#note-close');
    }
    await playground.page.click('#format');
    await playground.page.waitForSelector('#note:not([hidden])');
    return playground.page.textContent('#note-text');
}

playgroundTest('survives any text', async playground => {
    for (const [name, text] of hostileTexts()) {
        await playground.write(text);
        const summary = await playground.summary();
        assert.match(summary, /^(பிழை|நிரல் இந்தப் பக்கத்துக்கு மிக ஆழமாக)/, `${name}: ${summary}`);
        const isDeep = summary.startsWith('நிரல் இந்தப்');
        const answer = await formatted(playground);
        assert.match(answer, isDeep ? FORMAT_ANSWER_OR_NONE : FORMAT_ANSWER, `${name}: ${answer}`);
    }
    await checksAsEver(playground);
});

playgroundTest('follows a text that nests as no program does', async playground => {
    for (const edition of ['', 'ஃ பொழில் 2\n']) {
        await playground.write(nested(edition, 300));
        assert.match(await playground.summary(), /^பிழை இல்லை/);
    }
});

for (const [edition, head] of [['first', ''], ['second', 'ஃ பொழில் 2\n']]) {
    playgroundTest(`survives a megabyte of the ${edition} edition, and the page answers meanwhile`, async playground => {
        const line = 'மாறி = 1 கூட்டு 2 பெருக்கு 3\n';
        const text = head + line.repeat(Math.ceil(1_000_000 / Buffer.byteLength(line)));
        const writing = playground.write(text);
        await playground.page.waitForTimeout(600);
        const begin = Date.now();
        await playground.page.evaluate(() => new Promise(done => { setTimeout(done, 0); }));
        assert.ok(Date.now() - begin < 2000, 'the page is blocked');
        await writing;
        assert.match(await playground.summary(), /^(பிழை|சரிபார்க்க நெடுநேரம்)/);
        await checksAsEver(playground);
    });
}

playgroundTest('tells that the compiler broke down, and starts it again', async playground => {
    await playground.write('அச்சிடு(வெடி)\n');
    assert.match(await playground.summary(), /^சரிபார்ப்பி நின்றுவிட்டது/);
    await checksAsEver(playground);
}, { served: withWorker(`{ const parse = JSON.parse; JSON.parse = text => {
    if (text.includes('வெடி')) { throw new WebAssembly.RuntimeError('unreachable'); } return parse(text); }; }\n`) });

playgroundTest('checks again after an answer that it can\'t show', async playground => {
    await playground.write('அச்சிடு(வெற்று)\n');
    assert.match(await playground.summary(), /^சரிபார்ப்பி நின்றுவிட்டது/);
    await checksAsEver(playground);
}, { served: withWorker(`{ const parse = JSON.parse; JSON.parse = text =>
    (text.includes('வெற்று') ? {} : parse(text)); }\n`) });

playgroundTest('knows of depth in the words of every browser', async playground => {
    await playground.write('அச்சிடு(ஆழம்)\n');
    assert.match(await playground.summary(), /^நிரல் இந்தப் பக்கத்துக்கு மிக ஆழமாக/);
    await checksAsEver(playground);
}, { served: withWorker(`{ const parse = JSON.parse; JSON.parse = text => { if (text.includes('ஆழம்')) {
    throw Object.assign(new Error('too much recursion'), { name: 'InternalError' }); } return parse(text); }; }\n`) });

playgroundTest('tells that a check takes too long, and starts the compiler again', async playground => {
    await playground.write('அச்சிடு(தூங்கு)\n');
    assert.match(await playground.summary(), /^சரிபார்க்க நெடுநேரம் ஆகிறது/);
    await checksAsEver(playground);
}, { served: withWorker(`{ const parse = JSON.parse; JSON.parse = text => {
    while (text.includes('தூங்கு')); return parse(text); }; }\n`) });

playgroundTest('works without a network once it is loaded', async playground => {
    await playground.page.waitForSelector('.word-control');
    await playground.context.setOffline(true);
    const before = playground.requests.length;
    await checksAsEver(playground);
    await playground.page.click('#findings .code');
    await playground.page.locator('#explanation').waitFor();
    await playground.page.keyboard.press('Escape');
    await playground.page.selectOption('#samples', '3');
    await playground.page.click('#format');
    await playground.page.click('#share');
    assert.deepEqual(playground.requests.slice(before).filter(url => !url.startsWith('blob:')), []);
});

for (const missing of ['compiler.wasm', 'grammar.wasm', 'samples.json', 'modules.json']) {
    const served = new Map([...siteFiles].filter(([name]) => name !== missing));
    playgroundTest(`lets one write and share without ${missing}`, async playground => {
        await playground.write(GOOD);
        assert.match(await playground.summary(), missing.startsWith('compiler') || missing.startsWith('modules')
            ? /^சரிபார்ப்பியை ஏற்ற முடியவில்லை/ : /^பிழை இல்லை/);
        assert.equal(await playground.text(), GOOD);
        await playground.page.click('#share');
        await playground.page.waitForSelector('#note:not([hidden])');
        playground.errors = playground.errors.filter(error => !error.includes(missing) && !error.includes('404'));
    }, { served });
}

for (const [name, options] of [['desktop', {}], ['a dark desktop', { colorScheme: 'dark' }], ['a phone', PHONE]]) {
    playgroundTest(`has nothing that keeps readers out on ${name}`, async playground => {
        await playground.write('ஃ பொழில் 2\nவயது = 12\nஅச்சிடு(வயசு)\nசெயல் ஆடு(அ):\n    திரும்பு "க" இணை அ\n');
        await playground.page.waitForSelector('.word-control');
        for (const open of [async () => {}, () => playground.page.click('#findings .code')]) {
            await open();
            // The page forbids scripts of others, so this one comes by the browser.
            await playground.page.evaluate(ACCESSIBILITY_CHECK);
            const { violations } = await playground.page.evaluate(() => window.axe.run());
            assert.deepEqual(violations.map(({ id, nodes }) => `${id}: ${nodes.map(({ html }) => html).join(' ')}`), []);
        }
    }, { options });
}
