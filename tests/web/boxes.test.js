// பெட்டி and அட்டை: place, size, colours, clipping, and what the mouse does.

import { application, assert, webTest } from './harness/index.js';

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
