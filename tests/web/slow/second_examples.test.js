// The examples of the second edition, in a desktop's window and in a phone's. The gallery's pages are visited in editions.test.js.

import { faultCard } from '../harness/editions.js';
import * as examples from '../harness/examples.js';
import { assert, webTest } from '../harness/index.js';
import { DESKTOP, PHONE, expectGone, expectInside, openTile, press, takeOrder } from '../harness/tours.js';

const files = examples.files();

/// A test of the example in both windows. `visit` gets the page and the window's size.
function onBothDevices(name, visit) {
    for (const [device, viewport] of [['desktop', DESKTOP], ['phone', PHONE]]) {
        webTest(`${name}, ${device}`, examples.source(`இரண்டாம்_பதிப்பு/${name}`), { files, viewport }, async page => {
            await expectInside(page, viewport);
            await visit(page, viewport);
            assert.equal(await faultCard(page), '');
            assert.deepEqual(page.errors, []);
        });
    }
}

async function typeInto(page, hint, text) {
    await page.page.fill(`[placeholder="${hint}"]`, text);
    await page.frames(2);
}

onBothDevices('பணிப்_பட்டியல்', async page => {
    await page.text('மீதம் 1 பணி');
    await press(page, 'சேர்');
    await page.page.press('[placeholder="என்ன செய்ய வேண்டும்?"]', 'Enter');
    await page.frames(2);
    assert.equal((await page.texts()).filter(({ text }) => text === '✕').length, 2);

    await typeInto(page, 'என்ன செய்ய வேண்டும்?', 'பால் வாங்கு');
    await press(page, 'சேர்');
    await page.waitForText('மீதம் 2 பணி');
    assert.equal(await page.page.inputValue('[placeholder="என்ன செய்ய வேண்டும்?"]'), '');
    await typeInto(page, 'என்ன செய்ய வேண்டும்?', 'கடிதம் எழுது');
    await page.page.press('[placeholder="என்ன செய்ய வேண்டும்?"]', 'Enter');
    await page.waitForText('மீதம் 3 பணி');

    // Pressed on its text, or on its box, a task is done; once each.
    await press(page, 'நூலைத் திருப்பிக் கொடு');
    await page.waitForText('மீதம் 2 பணி');
    const { x, y, size } = await page.text('பால் வாங்கு');
    await page.click(x - 24, y + size / 2);
    await page.frames(5);
    await page.text('மீதம் 1 பணி');

    // The last ✕ is that of the only task that isn't done.
    await press(page, '✕');
    await page.waitForText('மீதம் 0 பணி');
    await expectGone(page, 'கடிதம் எழுது');
    await page.text('பால் வாங்கு');
});

onBothDevices('பதிவுப்_படிவம்', async page => {
    const wrong = ['பெயரை எழுதவும்', '@ குறியோடு முழு முகவரி வேண்டும்', 'பத்து இலக்கங்கள் வேண்டும்'];
    for (const message of wrong) {
        await expectGone(page, message);
    }
    await press(page, 'பதிவு செய்');
    for (const message of wrong) {
        await page.waitForText(message);
    }
    for (const [i, text] of ['கயல்', 'கயல்@வீடு', '9876543210'].entries()) {
        await page.page.locator('input').nth(i).fill(text);
        await page.frames(2);
        await expectGone(page, wrong[i]);
    }
    await press(page, 'பதிவு செய்');
    await page.waitForText('நன்றி கயல்!');
});

onBothDevices('கணிப்பான்', async page => {
    // No other text is as large as the display's.
    const shown = async () => {
        const texts = await page.texts();
        const largest = Math.max(...texts.map(({ size }) => size));
        return texts.filter(({ size }) => size === largest).map(({ text }) => text);
    };
    const type = async keys => {
        for (const key of keys) {
            await press(page, key);
        }
    };
    await type('12+7.5=');
    assert.deepEqual(await shown(), ['19.5']);
    await type('×2−');
    assert.deepEqual(await shown(), ['39']);
    await type('40=');
    assert.deepEqual(await shown(), ['-1']);
    await type('5+−3=');
    assert.deepEqual(await shown(), ['2']);
    await type('5÷0=');
    await page.waitForText('பூச்சியத்தால் வகுக்க முடியாது');
    await press(page, 'அழி');
    await expectGone(page, 'பூச்சியத்தால் வகுக்க முடியாது');
    await type('8');
    assert.deepEqual(await shown(), ['8']);
});

onBothDevices('கடை', async page => {
    const names = async () => (await page.texts()).filter(({ text }) => text.includes('· ₹')).map(({ text }) => text.trim());
    assert.equal((await names()).length, 6);
    await typeInto(page, 'பொருளைத் தேடுக', 'தூள்');
    assert.deepEqual(await names(), ['மஞ்சள் தூள் · ₹40', 'காப்பித் தூள் · ₹120']);
    await press(page, '+');
    await press(page, '+');
    await page.waitForText('2');
    await typeInto(page, 'பொருளைத் தேடுக', 'எதுவுமில்லை');
    await page.waitForText('அப்படி எதுவும் இல்லை');
    await typeInto(page, 'பொருளைத் தேடுக', '');
    await press(page, '−');
    await page.waitForText('1');

    await press(page, 'கூடையைப் பார்');
    await page.waitForText('காப்பித் தூள் × 1 = ₹120');
    assert.equal(decodeURIComponent(new URL(page.page.url()).hash), '#கூடை');
    await press(page, 'வாங்கு');
    await page.waitForText('₹120 பெற்றோம். நன்றி!');
    await expectGone(page, 'வாங்கு');
    await page.page.goBack();
    await page.waitForText('மளிகைக் கடை');
    await expectGone(page, '−');
});

onBothDevices('கடை_நிலவரம்', async (page, viewport) => {
    if (viewport === PHONE) {
        await takeOrder(page);
        return;
    }
    // The bars stand on one line, and the best day's is as tall as there is room.
    const bars = await page.area([45, 212, 191]);
    assert.ok(bars.height >= 268 && bars.height <= 272, JSON.stringify(bars));
});

onBothDevices('காட்சியகம்', async (page, viewport) => {
    if (viewport === DESKTOP) {
        await openTile(page);
        return;
    }
    await press(page, 'பட்டியல்');
    await press(page, 'பட்டியலைத் திற');
    await page.waitForText('மூன்று கடல்கள் சேருமிடம்');
});
