// Files of pictures as users have them: with any name, of any size, broken, empty, and of another kind than they say.

import { application, assert, near, webTest } from './harness/index.js';
import { gif, png, svg } from './harness/pictures.js';

const RED = [255, 0, 0];
const GREEN = [0, 255, 0];
const BLUE = [0, 0, 255];
const MAGENTA = [255, 0, 255];
const PAGE = [245, 245, 245];

const column = widgets => application(`\n        நெடுவரிசை(\n            ${widgets.join(',\n            ')}\n        )`);
const picture = path => `படம்(பாதை: "${path}", அகலம்: 80, உயரம்: 40)`;
const box = picturePath => `பெட்டி(அகலம்: 80, உயரம்: 40, பின்னணி: "#00FF00", பின்னணிபடம்: ${picturePath})`;

const NAME = "assets/நம்ம ஊர்'s “பூ” & (கொடி) #1+½ $HOME `x` 100%";
const named = {
    [`${NAME}.png`]: png(8, RED), [`${NAME}.svg`]: svg('#0000ff'), [`${NAME}.gif`]: gif(8, [MAGENTA], 50),
    // Nobody can name it in a source, but it is packed with all the others.
    'assets/"மேற்கோள்".png': png(8, RED),
};

webTest('a file may have any name', column([
    picture(`${NAME}.png`), picture(`${NAME}.svg`), picture(`${NAME}.gif`), box(`"${NAME}.png"`),
    `வட்டபடம்(படம்(பாதை: "${NAME}.png"), அகலம்: 40, உயரம்: 40)`,
]), { files: named }, async page => {
    assert.deepEqual(await page.pixels([[40, 20], [20, 60], [40, 100], [40, 140], [20, 180]]),
                     [RED, BLUE, MAGENTA, RED, RED]);
    assert.deepEqual(page.errors, []);
});

const HUGE = 8000;

webTest('a huge picture is shrunk into its box', column([picture('assets/பெரிது.png'), `உரை("கீழே")`]),
        { files: { 'assets/பெரிது.png': png(HUGE, RED, BLUE) } }, async page => {
    assert.deepEqual(await page.pixels([[2, 2], [36, 20], [44, 20], [78, 38]]), [RED, RED, BLUE, BLUE]);
    near((await page.text('கீழே')).y, 40);
    assert.deepEqual(page.errors, []);
});

const damaged = {
    'assets/வெற்று.png': '', 'assets/வெற்று.svg': '', 'assets/வெற்று.gif': '',
    'assets/உடைந்த.png': 'இது படம் அல்ல', 'assets/உடைந்த.svg': '<svg', 'assets/உடைந்த.gif': 'GIF89a',
    'assets/பாதி.png': png(64, RED).subarray(0, 60),
    'assets/ஆடை.png': svg('#0000ff'),
};

webTest('what can\'t be read leaves its place empty', column(Object.keys(damaged).map(picture)), { files: damaged },
        async page => {
    const places = Object.keys(damaged).map((_, index) => [40, 40 * index + 20]);
    assert.deepEqual(await page.pixels(places), places.map(() => PAGE));
    assert.deepEqual(page.errors, []);
});

webTest('a box or an avatar whose picture can\'t be read shows its colour', column([
    ...['வெற்று', 'உடைந்த', 'பாதி', 'இல்லை'].map(name => box(`"assets/${name}.png"`)),
    ...['வெற்று.png', 'உடைந்த.svg', 'இல்லை.gif'].map(
        name => `வட்டபடம்(படம்(பாதை: "assets/${name}"), அகலம்: 40, உயரம்: 40, பின்னணி: "#0000FF")`),
]), { files: damaged }, async page => {
    const middles = Array.from({ length: 7 }, (_, index) => [20, 40 * index + 20]);
    assert.deepEqual(await page.pixels(middles), [...Array(4).fill(GREEN), ...Array(3).fill(BLUE)]);
    assert.deepEqual(page.errors, []);
});

webTest('the ending tells the kind in small letters, and that of an animated picture in capitals too', column([
    picture('assets/அ.SVG'), picture('assets/அ.GIF'), picture('assets/அ.Gif'),
]), { files: { 'assets/அ.SVG': svg('#0000ff'), 'assets/அ.GIF': gif(8, [MAGENTA], 50), 'assets/அ.Gif': gif(8, [MAGENTA], 50) } },
        async page => {
    const elements = await page.elements('img');
    assert.deepEqual(elements.map(({ shown }) => shown), [true]);
    // The drawing library reads the first frame of the last one.
    assert.deepEqual(await page.pixels([[40, 20], [40, 60], [40, 100]]), [PAGE, MAGENTA, MAGENTA]);
});

const changing = application(`
        நெடுவரிசை(
            ${box('கோப்பு')}
            பொத்தான்(உரை: "நீலம்", பொ_பாணி(அகலம்: 80, உயரம்: 40), அழுத்தினால்: () => வை("assets/நீல மலர்.png"))
            பொத்தான்(உரை: "சிவப்பு", பொ_பாணி(அகலம்: 80, உயரம்: 40), அழுத்தினால்: () => வை("assets/சிவப்பு.png"))
            பொத்தான்(உரை: "இல்லை", பொ_பாணி(அகலம்: 80, உயரம்: 40), அழுத்தினால்: () => வை("assets/இல்லை.png"))
        )`, { logic: `
        கோப்பு = "assets/சிவப்பு.png"
        செயல் வை(பாதை):
            கோப்பு = பாதை` });

webTest('the picture of a box follows the variable that names it', changing,
        { files: { 'assets/சிவப்பு.png': png(8, RED), 'assets/நீல மலர்.png': png(8, BLUE) } }, async page => {
    assert.deepEqual(await page.area(RED), { x: 0, y: 0, width: 80, height: 40 });
    for (const [y, colour] of [[60, BLUE], [100, RED], [140, GREEN], [60, BLUE]]) {
        await page.click(40, y);
        assert.deepEqual(await page.area(colour), { x: 0, y: 0, width: 80, height: 40 });
    }
});
