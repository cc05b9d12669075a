// What the variables of a page hold when a newer build is loaded.

import { MARKER } from '../harness/editions.js';
import { address, application, assert, liveTest, webTest } from '../harness/index.js';

const BUTTON = 'பொத்தான்(உரை: "மாற்று", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: மாற்று)';
/// A page with these texts below a button that calls மாற்று.
const page = (texts, logic, header = '') => MARKER + application(`
        நெடுவரிசை(இடைவெளி: 4)(
            ${BUTTON},
            ${texts.map(text => `உரை(${text})`).join(',\n            ')}
        )`, { logic, header });
const pressButton = tab => tab.click(100, 20);

const KINDS = (heading, start) => page(
    ['தலைப்பு', '"எண் " இணை எண்ணிக்கை', '"பெயர் " இணை பெயர்', '"பணிகள் " இணை பணிகள்', '"தேர்வு " இணை தேர்வு',
     '"அளவு " இணை அளவு', '"நிலை " இணை நிலை', '"இருமடி " இணை இருமடி'], `
        தலைப்பு = "${heading}"
        தொடக்கம் = ${start}
        எண்ணிக்கை = 0
        பெயர் = "யாரோ"
        பணிகள் = []
        தேர்வு = வெறுமை
        அளவு = 0.5
        நிலை = தொடக்கம்
        இருமடி = தொடக்கம் பெருக்கு 2
        செயல் மாற்று():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1
            பெயர் = "கயல் \\"ஒன்று\\""
            பணிகள்.சேர்({"பெயர்": "பால்", "முடிந்தது": மெய், "விவரம்": [1, 2.5, வெறுமை]})
            தேர்வு = "பால்"
            அளவு = அளவு கூட்டு 1
            நிலை = நிலை கூட்டு 1`);

const shows = async (tab, texts) => {
    for (const text of texts) {
        await tab.waitForText(text);
    }
};

liveTest('variables keep their values over a rebuild, unless they begin otherwise now', KINDS('முதல்', 10),
         async (compiler, tab) => {
    await compiler.waitForVersion(2);
    await tab.open(address);
    await pressButton(tab);
    await tab.waitForText('எண் 1');
    await pressButton(tab);
    await tab.waitForText('எண் 2');
    const tasks = (await tab.texts()).map(({ text }) => text).find(text => text.startsWith('பணிகள்'));

    await compiler.edit(KINDS('இரண்டாவது', 20));
    await tab.waitForText('இரண்டாவது');
    // What only follows from something else is worked out anew, and so is what begins with something else now, whatever its
    // own line says.
    await shows(tab, ['எண் 2', 'பெயர் கயல் "ஒன்று"', tasks, 'தேர்வு பால்', 'அளவு 2.5', 'நிலை 20', 'இருமடி 40']);
    assert.match(tasks, /பால்.*2\.5.*பால்/);
    await pressButton(tab);
    await shows(tab, ['எண் 3', 'நிலை 21']);

    // Who loads the page anew wants to begin anew.
    await tab.page.reload();
    await shows(tab, ['எண் 0', 'பெயர் யாரோ', 'பணிகள் []', 'நிலை 20']);
    assert.deepEqual(tab.errors, []);
});

const COUNTING = (heading, { first = '0', header = '', name = 'எண்ணிக்கை' } = {}) => page(
    [`"${heading} " இணை ${name}`], `
        ${name} = ${first}
        பெரியது = ""
        செயல் மாற்று():
            ${name} = ${name} கூட்டு 1
            பெரியது = "அ"
            ஒவ்வொன்றாக முறை இல் வரம்பு(20):
                பெரியது = பெரியது இணை பெரியது`, header);

liveTest('what can not be kept begins anew, with a word if it was too large', COUNTING('முதல்'), async (compiler, tab) => {
    await compiler.waitForVersion(2);
    await tab.open(address);
    await pressButton(tab);
    await tab.waitForText('முதல் 1');
    await compiler.edit(COUNTING('இரண்டு'));
    await tab.waitForText('இரண்டு 1');
    assert.ok(tab.console.some(line => line.includes("'பெரியது' மாறியின் மதிப்பு மிகப் பெரியது")));

    // The author has turned it off.
    await compiler.edit(COUNTING('மூன்று', { header: 'நிலை_காப்பு: பொய்' }));
    await tab.waitForText('மூன்று 0');
    await pressButton(tab);
    await tab.waitForText('மூன்று 1');
    await compiler.edit(COUNTING('நான்கு', { header: 'நிலை_காப்பு: பொய்' }));
    await tab.waitForText('நான்கு 0');

    // A variable of another name or beginning.
    await compiler.edit(COUNTING('ஐந்து'));
    await tab.waitForText('ஐந்து 0');
    await pressButton(tab);
    await tab.waitForText('ஐந்து 1');
    await compiler.edit(COUNTING('ஆறு', { name: 'கணக்கு' }));
    await tab.waitForText('ஆறு 0');
    await pressButton(tab);
    await tab.waitForText('ஆறு 1');
    await compiler.edit(COUNTING('ஏழு', { name: 'கணக்கு', first: '0.5' }));
    await tab.waitForText('ஏழு 0.5');

    // Somebody else has written where the values are kept.
    await tab.page.evaluate(() => {
        window.addEventListener('pagehide', () => sessionStorage.setItem('pozhil state ' + location.pathname, '"கெட்ட{[i'));
    });
    await pressButton(tab);
    await tab.waitForText('ஏழு 1.5');
    await compiler.edit(COUNTING('எட்டு', { name: 'கணக்கு', first: '0.5' }));
    await tab.waitForText('எட்டு 0.5');
    assert.deepEqual(tab.errors, []);
});

const ENDLESS = page(['"எண் " இணை எண்ணிக்கை', '"உரை " இணை உரை_தரு()'], `
        எண்ணிக்கை = 0
        வழி = 0
        செயல் உரை_தரு():
            சுற்று வழி சமம் 4:
                விடு
            திரும்பு வழி
        செயல் கிளை(ஆழம்):
            எனில் ஆழம் சமம் 0:
                திரும்பு 1
            திரும்பு கிளை(ஆழம் கழி 1) கூட்டு கிளை(ஆழம் கழி 1)
        செயல் மாற்று():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1
            வழி = எண்ணிக்கை
            எனில் வழி சமம் 1:
                சுற்று மெய்:
                    முயற்சி:
                        சுற்று மெய்:
                            விடு
                    பிடி(பிழை):
                        எண்ணிக்கை = 100
            எனில் வழி சமம் 2:
                அச்சிடு(கிளை(60))
            எனில் வழி சமம் 3:
                சுற்று மெய்:
                    ஒவ்வொன்றாக எ இல் வரம்பு(3):
                        ஒவ்வொன்றாக ஒ இல் [1, 2]:
                            விடு`);

webTest('work that never ends is stopped after five seconds with a fault, and the page goes on', ENDLESS, async tab => {
    const fault = tab.page.locator('#pozhil-program-fault');
    const lines = ENDLESS.split('\n');
    const lineOf = text => lines.findIndex(line => line.includes(text)) + 1;
    const told = async () => {
        await fault.waitFor({ timeout: 60_000 });
        const text = await fault.innerText();
        await fault.locator('.pozhil-close').click();
        return text;
    };
    // A loop that catches everything, calls without loops, and short loops in one that has no end.
    for (const [count, place] of [[1, 'சுற்று மெய்:'], [2, 'கிளை(ஆழம் கழி 1) கூட்டு'], [3, null]]) {
        const before = Date.now();
        await pressButton(tab);
        const text = await told();
        assert.ok(Date.now() - before > 4500, `${Date.now() - before} ms`);
        assert.match(text, /பொழி-685/);
        if (place !== null && count === 2) {
            assert.match(text, new RegExp(`வரி ${lineOf(place)}`));
            assert.match(text, /'கிளை' அழைக்கப்பட்ட இடம்/);
        }
        assert.match(text, /'மாற்று' அழைக்கப்பட்ட இடம்|வரி/);
        await tab.waitForText(`எண் ${count}`);
    }
    // A text that never ends is stopped in each frame, in no time after the first.
    await pressButton(tab);
    const text = await told();
    assert.match(text, new RegExp(`வரி ${lineOf('சுற்று வழி சமம் 4:')}`));
    const before = Date.now();
    for (let press = 5; press < 8; press++) {
        await pressButton(tab);
        await tab.waitForText(`எண் ${press}`);
    }
    assert.ok(Date.now() - before < 4000, `${Date.now() - before} ms`);
    await tab.waitForText('உரை 7');
    assert.deepEqual(tab.errors, []);
});

const LONG = page(['"தொகை " இணை தொகை'], `
        தொகை = 0
        செயல் மாற்று():
            தொடக்கம் = நேரம்.வினாடிகள்()
            சுற்று நேரம்.வினாடிகள்() கழி தொடக்கம் சிறிது 3:
                தொகை = 1`);

webTest('work of less than five seconds is not stopped', LONG, async tab => {
    await pressButton(tab);
    await tab.waitForText('தொகை 1');
    await pressButton(tab);
    await tab.frames(3);
    assert.equal(await tab.page.locator('#pozhil-program-fault').count(), 0);
});

const COUNTED = page(['"தொகை " இணை தொகை_தரு()'], `
        செயல் தொகை_தரு():
            தொகை = 0
            ஒவ்வொன்றாக எ இல் வரம்பு(30000):
                தொகை = தொகை கூட்டு எ
            திரும்பு தொகை
        செயல் மாற்று():
            விடு`);

webTest('a page that works on much in each frame comes to rest all the same', COUNTED, async tab => {
    await tab.waitForText('தொகை 449985000');
    assert.ok(await tab.rests());
});
