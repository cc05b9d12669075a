// What the playground says of a program while it is written.

import assert from 'node:assert/strict';

import { PHONE, playgroundTest, repositoryFile, siteFiles } from './site.js';

const FAULTY = 'ஃ பொழில் 2\nவயது = 12\nஅச்சிடு("😀", வயசு)\n';

playgroundTest('opens with a program without faults', async playground => {
    assert.match(await playground.summary(), /^பிழை இல்லை/);
    assert.match(await playground.page.textContent('#edition'), /^இரண்டாம் பதிப்பு/);
    assert.deepEqual(await playground.findings(), []);
});

playgroundTest('underlines a fault where it is and lists it', async playground => {
    await playground.write(FAULTY);
    assert.deepEqual(await playground.underlined(), ['வயசு']);
    const [finding, ...others] = await playground.findings();
    assert.deepEqual(others, []);
    assert.deepEqual({ ...finding, message: '' }, { kind: 'fault', line: 'வரி 3', code: 'பொழி-551', message: '' });
    assert.match(finding.message, /'வயசு'/);
    await playground.write(FAULTY.replace('வயசு', 'வயது'));
    assert.deepEqual(await playground.underlined(), []);
    assert.match(await playground.summary(), /^பிழை இல்லை/);
});

playgroundTest('counts columns after a byte order mark', async playground => {
    await playground.write('\ufeffஅச்சிடு(1 கூட்டு)\n');
    const [finding] = await playground.findings();
    assert.equal(finding.line, 'வரி 1');
    const [underlined] = await playground.underlined();
    assert.ok('அச்சிடு(1 கூட்டு)'.includes(underlined) && underlined.length > 0, underlined);
    assert.match(await playground.page.textContent('#edition'), /^முதல் பதிப்பு/);
});

playgroundTest('checks while one types', async playground => {
    await playground.write('ஃ பொழில் 2\nவயது = 12\nஅச்சிடு(வய');
    assert.equal((await playground.findings()).length > 0, true);
    await playground.page.keyboard.press('Control+End');
    await playground.page.keyboard.type('து)');
    await playground.page.waitForSelector('#state.well');
});

playgroundTest('tells the words of the box over a fault, and goes to it from the list', async playground => {
    await playground.write(`${FAULTY}${'ஃ வரி\n'.repeat(200)}`);
    await playground.page.keyboard.press('Control+End');
    await playground.page.click('.place');
    assert.deepEqual(await playground.underlined(), ['வயசு']);
    await playground.page.hover('.cm-lintRange-error');
    const box = playground.page.locator('.cm-tooltip .box');
    await box.waitFor();
    assert.match(await box.textContent(), /'வயசு'.*தீர்வு: .*'வயது'/s);
});

playgroundTest('explains a code, and gives the keyboard back', async playground => {
    await playground.write(FAULTY);
    await playground.page.focus('#findings .code');
    await playground.page.keyboard.press('Enter');
    const dialog = playground.page.locator('#explanation');
    await dialog.waitFor();
    const text = await dialog.innerText();
    assert.match(text, /^[\s\S]*பொழி-551: [\s\S]*தீர்வு[\s\S]*தவறான நிரல்[\s\S]*சரியான நிரல்/);
    await playground.page.keyboard.press('Escape');
    await dialog.waitFor({ state: 'hidden' });
    assert.equal(await playground.page.evaluate(() => document.activeElement.className), 'code');
});

playgroundTest('knows the modules that come with the language, and no file beside them', async playground => {
    await playground.write('ஃ பொழில் 2\nநூஇறக்கி "பட்டியல்"\n' +
        'அச்சிடு(பட்டியல்_வடிகட்டு([1, 2], (ஒன்று) => ஒன்று பெரிது 1))\n');
    assert.deepEqual(await playground.findings(), []);
    await playground.write('ஃ பொழில் 2\nநூஇறக்கி "மற்றது"\n');
    assert.deepEqual((await playground.findings()).map(({ line }) => line), ['வரி 2']);
});

playgroundTest('finds no fault in any of its examples', async playground => {
    const samples = JSON.parse(siteFiles.get('samples.json'));
    assert.deepEqual([...new Set(samples.map(({ edition }) => edition))].sort(), [1, 2]);
    for (let index = 0; index < samples.length; index += 1) {
        await playground.page.selectOption('#samples', String(index));
        await playground.checked();
        assert.match(await playground.summary(), /^பிழை இல்லை/, samples[index].name);
    }
    assert.equal(await playground.text(), samples[samples.length - 1].text);
    assert.equal(samples[0].text, repositoryFile('playground/தொடக்கம்.பொழில்'));
});

playgroundTest('works on a phone without scrolling to the side', async playground => {
    await playground.write(FAULTY);
    assert.deepEqual(await playground.underlined(), ['வயசு']);
    const [width, most] = await playground.page.evaluate(() => [document.documentElement.scrollWidth, innerWidth]);
    assert.ok(width <= most, `${width} > ${most}`);
    await playground.page.tap('#findings .code');
    await playground.page.locator('#explanation').waitFor();
    const heights = await playground.page.$$eval('header button, header select, #findings button',
        buttons => buttons.map(button => button.getBoundingClientRect().height));
    assert.deepEqual(heights.filter(height => height < 32), []);
}, { options: PHONE });
