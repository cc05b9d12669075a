// What visitors of the larger examples do, in a desktop's window and in a phone's.

import { assert } from './index.js';

export const DESKTOP = { width: 1280, height: 800 };
export const PHONE = { width: 390, height: 844 };

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
