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

webTest('a grid of one column keeps it, one of two loses it on the narrowest window', application(`
        நெடுவரிசை(
            கட்டம்_காட்சி(cols: 1, அகலம்: 410)(${square('#FF0000', 40, 40)}, ${square('#00FF00', 40, 40)})
            கட்டம்_காட்சி(cols: 2, அகலம்: 410)(${square('#0000FF', 40, 40)}, ${square('#FFFF00', 40, 40)})
        )`), async page => {
    for (const width of [900, 481, 480]) {
        await page.resize(width, 300);
        assert.deepEqual(await page.area(GREEN), { x: 0, y: 50, width: 40, height: 40 });
        // The first grid counts two rows of 40 with a gap of 10.
        assert.deepEqual(await page.area(BLUE), { x: 0, y: 90, width: 40, height: 40 });
        const place = width > 480 ? { x: 210, y: 90 } : { x: 0, y: 140 };
        assert.deepEqual(await page.area(YELLOW), { ...place, width: 40, height: 40 }, `${width}`);
    }
});

webTest('rows of a grid are as high as their highest cell, and gaps lie between', application(`
        கட்டம்_காட்சி(cols: 2, அகலம்: 300, இவெ(அகலம்: 20, உயரம்: 6))(
            ${square('#FF0000', 40, 30)}, ${square('#00FF00', 200, 70)}, ${square('#0000FF', 40, 20)}
        )`), async page => {
    assert.deepEqual(await page.area(RED), { x: 0, y: 0, width: 40, height: 30 });
    // Cells say where children stand, not how wide they are.
    assert.deepEqual(await page.area(GREEN), { x: 140 + 20, y: 0, width: 200, height: 70 });
    assert.deepEqual(await page.area(BLUE), { x: 0, y: 70 + 6, width: 40, height: 20 });
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

webTest('a list goes to the widget that the program wants to see', application(`
        பட்டியல்_காட்சி(
            பொத்தான்(உரை: "இறங்கு", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்(நகர்த்து("மூன்று"))),
            ${square('#FF0000', 200, 300)}, இவெ(உயரம்: 10), ${square('#00FF00', 200, 300)},
            உரை("மூன்று", அடையாளம்: "மூன்று"), ${square('#0000FF', 200, 600)}
        )`), async page => {
    await page.click(250, 20);
    await page.page.waitForFunction(() => window.recorded.texts.every(({ y }) => y < 60), undefined, { timeout: 60_000 });
    await page.frames(60);
    // It comes to stand fifty pixels below the top, or nearly so.
    near((await page.text('மூன்று')).y, 50, 2);
    assert.equal((await page.area(GREEN)).y, 0);
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

webTest('a tile under an open dialog keeps still', application(`
        அடுக்கி(சீரமைப்பு: மேல்_இடது)(
            பட்டியல்_உருப்படி(தலைப்பு: உரை("கீழே"), பின்னணி: "#FFFFFF", வளைவு: 0, அழுத்தினால்: () => எண்ணு())
            எச்சரிக்கை(காட்சி_பெயர்: "திறந்தது", எச்சரிக்கை_பாணி(அகலம்: 300, உயரம்: 200, பின்னணி: "#0000FF"))(
                பட்டியல்_உருப்படி(தலைப்பு: உரை(எண்ணிக்கை), பின்னணி: "#FF0505", வளைவு: 0, அழுத்தினால்: () => எண்ணு()))
        )`, { logic: `
        திறந்தது = மெய்
        எண்ணிக்கை = 0
        செயல் எண்ணு():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1` }), async page => {
    const dimmed = value => value * (1 - 0.63);
    await page.click(100, 28);
    await page.text('0');
    near((await page.pixel(190, 50))[0], dimmed(255), 2);
    // The one in the dialog answers, and no part of its colour falls below nothing.
    await page.click(200, 120);
    await page.text('1');
    assert.deepEqual(await page.pixel(280, 110), [245, 0, 0]);
});
