// Applications that look alike in both editions.

import { files } from './examples.js';
import { application, assert, buildPage, webTest } from './index.js';

/// The line by which a source is of the second edition.
export const MARKER = 'ஃ பொழில் 2\n';

/// An application of one page in the second edition.
export const second = (body, logic, header) => MARKER + application(body, { logic, header });

/// What the card says that tells a fault of the running program; empty if there is none.
export const faultCard = page =>
    page.page.evaluate(() => document.getElementById('pozhil-program-fault')?.innerText ?? '');

const DESKTOP = { width: 1280, height: 800 };

const screenshot = async page => (await page.page.screenshot()).toString('base64');

/// A picture of the page when nothing moves any more; nothing for a page that moves for ever.
async function pictureAtRest(page) {
    let picture = await screenshot(page);
    for (let patience = 8; patience > 0; patience--) {
        const earlier = picture;
        await page.frames(30);
        picture = await screenshot(page);
        if (picture === earlier) {
            return picture;
        }
    }
    return null;
}

/// What a page shows: its texts, and a picture of it.
async function look(page) {
    await page.frames(10);
    const picture = await pictureAtRest(page);
    return { texts: await page.texts(), picture };
}

/// A test that the application looks in the second edition as it does in the first.
export function expectLikeLook(name, source) {
    webTest(`${name} looks in both editions alike`, source, { files: files(), viewport: DESKTOP }, async page => {
        const first = await look(page);
        const built = await buildPage(MARKER + source, { files: files() });
        await page.openBuilt(built);
        const second = await look(page);
        assert.deepEqual(second.texts, first.texts);
        assert.ok(second.picture === first.picture, 'the pictures differ');
    });
}
