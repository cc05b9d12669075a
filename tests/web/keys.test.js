// Keys: the browser's own go where they should, fields are reached one after the other, and none hides under a dialog.

import { COARSE_PHONE, application, assert, near, webTest } from './harness/index.js';

const form = application(`
        நெடுவரிசை(உருளும்பட்டை: மெய், இடைவெளி: 10)(
            உரைபெட்டி(அடையாளம்: "ஒன்று"),
            உரைபெட்டி(அடையாளம்: "இரண்டு"),
            உரை("நடுவில்", உரைபாணி(அளவு: 500)),
            உரை("அடுத்து", உரைபாணி(அளவு: 500)),
            உரைபெட்டி(அடையாளம்: "மூன்று")
        )`);

/// The field that takes the keys; whatever else may have the focus takes none.
const focused = page => page.page.evaluate(() => {
    const active = document.activeElement;
    return active.matches('.pozhil-input') ? active.id : 'BODY';
});

webTest('Tab goes from field to field and past the last one, and back', form, async page => {
    const seen = [];
    for (let press = 0; press < 4; press++) {
        await page.page.keyboard.press('Tab');
        seen.push(await focused(page));
    }
    // After the last one comes what is around the page.
    assert.deepEqual(seen, ['ஒன்று', 'இரண்டு', 'மூன்று', 'BODY']);
    await page.page.keyboard.press('Shift+Tab');
    assert.equal(await focused(page), 'மூன்று');
});

for (const [screen, context] of [['desktop', {}], ['phone', COARSE_PHONE]]) {
    webTest(`a field that Tab reaches comes into the window, and the page stays in it (${screen})`, form, context,
            async page => {
        for (const id of ['ஒன்று', 'இரண்டு', 'மூன்று']) {
            await page.page.keyboard.press('Tab');
            await page.frames(4);
            const { y, height } = await page.element(`#${id}`);
            assert.ok(y >= 0 && y + height <= page.page.viewportSize().height, `${id} at ${y}`);
            const { x, y: top } = await page.element('#canvas');
            assert.deepEqual([x, top], [0, 0]);
        }
        const text = await page.text('அடுத்து');
        near((await page.element('#மூன்று')).y - text.y, 500 + 10);
    });
}

webTest('keys that nobody has use for are left to the browser', form, async page => {
    await page.page.evaluate(() => {
        window.kept = [];
        for (const type of ['keydown', 'wheel']) {
            window.addEventListener(type, event => window.kept.push([event.key ?? 'wheel', event.defaultPrevented]));
        }
    });
    await page.page.keyboard.press('Backspace');
    await page.page.keyboard.press('Control+Equal');
    await page.page.evaluate(() => {
        for (const ctrlKey of [false, true]) {
            document.getElementById('canvas').dispatchEvent(
                new WheelEvent('wheel', { deltaY: 10, ctrlKey, bubbles: true, cancelable: true }));
        }
    });
    const kept = await page.window('kept');
    assert.deepEqual(kept.find(([key]) => key === 'Backspace'), ['Backspace', false]);
    assert.deepEqual(kept.filter(([key]) => key === '='), [['=', false]]);
    // The one without Ctrl is the program's; the other never arrives, so that the browser zooms.
    assert.deepEqual(kept.filter(([key]) => key === 'wheel'), [['wheel', true]]);
});

const dialog = application(`
        நெடுவரிசை(இடைவெளி: 0)(
            உரைபெட்டி(அடையாளம்: "மேலே"),
            இவெ(உயரம்: 100),
            உரைபெட்டி(அடையாளம்: "கீழே"),
            கடவுமறை(குறிப்பு: "கடவு"),
            பொத்தான்(உரை: "திற", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => காட்டு(மெய்)),
            எச்சரிக்கை(காட்சி_பெயர்: "பெட்டி", அகலம்: 300, உயரம்: 200)(
                நெடுவரிசை(
                    உரைபெட்டி(அடையாளம்: "உள்ளே"),
                    பொத்தான்(உரை: "மூடு", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => காட்டு(பொய்))
                )
            )
        )`, { logic: `
        பெட்டி = பொய்
        செயல் காட்டு(அ):
            பெட்டி = அ` });

const seen = (page, id) => page.page.evaluate(wanted => {
    const field = document.querySelector(wanted);
    return field.checkVisibility({ visibilityProperty: true });
}, id);

for (const [screen, context] of [['desktop', {}], ['phone', COARSE_PHONE]]) {
    webTest(`a dialog hides the fields under it from eye, pointer and keyboard (${screen})`, dialog, context,
            async page => {
        const window = page.page.viewportSize();
        const press = context.hasTouch ? (x, y) => page.tap(x, y) : (x, y) => page.click(x, y);
        const place = async text => {
            const found = await page.text(text);
            return [found.x, found.y + 8];
        };
        await page.page.fill('#மேலே', 'அ');
        await press(...await place('திற'));
        await page.text('மூடு');
        await page.frames(3);

        const top = (window.height - 200) / 2;
        const lower = await page.element('#கீழே');
        const isCovered = lower.y < top + 200 && lower.y + lower.height > top;
        assert.equal(await seen(page, '#கீழே'), !isCovered);
        assert.equal(await seen(page, '.pozhil-input[placeholder="கடவு"]'), false);
        assert.equal(await seen(page, '#மேலே'), true);
        assert.equal(await seen(page, '#உள்ளே'), true);

        assert.equal(await focused(page), 'BODY');
        const upper = await page.element('#மேலே');
        await page.page.mouse.click(upper.x + 20, upper.y + 20);
        assert.equal(await focused(page), 'BODY');
        await page.page.keyboard.press('Tab');
        assert.equal(await focused(page), 'உள்ளே');
        await page.page.keyboard.type('ஆ');
        await page.page.keyboard.press('Tab');
        assert.equal(await focused(page), 'BODY');
        assert.deepEqual([(await page.element('#மேலே')).value, (await page.element('#உள்ளே')).value], ['அ', 'ஆ']);

        await press(...await place('மூடு'));
        await page.frames(5);
        for (const id of ['#மேலே', '#கீழே', '.pozhil-input[placeholder="கடவு"]']) {
            assert.equal(await seen(page, id), true, id);
        }
        await page.page.focus('#கீழே');
        assert.equal(await focused(page), 'கீழே');
    });
}
