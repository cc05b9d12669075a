// What the variables of a page hold when a newer build is loaded.

import { MARKER } from './harness/editions.js';
import { address, application, assert, liveTest, webTest } from './harness/index.js';

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

webTest('a published page has nothing that keeps variables', COUNTING('முதல்'), { published: true }, async tab => {
    await tab.waitForText('முதல் 0');
    assert.deepEqual(await tab.page.evaluate(() => [
        typeof pozhilState, typeof Module._pozhil_take_state, typeof Module._pozhil_kept_state]),
                     ['undefined', 'undefined', 'undefined']);
});
