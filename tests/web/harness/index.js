// What the test files import.

import assert from 'node:assert/strict';
import { after, test } from 'node:test';

import { AppPage } from './app_page.js';
import { launch } from './browser.js';
import { Compiler, address, buildPage, publishPage } from './compiler.js';
import { PageServer } from './page_server.js';
import { StaticServer } from './static_server.js';

export { assert, address, buildPage };

const TIMEOUT = 300_000;
// The smallest build takes longer than the first.
const PUBLISHED_TIMEOUT = 600_000;
// Small, since the machine's processor draws the pages.
const WINDOW = { width: 500, height: 400 };

/// A phone, as the options of a test.
export const PHONE = { viewport: { width: 390, height: 844 }, deviceScaleFactor: 3, isMobile: true, hasTouch: true };
/// A phone of large pixels, for all that isn't about sharpness: this machine's processor draws each of them.
export const COARSE_PHONE = { ...PHONE, deviceScaleFactor: 1 };

const server = new PageServer();
let browser;

after(async () => {
    await browser?.then(running => running.close());
    if (browser) {
        server.stop();
    }
});

/// The browser of this file's tests, started by the first that needs it.
function sharedBrowser() {
    browser ??= server.start().then(() => launch());
    return browser;
}

/// Gives `use` a fresh page in a window of its own, and tells on a failure what the page said.
async function withPage({ flags, offline = false, ...context }, use) {
    const shared = await sharedBrowser();
    const running = flags ? await launch(flags) : shared;
    const opened = await running.newContext({ viewport: WINDOW, ...context });
    // The web font comes from another host; the installed one of the same name serves.
    await opened.route(url => /^https?:$/.test(url.protocol) && url.hostname !== '127.0.0.1',
                       route => (offline ? route.abort()
                                         : route.fulfill({ status: 200, contentType: 'text/css', body: '' })));
    const page = new AppPage(await opened.newPage());
    try {
        await use(page);
    } catch (error) {
        // The stack is what the report of a failure shows.
        error.stack += `\n--- console of the page\n${page.console.join('\n')}`
            + `\n--- uncaught exceptions\n${page.errors.join('\n')}\n`;
        throw error;
    } finally {
        await opened.close();
        if (flags) {
            await running.close();
        }
    }
}

/// An application of one page whose `குமரி` holds `body`.
export function application(body, { header = '', logic = '' } = {}) {
    return `வலைதளம் தளம்(\n    தலைமை(${header})\n    குமரி(\n${body}\n    )\n    வரையறை(\n${logic}\n    )\n)\n`;
}

/// A test of the page that `source` becomes. `check` gets an `AppPage` that has drawn its first frames.
///
/// Options: `files` stand beside the source; `open: false` leaves the opening to the test (`page.address`); `flags` start
/// a browser of their own; `published: true` tests the site that any server serves, from below its root, and without a
/// network; all others are those of a browser context, such as `viewport`.
export function webTest(name, source, ...rest) {
    const check = rest.pop();
    const { files, open = true, published = false, ...context } = rest[0] ?? {};
    if (published) {
        publishedTest(name, source, { files, open, ...context }, check);
        return;
    }
    test(name, { timeout: TIMEOUT }, async () => {
        const built = await buildPage(source, { files });
        await withPage(context, async page => {
            page.address = server.add(built);
            page.files = built;
            page.openBuilt = other => page.open(server.add(other));
            if (open) {
                await page.open(page.address);
            }
            await check(page);
        });
    });
}

function publishedTest(name, source, { files, open, ...context }, check) {
    test(name, { timeout: PUBLISHED_TIMEOUT }, async () => {
        const site = await publishPage(source, { files });
        const host = await new StaticServer().start();
        try {
            await withPage({ ...context, offline: true }, async page => {
                page.address = host.add(site);
                page.files = site;
                if (open) {
                    await page.open(page.address);
                }
                await check(page);
                assert.deepEqual(host.missing, []);
            });
        } finally {
            host.stop();
        }
    });
}

/// A test with a compiler that goes on serving and watching. `check` gets the `Compiler` and a page not yet opened.
export function liveTest(name, source, ...rest) {
    const check = rest.pop();
    const { files, tools, variables, ...context } = rest[0] ?? {};
    test(name, { timeout: TIMEOUT }, async () => {
        await withPage(context, async page => {
            const compiler = await Compiler.start(source, { files, tools, variables });
            try {
                await check(compiler, page);
            } finally {
                await compiler.end();
            }
        });
    });
}

/// Asserts that numbers are equal but for the rounding of single precision.
export function near(actual, expected, tolerance = 0.01) {
    assert.ok(Math.abs(actual - expected) <= tolerance, `${actual} is not ${expected} (within ${tolerance})`);
}
