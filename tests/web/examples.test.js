// The larger examples, in a desktop's window and in a phone's: every page is reached by presses and does what it says.

import { readFileSync, readdirSync } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

import { assert, near, webTest } from './harness/index.js';

const EXAMPLES = path.resolve(path.dirname(fileURLToPath(import.meta.url)), '../../எடுத்துக்காட்டுகள்');
const DESKTOP = { width: 1280, height: 800 };
const PHONE = { width: 390, height: 844 };
const WINDOWS = [['desktop', DESKTOP], ['phone', PHONE]];

const START = 'காட்சியகம்';
const BACK = '‹ காட்சியகம்';
const NEXT = 'அடுத்து ›';
// The families in the order in which "next" leads through them: the tile, the page's title, the colour of its head.
const FAMILIES = [
    ['உரை', 'உரையும் பொத்தானும்', [30, 58, 138]],
    ['அமைப்பு', 'அமைப்பு', [124, 45, 18]],
    ['உள்ளீடு', 'உள்ளீடு', [19, 78, 74]],
    ['பெட்டி', 'பெட்டியும் அட்டையும்', [74, 4, 78]],
    ['பட்டியல்', 'பட்டியலும் கட்டமும்', [20, 83, 45]],
    ['படம்', 'படங்கள்', [127, 29, 29]],
    ['மேலடுக்கு', 'மேலடுக்குகள்', [49, 46, 129]],
    ['தேர்வு', 'தேர்வுகள்', [22, 78, 99]],
    ['வழி', 'வழிசெலுத்தல்', [30, 41, 59]],
    ['காட்டி', 'காட்டிகள்', [113, 63, 18]],
    ['அசைவு', 'அசைவூட்டம்', [131, 24, 67]],
];

function source(name) {
    return readFileSync(path.join(EXAMPLES, `${name}.பொழில்`), 'utf8');
}

function assets(folder) {
    return Object.fromEntries(readdirSync(path.join(EXAMPLES, 'assets', folder)).map(
        name => [`assets/${folder}/${name}`, readFileSync(path.join(EXAMPLES, 'assets', folder, name))]));
}

// Text buttons are as wide as the fonts say that scripts/setup-web has put there.
const files = { ...assets('படங்கள்'), ...assets('சின்னங்கள்'), ...assets('font') };

/// Presses where the last text that reads so stands: what lies on top is drawn last.
async function press(page, wanted) {
    const found = await page.page.waitForFunction(
        reading => window.recorded?.texts.findLast(({ text }) => text === reading), wanted, { timeout: 60_000 });
    const { x, y, size } = await found.jsonValue();
    await page.click(x + 4, y + size / 2);
}

async function expectGone(page, wanted) {
    assert.ok(!(await page.texts()).some(({ text }) => text === wanted), wanted);
}

/// No text is cut off by the window's edges.
async function expectInside(page, { width, height }) {
    for (const { text, x, y, size, align } of await page.texts()) {
        const length = await page.textWidth(text, size);
        const left = align === 'center' ? x - length / 2 : x;
        assert.ok(left >= 0 && left + length <= width && y >= 0 && y + size <= height,
                  `"${text}" from ${left} to ${left + length}, ${y} to ${y + size}`);
    }
}

async function expectPage(page, title, colour, size) {
    await page.waitForText(title);
    assert.deepEqual(await page.pixel(size.width / 2, 5), colour, title);
    await expectInside(page, size);
}

webTest('gallery: what the pages do', source('காட்சியகம்'), { files, viewport: PHONE }, async page => {
    await press(page, 'உரை');
    await press(page, 'கூட்டு');
    await page.waitForText('1');
    await press(page, 'கரை');
    await page.waitForText('கரை உள்ளதை அழுத்தினீர்கள்');
    await press(page, 'மேலும் படிக்க ›');
    await page.waitForText('பின்னணியும் கரையும் இல்லாத பொத்தான் இது');
    await expectInside(page, PHONE);
    await press(page, NEXT);
    await press(page, NEXT);
    await press(page, 'வணங்கு');
    await page.waitForText('பெயரை எழுதவும்');
    await page.page.fill('[id="பெயர்"]', 'கயல்');
    await press(page, 'வணங்கு');
    await page.waitForText('வணக்கம், கயல்!');
    await press(page, NEXT);
    await press(page, NEXT);
    await press(page, 'தட்டிப் பாருங்கள்');
    await page.waitForText('தட்டினீர்கள், நன்றி!');
    await press(page, 'பட்டியலைத் திற');
    const before = await page.text('மதுரை');
    await page.moveTo(PHONE.width / 2, 400);
    await page.wheel(0, 60);
    near((await page.text('மதுரை')).y, before.y - 60);
    await page.wheel(0, -60);
    await press(page, '‹ திரும்பு');
    await press(page, NEXT);
    await press(page, NEXT);
    await press(page, 'கேள்வி கேள்');
    await page.waitForText('காபி குடிக்கலாமா?');
    await press(page, 'ஆம்');
    await expectGone(page, 'காபி குடிக்கலாமா?');
    await page.text('ஆம்');
    await press(page, 'சேமி');
    await page.waitForText('சேமிக்கப்பட்டது');
    assert.deepEqual(page.errors, []);
});

webTest('gallery: ways of navigation', source('காட்சியகம்'), { files, viewport: PHONE }, async page => {
    await press(page, 'வழி');
    await press(page, 'கடைசி வரிக்குச் செல்');
    await page.waitForText('கடைசி வரி');
    await page.page.waitForFunction(bottom => window.recorded.texts.some(
        ({ text, y }) => text === 'கடைசி வரி' && y < bottom), PHONE.height, { timeout: 60_000 });
    await page.frames(60);
    await press(page, '‹ திரும்பு');
    await press(page, NEXT);
    await press(page, NEXT);
    await page.waitForText('இதுவரை 5000 நூல்கள்');
    await press(page, NEXT);
    await page.waitForText(START);
});

webTest('gallery, phone: each tile leads to its page, and back', source('காட்சியகம்'), { files, viewport: PHONE },
        async page => {
    await expectInside(page, PHONE);
    for (const [tile, title, colour] of FAMILIES) {
        await press(page, tile);
        await expectPage(page, title, colour, PHONE);
        await press(page, BACK);
        await page.waitForText(START);
    }
    assert.deepEqual(page.errors, []);
});

webTest('gallery, desktop: each page leads to the next', source('காட்சியகம்'), { files, viewport: DESKTOP },
        async page => {
    await expectInside(page, DESKTOP);
    await press(page, FAMILIES[0][0]);
    for (const [, title, colour] of FAMILIES) {
        await expectPage(page, title, colour, DESKTOP);
        await press(page, NEXT);
    }
    await page.waitForText(START);
    assert.deepEqual(page.errors, []);
});

for (const [kind, viewport] of WINDOWS) {
    const options = { files, viewport };

    webTest(`photo gallery, ${kind}`, source('ஓவியக்கூடம்'), options, async page => {
        await expectInside(page, viewport);
        await page.click(viewport.width / 5, 300);
        await page.waitForText('கடலில் ஒரு நாளின் தொடக்கம்');
        await expectInside(page, viewport);
        // The sun of the drawing, as large as the dialog is wide; the dialog stands in the middle of the window.
        const { width, height } = viewport === PHONE ? { width: 350, height: 373 } : { width: 840, height: 700 };
        const top = (viewport.height - height) / 2;
        const [red, green, blue] = await page.pixel(viewport.width / 2, Math.round(top + width * 215 / 600));
        near(red, 254, 3);
        near(green, 249, 3);
        near(blue, 195, 3);
        await press(page, '›');
        await page.waitForText('பாறைகளுக்கு இடையே மீன்கள்');
        await press(page, '‹');
        await press(page, '‹');
        await page.waitForText('தேயிலைச் சரிவில் ஒரு வீடு');
        await press(page, 'மூடு');
        await expectGone(page, 'மூடு');
        assert.deepEqual(page.errors, []);
    });

    webTest(`dashboard, ${kind}`, source('கடை_நிலவரம்'), options, async page => {
        await page.waitForText('348 பேர்');
        await page.waitForText('1250 பை');
        await expectInside(page, viewport);
        await press(page, 'புதிய ஆணை');
        await press(page, 'சேர்');
        await page.waitForText('பொருளை எழுதவும்');
        await page.page.fill('[id="பொருள்"]', 'பருப்பு 3 கிலோ');
        await press(page, 'சேர்');
        await expectGone(page, 'சேர்');
        for (const shown of ['பருப்பு 3 கிலோ', 'அரிசி 25 கிலோ', '42', '₹ 24750']) {
            await page.text(shown);
        }
        await expectGone(page, 'மஞ்சள் 1 கிலோ');
        await expectInside(page, viewport);
        assert.deepEqual(page.errors, []);
    });
}
