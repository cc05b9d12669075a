// பட்டியல்_காட்சி, கட்டம்_காட்சி and பட்டியல்_உருப்படி: places, scrolling, columns by the window, and what the mouse does.

import { application, assert, near, webTest } from './harness/index.js';

const square = (colour, width, height) => `பெட்டி(பெட்டி_பாணி(பின்னணி: "${colour}", அகலம்: ${width}, உயரம்: ${height}))`;

const RED = [255, 0, 0];
const GREEN = [0, 255, 0];
const BLUE = [0, 0, 255];
const YELLOW = [255, 255, 0];

webTest('a grid has as many columns as the window has room for', application(`
        கட்டம்_காட்சி(cols: 4, அகலம்: 410)(
            ${square('#FF0000', 40, 40)}, ${square('#00FF00', 40, 40)},
            ${square('#0000FF', 40, 40)}, ${square('#FFFF00', 40, 40)}
        )`), async page => {
    const places = { 4: [[105, 0], [210, 0], [315, 0]], 2: [[210, 0], [0, 50], [210, 50]],
                     1: [[0, 50], [0, 100], [0, 150]] };
    for (const [width, columns] of [[900, 4], [769, 4], [768, 2], [481, 2], [480, 1], [360, 1]]) {
        await page.resize(width, 300);
        assert.deepEqual(await page.area(RED), { x: 0, y: 0, width: 40, height: 40 }, `${width}`);
        for (const [index, colour] of [GREEN, BLUE, YELLOW].entries()) {
            const [x, y] = places[columns][index];
            assert.deepEqual(await page.area(colour), { x, y, width: 40, height: 40 }, `${width}: ${colour}`);
        }
    }
});

const list = application(`
        பட்டியல்_காட்சி(
            ${square('#FF0000', 200, 300)}, ${square('#00FF00', 200, 300)}, ${square('#0000FF', 200, 300)}
        )`);

webTest('a list scrolls its children in the middle of the window', list, async page => {
    assert.deepEqual(await page.area(RED), { x: 150, y: 0, width: 200, height: 300 });
    assert.deepEqual(await page.area(GREEN), { x: 150, y: 300, width: 200, height: 100 });
    await page.moveTo(250, 200);
    await page.wheel(0, 100);
    assert.deepEqual(await page.area(RED), { x: 150, y: 0, width: 200, height: 200 });
    await page.wheel(0, 5000);
    assert.deepEqual(await page.area(BLUE), { x: 150, y: 100, width: 200, height: 300 });
    assert.deepEqual(await page.area(GREEN), { x: 150, y: 0, width: 200, height: 100 });
    // 400 of 900 pixels are seen, the last ones.
    const [above, bar] = await page.pixels([[496, 200], [496, 300]]);
    assert.deepEqual(above, [245, 245, 245]);
    near(bar[0], 245 * (1 - 100 / 255), 2);
    await page.wheel(0, -9000);
    assert.deepEqual(await page.area(RED), { x: 150, y: 0, width: 200, height: 300 });
});

webTest('a list that fits has no bar and stays', list, async page => {
    await page.resize(400, 950);
    await page.moveTo(200, 200);
    await page.wheel(0, 300);
    assert.deepEqual(await page.area(RED), { x: 100, y: 0, width: 200, height: 300 });
    assert.deepEqual(await page.pixel(396, 20), [245, 245, 245]);
});

const tiles = application(`
        நெடுவரிசை(இடைவெளி: 4)(
            பட்டியல்_உருப்படி(முன்னணி: வட்டபடம்(அகலம்: 40, உயரம்: 40, பின்னணி: "#0000FF"), தலைப்பு: உரை("தலைப்பு"),
                துணைத்_தலைப்பு: உரை("துணை"), அகலம்: 300, பின்னணி: "#C8C8C8", வளைவு: 0, அழுத்தினால்: () => எண்ணு())
            பட்டியல்_உருப்படி(தலைப்பு: உரை("ஒன்று"), பின்னணி: "#FF0000", வளைவு: 0, அழுத்தினால்(எண்ணு()))
            உரை(எண்ணிக்கை)
        )`, { logic: `
        எண்ணிக்கை = 0
        செயல் எண்ணு():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1` });

webTest('a tile puts its parts in their places', tiles, async page => {
    for (const [width, height] of [[500, 400], [280, 500], [1000, 200]]) {
        await page.resize(width, height);
        await page.leave();
        assert.deepEqual(await page.area([200, 200, 200]), { x: 0, y: 0, width: Math.min(300, width), height: 72 });
        assert.deepEqual(await page.pixels([[36, 18], [36, 53], [18, 36], [53, 36]]), Array(4).fill(BLUE));
        assert.notDeepEqual(await page.pixel(18, 18), BLUE);
        assert.deepEqual(await page.area(RED), { x: 0, y: 76, width: 200, height: 56 });
        const [title, subtitle, single] = await page.texts();
        assert.deepEqual([title.text, title.x, title.y], ['தலைப்பு', 16 + 40 + 12, 12]);
        assert.deepEqual([subtitle.text, subtitle.x, subtitle.y], ['துணை', 68, 72 - 16 - 12]);
        assert.deepEqual([single.text, single.x, single.y], ['ஒன்று', 16, 76 + (56 - 16) / 2]);
    }
});

webTest('a tile darkens under the pointer and calls its handler', tiles, async page => {
    await page.moveTo(250, 36);
    assert.deepEqual(await page.pixel(250, 36), [190, 190, 190]);
    assert.equal(await page.cursor(), 'pointer');
    await page.click(250, 36);
    await page.text('1');
    await page.click(310, 36);
    await page.text('1');
    await page.moveTo(150, 100);
    assert.deepEqual(await page.pixel(180, 80), [245, 0, 0]);
});
