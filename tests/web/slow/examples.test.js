// The larger examples, in a desktop's window and in a phone's: every page is reached by presses and does what it says.

import * as examples from '../harness/examples.js';
import { assert, near, webTest } from '../harness/index.js';
import {
    DESKTOP, PHONE, expectGone, expectInside, leafThroughGallery, openTile, press, takeOrder, useGallery,
} from '../harness/tours.js';

const files = examples.files();

webTest('gallery, phone: each page leads to the next', examples.source('காட்சியகம்'), { files, viewport: PHONE },
        leafThroughGallery);

webTest('gallery, phone: a form, a dialog and a message', examples.source('காட்சியகம்'), { files, viewport: PHONE },
        useGallery);

webTest('gallery, desktop: a tile leads to its page', examples.source('காட்சியகம்'), { files, viewport: DESKTOP },
        openTile);

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
