// Applications of the second edition: what only it does. That they look as in the first is told by the slow tests.

import { faultCard, second } from './harness/editions.js';
import { assert, webTest } from './harness/index.js';

const counting = second(`
        நெடுவரிசை(
            பொத்தான்(உரை: "கூட்டு", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => எண்ணிக்கை = எண்ணிக்கை கூட்டு 1),
            பொத்தான்(உரை: "இருமடங்கு", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: இருமடங்கு),
            பொத்தான்(உரை: "சுழியம்", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்(
                எண்ணிக்கை = 0
                எனில் எண்ணிக்கை சமம் 0:
                    நிலை = "சுழியமானது"
            )),
            உரை("எண்: " இணை எண்ணிக்கை),
            உரை(நிலை)
        )`, `
        எண்ணிக்கை = 0
        நிலை = "தொடக்கம்"
        செயல் இருமடங்கு():
            எண்ணிக்கை = எண்ணிக்கை பெருக்கு 2
            நிலை = "இருமடங்கானது"`);

webTest('handlers are function values, names of functions, and statements', counting, async page => {
    await page.text('எண்: 0');
    await page.click(100, 20);
    await page.click(100, 20);
    await page.text('எண்: 2');
    await page.click(100, 60);
    await page.text('எண்: 4');
    await page.text('இருமடங்கானது');
    await page.click(100, 100);
    await page.text('எண்: 0');
    await page.text('சுழியமானது');
});

const failing = second(`
        நெடுவரிசை(
            பொத்தான்(உரை: "தவறு", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => கணக்கிடு(0)),
            பொத்தான்(உரை: "சரி", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => கணக்கிடு(4)),
            உரை("விடை: " இணை விடை)
        )`, `
        விடை = 1
        செயல் கணக்கிடு(எண்):
            விடை = 8 வகு எண்`);

webTest('a fault of a handler stands in a card with its line and the way there, and the page goes on', failing,
        async page => {
    await page.click(100, 20);
    const told = await faultCard(page);
    for (const part of ['பொழி-', 'வரி 16', 'விடை = 8 வகு எண்', "'கணக்கிடு' அழைக்கப்பட்ட இடம்:", 'வரி 7']) {
        assert.ok(told.includes(part), `${part} in ${told}`);
    }
    assert.ok(page.console.some(line => line.includes('பொழி-')), page.console.join('\n'));
    await page.text('விடை: 1');
    await page.page.click('.pozhil-close');
    assert.equal(await faultCard(page), '');
    await page.click(100, 60);
    await page.text('விடை: 2');
    // The same fault is told anew.
    await page.click(100, 20);
    assert.ok((await faultCard(page)).includes('வரி 16'));
});

webTest('a fault of a text leaves that text out, and is told once', second(`
        நெடுவரிசை(
            உரை("முன்"),
            உரை(பட்டியல்[3]),
            உரை("பின்")
        )`, `
        பட்டியல் = [1, 2]`), async page => {
    await page.frames(5);
    assert.deepEqual((await page.texts()).map(({ text }) => text), ['முன்', 'பின்']);
    assert.ok((await faultCard(page)).includes('வரி 8'), await faultCard(page));
    assert.equal(page.console.filter(line => line.includes('வரி 8')).length, 1);
});

webTest('fields, boxes to tick, messages and dialogs are known to the program', second(`
        நெடுவரிசை(
            உரைபெட்டி(அடையாளம்: "பெயர்"),
            தேர்வுபெட்டி(அடையாளம்: "ஒப்புதல்"),
            பொத்தான்(உரை: "சரி", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => சோதி()),
            உரை(விடை),
            எச்சரிக்கை(காட்சி_பெயர்: "திறந்தது", உரை("பெட்டியில்"))
        )`, `
        விடை = "-"
        செயல் சோதி():
            எனில் பெயர்.வெறுமை:
                பெயர்.பிழைசெய்தி("பெயர் தேவை")
            இல்லைஎனில் ஒப்புதல்:
                திறந்தது = மெய்
            இல்லை:
                விடை = பெயர்.நீளம் இணை " " இணை பெயர்.உரைதரவு`), async page => {
    const pressFrom = async text => {
        const { y, size } = await page.text(text);
        await page.click(100, y + size / 2);
    };
    await pressFrom('சரி');
    await page.text('பெயர் தேவை');
    await page.page.fill('#பெயர்', 'அம்மா');
    await pressFrom('சரி');
    await page.text('3 அம்மா');
    const { y } = await page.element('#பெயர்');
    await page.click(10, y + 62);
    await pressFrom('சரி');
    await page.text('பெட்டியில்');
});

webTest('a press shows a message, whose text is made then', second(`
        பொத்தான்(உரை: "சேமி", பொ_பாணி(அகலம்: 200, உயரம்: 40),
                 அழுத்தினால்: அறிவிப்பு_பட்டை(செய்தி: "சேமித்தது " இணை எண், பின்னணி: "#15803D"))`, `
        எண் = 7`), async page => {
    await page.click(100, 20);
    await page.waitForText('சேமித்தது 7');
});

const deep = second(`
        நெடுவரிசை(
            பொத்தான்(உரை: "ஆழம்", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => எண் = ஆழம்(1)),
            பொத்தான்(உரை: "கூட்டு", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => எண் = எண் கூட்டு 1),
            உரை("எண் " இணை எண்)
        )`, `
        எண் = 0
        செயல் ஆழம்(அ):
            திரும்பு ஆழம்(அ கூட்டு 1) கூட்டு 1`);

webTest('calls without end are told, and the page goes on', deep, async page => {
    await page.click(100, 20);
    await page.frames(5);
    assert.match(await faultCard(page), /பொழி-6\d\d/);
    await page.click(100, 60);
    await page.text('எண் 1');
});

webTest('names of pages and variables do not get out of their comments', second(`
        நெடுவரிசை(
            பக்கம்(பக்கம்: "இரண்டு\\nint x;")(உரை("உள்ளே")),
            உரை("வெளியே")
        )`), async page => {
    await page.text('வெளியே');
});
