// Takes the pictures of ../விட்ஜெட்டுகள்.md from running pages: node எடு.mjs [compiler]
//
// Each program there that names a picture becomes a page of one application, behind a page with a link to each. It needs
// em++, Chromium, the packages of tests/web and the fonts that scripts/setup-web puts beside the examples, and port 6931.

import { spawn } from 'node:child_process';
import { cpSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { setTimeout as pause } from 'node:timers/promises';
import { fileURLToPath } from 'node:url';

const here = path.dirname(fileURLToPath(import.meta.url));
const root = path.resolve(here, '../../..');
const { chromium } = createRequire(path.join(root, 'tests/web/package.json'))('playwright-core');

const FENCE = /^```பொழில்-வலை (\S+) (\d+)x(\d+)\n([^]*?)^```$/gm;
const LINK_HEIGHT = 40;
const WINDOW_WIDTH = 1280;
const BUILD_TIME = 180_000;

const page = readFileSync(path.join(here, '../விட்ஜெட்டுகள்.md'), 'utf8');
const pictures = [...page.matchAll(FENCE)].map(([, name, width, height, source]) => (
    { name, width: Number(width), height: Number(height), source }));

/// The application: the links, then the programs as pages of their own.
function gallery() {
    const links = pictures.map(({ name }) => `உரைபொத்தான்(உரை: "${name}", அழுத்தினால்: செல்க("${name}"))`);
    const start = `வலைதளம் (\n    தலைமை(பக்கம்: "தொடக்கம்")\n    குமரி(நெடுவரிசை(${links.join(', ')}))\n    வரையறை()\n)\n`;
    return start + pictures.map(({ name, source }) => source.replace('தலைமை(', `தலைமை(பக்கம்: "${name}", `)).join('');
}

async function takePicture(browser, index) {
    const { name, width, height } = pictures[index];
    const size = { width: WINDOW_WIDTH, height: Math.max(height, pictures.length * LINK_HEIGHT) };
    const tab = await browser.newPage({ viewport: size });
    await tab.goto('http://127.0.0.1:6931/');
    await tab.waitForSelector('#textCanvas', { state: 'attached' });
    await pause(1000);
    await tab.mouse.click(20, index * LINK_HEIGHT + LINK_HEIGHT / 2, { delay: 100 });
    await tab.mouse.move(size.width - 1, size.height - 1);
    await tab.setViewportSize({ width: WINDOW_WIDTH, height });
    await pause(1500);
    await tab.screenshot({ path: path.join(here, `${name}.png`), clip: { x: 0, y: 0, width, height } });
    await tab.close();
}

const folder = mkdtempSync(path.join(tmpdir(), 'pozhil-pictures-'));
cpSync(path.join(root, 'எடுத்துக்காட்டுகள்/assets'), path.join(folder, 'assets'), { recursive: true });
writeFileSync(path.join(folder, 'படங்கள்.பொழில்'), gallery());
const compiler = spawn(process.argv[2] ?? path.join(root, 'build/release/பொழில்/பொழி'), ['படங்கள்.பொழில்'],
                       { cwd: folder, env: { ...process.env, BROWSER: 'none', POZHIL_ANIMATION_MS: '0' } });
let output = '';
compiler.stdout.on('data', text => { output += text; });
compiler.stderr.pipe(process.stderr);
try {
    for (const end = Date.now() + BUILD_TIME; !output.includes('127.0.0.1:6931'); await pause(100)) {
        if (compiler.exitCode !== null || Date.now() > end) {
            throw new Error(`no page:\n${output}`);
        }
    }
    await pause(500);
    const browser = await chromium.launch({
        executablePath: process.env.POZHIL_CHROMIUM || '/usr/bin/chromium',
        args: ['--no-sandbox', '--use-gl=angle', '--use-angle=swiftshader', '--enable-unsafe-swiftshader'],
    });
    for (const index of pictures.keys()) {
        await takePicture(browser, index);
    }
    await browser.close();
} finally {
    compiler.kill();
    rmSync(folder, { recursive: true, force: true });
}
