// உரை, உரைபொத்தான் and பொத்தான்: place, size, colours, and what the mouse does.

import { readFileSync } from 'node:fs';

import { application, assert, near, webTest } from './harness/index.js';

/// Texts grow with the window, within bounds.
const scaleOf = width => Math.min(1.3, Math.max(0.65, width / 1280));

webTest('உரை grows with the window', application('        உரை("வணக்கம்", உரைபாணி(அளவு: 20))'), async page => {
    for (const [width, height] of [[500, 400], [1024, 200], [1800, 150]]) {
        await page.resize(width, height);
        const text = await page.text('வணக்கம்');
        near(text.size, 20 * scaleOf(width));
        assert.deepEqual([text.x, text.y], [0, 0]);
    }
});

webTest('உரை has its usual look', application('        உரை("வணக்கம்")'), async page => {
    const { size, ...look } = await page.text('வணக்கம்');
    near(size, 16 * 0.65);
    assert.deepEqual(look, { text: 'வணக்கம்', x: 0, y: 0, weight: '400', colour: '#000000', align: 'left',
                             baseline: 'top', alpha: 1, scale: 1,
                             family: '"Noto Sans Tamil", "Noto Sans Tamil", Arial, sans-serif' });
});

webTest('உரை takes colour, weight and alignment from its style', application(`
        நெடுவரிசை(
            உரை("சிவப்பு", உரைபாணி(நிறம்: "#FF8000", தடிமன்: "தடிமனான")),
            உரை("நடுவில்", உரைபாணி(சீரமைப்பு: மையம், நிறம்: நீலம்)),
            உரை("கோடு", உரைபாணி(அளவு: 40, நிறம்: "#00FF00", அடிக்குறிப்பு: மெய்))
        )`), async page => {
    const [bold, centred, underlined] = await page.texts();
    assert.equal(bold.colour, '#ff8000');
    assert.ok(['700', 'bold'].includes(bold.weight), bold.weight);
    // Centring moves the anchor, not the text.
    assert.deepEqual([centred.align, centred.colour], ['center', '#0000ff']);
    near(centred.x, await page.textWidth('நடுவில்', centred.size) / 2);
    near(centred.y, 16);
    // The line is 2 high, about 5 below the top, and as long as the text.
    assert.deepEqual(await page.pixel(1, Math.round(underlined.y) + 5), [0, 255, 0]);
});

webTest('the line under a centred உரை is as long as the text, wherever its anchor', application(`
        உள்_இவெ(அளவு: 20)(
            உரை("கோடு", உரைபாணி(அளவு: 60, நிறம்: "#00FF00", சீரமைப்பு: மையம், அடிக்குறிப்பு: மெய்))
        )`), async page => {
    const text = await page.text('கோடு');
    const width = await page.textWidth('கோடு', text.size);
    near(text.x, 20 + width / 2);
    const [before, first, last, behind] = await page.pixels([18, 21, 20 + width - 2, 20 + width + 2].map(
        x => [Math.round(x), 25]));
    assert.deepEqual([first, last], Array(2).fill([0, 255, 0]));
    assert.deepEqual([before, behind], Array(2).fill([245, 245, 245]));
});

const LONG = 'அகர முதல எழுத்தெல்லாம் ஆதி பகவன் முதற்றே உலகு கற்றதனால் ஆய பயனென்கொல் வாலறிவன் நற்றாள் தொழாஅர் எனின்';

webTest('a long உரை shrinks until 20 pixels are left', application(`        உரை("${LONG}", உரைபாணி(அளவு: 30))`),
        async page => {
    for (const width of [500, 700]) {
        await page.resize(width, 300);
        const text = await page.text(LONG);
        const whole = await page.textWidth(LONG, 30 * 0.65);
        assert.ok(whole > width - 20);
        near(text.size, 30 * 0.65 * (width - 20) / whole);
        near(await page.textWidth(LONG, text.size), width - 20, 1);
    }
});

webTest('a long உரை shrinks into the box that its parent imposes', application(`
        கிடைவரிசை(அகலம்: 100)(விரிவாக்கம்(உரை("${LONG}")), இவெ(அகலம்: 0))`), async page => {
    const text = await page.text(LONG);
    near(await page.textWidth(LONG, text.size), 100 - 20, 1);
});

webTest('உரை is sharp again after the page has been zoomed', application('        உரை("வணக்கம்")'), async page => {
    const session = await page.page.context().newCDPSession(page.page);
    for (const deviceScaleFactor of [2, 1]) {
        await session.send('Emulation.setDeviceMetricsOverride', { width: 500, height: 400, deviceScaleFactor,
                                                                   mobile: false });
        await page.page.waitForFunction(ratio => devicePixelRatio === ratio, deviceScaleFactor);
        await page.frames(3);
        const size = await page.page.evaluate(() => {
            const { width, height } = document.getElementById('textCanvas');
            return [width, height];
        });
        assert.deepEqual(size, [500 * deviceScaleFactor, 400 * deviceScaleFactor]);
        assert.equal((await page.text('வணக்கம்')).scale, deviceScaleFactor);
    }
});

const SERIF = readFileSync('/usr/share/fonts/truetype/noto/NotoSerifTamil-Regular.ttf');

webTest('உரை is drawn in its own font once that has come', application(`
        நெடுவரிசை(
            உரை("கககக", உரைபாணி(எழுத்துரு: "fonts/Own-1.ttf", அளவு: 40)),
            உரை("ககககக", உரைபாணி(எழுத்துரு: "fonts/Own-1.ttf", அளவு: 30))
        )`), { files: { 'fonts/Own-1.ttf': SERIF } }, async page => {
    // Letters and digits of the path name the font.
    assert.deepEqual((await page.texts()).map(({ family }) => family),
                     Array(2).fill('Font_fontsOwn1ttf, "Noto Sans Tamil", Arial, sans-serif'));
    assert.deepEqual(await page.window('pozhilFonts'), { Font_fontsOwn1ttf: true });
    await page.page.waitForFunction(() => [...document.fonts].some(({ family, status }) =>
        family === 'Font_fontsOwn1ttf' && status === 'loaded'));
    assert.equal(await page.page.evaluate(() => document.fonts.size), 1);
    const [own, expected, usual] = await page.page.evaluate(async file => {
        const face = await new FontFace('expected', Uint8Array.from(atob(file), byte => byte.charCodeAt(0))).load();
        document.fonts.add(face);
        const context = document.createElement('canvas').getContext('2d');
        return ['Font_fontsOwn1ttf', 'expected', 'Noto Sans Tamil'].map(family => {
            context.font = `40px ${JSON.stringify(family)}`;
            return context.measureText('கககக').width;
        });
    }, SERIF.toString('base64'));
    assert.equal(own, expected);
    assert.notEqual(expected, usual);
    assert.ok(page.console.every(line => !line.includes('எழுத்துருவை ஏற்ற முடியவில்லை')), page.console.join('\n'));
});

webTest('உரை keeps the usual font where its own is none', application(`
        நெடுவரிசை(
            உரை("கககக", உரைபாணி(எழுத்துரு: "fonts/broken.ttf", அளவு: 40)),
            உரை("முதல்", உரைபாணி(எழுத்துரு: "இல்லாதது")),
            உரை("இரண்டு", உரைபாணி(எழுத்துரு: "மற்றது"))
        )`), {
    files: { 'fonts/broken.ttf': 'இது எழுத்துரு அல்ல' },
}, async page => {
    const faults = () => page.console.filter(line => line.startsWith('எழுத்துருவை ஏற்ற முடியவில்லை:')).length;
    for (let waited = 0; waited < 50 && faults() < 2; waited++) {
        await page.frames();
    }
    await page.frames(5);
    // Each is asked for once; names without a Latin letter are all the same.
    assert.equal(faults(), 2);
    assert.deepEqual(await page.window('pozhilFonts'), { Font_fontsbrokenttf: true, Font_: true });
    assert.deepEqual(await page.page.evaluate(() => [...document.fonts].map(({ family }) => family)), []);
    near((await page.text('கககக')).size, 40 * 0.65);
    assert.deepEqual(page.errors, []);
});

webTest('உரை shows the live value of a variable', application(`
        நெடுவரிசை(
            உரை(எண்ணிக்கை),
            உரை("எண்: " இணை எண்ணிக்கை),
            பொத்தான்(உரை: "கூட்டு", பொ_பாணி(அகலம்: 200, உயரம்: 80), அழுத்தினால்: () => கூட்டு_செய்())
        )`, { logic: `
        எண்ணிக்கை = 1
        செயல் கூட்டு_செய்():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1` }), async page => {
    for (const number of [1, 2, 3]) {
        await page.text(String(number));
        await page.text(`எண்: ${number}`);
        await page.click(100, 70);
    }
});

const button = application(`
        உள்_இவெ(அளவு: 20)(
            பொத்தான்(உரை: "அழுத்து", பொ_பாணி(பொபின்னணி: "#FF8040", எழுத்து_நிறம்: "#0000FF", அகலம்: 200, உயரம்: 80, வளைவு: 0, நிழல்: 10))
        )`);

webTest('பொத்தான் has size, place and colours of its style', button, async page => {
    assert.deepEqual(await page.area([0xff, 0x80, 0x40]), { x: 20, y: 20, width: 200, height: 80 });
    const text = await page.text('அழுத்து');
    assert.deepEqual([text.align, text.colour, text.weight], ['center', '#0000ff', '400']);
    near(text.size, 16 * 0.65);
    near(text.x, 20 + 100);
    near(text.y, 20 + 40 - text.size / 2 + 2);
});

webTest('பொத்தான் casts a shadow down to the right', button, async page => {
    const [left, below, right] = await page.pixels([[10, 60], [120, 101], [220, 60]]);
    assert.deepEqual(left.length, 3);
    for (const shadow of [below, right]) {
        assert.ok(shadow.every(value => value < 200), `${shadow}`);
    }
});

webTest('பொத்தான் darkens by 20 under the pointer', button, async page => {
    await page.moveTo(20, 20);
    assert.deepEqual(await page.area([0xff - 20, 0x80 - 20, 0x40 - 20]), { x: 20, y: 20, width: 200, height: 80 });
    await page.moveTo(220, 100); // both edges count
    assert.equal(await page.cursor(), 'pointer');
    await page.moveTo(221, 100);
    assert.equal(await page.cursor(), 'default');
    assert.notEqual(await page.area([0xff, 0x80, 0x40]), null);
});

webTest('பொத்தான் takes a hover colour, a border and the least size', application(`
        நெடுவரிசை(
            பொத்தான்(உரை: "அ", பொ_பாணி(மேம்படுத்தப்பட்ட_நிறம்: "#00FF00", வளைவு: 0)),
            பொத்தான்(உரை: "ஆ", பொ_பாணி(பொபின்னணி: "#FFFFFF", கரை_நிறம்: "#FF0000", கரை_அளவு: 4, அகலம்: 100, உயரம்: 50, வளைவு: 0)),
            பொத்தான்(உரை("இ"))
        )`), async page => {
    // 80 by 36 at least; the next widget stands 40 further down all the same.
    assert.deepEqual(await page.area([33, 150, 243]).then(({ x, y, width }) => [x, y, width]), [0, 0, 80]);
    const first = await page.pixels([[40, 1], [40, 34]]);
    assert.deepEqual(first, [[33, 150, 243], [33, 150, 243]]);
    // Half of the border's width lies inside, half outside.
    assert.deepEqual(await page.pixels([[50, 41], [50, 43], [101, 60]]),
                     [[255, 0, 0], [255, 255, 255], [255, 0, 0]]);
    assert.deepEqual((await page.texts()).map(({ colour }) => colour), ['#ffffff', '#ffffff', '#000000']);
    await page.moveTo(40, 20);
    assert.deepEqual(await page.pixel(5, 5), [0, 255, 0]);
});

const FONT = readFileSync('/usr/share/fonts/truetype/noto/NotoSansTamil-Regular.ttf');

webTest('பொத்தான் is as wide as its text in the font of the page', application(`
        பொத்தான்(உரை("கககககககககககக", உரைபாணி(அளவு: 40)), பொ_பாணி(பொபின்னணி: "#FF8040", வளைவு: 0))`), {
    files: { 'assets/font/Coiny-Regular.ttf': FONT, 'assets/font/Tamil-Regular.ttf': FONT },
}, async page => {
    const { width } = await page.area([0xff, 0x80, 0x40]);
    const text = await page.page.evaluate(async () => {
        const face = await new FontFace('own', FS.readFile('assets/font/Tamil-Regular.ttf')).load();
        document.fonts.add(face);
        const context = document.createElement('canvas').getContext('2d');
        context.font = `${40 * 0.65}px own`;
        const ink = context.measureText('கககககககககககக');
        return ink.actualBoundingBoxLeft + ink.actualBoundingBoxRight;
    });
    near(width, text + 32, 3);
    assert.deepEqual(page.console, []);
});

webTest('both forms of a press handler act once a press', application(`
        நெடுவரிசை(
            பொத்தான்(உரை: "அ", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => கூட்டு_செய்(1)),
            பொத்தான்(உரை: "ஆ", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்(
                அச்சிடு("முதல்")
                அச்சிடு(எண்ணிக்கை)
            )),
            பொத்தான்(உரை: "இ", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: கூட்டு_செய்(100)),
            உரைபொத்தான்("ஈ", அழுத்தினால்: கூட்டு_செய்(1000)),
            உரை(எண்ணிக்கை)
        )`, { logic: `
        எண்ணிக்கை = 0
        செயல் கூட்டு_செய்(அ):
            எண்ணிக்கை = எண்ணிக்கை கூட்டு அ` }), async page => {
    const presses = [[20, '1'], [60, '1'], [100, '101'], [140, '1101']];
    for (const [y, total] of presses) {
        await page.click(10, y);
        await page.text(total);
    }
    await page.click(210, 20);
    await page.text('1101');
    assert.deepEqual(page.console.slice(-2), ['முதல்', '1']);
});

webTest('உரைபொத்தான் is its text alone, with another colour under the pointer', application(`
        உள்_இவெ(அளவு: 30)(
            உரைபொத்தான்("முகப்பு", பாணி: உரைபொ_பாணி(நிறம்: "#112233", மேம்படுத்தப்பட்ட_நிறம்: "#FF0000", அளவு: 24))
        )`), async page => {
    const text = await page.text('முகப்பு');
    // 40 high; its size stays, whatever the window's
    near(text.size, 24);
    near(text.y, 30 + 20 - 12 + 2);
    assert.deepEqual([text.align, text.colour], ['center', '#112233']);
    assert.deepEqual(await page.pixel(31, 31), [245, 245, 245]);
    await page.moveTo(34, 69);
    assert.equal((await page.text('முகப்பு')).colour, '#ff0000');
    assert.equal(await page.cursor(), 'pointer');
    await page.moveTo(34, 71);
    assert.equal((await page.text('முகப்பு')).colour, '#112233');
});

webTest('a weight in Tamil digits counts as in others', application(`
        நெடுவரிசை(
            உரை("உரை", உரைபாணி(அளவு: 20, தடிமன்: ௭௦௦)),
            பொத்தான்(உரை("பொத்தான்", உரைபாணி(தடிமன்: ௬௦௦)))
        )`), async page => {
    const [text, label] = await page.texts();
    assert.ok(['700', 'bold'].includes(text.weight), text.weight);
    near(text.size, 20 * 0.65);
    assert.equal(label.weight, '600');
});
