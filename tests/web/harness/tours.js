// What visitors of the larger examples do, in a desktop's window and in a phone's.

import { assert } from './index.js';

export const DESKTOP = { width: 1280, height: 800 };
export const PHONE = { width: 390, height: 844 };

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

/// Presses where the last text that reads so stands: what lies on top is drawn last.
export async function press(page, wanted) {
    const found = await page.page.waitForFunction(
        reading => window.recorded?.texts.findLast(({ text }) => text === reading), wanted, { timeout: 60_000 });
    const { x, y, size } = await found.jsonValue();
    await page.click(x + 4, y + size / 2);
}

export async function expectGone(page, wanted) {
    assert.ok(!(await page.texts()).some(({ text }) => text === wanted), wanted);
}

/// No text is cut off by the window's edges.
export async function expectInside(page, { width, height }) {
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

/// On a phone, goes through all pages of the gallery, each of which leads to the next.
export async function leafThroughGallery(page) {
    await expectInside(page, PHONE);
    await press(page, FAMILIES[0][0]);
    for (const [, title, colour] of FAMILIES) {
        await expectPage(page, title, colour, PHONE);
        await press(page, NEXT);
    }
    await page.waitForText(START);
    assert.deepEqual(page.errors, []);
}

/// Fills in the form of the gallery, and has it ask and tell something.
export async function useGallery(page) {
    await press(page, 'உள்ளீடு');
    await press(page, 'வணங்கு');
    await page.waitForText('பெயரை எழுதவும்');
    await page.page.fill('[id="பெயர்"]', 'கயல்');
    await press(page, 'வணங்கு');
    await page.waitForText('வணக்கம், கயல்!');
    await press(page, BACK);
    await press(page, 'மேலடுக்கு');
    await press(page, 'கேள்வி கேள்');
    await page.waitForText('காபி குடிக்கலாமா?');
    await press(page, 'ஆம்');
    await expectGone(page, 'காபி குடிக்கலாமா?');
    await press(page, 'சேமி');
    await page.waitForText('சேமிக்கப்பட்டது');
    assert.deepEqual(page.errors, []);
}

/// In a desktop's window, opens a page of the gallery.
export async function openTile(page) {
    await expectInside(page, DESKTOP);
    const [tile, title, colour] = FAMILIES[3];
    await press(page, tile);
    await expectPage(page, title, colour, DESKTOP);
    assert.deepEqual(page.errors, []);
}

/// On a phone, takes an order in the dialog of the dashboard, which asks for what is missing.
export async function takeOrder(page) {
    await page.waitForText('348 பேர்');
    await expectInside(page, PHONE);
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
    assert.deepEqual(page.errors, []);
}
