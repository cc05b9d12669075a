// Runs the browser tests, all or the named files, several files at a time.

import { spawn } from 'node:child_process';
import { readdirSync } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

// Builds wait for each other, browsers don't.
const AT_A_TIME = 2;
// What each file's report ends with.
const COUNT = /^ℹ (tests|pass|fail|cancelled|skipped|todo) (\d+)$/gm;

const here = path.dirname(fileURLToPath(import.meta.url));
const named = process.argv.slice(2);
const files = named.length > 0 ? named.map(name => path.resolve(name))
    : readdirSync(here).filter(name => name.endsWith('.test.js')).sort().map(name => path.join(here, name));

const stop = new AbortController();
for (const signal of ['SIGINT', 'SIGTERM']) {
    process.once(signal, () => stop.abort());
}

const begin = Date.now();
const waiting = [...files];
const failed = [];
const counts = new Map();

/// Prints the report of `file` when it is complete, so that reports of files that run beside each other stay apart.
///
/// Each file is a process that reports by itself: the runner of node:test takes the reports of its files from them in
/// a form of its own, and loses its way in it when one arrives in unlucky pieces.
function runFile(file) {
    return new Promise(resolve => {
        const child = spawn(process.execPath, ['--test-reporter=spec', file],
                            { stdio: ['ignore', 'pipe', 'pipe'], signal: stop.signal });
        let report = '';
        for (const stream of [child.stdout, child.stderr]) {
            stream.setEncoding('utf8').on('data', piece => { report += piece; });
        }
        child.on('error', error => { report += `${error.message}\n`; });
        child.on('close', status => {
            process.stdout.write(`\n--- ${path.basename(file)}\n${report}`);
            for (const [, name, count] of report.matchAll(COUNT)) {
                counts.set(name, (counts.get(name) ?? 0) + Number(count));
            }
            if (status !== 0) {
                failed.push(path.basename(file));
            }
            resolve();
        });
    });
}

async function work() {
    while (waiting.length > 0 && !stop.signal.aborted) {
        await runFile(waiting.shift());
    }
}

await Promise.all(Array.from({ length: AT_A_TIME }, work));

process.stdout.write(`\n--- ${files.length} files, ${Math.round((Date.now() - begin) / 1000)} s\n`);
for (const [name, count] of counts) {
    process.stdout.write(`ℹ ${name} ${count}\n`);
}
if (failed.length > 0 || stop.signal.aborted) {
    process.stdout.write(`✖ ${failed.join(', ')}\n`);
    process.exitCode = 1;
}
