// Runs the browser tests, all or the named files, several files at a time.

import { readdirSync } from 'node:fs';
import path from 'node:path';
import { run } from 'node:test';
import { spec as Spec } from 'node:test/reporters';
import { fileURLToPath } from 'node:url';

// Builds wait for each other, browsers don't.
const AT_A_TIME = 2;

const here = path.dirname(fileURLToPath(import.meta.url));
const named = process.argv.slice(2);
const files = named.length > 0 ? named.map(name => path.resolve(name))
    : readdirSync(here).filter(name => name.endsWith('.test.js')).sort().map(name => path.join(here, name));

const stop = new AbortController();
for (const signal of ['SIGINT', 'SIGTERM']) {
    process.once(signal, () => stop.abort());
}

run({ files, concurrency: AT_A_TIME, signal: stop.signal })
    .on('test:fail', () => { process.exitCode = 1; })
    .compose(new Spec())
    .pipe(process.stdout);
