// What a page costs where nothing happens: node benchmarks/idle_page.mjs [compiler]...
//
// The processor time of all processes of a headless Chromium without a graphics card while it shows a form at rest,
// as each of the compilers builds it, in turns; beside them a page without anything. Milliseconds of a second, medians.

import { readFileSync, readdirSync } from 'node:fs';
import { setTimeout as pause } from 'node:timers/promises';

import { launch } from '../tests/web/harness/browser.js';
import { buildPage, compilerPath } from '../tests/web/harness/compiler.js';
import { files, source } from '../tests/web/harness/examples.js';
import { PageServer } from '../tests/web/harness/page_server.js';

const EXAMPLE = 'பதிவுப்_படிவம்';
const WINDOW = { width: 1280, height: 800 };
const ROUNDS = 3;
// By then the browser has compiled the program for good, on a busy machine too.
const SETTLING = 25_000;
const MEASURED = 10_000;
// Of /proc, in milliseconds.
const TICK = 10;

/// The processor time so far of all processes that this one has started, in milliseconds.
function processorTime() {
    const processes = new Map();
    for (const id of readdirSync('/proc').filter(name => /^\d+$/.test(name))) {
        try {
            const text = readFileSync(`/proc/${id}/stat`, 'utf8');
            const [, parent, ...more] = text.slice(text.lastIndexOf(')') + 2).split(' ');
            processes.set(id, { parent, ticks: Number(more[9]) + Number(more[10]) });
        } catch {
            // has ended meanwhile
        }
    }
    const isOurs = id => {
        const { parent } = processes.get(id) ?? {};
        return parent === String(process.pid) || (parent !== undefined && isOurs(parent));
    };
    return [...processes.keys()].filter(isOurs).reduce((sum, id) => sum + processes.get(id).ticks, 0) * TICK;
}

async function cost(browser, address) {
    const tab = await browser.newPage({ viewport: WINDOW });
    await tab.goto(address);
    await pause(SETTLING);
    const before = [processorTime(), performance.now()];
    await pause(MEASURED);
    const after = [processorTime(), performance.now()];
    await tab.close();
    return (after[0] - before[0]) / (after[1] - before[1]) * 1000;
}

const compilers = process.argv.length > 2 ? process.argv.slice(2) : [compilerPath()];
const server = new PageServer();
await server.start();
const places = [['about:blank', 'about:blank']];
for (const compiler of compilers) {
    process.env.POZHIL_COMPILER = compiler;
    places.push([compiler, server.add(await buildPage(source(EXAMPLE), { files: files(), compiler }))]);
}
const browser = await launch();
const costs = places.map(() => []);
for (let round = 0; round < ROUNDS; round++) {
    for (const [place, [, address]] of places.entries()) {
        costs[place].push(await cost(browser, address));
    }
}
await browser.close();
server.stop();
places.forEach(([name], place) => {
    const sorted = costs[place].sort((one, other) => one - other);
    console.log(`${sorted[ROUNDS >> 1].toFixed(1).padStart(8)}  ${name}`);
});
process.exit(0);
