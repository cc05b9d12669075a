// The playground tells of programs what `பொழில் சரிபார் --json` tells.

import assert from 'node:assert/strict';
import { isUtf8 } from 'node:buffer';
import { execFileSync } from 'node:child_process';
import { readFileSync, readdirSync } from 'node:fs';
import path from 'node:path';

import { COMMAND, ROOT, playgroundTest } from './site.js';

/// Programs of both editions, most of them with something wrong.
const FOLDERS = ['tests/language', 'tests/mistakes', 'tests/surprises', 'எடுத்துக்காட்டுகள்'];
const IMPORT = 'நூஇறக்கி';
/// Of the output of a command that has much to tell.
const MOST_BYTES = 1 << 28;

/// The programs that a page can hold: texts of whole characters that import no files.
function programs() {
    return FOLDERS.flatMap(folder => readdirSync(path.join(ROOT, folder), { recursive: true })
        .filter(name => name.endsWith('.பொழில்')).map(name => path.join(ROOT, folder, name)))
        .filter(file => isUtf8(readFileSync(file)) && !readFileSync(file, 'utf8').includes(IMPORT)).sort();
}

/// What the command finds, by file.
function told(files) {
    let output;
    try {
        output = execFileSync(COMMAND, ['check', '--json', ...files], { maxBuffer: MOST_BYTES, encoding: 'utf8' });
    } catch (error) {
        output = error.stdout; // it ends as one that has found faults
    }
    const { findings } = JSON.parse(output);
    return files.map(one => withoutFile(findings.filter(({ file }) => file === one)));
}

const withoutFile = findings => findings.map(finding => ({ ...finding, file: '' }));

/// What the worker of the page finds in texts, asked in its own words; null where they nest too deeply for a browser.
function answered(page, texts) {
    return page.evaluate(async all => {
        const script = await (await fetch('worker.js')).text();
        const module = await WebAssembly.compile(await (await fetch('compiler.wasm')).arrayBuffer());
        const modules = await (await fetch('modules.json')).json();
        let worker = null;
        const answers = [];
        for (const text of all) {
            if (worker === null) {
                worker = new Worker(URL.createObjectURL(new Blob([script])));
                worker.postMessage({ module, modules });
            }
            worker.postMessage({ what: 'check', text });
            const { answer, kind } = await new Promise(resolve => { worker.onmessage = ({ data }) => resolve(data); });
            answers.push(kind === 'deep' ? null : answer?.findings);
            worker = answer === undefined ? worker.terminate() ?? null : worker;
        }
        return answers;
    }, texts);
}

playgroundTest('finds what the command finds in every program', async ({ page }) => {
    const files = programs();
    assert.ok(files.length > 1000, `${files.length} programs`);
    const expected = told(files);
    assert.ok(expected.filter(findings => findings.length > 0).length > 300);
    const answers = await answered(page, files.map(file => readFileSync(file, 'utf8')));
    files.forEach((file, index) => {
        if (answers[index] !== null) {
            assert.deepEqual(withoutFile(answers[index]), expected[index], file);
        }
    });
    const deep = files.filter((_, index) => answers[index] === null);
    assert.ok(deep.length <= 3, deep.join(' '));
});
