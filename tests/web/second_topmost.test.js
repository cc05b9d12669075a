// What lies over what in the second edition: a press, the pointer and what is seen belong to what was drawn last there.

import { faultCard, second } from './harness/editions.js';
import { COARSE_PHONE, assert, webTest } from './harness/index.js';
import { png } from './harness/pictures.js';

const RED = [255, 0, 0];
const BLUE = [0, 0, 255];
const FINGERS = { ...COARSE_PHONE, viewport: { width: 500, height: 800 } };

/// One over the other, each at its own place.
const stack = (...children) => `        அடுக்கி(சீரமைப்பு: மேல்_இடது)(\n            ${children.join(',\n            ')}\n        )`;
const at = (x, y) => `நகர்வு_X: ${x}, நகர்வு_Y: ${y}`;
const button = (name, place, width = 120, height = 40, handler = `() => சொல்("${name}")`) =>
    `பொத்தான்(உரை: "${name}", ${place}, பொ_பாணி(அகலம்: ${width}, உயரம்: ${height}, வளைவு: 0, பொபின்னணி: "#FF0000", `
        + `மேம்படுத்தப்பட்ட_நிறம்: "#0000FF"), அழுத்தினால்: ${handler})`;
const box = (more, ...children) => `பெட்டி(${more})(${children.join(', ')})`;

/// What has been pressed so far, one after the other.
const TELLING = `
        சொன்னவை = ""
        செயல் சொல்(எது):
            சொன்னவை = சொன்னவை இணை "[" இணை எது இணை "]"`;
const told = 'உரை(சொன்னவை, நகர்வு_Y: 370)';

/// Does what should press just these, by their names.
async function expectPresses(page, press, ...names) {
    const all = async () => (await page.texts()).map(({ text }) => text).find(text => text.startsWith('[')) ?? '';
    const before = await all();
    await press();
    assert.equal((await all()).slice(before.length), names.map(name => `[${name}]`).join(''));
}

const overlapping = second(stack(
    button('கீழ்', at(0, 0)), button('மேல்', at(60, 0)),
    box(`${at(0, 60)}, அகலம்: 160, உயரம்: 80, பின்னணி: "#00FF00", அழுத்தினால்: () => சொல்("பெட்டி")`,
        button('உள்', 'சீரமைப்பு: மேல்_இடது', 60, 30), 'உரை("வெற்றுரை", சீரமைப்பு: கீழ்_இடது)',
        box('அகலம்: 40, உயரம்: 40, பின்னணி: "#FFFFFF", சீரமைப்பு: மேல்_வலது')),
    button('மூடியது', at(200, 60), 200), box(`${at(200, 60)}, அகலம்: 50, உயரம்: 40, பின்னணி: "#00FF00"`),
    `உரை("தெரியும்", ${at(300, 70)})`, box(`${at(360, 60)}, அகலம்: 40, உயரம்: 40, பின்னணி: "#00000000"`),
    `பட்டியல்_உருப்படி(${at(0, 150)}, அகலம்: 300, தலைப்பு: உரை("வரி"), பின்னணி: "#C8C8C8", வளைவு: 0, பின்னணி_விட்ஜெட்: மாற்றி(மதிப்பு: ஒலி), அழுத்தினால்: () => சொல்("வரி"))`,
    `அளவி(${at(320, 160)}, அகலம்: 100, மதிப்பு: அளவு)`, box(`${at(310, 150)}, அகலம்: 60, உயரம்: 40, பின்னணி: "#00FF00"`),
    'உரை("ஒலி " இணை ஒலி இணை " அளவு " இணை அளவு, நகர்வு_Y: 330)', told), `
        ஒலி = பொய்
        அளவு = 10
${TELLING}`);

async function checkOverlapping(page, press) {
    const presses = (x, y, ...names) => expectPresses(page, () => press(x, y), ...names);
    await presses(90, 20, 'மேல்');
    await presses(30, 20, 'கீழ்');
    await presses(100, 90, 'பெட்டி');
    await presses(30, 75, 'உள்');
    // What takes no presses leaves them to the box that it is in, and a text to what lies below.
    await presses(20, 130, 'பெட்டி');
    await presses(140, 80, 'பெட்டி');
    await presses(310, 78, 'மூடியது');
    await presses(380, 80, 'மூடியது');
    await presses(225, 80);
    await presses(100, 178, 'வரி');
    await presses(260, 178);
    await page.text('ஒலி மெய் அளவு 10');
    await presses(340, 170);
    await page.text('ஒலி மெய் அளவு 10');
    await presses(395, 170);
    await page.text('ஒலி மெய் அளவு 75');
}

webTest('a press goes to the topmost widget alone', overlapping, async page => {
    await checkOverlapping(page, (x, y) => page.click(x, y));
});

webTest('a finger presses the topmost widget alone', overlapping, FINGERS, async page => {
    await checkOverlapping(page, (x, y) => page.tap(x, y));
});

webTest('the pointer is over the topmost widget alone', overlapping, async page => {
    const colours = async (x, y) => {
        await page.moveTo(x, y);
        return page.pixels([[20, 36], [170, 36], [3, 63], [350, 96]]);
    };
    assert.deepEqual(await colours(90, 20), [RED, BLUE, RED, RED]);
    assert.deepEqual(await colours(30, 20), [BLUE, RED, RED, RED]);
    assert.deepEqual(await colours(3, 75), [RED, RED, BLUE, RED]);
    assert.equal(await page.cursor(), 'pointer');
    assert.deepEqual(await colours(225, 80), [RED, RED, RED, RED]);
    assert.equal(await page.cursor(), 'default');
    assert.deepEqual(await colours(310, 78), [RED, RED, RED, BLUE]);
});

// --- what moves ---

const moving = second(`
        நெடுவரிசை(
            ஒவ்வொன்றும்(பட்டியல்: எண்கள், உருப்படி: எண், சாவி: எண்)(
                பொத்தான்(உரை: "எண் " இணை எண், பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => நீக்கி_சொல்(எண்))
            ),
            பொத்தான்(உரை: "முடிவு", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => சொல்("முடிவு")),
            உரை(சொன்னவை)
        )`, `
        எண்கள் = [1, 2, 3, 4]
        செயல் நீக்கி_சொல்(எண்):
            சொல்(எண்)
            நீக்கு(எண்கள், எண்)
${TELLING}`);

webTest('what was seen under the pointer is pressed, whatever the list has become since', moving, async page => {
    await page.moveTo(100, 60);
    // Each press is over before the frame comes that shows what the one before it has done.
    const presses = count => page.page.evaluate(async wanted => {
        for (let press = 0; press < wanted; press++) {
            window.dispatchEvent(new window.MouseEvent('mousedown'));
            const drawn = window.recorded.frames;
            while (window.recorded.frames === drawn) {
                await new Promise(requestAnimationFrame);
            }
            window.dispatchEvent(new window.MouseEvent('mouseup'));
        }
    }, count);
    await expectPresses(page, () => presses(1), '2');
    await expectPresses(page, () => page.click(100, 60), '3');
    // The handler of the first press has removed the button before the second press comes, which so meets nothing.
    await expectPresses(page, () => presses(2), '4');
    await expectPresses(page, () => page.click(100, 60), 'முடிவு');
});

// --- menus and dialogs ---

const under = second(stack(
    button('கீழ்', at(0, 44)), `அளவி(${at(0, 100)}, அகலம்: 200, மதிப்பு: அளவு)`, button('அருகே', at(300, 0)),
    `கீழ்வரி(${at(0, 0)}, அகலம்: 200, பட்டியல்: ["அ", "ஆ", "இ"], மாறியதால்: (புதியது) => சொல்(புதியது))`,
    'உரை("அளவு " இணை அளவு, நகர்வு_Y: 330)', told), `
        அளவு = 10
${TELLING}`);

async function checkMenu(page, press) {
    const presses = (x, y, ...names) => expectPresses(page, () => press(x, y), ...names);
    const isOpen = async () => (await page.texts()).some(({ text }) => text === 'இ');
    await presses(60, 60, 'கீழ்');
    await presses(60, 20);
    assert.ok(await isOpen());
    await presses(60, 60, 'அ');
    assert.ok(!await isOpen());
    // The slider lies under the second choice.
    await presses(150, 20);
    await presses(150, 110, 'ஆ');
    await page.text('அளவு 10');
    await presses(60, 20);
    await presses(350, 20);
    assert.ok(!await isOpen());
    await presses(350, 20, 'அருகே');
    await presses(60, 20);
    await presses(60, 20);
    assert.ok(!await isOpen());
    await presses(60, 20);
    assert.ok(await isOpen());
}

webTest('an open menu shields the page, and a press beside it only closes it', under, async page => {
    await checkMenu(page, (x, y) => page.click(x, y));
    await page.moveTo(60, 60);
    assert.deepEqual(await page.pixel(190, 50), [240, 240, 240]);
    await page.moveTo(350, 20);
    assert.deepEqual(await page.pixel(303, 3), RED);
    await page.moveTo(60, 60);
    await page.page.mouse.down();
    // As long as the button is down, what comes to lie under the pointer isn't dragged.
    await page.moveTo(150, 110);
    await page.page.mouse.up();
    await page.text('அளவு 10');
});

webTest('an open menu shields the page from fingers', under, FINGERS, async page => {
    await checkMenu(page, (x, y) => page.tap(x, y));
});

const dialogs = second(stack(
    button('பக்கம்', at(0, 0)), button('திற', at(150, 0), 120, 40, 'திற'),
    'எச்சரிக்கை(காட்சி_பெயர்: "ஒன்று", எச்சரிக்கை_பாணி(அகலம்: 300, உயரம்: 200))(பெட்டி(அகலம்: 300, உயரம்: 200, அழுத்தினால்: () => சொல்("ஒன்று")))',
    `எச்சரிக்கை(காட்சி_பெயர்: "இரண்டு", எச்சரிக்கை_பாணி(அகலம்: 200, உயரம்: 100))(
                பெட்டி(அகலம்: 200, உயரம்: 100, அழுத்தினால்: மூடு)(${button('உள்', 'சீரமைப்பு: மையம்', 60)}))`, told), `
        ஒன்று = பொய்
        இரண்டு = பொய்
        செயல் திற():
            ஒன்று = மெய்
            இரண்டு = மெய்
        செயல் மூடு():
            சொல்("மூடு")
            இரண்டு = பொய்
${TELLING}`);

webTest('the last of the open dialogs takes all presses', dialogs, async page => {
    const presses = (x, y, ...names) => expectPresses(page, () => page.click(x, y), ...names);
    await presses(60, 20, 'பக்கம்');
    await presses(210, 20);
    await presses(60, 20);
    await presses(120, 200);
    await presses(250, 200, 'உள்');
    await presses(170, 170, 'மூடு');
    await presses(250, 200, 'ஒன்று');
    await presses(60, 20);
});

const covered = second(stack(
    button('சொல்', at(0, 0), 120, 40, 'அறிவிப்பு_பட்டை(செய்தி: "வணக்கம்", பின்னணி: "#008800")'),
    button('மேலே', at(200, 50)), button('கீழே', at(0, 350)),
    `அடிப்பகுதி(${at(0, 0)}, அழுத்தினால்: () => சொல்("பட்டை"), அடி_உருப்படி(உரை("அ"), அழுத்தினால்: () => சொல்("அ")), அடி_உருப்படி(உரை("ஆ")))`,
    'உரை(சொன்னவை, நகர்வு_Y: 300)'), TELLING);

webTest('bars and messages shield what is under them', covered, async page => {
    const presses = (x, y, ...names) => expectPresses(page, () => page.click(x, y), ...names);
    await presses(60, 370, 'பட்டை', 'அ');
    await presses(400, 370, 'பட்டை');
    await presses(250, 70, 'மேலே');
    await page.click(60, 20);
    await page.frames(20);
    assert.deepEqual(await page.pixel(130, 60), [0, 136, 0]);
    await presses(250, 70);
});

// --- what is seen ---

/// How many pixels of the area have the colour of the text in it.
const inked = (page, x, y, width, height, colour) => page.page.evaluate(async ([left, top, across, down, wanted]) => {
    const canvas = document.getElementById('textCanvas');
    const scale = devicePixelRatio;
    const { data } = canvas.getContext('2d').getImageData(left * scale, top * scale, across * scale, down * scale);
    let count = 0;
    for (let at = 0; at < data.length; at += 4) {
        count += data[at + 3] > 128 && (!wanted || wanted.every((part, index) => Math.abs(data[at + index] - part) < 40));
    }
    return count;
}, [x, y, width, height, colour]);

const SQUARE = png(8, RED);

const layered = second(stack(
    `உரை("கீழ்க்கீழ்க்கீழ்", ${at(10, 10)}, உரைபாணி(அளவு: 40))`, box(`${at(0, 0)}, அகலம்: 60, உயரம்: 100, பின்னணி: "#00FF00"`),
    `உரை("மேல்", ${at(10, 10)}, உரைபாணி(அளவு: 40, நிறம்: "#0000FF"))`,
    `உரை("படத்தின்கீழ்", ${at(10, 110)}, உரைபாணி(அளவு: 40))`, `படம்(${at(0, 100)}, பாதை: "red.png", அகலம்: 60, உயரம்: 60)`,
    `உரை("கண்ணாடி", ${at(200, 110)}, உரைபாணி(அளவு: 40))`, box(`${at(195, 100)}, அகலம்: 60, உயரம்: 100, பின்னணி: "#00FF0080"`),
    `உரை("மறைந்தும் தெரியும்", ${at(10, 210)}, உரைபாணி(அளவு: 40))`, box(`${at(0, 200)}, அகலம்: 60, உயரம்: 60, பின்னணி: "#00000000"`),
    `உரைபெட்டி(${at(10, 300)}, அடையாளம்: "பெயர்", அகலம்: 200)`, box(`${at(0, 290)}, அகலம்: 60, உயரம்: 70, பின்னணி: "#00FF00"`)));

webTest('a text is seen where nothing is drawn over it later', layered, { files: { 'red.png': SQUARE } }, async page => {
    await page.frames(10);
    const black = [0, 0, 0];
    assert.equal(await inked(page, 0, 0, 60, 100, black), 0);
    assert.ok(await inked(page, 60, 0, 200, 100, black) > 50);
    assert.ok(await inked(page, 0, 0, 60, 100, BLUE) > 50);
    assert.equal(await inked(page, 0, 100, 60, 60), 0);
    assert.ok(await inked(page, 60, 100, 100, 60) > 50);
    // A box that one sees through leaves half of the text.
    assert.equal(await inked(page, 195, 100, 60, 90), 0);
    assert.ok(await inked(page, 255, 100, 100, 90) > 50);
    assert.ok(await inked(page, 0, 200, 60, 60) > 50);
});

webTest('a field is seen and reached where nothing is drawn over it later', layered, { files: { 'red.png': SQUARE } },
        async page => {
    const at = (x, y) => page.page.evaluate(([left, top]) => document.elementFromPoint(left, top).id, [x, y]);
    await page.frames(3);
    assert.notEqual(await at(40, 325), 'பெயர்');
    assert.equal(await at(100, 325), 'பெயர்');
    await page.click(40, 325);
    assert.notEqual(await page.page.evaluate(() => document.activeElement.id), 'பெயர்');
    await page.click(100, 325);
    assert.equal(await page.page.evaluate(() => document.activeElement.id), 'பெயர்');
});

const scrolled = second(`
        நெடுவரிசை(
            பெட்டி(அகலம்: 300, உயரம்: 160, பின்னணி: "#00FF00"),
            பட்டியல்_காட்சி(
                ${Array.from({ length: 30 }, (_, index) => `உரை("வரி ${index}", உரைபாணி(அளவு: 40, அடிக்குறிப்பு: மெய்)), உரைபெட்டி(அடையாளம்: "உ${index}", அகலம்: 200)`).join(', ')}
            )
        )`);

webTest('texts and fields are cut with what scrolls them', scrolled, async page => {
    const fieldAt = y => page.page.evaluate(top => document.elementFromPoint(250, top).id, y);
    const places = async () => {
        const { y } = await page.text('வரி 0');
        const { y: top, height } = await page.element('#உ0');
        return [y, top, top + height];
    };
    assert.equal(await inked(page, 0, 0, 500, 155), 0);
    const [before, field] = await places();
    assert.ok(before >= 160);
    assert.equal(await fieldAt(field + 5), 'உ0');

    await page.moveTo(480, 300);
    await page.wheel(0, 75);
    const [y, top, bottom] = await places();
    assert.ok(y < 130 && top < 155 && bottom > 165, JSON.stringify([y, top, bottom]));
    assert.equal(await inked(page, 0, 0, 500, 155), 0);
    assert.notEqual(await fieldAt(top + 5), 'உ0');
    assert.equal(await fieldAt(bottom - 3), 'உ0');
    // What is out of sight can't be reached either.
    await page.wheel(0, 75);
    assert.notEqual(await fieldAt((await places())[1] + 5), 'உ0');
});

const menuOverFields = second(stack(
    `உரைபெட்டி(${at(0, 50)}, அடையாளம்: "கீழே", அகலம்: 200)`, `உரைபெட்டி(${at(250, 200)}, அடையாளம்: "அருகே", அகலம்: 200)`,
    `கீழ்வரி(${at(0, 0)}, அகலம்: 200, பட்டியல்: ["அ", "ஆ", "இ"], மாறியதால்: (புதியது) => சொல்(புதியது))`, told), TELLING);

webTest('fields can be reached neither under nor beside an open menu', menuOverFields, async page => {
    const focused = () => page.page.evaluate(() => document.activeElement.id);
    await page.click(100, 75);
    assert.equal(await focused(), 'கீழே');
    await page.click(100, 20);
    await expectPresses(page, () => page.click(100, 75), 'அ');
    assert.notEqual(await focused(), 'கீழே');
    await page.click(100, 20);
    assert.ok((await page.texts()).some(({ text }) => text === 'இ'));
    await page.click(350, 225);
    assert.ok((await page.texts()).every(({ text }) => text !== 'இ'));
    assert.notEqual(await focused(), 'அருகே');
    await page.click(350, 225);
    assert.equal(await focused(), 'அருகே');
});

// --- without a pointer ---

const read = second(stack(
    box(`${at(0, 0)}, அகலம்: 200, உயரம்: 100, பின்னணி: "#00FF00", அழுத்தினால்: () => சொல்("பெட்டி")`,
        'உரை("பெரியது", சீரமைப்பு: கீழ்_இடது)', button('உள்', 'சீரமைப்பு: மையம்', 60, 30)),
    button('பாதி', at(250, 0)), box(`${at(290, 0)}, அகலம்: 150, உயரம்: 40, பின்னணி: "#00FF00"`),
    button('மறைந்தது', at(250, 100)), box(`${at(240, 90)}, அகலம்: 200, உயரம்: 60, பின்னணி: "#00FF00"`), told), TELLING);

webTest('whoever goes without a pointer presses the widget, not what lies over its middle', read, async page => {
    const presses = (name, ...names) => expectPresses(page, async () => {
        await page.frames(30);
        await page.page.getByRole('button', { name }).press('Enter');
        await page.frames(6);
    }, ...names);
    await presses('பெரியது', 'பெட்டி');
    await presses('உள்', 'உள்');
    await presses('பாதி', 'பாதி');
    // What nobody sees can't be pressed either.
    await presses('மறைந்தது');
});

const faulty = second(`
        பெட்டி(பெட்டி_பாணி(அகலம்: 500, உயரம்: 900, பின்னணி: "#FFFFFF"), உரை("அழுத்தங்கள் " இணை அழுத்தங்கள்), அழுத்தினால்: () => பிழை_செய்())`, `
        அழுத்தங்கள் = 0
        செயல் பிழை_செய்():
            அழுத்தங்கள் = அழுத்தங்கள் கூட்டு 1
            அச்சிடு(அழுத்தங்கள் வகு 0)`);

for (const [means, context, act] of [
    ['the mouse', {}, (page, x, y) => page.click(x, y)],
    ['a finger', COARSE_PHONE, (page, x, y) => page.tap(x, y)],
]) {
    webTest(`the card of a fault shields what is under it from ${means}`, faulty, context, async page => {
        await act(page, 100, 100);
        const card = page.page.locator('#pozhil-program-fault');
        const place = await card.locator('h1').boundingBox();
        await act(page, place.x + 20, place.y + place.height / 2);
        await page.frames(5);
        await page.text('அழுத்தங்கள் 1');
        const button = await card.locator('.pozhil-close').boundingBox();
        await act(page, button.x + button.width / 2, button.y + button.height / 2);
        await page.frames(5);
        await page.text('அழுத்தங்கள் 1');
        assert.equal(await card.count(), 0);
    });
}

webTest('an underlined text below the window is no fault', second(`
        நெடுவரிசை(
            பெட்டி(பெட்டி_பாணி(அகலம்: 100, உயரம்: 2000, பின்னணி: "#FF0000")),
            உரை("கீழே", உரைபாணி(அடிக்குறிப்பு: மெய்))
        )`), async page => {
    await page.frames(3);
    assert.equal(await faultCard(page), '');
    assert.deepEqual(page.errors, []);
});

webTest('a page with layers comes to rest', read, async page => {
    await page.moveTo(100, 50);
    assert.ok(await page.rests());
});
