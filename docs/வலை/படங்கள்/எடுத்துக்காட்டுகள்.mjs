// Takes pictures of the larger examples from running pages: node எடுத்துக்காட்டுகள்.mjs [compiler] [example...]
//
// All of them, or those that are named: காட்சியகம், ஓவியக்கூடம், கடை_நிலவரம் and the examples of the second edition
// scaled down, in a window of a desktop and in one of a phone; and வளைவுகள் with several moments of its balls laid over
// each other.

import { readFileSync, writeFileSync } from 'node:fs';
import path from 'node:path';
import { setTimeout as pause } from 'node:timers/promises';

import { examples, here, openTab, press, withApplication } from './served.mjs';

const DESKTOP = { width: 1280, height: 800 };
const PHONE = { width: 390, height: 844 };
const DESKTOP_SCALE = 0.5;
const PHONE_SCALE = 0.7;

const REST = 4000;
// By then numbers have been counted up, on a slow machine too.
const COUNTING = 25_000;

// `presses` lead to what the picture shows, `rest` is how long it takes to come.
const PICTURES = {
    'காட்சியகம்': [
        { name: 'காட்சியகம்', size: DESKTOP, presses: [] },
        { name: 'காட்சியகம்_கைபேசி', size: PHONE, presses: [] },
        { name: 'காட்சியகம்_படம்', size: DESKTOP, presses: [[500, 460]] },
        { name: 'காட்சியகம்_அமைப்பு_கைபேசி', size: PHONE, presses: [[200, 208]] },
    ],
    'ஓவியக்கூடம்': [
        { name: 'ஓவியக்கூடம்', size: DESKTOP, presses: [] },
        { name: 'ஓவியக்கூடம்_கைபேசி', size: PHONE, presses: [[190, 300]] },
    ],
    'கடை_நிலவரம்': [
        { name: 'கடை_நிலவரம்', size: DESKTOP, presses: [], rest: COUNTING },
        { name: 'கடை_நிலவரம்_கைபேசி', size: PHONE, presses: [], rest: COUNTING },
    ],
};

const SECOND = 'இரண்டாம்_பதிப்பு/';
for (const name of ['பணிப்_பட்டியல்', 'பதிவுப்_படிவம்', 'கணிப்பான்', 'கடை', 'கடை_நிலவரம்', 'காட்சியகம்']) {
    PICTURES[SECOND + name] = [
        { name: `${name}_2`, size: DESKTOP, presses: [] },
        { name: `${name}_2_கைபேசி`, size: PHONE, presses: [] },
    ];
}

const CURVES = 'வளைவுகள்';
// The balls of வளைவுகள் run for 240 frames.
const MOMENTS = 5;
const FRAMES_BETWEEN = 60;
const CURVES_WINDOW = { width: 1280, height: 780 };

function source(example) {
    return readFileSync(path.join(examples, `${example}.பொழில்`), 'utf8');
}

function save(name, base64) {
    writeFileSync(path.join(here, `${name}.png`), Buffer.from(base64, 'base64'));
}

/// One picture of several, scaled: where they differ, the darkest pixel stays. Shades that differ by less than `step`
/// become one, which makes a small file.
function layOver(tab, images, scale, step = 1) {
    return tab.evaluate(async ([all, factor, apart]) => {
        let context;
        for (const data of all) {
            const bitmap = await createImageBitmap(await (await fetch(`data:image/png;base64,${data}`)).blob());
            if (!context) {
                const canvas = document.createElement('canvas');
                canvas.width = bitmap.width * factor;
                canvas.height = bitmap.height * factor;
                context = canvas.getContext('2d');
                context.imageSmoothingQuality = 'high';
            } else {
                context.globalCompositeOperation = 'darken';
            }
            context.drawImage(bitmap, 0, 0, context.canvas.width, context.canvas.height);
        }
        const shades = context.getImageData(0, 0, context.canvas.width, context.canvas.height);
        shades.data.forEach((shade, at) => { shades.data[at] = Math.round(shade / apart) * apart; });
        context.putImageData(shades, 0, 0);
        return context.canvas.toDataURL('image/png').split(',')[1];
    }, [images, scale, step]);
}

async function takePicture(browser, { name, size, presses, rest = REST }) {
    const tab = await openTab(browser, size);
    for (const place of presses) {
        await press(tab, ...place);
        await pause(500);
    }
    await pause(rest);
    const image = (await tab.screenshot()).toString('base64');
    save(name, await layOver(tab, [image], size === PHONE ? PHONE_SCALE : DESKTOP_SCALE));
    await tab.close();
}

/// Frames come when they are asked for, so that the moments are those that the picture needs.
async function takeOverFrames(tab) {
    await tab.addInitScript(() => {
        let waiting = [];
        window.requestAnimationFrame = frame => waiting.push(frame);
        window.showFrames = count => {
            for (; count > 0; count--) {
                const due = waiting;
                waiting = [];
                due.forEach(frame => frame(performance.now()));
            }
        };
    });
}

async function takeCurves(browser) {
    const tab = await openTab(browser, CURVES_WINDOW, takeOverFrames);
    await pause(1000);
    const images = [];
    for (let moment = 0; moment < MOMENTS; moment++) {
        await tab.evaluate(count => window.showFrames(count), moment === 0 ? 2 : FRAMES_BETWEEN);
        await pause(500);
        images.push((await tab.screenshot()).toString('base64'));
    }
    save(CURVES, await layOver(tab, images, 0.6, 17));
    await tab.close();
}

const named = process.argv.slice(3);
const isWanted = example => named.length === 0 || named.includes(example);

for (const [example, pictures] of Object.entries(PICTURES).filter(([name]) => isWanted(name))) {
    await withApplication(source(example), async browser => {
        for (const picture of pictures) {
            await takePicture(browser, picture);
        }
    });
}
if (isWanted(CURVES)) {
    await withApplication(source(CURVES), takeCurves);
}
