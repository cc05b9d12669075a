// What the canvas shows is in the document too: for screen readers, search, copies and the keyboard.

import { readFileSync } from 'node:fs';

import axe from 'axe-core';

import { PHONE, application, assert, near, webTest } from './harness/index.js';
import { example } from './harness/examples.js';
import { gif, png, svg } from './harness/pictures.js';

const form = application(`
        நெடுவரிசை(உருளும்பட்டை: மெய், இடைவெளி: 16)(
            தத்தல்(தத்தல்_தேர்வு: 1, தத்தல்_உருப்படி("ஒன்று"), தத்தல்_உருப்படி(உரை: "இரண்டு")),
            உரை("பெயர் <b>எது</b> & ஏன்?"),
            உரைபெட்டி(அடையாளம்: "பெயர்", குறிப்பு: "எ.கா. கயல்"),
            உரைபெட்டி(அடையாளம்: "ஊர்", குறிப்பு: "உன் ஊர்"),
            பொத்தான்(உரை: "கூட்டு", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => கூட்டு_செய்()),
            உரை(எண்ணிக்கை),
            உரைபொத்தான்(உரை: "போ", அழுத்தினால்: () => செல்க("வேறு")),
            கிடைவரிசை(இடைவெளி: 10)(உரை("இருள்"), மாற்றி(ஆரம்ப_நிலை: மெய்)),
            உரை("ஒலி"),
            அளவி(குறைந்தபட்சம்: 0, அதிகபட்சம்: 50, மதிப்பு: 25),
            அளவி(செயலிழப்பு: மெய்),
            தேர்வுபெட்டி(அடையாளம்: "ஏற்பு", உரை("ஏற்கிறேன்")),
            வட்டத்தேர்வு(உரை: "பெரியது", மதிப்பு: "பெ", குழு_மதிப்பு: அளவு_தேர்வு, மாறியதால்: () => அளவு_தேர்வு = "பெ"),
            வட்டத்தேர்வு(உரை: "சிறியது", மதிப்பு: "சி", குழு_மதிப்பு: அளவு_தேர்வு, மாறியதால்: () => அளவு_தேர்வு = "சி"),
            கீழ்வரி(பட்டியல்: ["சிவப்பு", "நீலம்"]),
            முன்னேற்றவரி(மதிப்பு: 40, அகலம்: 200),
            பெட்டி(அகலம்: 200, உயரம்: 60, உரை("பெட்டியில்"), அழுத்தினால்: () => கூட்டு_செய்()),
            பெட்டி(காட்சி_பெயர்: "ஒளிந்தது_காண்", அகலம்: 200, உயரம்: 60, உரை("மறைந்தது"), அழுத்தினால்: () => கூட்டு_செய்()),
            பெட்டி(அகலம்: 200, உயரம்: 60, உரை("வெறும் பெட்டி")),
            பட்டியல்_உருப்படி(தலைப்பு: உரை("உருப்படி"), துணைத்_தலைப்பு: உரை("துணை"), அழுத்தினால்: () => கூட்டு_செய்()),
            பொத்தான்(உரை: "திற", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => உறுதி = மெய்),
            பொத்தான்(உரை: "சொல்", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: அறிவிப்பு_பட்டை(செய்தி: "வணக்கம்")),
            எச்சரிக்கை(காட்சி_பெயர்: "உறுதி", எச்சரிக்கை_பாணி(அகலம்: 300, உயரம்: 160))(
                நெடுவரிசை(
                    உரை("உறுதியா?"),
                    பொத்தான்(உரை: "மூடு", பொ_பாணி(அகலம்: 100, உயரம்: 40), அழுத்தினால்: () => உறுதி = பொய்)
                )
            )
        )`, { logic: `
        எண்ணிக்கை = 0
        உறுதி = பொய்
        ஒளிந்தது_காண் = பொய்
        அளவு_தேர்வு = "பெ"
        செயல் கூட்டு_செய்():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1` });

const tree = page => page.page.locator('main').ariaSnapshot();

/// Waits until the accessibility tree holds this line.
async function waitForLine(page, line) {
    let shown = '';
    for (const end = Date.now() + 20_000; Date.now() < end;) {
        shown = await tree(page);
        if (shown.split('\n').some(one => one.trim() === line)) {
            return;
        }
        await page.page.waitForTimeout(50);
    }
    assert.fail(`"${line}" is not in\n${shown}`);
}

const widget = (page, role, name) => page.page.getByRole(role, { name, exact: true });

webTest('all that is drawn is in the tree, with role, name and state, in reading order', form, async page => {
    await waitForLine(page, '- button "சொல்"');
    assert.equal(await tree(page), `- main:
  - tablist:
    - tab "ஒன்று"
    - tab "இரண்டு" [selected]
  - text: பெயர் <b>எது</b> & ஏன்?
  - textbox "பெயர் <b>எது</b> & ஏன்?":
    - /placeholder: எ.கா. கயல்
  - textbox "உன் ஊர்"
  - button "கூட்டு"
  - text: "0"
  - link "போ"
  - text: இருள்
  - switch "இருள்" [checked]
  - text: ஒலி
  - slider "ஒலி"
  - slider "அளவி" [disabled]
  - checkbox "ஏற்கிறேன்"
  - radio "பெரியது" [checked]
  - radio "சிறியது"
  - button "தேர்ந்தெடு..."
  - progressbar "முன்னேற்றம்"
  - button "பெட்டியில்"
  - text: வெறும் பெட்டி
  - button "உருப்படி துணை"
  - button "திற"
  - button "சொல்"`);
    const value = await widget(page, 'slider', 'ஒலி').evaluate(
        ({ ariaValueMin, ariaValueNow, ariaValueMax }) => [ariaValueMin, ariaValueNow, ariaValueMax]);
    assert.deepEqual(value, ['0', '25', '50']);
    assert.equal(await widget(page, 'progressbar', 'முன்னேற்றம்').evaluate(({ ariaValueNow }) => ariaValueNow), '40');
    assert.equal(await page.page.evaluate(() => document.querySelectorAll('main b').length), 0);
});

/// What the browser tells screen readers of: roles and names.
async function namesInBrowser(page) {
    const { nodes } = await (await page.devtools()).send('Accessibility.getFullAXTree');
    return nodes.filter(({ ignored, name }) => !ignored && name?.value).map(
        ({ role, name }) => `${role.value} ${name.value}`);
}

webTest('the browser itself finds names and roles', form, async page => {
    await waitForLine(page, '- button "சொல்"');
    const named = await namesInBrowser(page);
    for (const wanted of ['button கூட்டு', 'link போ', 'switch இருள்', 'checkbox ஏற்கிறேன்', 'tab இரண்டு',
        'textbox பெயர் <b>எது</b> & ஏன்?', 'StaticText வெறும் பெட்டி']) {
        assert.ok(named.includes(wanted), `${wanted} in ${named.join(', ')}`);
    }
});

webTest('texts stand where they are drawn, to be found, selected and copied', form, async page => {
    await waitForLine(page, '- button "சொல்"');
    const texts = await page.texts();
    const written = (await page.page.evaluate(() => document.body.innerText)).split('\n');
    for (const { text } of texts.filter(({ text }) => text !== '')) {
        assert.ok(written.includes(text), text);
    }
    const drawn = await page.text('வெறும் பெட்டி');
    const box = await page.page.locator('.pozhil-text', { hasText: 'வெறும் பெட்டி' }).boundingBox();
    near(box.x, drawn.x, 1);
    near(box.width, await page.textWidth('வெறும் பெட்டி', drawn.size), 1);
    assert.ok(box.y <= drawn.y && box.y + box.height >= drawn.y + drawn.size, `${box.y} to ${box.y + box.height}`);

    const { x, y, width, height } = await page.page.locator('.pozhil-text', { hasText: 'எது' }).boundingBox();
    await page.page.mouse.move(x + 1, y + height / 2);
    await page.page.mouse.down();
    await page.page.mouse.move(x + width - 1, y + height / 2, { steps: 4 });
    await page.page.mouse.up();
    assert.equal(await page.page.evaluate(() => getSelection().toString()), 'பெயர் <b>எது</b> & ஏன்?');
    const copied = await page.page.evaluate(() => new Promise(resolve => {
        document.addEventListener('copy', () => resolve(getSelection().toString()));
        document.execCommand('copy');
    }));
    assert.equal(copied, 'பெயர் <b>எது</b> & ஏன்?');
});

webTest('what a search finds below comes into the window', form, async page => {
    await waitForLine(page, '- button "சொல்"');
    assert.ok((await page.text('வெறும் பெட்டி')).y > 400);
    // As browsers do, which don't let scripts search.
    await page.page.locator('.pozhil-text', { hasText: 'வெறும் பெட்டி' }).evaluate(element => element.scrollIntoView());
    await page.page.waitForFunction(() => window.recorded.texts.find(({ text }) => text === 'வெறும் பெட்டி').y < 380,
                                    undefined, { timeout: 10_000 });
});

webTest('Tab goes from widget to widget, Enter and Space press them', form, async page => {
    await waitForLine(page, '- button "சொல்"');
    const focused = () => page.page.evaluate(() => document.activeElement.getAttribute('aria-label')
        ?? document.activeElement.textContent);
    const seen = [];
    for (let step = 0; step < 18; step++) {
        await page.page.keyboard.press('Tab');
        seen.push(await focused());
    }
    assert.deepEqual(seen, ['ஒன்று', 'இரண்டு', 'பெயர் <b>எது</b> & ஏன்?', 'உன் ஊர்', 'கூட்டு', 'போ', 'இருள்', 'ஒலி',
        'ஏற்கிறேன்', 'பெரியது', 'சிறியது', 'தேர்ந்தெடு...', 'பெட்டியில்', 'உருப்படிதுணை', 'திற', 'சொல்', ...seen.slice(16)]);

    await widget(page, 'button', 'கூட்டு').focus();
    await page.page.keyboard.press('Enter');
    await page.waitForText('1');
    await page.page.keyboard.press(' ');
    await page.waitForText('2');
    await widget(page, 'button', 'பெட்டியில்').focus();
    await page.page.keyboard.press('Enter');
    await page.waitForText('3');
    await widget(page, 'switch', 'இருள்').focus();
    await page.page.keyboard.press(' ');
    await waitForLine(page, '- switch "இருள்"');
    await widget(page, 'checkbox', 'ஏற்கிறேன்').focus();
    await page.page.keyboard.press(' ');
    await waitForLine(page, '- checkbox "ஏற்கிறேன்" [checked]');
    await widget(page, 'radio', 'சிறியது').focus();
    await page.page.keyboard.press('Enter');
    await waitForLine(page, '- radio "பெரியது"');
    await widget(page, 'tab', 'ஒன்று').focus();
    await page.page.keyboard.press('Enter');
    await waitForLine(page, '- tab "இரண்டு"');
});

webTest('keys move a slider', form, async page => {
    await waitForLine(page, '- button "சொல்"');
    const slider = widget(page, 'slider', 'ஒலி');
    const becomes = value => page.page.waitForFunction(
        wanted => document.querySelector('[role=slider]').ariaValueNow === wanted, value, { timeout: 10_000 });
    await slider.focus();
    await page.page.keyboard.press('ArrowRight');
    await becomes('27.5');
    await page.page.keyboard.press('ArrowLeft');
    await becomes('25');
    await page.page.keyboard.press('End');
    await becomes('50');
    await page.page.keyboard.press('Home');
    await becomes('0');
});

webTest('a menu is opened and chosen from by the keyboard', form, async page => {
    await waitForLine(page, '- button "சொல்"');
    await widget(page, 'button', 'தேர்ந்தெடு...').focus();
    await page.page.keyboard.press('Enter');
    await waitForLine(page, '- option "நீலம்"');
    await widget(page, 'option', 'நீலம்').focus();
    await page.page.keyboard.press('Enter');
    await waitForLine(page, '- button "நீலம்"');
    assert.ok(!(await tree(page)).includes('listbox'));
});

webTest('of a dialog nothing is seen but the dialog, and messages are said', form, async page => {
    await waitForLine(page, '- button "சொல்"');
    await widget(page, 'button', 'சொல்').press('Enter');
    await page.page.waitForFunction(() => document.querySelector('[role=status]#pozhil-said').textContent === 'வணக்கம்',
                                    undefined, { timeout: 10_000 });
    await widget(page, 'button', 'திற').press('Enter');
    await waitForLine(page, '- button "மூடு"');
    const names = await namesInBrowser(page);
    for (const [wanted, isThere] of [['dialog உறுதியா?', true], ['button மூடு', true], ['button கூட்டு', false],
        ['textbox உன் ஊர்', false]]) {
        assert.equal(names.includes(wanted), isThere, `${wanted} in ${names.join(', ')}`);
    }
    const focused = () => page.page.evaluate(() => document.activeElement.textContent);
    assert.equal(await focused(), 'மூடு');
    await page.page.keyboard.press('Enter');
    await page.page.waitForFunction(() => !document.querySelector('[role=dialog]'), undefined, { timeout: 10_000 });
    assert.ok((await namesInBrowser(page)).includes('button கூட்டு'));
    assert.equal(await focused(), 'திற');
});

const turned = application(`
        நெடுவரிசை(
            உரைபொத்தான்(உரை: "முதல்"),
            உரைபொத்தான்(உரை: "போ", அழுத்தினால்: செல்க("ஆ"))
        )`, { header: 'பக்கம்: "அ"' }) + application(`
        நெடுவரிசை(
            உரைபொத்தான்(உரை: "திரும்பு", அழுத்தினால்: செல்க("அ")),
            உரைபொத்தான்(உரை: "இரண்டு")
        )`, { header: 'பக்கம்: "ஆ"' });

webTest('a page that is turned is read alone, and the keyboard begins at its top', turned, async page => {
    await waitForLine(page, '- link "போ"');
    await page.page.evaluate(() => {
        const root = document.getElementById('pozhil-shown');
        window.mixed = [];
        new MutationObserver(() => {
            const shown = [...root.querySelectorAll('.pozhil-text')].map(({ textContent }) => textContent);
            window.mixed.push(...shown.includes('போ') && shown.includes('திரும்பு') ? [shown.join(' ')] : []);
        }).observe(root, { subtree: true, childList: true, characterData: true });
    });
    for (const [from, to] of [['போ', 'திரும்பு'], ['திரும்பு', 'போ'], ['போ', 'திரும்பு']]) {
        await widget(page, 'link', from).press('Enter');
        await waitForLine(page, `- link "${to}"`);
        assert.equal(await page.page.evaluate(() => document.activeElement.tagName), 'MAIN');
    }
    await page.page.keyboard.press('Tab');
    assert.equal(await page.page.evaluate(() => document.activeElement.textContent), 'திரும்பு');
    assert.deepEqual(await page.window('mixed'), []);
});

webTest('a screen reader presses without a pointer', form, async page => {
    await waitForLine(page, '- button "சொல்"');
    await widget(page, 'button', 'கூட்டு').evaluate(element => element.click());
    await page.waitForText('1');
});

webTest('the pointer presses what is drawn, once', form, async page => {
    await waitForLine(page, '- button "சொல்"');
    const { x, y } = await page.text('கூட்டு');
    await page.click(x, y + 8);
    await page.waitForText('1');
    await page.frames(20);
    await page.text('1');
});

webTest('a page with a thousand widgets is followed at little cost, and at none while nothing changes', application(`
        நெடுவரிசை(உருளும்பட்டை: மெய், இடைவெளி: 4)(
            ${Array.from({ length: 500 }, (_, row) => `உரை("வரி ${row}"), பொத்தான்(உரை: "அழுத்து ${row}", பொ_பாணி(அகலம்: 120, உயரம்: 40))`).join(',\n            ')}
        )`), { open: false }, async page => {
    await page.visit(page.address);
    await page.ready();
    await waitForLine(page, '- button "அழுத்து 499"');
    // How much of the time of frames goes to what is done after them.
    await page.page.evaluate(() => {
        const { preMainLoop, postMainLoop } = Module;
        let begin = 0;
        window.spent = { frames: 0, after: 0 };
        Module.preMainLoop = () => {
            begin = performance.now();
            return preMainLoop();
        };
        Module.postMainLoop = () => {
            const drawn = performance.now();
            postMainLoop();
            window.spent.after += performance.now() - drawn;
            window.spent.frames += performance.now() - begin;
        };
    });
    const count = () => page.page.evaluate(() => window.mirrorings);
    await page.page.evaluate(() => {
        window.mirrorings = 0;
        new MutationObserver(changes => { window.mirrorings += changes.length; }).observe(
            document.getElementById('pozhil-shown'), { subtree: true, childList: true, attributes: true, characterData: true });
    });
    await page.frames(60);
    await page.moveTo(100, 100);
    assert.equal(await count(), 0);
    await page.wheel(0, 100);
    await page.page.waitForFunction(() => window.mirrorings > 0, undefined, { timeout: 10_000 });
    for (let turn = 0; turn < 20; turn++) {
        await page.wheel(0, 20);
    }
    const { frames, after } = await page.window('spent');
    assert.ok(after / frames < 0.15, `${after} of ${frames} milliseconds`);
});

webTest('nothing widens a phone', form, PHONE, async page => {
    await waitForLine(page, '- button "சொல்"');
    assert.deepEqual(await page.page.evaluate(() => [innerWidth, visualViewport.width, document.documentElement.scrollWidth]),
                     [390, 390, 390]);
});

const picture = (file, more = '') => `படம்(பாதை: "assets/${file}", அகலம்: 40, உயரம்: 40${more})`;
const pictures = application(`
        நெடுவரிசை(இடைவெளி: 4)(
            ${picture('நம்_ஊர்.png')},
            ${picture('நம்_ஊர்.png', ', விளக்கம்: "தஞ்சைக் கோயில்", வளைவு: 8')},
            ${picture('கோடு.svg', ', விளக்கம்: ""')},
            ${picture('இல்லை.png')},
            ${picture('ஆட்டம்.gif')},
            வட்டபடம்(படம்(பாதை: "assets/தோழி.png"), அகலம்: 40),
            பெட்டி(அகலம்: 200, உயரம்: 50, அழுத்தினால்: () => கூட்டு_செய்(), ${picture('கயல்.svg', ', சீரமைப்பு: மையம்')}),
            பெட்டி(அகலம்: 200, உயரம்: 50, அழுத்தினால்: () => கூட்டு_செய்(),
                   கிடைவரிசை(${picture('கயல்.svg')}, உரை("கயல்விழி"))),
            பெட்டி(அகலம்: 200, உயரம்: 50, பின்னணிபடம்: "assets/கயல்.svg", உரை("பெட்டி")),
            பெட்டி(அகலம்: 200, உயரம்: 50, பின்னணிபடம்: "assets/நம்_ஊர்.png", அழுத்தினால்: () => கூட்டு_செய்()),
            பக்கம்(பெட்டி(அகலம்: 90, உயரம்: 50, உரை("செல்"), அழுத்தினால்: () => செல்க("வேறு"))),
            உரை(எண்ணிக்கை)
        )`, { header: 'பின்னணிபடம்: "assets/நம்_ஊர்.png"', logic: `
        எண்ணிக்கை = 0
        செயல் கூட்டு_செய்():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1` });
const pictureFiles = { 'assets/நம்_ஊர்.png': png(8, [255, 0, 0]), 'assets/தோழி.png': png(8, [0, 255, 0]),
                       'assets/கயல்.svg': svg('#0000ff'), 'assets/கோடு.svg': svg('#00ff00'), 'assets/ஆட்டம்.gif': gif(8, [[255, 0, 255]], 50) };

webTest('pictures are told by what they show, and those that only adorn are not', pictures, { files: pictureFiles },
        async page => {
    await waitForLine(page, '- img "ஆட்டம்"');
    assert.equal(await tree(page), `- main:
  - img "நம் ஊர்"
  - img "தஞ்சைக் கோயில்"
  - img "ஆட்டம்"
  - img "தோழி"
  - button "கயல்"
  - button "கயல்விழி"
  - text: பெட்டி
  - button "பொத்தான்"
  - link "செல்"
  - text: "0"`);
    const box = await widget(page, 'img', 'தஞ்சைக் கோயில்').boundingBox();
    assert.deepEqual(box, { x: 0, y: 44, width: 40, height: 40 });
    await widget(page, 'button', 'கயல்').press('Enter');
    await page.waitForText('1');
    await page.page.evaluate(axe.source);
    const { violations } = await page.page.evaluate(() => window.axe.run());
    assert.deepEqual(violations.map(({ id, impact }) => `${impact} ${id}`).filter(text => /^(serious|critical)/.test(text)), []);
});

for (const name of ['காட்சியகம்', 'பதிவுப்_படிவம்']) {
    webTest(`${name}: an automatic check finds nothing serious`, ...example(name), async page => {
        await page.page.waitForFunction(() => document.querySelectorAll('.pozhil-widget').length > 0);
        await page.page.evaluate(axe.source);
        const { violations } = await page.page.evaluate(() => window.axe.run());
        assert.deepEqual(violations.map(({ id, impact, nodes }) => `${impact} ${id}: ${nodes[0].html}`)
            .filter(text => /^(serious|critical)/.test(text)), []);
    });
}

const guide = readFileSync(new URL('../../docs/வலை/அணுகல்.md', import.meta.url), 'utf8');

webTest('the page of the guide is read as the guide says', /^```பொழில்-வலை\n([^]*?)^```$/m.exec(guide)[1], async page => {
    await waitForLine(page, '- slider "ஒலியின் அளவு"');
    const names = await namesInBrowser(page);
    for (const wanted of ['switch இருள் பயன்முறை', 'slider ஒலியின் அளவு', 'textbox பெயர்']) {
        assert.ok(names.includes(wanted), `${wanted} in ${names.join(', ')}`);
    }
});
