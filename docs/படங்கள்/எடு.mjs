// Takes the picture of ../எழுதும்_செயலிகள்.md: node எடு.mjs [command], after npm ci here and in ../../editors.
//
// The words are coloured by the grammar of the extension, and the faults are those that its check finds in the program.

import { execFileSync } from 'node:child_process';
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

import { launch } from '../../tests/web/harness/browser.js';

const here = path.dirname(fileURLToPath(import.meta.url));
const root = path.resolve(here, '../..');
const editors = path.join(root, 'editors');
const tools = path.join(editors, 'node_modules');
const command = process.argv[2] ?? path.join(root, 'build/release/பொழில்/பொழில்');
const { check } = createRequire(import.meta.url)(path.join(editors, 'vscode/src/check.js'));

const SIZE = { width: 1180, height: 440 };
const FAULT = '.view-line .squiggly-error, .cdr.squiggly-error';
const PROGRAM = `ஃ பொழில் 2
ஃ பொருள்களின் விலைப் பட்டியல்

கட்டமைப்பு பொருள்:
    செயல் துவக்கம்(தான், பெயர், விலை):
        தான்.பெயர் = பெயர்
        தான்.விலை = விலை

பொருள்கள் = [பொருள்("அரிசி", 62), பொருள்("வெல்லம்", 85.5)]
மொத்தம் = 0
ஒவ்வொன்றாக ஒன்று இல் பொருள்கள்:
    மொத்தம் கூட்டிசேர் ஒன்று.விலை
    எனில் ஒன்று.விலை பெரிது 80:
        அச்சிடு(ஒன்று.பெயர், ": ₹", ஒன்று.விலை)
அச்சிடு(நீளம்(பொருள்கள்), " பொருள்கள், மொத்தம் ₹", மெத்தம்)
`;

/// The page's script with all that it uses, and its styles.
function bundle(folder) {
    execFileSync(process.execPath, [
        path.join(tools, 'esbuild/bin/esbuild'), path.join(here, 'எழுதி.mjs'), '--bundle', '--format=iife', '--charset=utf8',
        '--loader:.ttf=dataurl', '--log-level=warning', `--outfile=${path.join(folder, 'page.js')}`,
    ], { env: { ...process.env, NODE_PATH: tools } });
    return ['page.js', 'page.css'].map(name => readFileSync(path.join(folder, name), 'utf8'));
}

const folder = mkdtempSync(path.join(tmpdir(), 'pozhil-editor-'));
const browser = await launch();
try {
    const file = path.join(folder, 'விலை.பொழில்');
    writeFileSync(file, PROGRAM);
    const findings = (await check(command, file)).get(file) ?? [];
    const [script, style] = bundle(folder);
    const tab = await browser.newPage({ viewport: SIZE, deviceScaleFactor: 1 });
    await tab.setContent('<!DOCTYPE html><html><body style="margin:0;height:100vh"></body></html>');
    await tab.addStyleTag({ content: style });
    await tab.addScriptTag({ content: script });
    await tab.evaluate(data => window.openEditor(data), {
        grammar: readFileSync(path.join(editors, 'vscode/syntaxes/pozhil.tmLanguage.json'), 'utf8'),
        wasm: readFileSync(path.join(tools, 'vscode-oniguruma/release/onig.wasm')).toString('base64'),
        source: PROGRAM,
        findings,
        fontFamily: '"DejaVu Sans Mono", "Noto Sans Tamil", monospace',
    });
    await tab.locator(FAULT).first().hover({ force: true });
    await tab.waitForTimeout(1500);
    await tab.screenshot({ path: path.join(here, 'எழுதும்_செயலி.png') });
} finally {
    await browser.close();
    rmSync(folder, { recursive: true });
}
