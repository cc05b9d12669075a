// Controls: what they show at first, what a press changes, and what they tell the program.

import { application, assert, near, webTest } from './harness/index.js';

const BLUE = [33, 150, 243];
const GREEN = [0, 255, 0];
const RED = [255, 0, 0];
const WHITE = [255, 255, 255];
const TRACK = [224, 224, 224];
const PAGE = [245, 245, 245];

/// A column, 16 pixels between its children.
const column = (...children) => `        நெடுவரிசை(இடைவெளி: 16)(\n            ${children.join(',\n            ')}\n        )`;
const button = handler =>
    `பொத்தான்(உரை: "", பொ_பாணி(பொபின்னணி: "#808080", அகலம்: 100, உயரம்: 40, வளைவு: 0), அழுத்தினால்: ${handler})`;
const counts = 'மாறியதால்: () => எண்ணம் = எண்ணம் கூட்டு 1';
const drawn = async page => (await page.texts()).map(({ text }) => text);

webTest('a checkbox is empty or ticked, and a press turns it over', application(column(
    'தேர்வுபெட்டி()',
    'தேர்வுபெட்டி(தேர்வுபெட்டிநிலை: மெய், தேர்வு_நிறம்: "#00FF00", தேர்வற்ற_நிறம்: "#FF0000", அகலம்: 40, உயரம்: 40)')),
        async page => {
    assert.equal(await page.area(BLUE), null);
    assert.deepEqual(await page.area(GREEN), { x: 0, y: 40, width: 40, height: 40 });
    // The tick goes down at 0.42 of the width, 0.68 of the height.
    assert.deepEqual(await page.pixel(17, 66), WHITE);

    await page.moveTo(12, 12);
    assert.equal(await page.cursor(), 'pointer');
    await page.click(12, 12);
    await page.click(38, 41);
    assert.deepEqual(await page.area(BLUE), { x: 0, y: 0, width: 24, height: 24 });
    assert.equal(await page.area(GREEN), null);
    assert.deepEqual(await page.pixel(20, 40), RED);
    assert.deepEqual(await page.pixel(20, 60), PAGE);

    await page.click(12, 12);
    assert.equal(await page.area(BLUE), null);
    // Without a label the box answers 15 pixels beyond its right edge, and no further.
    await page.click(38, 12);
    assert.notEqual(await page.area(BLUE), null);
    await page.click(41, 12);
    assert.notEqual(await page.area(BLUE), null);
    await page.moveTo(41, 12);
    assert.equal(await page.cursor(), 'default');
});

webTest('a checkbox with a label answers over the label too, and draws it beside the box', application(column(
    'தேர்வுபெட்டி(உரை("விதிகளை ஏற்கிறேன்"))')), async page => {
    const label = await page.text('விதிகளை ஏற்கிறேன்');
    near(label.x, 24 + 12);
    near(label.y, (24 - 16) / 2 + 2.5);
    const end = 24 + 15 + await page.textWidth('விதிகளை ஏற்கிறேன்', 16);
    await page.click(Math.floor(end) - 1, 12);
    assert.deepEqual(await page.area(BLUE), { x: 0, y: 0, width: 24, height: 24 });
    await page.click(Math.ceil(end) + 1, 12);
    assert.notEqual(await page.area(BLUE), null);
});

webTest('a checkbox with an id and the program see each other', application(column(
    'தேர்வுபெட்டி(அடையாளம்: "ஏற்பு")', button('() => ஏற்பு = மெய்'), button('() => ஏற்பு = பொய்'), 'உரை(ஏற்பு)')),
        async page => {
    assert.deepEqual((await drawn(page)).slice(-1), ['பொய்']);
    await page.click(12, 12);
    assert.deepEqual((await drawn(page)).slice(-1), ['மெய்']);
    await page.click(50, 120);
    assert.deepEqual((await drawn(page)).slice(-1), ['பொய்']);
    assert.equal(await page.area(BLUE), null);
    await page.click(50, 60);
    assert.deepEqual((await drawn(page)).slice(-1), ['மெய்']);
    await page.leave();
    assert.deepEqual(await page.pixel(3, 12), BLUE);
});

webTest('a checkbox shows the value that the program had given before', application(column(
    'தேர்வுபெட்டி(அடையாளம்: "ஏற்பு")'), { logic: '        ஏற்பு = மெய்' }), async page => {
    assert.deepEqual(await page.area(BLUE), { x: 0, y: 0, width: 24, height: 24 });
});

webTest('a checkbox shows its error below until it is pressed', application(column(
    'தேர்வுபெட்டி(அடையாளம்: "ஏற்பு")', button('சோதி()')), { logic: `
        செயல் சோதி():
            ஏற்பு.பிழைசெய்தி("ஏற்க வேண்டும்")` }), async page => {
    await page.click(50, 60);
    const message = await page.text('ஏற்க வேண்டும்');
    assert.deepEqual([message.x, message.y, message.size, message.colour], [0, 24 + 6, 12, '#f44336']);
    // The frame runs 2 pixels outside the box.
    assert.deepEqual(await page.pixel(12, 25), [244, 67, 54]);
    await page.click(12, 12);
    await page.leave();
    assert.deepEqual(await drawn(page), ['']);
    assert.deepEqual(await page.pixel(12, 28), PAGE);
});

webTest('radio buttons of a group follow the value of the group', application(column(
    'வட்டத்தேர்வு(உரை: "சிவப்பு", மதிப்பு: "சி", குழு_மதிப்பு: நிறம்தான், மாறியதால்: () => நிறம்தான் = "சி")',
    'வட்டத்தேர்வு(உரை: "பச்சை", மதிப்பு: "ப", குழு_மதிப்பு: நிறம்தான், தேர்வு_நிறம்: "#00FF00", மாறியதால்: () => நிறம்தான் = "ப")',
    'வட்டத்தேர்வு(உரை: "தடை", மதிப்பு: "த", குழு_மதிப்பு: நிறம்தான், செயலிழப்பு: மெய், மாறியதால்: () => நிறம்தான் = "த")',
    'வட்டத்தேர்வு(உரை: "தனி")',
    'உரை(நிறம்தான்)'), { logic: '        நிறம்தான் = "ப"' }), async page => {
    // Rows of 30 pixels and 16 between them; the dot has a radius of 5 about the middle of the 20.
    const dots = async () => page.pixels([[10, 10], [10, 56], [10, 102], [10, 148]]);
    assert.deepEqual(await dots(), [PAGE, GREEN, PAGE, PAGE]);
    const label = await page.text('சிவப்பு');
    assert.deepEqual([label.x, label.y, label.size, label.colour], [30, 10, 18, '#000000']);

    await page.click(10, 10);
    assert.equal((await drawn(page)).pop(), 'சி');
    assert.deepEqual(await dots(), [BLUE, PAGE, PAGE, PAGE]);
    await page.click(40, 102);
    assert.equal((await drawn(page)).pop(), 'சி');
    assert.equal(await page.cursor(), 'default');

    // One without a group is its own.
    await page.click(20, 148);
    assert.deepEqual(await dots(), [BLUE, PAGE, PAGE, BLUE]);
    await page.click(20, 148);
    assert.deepEqual(await dots(), [BLUE, PAGE, PAGE, PAGE]);
});

webTest('a switch jumps to the other side, and runs its handler once', application(column(
    `மாற்றி(${counts})`,
    'மாற்றி(ஆரம்ப_நிலை: மெய், இயங்கும்_நிறம்: "#00FF00")',
    `மாற்றி(செயலிழப்பு: மெய், ${counts})`,
    'உரை(எண்ணம்)'), { logic: '        எண்ணம் = 0' }), async page => {
    // Thumbs of 24 pixels, 2 from the edge.
    assert.deepEqual(await page.pixels([[14, 14], [40, 14], [34, 58], [8, 58], [14, 102], [40, 102]]),
                     [WHITE, TRACK, WHITE, GREEN, WHITE, TRACK]);
    await page.click(24, 14);
    await page.click(24, 102);
    assert.deepEqual(await drawn(page), ['1']);
    assert.deepEqual(await page.pixels([[34, 14], [8, 14], [14, 102]]), [WHITE, BLUE, WHITE]);
    // Five pixels around it count too.
    await page.click(52, 31);
    assert.deepEqual(await drawn(page), ['2']);
    assert.deepEqual(await page.pixel(14, 14), WHITE);
});

webTest('a slider follows the pointer, with a bubble that tells its value', application(column(
    'உரை(எண்ணம்)',
    `அளவி(குறைந்தபட்சம்: 10, அதிகபட்சம்: 60, மதிப்பு: 20, ${counts})`,
    `அளவி(செயலிழப்பு: மெய், மதிப்பு: 150, ${counts})`,
    'அளவி(குறைந்தபட்சம்: 5, அதிகபட்சம்: 5)'), { logic: '        எண்ணம் = 0' }), async page => {
    // The text counts 16; the track stands in the middle of the 20 that are drawn.
    const track = 16 + 16 + 10;
    const thumb = async y => {
        const row = await page.pixels(Array.from({ length: 230 }, (_, x) => [x, y + 4]));
        const white = row.flatMap((colour, x) => colour.every(value => value === 255) ? [x] : []);
        return (white[0] + white.at(-1) + 1) / 2;
    };
    near(await thumb(track), 200 * (20 - 10) / 50, 1);
    near(await thumb(track + 28 + 16), 200, 1);
    assert.deepEqual(await page.pixels([[20, track], [100, track]]), [BLUE, TRACK]);
    assert.deepEqual(await drawn(page), ['0']);
    // A range without any length has no place for its thumb.
    const pointless = track + 2 * (28 + 16);
    const row = await page.pixels(Array.from({ length: 230 }, (_, x) => [x, pointless]));
    assert.deepEqual([row[5], row[100], row[195], row[210]], [TRACK, TRACK, TRACK, PAGE]);

    await page.moveTo(40, track);
    assert.equal(await page.cursor(), 'pointer');
    await page.page.mouse.down();
    await page.moveTo(150, track + 5);
    const bubble = await page.text('47');
    assert.deepEqual([bubble.y, bubble.size, bubble.align], [track - 25, 12, 'center']);
    near(bubble.x, 150);
    near(await thumb(track), 150, 1);
    await page.moveTo(205, track);
    assert.ok((await drawn(page)).includes('60'));
    // Away from the track the drag has ended, though the button is still down.
    await page.moveTo(100, track + 60);
    assert.equal((await drawn(page)).length, 1);
    await page.page.mouse.up();
    await page.frames();
    assert.ok(Number((await drawn(page))[0]) >= 2);
    near(await thumb(track), 200, 1);

    const before = await drawn(page);
    await page.click(50, track + 28 + 16);
    assert.deepEqual(await drawn(page), before);
    near(await thumb(track + 28 + 16), 200, 1);
    assert.deepEqual(page.errors, []);
});

const TOWNS = 'பட்டியல்: ["மதுரை", "கோவை", "சென்னை"]';
const MENU = 44;

webTest('a dropdown opens, takes a choice, and closes by a press elsewhere', application(column(
    `கீழ்வரி(${TOWNS}, ${counts})`), { logic: '        எண்ணம் = 0' }), async page => {
    const closed = await page.text('தேர்ந்தெடு...');
    assert.deepEqual([closed.x, closed.y, closed.size, closed.colour], [15, 12, 16, '#333333']);
    assert.deepEqual(await drawn(page), ['தேர்ந்தெடு...']);
    assert.deepEqual(await page.pixel(150, 20), WHITE);

    await page.click(100, 20);
    assert.deepEqual(await drawn(page), ['தேர்ந்தெடு...', 'மதுரை', 'கோவை', 'சென்னை']);
    const item = await page.text('கோவை');
    assert.deepEqual([item.x, item.y, item.size, item.colour], [15, MENU + 40 + 20 - 8, 16, '#333333']);
    await page.moveTo(150, MENU + 60);
    assert.equal(await page.cursor(), 'pointer');
    assert.deepEqual(await page.pixels([[150, MENU + 60], [150, MENU + 20]]), [[240, 240, 240], WHITE]);

    await page.click(150, MENU + 60);
    assert.deepEqual(await drawn(page), ['கோவை']);
    await page.click(100, 20);
    const colours = (await page.texts()).map(({ text, colour }) => [text, colour]);
    assert.deepEqual(colours, [['கோவை', '#333333'], ['மதுரை', '#333333'], ['கோவை', '#2196f3'], ['சென்னை', '#333333']]);

    await page.click(400, 300);
    assert.deepEqual(await drawn(page), ['கோவை']);
    await page.click(100, 20);
    await page.click(100, 20);
    assert.deepEqual(await drawn(page), ['கோவை']);
});

webTest('a dropdown tells the program of a choice; disabled or empty it has nothing to tell', application(column(
    'உரை(எண்ணம்)', `கீழ்வரி(${TOWNS}, அகலம்: 120, உயரம்: 30, ${counts})`,
    `கீழ்வரி(செயலிழப்பு: மெய், ${TOWNS}, ${counts})`, 'கீழ்வரி()'), { logic: '        எண்ணம் = 0' }), async page => {
    await page.click(60, 32 + 15);
    await page.click(60, 32 + 30 + 4 + 20);
    assert.deepEqual(await drawn(page), ['1', 'மதுரை', 'தேர்ந்தெடு...', 'தேர்ந்தெடு...']);
    // 40 pixels count for each, whatever its height.
    await page.click(60, 32 + 56 + 20);
    assert.equal((await drawn(page)).length, 4);

    // The frame tells that the empty one is open: 2 pixels of blue about the edge, else 1.5 of grey.
    const empty = 32 + 112;
    const frame = () => page.pixels([[100, empty - 1], [100, empty]]);
    const [outside, inside] = await frame();
    near(outside[0], 200 * 0.75 + 245 * 0.25, 2);
    near(inside[0], 200 * 0.75 + 255 * 0.25, 2);
    await page.click(60, empty + 20);
    assert.deepEqual(await frame(), [BLUE, BLUE]);
    assert.deepEqual(await page.pixels([[100, empty + MENU - 3], [100, empty + MENU + 3]]), [PAGE, PAGE]);
    assert.equal((await drawn(page)).length, 4);
    await page.click(400, 20);
    assert.notDeepEqual((await frame())[0], BLUE);
    assert.deepEqual(page.errors, []);
});

webTest('the menu of a dropdown is not cut off by the box around it', application(`
        பெட்டி(அகலம்: 220, உயரம்: 50, கீழ்வரி(${TOWNS}))`), async page => {
    await page.click(150, 20);
    assert.deepEqual(await page.pixels([[150, MENU + 60], [150, MENU + 100], [150, MENU + 130]]), [WHITE, WHITE, PAGE]);
    await page.click(150, MENU + 100);
    assert.deepEqual(await drawn(page), ['சென்னை']);
});

webTest('a dropdown works inside a dialog', application(`
        எச்சரிக்கை(காட்சி_பெயர்: "காட்டு", நெடுவரிசை(கீழ்வரி(${TOWNS})))`, { logic: '        காட்டு = மெய்' }),
        async page => {
    // 400 by 280 in the middle of 500 by 400.
    const [left, top] = [50, 60];
    assert.equal((await page.text('தேர்ந்தெடு...')).x, left + 15);
    await page.click(left + 150, top + 20);
    assert.deepEqual(await drawn(page), ['தேர்ந்தெடு...', 'மதுரை', 'கோவை', 'சென்னை']);
    await page.click(left + 150, top + MENU + 20);
    assert.deepEqual(await drawn(page), ['மதுரை']);
    assert.deepEqual(page.errors, []);
});
