// Controls of the second edition and the variables that they are bound to: either changes with the other.

import { faultCard, second } from './harness/editions.js';
import { assert, webTest } from './harness/index.js';

/// A column, 10 pixels between its children.
const column = (...children) => `        நெடுவரிசை(இடைவெளி: 10)(\n            ${children.join(',\n            ')}\n        )`;
const button = (name, handler) => `பொத்தான்(உரை: "${name}", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: ${handler})`;

const drawn = async page => (await page.texts()).map(({ text }) => text);
const pressFrom = async (page, name) => {
    const { x, y, size } = await page.text(name);
    await page.click(x, y + size / 2);
};

const TALL = { viewport: { width: 500, height: 900 } };
const BLUE = [33, 150, 243];

// 24, 28, 28, 30 and 30 high
const CONTROLS = { box: [12, 12], switch: [20, 48], slider: 82, red: [10, 120], green: [10, 160] };

const controls = second(column(
    'தேர்வுபெட்டி(மதிப்பு: ஒப்புதல், மாறியதால்: (புதியது) => சொல்("பெட்டி", புதியது))',
    'மாற்றி(மதிப்பு: ஒலி, மாறியதால்: மாற்றியபின்)',
    'அளவி(குறைந்தபட்சம்: 0, அதிகபட்சம்: 200, மதிப்பு: அளவு_எண், மாறியதால்: (புதியது) => சொல்("அளவி", புதியது))',
    'வட்டத்தேர்வு(உரை: "சிவப்பு", மதிப்பு: 1, குழு_மதிப்பு: படிவம்["நிறம்"], மாறியதால்: (புதியது) => சொல்("வட்டம்", புதியது))',
    'வட்டத்தேர்வு(உரை: "பச்சை", மதிப்பு: 2, குழு_மதிப்பு: படிவம்["நிறம்"])',
    'வட்டத்தேர்வு(உரை: "காலை", மதிப்பு: வேளை)',
    'வட்டத்தேர்வு(உரை: "மாலை", மதிப்பு: வேளை)',
    'உரை(ஒப்புதல் இணை " " இணை ஒலி இணை " " இணை அளவு_எண் இணை " " இணை படிவம்["நிறம்"] இணை " " இணை வேளை இணை " " இணை (நகரம் சமம் வெறுமை ? "-" : நகரம்))',
    'உரை(கடைசி)',
    button('வை', 'வை'), button('அழி', 'அழி'), button('தவறு', 'தவறு'),
    'கீழ்வரி(பட்டியல்: நகரங்கள், மதிப்பு: நகரம், மாறியதால்: (புதியது) => சொல்("கீழ்வரி", புதியது))'), `
        ஒப்புதல் = பொய்
        ஒலி = மெய்
        அளவு_எண் = 50
        படிவம் = {"நிறம்": 2}
        வேளை = "மாலை"
        நகரம் = "சேலம்"
        நகரங்கள் = ["மதுரை", "சேலம்", "தஞ்சை"]
        கடைசி = "-"
        செயல் சொல்(எது, புதியது):
            கடைசி = எது இணை ": " இணை புதியது
        செயல் மாற்றியபின்(புதியது):
            சொல்("மாற்றி", புதியது)
        செயல் வை():
            ஒப்புதல் = மெய்
            ஒலி = பொய்
            அளவு_எண் = 199.5
            படிவம்["நிறம்"] = 1
            வேளை = "காலை"
            நகரம் = "தஞ்சை"
        செயல் அழி():
            அளவு_எண் = 0
            வேளை = ""
            நகரம் = வெறுமை
            ஒப்புதல் = பொய்
        செயல் தவறு():
            ஒலி = "ஆம்"
            நகரம் = 5`);

webTest('controls show what the program holds, and assign what the user chooses', controls, TALL, async page => {
    const now = async () => (await drawn(page)).find(text => /^(மெய்|பொய்|ஆம்) |^\S+ ஆம் /.test(text));
    const last = async () => (await drawn(page)).find(text => text === '-' || text.includes(': '));
    const dots = async () => (await page.pixels([[10, 120], [10, 160], [10, 200], [10, 240]]))
        .map(pixel => pixel.join() === BLUE.join());
    assert.equal(await now(), 'பொய் மெய் 50 2 மாலை சேலம்');
    assert.deepEqual(await dots(), [false, true, false, true]);
    await page.text('சேலம்');
    assert.equal(await last(), '-');

    await page.click(...CONTROLS.box);
    assert.equal(await last(), 'பெட்டி: மெய்');
    await page.click(...CONTROLS.switch);
    assert.equal(await last(), 'மாற்றி: பொய்');
    await page.click(150, CONTROLS.slider);
    assert.equal(await last(), 'அளவி: 150');
    await page.click(...CONTROLS.red);
    assert.equal(await last(), 'வட்டம்: 1');
    await page.click(10, 200);
    assert.equal(await now(), 'மெய் பொய் 150 1 காலை சேலம்');
    assert.deepEqual(await dots(), [true, false, true, false]);
    await pressFrom(page, 'சேலம்');
    await pressFrom(page, 'மதுரை');
    assert.equal(await last(), 'கீழ்வரி: மதுரை');
    assert.equal(await now(), 'மெய் பொய் 150 1 காலை மதுரை');

    await pressFrom(page, 'அழி');
    assert.equal(await now(), 'பொய் பொய் 0 1  -');
    assert.deepEqual(await dots(), [true, false, false, false]);
    await page.text('தேர்ந்தெடு...');
    await pressFrom(page, 'வை');
    assert.equal(await now(), 'மெய் பொய் 199.5 1 காலை தஞ்சை');
    await page.text('தஞ்சை');
    assert.deepEqual(await page.pixel(3, 12), BLUE);
    // What the program sets is no change by the user.
    assert.equal(await last(), 'கீழ்வரி: மதுரை');
});

webTest('a value of the wrong kind is told, and all widgets stay', controls, TALL, async page => {
    const before = (await drawn(page)).length;
    await pressFrom(page, 'தவறு');
    await page.frames(3);
    assert.equal((await drawn(page)).length, before);
    const told = page.console.filter(line => line.includes('பொழி-690'));
    assert.equal(told.length, 2, page.console.join('\n'));
    assert.ok((await faultCard(page)).includes('பொழி-690'), await faultCard(page));
    // The user mends it.
    await page.page.click('.pozhil-close');
    await page.frames(3);
    await page.click(...CONTROLS.switch);
    assert.ok((await drawn(page)).includes('மாற்றி: பொய்'), (await drawn(page)).join());
});

const fields = second(column(
    'உரைபெட்டி(மதிப்பு: பெயர், குறிப்பு: "பெயர்", மாறியதால்: (புதியது) => சொல்("பெயர்", புதியது), உள்ளிட்டால்: () => சேர்()',
    'உரைபெட்டி(அடையாளம்: "அஞ்சல்", வகை: "மின்னஞ்சல்", குறிப்பு: "அஞ்சல்", உள்ளிட்டால்: (எழுதியது) => சொல்("உள்ளீடு", எழுதியது))',
    'உரைபெட்டி(மதிப்பு: கருத்து, குறிப்பு: "கருத்து", பலவரி: மெய், வகை: "எண்", மாறியதால்: (புதியது) => கருத்து = பெரியஎ(புதியது))',
    'கிடைவரிசை(கடவுமறை(மதிப்பு: கடவு, குறிப்பு: "கடவு", அகலம்: 200, உயரம்: 40), உரை("கடவு அருகே"))',
    'தேடல்_பட்டை(மதிப்பு: தேடல், குறிப்பு: "தேடு")',
    'உரைபெட்டி(மதிப்பு: எண்_உரை, வகை: "தொலைபேசி", குறிப்பு: "எண்", முடக்கு: நீளம்(பெயர்) சமம் 0)',
    'உரை(பெயர் இணை "|" இணை கருத்து இணை "|" இணை கடவு இணை "|" இணை தேடல் இணை "|" இணை எண்_உரை)',
    'உரை(கடைசி)',
    button('வை', 'வை')).replace('சேர்()', 'சேர்())'), `
        பெயர் = ""
        கருத்து = "a"
        கடவு = ""
        தேடல் = ""
        எண்_உரை = "12"
        கடைசி = "-"
        செயல் சொல்(எது, புதியது):
            கடைசி = எது இணை ": " இணை புதியது
        செயல் சேர்():
            கடைசி = "சேர்த்தது: " இணை பெயர்
            பெயர் = ""
        செயல் வை():
            பெயர் = "மலர்"
            கடவு = "மறை"
            தேடல் = "தேடு"`);

const NAME = 'input[placeholder="பெயர்"]';
const MAIL = '#அஞ்சல்';
const NOTE = 'textarea';
const SECRET = 'input[placeholder="கடவு"]';
const SEARCH = 'input[placeholder="தேடு"]';
const PHONE_NUMBER = 'input[placeholder="எண்"]';

webTest('fields and their variables hold the same text', fields, TALL, async page => {
    const now = async () => (await drawn(page)).find(text => text.includes('|'));
    const typed = selector => page.page.inputValue(selector);
    const type = async (selector, text) => {
        await page.page.focus(selector);
        await page.page.keyboard.insertText(text);
        await page.frames(3);
    };
    assert.equal(await now(), '|a|||12');
    assert.deepEqual([await typed(NAME), await typed(NOTE), await typed(PHONE_NUMBER)], ['', 'a', '12']);
    await type(NAME, 'கயல்');
    await page.text('பெயர்: கயல்');
    await type(SECRET, 'கமுக்கம்');
    await type(SEARCH, 'மீன்');
    assert.equal(await now(), 'கயல்|a|கமுக்கம்|மீன்|12');
    // What a handler makes of a text comes to stand in the field.
    await page.page.focus(NOTE);
    await page.page.keyboard.press('End');
    await page.page.keyboard.type('bc');
    await page.frames(4);
    assert.equal(await typed(NOTE), 'ABC');
    assert.equal(await now(), 'கயல்|ABC|கமுக்கம்|மீன்|12');

    await pressFrom(page, 'வை');
    await page.frames(3);
    assert.equal(await now(), 'மலர்|ABC|மறை|தேடு|12');
    assert.deepEqual([await typed(NAME), await typed(SECRET), await typed(SEARCH)], ['மலர்', 'மறை', 'தேடு']);
});

webTest('Enter in a field', fields, TALL, async page => {
    await page.page.fill(NAME, 'கயல்');
    await page.page.press(NAME, 'Enter');
    await page.frames(3);
    await page.text('சேர்த்தது: கயல்');
    assert.equal(await page.page.inputValue(NAME), '');
    await page.page.fill(MAIL, 'a@b.c');
    await page.frames(3);
    await page.text('சேர்த்தது: கயல்');
    await page.page.press(MAIL, 'Enter');
    await page.frames(3);
    await page.text('உள்ளீடு: a@b.c');
});

webTest('fields have the keyboards of their kinds, and hide what is secret', fields, TALL, async page => {
    const kinds = await page.page.evaluate(selectors => selectors.map(selector => {
        const { type, inputMode } = document.querySelector(selector);
        return [type, inputMode];
    }), [NAME, MAIL, NOTE, SECRET, SEARCH, PHONE_NUMBER]);
    // In a row the next one stands beside a field that hides its text.
    assert.equal((await page.text('கடவு அருகே')).x, 200);
    assert.deepEqual(kinds, [['text', ''], ['email', 'email'], ['textarea', 'decimal'], ['password', ''], ['text', ''],
                             ['tel', 'tel']]);
});

webTest('texts are pasted into fields', fields, TALL, async page => {
    await page.page.fill(NAME, 'கயல்');
    await page.page.focus(NAME);
    await page.page.keyboard.press('Control+A');
    await page.page.keyboard.press('Control+C');
    await page.page.focus(SECRET);
    await page.page.keyboard.press('Control+V');
    await page.frames(3);
    assert.equal(await page.page.inputValue(SECRET), 'கயல்');
});

webTest('a field is disabled while its condition is true', fields, TALL, async page => {
    assert.equal(await page.page.isDisabled(PHONE_NUMBER), true);
    await page.page.fill(NAME, 'க');
    await page.frames(3);
    assert.equal(await page.page.isDisabled(PHONE_NUMBER), false);
    await page.page.fill(NAME, '');
    await page.frames(3);
    assert.equal(await page.page.isDisabled(PHONE_NUMBER), true);
});

const bars = second(column(
    `தத்தல்(மதிப்பு: தாவல், மாறியதால்: (புதியது) => சொல்("தாவல்", புதியது))(
        தத்தல்_உருப்படி(உரை: "ஒன்று"), தத்தல்_உருப்படி(உரை: "இரண்டு", அழுத்தினால்: () => அழுத்தியது = "இரண்டு"),
        தத்தல்_உருப்படி(உரை: "மூன்று"))`,
    'உரை(தாவல் இணை "|" இணை கீழே இணை "|" இணை அழுத்தியது)',
    'உரை(கடைசி)',
    button('வை', 'வை'),
    `அடிப்பகுதி(மதிப்பு: கீழே, மாறியதால்: (புதியது) => சொல்("கீழே", புதியது), அழுத்தினால்: () => அழுத்தியது = அழுத்தியது இணை "*")(
        அடி_உருப்படி(உரை("முகப்பு")), அடி_உருப்படி(உரை("தேடல்"), அழுத்தினால்(
            அழுத்தியது = "தேடல்"
        )))`), `
        தாவல் = 2
        கீழே = 0
        அழுத்தியது = ""
        கடைசி = "-"
        செயல் சொல்(எது, புதியது):
            கடைசி = எது இணை ": " இணை புதியது
        செயல் வை():
            தாவல் = 0
            கீழே = 1`);

webTest('bars hold the number of their item, and do what their items do', bars, TALL, async page => {
    const now = async () => (await drawn(page)).find(text => text.includes('|'));
    assert.equal(await now(), '2|0|');
    await page.click(250, 25);
    assert.equal(await now(), '1|0|இரண்டு');
    await page.text('தாவல்: 1');
    await page.click(375, 870);
    assert.equal(await now(), '1|1|தேடல்');
    await page.text('கீழே: 1');
    await page.click(125, 870);
    assert.equal(await now(), '1|0|தேடல்*');
    await pressFrom(page, 'வை');
    assert.equal(await now(), '0|1|தேடல்*');
    assert.equal((await page.text('தேடல்')).colour, '#2196f3');
    assert.equal((await page.text('ஒன்று')).size, 15);
    await page.text('கீழே: 0');
});

const disabled = second(column(
    button('மாற்று', '() => பூட்டு = இல்லை பூட்டு'),
    'பொத்தான்(உரை: "சேமி", பொ_பாணி(அகலம்: 200, உயரம்: 40), முடக்கு: பூட்டு, அழுத்தினால்: () => எண் = எண் கூட்டு 1)',
    'தேர்வுபெட்டி(மதிப்பு: ஒப்புதல், முடக்கு: பூட்டு)',
    'மாற்றி(மதிப்பு: ஒப்புதல், முடக்கு: பூட்டு)',
    'அளவி(மதிப்பு: அளவு_எண், முடக்கு: பூட்டு)',
    'பெட்டி(அகலம்: 200, உயரம்: 40, பெட்டிபின்னணி: "#00FF00", முடக்கு: பூட்டு, அழுத்தினால்: () => எண் = எண் கூட்டு 10)(உரை("பெட்டி"))',
    `உரைபொத்தான்(உரை: "இணைப்பு", முடக்கு: பூட்டு, அழுத்தினால்(
        எண் = எண் கூட்டு 90
        எண் = எண் கூட்டு 10
    ))`,
    'வட்டத்தேர்வு(உரை: "காலை", மதிப்பு: வேளை, முடக்கு: பூட்டு)',
    'உரை(எண் இணை " " இணை ஒப்புதல் இணை " " இணை அளவு_எண் இணை " " இணை வேளை)',
    'கீழ்வரி(பட்டியல்: ["மதுரை"], முடக்கு: பூட்டு)'), `
        பூட்டு = மெய்
        எண் = 0
        ஒப்புதல் = பொய்
        அளவு_எண் = 0
        வேளை = "-"`);

// 40, 40, 24, 28, 28, 40, 40 and 30 high, 10 between them
const DISABLED = [[100, 70], [12, 112], [20, 148], [150, 186], [100, 230], [8, 280], [10, 320]];

webTest('what is disabled is pale and answers no press, until it is enabled again', disabled, TALL, async page => {
    const now = async () => (await drawn(page)).find(text => text.endsWith(' -') || text.endsWith(' காலை'));
    const pressAll = async () => {
        for (const place of DISABLED) {
            await page.click(...place);
        }
    };
    await page.leave();
    const pale = await page.pixels([[20, 80], [20, 240]]);
    await pressAll();
    assert.equal(await page.cursor(), 'default');
    assert.equal(await now(), '0 பொய் 0 -');
    await pressFrom(page, 'தேர்ந்தெடு...');
    assert.ok(!(await drawn(page)).includes('மதுரை'));

    await pressFrom(page, 'மாற்று');
    await page.leave();
    const strong = await page.pixels([[20, 80], [20, 240]]);
    assert.deepEqual(strong, [BLUE, [0, 255, 0]]);
    // Half of it is the page behind.
    pale.forEach((colour, place) => colour.forEach((part, index) => {
        const half = (strong[place][index] + 245) / 2;
        assert.ok(Math.abs(part - half) <= 40 && part !== strong[place][index], `${pale} ${strong}`);
    }));
    await pressAll();
    // The box to tick and the switch hold the same.
    assert.equal(await now(), '111 பொய் 75 காலை');
});

webTest('readers are told what is disabled, and can press none of it', disabled, TALL, async page => {
    await page.frames(10);
    const told = () => page.page.evaluate(() => [...document.querySelectorAll('.pozhil-widget')].map(element => [
        element.getAttribute('role'), element.getAttribute('aria-disabled') === 'true', element.hasAttribute('tabindex')]));
    assert.deepEqual(await told(), [['button', false, true], ['button', true, false], ['checkbox', true, false],
                                    ['switch', true, false], ['slider', true, false], ['button', true, false],
                                    ['button', true, false], ['radio', true, false], ['button', true, false]]);
    await pressFrom(page, 'மாற்று');
    await page.frames(10);
    assert.ok((await told()).every(([, isDisabled, isReached]) => !isDisabled && isReached), JSON.stringify(await told()));
});

const elements = second(column(
    `ஒவ்வொன்றும்(பட்டியல்: பணிகள், உருப்படி: பணி)(
        தேர்வுபெட்டி(மதிப்பு: பணிகள்[இடம்]["முடிந்தது"]),
        உரைபெட்டி(மதிப்பு: பணிகள்[இடம்]["பெயர்"], மாறியதால்: (புதியது) => கடைசி = பணி["பெயர்"] இணை " → " இணை புதியது)
    )`,
    'உரை(பணிகள்[0]["முடிந்தது"] இணை " " இணை பணிகள்[1]["முடிந்தது"])',
    'உரை(கடைசி)'), `
        பணிகள் = [{"பெயர்": "எழுது", "முடிந்தது": பொய்}, {"பெயர்": "படி", "முடிந்தது": மெய்}]
        கடைசி = "-"`);

webTest('controls of the elements of a list change their elements', elements, TALL, async page => {
    await page.text('பொய் மெய்');
    await page.click(12, 12);
    await page.text('மெய் மெய்');
    await page.click(12, 12 + 24 + 10 + 60 + 10);
    await page.text('மெய் பொய்');
    const typed = () => page.page.evaluate(() => [...document.querySelectorAll('.pozhil-input')].map(({ value }) => value));
    assert.deepEqual(await typed(), ['எழுது', 'படி']);
    await page.page.locator('.pozhil-input').nth(1).fill('பாடு');
    await page.frames(3);
    await page.text('படி → பாடு');
    assert.deepEqual(await typed(), ['எழுது', 'பாடு']);
});
