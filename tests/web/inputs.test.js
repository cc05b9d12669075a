// Fields: typing, reading back, errors, place and look, and what becomes of them when the page is left.

import { application, assert, near, webTest } from './harness/index.js';
import { png } from './harness/pictures.js';

const form = application(`
        நெடுவரிசை(இடைவெளி: 20)(
            உரைபெட்டி(அடையாளம்: "பெயர்", குறிப்பு: "உங்கள் பெயர்"),
            உரைபெட்டி(அடையாளம்: "கருத்து", பலவரி: மெய், உயரம்: 100, எழுத்து_நிறம்: "#FF0000"),
            பொத்தான்(உரை: "படி", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => படி()),
            பொத்தான்(உரை: "பிழை", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => பிழை_காட்டு()),
            உரை(செய்தி)
        )`, { header: 'பக்கம்: "அ"', logic: `
        செய்தி = "-"
        செயல் படி():
            செய்தி = பெயர்.உரைதரவு
        செயல் பிழை_காட்டு():
            பெயர்.பிழைசெய்தி("பெயர் தேவை")` });

// Where the buttons of the form stand: below fields that count 60 and 100
const READ = [50, 60 + 20 + 100 + 20 + 20];
const FAIL = [50, READ[1] + 60];

const NAME = '#பெயர்';

/// What a Tamil input method does: the word grows while it is composed, and is handed over as a whole.
async function compose(page, steps) {
    const session = await page.page.context().newCDPSession(page.page);
    for (const text of steps) {
        await session.send('Input.imeSetComposition', { text, selectionStart: text.length, selectionEnd: text.length });
    }
    await session.send('Input.insertText', { text: steps.at(-1) });
}

webTest('a field is where its box is, and inset', form, async page => {
    const field = await page.element(NAME, 'position', 'zIndex', 'color', 'fontSize');
    // 50 high in a column that counts 60; 15 on each side of the text
    assert.deepEqual(field, { tag: 'INPUT', id: 'பெயர்', type: 'text', value: '', hint: 'உங்கள் பெயர்', shown: true,
                              x: 15, y: 0, width: field.width, height: field.height, position: 'absolute',
                              zIndex: '100', color: 'rgb(51, 51, 51)', fontSize: '16px' });
    const style = await page.page.evaluate(() => {
        const { width, height } = document.getElementById('பெயர்').style;
        return [width, height];
    });
    assert.deepEqual(style, ['290px', '50px']);
    const many = await page.element('#கருத்து', 'color', 'resize', 'paddingTop');
    assert.deepEqual([many.tag, many.x, many.y, many.color, many.resize, many.paddingTop],
                     ['TEXTAREA', 15, 80, 'rgb(255, 0, 0)', 'none', '10px']);
    assert.deepEqual(await page.pixels([[10, 25], [310, 25], [325, 25], [10, 130]]),
                     [[255, 255, 255], [255, 255, 255], [245, 245, 245], [255, 255, 255]]);
});

webTest('a field narrows with the window', form, async page => {
    await page.resize(300, 500);
    assert.equal(await page.page.evaluate(() => document.getElementById('பெயர்').style.width), '230px');
    assert.deepEqual(await page.pixels([[250, 25], [265, 25]]), [[255, 255, 255], [245, 245, 245]]);
});

webTest('Tamil is typed, also by an input method, and read back', form, async page => {
    await page.page.mouse.click(50, 25);
    assert.equal(await page.page.evaluate(() => document.activeElement.id), 'பெயர்');
    await page.page.keyboard.insertText('கயல்');
    await compose(page, ['வ', 'வி', 'விழி']);
    assert.equal((await page.element(NAME)).value, 'கயல்விழி');
    await page.text('-');
    await page.click(...READ);
    await page.text('கயல்விழி');
});

webTest('the keys of a field reach it', form, async page => {
    await page.page.focus(NAME);
    await page.page.keyboard.type('ab c');
    await page.page.keyboard.press('Backspace');
    await page.page.keyboard.press('ArrowLeft');
    await page.page.keyboard.press('Delete');
    await page.page.keyboard.type('1');
    assert.equal((await page.element(NAME)).value, 'ab1');
    await page.page.focus('#கருத்து');
    await page.page.keyboard.type('x');
    await page.page.keyboard.press('Enter');
    await page.page.keyboard.type('y');
    assert.equal((await page.element('#கருத்து')).value, 'x\ny');
    await page.click(...READ);
    await page.text('ab1');
});

webTest('an error is shown below its field and goes with the next letter', form, async page => {
    await page.click(...FAIL);
    await page.leave();
    const message = await page.text('பெயர் தேவை');
    assert.deepEqual([message.x, message.y, message.size, message.colour, message.align],
                     [0, 54, 12, '#f44336', 'left']);
    assert.deepEqual(await page.pixel(160, 0), [244, 67, 54]);
    await page.page.focus(NAME);
    await page.page.keyboard.insertText('க');
    assert.ok((await page.texts()).every(({ text }) => text !== 'பெயர் தேவை'));
    assert.notDeepEqual(await page.pixel(160, 0), [244, 67, 54]);
});

const visits = application(`
        நெடுவரிசை(
            உரைபெட்டி(அடையாளம்: "அ1"),
            தேடல்_பட்டை(),
            பொத்தான்(உரை: "போ", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்(செல்க("ஆ")))
        )`, { header: 'பக்கம்: "அ"' }) + application(`
        பொத்தான்(உரை: "வா", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்(செல்க("அ")))`, { header: 'பக்கம்: "ஆ"' });

webTest('fields vanish with their page and come back with their texts', visits, async page => {
    await page.page.fill('#அ1', 'முதல்');
    await page.page.fill('[id^=search_]', 'இரண்டு');
    // In no order: fields vanish one after the other, and what is seen in between is put in reading order.
    const shown = async () => Object.fromEntries(
        (await page.elements('.pozhil-input')).map(field => [field.value, field.shown]));
    assert.deepEqual(await shown(), { 'முதல்': true, 'இரண்டு': true });
    await page.click(50, 130);
    assert.deepEqual(await shown(), { 'முதல்': false, 'இரண்டு': false });
    await page.click(50, 20);
    assert.deepEqual(await shown(), { 'முதல்': true, 'இரண்டு': true });
});

webTest('fields without அடையாளம் are told apart', application(`
        நெடுவரிசை(உரைபெட்டி(குறிப்பு: "அ"), உரைபெட்டி(குறிப்பு: "ஆ"), உரைபெட்டி(குறிப்பு: "இ", முன்னணி: உரை("₹")))`),
        async page => {
    const fields = await page.elements('.pozhil-input');
    assert.equal(fields.length, 3);
    assert.equal(new Set(fields.map(({ id }) => id)).size, 3);
    assert.ok(fields.every(({ id }) => /^text_\d+$/.test(id)), JSON.stringify(fields));
    // One letter of a text counts 0.65 x 16, its height 16; 12 stand on either side of it.
    const text = await page.text('₹');
    near(text.x, 12);
    near(text.y, 120 + Math.floor((50 - 16) / 2));
    near((await page.element('[placeholder="இ"]')).x, 15 + 0.65 * 16 + 12, 0.1);
});

webTest('தேடல்_பட்டை has its lens, its hint, and a cross that empties it', application(`
        உள்_இவெ(அளவு: 10)(தேடல்_பட்டை(தேடல்_குறிப்பு: "தேடுக", தேடல்_பாணி(களப்பின்னணி: "#FFFF00", அகலம்: 60%)))`),
        async page => {
    const selector = '[id^=search_]';
    const field = await page.element(selector, 'color', 'fontSize');
    assert.deepEqual([field.hint, field.x, field.y, field.color, field.fontSize],
                     ['தேடுக', 55, 10, 'rgb(51, 51, 51)', '16px']);
    assert.equal(await page.page.evaluate(wanted => document.querySelector(wanted).style.width, selector), '220px');
    assert.deepEqual(await page.pixels([[160, 12], [160, 57], [305, 35], [285, 35]]), Array(4).fill([255, 255, 0]));
    assert.notDeepEqual(await page.pixel(34, 39), [255, 255, 0]);
    await page.page.fill(selector, 'வானம்');
    // The cross stands 25 before the end of 60 percent of 500.
    assert.notDeepEqual(await page.pixel(10 + 300 - 25, 35), [255, 255, 0]);
    await page.click(10 + 300 - 25 + 14, 35);
    assert.equal((await page.element(selector)).value, '');
    assert.deepEqual(await page.pixel(10 + 300 - 25, 35), [255, 255, 0]);
});

webTest('a search bar shows icons of its own, half transparent', application(`
        தேடல்_பட்டை(தேடல்_படம்: "assets/lens.png", அழி_படம்: "assets/cross.png",
            தேடல்_பாணி(களப்பின்னணி: "#FFFFFF", அகலம்: 300))`), {
    files: { 'assets/lens.png': png(20, [255, 0, 0], [0, 0, 255]), 'assets/cross.png': png(20, [0, 255, 0]) },
}, async page => {
    const halfOnWhite = colour => colour.map(value => Math.round((value + 255) / 2));
    const assertColour = (pixel, wanted) => pixel.forEach((value, at) => near(value, wanted[at], 2));
    const cross = [[300 - 25 - 9, 25], [300 - 25 + 9, 25]];
    // 20 by 20 about the point 20 from the left, in the middle of the height
    const [left, right, before, behind, above] = await page.pixels([[12, 25], [28, 25], [9, 25], [31, 25], [20, 13]]);
    assertColour(left, halfOnWhite([255, 0, 0]));
    assertColour(right, halfOnWhite([0, 0, 255]));
    assert.deepEqual([before, behind, above], Array(3).fill([255, 255, 255]));
    assert.deepEqual(await page.pixels(cross), Array(2).fill([255, 255, 255]));
    await page.page.fill('[id^=search_]', 'அ');
    for (const pixel of await page.pixels(cross)) {
        assertColour(pixel, halfOnWhite([0, 255, 0]));
    }
    await page.click(300 - 25 + 16, 25);
    assert.equal((await page.element('[id^=search_]')).value, 'அ');
    await page.click(300 - 25, 25 - 14);
    assert.equal((await page.element('[id^=search_]')).value, '');
    assert.deepEqual(await page.pixels(cross), Array(2).fill([255, 255, 255]));
});

const clipboard = page => page.page.evaluate(() => navigator.clipboard.readText());

webTest('a field is copied and cut from, but pasting is not for it', form, {
    permissions: ['clipboard-read', 'clipboard-write'],
}, async page => {
    const keys = page.page.keyboard;
    for (const [selector, text] of [[NAME, 'கயல்'], ['#கருத்து', 'விழி']]) {
        await page.page.focus(selector);
        await keys.insertText(text);
        await keys.press('Control+a');
        await keys.press('Control+c');
        assert.equal(await clipboard(page), text);
        await page.page.focus(selector);
        await keys.press('End');
        await keys.press('Control+v');
        await page.frames();
        assert.equal((await page.element(selector)).value, text, 'what is pasted goes to a field of the canvas');
        await keys.press('Control+a');
        await keys.press('Control+x');
        assert.equal(await clipboard(page), text);
        assert.equal((await page.element(selector)).value, '');
    }
    await page.click(...READ);
    await page.text('');
    assert.deepEqual(page.errors, []);
});

webTest('கடவுமறை is a field of the browser, with its own border', application(`
        நெடுவரிசை(
            உரை("மேல்"),
            கடவுமறை(குறிப்பு: "கடவுச்சொல்", பின்னணி: "#FFFFCC", நிறம்: "#112233"),
            உரை("கீழ்")
        )`), async page => {
    const selector = '[id^=input_]';
    const field = await page.element(selector, 'backgroundColor', 'color', 'borderTopColor', 'borderTopWidth',
                                     'fontSize', 'zIndex');
    assert.deepEqual(field, { tag: 'INPUT', id: field.id, type: 'text', value: '', hint: 'கடவுச்சொல்', shown: true,
                              x: 0, y: 16, width: 320, height: 60, backgroundColor: 'rgb(255, 255, 204)',
                              color: 'rgb(17, 34, 51)', borderTopColor: 'rgb(224, 224, 224)', borderTopWidth: '2px',
                              fontSize: '17px', zIndex: '2000' });
    // The field itself moves what follows: the column counts nothing for it.
    near((await page.text('கீழ்')).y, 16 + 60);
    await page.page.focus(selector);
    await page.page.waitForFunction(wanted =>
        getComputedStyle(document.querySelector(wanted)).borderTopColor === 'rgb(33, 150, 243)', selector);
    await page.page.keyboard.insertText('ரகசியம்');
    assert.equal((await page.element(selector)).value, 'ரகசியம்');
    await page.resize(500, 60);
    assert.deepEqual(await page.page.evaluate(wanted => {
        const { opacity, pointerEvents } = document.querySelector(wanted).style;
        return [opacity, pointerEvents];
    }, selector), ['0', 'none']);
});
