// Applications of the second edition: the published ones look in it as they do in the first, and what only it does.

import { source, files } from './harness/examples.js';
import { application, assert, buildPage, webTest } from './harness/index.js';

const MARKER = 'ஃ பொழில் 2\n';
const DESKTOP = { width: 1280, height: 800 };

/// Those that hold something which the second edition doesn't have yet, with the reason.
const EXCEPTIONS = {
    'விருந்தினர்_ஏடு': 'the database',
};

const PUBLISHED = ['இரு_பக்கங்கள்', 'முகப்புப்_பக்கம்', 'பணிப்_பட்டியல்', 'பதிவுப்_படிவம்', 'ஓவியக்கூடம்', 'கடை_நிலவரம்', 'வளைவுகள்',
                   'காட்சியகம்'].filter(name => !(name in EXCEPTIONS));

/// What a page shows when it has come to rest: its texts, and a picture of it.
async function look(page) {
    await page.frames(30);
    return { texts: await page.texts(), picture: (await page.page.screenshot()).toString('base64') };
}

for (const name of PUBLISHED) {
    webTest(`${name} looks in both editions alike`, source(name), { files: files(), viewport: DESKTOP }, async page => {
        const first = await look(page);
        const built = await buildPage(MARKER + source(name), { files: files() });
        await page.openBuilt(built);
        const second = await look(page);
        assert.deepEqual(second.texts, first.texts);
        assert.ok(second.picture === first.picture, 'the pictures differ');
    });
}
