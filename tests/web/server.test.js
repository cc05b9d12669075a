// What browsers ask of the compiler's own server.

import { once } from 'node:events';
import { createServer } from 'node:http';

import { address, application, assert, liveTest, near } from './harness/index.js';
import { mp4 } from './harness/pictures.js';

const VIDEO = 'assets/கடல்.mp4';

// Long enough that a browser doesn't fetch all of it before it is asked to.
const PADDING = 96 * 1024 * 1024;

function freeBox(length) {
    const box = Buffer.alloc(length);
    box.writeUInt32BE(length);
    box.write('free', 4);
    return box;
}

const files = { [VIDEO]: Buffer.concat([mp4, freeBox(PADDING)]) };
const source = application('        உரை("கடல்")');
// The page itself doesn't matter here.
const tools = { 'em++': 'while [ "$1" != -o ]; do shift; done\necho > "$2"; echo > "${2%.js}.wasm"' };

liveTest('a video can be played from any place of it', source, { files, tools }, async (compiler, { page }) => {
    await compiler.waitForVersion(2);
    await page.goto(`${address}/version`);
    const { seekable, time } = await page.evaluate(async path => {
        const video = document.body.appendChild(document.createElement('video'));
        const event = name => new Promise(happened => video.addEventListener(name, happened, { once: true }));
        video.muted = true;
        video.src = `/${path}`;
        await event('loadedmetadata');
        video.currentTime = 0.3;
        await event('seeked');
        return { seekable: video.seekable.length && video.seekable.end(0), time: video.currentTime };
    }, VIDEO);
    near(seekable, 0.5, 0.1);
    near(time, 0.3);
});

liveTest('a page that takes compressed answers gets the same', source, { tools }, async (compiler, { page }) => {
    await compiler.waitForVersion(2);
    await compiler.waitUntil(async () => (await fetch(`${address}/index.js`)).headers.get('Content-Encoding') === 'gzip',
                             'the compressed copy');
    await page.goto(`${address}/version`);
    const answer = await page.evaluate(async () => {
        const response = await fetch('/');
        return { encoding: response.headers.get('Content-Encoding'), text: await response.text() };
    });
    assert.equal(answer.encoding, 'gzip');
    assert.match(answer.text, /^<!DOCTYPE html>/);
});

/// What another site on this machine, which the browser has open as well, can get from the server.
async function strangerGets(page) {
    const stranger = createServer((request, response) => {
        response.setHeader('Content-Type', 'text/html').end('<p>');
    }).listen(0, '127.0.0.1');
    await once(stranger, 'listening');
    await page.goto(`http://127.0.0.1:${stranger.address().port}/`);
    const got = await page.evaluate(async target => {
        const read = await fetch(`${target}/version`).then(answer => answer.text(), () => 'refused');
        const script = document.createElement('script');
        script.src = `${target}/index.js`;
        const loaded = await new Promise(tell => {
            script.onload = () => tell('loaded');
            script.onerror = () => tell('refused');
            document.head.append(script);
        });
        return [read, loaded];
    }, address);
    stranger.closeAllConnections();
    stranger.close();
    return got;
}

for (const [kind, variables, expected] of [
    ['the usual server is open to other sites', {}, ['2', 'loaded']],
    ['a strict server gives nothing to other sites', { POZHIL_STRICT: '1' }, ['refused', 'refused']],
]) {
    liveTest(kind, source, { tools, variables }, async (compiler, { page }) => {
        await compiler.waitForVersion(2);
        assert.equal((await page.goto(address)).status(), 200);
        assert.deepEqual(await strangerGets(page), expected);
    });
}
