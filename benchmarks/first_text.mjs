// How long a published application takes to show its first text: node benchmarks/first_text.mjs <folder> [megabits]
//
// The folder is one that `பொழில் வெளியிடு` has made. It is served as hosts do that send compressed copies, to a Chromium
// that is up already and knows nothing of the page, over a line of so many megabits a second (9 unless given) that
// answers after 20 milliseconds. Tells the median of several openings, and what went over the wire.

import { existsSync, readFileSync } from 'node:fs';
import { createServer } from 'node:http';
import path from 'node:path';

import { launch } from '../tests/web/harness/browser.js';
import { recordTexts } from '../tests/web/harness/recorder.js';

const [folder, megabits = '9'] = process.argv.slice(2);
const OPENINGS = 7;
const LATENCY = 20;
const TYPES = { '.html': 'text/html; charset=utf-8', '.js': 'text/javascript', '.wasm': 'application/wasm' };

/// Serves the copies with one of these endings, and counts the bytes.
function serve(kind) {
    const sent = { bytes: 0 };
    const server = createServer((request, response) => {
        const file = path.join(folder, request.url === '/' ? 'index.html' : decodeURI(request.url));
        const copy = file + (kind?.ending ?? '');
        const found = existsSync(copy) ? copy : file;
        if (!existsSync(found)) {
            response.writeHead(404).end();
            return;
        }
        const bytes = readFileSync(found);
        sent.bytes += bytes.length;
        const type = TYPES[path.extname(file)];
        response.writeHead(200, { ...(type && { 'Content-Type': type }), 'Content-Length': bytes.length,
                                  ...(found !== file && { 'Content-Encoding': kind.encoding }) });
        response.end(bytes);
    });
    return new Promise(ready => server.listen(0, '127.0.0.1', () => ready({ server, sent })));
}

async function timeToFirstText(browser, address) {
    const context = await browser.newContext({ viewport: { width: 390, height: 844 } });
    const page = await context.newPage();
    await page.addInitScript(recordTexts);
    const session = await context.newCDPSession(page);
    await session.send('Network.emulateNetworkConditions', {
        offline: false, latency: LATENCY, downloadThroughput: Number(megabits) * 1e6 / 8, uploadThroughput: -1 });
    await page.goto(address, { waitUntil: 'commit' });
    const time = await page.evaluate(() => new Promise(shown => {
        const look = () => (window.recorded.texts.length > 0 ? shown(performance.now()) : setTimeout(look, 2));
        look();
    }));
    await context.close();
    return time;
}

const browser = await launch();
for (const kind of [{ ending: '.br', encoding: 'br' }, { ending: '.gz', encoding: 'gzip' }]) {
    const { server, sent } = await serve(kind);
    const times = [];
    for (let opening = 0; opening < OPENINGS; opening++) {
        sent.bytes = 0;
        times.push(await timeToFirstText(browser, `http://127.0.0.1:${server.address().port}/`));
    }
    times.sort((one, other) => one - other);
    console.log(`${kind.encoding}: ${(sent.bytes / 1000).toFixed(1)} kB, first text after `
        + `${times[Math.floor(OPENINGS / 2)].toFixed(0)} ms (best ${times[0].toFixed(0)}) at ${megabits} Mbit/s`);
    server.closeAllConnections();
    server.close();
}
await browser.close();
