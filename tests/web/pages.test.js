// What வரையறை sets up, applications of several pages, and the switch between them.

import { application, assert, webTest } from './harness/index.js';

webTest('வரையறை has run before the first frame', application('        நெடுவரிசை(உரை(பெயர்), உரை(வயது))', { logic: `
        பெயர் = "கயல்"
        வயது = 7
        அச்சிடு("தொடக்கம்")
        செயல் மூப்பு():
            வயது = வயது கூட்டு 1
        மூப்பு()` }), async page => {
    assert.equal(page.console.filter(line => line === 'தொடக்கம்').length, 1);
    assert.deepEqual((await page.texts()).map(({ text }) => text), ['கயல்', '8']);
});

function twoPages(first = '', second = '') {
    return application(`
        நெடுவரிசை(சீரமைப்பு: மையம்)(
            உரை("முகப்பு"),
            பொத்தான்(உரை: "போ", பொ_பாணி(பொபின்னணி: "#FF0000", அகலம்: 200, உயரம்: 80, வளைவு: 0), அழுத்தினால்(செல்க("ஆ")))
        )`, { header: `பக்கம்: "அ", இணைய_தலைப்பு: "முதல்", பின்னணி: "#102030"${first}` })
        + application(`
        நெடுவரிசை(
            உரை("அடுத்தது"),
            பொத்தான்(உரை: "திரும்பு", பொ_பாணி(பொபின்னணி: "#00FF00", அகலம்: 200, உயரம்: 80, வளைவு: 0), அழுத்தினால்(செல்க("அ")))
        )`, { header: `பக்கம்: "ஆ", இணைய_தலைப்பு: "இரண்டாவது"${second}` });
}

const drawn = async page => (await page.texts()).map(({ text }) => text);

webTest('a button goes to another page and back, and each page draws nothing of the other', twoPages(), async page => {
    assert.deepEqual(await drawn(page), ['முகப்பு', 'போ']);
    assert.equal(await page.page.title(), 'முதல்');
    assert.deepEqual(await page.pixel(499, 399), [0x10, 0x20, 0x30]);
    assert.notEqual(await page.area([255, 0, 0]), null);

    await page.click(250, 200);
    await page.leave();
    assert.deepEqual(await drawn(page), ['அடுத்தது', 'திரும்பு']);
    assert.equal(await page.page.title(), 'இரண்டாவது');
    assert.deepEqual(await page.pixel(499, 399), [245, 245, 245]);
    assert.equal(await page.area([255, 0, 0]), null);
    assert.deepEqual(await page.area([0, 255, 0]), { x: 0, y: 16, width: 200, height: 80 });

    await page.click(100, 50);
    assert.deepEqual(await drawn(page), ['முகப்பு', 'போ']);
});

webTest('one press turns one page, also where the next one has a button in the same place', application(`
        பொத்தான்(உரை: "அ", பொ_பாணி(அகலம்: 200, உயரம்: 80), அழுத்தினால்(செல்க("ஆ")))`, { header: 'பக்கம்: "அ"' })
    + application(`
        பொத்தான்(உரை: "ஆ", பொ_பாணி(அகலம்: 200, உயரம்: 80), அழுத்தினால்(செல்க("அ")))`, { header: 'பக்கம்: "ஆ"' }),
        async page => {
    await page.click(100, 40);
    assert.deepEqual(await drawn(page), ['ஆ']);
    await page.click(100, 40);
    assert.deepEqual(await drawn(page), ['அ']);
});

webTest('a page that asks for it comes first', twoPages('', ', ஆரம்ப_பக்கம்: மெய்'), async page => {
    assert.deepEqual(await drawn(page), ['அடுத்தது', 'திரும்பு']);
});

webTest('of several that ask for it, the last comes first', twoPages(', ஆரம்ப_பக்கம்: மெய்', ', ஆரம்ப_பக்கம்: மெய்'),
        async page => {
    assert.deepEqual(await drawn(page), ['அடுத்தது', 'திரும்பு']);
});

webTest('programs read the window from திரை_அகலம் and திரை_உயரம்',
        application('        நெடுவரிசை(உரை(திரை_அகலம்), உரை(திரை_உயரம்))'), async page => {
    // Decimals, which are written with six digits
    assert.deepEqual(await drawn(page), ['500.000000', '400.000000']);
    await page.resize(360, 640);
    assert.deepEqual(await drawn(page), ['360.000000', '640.000000']);
});

webTest('a widget whose காட்சி_பெயர் is true takes mouse and press from the page',
        application(`
        நெடுவரிசை(
            பொத்தான்(உரை: "எண்ணு", பொ_பாணி(அகலம்: 200, உயரம்: 80), அழுத்தினால்: () => எண்ணு()),
            உரை(எண்ணிக்கை),
            உரை("பலகை", காட்சி_பெயர்: "பலகை_தெரிகிறது")
        )`, { logic: `
        எண்ணிக்கை = 0
        பலகை_தெரிகிறது = பொய்
        செயல் எண்ணு():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1
            பலகை_தெரிகிறது = மெய்` }), async page => {
    assert.deepEqual(await drawn(page), ['எண்ணு', '0']);
    await page.click(100, 40);
    assert.deepEqual(await drawn(page), ['எண்ணு', '1', 'பலகை']);
    assert.equal(await page.window('modalActive'), true);
    await page.click(100, 40);
    assert.deepEqual(await drawn(page), ['எண்ணு', '1', 'பலகை']);
    assert.equal(await page.cursor(), 'default');
    assert.deepEqual([await page.window('mouseX'), await page.window('mouseY')], [100, 40]);
});

webTest('without a variable all widgets but dialogs are there; a variable that is no truth value hides both', application(`
        நெடுவரிசை(
            உரை("மாறி இல்லை", காட்சி_பெயர்: "ஒன்று"),
            உரை("மெய்", காட்சி_பெயர்: "இரண்டு"),
            உரை("பொய்", காட்சி_பெயர்: "மூன்று"),
            உரை("எண்", காட்சி_பெயர்: "நான்கு"),
            எச்சரிக்கை(காட்சி_பெயர்: "ஒன்று")(உரை("மாறி இல்லாத எச்சரிக்கை")),
            எச்சரிக்கை(காட்சி_பெயர்: "நான்கு")(உரை("எண் கொண்ட எச்சரிக்கை"))
        )`, { logic: `
        இரண்டு = மெய்
        மூன்று = பொய்
        நான்கு = 5` }), async page => {
    assert.deepEqual(await drawn(page), ['மாறி இல்லை', 'மெய்']);
});

const busy = application(`
        நெடுவரிசை(
            பக்கம்(பக்கம்: "அ", உரை("உள்ளே")),
            பக்கம்(பக்கம்: "இ", உரை("வேறு")),
            பொத்தான்(உரை: "போ", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: செல்க("ஆ")),
            அடுக்கி(
                பொத்தான்(உரை: "பின்னே", பொ_பாணி(அகலம்: 200, உயரம்: 80), அழுத்தினால்: () => பின்னே_எண்ணு()),
                பொத்தான்(உரை: "முன்னே", பொ_பாணி(அகலம்: 100, உயரம்: 40), அழுத்தினால்: () => முன்னே_எண்ணு())
            ),
            உரை(பின்_எண்),
            உரை(முன்_எண்),
            பொத்தான்(உரை: "தவறு", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: வகு_என(0)),
            மாற்றி()
        )`, { header: 'பக்கம்: "அ", பின்னணி: "#102030"', logic: `
        பின்_எண் = 0
        முன்_எண் = 0
        செயல் பின்னே_எண்ணு():
            பின்_எண் = பின்_எண் கூட்டு 1
        செயல் முன்னே_எண்ணு():
            முன்_எண் = முன்_எண் கூட்டு 1
        செயல் வகு_என(அ):
            திரும்பு 10 வகு அ` })
    + application(`
        பொத்தான்(உரை: "திரும்பு", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: செல்க("அ"))`, { header: 'பக்கம்: "ஆ"' });

const counts = async page => (await drawn(page)).slice(-3, -1);

webTest('a page in a page is there while the page of its name is shown', busy, async page => {
    const [inner, ...others] = await page.texts();
    assert.deepEqual([inner.text, inner.x, inner.y], ['உள்ளே', 0, 0]);
    assert.deepEqual(others.map(({ text }) => text), ['போ', 'பின்னே', 'முன்னே', '0', '0', 'தவறு']);
    assert.deepEqual(await page.pixel(499, 399), [245, 245, 245]);
});

webTest('a press reaches all that lie under the pointer', busy, async page => {
    await page.click(50, 60);
    assert.deepEqual(await counts(page), ['1', '1']);
    await page.click(150, 110);
    assert.deepEqual(await counts(page), ['2', '1']);
});

webTest('a press between two frames counts once, and so does one that is held', busy, async page => {
    await page.moveTo(150, 110);
    await page.page.mouse.down();
    await page.page.mouse.up();
    await page.frames(3);
    assert.deepEqual(await counts(page), ['1', '0']);
    await page.page.mouse.down();
    await page.frames(5);
    assert.deepEqual(await counts(page), ['2', '0']);
    assert.equal(await page.window('mouseDownState'), 1);
    await page.page.mouse.up();
    await page.frames();
    assert.deepEqual([await page.window('mouseDownState'), await page.window('mouseClicked')], [0, 0]);
});

webTest('a call that fails in place of a handler leaves the page running', busy, async page => {
    await page.click(100, 172);
    await page.click(150, 110);
    assert.deepEqual(await counts(page), ['1', '0']);
    assert.deepEqual(page.errors, []);
});

webTest('a page that is shown again is as it was left', busy, async page => {
    const thumb = [14, 206];
    assert.deepEqual(await page.pixel(...thumb), [255, 255, 255]);
    await page.click(24, 206);
    await page.click(100, 20);
    assert.deepEqual(await drawn(page), ['திரும்பு']);
    await page.click(100, 20);
    assert.equal((await drawn(page))[0], 'உள்ளே');
    assert.notDeepEqual(await page.pixel(...thumb), [255, 255, 255]);
});
