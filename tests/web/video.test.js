// பின்னணிகாணொளி: a video behind a page.

import { application, assert, near, webTest } from './harness/index.js';
import { mp4 } from './harness/pictures.js';

const VIDEO = 'assets/கடல்.mp4';
const files = { [VIDEO]: mp4 };

const toPage = name => `பொத்தான்(உரை: "${name}", பொ_பாணி(அகலம்: 100, உயரம்: 40), அழுத்தினால்(செல்க("${name}")))`;
const page = (name, header, ...targets) => application(
    `\n        நெடுவரிசை(\n            ${targets.map(toPage).join('\n            ')}\n        )`,
    { header: `பக்கம்: "${name}"${header}` });

const pages = page('கடல்', `, பின்னணிகாணொளி: "${VIDEO}"`, 'கரை', 'மலை')
    + page('கரை', ', பின்னணி: "#00000000"', 'கடல்') + page('மலை', '', 'கடல்');

/// The colours left and right of the middle, once the video plays.
async function halves(shown) {
    await shown.page.waitForFunction(() => document.getElementById('pozhilVideo')?.currentTime > 0);
    return shown.pixels([[125, 300], [375, 300]]);
}

function assertPlays([left, right]) {
    for (const [actual, expected] of [[left, [255, 0, 0]], [right, [0, 0, 255]]]) {
        actual.forEach((value, part) => near(value, expected[part], 30));
    }
}

webTest('a video fills the window behind its page, and begins anew when it ends', pages, { files }, async shown => {
    for (const [width, height] of [[500, 400], [500, 700]]) {
        await shown.resize(width, height);
        assertPlays(await halves(shown));
        const { x, y, width: wide, height: high, ...look } = await shown.element('#pozhilVideo', 'position', 'zIndex',
                                                                                 'objectFit');
        assert.deepEqual([x, y, wide, high], [0, 0, width, height]);
        assert.deepEqual([look.tag, look.position, look.zIndex, look.objectFit], ['VIDEO', 'fixed', '-1', 'cover']);
    }
    const plays = await shown.page.evaluate(() => {
        const { muted, autoplay, loop, paused, src } = document.getElementById('pozhilVideo');
        return { muted, autoplay, loop, paused, isBlob: src.startsWith('blob:') };
    });
    assert.deepEqual(plays, { muted: true, autoplay: true, loop: true, paused: false, isBlob: true });
    assert.ok(shown.console.includes('காணொளி வெற்றிகரமாக லோட் செய்யப்பட்டது!'), shown.console.join('\n'));
    await shown.text('கரை');
    // Half a second long, it has to go back to its beginning soon.
    await shown.page.evaluate(() => new Promise(back => {
        document.getElementById('pozhilVideo').addEventListener('seeked', back, { once: true });
    }));
    assertPlays(await halves(shown));
});

webTest('a video plays on behind the pages that follow, unseen where they fill their background', pages, { files },
        async shown => {
    assertPlays(await halves(shown));
    await shown.click(50, 20);
    assertPlays(await halves(shown));
    await shown.click(50, 20);
    await shown.click(50, 60);
    assert.deepEqual(await halves(shown), Array(2).fill([245, 245, 245]));
    assert.equal((await shown.elements('#pozhilVideo')).length, 1);
    assert.equal((await shown.element('#pozhilVideo')).shown, true);
});

webTest('a video that isn\'t there is told of, and the page goes on', application('        உரை("கரை")', {
    header: 'பின்னணிகாணொளி: "இல்லை.mp4"' }), async shown => {
    await shown.text('கரை');
    assert.ok(shown.console.some(line => line.startsWith('காணொளி பிழை:')), shown.console.join('\n'));
    assert.deepEqual(shown.errors, []);
    assert.equal(await shown.element('#pozhilVideo'), null);
    assert.deepEqual(await shown.pixel(300, 300), [255, 255, 255]);
});
