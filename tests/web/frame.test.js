// The page around the widgets: title, background, the two canvases, and what it does with the window's size.

import { application, assert, near, webTest } from './harness/index.js';

const plain = application('');
const coloured = application(`
        நெடுவரிசை(சீரமைப்பு: மையம்)(
            உரை("வணக்கம்", உரைபாணி(அளவு: 40)),
            பொத்தான்(உரை: "அகலம்", பொ_பாணி(பொபின்னணி: "#FF0000", அகலம்: 200, உயரம்: 80, வளைவு: 0))
        )`, { header: 'இணைய_தலைப்பு: "என் தளம்", பின்னணி: "#123456"' });

webTest('a page takes title and background from its header', coloured, async page => {
    assert.equal(await page.page.title(), 'என் தளம்');
    assert.deepEqual(await page.pixels([[0, 0], [499, 0], [0, 399], [499, 399]]), Array(4).fill([0x12, 0x34, 0x56]));
});

webTest('a page without settings is light grey', plain, async page => {
    assert.equal(await page.page.title(), 'பொழில் தளம்');
    assert.deepEqual(await page.pixels([[0, 0], [499, 399], [250, 200]]), Array(3).fill([245, 245, 245]));
});

webTest('the loading card goes, and the body has neither margin nor scroll bars', plain, async page => {
    assert.equal((await page.element('#pozhil-status', 'display')).display, 'none');
    const body = await page.element('body', 'margin', 'padding', 'overflow');
    assert.deepEqual([body.margin, body.padding, body.overflow], ['0px', '0px', 'hidden']);
    assert.equal((await page.element('#canvas', 'display')).display, 'block');
    assert.equal(await page.page.evaluate(() => document.documentElement.lang), 'ta');
});

webTest('both canvases fill the window, whatever its size', plain, async page => {
    for (const [width, height] of [[500, 400], [360, 640], [900, 300]]) {
        await page.resize(width, height);
        for (const id of ['canvas', 'textCanvas']) {
            const canvas = await page.page.evaluate(name => {
                const found = document.getElementById(name);
                const { x, y, width: shownWidth, height: shownHeight } = found.getBoundingClientRect();
                return [x, y, shownWidth, shownHeight, found.width, found.height];
            }, id);
            assert.deepEqual(canvas, [0, 0, width, height, width, height], id);
        }
        assert.deepEqual(await page.pixel(width - 1, height - 1), [245, 245, 245]);
    }
});

webTest('the text canvas lies over the other and lets the mouse through', plain, async page => {
    const { position, pointerEvents } = await page.element('#textCanvas', 'position', 'pointerEvents');
    assert.deepEqual([position, pointerEvents], ['absolute', 'none']);
    assert.equal(await page.page.evaluate(() => document.elementFromPoint(100, 100).id), 'canvas');
    const isBehind = await page.page.evaluate(() => Boolean(document.getElementById('canvas').compareDocumentPosition(
        document.getElementById('textCanvas')) & Node.DOCUMENT_POSITION_FOLLOWING));
    assert.ok(isBehind);
});

webTest('on a screen with two pixels a point, texts are sharp and keep their place', coloured,
        { deviceScaleFactor: 2 }, async page => {
    const sizes = await page.page.evaluate(() => {
        const { width, height, style } = document.getElementById('textCanvas');
        return [devicePixelRatio, width, height, style.width, style.height];
    });
    assert.deepEqual(sizes, [2, 1000, 800, '500px', '400px']);
    const text = await page.text('வணக்கம்');
    assert.equal(text.scale, 2);
    // 40 high text over an 80 high button
    near(text.y, (400 - 120) / 2);
    assert.deepEqual(await page.area([255, 0, 0]), { x: 150, y: 180, width: 200, height: 80 });
});

webTest('widgets stay in the middle while the window is resized', coloured, async page => {
    for (const [width, height] of [[500, 400], [360, 640], [900, 300]]) {
        await page.resize(width, height);
        await page.leave();
        const top = (height - 120) / 2;
        assert.deepEqual(await page.area([255, 0, 0]),
                         { x: (width - 200) / 2, y: top + 40, width: 200, height: 80 });
        const text = await page.text('வணக்கம்');
        near(text.y, top);
        near(text.x, (width - await page.textWidth('வணக்கம்', text.size)) / 2);
    }
});

webTest('the pointer shows where something can be pressed', coloured, async page => {
    assert.equal(await page.cursor(), 'default');
    await page.moveTo(250, 220);
    assert.equal(await page.cursor(), 'pointer');
    await page.moveTo(149, 220);
    assert.equal(await page.cursor(), 'default');
    assert.deepEqual([await page.window('mouseX'), await page.window('mouseY')], [149, 220]);
});

webTest('no dialog is up unless the program says so', coloured, async page => {
    assert.equal(await page.window('modalActive'), false);
});

webTest('nothing of ours warns or fails on the console', coloured, async page => {
    await page.frames(5);
    // Without font files the program itself says so, once for each.
    const fonts = page.console.filter(line => line.includes('எழுத்துருவை இணைக்க முடியவில்லை'));
    assert.equal(fonts.length, 2);
    assert.deepEqual(page.console.filter(line => !fonts.includes(line)), []);
    assert.deepEqual(page.errors, []);
});

const VIDEO = 'காணொளி அல்ல';

const withVideo = application(`
        நெடுவரிசை(
            பொத்தான்(உரை: "போ", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்(செல்க("ஆ")))
        )`, { header: 'பக்கம்: "அ", பின்னணிகாணொளி: "assets/கடல்.mp4"' })
    + application('        உரை("அடுத்தது")', { header: 'பக்கம்: "ஆ"' });

webTest('a video lies behind a page that lets it through, and stays behind those that don\'t', withVideo,
        { files: { 'assets/கடல்.mp4': VIDEO } }, async page => {
    const video = await page.page.evaluate(async () => {
        const { muted, autoplay, loop, src, parentElement } = document.getElementById('pozhilVideo');
        const blob = await (await fetch(src)).blob();
        return { muted, autoplay, loop, parent: parentElement.tagName, type: blob.type, content: await blob.text() };
    });
    assert.deepEqual(video, { muted: true, autoplay: true, loop: true, parent: 'BODY', type: 'video/mp4',
                              content: VIDEO });
    const shown = await page.element('#pozhilVideo', 'position', 'objectFit', 'zIndex');
    assert.deepEqual([shown.position, shown.objectFit, shown.zIndex, shown.x, shown.y, shown.width, shown.height],
                     ['fixed', 'cover', '-1', 0, 0, 500, 400]);
    assert.ok(page.console.includes('காணொளி வெற்றிகரமாக லோட் செய்யப்பட்டது!'), page.console.join('\n'));

    await page.page.evaluate(() => { document.getElementById('pozhilVideo').style.background = 'rgb(1, 2, 3)'; });
    assert.deepEqual(await page.pixels([[0, 399], [499, 0], [250, 200]]), Array(3).fill([1, 2, 3]));
    await page.click(100, 20);
    await page.text('அடுத்தது');
    assert.deepEqual(await page.pixels([[0, 399], [499, 0], [250, 200]]), Array(3).fill([245, 245, 245]));
    assert.equal(await page.page.evaluate(() => document.querySelectorAll('#pozhilVideo').length), 1);
});

webTest('a video that is missing is told on the console', withVideo, async page => {
    assert.ok(page.console.some(line => line.startsWith('காணொளி பிழை:')), page.console.join('\n'));
    assert.equal(await page.element('#pozhilVideo'), null);
    await page.text('போ');
});

const MANY = 1500;
const assignments = Array.from({ length: MANY }, (_, number) => `        பெயர்${number} = ${number} கூட்டு 1`);

webTest('a logic block may be longer than a function of WebAssembly', application(`        உரை(பெயர்${MANY - 1})`,
                                                                              { logic: assignments.join('\n') }),
        async page => {
    await page.text(String(MANY));
});
