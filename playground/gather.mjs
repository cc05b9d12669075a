// Writes what the page loads beside its scripts: samples.json, the programs that samples.txt names, and modules.json, the
// modules that programs may import; and licences.txt, of all that is in it and isn't ours.
//
//   node gather.mjs <folder>

import { execFileSync } from 'node:child_process';
import { existsSync, readFileSync, readdirSync, realpathSync, writeFileSync } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

const here = path.dirname(fileURLToPath(import.meta.url));
const root = path.dirname(here);
const folder = process.argv[2];
const ENDING = '.பொழில்';
const MODULES = path.join(root, 'தொகுப்புகள்');
/// Folders of modules: those of all programs, and texts of the second edition's own.
const MODULE_FOLDERS = ['', 'இரண்டாம்_பதிப்பு'];

/// Whose licences they are, and where.
const LICENCES = [
    ...packagesIn(path.join(here, 'node_modules')),
    ...['vscode-oniguruma', 'vscode-textmate'].map(name => [name, path.join(root, 'editors/node_modules', name)]),
    ['utf8proc', path.join(root, 'third_party/utf8proc')],
    ['Emscripten', emscriptenLicence()],
];
const LICENCE_FILE = /^(LICEN[CS]E|COPYING|NOTICES|copyright)(\.(md|txt))?$/i;

/// Names and folders of all packages that npm has put into a folder.
function packagesIn(folder) {
    const below = (name, inside) => readdirSync(inside).filter(entry => !entry.startsWith('.'))
        .map(entry => [name + entry, path.join(inside, entry)]);
    const isScope = name => name.startsWith('@');
    return below('', folder).flatMap(([name, inside]) => (isScope(name) ? below(`${name}/`, inside) : [[name, inside]]));
}

/// Debian has it apart from em++, all others beside it.
function emscriptenLicence() {
    const debian = '/usr/share/doc/emscripten';
    return existsSync(debian) ? debian
        : path.dirname(realpathSync(execFileSync('sh', ['-c', 'command -v em++'], { encoding: 'utf8' }).trim()));
}

/// The texts of a part's licence. Without one, the part may not be passed on.
function licencesOf([name, where]) {
    const texts = readdirSync(where).filter(file => LICENCE_FILE.test(file)).map(file => read(path.join(where, file)).trim());
    if (texts.join('') === '') {
        throw new Error(`உரிமம் இல்லை / No licence: ${name} (${where})`);
    }
    return texts.map(text => `${name}\n\n${text}\n`);
}

const licences = () => LICENCES.flatMap(licencesOf).join(`\n${'-'.repeat(80)}\n\n`);

const read = file => readFileSync(file, 'utf8');
const write = (name, data) => writeFileSync(path.join(folder, name), JSON.stringify(data));

write('samples.json', read(path.join(here, 'samples.txt')).trim().split('\n').map(file => {
    const text = read(path.join(root, file));
    const name = path.basename(file, ENDING).replaceAll('_', ' ');
    return { name, edition: text.startsWith('ஃ பொழில் 2\n') ? 2 : 1, text };
}));
write('modules.json', MODULE_FOLDERS.flatMap(below => readdirSync(path.join(MODULES, below))
    .filter(name => name.endsWith(ENDING)).sort()
    .map(name => ({ path: path.posix.join(below, name), text: read(path.join(MODULES, below, name)) }))));
writeFileSync(path.join(folder, 'licences.txt'), licences());
