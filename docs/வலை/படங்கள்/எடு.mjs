// Takes the pictures of ../விட்ஜெட்டுகள்.md from running pages: node எடு.mjs [compiler]
//
// Each program there that names a picture becomes a page of one application, behind a page with a link to each. Behind
// the picture's size a place may stand, as 60,40: it is pressed before the picture is taken.

import { readFileSync } from 'node:fs';
import path from 'node:path';
import { setTimeout as pause } from 'node:timers/promises';

import { here, openTab, press, withApplication } from './served.mjs';

const FENCE = /^```பொழில்-வலை (\S+) (\d+)x(\d+)(?: (\d+),(\d+))?\n([^]*?)^```$/gm;
const LINK_HEIGHT = 40;
const WINDOW_WIDTH = 1280;

const page = readFileSync(path.join(here, '../விட்ஜெட்டுகள்.md'), 'utf8');
const pictures = [...page.matchAll(FENCE)].map(([, name, width, height, x, y, source]) => (
    { name, width: Number(width), height: Number(height), pressed: x && [Number(x), Number(y)], source }));

/// The application: the links, then the programs as pages of their own.
function gallery() {
    const links = pictures.map(({ name }) => `உரைபொத்தான்(உரை: "${name}", அழுத்தினால்: செல்க("${name}"))`);
    const start = `வலைதளம் (\n    தலைமை(பக்கம்: "தொடக்கம்")\n    குமரி(நெடுவரிசை(${links.join(', ')}))\n    வரையறை()\n)\n`;
    return start + pictures.map(({ name, source }) => source.replace('தலைமை(', `தலைமை(பக்கம்: "${name}", `)).join('');
}

async function takePicture(browser, index) {
    const { name, width, height, pressed } = pictures[index];
    const tab = await openTab(browser, { width: WINDOW_WIDTH, height: Math.max(height, pictures.length * LINK_HEIGHT) });
    await press(tab, 20, index * LINK_HEIGHT + LINK_HEIGHT / 2);
    await tab.setViewportSize({ width: WINDOW_WIDTH, height });
    await pause(1500);
    if (pressed) {
        await press(tab, ...pressed);
        await pause(1200);
    }
    await tab.screenshot({ path: path.join(here, `${name}.png`), clip: { x: 0, y: 0, width, height } });
    await tab.close();
}

await withApplication(gallery(), async browser => {
    for (const index of pictures.keys()) {
        await takePicture(browser, index);
    }
});
