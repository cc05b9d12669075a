// The bar at the bottom and the tabs across the window.

import { application, assert, near, webTest } from './harness/index.js';
import { png } from './harness/pictures.js';

const BLUE = [33, 150, 243];
const WHITE = [255, 255, 255];
const drawn = async page => (await page.texts()).map(({ text }) => text);

webTest('a bottom bar shows the item that the program names, and evaluates its handler on a press', application(`
        அடுக்கி(
            உரை(கடைசி),
            அடிப்பகுதி(
                அடிப்பகுதிதேர்வு: இடம், அழுத்தினால்: அழுத்தம்(),
                அடி_உருப்படி(படம்(பாதை: "red.png"), உரை("முகப்பு")),
                அடி_உருப்படி(படம்(பாதை: "red.png"), உரை("தேடல்"))
            )
        )`, { logic: `
        இடம் = 0
        கடைசி = "எதுவுமில்லை"
        செயல் அழுத்தம்():
            இடம் = 1
            கடைசி = "அழுத்தியது"` }), { files: { 'red.png': png(24, [255, 0, 0]) } }, async page => {
    const bar = 400 - 64;
    assert.deepEqual(await page.pixels([[10, bar + 1], [490, 399]]), [WHITE, WHITE]);
    const [home, search] = [await page.text('முகப்பு'), await page.text('தேடல்')];
    assert.deepEqual([home.x, home.y, home.size, home.align], [125, bar + 44, 11, 'center']);
    assert.deepEqual([search.x, home.colour, search.colour], [375, '#2196f3', '#757575']);
    // 24 by 24 pixels about the item's centre; the other icon is half as strong.
    assert.deepEqual(await page.area([255, 0, 0]), { x: 125 - 12, y: bar + 18 - 12, width: 24, height: 24 });
    const [red, green] = await page.pixel(375, bar + 18);
    assert.equal(red, 255);
    near(green, 128, 1);

    await page.click(375, bar - 5);
    assert.equal((await page.text('எதுவுமில்லை')).text, 'எதுவுமில்லை');
    await page.click(375, bar + 30);
    assert.equal((await page.text('அழுத்தியது')).text, 'அழுத்தியது');
    assert.equal((await page.text('தேடல்')).colour, '#2196f3');
    await page.resize(300, 200);
    assert.deepEqual([(await page.text('முகப்பு')).x, (await page.text('முகப்பு')).y], [75, 200 - 64 + 44]);
});

webTest('a bottom bar neither calls a function nor follows the press by itself', application(`
        அடுக்கி(
            உரை(எண்ணம்),
            அடிப்பகுதி(அழுத்தினால்: () => எண்ணம் = எண்ணம் கூட்டு 1, அடி_உருப்படி(உரை("அ")), அடி_உருப்படி(உரை("ஆ")))
        )`, { logic: '        எண்ணம் = 5' }), async page => {
    await page.click(375, 380);
    assert.deepEqual(await drawn(page), ['5', 'அ', 'ஆ']);
    assert.deepEqual([(await page.text('அ')).colour, (await page.text('ஆ')).colour], ['#2196f3', '#757575']);
});

webTest('what stands under a bar answers to its presses too', application(`
        அடுக்கி(
            பொத்தான்(உரை: "", பொ_பாணி(அகலம்: 500, உயரம்: 400, வளைவு: 0), அழுத்தினால்: எண்ணு()),
            உரை(எண்ணம்),
            அடிப்பகுதி(style_பின்னணி: "#FF0000", அடி_உருப்படி(உரை("அ")))
        )`, { logic: `
        எண்ணம் = 0
        செயல் எண்ணு():
            எண்ணம் = எண்ணம் கூட்டு 1` }), async page => {
    assert.deepEqual(await page.area([255, 0, 0]), { x: 0, y: 336, width: 500, height: 64 });
    await page.click(100, 350);
    assert.ok((await drawn(page)).includes('1'));
    await page.click(100, 300);
    assert.ok((await drawn(page)).includes('2'));
});

webTest('bars without items are one item wide, and presses on them lead nowhere', application(`
        அடுக்கி(தத்தல்(style_பின்னணி: "#00FF00"), அடிப்பகுதி(style_பின்னணி: "#FF0000"))`), async page => {
    for (const y of [20, 380]) {
        await page.click(60, y);
        await page.click(450, y);
    }
    assert.deepEqual(await page.area(WHITE), { x: 0, y: 47, width: 500, height: 3 });
    assert.deepEqual(await page.pixels([[10, 10], [490, 390]]), [[0, 255, 0], [255, 0, 0]]);
    assert.deepEqual(page.errors, []);
});

webTest('tabs are selected by a press, and stand above the rest of their column', application(`
        நெடுவரிசை(
            தத்தல்(தத்தல்_தேர்வு: 1, அழுத்தினால்: எண்ணு(), தத்தல்_உருப்படி("ஒன்று"), தத்தல்_உருப்படி(உரை: "இரண்டு")),
            உரை(எண்ணம்)
        )`, { logic: `
        எண்ணம் = 0
        செயல் எண்ணு():
            எண்ணம் = எண்ணம் கூட்டு 1` }), async page => {
    // The bar moves the column on, and so does the column for its child: 50 pixels each.
    assert.equal((await page.text('0')).y, 100);
    assert.deepEqual(await page.pixel(10, 10), BLUE);
    const [first, second] = [await page.text('ஒன்று'), await page.text('இரண்டு')];
    assert.deepEqual([first.x, first.y, first.size, first.colour], [125, 25, 14, '#e0e0e0']);
    assert.deepEqual([second.x, second.y, second.size, second.colour], [375, 25, 15, '#ffffff']);
    assert.deepEqual(await page.pixels([[10, 48], [260, 48], [490, 48]]), [BLUE, WHITE, WHITE]);

    await page.click(60, 20);
    assert.deepEqual(await page.pixels([[10, 48], [260, 48]]), [WHITE, BLUE]);
    assert.deepEqual([(await page.text('ஒன்று')).size, (await page.text('இரண்டு')).size], [15, 14]);
    assert.deepEqual(await drawn(page), ['ஒன்று', 'இரண்டு', '1']);
    await page.click(60, 80);
    assert.deepEqual(await drawn(page), ['ஒன்று', 'இரண்டு', '1']);
});
