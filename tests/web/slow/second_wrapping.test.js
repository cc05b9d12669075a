// Texts that wrap at the room there is, and texts that don't shrink with the window.

import { faultCard, second } from '../harness/editions.js';
import { assert, near, webTest } from '../harness/index.js';

const DESKTOP = { viewport: { width: 1280, height: 800 } };
const LINE_HEIGHT = 1.4;
const scaleOf = width => Math.min(1.3, Math.max(0.65, width / 1280));

const VERSE = 'அகர முதல எழுத்தெல்லாம் ஆதி பகவன் முதற்றே உலகு கற்றதனால் ஆய பயனென்கொல் வாலறிவன் நற்றாள் தொழாஅர் எனின்';

/// The lines into which a text falls at a width, found word by word and letter by letter.
const linesOf = (page, text, width, size, weight = '400') => page.page.evaluate(([whole, most, font]) => {
    const context = document.createElement('canvas').getContext('2d');
    context.font = font;
    const fits = part => context.measureText(part).width <= most + 0.01;
    const letters = word => [...new Intl.Segmenter('ta', { granularity: 'grapheme' }).segment(word)].map(one => one.segment);
    return whole.split('\n').flatMap(paragraph => {
        const lines = [];
        let line = null;
        for (const word of paragraph.split(/ +/)) {
            if (line !== null && fits(`${line} ${word}`)) {
                line += ` ${word}`;
                continue;
            }
            if (line !== null) {
                lines.push(line);
            }
            line = '';
            for (const letter of letters(word)) {
                if (line !== '' && !fits(line + letter)) {
                    lines.push(line);
                    line = '';
                }
                line += letter;
            }
        }
        return [...lines, line ?? ''];
    });
}, [text, width, `${weight} ${size}px "Noto Sans Tamil", "Noto Sans Tamil", Arial, sans-serif`]);

/// The lines that are drawn between two texts, of which the first is none of them.
async function drawnBetween(page, before, after) {
    const all = await page.texts();
    const place = wanted => all.findIndex(({ text }) => text === wanted);
    return all.slice(place(before) + 1, place(after));
}

const column = second(`
        நெடுவரிசை(அகலம்: 300, இடைவெளி: 10)(
            உரை("தலை"),
            உரை(பாடல், மடி: மெய், உரைபாணி(அளவு: 20, நிறம்: "#FF0000")),
            உரை("அடி"),
            பொத்தான்(உரை: "மாற்று", பொ_பாணி(அகலம்: 100, உயரம்: 30), அழுத்தினால்: () => பாடல் = "க\\n\\nங"),
            பொத்தான்(உரை: "வெறுமை", பொ_பாணி(அகலம்: 100, உயரம்: 30), அழுத்தினால்: () => பாடல் = "")
        )`, `
        பாடல் = "${VERSE}"`);

webTest('a text wraps at spaces at the width of its column, and what follows moves down', column, DESKTOP, async page => {
    for (const [width, height] of [[1280, 800], [390, 844], [200, 600]]) {
        await page.resize(width, height);
        const size = 20 * scaleOf(width);
        const lines = await drawnBetween(page, 'தலை', 'அடி');
        assert.deepEqual(lines.map(({ text }) => text), await linesOf(page, VERSE, Math.min(300, width), size));
        assert.ok(lines.length > 1);
        lines.forEach((line, index) => {
            near(line.x, 0);
            near(line.y, lines[0].y + index * LINE_HEIGHT * size);
            near(line.size, size);
        });
        near((await page.text('அடி')).y, lines[0].y + lines.length * LINE_HEIGHT * size + 10);
    }
});

/// Presses the button of this label.
async function press(page, label) {
    const { x, y } = await page.text(label);
    await page.click(x, y + 4);
}

webTest('newlines hold, an empty text takes a line, and nothing is drawn right of the room', column, DESKTOP, async page => {
    const { width } = await page.area([255, 0, 0]);
    assert.ok(width > 150 && width <= 300, String(width));
    await press(page, 'மாற்று');
    const lines = await drawnBetween(page, 'தலை', 'அடி');
    assert.deepEqual(lines.map(({ text }) => text), ['க', '', 'ங']);
    near((await page.text('அடி')).y, lines[0].y + 3 * LINE_HEIGHT * 20 + 10);
    await press(page, 'வெறுமை');
    assert.deepEqual((await drawnBetween(page, 'தலை', 'அடி')).map(({ text }) => text), ['']);
    near((await page.text('அடி')).y, lines[0].y + LINE_HEIGHT * 20 + 10);
});

const LONG = 'கொக்ஷிகௌதூதெநிக்ஷ்ஸ்ரீமோ';

const narrow = second(`
        நெடுவரிசை(
            உரை("தலை"),
            உரை("முன் ${LONG} பின்", மடி: மெய், அகலம்: 60, உரைபாணி(அளவு: 20)),
            உரை("நடு"),
            உரை("${LONG}", மடி: மெய், அகலம்: 1),
            உரை("அடி")
        )`, '');

webTest('a word too long for its line breaks between letters, and each line has one at least', narrow, DESKTOP, async page => {
    const lines = (await drawnBetween(page, 'தலை', 'நடு')).map(({ text }) => text);
    assert.deepEqual(lines, await linesOf(page, `முன் ${LONG} பின்`, 60, 20));
    assert.equal(lines.join('').replaceAll(' ', ''), `முன்${LONG}பின்`);
    assert.equal(lines[0], 'முன்');
    const letters = (await drawnBetween(page, 'நடு', 'அடி')).map(({ text }) => text);
    assert.deepEqual(letters, await linesOf(page, LONG, 1, 16));
    // No line begins with a vowel sign or a புள்ளி.
    [...lines, ...letters].forEach(line => assert.doesNotMatch(line, /^\p{M}/u));
    assert.equal(letters[0], 'கொ');
});

const layouts = second(`
        நெடுவரிசை(இடைவெளி: 8)(
            உரை("0"),
            கிடைவரிசை(இடைவெளி: 5)(
                பெட்டி(அகலம்: 40, உயரம்: 40),
                விரிவாக்கம்(உரை("${VERSE}", மடி: மெய்))
            ),
            உரை("1"),
            கிடைவரிசை(இடைவெளி: 5)(
                பெட்டி(அகலம்: 40, உயரம்: 40),
                உரை("${VERSE}", மடி: மெய்),
                உரை("${VERSE}", மடி: மெய்)
            ),
            உரை("2"),
            உள்_இவெ(அளவு: 30)(நெடுவரிசை(உரை("${VERSE}", மடி: மெய்))),
            உரை("3"),
            பெட்டி(அகலம்: 150, உயரம்: 200, சீரமைப்பு: மேல்_இடது)(உரை("${VERSE}", மடி: மெய், சீரமைப்பு: மேல்_இடது)),
            உரை("4"),
            அட்டை(அகலம்: 250, உயரம்: 150)(உரை("${VERSE}", மடி: மெய்)),
            உரை("5"),
            மடிப்பு(உரை("${VERSE}", மடி: மெய்)),
            உரை("6")
        )`, '');

webTest('texts wrap in all that holds them, and in rows beside others', layouts, DESKTOP, async page => {
    for (const [width, height] of [[1280, 1200], [390, 844]]) {
        await page.resize(width, height);
        const size = 16 * scaleOf(width);
        const wraps = room => linesOf(page, VERSE, room, size);
        const shown = async (before, after) => (await drawnBetween(page, before, after)).map(({ text }) => text);
        assert.deepEqual(await shown('0', '1'), await wraps(width - 45));
        const share = (width - 50) / 2;
        const twice = await wraps(share);
        assert.deepEqual(await shown('1', '2'), [...twice, ...twice]);
        const [first] = await drawnBetween(page, '0', '1');
        near(first.x, 45);
        assert.deepEqual(await shown('2', '3'), await wraps(width - 60));
        assert.deepEqual(await shown('3', '4'), await wraps(150));
        assert.deepEqual(await shown('4', '5'), await wraps(220));
        assert.deepEqual(await shown('5', '6'), await wraps(width));
        // Padding is as high as the lines in it, with its inset above and below.
        const padded = await drawnBetween(page, '2', '3');
        near((await page.text('3')).y - padded[0].y, padded.length * LINE_HEIGHT * size + 30 + 8, 0.05);
    }
    assert.equal(await faultCard(page), '');
});

const aligned = second(`
        நெடுவரிசை(அகலம்: 300)(
            உரை("0"),
            உரை("${VERSE}", மடி: மெய், உரைபாணி(சீரமைப்பு: "மையம்")),
            உரை("1"),
            உரை("${VERSE}", மடி: மெய், உரைபாணி(சீரமைப்பு: "வலது", தடிமன்: 700, நிறம்: "#FF0000")),
            உரை("2"),
            உரை("க", மடி: மெய், உரைபாணி(சீரமைப்பு: "வலது")),
            உரை("3"),
            உரை("க", மடி: மெய், அகலம்: 200, உரைபாணி(சீரமைப்பு: "வலது")),
            உரை("4")
        )`, '');

webTest('lines are aligned within their block', aligned, DESKTOP, async page => {
    const centred = await drawnBetween(page, '0', '1');
    assert.ok(centred.length > 1);
    centred.forEach(({ x, align }) => assert.deepEqual([x, align], [150, 'center']));
    const right = await drawnBetween(page, '1', '2');
    right.forEach(({ x, align }) => assert.deepEqual([x, align], [300, 'right']));
    // Bold letters are measured as bold.
    assert.deepEqual(right.map(({ text }) => text), await linesOf(page, VERSE, 300, 16, '700'));
    const { x, width } = await page.area([255, 0, 0]);
    assert.ok(x + width > 290 && x + width <= 301, `${x} ${width}`);
    // A text of one line is as wide as it is, unless it has a width of its own.
    const [alone] = await drawnBetween(page, '2', '3');
    near(alone.x, await page.textWidth('க', 16));
    const [wide] = await drawnBetween(page, '3', '4');
    near(wide.x, 200);
});

const listed = second(`
        பட்டியல்_காட்சி(
            ஒவ்வொன்றும்(பட்டியல்: குறிப்புகள், உருப்படி: குறிப்பு)(
                நெடுவரிசை(
                    உரை("தலை " இணை இடம்),
                    உரை(குறிப்பு, மடி: மெய், தெரிய: குறிப்பு சமமில்லை "மறை")
                )
            )
        )`, `
        குறிப்புகள் = ["${VERSE}", "க", "மறை", "${VERSE} ${VERSE}", "முடிவு"]`);

webTest('elements of a list are as high as their lines', listed, DESKTOP, async page => {
    for (const [width, height] of [[1280, 800], [390, 844]]) {
        await page.resize(width, height);
        const size = 16 * scaleOf(width);
        const step = LINE_HEIGHT * size;
        const lines = async text => (await linesOf(page, text, width, size)).length;
        const heights = [await lines(VERSE), 1, 0, await lines(`${VERSE} ${VERSE}`)].map(count => 16 + count * step);
        const shown = Object.fromEntries((await page.texts()).map(({ text, y }) => [text, y]));
        heights.reduce((y, own, index) => {
            near(shown[`தலை ${index}`], y, 0.05);
            near(shown[`தலை ${index + 1}`], y + own, 0.05);
            return y + own;
        }, shown['தலை 0']);
        assert.equal(shown['மறை'], undefined);
    }
});

const cells = second(`
        நெடுவரிசை(
            உரை("0"),
            கட்டம்_காட்சி(குறுக்கு_எண்ணிக்கை: 2)(
                உரை("${VERSE}", மடி: மெய்),
                உரை("க", மடி: மெய்),
                உரை("ங")
            ),
            உரை("1"),
            தேர்வுபெட்டி(அகலம்: 24, உயரம்: 24)(உரை("${VERSE}", மடி: மெய்)),
            உரை("2"),
            பட்டியல்_உருப்படி(தலைப்பு: உரை("${VERSE}", மடி: மெய்), அகலம்: 260)
        )`, '');

webTest('texts wrap in cells, beside boxes to tick and in tiles', cells, DESKTOP, async page => {
    for (const [width, columns] of [[1280, 2], [390, 1]]) {
        await page.resize(width, 844);
        const wraps = room => linesOf(page, VERSE, room, 16 * scaleOf(width));
        const shown = (await drawnBetween(page, '0', '1'));
        const verse = await wraps((width - 10 * (columns - 1)) / columns);
        assert.deepEqual(shown.map(({ text }) => text), [...verse, 'க', 'ங']);
        // A row of cells is as high as the highest of them.
        const [cell, below] = shown.slice(-2);
        near(below.y - shown[0].y, verse.length * LINE_HEIGHT * 16 * scaleOf(width) + 10
            + (columns === 1 ? LINE_HEIGHT * 16 * scaleOf(width) + 10 : 0), 0.05);
        near(cell.x, columns === 1 ? 0 : (width + 10) / 2);
        assert.deepEqual((await drawnBetween(page, '1', '2')).map(({ text }) => text), await wraps(width - 36));
        const texts = (await page.texts()).map(({ text }) => text);
        assert.deepEqual(texts.slice(texts.indexOf('2') + 1), await wraps(228));
    }
});

const asked = second(`
        நெடுவரிசை(
            பொத்தான்(உரை: "திற", பொ_பாணி(அகலம்: 100, உயரம்: 30), அழுத்தினால்: () => திறந்தது = மெய்),
            எச்சரிக்கை(காட்சி_பெயர்: "திறந்தது", எச்சரிக்கை_பாணி(அகலம்: 240, உயரம்: 300))(
                உள்_இவெ(அளவு: 20)(நெடுவரிசை(உரை("${VERSE}", மடி: மெய்), உரை("அடி")))
            )
        )`, `
        திறந்தது = பொய்`);

webTest('texts wrap in dialogs', asked, DESKTOP, async page => {
    await press(page, 'திற');
    const lines = (await drawnBetween(page, 'திற', 'அடி')).map(({ text }) => text);
    assert.deepEqual(lines, await linesOf(page, VERSE, 200, 16));
});

webTest('the whole text stands in the document, to be read and copied', column, DESKTOP, async page => {
    const element = page.page.locator('.pozhil-text', { hasText: 'கற்றதனால்' });
    await element.waitFor({ state: 'attached' });
    assert.equal(await element.count(), 1);
    assert.equal(await element.textContent(), VERSE);
    const box = await element.boundingBox();
    const lines = await drawnBetween(page, 'தலை', 'அடி');
    assert.ok(Math.abs(box.height - lines.length * LINE_HEIGHT * 20) < 30 && box.width <= 301, JSON.stringify(box));
    const copied = await element.evaluate(found => {
        getSelection().selectAllChildren(found);
        return getSelection().toString();
    });
    assert.equal(copied, VERSE);
    // An element that showed lines before shows a text of one line as ever.
    await press(page, 'வெறுமை');
    await page.page.waitForFunction(() => !document.body.innerText.includes('கற்றதனால்'), undefined, { timeout: 10_000 });
});

const endless = second(`
        நெடுவரிசை(உருளும்பட்டை: மெய்)(
            உரை("தலை"),
            உரை(நீண்டது, மடி: மெய், அகலம்: 300),
            உரை("எண்ணிக்கை " இணை எண்)
        )`, `
        நீண்டது = ""
        எண் = 0
        ஒவ்வொன்றாக இ இல் வரம்பு(1000):
            நீண்டது = நீண்டது இணை "${VERSE} "`);

webTest('a hundred thousand letters are measured once, and lines out of sight aren\'t written', endless, DESKTOP, async page => {
    await page.page.evaluate(() => {
        window.counts = { calls: 0, letters: 0 };
        const { measureText } = CanvasRenderingContext2D.prototype;
        CanvasRenderingContext2D.prototype.measureText = function (text) {
            if (this === window.pozhilLineContext) {
                window.counts.calls++;
                window.counts.letters += text.length;
            }
            return measureText.call(this, text);
        };
    });
    const counts = () => page.page.evaluate(() => window.counts);
    const begin = Date.now();
    await page.frames(20);
    const time = (Date.now() - begin) / 20;
    assert.deepEqual(await counts(), { calls: 0, letters: 0 });
    assert.ok(time < 150, `a frame takes ${time} ms`);
    const drawn = await page.texts();
    assert.ok(drawn.length < 100, String(drawn.length));
    // Letters of another size are measured anew, in line with their number.
    await page.resize(1000, 800);
    const { calls, letters } = await counts();
    assert.ok(calls > 1000 && letters < 40 * 1000 * VERSE.length, `${calls} ${letters}`);
    // All lines are there.
    const { y } = await page.text('எண்ணிக்கை 0');
    await page.moveTo(500, 400);
    await page.wheel(0, 10_000);
    const [, first, last] = await page.texts();
    assert.ok(first.y < -9000 && last.y > -100 && last.y < 800, JSON.stringify([first.y, last.y]));
    near((await page.text('எண்ணிக்கை 0')).y, y - 10_000, 1);
});

const fontWide = second(`
        நெடுவரிசை(அகலம்: 300)(
            உரை("தலை"),
            உரை("${VERSE}", மடி: மெய்),
            உரை("அடி")
        )`, '');

webTest('a font that comes late breaks the lines anew', fontWide, DESKTOP, async page => {
    const before = (await drawnBetween(page, 'தலை', 'அடி')).map(({ text }) => text);
    // Letters twice as wide, as a web font's may be.
    await page.page.evaluate(async () => {
        const { measureText } = CanvasRenderingContext2D.prototype;
        CanvasRenderingContext2D.prototype.measureText = function (text) {
            const measured = measureText.call(this, text);
            return { width: 2 * measured.width };
        };
    });
    await page.frames(3);
    assert.deepEqual((await drawnBetween(page, 'தலை', 'அடி')).map(({ text }) => text), before);
    await page.page.evaluate(async () => {
        document.fonts.add(new FontFace('Late', 'local("Noto Sans Tamil")'));
        window.pozhilFrames.wake();
    });
    await page.frames(3);
    const after = await drawnBetween(page, 'தலை', 'அடி');
    assert.deepEqual(after.map(({ text }) => text), await linesOf(page, VERSE, 300, 16));
    assert.ok(after.length > before.length);
    near((await page.text('அடி')).y - after[0].y, after.length * LINE_HEIGHT * 16);
});

const body = `
        நெடுவரிசை(
            உரை("தலை", உரைபாணி(அளவு: 20)),
            பொத்தான்(உரை: "அழுத்து", பொ_பாணி(அகலம்: 100, உயரம்: 30)),
            உரை("${VERSE}", மடி: மெய்),
            உரை("அடி")
        )`;

for (const [header, least] of [['எழுத்தளவு: "நிலையான"', 1], ['எழுத்தளவு: "மாறும்"', 0.65], ['', 0.65]]) {
    webTest(`texts shrink with the window as the header says: ${header}`, second(body, '', header), DESKTOP, async page => {
        for (const width of [390, 831, 1000, 1800]) {
            await page.resize(width, 844);
            const scale = Math.min(1.3, Math.max(least, width / 1280));
            near((await page.text('தலை')).size, 20 * scale);
            const lines = await drawnBetween(page, 'அழுத்து', 'அடி');
            near(lines[0].size, 16 * scale);
            assert.deepEqual(lines.map(({ text }) => text), await linesOf(page, VERSE, width, 16 * scale));
            near((await page.text('அடி')).y - lines[0].y, lines.length * LINE_HEIGHT * 16 * scale, 0.05);
        }
    });
}

// Of long ones the allocator counts how often it has got their memory back, which keeps the page awake.
webTest('a page with a short text that wraps comes to rest', second(`
        நெடுவரிசை(
            உரை(குறள், மடி: மெய், அகலம்: 80)
        )`, `
        குறள் = "அகர முதல எழுத்தெல்லாம் ஆதி"`), async page => {
    assert.ok((await page.texts()).length > 1);
    assert.ok(await page.rests());
});
