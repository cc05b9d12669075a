// Animations: what starts them, how they run back, and what they move.

import { application, assert, near, webTest } from '../harness/index.js';

const RED = [255, 0, 0];
const BLUE = [0, 0, 255];

/// A red button of 200 by 80 in the middle of the window.
function animatedButton(animation) {
    return application(`
        நெடுவரிசை(சீரமைப்பு: மையம்)(
            பொத்தான்(உரை: "அ", பொ_பாணி(பொபின்னணி: "#FF0000", அகலம்: 200, உயரம்: 80, வளைவு: 0), அசைவூட்டம்(${animation}))
        )`);
}

const REST = { x: 150, y: 160, width: 200, height: 80 };

/// Colour and texts of each of the next frames.
function watch(page, frames) {
    return page.page.evaluate(count => new Promise(resolve => {
        const seen = [];
        let last = window.recorded.frames;
        const look = () => {
            if (window.recorded.frames !== last) {
                last = window.recorded.frames;
                seen.push({ frame: last, texts: window.recorded.texts });
            }
            if (seen.length < count) {
                requestAnimationFrame(look);
            } else {
                resolve(seen);
            }
        };
        requestAnimationFrame(look);
    }), frames);
}

webTest('under the pointer a button grows about its centre, and shrinks back when it leaves',
        animatedButton('நிலைமை: "சுட்டி_மேல்", காலம்: 1000, வகை: "சாதாரண", இலக்கு(விரிவு: 1.5)'), async page => {
    assert.deepEqual(await page.area(RED), REST);
    const between = ({ x, y, width, height }) => {
        assert.ok(width > 200 && width < 300, `${width} wide`);
        near(height / width, 80 / 200, 0.02);
        near(x + width / 2, 250, 1.5);
        near(y + height / 2, 200, 1.5);
    };
    await page.moveTo(250, 165);
    between(await page.area(RED));
    await page.frames(60);
    const grown = { x: 100, y: 140, width: 300, height: 120 };
    assert.deepEqual(await page.area(RED), grown);
    await page.frames(10);
    assert.deepEqual(await page.area(RED), grown);
    await page.leave();
    between(await page.area(RED));
    await page.frames(60);
    assert.deepEqual(await page.area(RED), REST);
});

webTest('each target moves its side of a button, at once without a duration', animatedButton(
    'நிலைமை: "hover", காலம்: 0, இலக்கு(அகலம்: 300, உயரம்: 100, கி_நகர்வு: 40, நெ_நகர்வு: 30)'), async page => {
    assert.deepEqual(await page.area(RED), REST);
    await page.moveTo(250, 200);
    assert.deepEqual(await page.area(RED), { x: 190, y: 190, width: 300, height: 100 });
    await page.leave();
    assert.deepEqual(await page.area(RED), REST);
});

webTest('a radius is a target too', animatedButton('நிலைமை: "hover", காலம்: 0, இலக்கு(வளைவு: 40)'), async page => {
    const corner = [153, 163];
    assert.deepEqual(await page.pixel(...corner), RED);
    await page.moveTo(250, 200);
    assert.notDeepEqual(await page.pixel(...corner), RED);
});

webTest('a button fades to its target colour and back', animatedButton(
    'நிலைமை: "மவுஸ்_மேலே", காலம்: 1000, வகை: "சாதாரண", இலக்கு(பொபின்னணி: "#0000FF")'), async page => {
    assert.deepEqual(await page.area(RED), REST);
    await page.moveTo(250, 165);
    const [red, , blue] = await page.pixel(160, 165);
    assert.ok(red > 0 && red < 255 && blue > 0 && blue < 255, `${red}, ${blue}`);
    near(red + blue, 255, 3);
    await page.frames(60);
    assert.deepEqual(await page.area(BLUE), REST);
    await page.leave();
    await page.frames(60);
    assert.deepEqual(await page.area(RED), REST);
});

webTest('a box is animated like a button', application(`
        நெடுவரிசை(சீரமைப்பு: மையம்)(
            பெட்டி(அகலம்: 200, உயரம்: 80, பெட்டி_பாணி(பெட்டிபின்னணி: "#FF0000"),
                அசைவூட்டம்(நிலைமை: "hover", காலம்: 0, இலக்கு(விரிவு: 1.5, பெட்டிபின்னணி: "#0000FF")))
        )`), async page => {
    assert.deepEqual(await page.area(RED), REST);
    await page.moveTo(250, 200);
    assert.deepEqual(await page.area(BLUE), { x: 100, y: 140, width: 300, height: 120 });
    assert.equal(await page.cursor(), 'pointer');
    await page.leave();
    assert.deepEqual(await page.area(RED), REST);
});

webTest('the automatic trigger waits until the widget is in view, and stays', application(`
        நெடுவரிசை(இடைவெளி: 0)(
            பெட்டி(அகலம்: 100, உயரம்: 360, பெட்டி_பாணி(பெட்டிபின்னணி: "#EEEEEE")),
            பொத்தான்(உரை: "அ", பொ_பாணி(பொபின்னணி: "#FF0000", அகலம்: 200, உயரம்: 30, வளைவு: 0),
                அசைவூட்டம்(நிலைமை: "தானாக", காலம்: 300, வகை: "சாதாரண", இலக்கு(அகலம்: 400)))
        )`), async page => {
    await page.frames(30);
    const waiting = await page.area(RED);
    assert.ok(waiting.y > 350, `at ${waiting.y}`);
    assert.equal(waiting.width, 200);
    await page.resize(500, 500);
    await page.frames(30);
    assert.equal((await page.area(RED)).width, 400);
    await page.resize(500, 400);
    await page.frames(30);
    assert.equal((await page.area(RED)).width, 400);
});

webTest('what has been in view once goes on where nobody sees it', application(`
        நெடுவரிசை(உருளும்பட்டை: மெய்)(
            பெட்டி(அகலம்: 100, உயரம்: 600),
            உரை("0", அசைவூட்டம்(நிலைமை: "தானாக", காலம்: 1500, வகை: "சாதாரண", இலக்கு(மதிப்பு: 90))),
            பெட்டி(அகலம்: 100, உயரம்: 600)
        )`), async page => {
    const text = async () => (await page.texts())[0];
    await page.frames(20);
    assert.equal((await text()).text, '0');
    await page.moveTo(250, 300);
    await page.wheel(0, 300);
    const inView = await text();
    near(inView.y, 300);
    await page.wheel(0, -300);
    const outside = await text();
    near(outside.y, 600);
    assert.ok(Number(inView.text) > 0 && Number(inView.text) < Number(outside.text), `${inView.text}, ${outside.text}`);
    assert.ok(Number(outside.text) < 90, outside.text);
    await page.waitForText('90');
    await page.frames(10);
    await page.text('90');
});

const counter = (text, value) => application(`
        நெடுவரிசை(சீரமைப்பு: மையம்)(
            உரை("${text}", அசைவூட்டம்(நிலைமை: "auto", காலம்: 3000, வகை: "சாதாரண", இலக்கு(மதிப்பு: ${value})))
        )`);

webTest('a text counts up and keeps what stands around its digits', counter('₹1,0 மட்டும்', 250), async page => {
    const numbers = (await watch(page, 60)).map(({ texts }) => {
        assert.equal(texts.length, 1);
        return Number(/^₹(\d+) மட்டும்$/.exec(texts[0].text)[1]);
    });
    assert.ok(numbers[0] < numbers.at(-1), numbers.join(' '));
    for (const [at, number] of numbers.entries()) {
        // 250 in 180 frames
        const step = at === 0 ? 1 : number - numbers[at - 1];
        assert.ok(step === 1 || step === 2, numbers.join(' '));
    }
    await page.waitForText('₹250 மட்டும்');
    await page.frames(5);
    await page.text('₹250 மட்டும்');
});

webTest('without digits the number stands behind the text', counter('மொத்தம்', 7), async page => {
    await page.waitForText('மொத்தம்7');
});

webTest('a text fades in while it rises, evenly whatever its curve', application(`
        நெடுவரிசை(சீரமைப்பு: மையம்)(
            உரை("வா", அசைவூட்டம்(நிலைமை: "தானாக", காலம்: 3000, வகை: "சீறு", இலக்கு(மங்குநழுவு: 1)))
        )`), async page => {
    const frames = (await watch(page, 40)).map(({ frame, texts: [{ alpha, y }] }) => ({ frame, alpha, y }));
    await page.page.waitForFunction(() => window.recorded.texts[0].alpha === 1);
    const end = await page.text('வா');
    assert.ok(frames[0].alpha < 0.9 && frames[0].alpha > 0, `begins at ${frames[0].alpha}`);
    for (const { frame, alpha, y } of frames) {
        near(alpha - frames[0].alpha, (frame - frames[0].frame) / 180, 0.001);
        near(y - end.y, 30 * (1 - alpha), 0.05);
    }
    await page.frames(5);
    assert.equal((await page.text('வா')).alpha, 1);
});

webTest('a text at the very top of the page is not in view', application(`
        உரை("மேலே", அசைவூட்டம்(நிலைமை: "தானாக", காலம்: 100, இலக்கு(மங்குநழுவு: 1)))`), async page => {
    await page.frames(20);
    assert.equal((await page.text('மேலே')).alpha, 0);
});

webTest('an unknown curve is even, a known one isn\'t', application(`
        நெடுவரிசை(சீரமைப்பு: மையம்)(
            உரை("0", அசைவூட்டம்(நிலைமை: "தானாக", காலம்: 3000, வகை: "எதுவுமில்லை", இலக்கு(மதிப்பு: 100000))),
            உரை("0 அ", அசைவூட்டம்(நிலைமை: "தானாக", காலம்: 3000, வகை: "கன_தொடக்கம்", இலக்கு(மதிப்பு: 100000)))
        )`), async page => {
    for (const { texts: [even, cubic] } of await watch(page, 40)) {
        const progress = Number(even.text) / 100000;
        near(parseInt(cubic.text, 10) / 100000, progress ** 3, 0.0001);
    }
});
