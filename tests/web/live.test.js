// The compiler beside an open page: a change reloads it, and faults of a change do it no harm.

import { once } from 'node:events';
import { existsSync } from 'node:fs';
import { connect } from 'node:net';
import path from 'node:path';

import { address, application, assert, liveTest, webTest } from './harness/index.js';

const showing = text => application(`        உரை("${text}")`);

/// Counts the documents that the page has loaded since.
function countDocuments(page) {
    const documents = { count: 0 };
    page.page.on('domcontentloaded', () => { documents.count++; });
    return documents;
}

liveTest('a change of the source reloads the page, once', showing('முதல்'), async (compiler, page) => {
    await compiler.waitForVersion(2);
    const documents = countDocuments(page);
    await page.open(address);
    await page.text('முதல்');
    await compiler.edit(showing('இரண்டாவது'));
    await page.waitForText('இரண்டாவது');
    assert.equal(await compiler.version(), 3);
    // Longer than two looks of the page at the version.
    await page.page.waitForTimeout(1500);
    assert.equal(documents.count, 2);
    await page.text('இரண்டாவது');
    assert.deepEqual(page.errors, []);
});

const SECOND_EDITION = 'ஃ பொழில் 2\n';

liveTest('an application of the second edition goes on after a fault, on the runtime that was precompiled meanwhile',
         SECOND_EDITION + showing('முதல்'), async (compiler, page) => {
    await compiler.waitForVersion(2);
    await page.open(address);
    await page.text('முதல்');
    const runtime = path.join(compiler.folder, '.நிலையற்ற/செயலி.பொழில்/வலை_இயக்கம்.pch');
    await compiler.waitUntil(() => existsSync(runtime), 'the precompiled runtime');
    await compiler.edit(SECOND_EDITION + showing('இரண்டாவது').replace('"இரண்டாவது"', 'இல்லாதது'));
    await page.page.getByText('பொழி-551 · செயலி.பொழில் · வரி 5').waitFor();
    await page.text('முதல்');
    await compiler.edit(SECOND_EDITION + showing('மூன்றாவது'));
    await page.waitForText('மூன்றாவது');
    assert.equal(await compiler.version(), 3);
    assert.equal(compiler.status, null);
    assert.deepEqual(page.errors, []);
});

liveTest('a fault in the source ends the compiler with its box, and the page stays', showing('முதல்'),
         async (compiler, page) => {
    await compiler.waitForVersion(2);
    const documents = countDocuments(page);
    await page.open(address);
    await compiler.edit(showing('இரண்டாவது').replace('உரை(', 'உரை'));
    assert.equal(await compiler.waitForEnd(), 1);
    assert.match(compiler.stdout, /பொழி-203/);
    assert.match(compiler.stdout, /வரி 4/);
    await page.page.waitForTimeout(1000);
    await page.text('முதல்');
    assert.equal(documents.count, 1);
});

liveTest('a build that em++ refuses leaves server and page as they are, and the next one mends it', showing('முதல்'),
         async (compiler, page) => {
    await compiler.waitForVersion(2);
    const documents = countDocuments(page);
    await page.open(address);
    await compiler.standIn('em++', 'exit 1');
    await compiler.edit(showing('இரண்டாவது'));
    await compiler.waitForOutput('(பொழி-404)');
    assert.equal(await compiler.version(), 2);
    await page.page.waitForTimeout(1000);
    await page.text('முதல்');
    assert.equal(documents.count, 1);
    assert.equal(compiler.status, null);

    await compiler.removeStandIn('em++');
    await compiler.edit(showing('மூன்றாவது'));
    await page.waitForText('மூன்றாவது');
    assert.equal(documents.count, 2);
});

liveTest('without a first build the page says so, and comes to life when there is one', showing('முதல்'),
         { tools: { 'em++': 'exit 1' } }, async (compiler, page) => {
    await compiler.waitForOutput('(பொழி-404)');
    await compiler.waitUntil(async () => (await fetch(address).catch(() => null))?.ok, 'the server');
    await page.visit(address);
    await page.page.waitForSelector('#pozhil-status.pozhil-failed');
    assert.match(await page.page.textContent('#pozhil-text'), /^நிரல் கிடைக்கவில்லை\./);

    await compiler.removeStandIn('em++');
    await compiler.edit(showing('இரண்டாவது'));
    await page.waitForText('இரண்டாவது');
});

liveTest('clients that vanish in the middle of a download leave the server up', showing('முதல்'),
         async (compiler, page) => {
    await compiler.waitForVersion(2);
    for (let round = 0; round < 5; round++) {
        const client = connect(new URL(address).port, '127.0.0.1');
        await once(client, 'connect');
        client.write('GET /index.wasm HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n');
        await once(client, 'data');
        client.resetAndDestroy();
    }
    await page.open(address);
    await page.text('முதல்');
    assert.equal(compiler.status, null);
});

const ICON = '<svg xmlns="http://www.w3.org/2000/svg" width="8" height="8"><rect width="8" height="8"/></svg>';

// One red pixel
const PICTURE = Buffer.from('iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAIAAACQd1PeAAAADElEQVR4nGP4z8AAAAMBAQDJ/pLvAAAAAElFTkSu'
    + 'QmCC', 'base64');

webTest('the icon travels in the page itself', application('', { header: 'சின்னம்: "சின்னம்.svg"' }),
        { files: { 'சின்னம்.svg': ICON } }, async page => {
    assert.equal(await page.page.getAttribute('link[rel=icon]', 'href'),
                 `data:image/svg+xml;base64,${Buffer.from(ICON).toString('base64')}`);
});

webTest('what stands in assets is there for the program, and a picture fills the page',
        application('', { header: 'பின்னணிபடம்: "assets/படங்கள்/சிவப்பு.png"' }),
        { files: { 'assets/படங்கள்/சிவப்பு.png': PICTURE, 'assets/குறிப்பு.txt': 'வணக்கம்' } }, async page => {
    assert.ok(page.files.has('index.data'));
    assert.equal(await page.page.evaluate(() => FS.readFile('assets/குறிப்பு.txt', { encoding: 'utf8' })), 'வணக்கம்');
    assert.deepEqual(await page.page.evaluate(() => FS.readdir('assets').sort()),
                     ['.', '..', 'குறிப்பு.txt', 'படங்கள்'].sort());
    assert.deepEqual(await page.pixels([[0, 0], [250, 200], [499, 399]]), Array(3).fill([255, 0, 0]));
});
