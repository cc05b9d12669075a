// The web programs of the guide look alike in both editions.

import { readFileSync, readdirSync } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

import { MARKER, expectLikeLook } from '../harness/editions.js';

const GUIDE = path.resolve(path.dirname(fileURLToPath(import.meta.url)), '../../../docs/வலை');
const PROGRAM = /^```பொழில்-வலை.*\n([^]*?)^```$/gm;
// The second edition doesn't have the database yet.
const LEFT_OUT = 'தரவுத்தளம்.md';

for (const chapter of readdirSync(GUIDE).filter(name => name.endsWith('.md') && name !== LEFT_OUT).sort()) {
    const text = readFileSync(path.join(GUIDE, chapter), 'utf8');
    for (const { 1: source, index } of text.matchAll(PROGRAM)) {
        if (!source.startsWith(MARKER)) {
            expectLikeLook(`${chapter}:${text.slice(0, index).split('\n').length}`, source);
        }
    }
}
