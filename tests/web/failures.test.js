// What the user reads where the page can't run, and faults of the program that it survives.

import { application, assert, webTest } from './harness/index.js';

const plain = application('        உரை("வணக்கம்")');

async function failureOf(page) {
    await page.page.waitForSelector('#pozhil-status.pozhil-failed', { timeout: 60_000 });
    assert.equal((await page.element('#pozhil-status', 'display')).display, 'grid');
    return page.page.textContent('#pozhil-text');
}

webTest('a browser without WebGL is told so', plain, { open: false, flags: ['--disable-gpu', '--disable-3d-apis'] },
        async page => {
    await page.visit(page.address);
    assert.match(await failureOf(page), /^இந்த உலாவியில் WebGL இயங்கவில்லை\./);
});

webTest('a browser without WebAssembly is told so', plain, { open: false }, async page => {
    await page.page.addInitScript(() => { delete window.WebAssembly; });
    await page.visit(page.address);
    assert.match(await failureOf(page), /^இந்த உலாவியில் WebAssembly இல்லை\./);
});

webTest('a missing program is told, under the title of the page', application('', {
    header: 'இணைய_தலைப்பு: "என் தளம்"' }), { open: false }, async page => {
    await page.page.route('**/index.js', route => route.fulfill({ status: 404 }));
    // Else the page would load itself anew while it is read.
    await page.page.route('**/version*', route => route.abort());
    await page.visit(page.address);
    assert.match(await failureOf(page), /^நிரல் கிடைக்கவில்லை\./);
    assert.equal(await page.page.textContent('#pozhil-title'), 'என் தளம்');
});

webTest('a program that is still on its way shows the loading card', plain, { open: false }, async page => {
    let arrive;
    const way = new Promise(resolve => { arrive = resolve; });
    await page.page.route('**/index.wasm', async route => {
        await way;
        await route.continue();
    });
    await page.visit(page.address);
    await page.page.waitForFunction(() => document.querySelector('.pozhil-bar').style.width !== '');
    assert.equal((await page.element('#pozhil-status', 'display')).display, 'grid');
    assert.equal(await page.page.textContent('#pozhil-title'), 'பொழில் தளம்');
    arrive();
    await page.ready();
    assert.equal((await page.element('#pozhil-status', 'display')).display, 'none');
});

const logic = `
        விடை = "இல்லை"
        எண்ணிக்கை = 0
        செயல் வகு_என(அ):
            திரும்பு 10 வகு அ
        செயல் பிடித்துப்பார்():
            முயற்சி:
                விடை = வகு_என(0)
            பிடி(என்ன):
                விடை = என்ன
        செயல் பிடிக்காமல்():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1
            விடை = வகு_என(0)
        முயற்சி:
            அச்சிடு(வகு_என(0))
        பிடி:
            அச்சிடு("பிடிபட்டது: ", பிழை)`;

const faulty = application(`
        நெடுவரிசை(
            பொத்தான்(உரை: "பிடி", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => பிடித்துப்பார்()),
            பொத்தான்(உரை: "விடு", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => பிடிக்காமல்()),
            பொத்தான்(உரை: "கூற்று", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்(அச்சிடு(வகு_என(0)))),
            உரை(விடை),
            உரை(எண்ணிக்கை)
        )`, { logic });

webTest('முயற்சி catches, before the first frame and in a press', faulty, async page => {
    const message = 'சுழியத்தால் (0) வகுக்க முடியாது!';
    assert.ok(page.console.includes(`பிடிபட்டது: ${message}`), page.console.join('\n'));
    await page.text('இல்லை');
    await page.click(100, 20);
    await page.text(message);
});

webTest('an exception in a press leaves the page running', faulty, async page => {
    await page.click(100, 60);
    await page.text('1');
    await page.click(100, 100);
    await page.click(100, 60);
    await page.text('2');
    await page.text('இல்லை');
    assert.deepEqual(page.errors, []);
    assert.equal((await page.element('#pozhil-status', 'display')).display, 'none');
});

const consoleFaults = page => page.console.filter(line => line.includes('சுழியத்தால் (0) வகுக்க முடியாது!'));

webTest('a widget that can\'t be drawn is left out, and the page goes on', application(`
        நெடுவரிசை(
            பொத்தான்(உரை: "சுழி", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => வை_எண்(0)),
            உரை(10 வகு வகுஎண்),
            பெட்டி(பெட்டி_பாணி(அகலம்: 100, உயரம்: 30, பின்னணி: "#FF0000"), உரை(20 வகு வகுஎண்)),
            பொத்தான்(உரை: "ஐந்து", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => வை_எண்(5)),
            உரை("கடைசி")
        )`, { logic: `
        வகுஎண் = 2
        செயல் வை_எண்(அ):
            வகுஎண் = அ` }), async page => {
    await page.text('5');
    const [last, box] = [await page.text('கடைசி'), await page.area([255, 0, 0])];

    await page.click(100, 20);
    const texts = (await page.texts()).map(({ text }) => text);
    assert.deepEqual(texts, ['சுழி', 'ஐந்து', 'கடைசி']);
    assert.equal((await page.text('கடைசி')).y, last.y);
    assert.deepEqual(await page.area([255, 0, 0]), box);
    assert.equal(consoleFaults(page).length, 1, page.console.join('\n'));
    assert.equal((await page.element('#pozhil-status', 'display')).display, 'none');

    await page.click(100, (await page.text('ஐந்து')).y);
    await page.text('2');
    await page.text('4');
    assert.equal(consoleFaults(page).length, 1);
    assert.deepEqual(page.errors, []);
});

webTest('a place that can\'t be named leaves the page running', application(`
        உரை("அ", அடையாளம்: 10 வகு வகுஎண்)`, { logic: `
        வகுஎண் = 0` }), async page => {
    await page.frames(3);
    assert.equal(consoleFaults(page).length, 1, page.console.join('\n'));
    assert.deepEqual(page.errors, []);
});

const DIED = 'நிரல் இடையிலேயே நின்றுவிட்டது: ';
const ZERO = 'ஒரு முழு எண்ணைச் சுழியத்தால் (0) வகுக்கவோ, மீதி காணவோ முயன்றது.';

async function assertDeath(page, cause) {
    const shown = await failureOf(page);
    assert.ok(shown.startsWith(DIED + cause), shown);
    assert.deepEqual(page.console.filter(line => line.includes(DIED)), [`🚨 ${shown}`]);
}

webTest('a remainder by zero in a press ends the page with a word', application(`
        நெடுவரிசை(
            பொத்தான்(உரை: "மீதி", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => மீதி_காண்()),
            உரை(எண்ணிக்கை)
        )`, { logic: `
        எண்ணிக்கை = 0
        செயல் மீதி_காண்():
            எண்ணிக்கை = 5 மீதி எண்ணிக்கை` }), async page => {
    await page.page.mouse.click(100, 20);
    await assertDeath(page, ZERO);
});

webTest('a remainder by zero before the first frame is told', application('        உரை("அ")', { logic: `
        பூ = 0
        அச்சிடு(5 மீதி பூ)` }), { open: false }, async page => {
    await page.visit(page.address);
    await assertDeath(page, ZERO);
});

webTest('an exception before the first frame is told', application('        உரை("அ")', { logic: `
        அச்சிடு(வர்க்கமூலம்(16))` }), { open: false }, async page => {
    await page.visit(page.address);
    await assertDeath(page, 'யாரும் பிடிக்காத ஒரு பிழை நேர்ந்தது;');
});

webTest('a stack that overflows and a program that gives up are told', plain, async page => {
    await page.page.evaluate(() => {
        try {
            Module.quit(1, new RangeError('Maximum call stack size exceeded'));
        } catch {
            // as the page's own code goes on
        }
        Module.onAbort('of what came before');
    });
    await assertDeath(page, 'ஒன்றுக்குள் ஒன்றாக நடந்தவை மிக ஆழமாகி, அடுக்கு நினைவகம் தீர்ந்துவிட்டது.');
});

webTest('a program that ends in a box is told apart', application('        உரை("அ")', { logic: `
        ப = [1]
        அச்சிடு(ப[3])` }), { open: false }, async page => {
    await page.visit(page.address);
    assert.match(await failureOf(page), /^நிரல் பிழையோடு முடிந்தது\./);
    assert.deepEqual(page.console.filter(line => line.includes(DIED)), []);
});
