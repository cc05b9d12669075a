// எச்சரிக்கை and அறிவிப்பு_பட்டை: what lies over the page, and what it keeps from the page.

import { application, assert, near, webTest } from './harness/index.js';

const dialog = application(`
        அடுக்கி(சீரமைப்பு: மேல்_இடது)(
            நெடுவரிசை(இடைவெளி: 4)(
                பொத்தான்(உரை: "எண்ணு", பொ_பாணி(அகலம்: 120, உயரம்: 40), அழுத்தினால்: () => எண்ணு())
                பொத்தான்(உரை: "திற", பொ_பாணி(அகலம்: 120, உயரம்: 40), அழுத்தினால்: () => திற())
                உரை(எண்ணிக்கை)
            )
            எச்சரிக்கை(காட்சி_பெயர்: "உறுதி", எச்சரிக்கை_பாணி(அகலம்: 300, உயரம்: 160, வளைவு: 20, பின்னணி: "#FFFF00"))(
                நெடுவரிசை(
                    பொத்தான்(உரை: "மூடு", பொ_பாணி(பொபின்னணி: "#FF0000", வளைவு: 0, அகலம்: 100, உயரம்: 40), அழுத்தினால்: () => மூடு())
                )
            )
        )`, { logic: `
        உறுதி = பொய்
        எண்ணிக்கை = 0
        செயல் எண்ணு():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1
        செயல் திற():
            உறுதி = மெய்
        செயல் மூடு():
            உறுதி = பொய்` });

const message = async (page, wanted) => (await page.texts()).find(({ text }) => text === wanted);
const isOpen = async page => (await page.texts()).some(({ text }) => text === 'மூடு');

webTest('a dialog takes the page over until its handler closes it', dialog, async page => {
    await page.click(60, 20);
    await page.text('1');
    assert.equal(await isOpen(page), false);

    await page.click(60, 64);
    assert.equal(await isOpen(page), true);
    await page.click(60, 20);
    await page.text('1');
    await page.click(490, 390);
    assert.equal(await isOpen(page), true);

    await page.click(150, 140);
    assert.equal(await isOpen(page), false);
    await page.click(60, 20);
    await page.text('2');
});

webTest('an open dialog stands in the middle, and all around it is dimmed', dialog, async page => {
    await page.click(60, 64);
    for (const [width, height] of [[500, 400], [360, 640], [320, 300]]) {
        await page.resize(width, height);
        await page.leave();
        const wide = Math.min(300, width - 40);
        const left = (width - wide) / 2;
        const top = (height - 160) / 2;
        assert.deepEqual(await page.area([255, 255, 0]), { x: left, y: top, width: wide, height: 160 });
        assert.deepEqual(await page.area([255, 0, 0]), { x: left, y: top, width: 100, height: 40 });
        const [corner, dimmed] = await page.pixels([[left + 1, top + 158], [width - 2, height - 2]]);
        assert.notDeepEqual(corner, [255, 255, 0]);
        near(dimmed[0], 245 * (1 - 0.63), 2);
    }
});

webTest('a dialog without a look of its own is white, 400 by 280, and its variable may have no value yet', application(`
        நெடுவரிசை(
            பொத்தான்(உரை: "திற", பொ_பாணி(அகலம்: 120, உயரம்: 40), அழுத்தினால்: () => திற())
            எச்சரிக்கை(காட்சி_பெயர்: "வந்தது")(
                நெடுவரிசை(
                    பொத்தான்(உரை: "அறிவி", பொ_பாணி(அகலம்: 120, உயரம்: 40),
                        அழுத்தினால்: அறிவிப்பு_பட்டை(செய்தி: "மேலே", பின்னணி: "#008800"))))
        )`, { logic: `
        செயல் திற():
            வந்தது = மெய்` }), async page => {
    assert.equal(await page.area([255, 255, 255]), null);
    await page.click(60, 20);
    await page.leave();
    assert.deepEqual(await page.area([255, 255, 255]), { x: 50, y: 60, width: 400, height: 280 });
    // A message from the dialog's button lies over the dialog and its dimming.
    await page.click(110, 80);
    const { x, width } = await page.area([0, 0x88, 0]);
    assert.deepEqual([x, width], [100, 300]);
});

const LONG = 'மிக நீளமான செய்தி ஒன்று இங்கே நிற்கிறது '.repeat(6).trim();

webTest('a bar widens with its message up to the window, and the text stays in one line', application(`
        நெடுவரிசை(
            பொத்தான்(உரை: "சொல்", பொ_பாணி(அகலம்: 120, உயரம்: 40), அழுத்தினால்: அறிவிப்பு_பட்டை(செய்தி: "${LONG}", பின்னணி: "#008800"))
        )`), async page => {
    await page.click(60, 20);
    const { x, width } = await page.area([0, 0x88, 0]);
    assert.deepEqual([x, width], [20, 460]);
    assert.equal((await message(page, LONG)).x, 250);
});

const bar = application(`
        நெடுவரிசை(இடைவெளி: 10)(
            பொத்தான்(உரை: "ஒன்று", பொ_பாணி(அகலம்: 120, உயரம்: 40), அழுத்தினால்: அறிவிப்பு_பட்டை(செய்தி: "வணக்கம்", பின்னணி: "#008800"))
            பெட்டி(அகலம்: 120, உயரம்: 40, பின்னணி: "#FF0000", அழுத்தினால்: அறிவிப்பு_பட்டை(செய்தி: பெயர்))
            பட்டியல்_உருப்படி(தலைப்பு: உரை("மூன்று"), அழுத்தினால்: அறிவிப்பு_பட்டை(செய்தி: உரை("நலமா")))
            அறிவிப்பு_பட்டை(செய்தி: "காணாதது")
        )`, { logic: '        பெயர் = "கயல்"' });

webTest('a snack bar slides in, stays for a while and leaves', bar, async page => {
    assert.equal(await message(page, 'காணாதது'), undefined);
    await page.click(60, 20);
    const first = await message(page, 'வணக்கம்');
    assert.ok(first.y > -100 && first.y < 58, `${first.y}`);
    await page.page.waitForFunction(() => window.recorded.texts.some(({ text, y }) => text === 'வணக்கம்' && y > 57.5));
    const { x, y, size, align } = await message(page, 'வணக்கம்');
    assert.deepEqual([x, size, align], [250, 16, 'center']);
    near(y, 58, 0.5);
    const area = await page.area([0, 0x88, 0]);
    assert.deepEqual([area.x, area.width], [100, 300]);
    // As long as it comes nearer to its place, its edges are blended with what lies behind.
    near(area.height, 55, 1);
    await page.page.waitForFunction(() => !window.recorded.texts.some(({ text }) => text === 'வணக்கம்'));
    assert.equal(await page.area([0, 0x88, 0]), null);
});

webTest('a second snack bar begins anew', bar, async page => {
    const now = () => page.page.evaluate(() => performance.now());
    await page.click(60, 20);
    await page.page.waitForTimeout(1500);
    const pressed = await now();
    await page.click(60, 70);
    assert.equal(await message(page, 'வணக்கம்'), undefined);
    assert.notEqual(await page.area([50, 50, 50]), null);
    await page.page.waitForFunction(() => !window.recorded.texts.some(({ text }) => text === 'கயல்'));
    // With the time of the first one it would have left a second and a half earlier.
    assert.ok(await now() - pressed >= 2500);
    await page.click(60, 120);
    assert.notEqual(await message(page, 'நலமா'), undefined);
});

// The opening button lies where the dialog's own button comes to stand.
const underPointer = application(`
        அடுக்கி(சீரமைப்பு: மேல்_இடது)(
            நெடுவரிசை(
                இவெ(உயரம்: 120)
                பொத்தான்(உரை: "திற", பொ_பாணி(அகலம்: 250, உயரம்: 60), அழுத்தினால்: () => திற())
            )
            எச்சரிக்கை(காட்சி_பெயர்: "உறுதி", எச்சரிக்கை_பாணி(அகலம்: 300, உயரம்: 160))(
                நெடுவரிசை(
                    பொத்தான்(உரை: "மூடு", பொ_பாணி(அகலம்: 100, உயரம்: 40), அழுத்தினால்: () => மூடு())
                    உரை(மூடியவை)
                )
            )
        )`, { logic: `
        உறுதி = பொய்
        மூடியவை = 0
        செயல் திற():
            உறுதி = மெய்
        செயல் மூடு():
            உறுதி = பொய்
            மூடியவை = மூடியவை கூட்டு 1` });

webTest('the click that opens a dialog does nothing in it', underPointer, async page => {
    await page.click(150, 140);
    assert.equal(await isOpen(page), true);
    await page.text('0');
    await page.click(150, 140);
    assert.equal(await isOpen(page), false);
    await page.click(150, 140);
    assert.equal(await isOpen(page), true);
    await page.text('1');
});

// A dialog's button opens another dialog, whose own button lies in the same place.
webTest('the click that opens a dialog from a dialog does nothing in the second', application(`
        அடுக்கி(சீரமைப்பு: மேல்_இடது)(
            எச்சரிக்கை(காட்சி_பெயர்: "முதல்", எச்சரிக்கை_பாணி(அகலம்: 300, உயரம்: 160))(
                அடுக்கி(சீரமைப்பு: மேல்_இடது)(
                    பொத்தான்(உரை: "அடுத்தது", பொ_பாணி(அகலம்: 100, உயரம்: 40), அழுத்தினால்: () => அடுத்ததைத்_திற())
                    எச்சரிக்கை(காட்சி_பெயர்: "இரண்டாவது", எச்சரிக்கை_பாணி(அகலம்: 300, உயரம்: 160))(
                        பொத்தான்(உரை: "மூடு", பொ_பாணி(அகலம்: 100, உயரம்: 40), அழுத்தினால்: () => மூடு())
                    )
                )
            )
        )`, { logic: `
        முதல் = மெய்
        இரண்டாவது = பொய்
        செயல் அடுத்ததைத்_திற():
            இரண்டாவது = மெய்
        செயல் மூடு():
            இரண்டாவது = பொய்
            முதல் = பொய்` }), async page => {
    await page.text('அடுத்தது');
    await page.click(150, 140);
    assert.equal(await isOpen(page), true);
    await page.click(150, 140);
    assert.equal(await isOpen(page), false);
});
