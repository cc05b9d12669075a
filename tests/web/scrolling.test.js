// Columns and rows that scroll: wheel, scroll bar, and the way to a widget with a name.

import { application, assert, near, webTest } from './harness/index.js';

/// Button and texts count 16 in height, so they stand 60 apart.
const lines = Array.from({ length: 12 }, (_, index) => `உரை("வரி ${index}", அடையாளம்: "இடம்${index}")`);

const column = application(`
        நெடுவரிசை(உருளும்பட்டை: மெய், இடைவெளி: 44)(
            பொத்தான்(உரை: "இறங்கு", பொ_பாணி(அகலம்: 200, உயரம்: 16), அழுத்தினால்(நகர்த்து("இடம்4"))),
            ${lines.join(',\n            ')}
        )`);

const CONTENT = 13 * 60 - 44;
const LIMIT = CONTENT - 400;

const yOf = async (page, text) => (await page.text(text)).y;

function assertGrey(pixel) {
    // Black, 100 of 255 strong, on 245
    const expected = 245 * (1 - 100 / 255);
    assert.ok(pixel.every(value => Math.abs(value - expected) <= 3), `${pixel}`);
}

webTest('the wheel scrolls a column as far as its content goes', column, async page => {
    near(await yOf(page, 'வரி 0'), 60);
    await page.moveTo(250, 300);
    await page.wheel(0, 100);
    near(await yOf(page, 'வரி 0'), 60 - 100);
    await page.wheel(0, 5000);
    near(await yOf(page, 'வரி 0'), 60 - LIMIT);
    near(await yOf(page, 'வரி 11'), 12 * 60 - LIMIT);
    await page.wheel(0, -40);
    near(await yOf(page, 'வரி 0'), 60 - LIMIT + 40);
    await page.wheel(0, -5000);
    near(await yOf(page, 'வரி 0'), 60);
    assert.equal(await page.window('wheelDelta'), 0);
});

webTest('the scroll bar shows where the window stands in the content', column, async page => {
    const length = 400 * 400 / CONTENT;
    const [bar, below, beside] = await page.pixels([[496, 10], [496, Math.ceil(length) + 5], [490, 10]]);
    assertGrey(bar);
    assert.deepEqual([below, beside], [[245, 245, 245], [245, 245, 245]]);
    await page.moveTo(250, 300);
    await page.wheel(0, 5000);
    const top = LIMIT * 400 / CONTENT;
    const [above, moved] = await page.pixels([[496, Math.floor(top) - 5], [496, Math.ceil(top) + 10]]);
    assert.deepEqual(above, [245, 245, 245]);
    assertGrey(moved);
});

webTest('a column that fits has no scroll bar and stays', column, async page => {
    await page.resize(500, 800);
    await page.moveTo(250, 300);
    await page.wheel(0, 100);
    near(await yOf(page, 'வரி 0'), 60);
    assert.deepEqual(await page.pixels([[496, 10], [496, 400]]), [[245, 245, 245], [245, 245, 245]]);
});

webTest('a column that is left and shown again stands where it stood', application(`
        நெடுவரிசை(உருளும்பட்டை: மெய், இடைவெளி: 44)(
            ${lines.slice(0, 10).join(',\n            ')},
            பொத்தான்(உரை: "போ", பொ_பாணி(அகலம்: 200, உயரம்: 16), அழுத்தினால்(செல்க("ஆ")))
        )`, { header: 'பக்கம்: "அ"' }) + application(`
        பொத்தான்(உரை: "வா", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்(செல்க("அ")))`, { header: 'பக்கம்: "ஆ"' }),
        async page => {
    const limit = 11 * 60 - 44 - 400;
    await page.moveTo(250, 300);
    await page.wheel(0, 5000);
    near(await yOf(page, 'வரி 5'), 5 * 60 - limit);
    await page.click(100, 10 * 60 - limit + 8);
    await page.text('வா');
    await page.click(100, 20);
    near(await yOf(page, 'வரி 5'), 5 * 60 - limit);
});

webTest('of two columns under the pointer the one drawn first takes the wheel', application(`
        நெடுவரிசை(உருளும்பட்டை: மெய்)(
            நெடுவரிசை(உருளும்பட்டை: மெய்)(
                உரை("உள்ளே", உரைபாணி(அளவு: 500))
            ),
            உரை("கீழே", உரைபாணி(அளவு: 300))
        )`), async page => {
    const before = await yOf(page, 'உள்ளே');
    await page.moveTo(250, 200);
    await page.wheel(0, 60);
    // Both would make it 120.
    near(await yOf(page, 'உள்ளே'), before - 60);
});

/// Waits until the scrolling has come to rest.
async function rest(page, text) {
    for (let before = null, now = await yOf(page, text); before !== now; now = await yOf(page, text)) {
        before = now;
        await page.frames(3);
    }
}

webTest('நகர்த்து scrolls to the widget of that name, from the program and from a script', column, async page => {
    await page.click(100, 8);
    await rest(page, 'வரி 4');
    near(await yOf(page, 'வரி 4'), 50, 2);
    await page.page.evaluate(() => Module['நகர்த்து']('இடம்2'));
    await rest(page, 'வரி 2');
    near(await yOf(page, 'வரி 2'), 50, 2);
    // Near the end it stops there.
    await page.page.evaluate(() => Module['நகர்த்து']('இடம்11'));
    await rest(page, 'வரி 11');
    near(await yOf(page, 'வரி 11'), 12 * 60 - LIMIT);
    await page.page.evaluate(() => Module['நகர்த்து']('இல்லாதது'));
    await page.frames(5);
    near(await yOf(page, 'வரி 11'), 12 * 60 - LIMIT);
});

webTest('a field moves with its column', application(`
        நெடுவரிசை(உருளும்பட்டை: மெய்)(
            உரைபெட்டி(அடையாளம்: "பெயர்"),
            இவெ(உயரம்: 100),
            உரை("கீழே", உரைபாணி(அளவு: 500))
        )`), async page => {
    await page.moveTo(250, 300);
    await page.wheel(0, 30);
    assert.equal((await page.element('#பெயர்')).y, -30);
});

const row = application(`
        கிடைவரிசை(உருளும்பட்டை: மெய், உயரம்: 100)(
            ${Array.from({ length: 8 }, (_, index) => `பொத்தான்(உரை: "${index}", பொ_பாணி(அகலம்: 100, உயரம்: 40))`).join(', ')}
        )`);

webTest('a row scrolls by either wheel and leaves room behind its end', row, async page => {
    const centre = async () => (await page.text('0')).x;
    const limit = 8 * 100 + 150 - 500;
    near(await centre(), 50);
    await page.moveTo(250, 80);
    await page.wheel(60, 0);
    near(await centre(), 50 - 60);
    await page.wheel(0, 40);
    near(await centre(), 50 - 100);
    await page.wheel(5000, 0);
    near(await centre(), 50 - limit);
    // 500 of 950 are seen; the bar is as long, and 4 high at the lower edge.
    assertGrey(await page.pixel(490, 96));
    assert.deepEqual(await page.pixels([[200, 96], [490, 99]]), [[245, 245, 245], [245, 245, 245]]);
    // Outside the row the wheel does nothing.
    await page.moveTo(250, 200);
    await page.wheel(-100, 0);
    near(await centre(), 50 - limit);
});
