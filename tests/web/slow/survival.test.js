// What a page outlives: builds that fail, a server that goes away, a lost drawing surface, and its own reload.

import { address, application, assert, liveTest, near, webTest } from '../harness/index.js';

const showing = text => application(`        உரை("${text}")`);

const banner = page => page.page.textContent('#pozhil-fault', { timeout: 20_000 });

liveTest('a fault of a change is told in the open page with code and line', showing('முதல்'),
         async (compiler, page) => {
    await compiler.waitForVersion(2);
    await page.open(address);
    await page.frames(3);
    assert.equal(await page.element('#pozhil-fault'), null);
    await page.page.waitForTimeout(700);
    await compiler.edit(showing('இரண்டாவது').replace('உரை(', 'உரை'));
    const text = await banner(page);
    assert.match(text, /பொழி-203/);
    assert.match(text, /வரி 4/);
    assert.match(text, /பக்கம் பழைய வடிவிலேயே இருக்கிறது/);
    assert.equal(await compiler.waitForEnd(), 1);
    assert.match(compiler.stdout, /பொழி-203/);
    await page.text('முதல்');
});

liveTest('a build that em++ refuses is told in the open page until the next good one', showing('முதல்'),
         async (compiler, page) => {
    await compiler.waitForVersion(2);
    await page.open(address);
    await compiler.standIn('em++', 'exit 1');
    await compiler.edit(showing('இரண்டாவது'));
    assert.match(await banner(page), /பொழி-404/);
    await page.text('முதல்');
    await compiler.removeStandIn('em++');
    await compiler.edit(showing('மூன்றாவது'));
    await page.waitForText('மூன்றாவது');
    assert.equal(await page.element('#pozhil-fault'), null);
});

liveTest('the line that em++ refuses is told', showing('முதல்'), async (compiler, page) => {
    await compiler.waitForVersion(2);
    await page.open(address);
    await compiler.edit(application('        உரை("அ")', { logic: '        அச்சிடு(இல்லாத_செயல்(1))' }));
    assert.match(await banner(page), /வரி 7/);
});

webTest('what is told of a fault is shown, never run', showing('முதல்'), async page => {
    await page.page.route('**/version/fault', route => route.fulfill({
        json: { code: 'பொழி-1', file: 'அ.பொழில்', line: 3, description: '<img src=x onerror="window.ran = 1">' } }));
    const text = await banner(page);
    assert.ok(text.startsWith('🚨 பொழி-1 · அ.பொழில் · வரி 3: <img src=x'), text);
    assert.equal(await page.window('ran'), undefined);
    // It lies over nothing that can be pressed.
    assert.equal((await page.element('#pozhil-fault', 'pointerEvents')).pointerEvents, 'none');
});

webTest('a page whose server comes back with a good build reloads', showing('முதல்'), async page => {
    let documents = 0;
    page.page.on('domcontentloaded', () => { documents++; });
    let answer = null;
    await page.page.route('**/version', route => answer === null ? route.abort() : route.fulfill({ body: answer }));
    await page.page.waitForTimeout(1200);
    // Back, but without a good build.
    answer = '1';
    await page.page.waitForTimeout(1200);
    assert.equal(documents, 0);
    answer = '2';
    await page.page.waitForTimeout(1500);
    assert.equal(documents, 1);
    await page.text('முதல்');
});

const form = first => application(`
        நெடுவரிசை(உருளும்பட்டை: மெய், இடைவெளி: 10)(
            உரை("${first}"),
            உரைபெட்டி(அடையாளம்: "பெயர்"),
            உரைபெட்டி(குறிப்பு: "ஊர்"),
            கடவுமறை(குறிப்பு: "கடவுச்சொல்"),
            பொத்தான்(உரை: "போ", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்(செல்க("ஆ"))),
            உரை("நடுவில்", உரைபாணி(அளவு: 600)),
            உரை("கீழே", உரைபாணி(அளவு: 600))
        )`, { header: 'பக்கம்: "அ"' }) + application(`
        நெடுவரிசை(உருளும்பட்டை: மெய், இடைவெளி: 10)(
            உரை("அடுத்தது"),
            உரைபெட்டி(அடையாளம்: "கருத்து", பலவரி: மெய்),
            பொத்தான்(உரை: "வா", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்(செல்க("அ"))),
            உரை("ஆழம்", உரைபாணி(அளவு: 900))
        )`, { header: 'பக்கம்: "ஆ"' });

const yOf = async (page, text) => (await page.text(text)).y;

async function press(page, text) {
    const { x, y } = await page.text(text);
    await page.click(x, y + 5);
}

liveTest('texts of fields, scrolling and the page that is shown survive a reload', form('முதல்'),
         async (compiler, page) => {
    await compiler.waitForVersion(2);
    await page.open(address);
    await page.page.fill('#பெயர்', 'கயல்');
    await page.page.fill('[placeholder="ஊர்"]', 'மதுரை');
    await page.page.fill('[placeholder="கடவுச்சொல்"]', 'இரகசியம்');
    const top = await yOf(page, 'முதல்');
    await page.moveTo(250, 300);
    await page.wheel(0, 130);
    await page.wheel(0, -30);
    near(await yOf(page, 'முதல்'), top - 100);
    await press(page, 'போ');
    await page.page.fill('#கருத்து', 'வரி 1\nவரி 2');
    await page.moveTo(250, 300);
    await page.wheel(0, 40);
    // Farther than the list goes
    await page.wheel(0, 9000);
    await page.wheel(0, -60);
    const depth = await yOf(page, 'ஆழம்');

    await compiler.edit(form('இரண்டாவது'));
    await page.page.waitForEvent('domcontentloaded');
    await page.ready();
    await page.frames(5);
    near(await yOf(page, 'ஆழம்'), depth);
    assert.equal((await page.element('#கருத்து')).value, 'வரி 1\nவரி 2');

    await page.wheel(0, -9000);
    await press(page, 'வா');
    await page.waitForText('இரண்டாவது');
    await page.frames(5);
    near(await yOf(page, 'இரண்டாவது'), top - 100);
    assert.equal((await page.element('#பெயர்')).value, 'கயல்');
    assert.equal((await page.element('[placeholder="ஊர்"]')).value, 'மதுரை');
    assert.equal((await page.element('[placeholder="கடவுச்சொல்"]')).value, '');
    assert.deepEqual(page.errors, []);
});

webTest('the program reads what came back, and a page opened anew is empty', application(`
        நெடுவரிசை(
            உரைபெட்டி(அடையாளம்: "பெயர்"),
            பொத்தான்(உரை: "படி", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => படி()),
            உரை(செய்தி)
        )`, { logic: `
        செய்தி = "-"
        செயல் படி():
            செய்தி = பெயர்.உரைதரவு` }), async page => {
    await page.page.fill('#பெயர்', 'கயல்');
    await page.page.reload();
    await page.ready();
    await page.frames(5);
    assert.equal((await page.element('#பெயர்')).value, 'கயல்');
    await press(page, 'படி');
    await page.text('கயல்');
    await page.page.goto('about:blank');
    await page.page.goto(page.address);
    await page.ready();
    await page.frames(5);
    assert.equal((await page.element('#பெயர்')).value, '');
});

webTest('a page that is no more gives way to the first one', showing('முதல்'), async page => {
    await page.page.evaluate(() => {
        window.addEventListener('pagehide', () => sessionStorage.setItem('pozhil ' + location.pathname,
            JSON.stringify({ fields: [], turns: {}, page: 'போய்விட்டது' })));
    });
    await page.page.reload();
    await page.waitForText('முதல்');
    await page.page.evaluate(() => {
        window.addEventListener('pagehide', () => sessionStorage.setItem('pozhil ' + location.pathname, '{'));
    });
    await page.page.reload();
    await page.waitForText('முதல்');
    assert.deepEqual(page.errors, []);
});

webTest('a drawing surface that was taken comes back', form('முதல்'), async page => {
    await page.page.fill('#பெயர்', 'கயல்');
    await press(page, 'போ');
    await page.page.evaluate(() => {
        window.loser = Module.ctx.getExtension('WEBGL_lose_context');
        window.loser.loseContext();
    });
    await page.page.waitForTimeout(500);
    await page.page.evaluate(() => { window.loser.restoreContext(); });
    await page.page.waitForFunction(() => !window.loser && window.recorded?.frames > 5);
    await page.text('அடுத்தது');
    assert.notDeepEqual(await page.pixel(20, 120), [0, 0, 0]);
    await press(page, 'வா');
    await page.frames(3);
    assert.equal((await page.element('#பெயர்')).value, 'கயல்');
});

webTest('a drawing surface that stays away is told', showing('முதல்'), async page => {
    await page.page.evaluate(() => Module.ctx.getExtension('WEBGL_lose_context').loseContext());
    await page.page.waitForSelector('#pozhil-status.pozhil-failed', { timeout: 10_000 });
    assert.match(await page.page.textContent('#pozhil-text'), /வரைபரப்பை/);
    assert.deepEqual(page.errors, []);
});

for (const [name, cut] of [['index.js', 1000], ['index.wasm', 5000]]) {
    webTest(`a host that cuts ${name} is told, not shown as an empty page`, showing('முதல்'), { open: false },
            async page => {
        const whole = page.files.get(name);
        await page.page.route(`**/${name}`, route => route.fulfill({
            body: whole.subarray(0, whole.length - cut),
            contentType: name.endsWith('.js') ? 'text/javascript' : 'application/wasm' }));
        await page.visit(page.address);
        await page.page.waitForSelector('#pozhil-status.pozhil-failed', { timeout: 20_000 });
        assert.match(await page.page.textContent('#pozhil-text'), /முழுமையாக வந்து சேரவில்லை/);
    });
}

webTest('a host that knows no type for WebAssembly does no harm', showing('முதல்'), { open: false }, async page => {
    await page.page.route('**/index.wasm', route => route.fulfill({
        body: page.files.get('index.wasm'), contentType: 'application/octet-stream' }));
    await page.open(page.address);
    await page.text('முதல்');
});
