// The canvas of texts does as any canvas of a browser does, though the page remembers what it was told.

import { readFileSync } from 'node:fs';

import { application, assert, near, webTest } from './harness/index.js';

const plain = application('        உரை("உரை")');

/// In the page: does things chosen by chance to the canvas of texts, and once more to what is the browser's alone; tells the
/// first difference in what the canvas answers and in what it shows.
function compareWithBrowser([seed, rounds, isRare]) {
    let state = 0;
    const chance = most => {
        state = (Math.imul(state, 1664525) + 1013904223) >>> 0;
        return Math.floor(state / 2 ** 32 * most);
    };
    const one = list => list[chance(list.length)];
    const canvas = document.getElementById('textCanvas');
    const context = canvas.getContext('2d');
    const VALUES = {
        font: ['16px serif', 'bold 30px Arial', '400 12.300000190734863px "Noto Sans Tamil", Arial', 'nonsense', '', '16px serif'],
        fillStyle: ['#ff0000', 'blue', 'rgba(0, 128, 0, 0.3)', 'no colour', '#000001'],
        strokeStyle: ['#00ff00', 'red', '#000002', 'no colour'],
        globalAlpha: [0, 1, 0.25, 2, -1, NaN, '0.5'], lineWidth: [1, 4, 0, -3, '2'],
        globalCompositeOperation: ['source-over', 'destination-out', 'xor', 'no such'],
        textAlign: ['left', 'center', 'right', 'start', 'middle'], textBaseline: ['top', 'middle', 'alphabetic', 'up'],
        direction: ['ltr', 'rtl', 'down'],
    };
    const TEXTS = ['உரை', 'தமிழ் வாழ்க', 'abc', '', 'க்ஷௌ'];
    const place = () => chance(700) - 250;
    const ACTS = [
        ...Array.from({ length: 8 }, () => () => {
            const [name, values] = one(Object.entries(VALUES));
            const value = one(values);
            context[name] = value;
        }),
        ...Array.from({ length: 4 }, () => () => context.fillText(one(TEXTS), place(), place())),
        () => context.save(),
        () => context.restore(),
        () => context[one(['fillRect', 'clearRect'])](place(), place(), chance(80), chance(80)),
        () => {
            context.beginPath();
            context.moveTo(place(), place());
            context.lineTo(place(), place());
            context.quadraticCurveTo(place(), place(), place(), place());
            context[one(['stroke', 'fill'])]();
        },
        () => {
            context.setTransform(1, 0, 0, 1, 0, 0);
            context.scale(...one([[1, 1], [2, 2], [0.5, 0.5]]));
        },
    ];
    const RARE = [
        () => context.translate(10, -20),
        () => context.rotate(0.5),
        () => { context.letterSpacing = '3px'; },
        () => Object.assign(context, { shadowBlur: 4, shadowColor: 'red' }),
        () => {
            context.beginPath();
            context.rect(20, 20, 200, 100);
            context.clip();
        },
        () => {
            context.fillStyle = context.createLinearGradient(0, 0, 300, 0);
        },
        () => { canvas.width = 300; },
        () => context.setTransform(1, 0.2, 0, 1, 5, 5),
        () => context.fillText('உரை', 10, 40, 15),
    ];
    const answer = () => [...Object.keys(VALUES).map(name => String(context[name])),
        ...TEXTS.map(text => context.measureText(text).width), context.measureText('உரை').actualBoundingBoxLeft].join();
    const run = () => {
        state = seed;
        [canvas.width, canvas.height] = [300, 200];
        const answers = Array.from({ length: rounds }, () => {
            one(isRare && chance(20) === 0 ? RARE : ACTS)();
            return answer();
        });
        return { answers, pixels: context.getImageData(0, 0, 300, 200).data };
    };
    const ways = Object.getPrototypeOf(context);
    const runAs = prototype => {
        Object.setPrototypeOf(context, prototype);
        return run();
    };
    // On a canvas that has been read often browsers draw in another way than before.
    const READINGS = 10;
    for (let reading = 0; reading < READINGS; reading++) {
        runAs(CanvasRenderingContext2D.prototype);
    }
    const own = runAs(ways);
    const expected = runAs(CanvasRenderingContext2D.prototype);
    const other = own.answers.findIndex((words, index) => words !== expected.answers[index]);
    if (other >= 0) {
        return `after ${other}: ${own.answers[other]} instead of ${expected.answers[other]}`;
    }
    const wrong = own.pixels.findIndex((value, index) => value !== expected.pixels[index]);
    return wrong < 0 ? `same, of ${new Set(expected.pixels).size} shades` : `pixel ${wrong >> 2}: ${own.pixels[wrong]} instead of ${expected.pixels[wrong]}`;
}

for (const isRare of [false, true]) {
    webTest(`whatever is ${isRare ? 'done' : 'written'} on the canvas of texts comes out as in the browser`, plain,
            async page => {
        let hasShown = false;
        for (let seed = 1; seed <= 5; seed++) {
            // No frame of the program in between.
            await page.page.evaluate(() => window.pozhilFrames.drawWhen(() => false));
            const result = await page.page.evaluate(compareWithBrowser, [seed, 200, isRare]);
            assert.match(result, /^same/, `seed ${seed}`);
            hasShown ||= !result.includes('of 1 shades');
            await page.page.reload();
            await page.ready();
        }
        assert.ok(hasShown);
    });
}

webTest('a script that draws in other ways leaves the texts of the program as they are', application(`
        நெடுவரிசை(
            உரை("ஒன்று", உரைபாணி(நிறம்: "#FF0000", அளவு: 30)),
            உரை("இரண்டு", உரைபாணி(நிறம்: "#0000FF", அளவு: 40, அடிக்கோடு: மெய்))
        )`), async page => {
    const before = await page.texts();
    const line = await page.area([0, 0, 255]);
    await page.page.evaluate(() => {
        const context = document.getElementById('textCanvas').getContext('2d');
        context.save();
        context.translate(100, 100);
        context.restore();
        context.shadowBlur = 0;
    });
    assert.deepEqual(await page.texts(), before);
    assert.deepEqual(await page.area([0, 0, 255]), line);
});

webTest('the same text again is written with its own colour, size and side', application(`
        நெடுவரிசை(
            உரை("உரை", உரைபாணி(நிறம்: "#FF0000", அளவு: 20)),
            உரை("உரை", உரைபாணி(நிறம்: "#0000FF", அளவு: 20)),
            உரை("உரை", உரைபாணி(நிறம்: "#0000FF", அளவு: 40, சீரமைப்பு: மையம்)),
            உரை("உரை", உரைபாணி(நிறம்: "#FF0000", அளவு: 40, தடிமன்: 700))
        )`), async page => {
    const texts = await page.texts();
    assert.deepEqual(texts.map(({ colour }) => colour), ['#ff0000', '#0000ff', '#0000ff', '#ff0000']);
    assert.deepEqual(texts.map(({ align }) => align), ['left', 'left', 'center', 'left']);
    assert.deepEqual(texts.map(({ size }) => Math.round(size)), [13, 13, 26, 26]);
    assert.deepEqual(texts.map(({ weight }) => weight === '400'), [true, true, true, false]);
});

const OTHER_FONT = [...readFileSync('/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf')];

webTest('a text is measured anew when its font comes late, and when that goes', application(`
        நெடுவரிசை(சீரமைப்பு: மேல்_மையம்)(
            உரை("iiii MMMM", உரைபாணி(அளவு: 40))
        )`), async page => {
    const width = async () => 2 * (250 - (await page.text('iiii MMMM')).x);
    const measured = async () => page.textWidth('iiii MMMM', (await page.text('iiii MMMM')).size);
    const before = await width();
    near(before, await measured(), 1);
    await page.page.evaluate(async bytes => {
        window.late = new FontFace('Noto Sans Tamil', new Uint8Array(bytes));
        document.fonts.add(window.late);
        await window.late.load();
    }, OTHER_FONT);
    const late = await width();
    near(late, await measured(), 1);
    assert.ok(late > before + 10, `${before}, ${late}`);
    await page.page.evaluate(() => { document.fonts.delete(window.late); });
    near(await width(), before, 1);
});

// --- what is out of the window ---

const lines = Array.from({ length: 60 }, (_, number) => `உரை("வரி ${number}", உரைபாணி(அளவு: 40))`);
const long = application(`
        நெடுவரிசை(உருளும்பட்டை: மெய், இடைவெளி: 0)(
            ${lines.join(',\n            ')}
        )`);

/// The rows of the canvas with something on them.
function writtenRows() {
    const canvas = document.getElementById('textCanvas');
    const copy = new OffscreenCanvas(canvas.width, canvas.height).getContext('2d');
    copy.drawImage(canvas, 0, 0);
    const { data } = copy.getImageData(0, 0, canvas.width, canvas.height);
    const rows = [];
    for (let y = 0; y < canvas.height; y++) {
        const row = data.subarray(4 * y * canvas.width, 4 * (y + 1) * canvas.width);
        rows.push(row.some((value, index) => index % 4 === 3 && value > 0));
    }
    return rows;
}

webTest('of a long page only what may reach into the window is written', long, async page => {
    const written = () => page.page.evaluate(() => window.recorded.written);
    assert.equal((await page.texts()).length, 60);
    assert.ok(await written() < 30, `${await written()}`);
    await page.moveTo(250, 200);
    await page.wheel(0, 1000);
    const texts = await page.texts();
    assert.equal(texts.length, 60);
    assert.ok(texts.some(({ y }) => y > 0 && y < 400) && texts[0].y < -900);
    assert.ok(await written() < 40, `${await written()}`);
});

webTest('a text that is partly above or below the window is written', long, async page => {
    await page.moveTo(250, 200);
    for (let step = 0; step < 6; step++) {
        await page.wheel(0, 7);
        const rows = await page.page.evaluate(writtenRows);
        for (const { y, size } of await page.texts()) {
            // Glyphs fill at least the middle of their line.
            const middle = Math.round(y + 0.6 * size);
            if (middle >= 0 && middle < 400) {
                assert.ok(rows[middle], `nothing at ${middle}, of a text at ${y}`);
            }
        }
    }
});

const boxes = Array.from({ length: 40 }, (_, number) => `பெட்டி(அகலம்: 100, உயரம்: 50, வளைவு: ${number % 2 * 10}, `
    + `பெட்டி_பாணி(உயரம்: 50, பெட்டிபின்னணி: "${number === 20 ? '#FF0000' : '#00FF00'}"))`);

webTest('shapes that are partly in the window are drawn as far as they are in it', application(`
        நெடுவரிசை(உருளும்பட்டை: மெய், இடைவெளி: 0)(
            ${boxes.join(',\n            ')}
        )`), async page => {
    assert.equal(await page.area([255, 0, 0]), null);
    await page.moveTo(250, 200);
    await page.wheel(0, 610);
    const below = await page.area([255, 0, 0]);
    assert.deepEqual(below, { x: 0, y: 390, width: 100, height: 10 });
    await page.wheel(0, 430);
    assert.deepEqual(await page.area([255, 0, 0]), { x: 0, y: 0, width: 100, height: 10 });
    await page.wheel(0, 20);
    assert.equal(await page.area([255, 0, 0]), null);
});
