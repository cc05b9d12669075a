// What lies over what in the second edition: a press, the pointer and what is seen belong to what was drawn last there.

import { second } from './harness/editions.js';
import { PHONE, assert, webTest } from './harness/index.js';

const RED = [255, 0, 0];
const GREEN = [0, 255, 0];
const BLUE = [0, 0, 255];

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

webTest('a finger presses the topmost widget alone', overlapping, { ...PHONE, viewport: { width: 500, height: 800 } },
        async page => {
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
