// Pages where nothing happens draw nothing; what moves, and what anybody does, is drawn at once.

import { second } from '../harness/editions.js';
import { COARSE_PHONE, application, assert, near, webTest } from '../harness/index.js';

const counting = application(`
        நெடுவரிசை(உருளும்பட்டை: மெய், இடைவெளி: 20)(
            உரை(எண்ணிக்கை),
            பொத்தான்(உரை: "கூட்டு", பொ_பாணி(அகலம்: 200, உயரம்: 40, பொபின்னணி: "#00FF00", மேம்படுத்தப்பட்ட_நிறம்: "#0000FF"),
                    அழுத்தினால்: () => கூட்டு_செய்()),
            உரைபெட்டி(அடையாளம்: "பெயர்"),
            உரை("கீழே", உரைபாணி(அளவு: 900))
        )`, { logic: `
        எண்ணிக்கை = 0
        செயல் கூட்டு_செய்():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1` });

const drawn = page => page.drawnFrames();

const shown = page => page.page.evaluate(() => window.recorded.texts.map(({ text }) => text));

for (const [screen, context] of [['desktop', {}], ['phone', COARSE_PHONE]]) {
    webTest(`a page at rest draws nothing, and what is done is seen at once (${screen})`, counting, context,
            async page => {
        assert.ok(await page.rests(), 'rests');
        const before = await drawn(page);
        await page.page.waitForTimeout(1000);
        assert.equal(await drawn(page), before);

        await page.page.mouse.move(100, 50);
        await page.page.waitForFunction(() => document.body.style.cursor === 'pointer', undefined, { timeout: 3000 });
        assert.ok(await page.rests(), 'rests under the pointer');
        await page.page.mouse.down();
        await page.page.waitForFunction(() => window.recorded.texts[0].text === '1', undefined, { timeout: 3000 });
        await page.page.mouse.up();
        assert.ok(await page.rests(), 'rests after a press');
        const { y } = await page.page.evaluate(() => window.recorded.texts.at(-1));
        await page.page.mouse.wheel(0, 50);
        await page.page.waitForFunction(top => window.recorded.texts.at(-1).y === top - 50, y, { timeout: 3000 });
        assert.ok(await page.rests(), 'rests after a scroll');
        await page.page.setViewportSize({ width: 450, height: 500 });
        await page.page.waitForFunction(() => document.getElementById('canvas').width === 450, undefined,
                                        { timeout: 3000 });
        assert.ok(await page.rests(), 'rests in a new window');
        assert.deepEqual(await shown(page), ['1', 'கூட்டு', 'கீழே']);
    });
}

webTest('a page at rest asks the browser for no frames', counting, async page => {
    const asked = () => page.page.evaluate(() => window.asked);
    await page.page.evaluate(() => {
        const ask = window.requestAnimationFrame.bind(window);
        window.asked = 0;
        window.requestAnimationFrame = work => {
            window.asked++;
            return ask(work);
        };
    });
    await page.page.mouse.move(100, 50);
    assert.ok(await page.rests());
    const before = await asked();
    assert.ok(before > 0);
    await page.page.waitForTimeout(1000);
    assert.equal(await asked(), before);
    await page.page.mouse.move(100, 55);
    await page.page.waitForFunction(count => window.asked > count, before, { polling: 50, timeout: 3000 });
    await page.page.evaluate(() => { window.pozhilFrames.wake(); window.pozhilFrames.wake(); });
    assert.ok(await page.rests(), 'one loop only');
});

webTest('scripts of the page wake it', counting, async page => {
    assert.ok(await page.rests());
    let before = await drawn(page);
    await page.page.evaluate(() => Module['நகர்த்து']('இல்லாதது'));
    await page.page.waitForFunction(count => window.recorded.frames > count, before, { timeout: 3000 });
    assert.ok(await page.rests());
    before = await drawn(page);
    await page.page.evaluate(() => Module.ccall('set_input_value', null, ['string', 'string'], ['பெயர்', 'அ']));
    await page.page.waitForFunction(count => window.recorded.frames > count, before, { timeout: 3000 });
    assert.ok(await page.rests());
    before = await drawn(page);
    await page.page.evaluate(() => Module.cwrap('clear_input_error', null, ['string'])('பெயர்'));
    await page.page.waitForFunction(count => window.recorded.frames > count, before, { timeout: 3000 });
});

webTest('a font that arrives late is drawn', counting, async page => {
    assert.ok(await page.rests());
    const before = await drawn(page);
    await page.page.evaluate(() => document.fonts.add(new FontFace('எழுத்து', 'local("Noto Sans Tamil")')));
    await page.page.waitForFunction(count => window.recorded.frames > count, before, { timeout: 3000 });
});

for (const [what, widget] of [
    ['a spinner', 'சுழல்_காட்டி()'],
    ['a bar without an end', 'முன்னேற்றவரி(அகலம்: 200)'],
    ['a clock', 'உரை(நேரம்.வினாடிகள்())'],
    ['a count of frames', 'உரை(எண்ணு())'],
]) {
    webTest(`${what} keeps a page awake`, application(`
        நெடுவரிசை(${widget}, உரை("அ"))`, { logic: `
        எத்தனை = 0
        செயல் எண்ணு():
            எத்தனை = எத்தனை கூட்டு 1
            திரும்பு எத்தனை` }), async page => {
        assert.ok(!(await page.rests(4000)));
    });
}

webTest('an animation goes to its end before the page rests', application(`
        நெடுவரிசை(
            பெட்டி(அகலம்: 100, உயரம்: 60, பெட்டி_பாணி(பெட்டிபின்னணி: "#FF0000"),
                அசைவூட்டம்(நிலைமை: "hover", காலம்: 1500, வகை: "சாதாரண", இலக்கு(அகலம்: 300)))
        )`), async page => {
    assert.ok(await page.rests());
    await page.page.mouse.move(50, 30);
    await page.page.waitForTimeout(300);
    assert.ok(await page.rests(), 'rests at the end');
    const box = await page.area([255, 0, 0]);
    near(box.width, 300, 1);
});

webTest('a snack bar comes and goes on a page that rested', application(`
        பொத்தான்(உரை: "சொல்", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: அறிவிப்பு_பட்டை(செய்தி: "வணக்கம்"))`),
        async page => {
    assert.ok(await page.rests());
    await page.page.mouse.click(100, 20, { delay: 100 });
    await page.waitForText('வணக்கம்');
    await page.page.waitForFunction(() => window.recorded.texts.every(({ text }) => text !== 'வணக்கம்'), undefined,
                                    { timeout: 10_000 });
    assert.ok(await page.rests());
});

/// Runs in the page before its own scripts: a machine that draws so few frames a second.
function slowDown(framesASecond) {
    window.requestAnimationFrame = work => setTimeout(() => work(performance.now()), 1000 / framesASecond);
}

/// The page's texts as they change until `wanted` is among them.
async function changesUntil(page, wanted) {
    const seen = [];
    for (const end = Date.now() + 60_000; !seen.includes(wanted) && Date.now() < end;) {
        const text = (await shown(page))[0];
        if (text !== seen.at(-1)) {
            seen.push(text);
        }
        await page.page.waitForTimeout(20);
    }
    return seen;
}

webTest('a counter that shows the same number for seconds goes on, on a slow machine too', application(`
        நெடுவரிசை(சீரமைப்பு: மையம்)(
            உரை("0", அசைவூட்டம்(நிலைமை: "தானாக", காலம்: 2000, வகை: "சாதாரண", இலக்கு(மதிப்பு: 3)))
        )`), { open: false }, async page => {
    await page.page.addInitScript(slowDown, 12);
    await page.visit(page.address);
    await page.waitForText('0');
    assert.deepEqual(await changesUntil(page, '3'), ['0', '1', '2', '3']);
    assert.ok(await page.rests());
});

webTest('what a program counts in silence comes out, however long it takes', application(`
        உரை(சொல்())`, { logic: `
        எத்தனை = 0
        செயல் சொல்():
            எத்தனை = எத்தனை கூட்டு 1
            எனில் எத்தனை பெரிது 200:
                திரும்பு "வந்தது"
            திரும்பு "வரும்"` }), async page => {
    assert.deepEqual(await changesUntil(page, 'வந்தது'), ['வரும்', 'வந்தது']);
});

webTest('a page rests soon on a slow machine too', counting, { open: false }, async page => {
    await page.page.addInitScript(slowDown, 5);
    await page.visit(page.address);
    await page.ready();
    assert.ok(await page.rests());
});

webTest('an application of the second edition rests too', second(`
        நெடுவரிசை(
            ஒவ்வொன்றும்(பட்டியல்: எண்கள், உருப்படி: எண்)(
                கிடைவரிசை(தேர்வுபெட்டி(அகலம்: 24, உயரம்: 24), உரை("வரி " இணை எண், தெரிய: எண் பெரிது 1))
            ),
            உரைபெட்டி(மதிப்பு: பெயர்),
            பொத்தான்(உரை: "கூட்டு", முடக்கு: எண்ணிக்கை பெரிது 3, அழுத்தினால்: () => எண்ணிக்கை = எண்ணிக்கை கூட்டு 1)
        )`, `
        எண்ணிக்கை = 0
        பெயர் = ""
        எண்கள் = [1, 2, 3]`), async page => {
    assert.ok(await page.rests(), 'rests');
});

// What is longer than small pieces of memory is, is counted where it is released.
const LONG = 'நீண்ட உரை '.repeat(60);
for (const [edition, source] of [['first', application(`        நெடுவரிசை(உரை("${LONG}"))`)],
                                 ['second', second(`        நெடுவரிசை(உரை("${LONG}", மடி: மெய்))`, '')]]) {
    webTest(`a page with a long text rests, ${edition} edition`, source, async page => {
        assert.ok(await page.rests());
    });
}
