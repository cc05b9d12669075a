// Takes the picture of ../எழுதிப்_பார்.md: node எழுதிப்_பார்.mjs, after scripts/build-playground.

import { readFileSync, readdirSync } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

import { launch } from '../../tests/web/harness/browser.js';
import { StaticServer } from '../../tests/web/harness/static_server.js';

const here = path.dirname(fileURLToPath(import.meta.url));
const site = path.resolve(here, '../../build/playground/site');
const ADDED = 'அச்சிடு(மெத்தம் வகு 2)';

const server = await new StaticServer().start();
const browser = await launch();
try {
    const tab = await browser.newPage({ viewport: { width: 1280, height: 640 } });
    await tab.goto(server.add(new Map(readdirSync(site).map(name => [name, readFileSync(path.join(site, name))]))));
    await tab.waitForSelector('.word-control');
    await tab.click('.cm-content');
    await tab.keyboard.press('Control+End');
    await tab.keyboard.insertText(ADDED);
    await tab.waitForSelector('#state.faulty');
    await tab.hover('.cm-lintRange-error');
    await tab.waitForSelector('.cm-tooltip .box');
    await tab.screenshot({ path: path.join(here, 'எழுதிப்_பார்.png') });
} finally {
    await browser.close();
    server.stop();
}
