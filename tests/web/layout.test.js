// Columns, rows, stacks, wraps and what stands between their children.

import { application, assert, near, webTest } from './harness/index.js';

const RED = [255, 0, 0];
const GREEN = [0, 255, 0];
const BLUE = [0, 0, 255];
const GREY = [128, 128, 128];

const hex = colour => `"#${colour.map(value => value.toString(16).padStart(2, '0')).join('')}"`;

/// A button as a plain rectangle.
const block = (colour, width, height, more = '') =>
    `பொத்தான்(உரை: "", ${more}பொ_பாணி(பொபின்னணி: ${hex(colour)}, அகலம்: ${width}, உயரம்: ${height}, வளைவு: 0))`;

async function assertAreas(page, expected) {
    await page.leave();
    for (const [colour, x, y, width, height] of expected) {
        assert.deepEqual(await page.area(colour), { x, y, width, height }, `area of ${colour}`);
    }
}

webTest('a root column centres texts by their true width', application(`
        நெடுவரிசை(சீரமைப்பு: மையம், இடைவெளி: 8)(
            உரை("முதல்"),
            உரை("இரண்டாம் வரி", உரைபாணி(அளவு: 40))
        )`), async page => {
    for (const [width, height] of [[500, 400], [1024, 200], [1800, 150]]) {
        await page.resize(width, height);
        // The heights count as 16 and 40, though the texts are drawn larger or smaller.
        const top = (height - (16 + 40 + 8)) / 2;
        for (const [content, y] of [['முதல்', top], ['இரண்டாம் வரி', top + 16 + 8]]) {
            const text = await page.text(content);
            near(text.y, y);
            near(text.x, (width - await page.textWidth(content, text.size)) / 2, 0.1);
        }
    }
});

const WORDS = ['மேல்_இடது', 'மேல்_மையம்', 'மேல்_வலது', 'மைய_இடது', 'மையம்', 'மைய_வலது', 'கீழ்_இடது', 'கீழ்_மையம்',
               'கீழ்_வலது'];

webTest('all nine words of alignment, in a column of a given size', application(`
        அடுக்கி(
            ${WORDS.map(word => `நெடுவரிசை(சீரமைப்பு: ${word}, அகலம்: 300, உயரம்: 200)(உரை("${word}"))`).join(',\n            ')}
        )`), async page => {
    for (const [index, word] of WORDS.entries()) {
        const text = await page.text(word);
        near(text.x, (300 - await page.textWidth(word, text.size)) * (index % 3) / 2, 0.1);
        near(text.y, (200 - 16) * Math.floor(index / 3) / 2);
    }
});

webTest('a child wider than its column begins where the column begins', application(`
        உள்_இவெ(அளவு: 20)(
            நெடுவரிசை(சீரமைப்பு: மேல்_வலது, அகலம்: 100, உயரம்: 200)(${block(RED, 180, 40)}, ${block(BLUE, 60, 40)})
        )`), async page => {
    await assertAreas(page, [[RED, 20, 20, 180, 40], [BLUE, 20 + 40, 60, 60, 40]]);
});

webTest('a column hands the free height to its flexible children', application(`
        நெடுவரிசை(இடைவெளி: 10)(
            ${block(RED, 100, 40)},
            விரிவாக்கம்(${block(GREEN, 60, 30)}),
            ${block(BLUE, 80, 50)}
        )`), async page => {
    for (const height of [400, 300]) {
        await page.resize(500, height);
        // The content counts 40 + 30 + 50 + 2 x 10; a gap belongs to each child that isn't flexible.
        const free = height - (40 + 10) - (50 + 10);
        await assertAreas(page, [
            [RED, 0, 0, 100, 40],
            [GREEN, 0, 50, 60, 30],
            [BLUE, 0, 50 + free + 10, 80, 50],
        ]);
    }
});

webTest('வெற்றிடம் and நெகிழ்வு share the height of a column by their parts', application(`
        நெடுவரிசை(
            ${block(RED, 100, 40)},
            வெற்றிடம்(),
            ${block(GREEN, 100, 40)},
            நெகிழ்வு(பங்கு: 2, ${block(GREY, 100, 20)}),
            ${block(BLUE, 100, 20)}
        )`), async page => {
    const part = (400 - 100) / 3;
    await assertAreas(page, [
        [RED, 0, 0, 100, 40],
        [GREEN, 0, 40 + part, 100, 40],
        [GREY, 0, 80 + part, 100, 20],
        [BLUE, 0, 80 + 3 * part, 100, 20],
    ]);
});

webTest('இவெ leaves a gap of pixels or of a part of the column', application(`
        நெடுவரிசை(
            ${block(RED, 100, 40)},
            இவெ(உயரம்: 30),
            ${block(GREEN, 100, 40)},
            இவெ(உயரம்: 25%),
            ${block(BLUE, 100, 40)}
        )`), async page => {
    // At the top, so the content's height doesn't matter.
    await assertAreas(page, [[RED, 0, 0, 100, 40], [GREEN, 0, 70, 100, 40], [BLUE, 0, 110 + 100, 100, 40]]);
    await page.resize(500, 320);
    await assertAreas(page, [[BLUE, 0, 110 + 80, 100, 40]]);
});

webTest('a row centres its children along and across', application(`
        கிடைவரிசை(சீரமைப்பு: மையம், இடைவெளி: 10)(${block(RED, 100, 40)}, ${block(BLUE, 60, 80)})`), async page => {
    for (const [width, height] of [[500, 400], [360, 640]]) {
        await page.resize(width, height);
        // A gap stands behind each child, the last one too.
        const left = (width - (100 + 10 + 60 + 10)) / 2;
        await assertAreas(page, [
            [RED, left, (height - 40) / 2, 100, 40],
            [BLUE, left + 110, (height - 80) / 2, 60, 80],
        ]);
    }
});

webTest('a row imposes their share of the width on flexible children', application(`
        கிடைவரிசை(சீரமைப்பு: கீழ்_வலது)(
            ${block(RED, 100, 40)},
            விரிவாக்கம்(${block(GREEN, 30, 50)}),
            நெகிழ்வு(பங்கு: 2, ${block(BLUE, 30, 60)}),
            இவெ(அகலம்: 40)
        )`), async page => {
    for (const [width, height] of [[500, 400], [680, 300]]) {
        await page.resize(width, height);
        const part = (width - 100 - 40) / 3;
        await assertAreas(page, [
            [RED, 0, height - 40, 100, 40],
            [GREEN, 100, height - 50, part, 50],
            [BLUE, 100 + part, height - 60, 2 * part, 60],
        ]);
    }
});

webTest('a row of a given size starts from its own corner', application(`
        உள்_இவெ(அளவு: 20)(
            கிடைவரிசை(சீரமைப்பு: மைய_வலது, அகலம்: 300, உயரம்: 100)(${block(RED, 100, 40)}, வெற்றிடம்(), ${block(BLUE, 60, 80)})
        )`), async page => {
    await assertAreas(page, [[RED, 20, 20 + 30, 100, 40], [BLUE, 20 + 300 - 60, 20 + 10, 60, 80]]);
});

webTest('a stack lays its children over each other, shifted as they say', application(`
        அடுக்கி(சீரமைப்பு: மையம்)(
            ${block(RED, 200, 100)},
            ${block(BLUE, 50, 20, 'நகர்வு_X: 15, நகர்வு_Y: 7, ')}
        )`), async page => {
    await assertAreas(page, [[RED, 0, 0, 200, 100], [BLUE, 75 + 15, 40 + 7, 50, 20]]);
});

webTest('a wrap goes on in the next line where the window ends', application(`
        மடிப்பு(இடைவெளி: 10)(
            ${block(RED, 120, 40)}, ${block(GREEN, 120, 60)}, ${block(BLUE, 120, 40)}, ${block(GREY, 120, 40)}
        )`), async page => {
    await assertAreas(page, [[RED, 0, 0, 120, 40], [GREEN, 130, 0, 120, 60], [BLUE, 260, 0, 120, 40],
                             [GREY, 0, 70, 120, 40]]);
    await page.resize(300, 400);
    await assertAreas(page, [[RED, 0, 0, 120, 40], [GREEN, 130, 0, 120, 60], [BLUE, 0, 70, 120, 40],
                             [GREY, 130, 70, 120, 40]]);
    await page.resize(510, 400);
    await assertAreas(page, [[BLUE, 260, 0, 120, 40], [GREY, 390, 0, 120, 40]]);
});

webTest('உள்_இவெ pushes its child in and counts both sides in a column', application(`
        நெடுவரிசை(
            உள்_இவெ(அளவு: 25)(${block(RED, 100, 40)}),
            ${block(BLUE, 100, 40)}
        )`), async page => {
    await assertAreas(page, [[RED, 25, 25, 100, 40], [BLUE, 0, 90, 100, 40]]);
});

webTest('sizes in percent and by condition follow the window', application(`
        நெடுவரிசை(
            ${block(RED, '50%', 60)},
            ${block(GREEN, 'திரை_அகலம் பெரிது 450 ? 300 : 25%', 40)},
            ${block(BLUE, 100, '10%')}
        )`), async page => {
    for (const [width, height] of [[500, 400], [400, 640]]) {
        await page.resize(width, height);
        await assertAreas(page, [
            [RED, 0, 0, width / 2, 60],
            [GREEN, 0, 60, width > 450 ? 300 : width / 4, 40],
            [BLUE, 0, 100, 100, height / 10],
        ]);
    }
});

const MANY = 1200;
const lines = Array.from({ length: MANY }, (_, number) => `உரை("வரி ${number}")`);

webTest('a column takes more children than a function of WebAssembly could', application(`
        நெடுவரிசை(
            ${lines.join(',\n            ')}
        )`), async page => {
    // Texts count as 16 high.
    near((await page.text('வரி 0')).y, 0);
    near((await page.text('வரி 33')).y, 33 * 16);
    near((await page.text(`வரி ${MANY - 1}`)).y, (MANY - 1) * 16);
    assert.deepEqual(page.errors, []);
});

const DEEP = 200;

webTest('columns may stand far inside each other', application(`
        ${'நெடுவரிசை('.repeat(DEEP)}உரை("அடியில்")${')'.repeat(DEEP)}`), async page => {
    await page.text('அடியில்');
});
