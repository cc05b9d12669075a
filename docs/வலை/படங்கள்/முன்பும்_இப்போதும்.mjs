// Takes pictures of the same application as two compilers build it, side by side:
//
//     node முன்பும்_இப்போதும்.mjs <earlier compiler> [compiler]
//
// What is done in both is the same: on the left is what came of it then, on the right what comes of it now.

import { readFileSync, writeFileSync } from 'node:fs';
import path from 'node:path';
import { setTimeout as pause } from 'node:timers/promises';

import { examples, here, openTab, staged, withApplication } from './served.mjs';

const DESKTOP = { width: 1280, height: 800 };
const PHONE = { width: 390, height: 844 };
const PHONE_DEVICE = { deviceScaleFactor: 3, isMobile: true, hasTouch: true };

const REST = 3000;

/// Presses keys one after the other; texts of more than one letter that aren't names of keys are typed.
async function keys(tab, ...strokes) {
    for (const stroke of strokes) {
        await (/^[A-Za-z]+$/.test(stroke) ? tab.keyboard.press(stroke) : tab.keyboard.insertText(stroke));
        await pause(700);
    }
}

async function tap(tab, x, y) {
    await tab.touchscreen.tap(x, y);
    await pause(1500);
}

// `part` of the window is shown, `scale` pixels of the picture for each of its points.
const PICTURES = {
    'காட்சியகம்': [
        { device: 'கைபேசி', act: () => {}, part: { x: 0, y: 60, width: 240, height: 240 }, scale: 2 },
        { device: 'கணினி', act: tab => keys(tab, 'Tab', 'Tab'), part: { x: 80, y: 0, width: 760, height: 520 }, scale: 0.7 },
    ],
    'பதிவுப்_படிவம்': [
        { device: 'கைபேசி', act: async tab => {
            await tap(tab, 190, 330);
            await keys(tab, 'கயல்விழி');
            await tap(tab, 190, 615);
        }, part: { x: 0, y: 90, width: 390, height: 640 }, scale: 0.9 },
        { device: 'கணினி', act: tab => keys(tab, 'Tab', 'கயல்விழி', 'Tab', 'கயல்@ஊர்', 'Tab', '9876543210', 'Tab', 'Enter'),
          part: { x: 380, y: 80, width: 520, height: 640 }, scale: 0.7 },
    ],
    'ஓவியக்கூடம்': [
        { device: 'கைபேசி', act: tab => tap(tab, 190, 300), part: { x: 100, y: 280, width: 250, height: 180 }, scale: 2 },
        { device: 'கணினி', act: tab => keys(tab, 'Tab', 'Tab', 'Enter'), part: { x: 0, y: 0, ...DESKTOP }, scale: 0.4 },
    ],
};

async function take(browser, { device, act, part }) {
    const isPhone = device === 'கைபேசி';
    const tab = await openTab(browser, isPhone ? PHONE : DESKTOP, () => {}, isPhone ? PHONE_DEVICE : {});
    await pause(REST);
    await act(tab);
    await pause(REST);
    const image = (await tab.screenshot({ clip: part })).toString('base64');
    await tab.close();
    return image;
}

/// Both pictures beside each other, as a PNG of few shades.
async function sideBySide(browser, images, { part, scale }) {
    const tab = await browser.newPage();
    const joined = await tab.evaluate(async ([all, width, height]) => {
        const GAP = 12;
        const SHADES_APART = 5;
        const canvas = document.createElement('canvas');
        canvas.width = all.length * (width + GAP) - GAP;
        canvas.height = height;
        const context = canvas.getContext('2d');
        context.imageSmoothingQuality = 'high';
        for (const [place, data] of all.entries()) {
            const bitmap = await createImageBitmap(await (await fetch(`data:image/png;base64,${data}`)).blob());
            context.drawImage(bitmap, place * (width + GAP), 0, width, height);
        }
        const shades = context.getImageData(0, 0, canvas.width, canvas.height);
        shades.data.forEach((shade, at) => { shades.data[at] = Math.round(shade / SHADES_APART) * SHADES_APART; });
        context.putImageData(shades, 0, 0);
        return canvas.toDataURL('image/png').split(',')[1];
    }, [images, Math.round(part.width * scale), Math.round(part.height * scale)]);
    await tab.close();
    return Buffer.from(joined, 'base64');
}

if (process.argv.length < 3) {
    throw new Error('which compiler built the pages before?');
}
for (const [example, pictures] of Object.entries(PICTURES)) {
    const source = readFileSync(path.join(examples, `${example}.பொழில்`), 'utf8');
    const images = pictures.map(() => []);
    const takeAll = async browser => {
        for (const [place, picture] of pictures.entries()) {
            images[place].push(await take(browser, picture));
        }
    };
    await withApplication(source, takeAll, process.argv[2]);
    await withApplication(source, async browser => {
        await takeAll(browser);
        for (const [place, picture] of pictures.entries()) {
            writeFileSync(path.join(here, `முன்பு_${example}_${picture.device}.png`),
                          await sideBySide(browser, images[place], picture));
        }
    }, process.argv[3] ?? staged);
}
