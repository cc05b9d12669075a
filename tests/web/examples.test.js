// The larger examples, in a desktop's window and in a phone's: every page is reached by presses and does what it says.

import * as examples from './harness/examples.js';
import { assert, near, webTest } from './harness/index.js';
import { DESKTOP, PHONE, expectGone, expectInside, press, takeOrder } from './harness/tours.js';

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

const files = examples.files();

async function expectPage(page, title, colour, size) {
    await page.waitForText(title);
    assert.deepEqual(await page.pixel(size.width / 2, 5), colour, title);
    await expectInside(page, size);
}

webTest('gallery, phone: each page leads to the next', examples.source('காட்சியகம்'), { files, viewport: PHONE },
        async page => {
    await expectInside(page, PHONE);
    await press(page, FAMILIES[0][0]);
    for (const [, title, colour] of FAMILIES) {
        await expectPage(page, title, colour, PHONE);
        await press(page, NEXT);
    }
    await page.waitForText(START);
    assert.deepEqual(page.errors, []);
});

webTest('gallery, phone: a form, a dialog and a message', examples.source('காட்சியகம்'), { files, viewport: PHONE },
        async page => {
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
});

webTest('gallery, desktop: a tile leads to its page', examples.source('காட்சியகம்'), { files, viewport: DESKTOP },
        async page => {
    await expectInside(page, DESKTOP);
    const [tile, title, colour] = FAMILIES[3];
    await press(page, tile);
    await expectPage(page, title, colour, DESKTOP);
    assert.deepEqual(page.errors, []);
});

/// The sun of the first drawing, which is as wide as the dialog in the middle of the window.
async function expectSun(page, viewport, { width, height }) {
    const top = (viewport.height - height) / 2;
    const [red, green, blue] = await page.pixel(viewport.width / 2, Math.round(top + width * 215 / 600));
    near(red, 254, 3);
    near(green, 249, 3);
    near(blue, 195, 3);
}

webTest('photo gallery, phone', examples.source('ஓவியக்கூடம்'), { files, viewport: PHONE }, async page => {
    await expectInside(page, PHONE);
    await page.click(PHONE.width / 5, 300);
    await page.waitForText('கடலில் ஒரு நாளின் தொடக்கம்');
    await expectInside(page, PHONE);
    await expectSun(page, PHONE, { width: 350, height: 373 });
    await press(page, '›');
    await page.waitForText('பாறைகளுக்கு இடையே மீன்கள்');
    await press(page, '‹');
    await press(page, '‹');
    await page.waitForText('தேயிலைச் சரிவில் ஒரு வீடு');
    await press(page, 'மூடு');
    await expectGone(page, 'மூடு');
    assert.deepEqual(page.errors, []);
});

webTest('photo gallery, desktop', examples.source('ஓவியக்கூடம்'), { files, viewport: DESKTOP }, async page => {
    await expectInside(page, DESKTOP);
    await page.click(DESKTOP.width / 5, 300);
    await page.waitForText('கடலில் ஒரு நாளின் தொடக்கம்');
    await expectSun(page, DESKTOP, { width: 840, height: 700 });
    assert.deepEqual(page.errors, []);
});

webTest('dashboard, phone', examples.source('கடை_நிலவரம்'), { files, viewport: PHONE }, takeOrder);

webTest('dashboard, desktop', examples.source('கடை_நிலவரம்'), { files, viewport: DESKTOP }, async page => {
    await page.waitForText('கடை நிலவரம்');
    await expectInside(page, DESKTOP);
    assert.deepEqual(page.errors, []);
});
