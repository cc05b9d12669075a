// Takes the pictures of the chapters beside this folder from running pages: node எடு.mjs [compiler [picture...]]
//
// A program that names a picture tells its size there. Behind the size a place may stand, as 60,40: it is pressed before the
// picture is taken. The programs of the first edition become pages of one application, behind a page with a link to each;
// one of the second edition is an application of its own.

import { readFileSync, readdirSync } from 'node:fs';
import path from 'node:path';
import { setTimeout as pause } from 'node:timers/promises';

import { here, openTab, press, withApplication } from './served.mjs';

const FENCE = /^```பொழில்-வலை (\S+) (\d+)x(\d+)(?: (\d+),(\d+))?\n([^]*?)^```$/gm;
const MARKER = 'ஃ பொழில் 2\n';
const LINK_HEIGHT = 40;
const WINDOW_WIDTH = 1280;

const chapters = path.join(here, '..');
const wanted = process.argv.slice(3);

function picturesOf(chapter) {
    const text = readFileSync(path.join(chapters, chapter), 'utf8');
    return [...text.matchAll(FENCE)].map(([, name, width, height, x, y, source]) => (
        { name, width: Number(width), height: Number(height), pressed: x && [Number(x), Number(y)], source }));
}

const pictures = readdirSync(chapters).filter(name => name.endsWith('.md')).flatMap(picturesOf)
    .filter(({ name }) => wanted.length === 0 || wanted.includes(name));
const ofFirst = pictures.filter(({ source }) => !source.startsWith(MARKER));
const ofSecond = pictures.filter(({ source }) => source.startsWith(MARKER));

/// The application: the links, then the programs as pages of their own.
function gallery() {
    const links = ofFirst.map(({ name }) => `உரைபொத்தான்(உரை: "${name}", அழுத்தினால்: செல்க("${name}"))`);
    const start = `வலைதளம் (\n    தலைமை(பக்கம்: "தொடக்கம்")\n    குமரி(நெடுவரிசை(${links.join(', ')}))\n    வரையறை()\n)\n`;
    return start + ofFirst.map(({ name, source }) => source.replace('தலைமை(', `தலைமை(பக்கம்: "${name}", `)).join('');
}

async function takePicture(tab, { name, width, height, pressed }) {
    await pause(1500);
    if (pressed) {
        await press(tab, ...pressed);
        await pause(1200);
    }
    await tab.screenshot({ path: path.join(here, `${name}.png`), clip: { x: 0, y: 0, width, height } });
    await tab.close();
}

async function takeFromGallery(browser, index) {
    const picture = ofFirst[index];
    const tab = await openTab(browser, { width: WINDOW_WIDTH,
                                         height: Math.max(picture.height, ofFirst.length * LINK_HEIGHT) });
    await press(tab, 20, index * LINK_HEIGHT + LINK_HEIGHT / 2);
    await tab.setViewportSize({ width: WINDOW_WIDTH, height: picture.height });
    await takePicture(tab, picture);
}

if (ofFirst.length > 0) {
    await withApplication(gallery(), async browser => {
        for (const index of ofFirst.keys()) {
            await takeFromGallery(browser, index);
        }
    });
}
for (const picture of ofSecond) {
    const { width, height, source } = picture;
    await withApplication(source, async browser => takePicture(await openTab(browser, { width, height }), picture));
}
