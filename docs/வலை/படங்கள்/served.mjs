// Builds an application, serves it, and opens a browser for the scripts beside this one. They need em++, Chromium, the
// packages of tests/web, the fonts that scripts/setup-web puts beside the examples, and port 6931.

import { spawn } from 'node:child_process';
import { cpSync, mkdtempSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { setTimeout as pause } from 'node:timers/promises';
import { fileURLToPath } from 'node:url';

import { launch } from '../../../tests/web/harness/browser.js';

export const here = path.dirname(fileURLToPath(import.meta.url));
export const root = path.resolve(here, '../../..');
export const examples = path.join(root, 'எடுத்துக்காட்டுகள்');

/// The compiler of this repository, as the release build leaves it.
export const staged = path.join(root, 'build/release/பொழில்/பொழி');

const SOURCE = 'படங்கள்.பொழில்';
const BUILD_TIME = 180_000;

/// Calls `use` with a browser while the application `source` is served, which has the examples' assets beside it. It is built
/// by the compiler that the command line names first, unless another is given.
export async function withApplication(source, use, compilerPath = process.argv[2] ?? staged) {
    const folder = mkdtempSync(path.join(tmpdir(), 'pozhil-pictures-'));
    cpSync(path.join(examples, 'assets'), path.join(folder, 'assets'), { recursive: true });
    writeFileSync(path.join(folder, SOURCE), source);
    const compiler = spawn(compilerPath, [SOURCE],
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
        const browser = await launch();
        await use(browser);
        await browser.close();
    } finally {
        compiler.kill();
        rmSync(folder, { recursive: true, force: true });
    }
}

/// A tab of that size with the application in it. `prepare` may change the tab before the application is loaded; `device`
/// are other options of the browser's context.
export async function openTab(browser, size, prepare = () => {}, device = {}) {
    const tab = await browser.newPage({ viewport: size, ...device });
    await prepare(tab);
    await tab.goto('http://127.0.0.1:6931/');
    await tab.waitForSelector('#textCanvas', { state: 'attached' });
    await pause(1000);
    return tab;
}

/// Waits until the page has drawn what has happened so far.
function frames(tab) {
    return tab.evaluate(() => new Promise(drawn => {
        let left = 3;
        const next = () => (left-- > 0 ? requestAnimationFrame(next) : drawn());
        next();
    }));
}

/// Presses there, and takes the pointer out of the way.
export async function press(tab, x, y) {
    const { width, height } = tab.viewportSize();
    await tab.mouse.move(x, y);
    await frames(tab);
    await tab.mouse.down();
    await frames(tab);
    await tab.mouse.up();
    await frames(tab);
    await tab.mouse.move(width - 1, height - 1);
}
