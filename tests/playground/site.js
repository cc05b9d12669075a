// The built playground, served below a path with blanks and Tamil letters, and opened in Chromium.

import assert from 'node:assert/strict';
import { readFileSync, readdirSync } from 'node:fs';
import { createRequire } from 'node:module';
import path from 'node:path';
import { after, before, test } from 'node:test';
import { fileURLToPath } from 'node:url';

import { launch } from '../web/harness/browser.js';
import { StaticServer } from '../web/harness/static_server.js';

export const ROOT = path.resolve(path.dirname(fileURLToPath(import.meta.url)), '../..');
const SITE = process.env.POZHIL_PLAYGROUND || path.join(ROOT, 'build/playground/site');
/// The command beside the compiler that is tested.
export const COMMAND = path.join(path.dirname(process.env.POZHIL_COMPILER || path.join(ROOT, 'build/release/பொழில்/பொழி')), 'பொழில்');

const PATIENCE = 30_000;

export const PHONE = { viewport: { width: 390, height: 844 }, deviceScaleFactor: 2, hasTouch: true, isMobile: true };

const files = new Map(readdirSync(SITE).map(name => [name, readFileSync(path.join(SITE, name))]));
let browser;
let server;

before(async () => {
    browser = await launch();
    server = await new StaticServer().start();
});

after(async () => {
    await browser?.close();
    server?.stop();
});

/// A script that defines window.axe.
export const ACCESSIBILITY_CHECK = createRequire(path.join(ROOT, 'tests/web/package.json'))('axe-core').source;

/// The files of the site by name.
export const siteFiles = files;

/// Text of a file of the repository.
export const repositoryFile = name => readFileSync(path.join(ROOT, name), 'utf8');

/// The playground in a tab of its own, without anything kept from before.
export class Playground {
    errors = [];
    requests = [];

    /// `options` of the browser's context; `files` to be served in the place of the built ones; `hash` of the address;
    /// `prepare` is given the empty page.
    static async open({ options = {}, hash = '', served = files, prepare = async () => {} } = {}) {
        const playground = new Playground();
        playground.address = server.add(served);
        playground.context = await browser.newContext({ locale: 'ta-IN', ...options });
        await playground.context.grantPermissions(['clipboard-read', 'clipboard-write']);
        playground.page = await playground.context.newPage();
        playground.page.on('pageerror', error => playground.errors.push(error.message));
        playground.page.on('console', message => message.type() === 'error' && playground.errors.push(message.text()));
        playground.page.on('request', request => playground.requests.push(request.url()));
        await prepare(playground.page);
        await playground.page.goto(playground.address + hash);
        await playground.checked();
        return playground;
    }

    /// Waits until the verdict on what stands in the editor is there, or why there is none.
    async checked() {
        await this.page.waitForSelector('#state[aria-busy="false"]', { timeout: PATIENCE });
    }

    /// Pastes a program in the place of what stands in the editor, and waits for its verdict.
    async write(program) {
        await this.page.evaluate(async text => {
            document.querySelector('.cm-content').focus();
            await navigator.clipboard.writeText(text);
        }, program);
        await this.page.keyboard.press('Control+A');
        await this.page.keyboard.press('Control+V');
        await this.checked();
    }

    /// What stands in the editor, if it is short enough to be all in view.
    shown() {
        return this.page.$$eval('.cm-line', lines => lines.map(line => line.textContent).join('\n'));
    }

    /// What stands in the editor, as it is kept.
    text() {
        return this.page.evaluate(() => localStorage.getItem('pozhil-playground-program'));
    }

    /// The list below the editor: of each finding, its kind, line, code and message.
    findings() {
        return this.page.evaluate(() => [...document.querySelectorAll('#findings li')].map(item => ({
            kind: item.className,
            line: item.querySelector('.place')?.textContent,
            code: item.querySelector('.code')?.firstChild.textContent,
            message: item.querySelector('.message').textContent,
        })));
    }

    /// The texts that are underlined as faults.
    underlined() {
        return this.page.evaluate(() => [...document.querySelectorAll('.cm-lintRange-error')].map(mark => mark.textContent));
    }

    summary() {
        return this.page.textContent('#summary');
    }

    close() {
        return this.context.close();
    }
}

/// A test of an open playground, of `Playground.open` with these options. It may ask nobody but its own host for anything,
/// and the browser may have nothing to say against it.
export function playgroundTest(name, act, open = {}) {
    return test(name, async () => {
        const playground = await Playground.open(open);
        try {
            await act(playground);
            const isOwn = url => url.startsWith(playground.address) || url.startsWith('blob:');
            assert.deepEqual(playground.requests.filter(url => !isOwn(url)), []);
            assert.deepEqual(playground.errors, []);
        } finally {
            await playground.close();
        }
    });
}
