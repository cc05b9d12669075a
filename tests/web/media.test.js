// படம் and வட்டபடம்: pictures of every kind, packed with the page or missing.

import { application, assert, near, webTest } from './harness/index.js';
import { gif, jpeg, png, svg } from './harness/pictures.js';

const RED = [255, 0, 0];
const BLUE = [0, 0, 255];
const MAGENTA = [255, 0, 255];
const CYAN = [0, 255, 255];

const files = {
    'assets/இரு நிறம்.png': png(32, RED, BLUE),
    'assets/படம்.jpg': jpeg,
    'assets/வடிவம்.svg': svg('#ff8800'),
    'assets/அசைவு.gif': gif(50, [MAGENTA, CYAN], 500),
    'assets/உடைந்த.png': 'இது படம் அல்ல',
    'assets/வெற்று.png': '',
    "வெளியே'.png": png(8, [0, 170, 0]),
};

/// A disc fades out at its edge.
function nearDisc(area, { x, y, size }) {
    near(area.x, x, 1.5);
    near(area.y, y, 1.5);
    near(area.width, size, 2.5);
    near(area.height, size, 2.5);
}

const gallery = application(`
        நெடுவரிசை(இடைவெளி: 10)(
            படம்(பாதை: "assets/இரு நிறம்.png", அகலம்: 80, உயரம்: 40)
            படம்(பாதை: "assets/படம்.jpg", அகலம்: 80, உயரம்: 40)
            படம்(பாதை: "assets/வடிவம்.svg", அகலம்: 80, உயரம்: 40)
            படம்(பாதை: "assets/அசைவு.gif", அகலம்: 80, உயரம்: 40, வளைவு: 7)
            படம்(பாதை: "assets/இல்லை.gif", அகலம்: 80, உயரம்: 20)
            படம்(பாதை: "assets/இல்லை.png", அகலம்: 80, உயரம்: 20)
            படம்(பாதை: "assets/உடைந்த.png", அகலம்: 80, உயரம்: 20)
            படம்(பாதை: "assets/வெற்று.png", அகலம்: 80, உயரம்: 20)
            படம்(பாதை: "வெளியே'.png", அகலம்: 80, உயரம்: 20)
            பொத்தான்(உரை: "போ", பொ_பாணி(அகலம்: 100, உயரம்: 36), அழுத்தினால்(செல்க("ஆ")))
        )`, { header: 'பக்கம்: "அ"' }) + application('        உரை("அடுத்தது")', { header: 'பக்கம்: "ஆ"' });

webTest('packed pictures are stretched to their boxes', gallery, { files }, async page => {
    const pixels = await page.pixels([[20, 20], [60, 20], [20, 70], [60, 70], [20, 120], [60, 120], [40, 330]]);
    assert.deepEqual(pixels[0], RED);
    assert.deepEqual(pixels[1], BLUE);
    near(pixels[2][0], 255, 8);
    near(pixels[3][2], 255, 8);
    // The drawing keeps its proportions.
    assert.deepEqual(pixels[4], [255, 136, 0]);
    assert.deepEqual(pixels[5], [245, 245, 245]);
    assert.deepEqual(pixels[6], [0, 170, 0]);
});

webTest('missing, broken and empty pictures leave their place empty', gallery, { files }, async page => {
    for (const top of [200, 230, 260, 290]) {
        assert.deepEqual(await page.pixels([[1, top + 1], [40, top + 10], [79, top + 19]]),
                         Array(3).fill([245, 245, 245]), `${top}`);
    }
    assert.deepEqual(page.errors, []);
});

webTest('an animated picture starts anew when the pointer comes to it', gallery, { files }, async page => {
    const { id, x, y, width, height, ...look } = await page.element('img', 'position', 'borderRadius', 'objectFit',
                                                                    'pointerEvents', 'zIndex');
    assert.match(id, /^gif_\d+$/);
    assert.deepEqual([x, y, width, height], [0, 150, 80, 40]);
    assert.deepEqual([look.position, look.borderRadius, look.objectFit, look.pointerEvents, look.zIndex],
                     ['absolute', '7px', 'cover', 'none', '1500']);
    const source = () => page.page.evaluate(wanted => document.getElementById(wanted).src, id);
    const atRest = await source();
    assert.match(atRest, /^blob:/);

    await page.page.waitForTimeout(5500);
    assert.deepEqual(await page.pixel(40, 170), CYAN);
    await page.moveTo(85, 170);
    assert.notEqual(await source(), atRest);
    assert.deepEqual(await page.pixel(40, 170), MAGENTA);
    await page.leave();
    assert.equal(await source(), atRest);
    assert.deepEqual(await page.pixel(40, 170), MAGENTA, 'the address at rest still holds the picture');
});

webTest('an animated picture that isn\'t packed comes from the server, anew for the pointer', application(
    '        படம்(பாதை: "far.gif", அகலம்: 80, உயரம்: 40)'), { open: false }, async page => {
    page.files.set('far.gif', gif(50, [MAGENTA], 50));
    await page.open(page.address);
    const source = async () => (await page.page.evaluate(() => document.querySelector('img').src)).split('/').pop();
    assert.equal(await source(), 'far.gif');
    assert.deepEqual(await page.area(MAGENTA), { x: 0, y: 0, width: 80, height: 40 });
    await page.moveTo(89, 49);
    assert.match(await source(), /^far\.gif\?t=\d+$/);
    await page.moveTo(92, 20);
    assert.equal(await source(), 'far.gif');
    assert.deepEqual(page.errors, []);
});

webTest('an animated picture goes with its page', gallery, { files }, async page => {
    assert.equal((await page.element('img')).shown, true);
    await page.click(50, 355);
    await page.waitForText('அடுத்தது');
    assert.equal((await page.element('img')).shown, false);
});

webTest('an avatar is a disc with a picture, initials or a plain colour', application(`
        நெடுவரிசை(இடைவெளி: 20)(
            வட்டபடம்(படம்(பாதை: "assets/இரு நிறம்.png"), வளைவு: 30)
            வட்டபடம்(உரை("அ"), அகலம்: 40, பின்னணி: "#009688")
            வட்டபடம்()
        )`), { files }, async page => {
    // The column takes each for 48 high, since none says how high it is.
    assert.deepEqual(await page.pixels([[10, 30], [50, 30], [2, 2]]), [RED, BLUE, [245, 245, 245]]);
    nearDisc(await page.area([0, 0x96, 0x88]), { x: 0, y: 68, size: 40 });
    nearDisc(await page.area([200, 200, 200]), { x: 0, y: 68 + 48 + 20, size: 48 });
    const { x, y, size, colour, align } = await page.text('அ');
    assert.deepEqual([x, y, size, colour, align], [20, 68 + 20 + 2, 20, '#ffffff', 'center']);
});

webTest('a border lies around an avatar, and the height that its parent imposes counts', application(`
        அட்டை(அட்டை_பாணி(அகலம்: 200, உயரம்: 100, வளைவு: 0),
            வட்டபடம்(பின்னணி: "#0000FF", கரை_அளவு: 6, கரை_நிறம்: "#FF0000"))
        `), async page => {
    // As high as the card, it stands 15 from the card's corner; the border reaches 6 further out.
    const middle = 15 + 50;
    const pixels = await page.pixels([[18, middle], [112, middle], [12, middle], [118, middle], [7, middle], [122, middle]]);
    assert.deepEqual(pixels, [...Array(2).fill(BLUE), ...Array(2).fill(RED), ...Array(2).fill([255, 255, 255])]);
});
