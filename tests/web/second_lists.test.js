// Widgets that come once for each element of a list, and widgets that are there only while a condition holds.

import { faultCard, second } from './harness/editions.js';
import { assert, webTest } from './harness/index.js';

const tasks = second(`
        நெடுவரிசை(இடைவெளி: 10)(
            ஒவ்வொன்றும்(பட்டியல்: பணிகள், உருப்படி: பணி, சாவி: பணி["பெயர்"])(
                கிடைவரிசை(இடைவெளி: 20)(
                    தேர்வுபெட்டி(அகலம்: 24, உயரம்: 24),
                    உரை("" இணை இடம் இணை ". " இணை பணி["பெயர்"]),
                    பொத்தான்(உரை: "நீக்கு", பொ_பாணி(அகலம்: 100, உயரம்: 30), அழுத்தினால்: () => நீக்கு_பணி(பணி["பெயர்"]))
                )
            ),
            பொத்தான்(உரை: "சேர்", பொ_பாணி(அகலம்: 100, உயரம்: 30), அழுத்தினால்: சேர்_பணி),
            உரை("முடிவு", தெரிய: நீளம்(பணிகள்) பெரிது 2),
            உரை("அடி")
        )`, `
        பணிகள் = [{"பெயர்": "பால்"}, {"பெயர்": "அரிசி"}]
        செயல் சேர்_பணி():
            புதியவை = [{"பெயர்": "புதிது"}]
            ஒவ்வொன்றாக பணி இல் பணிகள்:
                புதியவை.சேர்(பணி)
            பணிகள் = புதியவை
        செயல் நீக்கு_பணி(பெயர்):
            மீதி = []
            ஒவ்வொன்றாக பணி இல் பணிகள்:
                எனில் பணி["பெயர்"] சமமில்லை பெயர்:
                    மீதி.சேர்(பணி)
            பணிகள் = மீதி`);

const yOf = async (page, text) => (await page.text(text)).y;

/// Whether the box at this height is ticked: its tick is white on blue.
const isTicked = async (page, y) => (await page.pixel(4, y + 4))[0] < 100;

webTest('each element of a list has its widgets, which come and go with it', tasks, async page => {
    const shown = async () => (await page.texts()).map(({ text }) => text).filter(text => text !== 'நீக்கு');
    assert.deepEqual(await shown(), ['0. பால்', '1. அரிசி', 'சேர்', 'அடி']);
    assert.equal(await yOf(page, '1. அரிசி') - await yOf(page, '0. பால்'), 40);

    // The state of a widget stays with its element, by the key, while others come before it.
    await page.click(12, 52);
    assert.ok(!await isTicked(page, 0) && await isTicked(page, 40));
    const end = await yOf(page, 'அடி');
    await page.click(50, 95);
    assert.deepEqual(await shown(), ['0. புதிது', '1. பால்', '2. அரிசி', 'சேர்', 'முடிவு', 'அடி']);
    assert.ok(!await isTicked(page, 0) && !await isTicked(page, 40) && await isTicked(page, 80));
    // The new element and the text that is there from three on, each with its gap.
    assert.equal(await yOf(page, 'அடி') - end, 40 + 26);

    // What a handler names is the element that it belongs to.
    await page.click(260, 55);
    assert.deepEqual(await shown(), ['0. புதிது', '1. அரிசி', 'சேர்', 'அடி']);
    assert.ok(!await isTicked(page, 0) && await isTicked(page, 40));
    assert.equal(await yOf(page, 'அடி'), end);
});

const nested = second(`
        நெடுவரிசை(
            உரை("தலை"),
            ஒவ்வொன்றும்(பட்டியல்: குழுக்கள், உருப்படி: குழு)(
                நெடுவரிசை(
                    உரை(குழு["பெயர்"]),
                    ஒவ்வொன்றும்(பட்டியல்: குழு["ஆட்கள்"], உருப்படி: ஆள்)(
                        உரை("" இணை குழு["பெயர்"] இணை "/" இணை ஆள், தெரிய: ஆள் சமமில்லை "மறை"),
                        உரைபொத்தான்("அழை", அழுத்தினால்: () => அழை(குழு["பெயர்"], ஆள்), தெரிய: ஆள் சமமில்லை "மறை")
                    )
                )
            ),
            கிடைவரிசை(
                ஒவ்வொன்றும்(பட்டியல்: ["அ", "ஆ", "இ"], உருப்படி: எழுத்து)(
                    பெட்டி(அகலம்: 40, உயரம்: 30, தெரிய: எழுத்து சமமில்லை "ஆ")(உரை(எழுத்து))
                ),
                உரை("முடிவு")
            ),
            உரை(அழைத்தவர்)
        )`, `
        குழுக்கள் = [{"பெயர்": "க", "ஆட்கள்": ["ப", "மறை", "த"]}, {"பெயர்": "ங", "ஆட்கள்": []}, {"பெயர்": "ச", "ஆட்கள்": ["ப"]}]
        அழைத்தவர் = "எவரும் இல்லை"
        செயல் அழை(குழு, ஆள்):
            அழைத்தவர் = குழு இணை ">" இணை ஆள்`);

webTest('lists inside of elements, and elements of which some aren\'t there', nested, async page => {
    const shown = (await page.texts()).map(({ text, x, y }) => [text, x, y]);
    assert.deepEqual(shown, [
        ['தலை', 0, 0],
        ['க', 0, 16], ['க/ப', 0, 32], ['அழை', 8, 62], ['க/த', 0, 88], ['அழை', 8, 118],
        ['ங', 0, 144],
        ['ச', 0, 160], ['ச/ப', 0, 176], ['அழை', 8, 206],
        ['அ', 0, 234], ['இ', 40, 234], ['முடிவு', 80, 232],
        ['எவரும் இல்லை', 0, 262],
    ]);
    // Each handler has the elements of both lists.
    await page.click(8, 126);
    await page.text('க>த');
    await page.click(8, 214);
    await page.text('ச>ப');
});

const long = second(`
        பட்டியல்_காட்சி(
            ஒவ்வொன்றும்(பட்டியல்: எண்கள், உருப்படி: எண்)(
                பெட்டி(அகலம்: 300, உயரம்: 40)(உரை("வரி " இணை எண்))
            )
        )`, `
        எண்கள் = []
        ஒவ்வொன்றாக எண் இல் வரம்பு(10000):
            எண்கள்.சேர்(எண்)`);

webTest('of ten thousand elements those are drawn that are in the window', long, async page => {
    const lines = async () => (await page.texts()).map(({ text }) => Number(text.slice('வரி '.length)));
    assert.deepEqual(await lines(), Array.from({ length: 13 }, (_, index) => index));
    await page.wheel(0, 4000);
    const drawn = await lines();
    assert.ok(drawn.includes(100) && drawn.includes(108), drawn.join());
    assert.ok(drawn.length < 20, drawn.join());
    // They stand where all those before them leave them.
    const { y } = await page.text('வரி 101');
    const { y: former } = await page.text('வரி 100');
    assert.equal(y - former, 40);
});

const layouts = second(`
        நெடுவரிசை(
            மடிப்பு(இடைவெளி: 0)(
                ஒவ்வொன்றும்(பட்டியல்: எண்கள், உருப்படி: எண்)(பெட்டி(அகலம்: 200, உயரம்: 30)(உரை("ம" இணை எண்)))
            ),
            கட்டம்_காட்சி(குறுக்கு_எண்ணிக்கை: 2, அகலம்: 400, உயரம்: 100, இவெ(அகலம்: 0, உயரம்: 0))(
                ஒவ்வொன்றும்(பட்டியல்: எண்கள், உருப்படி: எண்)(பெட்டி(அகலம்: 100, உயரம்: 30)(உரை("க" இணை எண்)))
            )
        )`, `
        எண்கள் = [1, 2, 3]`);

webTest('elements in wraps and grids', layouts, { viewport: { width: 500, height: 400 } }, async page => {
    const shown = Object.fromEntries((await page.texts()).map(({ text, x, y }) => [text, [x, y]]));
    assert.deepEqual(shown, { ம1: [0, 2], ம2: [200, 2], ம3: [0, 32], க1: [0, 152], க2: [200, 152], க3: [0, 182] });
});

const wrong = second(`
        நெடுவரிசை(
            பொத்தான்(உரை: "எண்", பொ_பாணி(அகலம்: 100, உயரம்: 40), அழுத்தினால்: () => எவை = 5),
            பொத்தான்(உரை: "பட்டியல்", பொ_பாணி(அகலம்: 100, உயரம்: 40), அழுத்தினால்: () => எவை = ["அ", "அ"]),
            நெடுவரிசை(ஒவ்வொன்றும்(பட்டியல்: எவை, உருப்படி: எது, சாவி: எது)(
                கிடைவரிசை(தேர்வுபெட்டி(அகலம்: 24, உயரம்: 24), உரை("உண்டு " இணை எது))
            )),
            உரை("மறைவது", தெரிய: நிலை),
            பொத்தான்(உரை: "நிலை", பொ_பாணி(அகலம்: 100, உயரம்: 40), அழுத்தினால்: () => நிலை = "ஆம்"),
            உரை("அடி")
        )`, `
        எவை = []
        நிலை = மெய்`);

webTest('what is no list, and no truth value, is told, and the rest of the page goes on', wrong, async page => {
    await page.text('மறைவது');
    await page.click(50, 20);
    await page.frames(5);
    assert.match(await faultCard(page), /பொழி-6\d\d[^]*வரி 9/);
    await page.text('அடி');
    // Two elements of one key are drawn, and share what the page remembers of them.
    await page.click(50, 60);
    await page.frames(5);
    assert.equal((await page.texts()).filter(({ text }) => text === 'உண்டு அ').length, 2);
    await page.text('அடி');
    // Of a condition that faults only its own widget is missing.
    await page.page.click('.pozhil-close');
    const { x, y } = await page.text('நிலை');
    await page.click(x, y + 4);
    await page.frames(5);
    const shown = (await page.texts()).map(({ text }) => text);
    assert.ok(shown.includes('அடி') && shown.includes('எண்') && !shown.includes('மறைவது'), shown.join());
});

const remembering = second(`
        நெடுவரிசை(
            ஒவ்வொன்றும்(பட்டியல்: [1, 2], உருப்படி: குழு)(
                ஒவ்வொன்றும்(பட்டியல்: ["அ", "ஆ"], உருப்படி: எது)(
                    தேர்வுபெட்டி(அகலம்: 24, உயரம்: 24)
                )
            ),
            ஒவ்வொன்றும்(பட்டியல்: [1, 2], உருப்படி: குழு)(
                அளவி(அகலம்: 200, உயரம்: 30, மாறியதால்: (புதியது) => கேட்டவை.சேர்(புதியது))
            ),
            தேர்வுபெட்டி(அகலம்: 24, உயரம்: 24, அடையாளம்: "ஏற்பு"),
            ஒவ்வொன்றும்(பட்டியல்: [1], உருப்படி: குழு)(
                தேர்வுபெட்டி(அகலம்: 24, உயரம்: 24, அடையாளம்: "விருப்பம்")
            ),
            கீழ்வரி(பட்டியல்: ["அ"], அடையாளம்: "ஏற்பு"),
            உரை("" இணை நீளம்(கேட்டவை) இணை " " இணை ஏற்பு இணை " " இணை விருப்பம்)
        )`, `
        கேட்டவை = []`);

webTest('what widgets of elements remember is their own, and told once', remembering, async page => {
    const ticked = async () => Promise.all([0, 24, 48, 72].map(y => isTicked(page, y)));
    await page.click(12, 36);
    assert.deepEqual(await ticked(), [false, true, false, false]);
    await page.click(12, 60);
    assert.deepEqual(await ticked(), [false, true, true, false]);

    await page.text('0 பொய் பொய்');
    // The first slider, held without being moved: one change.
    await page.moveTo(100, 110);
    await page.page.mouse.down();
    await page.frames(8);
    await page.page.mouse.up();
    await page.frames(2);
    await page.text('1 பொய் பொய்');
    // Boxes of the program hold their variables, in a list too.
    await page.click(12, 168);
    await page.text('1 மெய் பொய்');
    await page.click(12, 192);
    await page.text('1 மெய் மெய்');
});
