// What a page tells browsers of itself, what it fetches, and what it says.

import { readFileSync } from 'node:fs';

import { COARSE_PHONE, application, assert, webTest } from './harness/index.js';

const titled = application('        உரை("வணக்கம்")', { header: 'இணைய_தலைப்பு: "கடை & \'தோட்டம்\'", பின்னணி: "#123456"' });

const ICON = '<svg xmlns="http://www.w3.org/2000/svg" width="8" height="8"><rect width="8" height="8"/></svg>';

for (const [screen, context] of [['desktop', {}], ['phone', COARSE_PHONE]]) {
    webTest(`a page has a description, a colour and an icon of its own (${screen})`, titled, context, async page => {
        const meta = name => page.page.getAttribute(`meta[name=${name}]`, 'content');
        assert.equal(await meta('description'), 'கடை & \'தோட்டம்\'');
        assert.equal(await meta('theme-color'), '#123456');
        const icon = await page.page.getAttribute('link[rel=icon]', 'href');
        assert.match(icon, /^data:image\/svg\+xml,/);
        const size = await page.page.evaluate(address => new Promise(resolve => {
            const image = new Image();
            image.onload = () => resolve(image.width > 0);
            image.onerror = () => resolve(false);
            image.src = address;
        }), icon);
        assert.ok(size, 'the icon can be drawn');
    });
}

/// The names that were asked of the page's host, and the other hosts that were asked.
async function requestsOf(page, open) {
    const own = [];
    const others = new Set();
    const failed = [];
    page.page.on('request', request => {
        const url = new URL(request.url());
        if (url.hostname === '127.0.0.1') {
            own.push(url.pathname.split('/').at(-1));
        } else if (/^http/.test(url.protocol)) {
            others.add(url.hostname);
        }
    });
    page.page.on('response', response => {
        if (response.status() >= 400) {
            failed.push(response.url());
        }
    });
    await open();
    return { own, others: [...others], failed };
}

webTest('every file is fetched once, the program before its script asks for it, and none in vain', titled,
        { open: false, files: { 'assets/குறிப்பு.txt': 'வணக்கம்' } }, async page => {
    const { own, failed } = await requestsOf(page, () => page.open(page.address));
    await page.page.waitForTimeout(4000);
    assert.deepEqual(failed, []);
    for (const name of ['index.js', 'index.wasm', 'index.data']) {
        assert.equal(own.filter(asked => asked === name).length, 1, `${name} in ${own}`);
    }
    assert.ok(!own.includes('file-icon.png'), String(own));
    // Browsers warn of what is fetched early and then not used.
    assert.deepEqual(page.console.filter(line => /preload/i.test(line)), []);
});

webTest('a page without packed files asks for none', titled, { open: false }, async page => {
    const { own, failed } = await requestsOf(page, () => page.open(page.address));
    assert.deepEqual([failed, own.includes('index.data')], [[], false]);
});

webTest('what is said on the console is said in Tamil', application(`
        நெடுவரிசை(
            உரை("அ", உரைபாணி(எழுத்துரு: "இல்லை.ttf")),
            படம்(பாதை: "இல்லை.gif", அகலம்: 20, உயரம்: 20)
        )`), async page => {
    await page.frames(10);
    await page.page.waitForTimeout(500);
    await page.page.evaluate(() => {
        console.log('Copied to clipboard: ', 'text');
        console.log('toString', 1);
        console.log();
    });
    // What the browser itself says of files that aren't there is not ours.
    const said = page.console.filter(line => !line.startsWith('Failed to load resource'));
    assert.ok(said.some(line => line.startsWith('எழுத்துருவை ஏற்ற முடியவில்லை:')), said.join('\n'));
    assert.ok(said.includes('நகலெடுக்கப்பட்டது:  text'), said.join('\n'));
    assert.ok(said.includes('toString 1'), said.join('\n'));
    assert.deepEqual(said.filter(line => /^[A-Z][a-z]+ [a-z]+/.test(line)), []);
});

webTest('the icon of a header stays', application('', { header: 'சின்னம்: "சின்னம்.svg"' }),
        { files: { 'சின்னம்.svg': ICON } }, async page => {
    assert.match(await page.page.getAttribute('link[rel=icon]', 'href'), /^data:image\/svg\+xml;base64,/);
});

const SERIF = readFileSync('/usr/share/fonts/truetype/noto/NotoSerifTamil-Regular.ttf');
const packedFont = { files: { 'assets/font/Tamil-Regular.ttf': SERIF }, open: false };

/// How wide the page's own font and the packed one write the same.
function widths(page) {
    return page.page.evaluate(async file => {
        const face = await new FontFace('expected', Uint8Array.from(atob(file), byte => byte.charCodeAt(0))).load();
        document.fonts.add(face);
        const context = document.createElement('canvas').getContext('2d');
        return ['Noto Sans Tamil', 'expected'].map(family => {
            context.font = `40px ${JSON.stringify(family)}`;
            return context.measureText('வணக்கம்').width;
        });
    }, SERIF.toString('base64'));
}

webTest('without a network and a Tamil font of the system, texts take the packed one', titled, packedFont, async page => {
    await page.page.addInitScript(() => {
        const Native = window.FontFace;
        window.FontFace = class extends Native {
            constructor(family, source, ...more) {
                super(family, String(source).startsWith('local(') ? 'local("இல்லாதது")' : source, ...more);
            }
        };
    });
    // Hosts that never answer
    await page.page.route(url => /^https?:$/.test(url.protocol) && url.hostname !== '127.0.0.1', () => {});
    await page.open(page.address);
    await page.page.waitForFunction(() => [...document.fonts].some(({ status }) => status === 'loaded'));
    const [own, expected] = await widths(page);
    assert.equal(own, expected);
    await page.text('வணக்கம்');
});

webTest('the Tamil font of the system goes before the packed one', titled, packedFont, async page => {
    await page.open(page.address);
    await page.page.waitForTimeout(500);
    const [own, packed] = await widths(page);
    assert.notEqual(own, packed);
});
