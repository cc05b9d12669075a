// What the playground does with a program: formatting, keeping, sharing, saving.

import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';

import { playgroundTest } from './site.js';

const UNTIDY = 'ஃ பொழில் 2\nவயது=12\nஎனில் வயது பெரிது 10:\n  அச்சிடு( வயது )   \n\n\n\nஅச்சிடு("முடிந்தது")';
const TIDY = 'ஃ பொழில் 2\nவயது = 12\nஎனில் வயது பெரிது 10:\n    அச்சிடு(வயது)\n\nஅச்சிடு("முடிந்தது")\n';

const OWN = 'அச்சிடு("எனது")';
const SHARED = 'அச்சிடு(1)';
const hashOf = program => `#t=${Buffer.from(program).toString('base64url')}`;
const hashNow = playground => playground.page.evaluate(() => location.hash);

const note = playground => playground.page.textContent('#note-text');

playgroundTest('formats a program and leaves the cursor at its word', async playground => {
    await playground.write(UNTIDY);
    await playground.page.keyboard.press('Control+End');
    await playground.page.keyboard.press('ArrowLeft');
    await playground.page.keyboard.press('Shift+Alt+F');
    await playground.page.waitForFunction(text => localStorage.getItem('pozhil-playground-program') === text, TIDY);
    await playground.page.keyboard.type('!');
    assert.equal(await playground.text(), TIDY.replace('"முடிந்தது")', '"முடிந்தது"!)'));
});

playgroundTest('takes formatting back in one step', async playground => {
    await playground.write(UNTIDY);
    await playground.page.click('#format');
    await playground.page.click('#note-undo');
    assert.equal(await playground.text(), UNTIDY);
});

playgroundTest('leaves a program with faults as it is, and says so', async playground => {
    await playground.write('அச்சிடு( 1');
    await playground.page.click('#format');
    await playground.page.waitForSelector('#note:not([hidden])');
    assert.match(await note(playground), /பிழையுள்ள நிரலை வடிவமைக்க முடியாது/);
    assert.equal(await playground.text(), 'அச்சிடு( 1');
});

playgroundTest('keeps the program between visits', async playground => {
    await playground.write(UNTIDY);
    await playground.page.reload();
    await playground.checked();
    assert.match(await playground.page.textContent('.cm-content'), /"முடிந்தது"/);
    assert.equal(await playground.text(), UNTIDY);
});

playgroundTest('shares a program by an address, which can be taken back', async playground => {
    await playground.write(UNTIDY);
    await playground.page.click('#share');
    await playground.page.waitForSelector('#note:not([hidden])');
    const address = await playground.page.evaluate(() => navigator.clipboard.readText());
    assert.ok(address.startsWith(`${playground.address}#p=`), address);
    await playground.write(OWN);
    await playground.page.goto(address);
    await playground.page.waitForSelector('#note-undo:not([hidden])');
    assert.equal(await playground.shown(), UNTIDY);
    await playground.page.click('#note-undo');
    assert.equal(await playground.shown(), OWN);
    assert.equal(await playground.text(), OWN);
    assert.equal(await hashNow(playground), '');
});

playgroundTest('keeps the visitor\'s own program until a shared one is edited', async playground => {
    await playground.write(OWN);
    await playground.page.goto(playground.address + hashOf(`${SHARED}\r\n`));
    await playground.page.waitForSelector('#note-undo:not([hidden])');
    assert.equal(await playground.shown(), `${SHARED}\n`);
    assert.equal(await playground.text(), OWN);
    await playground.page.reload();
    await playground.checked();
    assert.equal(await playground.shown(), `${SHARED}\n`);
    await playground.page.click('.cm-content');
    await playground.page.keyboard.press('Control+Home');
    await playground.page.keyboard.type('ஃ');
    assert.equal(await playground.text(), `ஃ${SHARED}\n`);
    assert.equal(await hashNow(playground), '');
});

playgroundTest('shares in the line of the address where nothing may be copied, and what is written then stays', async playground => {
    await playground.write(UNTIDY);
    await playground.page.evaluate(() => { navigator.clipboard.writeText = () => Promise.reject(new Error('no')); });
    await playground.page.click('#share');
    await playground.page.waitForFunction(() => location.hash.startsWith('#p='));
    await playground.page.click('.cm-content');
    await playground.page.keyboard.press('Control+Home');
    await playground.page.keyboard.type('ஃ');
    assert.equal(await hashNow(playground), '');
    await playground.page.reload();
    await playground.checked();
    assert.equal(await playground.shown(), `ஃ${UNTIDY}`);
});

playgroundTest('offers to take back only what was done last', async playground => {
    await playground.write(UNTIDY);
    await playground.page.click('#format');
    await playground.page.waitForSelector('#note-undo:not([hidden])');
    await playground.page.click('.cm-content');
    await playground.page.keyboard.type('ஃ');
    await playground.page.waitForSelector('#note-undo', { state: 'hidden' });
    assert.match(await note(playground), /^வடிவமைக்கப்பட்டது/);
});

playgroundTest('opens a shared program without waiting for the examples', async playground => {
    assert.equal(await playground.shown(), SHARED);
    assert.match(await playground.summary(), /^பிழை இல்லை/);
    assert.equal(await playground.text(), null);
    assert.equal(await playground.page.isHidden('#note-undo'), true);
}, { hash: hashOf(SHARED), prepare: page => page.route('**/samples.json', () => {}) });

playgroundTest('leaves what was written before the examples came, also where nothing may be kept', async playground => {
    assert.equal(await playground.shown(), OWN);
}, { prepare: async page => {
    await page.addInitScript(() => Object.defineProperty(window, 'localStorage', { get() { throw new Error('no'); } }));
    await page.route('**/samples.json', async route => {
        await page.click('.cm-content');
        await page.keyboard.insertText(OWN);
        await route.continue();
    });
} });

playgroundTest('reads an address without compression', async playground => {
    assert.equal(await playground.shown(), SHARED);
}, { hash: hashOf(SHARED) });

for (const hash of ['#p=%%%', '#p=AAAA', '#t=gICA', `#p=${'A'.repeat(5000)}`]) {
    playgroundTest(`tells that an address can't be read: ${hash.slice(0, 8)}`, async playground => {
        assert.match(await note(playground), /படிக்க முடியவில்லை/);
        assert.match(await playground.summary(), /^பிழை இல்லை/);
    }, { hash });
}

playgroundTest('refuses to unfold more than a program', async playground => {
    const bomb = await playground.page.evaluate(async () => {
        const zeros = new Blob([new Uint8Array(60_000_000)]).stream();
        const packed = new Response(zeros.pipeThrough(new CompressionStream('deflate-raw')));
        return new Uint8Array(await packed.arrayBuffer()).reduce((text, byte) => text + String.fromCharCode(byte), '');
    });
    const kept = await playground.text();
    const hash = `#p=${Buffer.from(bomb, 'latin1').toString('base64url')}`;
    await playground.page.evaluate(address => { location.hash = address; }, hash);
    await playground.page.waitForSelector('#note:not([hidden])');
    assert.match(await note(playground), /படிக்க முடியவில்லை/);
    assert.equal(await playground.text(), kept);
});

playgroundTest('says when a program is too long for an address', async playground => {
    // What compresses badly.
    let seed = 1;
    const numbers = Array.from({ length: 6000 }, () => { seed = (seed * 48271) % 2147483647; return seed; });
    await playground.write(`எண்கள் = [${numbers.join(', ')}]\n`);
    await playground.page.click('#share');
    await playground.page.waitForSelector('#note:not([hidden])');
    assert.match(await note(playground), /மிக நீளமானது/);
});

playgroundTest('saves the program as a file', async playground => {
    await playground.write(TIDY);
    const download = playground.page.waitForEvent('download');
    await playground.page.click('#save');
    const file = await download;
    assert.equal(file.suggestedFilename(), 'நிரல்.பொழில்');
    assert.equal(readFileSync(await file.path(), 'utf8'), TIDY);
});

playgroundTest('names the licences of what it is made of', async playground => {
    const text = await playground.page.$eval('#licences a', async link => (await fetch(link.href)).text());
    for (const name of ['@codemirror/view', '@lezer/highlight', 'vscode-oniguruma', 'vscode-textmate', 'utf8proc']) {
        assert.match(text, new RegExp(`^${name}$`, 'm'));
    }
    assert.match(text, /Permission is hereby granted/);
});

playgroundTest('says how to run a program', async playground => {
    const box = await playground.page.innerText('#run');
    assert.match(box, /\.\/run நிரல்\.பொழில்/);
    assert.match(box, /பொழில் ஓட்டு நிரல்\.பொழில்/);
});
