// Writes what the page loads beside its scripts: samples.json, the programs that samples.txt names, and modules.json, the
// modules that programs may import.
//
//   node gather.mjs <folder>

import { readFileSync, readdirSync, writeFileSync } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

const here = path.dirname(fileURLToPath(import.meta.url));
const root = path.dirname(here);
const folder = process.argv[2];
const ENDING = '.பொழில்';
const MODULES = path.join(root, 'தொகுப்புகள்');
/// Folders of modules: those of all programs, and texts of the second edition's own.
const MODULE_FOLDERS = ['', 'இரண்டாம்_பதிப்பு'];

const read = file => readFileSync(file, 'utf8');
const write = (name, data) => writeFileSync(path.join(folder, name), JSON.stringify(data));

write('samples.json', read(path.join(here, 'samples.txt')).trim().split('\n').map(file => {
    const text = read(path.join(root, file));
    return { name: path.basename(file, ENDING).replaceAll('_', ' '), edition: /^ஃ பொழில் 2$/m.test(text.split('\n')[0]) ? 2 : 1, text };
}));
write('modules.json', MODULE_FOLDERS.flatMap(below => readdirSync(path.join(MODULES, below))
    .filter(name => name.endsWith(ENDING)).sort()
    .map(name => ({ path: path.posix.join(below, name), text: read(path.join(MODULES, below, name)) }))));
