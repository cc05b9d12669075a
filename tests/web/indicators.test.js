// Widgets that only show something, and the two of them that move by themselves.

import { application, assert, near, webTest } from './harness/index.js';

const RED = [255, 0, 0];
const GREEN = [0, 255, 0];
const TRACK = [224, 224, 224];

const column = (...children) => `        நெடுவரிசை(இடைவெளி: 10)(\n            ${children.join(',\n            ')}\n        )`;

/// Asserts where the pixels of a colour are. The outermost ones of rounded ends are mixed with what is behind them.
async function assertRounded(page, colour, { x, y, width, height }) {
    const area = await page.area(colour);
    assert.deepEqual([area?.y, area?.height], [y, height]);
    near(area.x, x, 1);
    near(area.width, width, 2);
}

webTest('a divider is a line through the middle of its height', application(column(
    'பிரிப்பான்(நிறம்: "#FF0000", style_தடிமன்: 4, அகலம்: 50%)', 'பிரிப்பான்(நிறம்: "#00FF00", style_தடிமன்: 2, உயரம்: 40)')),
        async page => {
    assert.deepEqual(await page.area(RED), { x: 0, y: 8, width: 250, height: 4 });
    assert.deepEqual(await page.area(GREEN), { x: 0, y: 30 + 20 - 1, width: 300, height: 2 });
    await page.resize(200, 300);
    assert.deepEqual(await page.area(RED), { x: 0, y: 8, width: 100, height: 4 });
    assert.deepEqual(await page.area(GREEN), { x: 0, y: 49, width: 200, height: 2 });
});

webTest('a progress bar fills as far as its value, within its track', application(column(
    'முன்னேற்றவரி(மதிப்பு: படி, அகலம்: 300, உயரம்: 10, நிறம்: "#FF0000")',
    'முன்னேற்றவரி(மதிப்பு: 150, நிறம்: "#00FF00")',
    'முன்னேற்றவரி(மதிப்பு: கழி 5, நிறம்: "#0000FF")',
    'முன்னேற்றவரி(மதிப்பு: 1, நிறம்: "#0000FF")',
    'பொத்தான்(உரை: "", பொ_பாணி(அகலம்: 100, உயரம்: 40), அழுத்தினால்: () => படி = 80)'), { logic: '        படி = 40' }),
        async page => {
    await assertRounded(page, RED, { x: 0, y: 0, width: 120, height: 10 });
    await assertRounded(page, GREEN, { x: 0, y: 20, width: 200, height: 6 });
    assert.equal(await page.area([0, 0, 255]), null);
    const [below, almostNothing] = [20 + 6 + 10, 20 + 2 * (6 + 10)];
    assert.deepEqual(await page.pixels([[150, 5], [100, below + 3], [100, almostNothing + 3]]), [TRACK, TRACK, TRACK]);
    await page.click(50, almostNothing + 6 + 10 + 20);
    await assertRounded(page, RED, { x: 0, y: 0, width: 240, height: 10 });
});

webTest('a progress bar without a value goes to and fro', application(column(
    'முன்னேற்றவரி(நிறம்: "#FF0000", உயரம்: 10)')), async page => {
    const places = new Set();
    for (let look = 0; look < 8; ++look) {
        // Both rounded ends are mixed with the track.
        const { x, width } = await page.area(RED);
        near(width, 60, 2);
        assert.ok(x >= 0 && x + width <= 200);
        places.add(x);
        await page.page.waitForTimeout(130);
    }
    assert.ok(places.size > 3, `seen at ${[...places]}`);
});

webTest('a spinner turns while nothing else changes', application(column(
    'சுழல்_காட்டி(style_அளவு: 100, style_தடிமன்: 12, style_நிறம்: "#FF0000")')), async page => {
    // Radius 46 about the middle; a quarter of the circle is missing at any time.
    const around = Array.from({ length: 24 }, (_, step) => {
        const angle = step * Math.PI / 12;
        return [Math.floor(50 + 46 * Math.cos(angle)), Math.floor(50 + 46 * Math.sin(angle))];
    });
    const seen = new Set();
    for (let look = 0; look < 6; ++look) {
        const turned = (await page.pixels(around)).map(([red, green]) => red === 255 && green === 0);
        const part = turned.filter(Boolean).length / around.length;
        assert.ok(part >= 0.65 && part <= 0.9, `${part} of the circle`);
        seen.add(turned.join());
        await page.page.waitForTimeout(110);
    }
    assert.ok(seen.size > 2, 'it stood still');
    assert.deepEqual(await page.pixel(50, 50), [245, 245, 245]);
});

webTest('an info pill stands where it is, with its message in the middle', application(column(
    'தகவல்பட்டை()', 'தகவல்பட்டை(செய்தி: பெயர், பின்னணி: "#FF0000", அகலம்: 200, உயரம்: 60)'),
    { logic: '        பெயர் = "சேமித்தது"' }), async page => {
    const [usual, own] = [await page.text('தகவல்'), await page.text('சேமித்தது')];
    assert.deepEqual([usual.x, usual.y, usual.size, usual.align, usual.colour], [150, 20 - 8, 16, 'center', '#ffffff']);
    assert.deepEqual([own.x, own.y], [100, 50 + 30 - 8]);
    await assertRounded(page, RED, { x: 0, y: 50, width: 200, height: 60 });
    // 50 of 255 over the page's 245, at 230 of 255.
    for (const part of await page.pixel(30, 8)) {
        near(part, 50 * 230 / 255 + 245 * 25 / 255, 1);
    }
});
