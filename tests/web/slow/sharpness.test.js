// Screens with more pixels than points: shapes are as sharp as texts, and shapes, texts, fields and presses keep together.

import { PHONE, application, assert, near, webTest } from '../harness/index.js';

const RED = [255, 0, 0];
const GREY = [245, 245, 245];
const same = (one, other) => one.every((part, index) => part === other[index]);

// A button of 120 by 60 at (60, 40), a field below it, and a text.
const page = application(`
        உள்_இவெ(அளவு: 0)(
            அடுக்கி(
                பெட்டி(பெட்டி_பாணி(அகலம்: 120, உயரம்: 60, பின்னணி: "#FF0000"), நகர்வு_X: 60, நகர்வு_Y: 40,
                      அழுத்தினால்: () => கூட்டு_செய்()),
                உரைபெட்டி(அடையாளம்: "பெயர்", அகலம்: 200, நகர்வு_X: 30, நகர்வு_Y: 130),
                உரை(எண்ணிக்கை, நகர்வு_X: 80, நகர்வு_Y: 220, உரைபாணி(அளவு: 40))
            )
        )`, { logic: `
        எண்ணிக்கை = 0
        செயல் கூட்டு_செய்():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1` });

const BOX = { x: 60, y: 40, width: 120, height: 60 };

/// How many pixels of the device belong neither to the box nor to what is around it, in a row through its middle.
async function blur(tab, scale) {
    const row = await tab.deviceRow(Math.round((BOX.y + BOX.height / 2) * scale));
    return row.slice(0, 220 * scale).filter(pixel => !same(pixel, RED) && !same(pixel, GREY)).length;
}

async function assertAligned(tab, scale) {
    const box = await tab.area(RED, 'device');
    for (const [part, points] of Object.entries(BOX)) {
        near(box[part], points * scale, 1);
    }
    // An edge may fall into one pixel.
    assert.ok(await blur(tab, scale) <= 2, `${await blur(tab, scale)} pixels at scale ${scale}`);
    const field = await tab.element('#பெயர்');
    near(field.x, 30 + 15, 0.1);
    near(field.y, 130, 0.1);
    const count = (await tab.texts()).at(-1);
    near(count.scale, scale, 0.01);
    const size = await tab.page.evaluate(() => ['canvas', 'textCanvas'].map(id => {
        const { width, height } = document.getElementById(id);
        return [width, height];
    }));
    assert.deepEqual(size[0], size[1], 'both canvases have the same pixels');
}

/// Just inside of the box a press counts, just outside it doesn't.
async function assertPresses(tab) {
    const before = Number((await tab.texts()).at(-1).text);
    await tab.click(BOX.x + 1, BOX.y + 1);
    await tab.click(BOX.x + BOX.width - 1, BOX.y + BOX.height - 1);
    await tab.click(BOX.x - 2, BOX.y + 10);
    await tab.click(BOX.x + 10, BOX.y + BOX.height + 2);
    await tab.leave();
    assert.equal(Number((await tab.texts()).at(-1).text), before + 2);
}

for (const scale of [1, 1.5, 2, 3]) {
    webTest(`shapes are sharp and in their place at scale ${scale}`, page,
            { viewport: { width: 300, height: 270 }, deviceScaleFactor: scale }, async tab => {
        await assertAligned(tab, scale);
        await assertPresses(tab);
    });
}

webTest('windows that end amid a pixel keep everything in place', page,
        { viewport: { width: 301, height: 271 }, deviceScaleFactor: 1.5 }, async tab => {
    await assertAligned(tab, 1.5);
    assert.deepEqual(await tab.page.evaluate(() => document.getElementById('canvas').width), 452);
});

webTest('zooming, another screen and a turned phone keep everything in place', page,
        { viewport: { width: 300, height: 270 }, deviceScaleFactor: 1 }, async tab => {
    for (const [width, height, scale] of [[300, 270, 2], [270, 400, 2], [400, 270, 1.5], [300, 270, 3], [600, 540, 1]]) {
        await tab.rescale(width, height, scale);
        await assertAligned(tab, scale);
    }
    await assertPresses(tab);
});

webTest('shapes are sharp on a phone', page, PHONE, async tab => {
    await assertAligned(tab, 3);
});

webTest('no more pixels are drawn than can be told apart', page,
        { viewport: { width: 240, height: 260 }, deviceScaleFactor: 4 }, async tab => {
    const sizes = await tab.page.evaluate(() => {
        const canvas = document.getElementById('canvas');
        const box = canvas.getBoundingClientRect();
        return [canvas.width, canvas.height, box.width, box.height];
    });
    assert.deepEqual(sizes, [720, 780, 240, 260]);
    const box = await tab.area(RED, 'device');
    near(box.x, BOX.x * 4, 4);
    near(box.width, BOX.width * 4, 8);
});

webTest('a window without any size harms nothing', page, { viewport: { width: 300, height: 270 } }, async tab => {
    await tab.page.evaluate(async () => {
        for (const sides of [['innerWidth'], ['innerHeight'], ['innerWidth', 'innerHeight']]) {
            const own = sides.map(side => Object.getOwnPropertyDescriptor(window, side));
            sides.forEach(side => Object.defineProperty(window, side, { configurable: true, value: 0 }));
            window.pozhilFrames.wake();
            await new Promise(resolve => { setTimeout(resolve, 300); });
            sides.forEach((side, place) => Object.defineProperty(window, side, own[place]));
        }
    });
    await assertAligned(tab, 1);
    assert.deepEqual(tab.errors, []);
});

// Its edges lie between two points.
const drawn = '<svg xmlns="http://www.w3.org/2000/svg" width="40" height="40">'
    + '<rect x="10.5" width="20" height="40" fill="#0000ff"/></svg>';
for (const scale of [1, 2, 3]) {
    webTest(`a drawing is made for the pixels of the screen at scale ${scale}`, application(`
        படம்(பாதை: "assets/கட்டம்.svg", அகலம்: 40, உயரம்: 40)`),
            { files: { 'assets/கட்டம்.svg': drawn }, viewport: { width: 300, height: 270 }, deviceScaleFactor: scale },
            async tab => {
        const row = await tab.deviceRow(10 * scale);
        const mixed = row.filter(pixel => !same(pixel, [0, 0, 255]) && !same(pixel, GREY));
        assert.equal(mixed.length, scale === 2 ? 0 : 2);
        assert.equal(row.filter(pixel => same(pixel, [0, 0, 255])).length, 20 * scale - mixed.length / 2);
    });
}
