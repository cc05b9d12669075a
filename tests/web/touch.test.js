// A phone: the page is as wide as the screen, and fingers scroll, drag, press and go.

import { COARSE_PHONE, PHONE, application, assert, near, webTest } from './harness/index.js';

const { width, height } = PHONE.viewport;

const form = application(`
        நெடுவரிசை(உருளும்பட்டை: மெய், இடைவெளி: 44)(
            பெட்டி(பெட்டி_பாணி(அகலம்: 640, உயரம்: 60, பின்னணி: "#FF0000")),
            உரைபெட்டி(அடையாளம்: "பெயர்", அகலம்: 640),
            பொத்தான்(உரை: "கூட்டு", பொ_பாணி(அகலம்: 200, உயரம்: 80, வளைவு: 0, பொபின்னணி: "#00FF00", மேம்படுத்தப்பட்ட_நிறம்: "#0000FF"),
                    அழுத்தினால்: () => கூட்டு_செய்()),
            உரை(எண்ணிக்கை),
            ${Array.from({ length: 20 }, (_, index) => `உரை("வரி ${index}")`).join(',\n            ')}
        )`, { logic: `
        எண்ணிக்கை = 0
        செயல் கூட்டு_செய்():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1` });

webTest('what juts out does not widen the page of a phone', form, PHONE, async page => {
    await page.page.evaluate(() => {
        const wide = document.createElement('input');
        wide.className = 'pozhil-input';
        wide.dataset.touched = '1';
        wide.style.cssText = 'position: absolute; left: 100px; top: 0; width: 540px';
        document.body.append(wide);
    });
    await page.frames(3);
    const sizes = await page.page.evaluate(() => [innerWidth, innerHeight, visualViewport.width, visualViewport.scale,
                                                  document.getElementById('canvas').getBoundingClientRect().width]);
    assert.deepEqual(sizes, [width, height, width, 1, width]);
    // The widest widget is cut at the edge, as far as the program says.
    const box = await page.area([255, 0, 0]);
    assert.deepEqual([box.x, box.y, box.height], [0, 0, 60]);
});

webTest('two fingers may zoom the page, one may not move it', form, COARSE_PHONE, async page => {
    const viewport = await page.page.getAttribute('meta[name=viewport]', 'content');
    assert.doesNotMatch(viewport, /user-scalable|maximum-scale/);
    for (const selector of ['html', 'body', '#canvas', '#பெயர்']) {
        assert.equal((await page.element(selector, 'touchAction')).touchAction, 'pinch-zoom', selector);
    }
    assert.equal((await page.element('html', 'overscrollBehavior')).overscrollBehavior, 'none');
});

const yOf = async (page, text) => (await page.text(text)).y;

webTest('a finger scrolls a column by its own way, wherever it begins', form, COARSE_PHONE, async page => {
    const before = await yOf(page, 'வரி 0');
    await page.swipe([200, 700], [190, 500]);
    near(await yOf(page, 'வரி 0'), before - 200);
    await page.swipe([100, 300], [100, 350]);
    near(await yOf(page, 'வரி 0'), before - 150);
    // From a button it presses nothing, from a field it does not begin to type.
    await page.swipe([100, 200], [100, 350]);
    near(await yOf(page, 'வரி 0'), before);
    await page.swipe([100, 130], [100, 230]);
    near(await yOf(page, 'வரி 0'), before);
    await page.text('0');
    assert.equal(await page.page.evaluate(() => document.activeElement.tagName), 'BODY');
});

webTest('a finger that is swept away lets the column glide, and the next one stops it', form,
        // Without a graphics card, frames of all these pixels come too late for a sweep.
        COARSE_PHONE, async page => {
    const before = await yOf(page, 'வரி 0');
    // Within the page: from outside the finger would be lifted so late that it has come to rest.
    await page.page.evaluate(async () => {
        const target = document.getElementById('canvas');
        const send = (type, ...heights) => target.dispatchEvent(new TouchEvent(type, {
            bubbles: true, cancelable: true,
            touches: heights.map(clientY => new Touch({ identifier: 1, target, clientX: 200, clientY })) }));
        send('touchstart', 700);
        for (const height of [675, 650, 625, 600]) {
            await new Promise(resolve => { setTimeout(resolve, 10); });
            send('touchmove', height);
        }
        send('touchend');
    });
    await page.page.waitForTimeout(250);
    const gliding = await yOf(page, 'வரி 0');
    assert.ok(gliding < before - 105, `${gliding} after ${before}`);
    await page.putFingers([200, 600]);
    const stopped = await yOf(page, 'வரி 0');
    await page.page.waitForTimeout(200);
    near(await yOf(page, 'வரி 0'), stopped);
    await page.page.waitForTimeout(200);
    await page.liftFingers();
    await page.frames(3);
    near(await yOf(page, 'வரி 0'), stopped);
});

webTest('a tap presses once, and no hover stays', form, PHONE, async page => {
    const button = [100, 60 + 44 + 50 + 44 + 40];
    assert.notEqual(await page.area([0, 255, 0]), null);
    await page.tap(...button);
    await page.text('1');
    assert.notEqual(await page.area([0, 255, 0]), null);
    assert.equal(await page.area([0, 0, 255]), null);
    assert.equal(await page.cursor(), 'default');
    await page.page.waitForTimeout(400);
    await page.text('1');
    await page.putFingers(button);
    assert.notEqual(await page.area([0, 0, 255]), null);
    await page.liftFingers();
    await page.text('2');
    assert.equal(await page.area([0, 0, 255]), null);
});

webTest('a tap on a field lets the user type, one beside it ends that', form, COARSE_PHONE, async page => {
    await page.tap(100, 60 + 44 + 25);
    assert.equal(await page.page.evaluate(() => document.activeElement.id), 'பெயர்');
    await page.page.keyboard.type('ab');
    assert.equal((await page.element('#பெயர்')).value, 'ab');
    await page.tap(300, 800);
    assert.equal(await page.page.evaluate(() => document.activeElement.tagName), 'BODY');
    await page.text('0');
});

webTest('a second finger ends what the first one does', form, COARSE_PHONE, async page => {
    const before = await yOf(page, 'வரி 0');
    await page.putFingers([100, 240]);
    await page.putFingers([100, 240], [200, 500]);
    await page.moveFingers([100, 200], [200, 540]);
    await page.liftFingers();
    await page.frames(3);
    near(await yOf(page, 'வரி 0'), before);
    await page.text('0');
    await page.putFingers(...Array.from({ length: 10 }, (_, index) => [20 + 30 * index, 240]));
    await page.liftFingers();
    await page.frames(3);
    await page.text('0');
    await page.tap(100, 240);
    await page.text('1');
});

webTest('a finger drags a slider, also where it strays, and a tap sets it', application(`
        நெடுவரிசை(
            இவெ(உயரம்: 100),
            அளவி(குறைந்தபட்சம்: 0, அதிகபட்சம்: 100, மதிப்பு: 50, அகலம்: 200)
        )`), PHONE, async page => {
    const y = 110;
    await page.putFingers([100, y]);
    await page.moveFingers([120, y + 10]);
    await page.moveFingers([150, y + 60]);
    await page.text('75');
    await page.moveFingers([20, y + 60]);
    await page.text('10');
    await page.liftFingers();
    await page.frames(3);
    // The number is shown while it is dragged.
    assert.deepEqual(await page.texts(), []);
    const knob = async () => {
        const row = (await page.deviceRow(y * 3)).slice(0, 220 * 3);
        const blue = row.flatMap(([red, green, blueness], x) => red === 33 && green === 150 && blueness === 243 ? [x] : []);
        return Math.max(...blue) / 3;
    };
    near(await knob(), 20 - 10, 1);
    await page.tap(160, y);
    near(await knob(), 160 - 10, 1);
});

webTest('a finger moves a row sideways and leaves the column still', application(`
        நெடுவரிசை(உருளும்பட்டை: மெய்)(
            கிடைவரிசை(உருளும்பட்டை: மெய், உயரம்: 100)(
                ${Array.from({ length: 8 }, (_, index) =>
                    `பொத்தான்(உரை: "பொ${index}", பொ_பாணி(அகலம்: 100, உயரம்: 40))`).join(', ')}
            ),
            உரை("கீழே", உரைபாணி(அளவு: 500)),
            உரை("அடியில்", உரைபாணி(அளவு: 500))
        )`), COARSE_PHONE, async page => {
    const { x } = await page.text('பொ0');
    const before = await yOf(page, 'கீழே');
    await page.swipe([300, 50], [200, 55]);
    near((await page.text('பொ0')).x, x - 100);
    near(await yOf(page, 'கீழே'), before);
    await page.swipe([300, 50], [300, 20]);
    near((await page.text('பொ0')).x, x - 100);
    near(await yOf(page, 'கீழே'), before - 30);
});

const twoPages = application(`
        பொத்தான்(உரை: "போ", பொ_பாணி(அகலம்: 200, உயரம்: 80), அழுத்தினால்(செல்க("ஆ")))`, { header: 'பக்கம்: "அ"' })
    + application(`
        நெடுவரிசை(உருளும்பட்டை: மெய்)(உரை("மேலே", உரைபாணி(அளவு: 500)), உரை("கீழே", உரைபாணி(அளவு: 500)))`,
                  { header: 'பக்கம்: "ஆ"' });

webTest('a wheel that nobody took does not move the next page', twoPages, async page => {
    await page.moveTo(100, 40);
    await page.wheel(50, 300);
    await page.click(100, 40);
    near(await yOf(page, 'மேலே'), 0);
    await page.wheel(0, 30);
    near(await yOf(page, 'மேலே'), -30);
});

webTest('a pointer that leaves the window is over nothing', twoPages, async page => {
    await page.moveTo(100, 40);
    assert.equal(await page.cursor(), 'pointer');
    await page.page.evaluate(() => document.documentElement.dispatchEvent(new Event('mouseleave')));
    await page.frames();
    assert.equal(await page.cursor(), 'default');
});
