// Published pages are those that the compiler serves; what publishing leaves out of files, nobody sees.

import { faultCard, second } from '../harness/editions.js';
import { application, assert, webTest } from '../harness/index.js';
import * as examples from '../harness/examples.js';
import { DESKTOP, PHONE, expectInside, takeOrder } from '../harness/tours.js';

const MEASURED = 'assets/font/Coiny-Regular.ttf';
const DRAWN = 'assets/font/Tamil-Regular.ttf';

const files = examples.files();

// Bold and light, with letters that stand near to each other, go below the line, or aren't in the font.
const LABELS = ['வணக்கம்', 'AVATo Wy', 'கொடுங்கோல்', 'ஸ்ரீ ksha', '…!', ' ', '漢字', 'ஔடதம் 12,50'];
const buttons = LABELS.flatMap((label, i) => ['400', '20', '700'].map(weight =>
    `பொத்தான்(உரை("${label}", உரைபாணி(அளவு: ${14 + 7 * i}, தடிமன்: "${weight}")), அழுத்தினால்: () => கூட்டு_செய்())`));
const source = application(`
        மடிப்பு(இடைவெளி: 4)(
            ${[...buttons, 'உரைபொத்தான்("மேலும்", அழுத்தினால்: கூட்டு_செய்())'].join(',\n            ')}
        )`, { logic: `
        எண்ணிக்கை = 0
        செயல் கூட்டு_செய்():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1` });
const viewport = { width: 1000, height: 900 };

/// Where the texts stand, which tells how the program has measured them, and all that is seen.
async function look(page) {
    await page.text('மேலும்');
    await page.page.evaluate(() => document.fonts.ready);
    await page.frames(2);
    return { texts: await page.texts(), picture: (await page.page.screenshot()).toString('base64') };
}

let served;

webTest('a page that the compiler serves', source, { files, viewport }, async page => {
    served = await look(page);
    assert.ok(new Set(served.texts.map(({ x }) => x)).size > LABELS.length);
});

webTest('published, it measures and draws the same', source, { files, viewport, published: true }, async page => {
    const { texts, picture } = await look(page);
    assert.deepEqual(texts, served.texts);
    assert.ok(picture === served.picture, 'the pictures differ');
    const sizes = await page.page.evaluate(
        paths => paths.map(path => FS.readFile(path).length), [MEASURED, DRAWN]);
    assert.ok(sizes[0] < files[MEASURED].length / 4, `${sizes[0]} bytes`);
    assert.equal(sizes[1], files[DRAWN].length);
});

webTest('no browser draws with a font that is only measured', source, { files, viewport, published: true },
        async page => {
    const [measured, whole] = await page.page.evaluate(paths => Promise.all(paths.map(
        path => new FontFace('any', FS.readFile(path)).load().then(() => 'drawn', () => 'refused'))), [MEASURED, DRAWN]);
    assert.deepEqual([measured, whole], ['refused', 'drawn']);
});

webTest('published dashboard, phone', examples.source('கடை_நிலவரம்'), { files, viewport: PHONE, published: true },
        takeOrder);

webTest('published dashboard, desktop', examples.source('கடை_நிலவரம்'), { files, viewport: DESKTOP, published: true },
        async page => {
    await page.waitForText('கடை நிலவரம்');
    await expectInside(page, DESKTOP);
    assert.deepEqual(page.errors, []);
});

// In the published page nobody reads the source.
const REMARK = 'தனிப்பட்ட குறிப்பு';
const failing = second(`
        உரைபொத்தான்("தவறு", அழுத்தினால்: () => அச்சிடு(எண்கள்[7]))`, `
        ஃ ${REMARK}
        எண்கள் = [1]`);

for (const published of [false, true]) {
    const name = published ? 'published, faults are told by file and line, and variables are not kept'
        : 'served, faults show their line, and variables are kept';
    webTest(name, failing, { published }, async page => {
        const { x, y } = await page.text('தவறு');
        await page.click(x + 5, y + 5);
        const card = await faultCard(page);
        assert.match(card, /பொழி-642/);
        assert.match(card, /வரி 6/);
        assert.equal(card.includes('எண்கள்[7]'), !published);
        const wasm = await page.page.evaluate(() => fetch('index.wasm').then(answer => answer.text()));
        assert.equal(wasm.includes(REMARK), !published);
        // What keeps the variables over a rebuild.
        const keepers = await page.page.evaluate(() => [
            typeof pozhilState, typeof Module._pozhil_take_state, typeof Module._pozhil_kept_state]);
        assert.deepEqual(keepers.map(kind => kind === 'undefined'), [published, published, published]);
    });
}
