// The published examples with the files that stand beside them.

import { readFileSync, readdirSync } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

const EXAMPLES = path.resolve(path.dirname(fileURLToPath(import.meta.url)), '../../../எடுத்துக்காட்டுகள்');

function assets(folder) {
    return Object.fromEntries(readdirSync(path.join(EXAMPLES, 'assets', folder)).map(
        name => [`assets/${folder}/${name}`, readFileSync(path.join(EXAMPLES, 'assets', folder, name))]));
}

/// The text of an example.
export function source(name) {
    return readFileSync(path.join(EXAMPLES, `${name}.பொழில்`), 'utf8');
}

/// Text buttons are as wide as the fonts say that scripts/setup-web has put there.
export function files() {
    return { ...assets('படங்கள்'), ...assets('சின்னங்கள்'), ...assets('font') };
}

/// An example as the source and the options of a test, in a desktop's window.
export function example(name) {
    return [source(name), { files: files(), viewport: { width: 1280, height: 800 } }];
}
