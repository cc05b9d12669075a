// பெட்டி and அட்டை: place, size, colours, clipping, and what the mouse does.

import { application, assert, near, webTest } from './harness/index.js';

const boxes = application(`
        நெடுவரிசை(இடைவெளி: 10)(
            பெட்டி(பெட்டி_பாணி(பின்னணி: "#FF0000", அகலம்: 200, உயரம்: 60, மேம்படுத்தப்பட்ட_நிறம்: "#00FF00"),
                அழுத்தினால்: () => எண்ணு())
            பெட்டி(பெட்டி_பாணி(பின்னணி: "#0000FF", அகலம்: 120, உயரம்: 80),
                பெட்டி(சீரமைப்பு: மையம்)(பெட்டி_பாணி(பின்னணி: "#FFFF00", அகலம்: 40, உயரம்: 200)))
            பெட்டி(பெட்டி_பாணி(பின்னணி: "#FF00FF", அகலம்: 80, உயரம்: 40, மேம்படுத்தப்பட்ட_நிறம்: "#00FFFF"),
                அசைவூட்டம்(நிலைமை: "hover", காலம்: 2000))
            இவெ(உயரம்: 40)
            பெட்டி(அகலம்: திரை_அகலம் சிறிது 600 ? 50% : 400, உயரம்: 30, பின்னணி: "#123456", நிழல்: 5)
            உரை(எண்ணிக்கை)
        )`, { logic: `
        எண்ணிக்கை = 0
        செயல் எண்ணு():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1` });

webTest('boxes stand where their sizes put them, at any window size', boxes, async page => {
    for (const [width, height] of [[500, 400], [360, 640], [900, 420]]) {
        await page.resize(width, height);
        await page.leave();
        assert.deepEqual(await page.area([255, 0, 0]), { x: 0, y: 0, width: 200, height: 60 });
        assert.deepEqual(await page.area([255, 0, 255]), { x: 0, y: 160, width: 80, height: 40 });
        assert.deepEqual(await page.area([0x12, 0x34, 0x56]),
                         { x: 0, y: 260, width: width < 600 ? width / 2 : 400, height: 30 });
    }
});

webTest('a box cuts off a child that is higher than itself, and centres it', boxes, async page => {
    assert.deepEqual(await page.area([255, 255, 0]), { x: 40, y: 70, width: 40, height: 80 });
    assert.deepEqual(await page.area([0, 0, 255]), { x: 0, y: 70, width: 120, height: 80 });
});

webTest('a shadow darkens the page around a box', boxes, async page => {
    const [below, far] = await page.pixels([[100, 293], [450, 380]]);
    assert.deepEqual(far, [245, 245, 245]);
    assert.ok(below[0] < 240 && below[0] > 200, `${below}`);
});

webTest('a box changes colour at once under the pointer, and calls its handler', boxes, async page => {
    await page.moveTo(100, 30);
    assert.deepEqual(await page.pixel(100, 30), [0, 255, 0]);
    assert.equal(await page.cursor(), 'pointer');
    await page.click(100, 30);
    await page.text('1');
    await page.click(100, 62);
    await page.text('1');
    assert.deepEqual(await page.pixel(100, 30), [255, 0, 0]);
});

webTest('an animated box changes colour gradually', boxes, async page => {
    await page.moveTo(40, 180);
    assert.equal(await page.cursor(), 'pointer');
    const [red, green] = await page.pixel(40, 180);
    assert.ok(red > 0 && red < 255 && green > 0 && green < 255, `${[red, green]}`);
    await page.frames(130);
    assert.deepEqual(await page.pixel(40, 180), [0, 255, 255]);
    await page.leave();
    await page.frames(130);
    assert.deepEqual(await page.pixel(40, 180), [255, 0, 255]);
});

webTest('a card is as wide as it says, and its children are as wide as the card', application(`
        நெடுவரிசை(
            அட்டை(அட்டை_பாணி(அகலம்: 50%, உயரம்: 120, வளைவு: 0, பின்னணி: "#FF0000"),
                பெட்டி(பெட்டி_பாணி(அகலம்: 30, உயரம்: 30, பின்னணி: "#0000FF")),
                உரை("அட்டை"))
        )`), async page => {
    for (const [width, height] of [[500, 400], [360, 640], [900, 300]]) {
        await page.resize(width, height);
        assert.deepEqual(await page.area([255, 0, 0]), { x: 0, y: 0, width: width / 2, height: 120 });
        assert.deepEqual(await page.area([0, 0, 255]), { x: 15, y: 15, width: width / 2 - 15, height: 105 });
        const { x, y } = await page.text('அட்டை');
        assert.deepEqual([x, y], [15, 55]);
        const [below] = await page.pixel(60, 126);
        assert.ok(below < 235, `${below}: no shadow`);
    }
});

const inBox = alignment => `பெட்டி(பெட்டி_பாணி(பின்னணி: "#808080", அகலம்: 100, உயரம்: 50),
                ${alignment})`;

webTest('children stand by their own alignment, each by itself', application(`
        நெடுவரிசை(
            ${inBox(['மேல்_இடது', 'மேல்_மையம்', 'மேல்_வலது', 'மைய_இடது', 'மையம்', 'மைய_வலது', 'கீழ்_இடது', 'கீழ்_மையம்', 'கீழ்_வலது']
        .map((word, index) => `வட்டபடம்(அகலம்: 10, உயரம்: 10, பின்னணி: "#0000F${index}", சீரமைப்பு: ${word})`).join('\n                '))}
            ${inBox('பட்டியல்_உருப்படி(அகலம்: 40, உயரம்: 20, வளைவு: 0, பின்னணி: "#FF0000", சீரமைப்பு: மைய_வலது)')}
            ${inBox('பட்டியல்_உருப்படி(அகலம்: 40, உயரம்: 20, வளைவு: 0, பின்னணி: "#00FF00", சீரமைப்பு: "கீழ்_மையம்")')}
            ${inBox('உரை("நடு", உரைபாணி(அளவு: 20), சீரமைப்பு: மையம்)')}
        )`), async page => {
    const discs = Array.from({ length: 9 }, (_, index) => [[5, 50, 95][index % 3], [5, 25, 45][Math.floor(index / 3)]]);
    assert.deepEqual(await page.pixels(discs), discs.map((_, index) => [0, 0, 0xf0 + index]));
    // Written as a property, the right centre is the lower right corner.
    assert.deepEqual(await page.area([255, 0, 0]), { x: 60, y: 50 + 30, width: 40, height: 20 });
    assert.deepEqual(await page.area([0, 255, 0]), { x: 30, y: 100 + 30, width: 40, height: 20 });
    const { x, y } = await page.text('நடு');
    near(x, (100 - await page.textWidth('நடு', 20)) / 2);
    near(y, 150 + (50 - 20) / 2 + 2);
});

webTest('a box in a box is cut off by both', application(`
        பெட்டி(பெட்டி_பாணி(பின்னணி: "#FF0000", அகலம்: 200, உயரம்: 100),
            பெட்டி(சீரமைப்பு: கீழ்_மையம்)(பெட்டி_பாணி(பின்னணி: "#0000FF", அகலம்: 100, உயரம்: 140),
                பெட்டி(பெட்டி_பாணி(பின்னணி: "#00FF00", அகலம்: 150, உயரம்: 60))))
        `), async page => {
    // The inner box reaches from 40 above to the lower edge; the innermost one begins in its corner.
    const pixels = await page.pixels([[49, 10], [50, 10], [149, 19], [150, 10], [149, 21], [149, 99]]);
    assert.deepEqual(pixels, [[255, 0, 0], [0, 255, 0], [0, 255, 0], [255, 0, 0], [0, 0, 255], [0, 0, 255]]);
    assert.deepEqual(await page.area([255, 0, 0]), { x: 0, y: 0, width: 200, height: 100 });
});

webTest('a box without anything is white and square, and a shadow ends at a translucent one', application(`
        நெடுவரிசை(இடைவெளி: 60)(
            பெட்டி()
            பெட்டி(நிழல்: 8, பின்னணி: "#FF000080")
        )`), async page => {
    assert.deepEqual(await page.area([255, 255, 255]), { x: 0, y: 0, width: 100, height: 100 });
    const [inside, outside] = await page.pixels([[50, 210], [50, 263]]);
    const half = 0x80 / 255;
    [255 * half + 245 * (1 - half), 245 * (1 - half), 245 * (1 - half)]
        .forEach((value, part) => near(inside[part], value, 2));
    assert.ok(outside[0] < 240, `${outside}`);
});

webTest('a card of no size is 350 wide, and its width beats the percentage of a child', application(`
        அட்டை(
            பெட்டி(பெட்டி_பாணி(அகலம்: 50%, உயரம்: 30, பின்னணி: "#0000FF")),
            உரை("அடுத்தது"))
        `), async page => {
    assert.deepEqual(await page.area([0, 0, 255]), { x: 15, y: 15, width: 350 - 15, height: 200 - 15 });
    near((await page.text('அடுத்தது')).y, 15 + 30 + 10);
    const [inside, corner, outside] = await page.pixels([[5, 100], [1, 1], [375, 100]]);
    assert.deepEqual(inside, [255, 255, 255]);
    assert.notDeepEqual(corner, [255, 255, 255]);
    assert.notDeepEqual(outside, [255, 255, 255]);
});
