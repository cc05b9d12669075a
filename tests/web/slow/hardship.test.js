// Windows, fingers, texts and hosts that nobody would wish a page: it goes on, or says in Tamil why it can't.

import { PHONE, application, assert, near, webTest } from '../harness/index.js';
import { png } from '../harness/pictures.js';

const page = application(`
        நெடுவரிசை(இடைவெளி: 0)(
            உரை(எண்ணிக்கை),
            பொத்தான்(உரை: "கூட்டு", பொ_பாணி(பொபின்னணி: "#FF0000", அகலம்: 200, உயரம்: 40, வளைவு: 0),
                    அழுத்தினால்: () => கூட்டு_செய்()),
            உரைபெட்டி(அடையாளம்: "பெயர்")
        )`, { logic: `
        எண்ணிக்கை = 0
        செயல் கூட்டு_செய்():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1` });

/// Presses the button where it is drawn, and waits until it has counted.
async function expectPress(tab, count) {
    const { x, y, size } = await tab.text('கூட்டு');
    await tab.click(x, y + size / 2);
    await tab.waitForText(String(count));
    assert.deepEqual(tab.errors, []);
}

webTest('a huge window is drawn and pressed', page, { viewport: { width: 5000, height: 5000 } }, async tab => {
    assert.equal(await tab.page.evaluate(() => document.getElementById('canvas').getBoundingClientRect().width), 5000);
    await expectPress(tab, 1);
});

for (const scale of [0.25, 0.5, 4, 5]) {
    webTest(`scale ${scale} keeps drawing, presses and texts of the document in place`, page,
            { deviceScaleFactor: scale }, async tab => {
        const { y, size } = await tab.text('கூட்டு');
        const area = await tab.area([255, 0, 0]) ?? { y: 0, height: 0 };
        if (scale >= 1) {
            near(area.y + area.height / 2, y + size / 2, 4);
        }
        const text = await tab.page.getByText('கூட்டு', { exact: true }).boundingBox();
        near(text.y + text.height / 2, y + size / 2, 2);
        await expectPress(tab, 1);
    });
}

webTest('ten thousand texts are shown, told and pressed past', page, async tab => {
    await tab.page.evaluate(() => {
        const context = document.getElementById('textCanvas').getContext('2d');
        const { fillText } = context;
        context.fillText = function (text, x, y, ...more) {
            fillText.call(this, text, x, y, ...more);
            for (let number = 0; text === 'கூட்டு' && number < 10_000; number++) {
                fillText.call(this, `வரி ${number}`, x, y + 20 * number + 40);
            }
        };
        window.pozhilFrames.wake();
    });
    await tab.page.waitForFunction(() => document.getElementById('pozhil-page').innerText.includes('வரி 9999'),
                                   undefined, { timeout: 60_000 });
    await expectPress(tab, 1);
});

webTest('ten fingers at once do no harm', page, PHONE, async tab => {
    const fingers = Array.from({ length: 10 }, (_, finger) => [30 + 30 * finger, 100 + 50 * finger]);
    await tab.putFingers(...fingers);
    await tab.moveFingers(...fingers.map(([x, y]) => [x + 5, y + 30]));
    await tab.liftFingers();
    await tab.frames(3);
    await tab.text('0');
    const { x, y, size } = await tab.text('கூட்டு');
    await tab.tap(x, y + size / 2);
    await tab.waitForText('1');
    assert.deepEqual(tab.errors, []);
});

webTest('a host that takes the program for something else is no hindrance', page, { open: false }, async tab => {
    await tab.page.route('**/index.wasm', async route => {
        const response = await route.fetch();
        await route.fulfill({ response, headers: { 'content-type': 'text/html' } });
    });
    await tab.visit(tab.address);
    await tab.ready();
    await expectPress(tab, 1);
});

/// The host cuts a file of the page to this part of it.
async function cut(tab, name, kept) {
    await tab.page.route(`**/${name}`, async route => {
        const response = await route.fetch();
        const whole = await response.body();
        await route.fulfill({ response, body: whole.subarray(0, Math.floor(whole.length * kept)) });
    });
}

async function expectIncomplete(tab) {
    await tab.page.waitForSelector('#pozhil-status.pozhil-failed', { timeout: 60_000 });
    assert.match(await tab.page.textContent('#pozhil-text'), /^(நிரலின் கோப்புகள் முழுமையாக|நிரல் கிடைக்கவில்லை)/);
    assert.equal((await tab.element('#pozhil-status', 'display')).display, 'grid');
}

for (const [name, kept] of [['index.js', 0.5], ['index.js', 0.99], ['index.wasm', 0.5], ['index.wasm', 0]]) {
    webTest(`${name} cut to ${kept * 100} % is told`, page, { open: false }, async tab => {
        await cut(tab, name, kept);
        await tab.visit(tab.address);
        await expectIncomplete(tab);
    });
}

const packed = application(`
        படம்(பாதை: "assets/சிவப்பு.png", அகலம்: 80, உயரம்: 40)`);
const files = { 'assets/சிவப்பு.png': png(64, [255, 0, 0]) };

for (const kept of [0.99, 0.5, 0]) {
    for (const published of [false, true]) {
        webTest(`index.data cut to ${kept * 100} % is told${published ? ' by a published page' : ''}`, packed,
                { files, published, open: false }, async tab => {
            await cut(tab, 'index.data', kept);
            await tab.visit(tab.address);
            await expectIncomplete(tab);
        });
    }
}
